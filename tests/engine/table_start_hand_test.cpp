#include <gtest/gtest.h>

#include <vector>

#include "engine/game_state.h"
#include "tests/support/scripted_platform.h"
#include "tests/support/table_builder.h"

namespace holdem {
namespace {

using test::ScriptedPlatform;
using test::TableBuilder;

class StartHandTest : public ::testing::Test {
protected:
    // Starts a hand on the given table with the all-zero shuffle.
    void Start(const TableBuilder& table) {
        table.ApplyTo(g);
        g.rnd.Script(std::vector<float>(52, 0.0f));
        g.StartHand();
        EXPECT_EQ(g.rnd.Remaining(), 0u);
        EXPECT_EQ(g.rnd.Overdrawn(), 0);
        std::string why;
        EXPECT_TRUE(g.state_is_ok(&why)) << why;
    }

    ScriptedPlatform p;
    Game g{p};
};

TEST_F(StartHandTest, FullTableResetsEverySeatAndPostsTheBlinds) {
    // Leftovers of an earlier hand that StartHand must clear.
    g.SeatRaised[4] = true;
    g.SeatTotalBet[5] = 700;
    g.WinnerSeats[3] = 1;
    g.SeatHandName[2] = "Two Pair";
    g.HandIsOver = true;
    g.view.lblPaid[2].visible = true;
    g.view.iArrow[6].visible = true;
    g.view.icard[5].visible = true;
    g.view.icard[19].visible = true;
    g.view.cmdDeal.visible = g.view.cmdStandings.visible = g.view.cmdFloor.visible = true;
    g.view.mnuSave.enabled = g.view.mnuSaveAs.enabled = true;
    g.HandsPlayed = 4;

    Start(TableBuilder().Button(8));

    EXPECT_EQ(g.HandsPlayed, 5);
    EXPECT_EQ(g.Street, 1);
    EXPECT_EQ(g.ButtonSeat, 1);
    EXPECT_EQ(g.SmallBlindSeat, 2);
    EXPECT_EQ(g.BigBlindSeat, 3);
    EXPECT_EQ(g.PreviousSeat, 3);
    EXPECT_EQ(g.CurrentSeat, 4);
    EXPECT_EQ(g.PlayersInHand, 8);
    EXPECT_EQ(g.Pot, 300);
    EXPECT_EQ(g.HighBetIndex, 3);
    EXPECT_EQ(g.HighBetValue, 200);
    EXPECT_FALSE(g.HandIsOver);

    EXPECT_EQ(g.SeatBank[2], 9900.0f);
    EXPECT_EQ(g.SeatBank[3], 9800.0f);
    EXPECT_EQ(g.view.lblBank[2].text, "9,900");
    EXPECT_EQ(g.view.lblBank[4].text, "10,000");
    EXPECT_EQ(g.view.lblBet[2].text, "Small Blind: $100");
    EXPECT_EQ(g.view.lblBet[3].text, "Large Blind: $200");
    EXPECT_EQ(g.view.lblBet[4].text, "");
    EXPECT_EQ(g.view.lblPot.text, "300");
    EXPECT_EQ(g.view.lblName[1].text, "You");
    EXPECT_EQ(g.view.lblName[7].text, "Player 7");

    for (int s = 1; s <= 8; ++s) {
        SCOPED_TRACE(s);
        EXPECT_TRUE(g.SeatInHand[s]);
        EXPECT_FALSE(g.SeatRaised[s]);
        EXPECT_EQ(g.SeatTotalBet[s], 0);
        EXPECT_EQ(g.WinnerSeats[s], 0);
        EXPECT_EQ(g.StartingHandClass[s], 9);
        EXPECT_EQ(g.SeatHandCode[s], 200);
        EXPECT_EQ(g.SeatHandName[s], "");
        EXPECT_TRUE(g.view.lblName[s].visible);
        EXPECT_TRUE(g.view.lblBankDollarSign[s].visible);
        EXPECT_TRUE(g.view.lblBet[s].visible);
        EXPECT_FALSE(g.view.lblPaid[s].visible);
        EXPECT_FALSE(g.view.iArrow[s].visible);
        EXPECT_EQ(g.view.iButton[s].visible, s == 1);
        EXPECT_EQ(g.RosterBank[s], 10000);  // the roster waits for the end of the hand
    }
    for (int i = 1; i <= 21; ++i) EXPECT_FALSE(g.view.icard[i].visible) << i;

    EXPECT_FALSE(g.view.mnuSave.enabled);
    EXPECT_FALSE(g.view.mnuSaveAs.enabled);
    EXPECT_FALSE(g.view.cmdDeal.visible);
    EXPECT_FALSE(g.view.cmdStandings.visible);
    EXPECT_FALSE(g.view.cmdFloor.visible);
    EXPECT_TRUE(g.view.lblBlind.visible);
    EXPECT_TRUE(g.view.lblGoodLuck.visible);
    EXPECT_TRUE(g.view.lblPot.visible);
    EXPECT_TRUE(g.view.lblPotLabel.visible);
    EXPECT_EQ(g.RunningTimer(), TimerDealHole);
    EXPECT_EQ(g.view.lblHBI.text, "3");
    EXPECT_EQ(g.view.lblHBV.text, "200");
    EXPECT_EQ(g.view.lblPrevious.text, "3");
    EXPECT_FALSE(g.view.lblHBI.visible);
}

TEST_F(StartHandTest, TwoPlayersTheButtonPostsTheLargeBlindAndTheSmallBlindActsFirst) {
    Start(TableBuilder().Banks({5000, 0, 0, 0, 3000, 0, 0, 0}).Button(1));
    EXPECT_EQ(g.ButtonSeat, 5);
    EXPECT_EQ(g.SmallBlindSeat, 1);
    EXPECT_EQ(g.BigBlindSeat, 5);
    EXPECT_EQ(g.CurrentSeat, 1);
    EXPECT_EQ(g.PreviousSeat, 5);
    EXPECT_EQ(g.view.lblBet[1].text, "Small Blind: $100");
    EXPECT_EQ(g.view.lblBet[5].text, "Large Blind: $200");
    EXPECT_EQ(g.PlayersInHand, 2);
    for (int s : {2, 3, 4, 6, 7, 8}) {
        EXPECT_FALSE(g.SeatInHand[s]) << s;
        EXPECT_FALSE(g.view.lblName[s].visible) << s;
        EXPECT_FALSE(g.view.lblBank[s].visible) << s;
        EXPECT_FALSE(g.view.lblBankDollarSign[s].visible) << s;
    }
}

TEST_F(StartHandTest, ThreePlayersTheButtonActsFirst) {
    Start(TableBuilder().Banks({0, 4000, 0, 4000, 0, 0, 4000, 0}).Button(8));
    EXPECT_EQ(g.ButtonSeat, 2);
    EXPECT_EQ(g.SmallBlindSeat, 4);
    EXPECT_EQ(g.BigBlindSeat, 7);
    EXPECT_EQ(g.CurrentSeat, 2);
    EXPECT_EQ(g.PreviousSeat, 7);
}

TEST_F(StartHandTest, FourPlayersTheSeatAfterTheLargeBlindActsFirstAcrossTheWrap) {
    Start(TableBuilder().Banks({4000, 0, 4000, 0, 0, 4000, 0, 4000}).Button(3));
    EXPECT_EQ(g.ButtonSeat, 6);
    EXPECT_EQ(g.SmallBlindSeat, 8);
    EXPECT_EQ(g.BigBlindSeat, 1);
    EXPECT_EQ(g.CurrentSeat, 3);
    EXPECT_EQ(g.view.lblBet[1].text, "Large Blind: $200");
    EXPECT_TRUE(g.view.iButton[6].visible);
}

TEST_F(StartHandTest, ShortBlindsGoAllInAndTheFullLargeBlindStillStands) {
    Start(TableBuilder().Bank(2, 60).Bank(3, 150).Button(8));
    EXPECT_EQ(g.view.lblBet[2].text, "Small Blind: $60 All In");
    EXPECT_EQ(g.view.lblBet[3].text, "Large Blind: $150 All In");
    EXPECT_EQ(g.SeatBank[2], 0.0f);
    EXPECT_EQ(g.SeatBank[3], 0.0f);
    EXPECT_EQ(g.view.lblBank[2].text, "0");
    EXPECT_EQ(g.SeatBet[2], 60);
    EXPECT_EQ(g.SeatBet[3], 150);
    EXPECT_EQ(g.Pot, 210);
    EXPECT_EQ(g.view.lblPot.text, "210");
    EXPECT_EQ(g.HighBetValue, 200);
    EXPECT_EQ(g.HighBetIndex, 3);
    EXPECT_TRUE(g.SeatInHand[2]);
    EXPECT_TRUE(g.SeatInHand[3]);
}

TEST_F(StartHandTest, StacksExactlyTheBlindEndAtZeroWithoutAllIn) {
    Start(TableBuilder().Bank(2, 250).Bank(3, 500).SmallBlind(250).Button(8));
    EXPECT_EQ(g.view.lblBet[2].text, "Small Blind: $250");
    EXPECT_EQ(g.view.lblBet[3].text, "Large Blind: $500");
    EXPECT_EQ(g.SeatBank[2], 0.0f);
    EXPECT_EQ(g.SeatBank[3], 0.0f);
    EXPECT_EQ(g.HighBetValue, 500);
}

TEST_F(StartHandTest, LargeAmountsUseTheMoneyFormat) {
    Start(TableBuilder().Bank(2, 2'000'000).Bank(3, 2'000'000).SmallBlind(25'000).Button(8));
    EXPECT_EQ(g.view.lblBet[2].text, "Small Blind: $25,000");
    EXPECT_EQ(g.view.lblBet[3].text, "Large Blind: $50,000");
    EXPECT_EQ(g.view.lblBank[3].text, "1,950,000");
    EXPECT_EQ(g.view.lblPot.text, "75,000");
}

TEST_F(StartHandTest, EmptySeatsNeverHoldTheButtonOrABlind) {
    Start(TableBuilder().Bank(2, 0).Bank(3, 0).Bank(5, 0).Button(1));
    EXPECT_EQ(g.ButtonSeat, 4);
    EXPECT_EQ(g.SmallBlindSeat, 6);
    EXPECT_EQ(g.BigBlindSeat, 7);
    EXPECT_EQ(g.CurrentSeat, 8);
    EXPECT_EQ(g.PlayersInHand, 5);
    EXPECT_EQ(g.Pot, 300);
}

// Every draw of 0 takes CardPool[0], which then receives the last card of the
// pool: the deck comes out 1, 52, 51, ..., 2.
TEST_F(StartHandTest, ShuffleAndLayoutForAnAllZeroDrawSequence) {
    Start(TableBuilder().Button(8));
    ASSERT_EQ(g.ButtonSeat, 1);
    EXPECT_EQ(g.Deck[0], 1);
    for (int i = 1; i < 52; ++i) EXPECT_EQ(g.Deck[i], 53 - i) << i;

    // Deck[p - 1] and Deck[p + 7] go to the seat p places after the button.
    EXPECT_EQ(g.SeatCards[2][1], 1);
    EXPECT_EQ(g.SeatCards[2][2], 45);
    EXPECT_EQ(g.SeatCards[8][1], 47);
    EXPECT_EQ(g.SeatCards[8][2], 39);
    EXPECT_EQ(g.SeatCards[1][1], 46);
    EXPECT_EQ(g.SeatCards[1][2], 38);
    for (int s = 1; s <= 8; ++s) {
        EXPECT_EQ(g.SeatCards[s][0], 0);
        for (int k = 3; k <= 7; ++k) EXPECT_EQ(g.SeatCards[s][k], 40 - k) << s << "/" << k;
    }
    // Only the user's cards and the board get faces.
    EXPECT_EQ(g.view.icard[1].picture, 46);
    EXPECT_EQ(g.view.icard[9].picture, 38);
    for (int i : {2, 3, 4, 5, 6, 7, 8, 10, 11, 12, 13, 14, 15, 16})
        EXPECT_EQ(g.view.icard[i].picture, 0) << i;
    for (int i = 17; i <= 21; ++i) EXPECT_EQ(g.view.icard[i].picture, 54 - i) << i;
}

// 51 * 0.5 = 25.5 rounds to 26 (not truncated to 25); 50 * 0.25 = 12.5 rounds to
// the even 12; 5 * 0.7f is exactly 3.5 in single precision (3.49999994 in
// double) and so rounds to 4.
TEST_F(StartHandTest, ShuffleRoundsTheSinglePrecisionProductHalfToEven) {
    TableBuilder().ApplyTo(g);
    std::vector<float> draws(52, 0.0f);
    draws[0] = 0.5f;
    draws[1] = 0.25f;
    draws[46] = 0.7f;
    g.rnd.Script(draws);
    g.StartHand();
    EXPECT_EQ(g.rnd.Remaining(), 0u);
    EXPECT_EQ(g.rnd.Overdrawn(), 0);

    std::vector<int> expected = {27, 13, 1};
    for (int c = 50; c >= 28; --c) expected.push_back(c);
    expected.push_back(52);
    for (int c = 26; c >= 14; --c) expected.push_back(c);
    expected.push_back(51);
    for (int c = 12; c >= 8; --c) expected.push_back(c);
    for (int c : {5, 7, 6, 4, 3, 2}) expected.push_back(c);
    ASSERT_EQ(expected.size(), 52u);
    for (int i = 0; i < 52; ++i) EXPECT_EQ(g.Deck[i], expected[i]) << i;
}

TEST_F(StartHandTest, DeckPositionsFollowTheButtonAndEmptySeatsUseTheirCards) {
    // Seat 4 is empty but the seat after the button still takes Deck[0].
    Start(TableBuilder().Bank(4, 0).Button(2));
    ASSERT_EQ(g.ButtonSeat, 3);
    EXPECT_EQ(g.SeatCards[4][1], 1);
    EXPECT_EQ(g.SeatCards[4][2], 45);
    EXPECT_EQ(g.SeatCards[5][1], 52);
    EXPECT_EQ(g.SeatCards[3][1], 46);
    EXPECT_EQ(g.SeatCards[1][1], 48);
    EXPECT_EQ(g.view.icard[1].picture, 48);
    EXPECT_EQ(g.view.icard[9].picture, 40);
}

TEST_F(StartHandTest, DealButtonStartsAHand) {
    TableBuilder().ApplyTo(g);
    g.rnd.Script(std::vector<float>(52, 0.0f));
    g.cmdDeal_Click();
    EXPECT_EQ(g.HandsPlayed, 1);
    EXPECT_EQ(g.RunningTimer(), TimerDealHole);
    EXPECT_EQ(g.rnd.Remaining(), 0u);
}

TEST(TableBuilder, ShuffleDrawsDealTheChosenCards) {
    ScriptedPlatform p;
    Game g(p);
    TableBuilder().Button(5).ApplyTo(g);
    std::array<std::pair<int, int>, 9> holes{};
    holes[1] = {13, 26};  // Aces for the user
    holes[4] = {2, 15};
    g.rnd.Script(test::ShuffleDrawsFor(test::DeckFor(6, holes, {40, 41, 42, 43, 44})));
    g.StartHand();
    ASSERT_EQ(g.ButtonSeat, 6);
    EXPECT_EQ(g.SeatCards[1][1], 13);
    EXPECT_EQ(g.SeatCards[1][2], 26);
    EXPECT_EQ(g.SeatCards[4][1], 2);
    EXPECT_EQ(g.SeatCards[4][2], 15);
    EXPECT_EQ(g.SeatCards[7][5], 42);
    EXPECT_EQ(g.SeatCards[7][7], 44);
    EXPECT_EQ(g.rnd.Remaining(), 0u);
}

}  // namespace
}  // namespace holdem
