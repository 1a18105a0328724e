// The checks of the bet dialog, free of any widget: the Qt form and the tests
// call the same functions.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "engine/platform.h"

namespace holdem {

// What the dialog shows when it opens (raise mode or bet mode).
struct BetAmountLayout {
    std::string title;            // "Enter Raise Amount" / "Enter Bet Amount"
    std::string lblBetAmount;     // the question
    bool toCallVisible = false;   // lblToCall and lblToCallAmount
    std::string lblToCallAmount;  // "$" + ToCallAmount
    std::string lblMaxRaise;      // "Max Raise (All In):" / "Max Bet (All In):"
    std::string lblMaxRaiseAmount;
};

struct BetAmountMessage {
    std::string text, title;
    MsgIcon icon = MsgIcon::None;
};

// The outcome of OK or Enter: a message to show (if any), whether the text box
// is emptied, and whether the dialog closes with BetAmount.
struct BetAmountOutcome {
    std::optional<BetAmountMessage> message;
    bool clearText = false;
    bool close = false;
    int32_t betAmount = 0;
};

BetAmountLayout BetAmountOpen(const BetAmountRequest& request);
// Only the digits, backspace ('\b') and Enter ('\r') get through.
bool BetAmountKeyAllowed(char key);
// What cmdBetMax puts in the text box.
std::string BetAmountMaxText(const BetAmountRequest& request);
BetAmountOutcome BetAmountOk(const BetAmountRequest& request, const std::string& text);
BetAmountOutcome BetAmountEnter(const BetAmountRequest& request, const std::string& text);

}  // namespace holdem
