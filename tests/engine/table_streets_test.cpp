#include <gtest/gtest.h>

#include "tests/support/table_builder.h"

namespace holdem {
namespace {

using test::Bets;
using test::Running;
using test::TableBuilder;
using test::TableGame;
using test::Visible;

// A call before the flop: a of 0 stays, b of 99.9 does not raise.
const std::vector<float> kCall = {0.0f, 0.999f};

// The hole-card image each tick of TimerDealHole shows, "_" for none.
std::string DealOrder(Game& g) {
    std::string order;
    for (int ticks = 0; g.RunningTimer() == TimerDealHole && ticks < 20; ++ticks) {
        std::array<bool, 17> before{};
        for (int i = 1; i <= 16; ++i) before[i] = g.view.icard[i].visible;
        g.FireTimer(TimerDealHole);
        std::string shown;
        for (int i = 1; i <= 16; ++i)
            if (g.view.icard[i].visible && !before[i])
                shown += (shown.empty() ? "" : "+") + std::to_string(i);
        order += (order.empty() ? "" : " ") + (shown.empty() ? "_" : shown);
    }
    return order;
}

struct Streets : ::testing::Test, TableGame {
    // Street, previous and current seat, high bet, cards dealt and known, timer.
    std::string Where() const {
        auto n = [](int v) { return std::to_string(v); };
        return "S" + n(g.Street) + " P" + n(g.PreviousSeat) + " C" + n(g.CurrentSeat) + " H" +
               n(g.HighBetIndex) + "/" + n(g.HighBetValue) + " D" + n(g.CardsDealt) + " K" + n(g.CardsKnown) +
               " " + Running(g);
    }
    void PlaceAt(TimerId timer) {
        g.StopHandTimers();
        g.EnableTimer(timer);
    }
};

TEST_F(Streets, TheDealSkipsSeatsOutOfTheHandWithoutATick) {
    Start(TableBuilder().Banks({5000, 0, 5000, 0, 5000, 0, 0, 5000}).Button(8));
    EXPECT_EQ(DealOrder(g), "3 5 8 1 11 13 16 9");
    EXPECT_EQ(p.sounds, std::vector<std::string>(8, "DEAL"));
    EXPECT_EQ(Where(), "S1 P5 C8 H5/200 D16 K2 BetHole");
    EXPECT_EQ(Visible(g.view.iArrow), "8");
    EXPECT_FALSE(g.view.lblGoodLuck.visible || g.view.lblBlind.visible);
    for (int s = 1; s <= 8; ++s) EXPECT_NE(g.StartingHandClass[s], 9) << s;  // empty seats too
    EXPECT_TRUE(DrawsUsedUp());

    TableGame silent;
    silent.Start(TableBuilder());
    silent.g.view.mnuSound.checked = false;
    EXPECT_EQ(DealOrder(silent.g), "2 3 4 5 6 7 8 1 10 11 12 13 14 15 16 9");
    EXPECT_TRUE(silent.p.sounds.empty());
}

TEST_F(Streets, TheFlopChangesTheStreetOnceAndTurnsThreeCards) {
    Start(TableBuilder().Bank(3, 0).Button(8));  // button 1, blinds 2 and 4
    RunWhile(TimerDealHole);
    // The round before the flop as it might end: seat 2 all in, seat 6 folded.
    for (int s : {1, 2, 4, 5, 6, 7, 8}) g.SeatBet[s] = 400;
    g.SeatBank[2] = 0;
    g.SeatInHand[6] = false;
    g.SeatRaised[5] = true;
    g.PlayersInHand = 6;
    g.Pot = 2800;
    g.HighBetIndex = 5;
    g.HighBetValue = 400;
    g.PreviousSeat = 4;
    g.CurrentSeat = 5;
    g.view.lblBet[4].text = "Called $200";
    g.view.lblBet[5].text = "Raised to $400";
    g.BetAmount = 700;
    PlaceAt(TimerDealFlop);
    p.sounds.clear();

    g.FireTimer(TimerDealFlop);
    EXPECT_EQ(Where(), "S2 P1 C2 H0/0 D17 K2 DealFlop");  // seat 2 all in, but not passed over
    EXPECT_EQ(Bets(g), "|||||||");
    EXPECT_EQ(Visible(g.view.iArrow) + "|" + Visible(g.view.icard, 17, 21), "|17");
    EXPECT_EQ(g.BetAmount, 0);
    for (int s = 1; s <= 8; ++s) {
        EXPECT_FALSE(g.SeatRaised[s]) << s;
        EXPECT_EQ(g.SeatBet[s], 0) << s;
        EXPECT_EQ(g.SeatTotalBet[s], s == 3 ? 0 : 400) << s;
    }
    g.FireTimer(TimerDealFlop);
    g.FireTimer(TimerDealFlop);
    EXPECT_EQ(Where(), "S2 P1 C2 H0/0 D19 K5 BetFlop");
    EXPECT_EQ(g.SeatTotalBet[5], 400);
    EXPECT_EQ(Visible(g.view.iArrow) + "|" + Visible(g.view.icard, 17, 21), "2|17 18 19");
    EXPECT_EQ(p.sounds.size(), 3u);
    EXPECT_EQ(g.view.lblPrevious.text, "1");
}

TEST_F(Streets, TurnAndRiverTurnOneCardEach) {
    Start(TableBuilder().Bank(2, 0).Button(8));  // button 1; seat 2 empty
    RunWhile(TimerDealHole);
    g.CardsDealt = 19;
    g.Street = 2;
    PlaceAt(TimerDealTurn);
    g.FireTimer(TimerDealTurn);
    EXPECT_EQ(Where(), "S3 P2 C3 H0/0 D20 K6 BetTurn");
    EXPECT_EQ(Visible(g.view.iArrow) + "|" + Visible(g.view.icard, 17, 21), "3|20");
    PlaceAt(TimerDealRiver);
    g.FireTimer(TimerDealRiver);
    EXPECT_EQ(Where(), "S4 P2 C3 H0/0 D21 K7 BetRiver");
    EXPECT_EQ(Visible(g.view.icard, 17, 21), "20 21");
    EXPECT_TRUE(DrawsUsedUp());
}

TEST_F(Streets, AnOpponentAtTheHighBetClosesTheRoundWithChecked) {
    Start(TableBuilder().Button(8));  // button 1, blinds 2 and 3
    RunWhile(TimerDealHole);
    for (int s : {4, 5, 6, 7, 8, 1, 2}) g.SeatBet[s] = 200;
    g.PreviousSeat = 2;
    g.CurrentSeat = 3;
    g.view.lblBet[2].text = "Called $100";
    g.FireTimer(TimerBetHole);
    EXPECT_EQ(Bets(g), "||Checked|||||");
    EXPECT_EQ(Running(g), "DealFlop");
    EXPECT_TRUE(DrawsUsedUp());  // no move, no draw
}

TEST_F(Streets, ASeatOutOfTheHandCostsOneTickAndNoArrow) {
    Start(TableBuilder().Button(8));
    RunWhile(TimerDealHole);
    g.SeatInHand[4] = false;
    g.PlayersInHand = 7;
    g.FireTimer(TimerBetHole);
    EXPECT_EQ(Where(), "S1 P4 C5 H3/200 D16 K2 BetHole");
    EXPECT_EQ(Visible(g.view.iArrow), "4");  // where the deal left it
}

TEST_F(Streets, EveryoneCallsAndTheUserInTheLargeBlindGetsTheOption) {
    std::vector<float> calls;
    for (int n = 0; n < 7; ++n) calls.insert(calls.end(), kCall.begin(), kCall.end());
    Start(TableBuilder().Button(6), calls);  // button 7, blinds 8 and 1
    RunWhile(TimerDealHole);
    for (int n = 0; n < 7; ++n) g.FireTimer(TimerBetHole);
    EXPECT_EQ(Bets(g), "Large Blind: $200|||||||Called $100");
    EXPECT_EQ(Where(), "S1 P8 C1 H1/200 D16 K2 BetHole");  // the option waits for the next tick
    g.FireTimer(TimerBetHole);
    EXPECT_EQ(Bets(g), "Amount to Call: $0|||||||");
    EXPECT_EQ(test::Buttons(g), "1.34");
    EXPECT_EQ(Running(g), "none");
    EXPECT_TRUE(DrawsUsedUp());
    g.cmdPlay_Click(1);
    EXPECT_EQ(g.view.lblBet[1].text, "Checked");
    EXPECT_EQ(Running(g), "DealFlop");
}

TEST_F(Streets, TheSearchPassesAllInSeatsButStopsAtAnAllInHighBet) {
    Start(TableBuilder().Button(8), {0.999f});  // seat 4 folds on one draw
    RunWhile(TimerDealHole);
    g.SeatBank[5] = 0;
    g.SeatBank[6] = 0;
    g.HighBetIndex = 6;
    g.FireTimer(TimerBetHole);
    EXPECT_EQ(Bets(g), "|Small Blind: $100||Folded||||");  // seat 6 is not the large blind
    EXPECT_FALSE(g.view.icard[4].visible);
    EXPECT_EQ(Where(), "S1 P4 C6 H6/200 D16 K2 DealFlop");
    EXPECT_TRUE(DrawsUsedUp());
}

TEST_F(Streets, AfterTheFlopTheRoundClosesBackAtTheFirstCheck) {
    // Draws of 90: above every RaiseChance, so each seat checks.
    Start(TableBuilder().Banks({0, 5000, 0, 5000, 0, 0, 5000, 0}).Button(8), {0.9f, 0.9f, 0.9f});
    RunWhile(TimerDealHole);
    PlaceAt(TimerDealFlop);
    RunWhile(TimerDealFlop);
    ASSERT_EQ(Where(), "S2 P3 C4 H0/0 D19 K5 BetFlop");
    g.FireTimer(TimerBetFlop);
    EXPECT_EQ(Bets(g) + " " + Where(), "|||Checked|||| S2 P4 C7 H4/0 D19 K5 BetFlop");
    g.FireTimer(TimerBetFlop);  // the high bet's words stay
    EXPECT_EQ(Bets(g) + " " + Where(), "|||Checked|||Checked| S2 P7 C2 H4/0 D19 K5 BetFlop");
    g.FireTimer(TimerBetFlop);  // the search comes back to seat 4
    EXPECT_EQ(Bets(g) + " " + Where(), "|Checked|||||| S2 P2 C4 H4/0 D19 K5 DealTurn");
    EXPECT_TRUE(DrawsUsedUp());
}

TEST_F(Streets, TheUserHoldingTheHighBetEndsTheRiverRound) {
    Start(TableBuilder().Banks({5000, 5000, 0, 0, 0, 0, 0, 0}).Button(2));
    RunWhile(TimerDealHole);
    g.Street = 4;
    g.HighBetIndex = 1;
    g.HighBetValue = 0;
    g.SeatBet[1] = g.SeatBet[2] = 0;
    g.CurrentSeat = 1;
    g.PreviousSeat = 2;
    PlaceAt(TimerBetRiver);
    g.FireTimer(TimerBetRiver);
    EXPECT_EQ(Running(g), "HandOver");
    EXPECT_EQ(test::Buttons(g), "----");
}

TEST_F(Streets, TheUserAllInAndFirstOnANewStreetStillGetsATurn) {
    Start(TableBuilder().Banks({5000, 5000, 5000, 0, 0, 0, 0, 0}).Button(2));
    RunWhile(TimerDealHole);
    g.SeatBank[1] = 0;
    g.CardsDealt = 19;
    PlaceAt(TimerDealTurn);
    g.FireTimer(TimerDealTurn);
    ASSERT_EQ(g.CurrentSeat, 1);
    g.FireTimer(TimerBetTurn);
    EXPECT_EQ(Running(g), "none");
    EXPECT_EQ(test::Buttons(g), "1.34");
}

// The user folds the large blind's option; what is left is two all-in seats
// and the high bet moves to the folded small blind. Nobody can close the
// round, so the Bet tick closes it and the hand runs out.
TEST_F(Streets, AFoldThatLeavesOnlyAllInSeatsStillEndsTheRound) {
    Start(TableBuilder().Banks({10000, 0, 50, 80, 0, 0, 0, 10000}).Button(6), kCall);
    ASSERT_EQ(g.SmallBlindSeat, 1);
    // Rebuild the position by hand: button 7, the user the large blind.
    g.ButtonSeat = 7;
    g.SmallBlindSeat = 8;
    g.BigBlindSeat = 1;
    const int32_t bets[9] = {0, 200, 0, 50, 80, 0, 0, 0, 100};
    for (int s = 1; s <= 8; ++s) {
        g.SeatBet[s] = bets[s];
        g.SeatBank[s] = static_cast<float>(g.RosterBank[s] - bets[s]);
    }
    g.SeatInHand[8] = false;
    g.Pot = 430;
    g.PlayersInHand = 3;
    g.HighBetIndex = 1;
    g.HighBetValue = 200;
    g.CurrentSeat = 1;
    g.PreviousSeat = 8;
    g.StopHandTimers();
    g.OpenUserTurn();

    g.cmdPlay_Click(4);
    EXPECT_EQ(Where(), "S1 P2 C3 H8/100 D0 K0 BetHole");
    g.FireTimer(TimerBetHole);
    EXPECT_EQ(g.view.lblBet[3].text, "Checked");  // no chips: it stays whatever it drew
    EXPECT_EQ(Running(g), "DealFlop");
    EXPECT_TRUE(DrawsUsedUp());
    g.rnd.Script({0.9f, 0.9f, 0.9f});  // seat 3 checks on each street
    RunUntil(TimerHandOver);
    EXPECT_TRUE(DrawsUsedUp());
    EXPECT_EQ(Running(g), "HandOver");
    EXPECT_EQ(Visible(g.view.icard, 17, 21), "17 18 19 20 21");
    EXPECT_EQ(broken, "");
}

}  // namespace
}  // namespace holdem
