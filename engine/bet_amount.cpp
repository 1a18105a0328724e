#include "engine/bet_amount.h"

#include <cstdint>

#include "engine/common.h"
#include "engine/table_play.h"

namespace holdem {

namespace {

// More digits than this are beyond any stack; the value saturates instead of
// overflowing.
constexpr std::size_t kMaxDigits = 15;
constexpr int64_t kSaturated = 999'999'999'999'999;

bool AllDigits(const std::string& text) {
    for (char c : text)
        if (c < '0' || c > '9') return false;
    return true;
}

bool IsZero(const std::string& text) { return text.find_first_not_of('0') == std::string::npos; }

int64_t ValueOf(const std::string& text) {
    std::size_t first = text.find_first_not_of('0');
    if (first == std::string::npos) return 0;
    if (text.size() - first > kMaxDigits) return kSaturated;
    int64_t value = 0;
    for (std::size_t i = first; i < text.size(); ++i) value = value * 10 + (text[i] - '0');
    return value;
}

// Whole hundreds: the last two digits are zero. Exact however long the text.
bool WholeHundreds(const std::string& text) {
    return text.size() < 2 ? IsZero(text) : text.compare(text.size() - 2, 2, "00") == 0;
}

BetAmountOutcome Stay(std::string text, std::string title, MsgIcon icon, bool clearText) {
    BetAmountOutcome out;
    out.message = BetAmountMessage{std::move(text), std::move(title), icon};
    out.clearText = clearText;
    return out;
}

BetAmountOutcome NoBetEntered(bool clearText) {
    return Stay("No bet entered", kGameTitle, MsgIcon::None, clearText);
}

// The checks after the first: whole hundreds, then within the stack.
BetAmountOutcome CheckAmount(const BetAmountRequest& request, const std::string& text) {
    // Text that is not all digits can only come from a paste; it gets the same
    // answer as any other amount that is not whole hundreds.
    if (!AllDigits(text) || !WholeHundreds(text))
        return Stay("You must bet in multiples of $100.", kGameTitle, MsgIcon::Information, false);

    int64_t amount = ValueOf(text);
    if (request.HighBetIndex >= 1) amount += request.ToCallAmount;
    // A number too large for 32 bits is refused as over the stack: the stack
    // itself is a 32-bit amount, so the comparison in 64 bits settles it.
    if (amount > request.MaxBetAmount)
        return Stay("You've only got $" + Money(request.MaxBetAmount) + ".", "Bet Exceeds Your Chip Stack",
                    MsgIcon::Information, true);

    BetAmountOutcome out;
    out.close = true;
    out.betAmount = static_cast<int32_t>(amount);
    return out;
}

}  // namespace

BetAmountLayout BetAmountOpen(const BetAmountRequest& request) {
    BetAmountLayout layout;
    if (request.HighBetValue != 0) {
        layout.title = "Enter Raise Amount";
        layout.lblBetAmount = "How much do you want to raise?";
        layout.toCallVisible = true;
        layout.lblToCallAmount = "$" + Money(request.ToCallAmount);
        layout.lblMaxRaise = "Max Raise (All In):";
        layout.lblMaxRaiseAmount = "$" + Money(request.MaxBetAmount - request.ToCallAmount);
    } else {
        layout.title = "Enter Bet Amount";
        layout.lblBetAmount = "How much do you want to bet?";
        layout.toCallVisible = false;
        layout.lblMaxRaise = "Max Bet (All In):";
        layout.lblMaxRaiseAmount = "$" + Money(request.MaxBetAmount);
    }
    return layout;
}

bool BetAmountKeyAllowed(char key) { return (key >= '0' && key <= '9') || key == '\b' || key == '\r'; }

std::string BetAmountMaxText(const BetAmountRequest& request) {
    return Plain(static_cast<int64_t>(request.MaxBetAmount) - request.ToCallAmount);
}

BetAmountOutcome BetAmountOk(const BetAmountRequest& request, const std::string& text) {
    // "00" means nothing more than "0".
    if (text.empty() || IsZero(text)) return NoBetEntered(true);
    return CheckAmount(request, text);
}

BetAmountOutcome BetAmountEnter(const BetAmountRequest& request, const std::string& text) {
    if (text.empty()) return NoBetEntered(false);
    if (IsZero(text)) {
        BetAmountOutcome out;
        out.close = true;
        return out;
    }
    return CheckAmount(request, text);
}

}  // namespace holdem
