#include <gtest/gtest.h>

#include "engine/bet_amount.h"

namespace holdem {
namespace {

const BetAmountRequest kRaise{4, 600, 600, 5050};  // $600 to call out of $5,050
const BetAmountRequest kBet{0, 0, 0, 3000};        // nobody has bet; $3,000
const BetAmountRequest kChecked{3, 0, 0, 3000};    // seat 3 checked: HighBetIndex set, nothing to call
const BetAmountRequest kRich{2, 2'000'000'000, 2'000'000'000, 2'147'483'000};

// "close <BetAmount>", or the message (its title when not the game's), its
// icon, and whether the box is emptied.
std::string Describe(const BetAmountOutcome& out) {
    if (out.close) return out.message ? "close with a message?" : "close " + std::to_string(out.betAmount);
    if (!out.message || out.betAmount != 0) return "stays without a message?";
    const BetAmountMessage& m = *out.message;
    return m.text + (m.title == "Texas Hold'em" ? "" : " [" + m.title + "]") +
           (m.icon == MsgIcon::Information ? " (i)"
            : m.icon == MsgIcon::None      ? ""
                                           : " (?)") +
           (out.clearText ? " cleared" : "");
}

const std::string kNoBet = "No bet entered cleared";
const std::string kHundreds = "You must bet in multiples of $100. (i)";
const std::string kOver5050 = "You've only got $5,050. [Bet Exceeds Your Chip Stack] (i) cleared";
const std::string kOver3000 = "You've only got $3,000. [Bet Exceeds Your Chip Stack] (i) cleared";

struct Entry {
    const BetAmountRequest& request;
    bool enter;  // the Enter key rather than cmdOK
    const char* text;
    std::string outcome;
};

// clang-format off
const Entry kEntries[] = {
    {kRaise, 0, "", kNoBet}, {kRaise, 0, "0", kNoBet}, {kRaise, 0, "000", kNoBet}, {kRaise, 0, "150", kHundreds},
    {kRaise, 0, "50", kHundreds}, {kRaise, 0, "1", kHundreds}, {kRaise, 0, "1001", kHundreds},
    {kRaise, 0, "4450", kHundreds},  // what Bet Max fills in for a stack of $5,050
    {kRaise, 0, "100", "close 700"},  // $100 even against a far higher call
    {kRaise, 0, "4400", "close 5000"}, {kRaise, 0, "4500", kOver5050},  // the whole stack, not the raise
    {kBet, 0, "3000", "close 3000"}, {kBet, 0, "0100", "close 100"}, {kChecked, 0, "500", "close 500"},
    {kBet, 0, "3100", kOver3000}, {kBet, 0, "2147483700", kOver3000}, {kBet, 0, "4294967300", kOver3000},
    {kBet, 0, "99999999999999999999999999999900", kOver3000}, {kBet, 0, "99999999999999999999999999999950", kHundreds},
    {kRich, 0, "2147483600", "You've only got $2,147,483,000. [Bet Exceeds Your Chip Stack] (i) cleared"},
    {kBet, 0, "-100", kHundreds}, {kBet, 0, "1e3", kHundreds}, {kBet, 0, "1,000", kHundreds}, {kBet, 0, " 100", kHundreds},
    {kBet, 0, "abc", kHundreds}, {kRaise, 1, "", "No bet entered"}, {kRaise, 1, "0", "close 0"},
    {kRaise, 1, "200", "close 800"}, {kRaise, 1, "250", kHundreds}, {kRaise, 1, "9900", kOver5050},
};
// clang-format on

TEST(BetAmount, OkAndEnter) {
    for (const Entry& e : kEntries)
        EXPECT_EQ(Describe(e.enter ? BetAmountEnter(e.request, e.text) : BetAmountOk(e.request, e.text)),
                  e.outcome)
            << (e.enter ? "Enter " : "OK ") << '"' << e.text << '"';
}

TEST(BetAmount, OpensInRaiseOrBetMode) {
    auto layout = [](const BetAmountRequest& r) {
        BetAmountLayout l = BetAmountOpen(r);
        return l.title + "|" + l.lblBetAmount + "|" + (l.toCallVisible ? l.lblToCallAmount : "-") + "|" +
               l.lblMaxRaise + "|" + l.lblMaxRaiseAmount + "|" + BetAmountMaxText(r);
    };
    EXPECT_EQ(layout(kRaise),
              "Enter Raise Amount|How much do you want to raise?|$600|Max Raise (All In):|$4,450|4450");
    EXPECT_EQ(layout(BetAmountRequest{0, 0, 0, 1234567}),
              "Enter Bet Amount|How much do you want to bet?|-|Max Bet (All In):|$1,234,567|1234567");
}

TEST(BetAmount, OnlyDigitsBackspaceAndEnterGetThrough) {
    std::string through;
    for (int c = 1; c < 128; ++c)
        if (BetAmountKeyAllowed(static_cast<char>(c))) through += static_cast<char>(c);
    EXPECT_EQ(through, "\b\r0123456789");
}

}  // namespace
}  // namespace holdem
