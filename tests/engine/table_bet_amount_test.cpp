#include <gtest/gtest.h>

#include "engine/bet_amount.h"

namespace holdem {
namespace {

// Facing a bet: $600 to call out of a stack of $5,050.
const BetAmountRequest kRaise{4, 600, 600, 5050};
// Nobody has bet on this street: a stack of $3,000.
const BetAmountRequest kBet{0, 0, 0, 3000};

void ExpectStays(const BetAmountOutcome& out, const std::string& text, const std::string& title, MsgIcon icon,
                 bool clearText) {
    ASSERT_TRUE(out.message.has_value());
    EXPECT_EQ(out.message->text, text);
    if (!title.empty()) {
        EXPECT_EQ(out.message->title, title);
    }
    EXPECT_EQ(out.message->icon, icon);
    EXPECT_EQ(out.clearText, clearText);
    EXPECT_FALSE(out.close);
    EXPECT_EQ(out.betAmount, 0);
}

void ExpectCloses(const BetAmountOutcome& out, int32_t betAmount) {
    EXPECT_FALSE(out.message.has_value());
    EXPECT_TRUE(out.close);
    EXPECT_EQ(out.betAmount, betAmount);
}

TEST(BetAmount, OpensInRaiseModeWhenThereIsABet) {
    BetAmountLayout layout = BetAmountOpen(kRaise);
    EXPECT_EQ(layout.title, "Enter Raise Amount");
    EXPECT_EQ(layout.lblBetAmount, "How much do you want to raise?");
    EXPECT_TRUE(layout.toCallVisible);
    EXPECT_EQ(layout.lblToCallAmount, "$600");
    EXPECT_EQ(layout.lblMaxRaise, "Max Raise (All In):");
    EXPECT_EQ(layout.lblMaxRaiseAmount, "$4,450");
}

TEST(BetAmount, OpensInBetModeWhenNobodyHasBet) {
    BetAmountLayout layout = BetAmountOpen(BetAmountRequest{0, 0, 0, 1234567});
    EXPECT_EQ(layout.title, "Enter Bet Amount");
    EXPECT_EQ(layout.lblBetAmount, "How much do you want to bet?");
    EXPECT_FALSE(layout.toCallVisible);
    EXPECT_EQ(layout.lblMaxRaise, "Max Bet (All In):");
    EXPECT_EQ(layout.lblMaxRaiseAmount, "$1,234,567");
}

TEST(BetAmount, OnlyDigitsBackspaceAndEnterGetThrough) {
    for (char c = '0'; c <= '9'; ++c) EXPECT_TRUE(BetAmountKeyAllowed(c)) << c;
    EXPECT_TRUE(BetAmountKeyAllowed('\b'));
    EXPECT_TRUE(BetAmountKeyAllowed('\r'));
    for (char c : {'-', '+', '.', ',', ' ', 'a', 'e', '$', '\t', '\n', '/', ':'})
        EXPECT_FALSE(BetAmountKeyAllowed(c)) << static_cast<int>(c);
}

TEST(BetAmount, BetMaxFillsInTheRaiseOnTopOfTheCall) {
    EXPECT_EQ(BetAmountMaxText(kRaise), "4450");
    EXPECT_EQ(BetAmountMaxText(kBet), "3000");
}

TEST(BetAmount, OkRefusesNothingAndEmptiesTheBox) {
    ExpectStays(BetAmountOk(kRaise, ""), "No bet entered", "", MsgIcon::None, true);
    ExpectStays(BetAmountOk(kRaise, "0"), "No bet entered", "", MsgIcon::None, true);
    ExpectStays(BetAmountOk(kRaise, "000"), "No bet entered", "", MsgIcon::None, true);
}

TEST(BetAmount, OkRefusesAmountsThatAreNotWholeHundreds) {
    for (const char* text : {"150", "50", "1", "4450", "1001", "99"})
        ExpectStays(BetAmountOk(kRaise, text), "You must bet in multiples of $100.", "", MsgIcon::Information,
                    false);
}

TEST(BetAmount, OkAddsTheCallToTheTypedRaise) {
    ExpectCloses(BetAmountOk(kRaise, "100"), 700);  // $100 even when the call is far higher
    ExpectCloses(BetAmountOk(kRaise, "4400"), 5000);
    ExpectCloses(BetAmountOk(kBet, "3000"), 3000);
    ExpectCloses(BetAmountOk(kBet, "0100"), 100);
    // After a check HighBetIndex is set although nothing is to call.
    ExpectCloses(BetAmountOk(BetAmountRequest{3, 0, 0, 3000}, "500"), 500);
}

TEST(BetAmount, OkRefusesMoreThanTheStackWithTheWholeStack) {
    ExpectStays(BetAmountOk(kRaise, "4500"), "You've only got $5,050.", "Bet Exceeds Your Chip Stack",
                MsgIcon::Information, true);
    ExpectStays(BetAmountOk(kBet, "3100"), "You've only got $3,000.", "Bet Exceeds Your Chip Stack",
                MsgIcon::Information, true);
}

TEST(BetAmount, ANumberTooLargeFor32BitsIsOverTheStack) {
    for (const char* text : {"2147483700", "4294967300", "99999999999999999999999999999900"})
        ExpectStays(BetAmountOk(kBet, text), "You've only got $3,000.", "Bet Exceeds Your Chip Stack",
                    MsgIcon::Information, true);
    // The call on top of the largest 32-bit hundreds must not wrap round.
    const BetAmountRequest rich{2, 2'000'000'000, 2'000'000'000, 2'147'483'000};
    ExpectStays(BetAmountOk(rich, "2147483600"), "You've only got $2,147,483,000.",
                "Bet Exceeds Your Chip Stack", MsgIcon::Information, true);
    ExpectStays(BetAmountOk(kBet, "99999999999999999999999999999950"), "You must bet in multiples of $100.",
                "", MsgIcon::Information, false);
}

TEST(BetAmount, PastedTextIsRefusedWithoutHarm) {
    for (const char* text : {"-100", "1e3", "1,000", " 100", "abc"})
        ExpectStays(BetAmountOk(kBet, text), "You must bet in multiples of $100.", "", MsgIcon::Information,
                    false);
}

TEST(BetAmount, EnterDiffersFromOkOnAnEmptyBoxAndOnZero) {
    ExpectStays(BetAmountEnter(kRaise, ""), "No bet entered", "", MsgIcon::None, false);
    ExpectCloses(BetAmountEnter(kRaise, "0"), 0);
    ExpectCloses(BetAmountEnter(kRaise, "200"), 800);
    ExpectStays(BetAmountEnter(kRaise, "250"), "You must bet in multiples of $100.", "", MsgIcon::Information,
                false);
    ExpectStays(BetAmountEnter(kRaise, "9900"), "You've only got $5,050.", "Bet Exceeds Your Chip Stack",
                MsgIcon::Information, true);
}

}  // namespace
}  // namespace holdem
