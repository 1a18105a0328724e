#include <gtest/gtest.h>

#include "tests/support/table_builder.h"

namespace holdem {
namespace {

using test::Bets;
using test::Cards;
using test::Running;
using test::TableBuilder;

// A call before the flop: a of 0 stays, b of 99.9 does not raise.
const std::vector<float> kCall = {0.0f, 0.999f};

// The hole-card images each tick of TimerDealHole shows, hidden again after each tick.
std::string DealOrder(Game& g) {
    std::string order;
    for (int ticks = 0; g.RunningTimer() == TimerDealHole && ticks < 20; ++ticks) {
        g.FireTimer(TimerDealHole);
        order += (ticks ? "," : "") + Cards(g, 1, 16);
        for (int i = 1; i <= 16; ++i) g.view.icard[i].visible = false;
    }
    return order;
}

struct Streets : ::testing::Test, test::TableGame {
    // Street, previous and current seat, high bet, cards dealt and known, timer.
    std::string Where() const {
        auto n = [](int v) { return std::to_string(v); };
        return "S" + n(g.Street) + " P" + n(g.PreviousSeat) + " C" + n(g.CurrentSeat) + " H" +
               n(g.HighBetIndex) + "/" + n(g.HighBetValue) + " D" + n(g.CardsDealt) + " K" + n(g.CardsKnown) +
               " " + Running(g);
    }
    // Puts the hand at the start of `timer` with the seats and high bet given.
    void PlaceAt(TimerId timer, int previous, int current, int highIndex, int32_t highValue) {
        g.PreviousSeat = static_cast<int16_t>(previous);
        g.CurrentSeat = static_cast<int16_t>(current);
        g.HighBetIndex = static_cast<int16_t>(highIndex);
        g.HighBetValue = highValue;
        g.StopHandTimers();
        g.EnableTimer(timer);
    }
};

TEST_F(Streets, TheDealSkipsSeatsOutOfTheHandWithoutATick) {
    Start(TableBuilder().Banks({5000, 0, 5000, 0, 5000, 0, 0, 5000}).Button(8));
    EXPECT_EQ(DealOrder(g), "3,5,8,1,11,13,16,9");
    EXPECT_EQ(p.sounds, std::vector<std::string>(8, "DEAL"));
    EXPECT_EQ(Where() + " " + test::Arrows(g), "S1 P5 C8 H5/200 D16 K2 BetHole 8");
    EXPECT_FALSE(g.view.lblGoodLuck.visible || g.view.lblBlind.visible);
    for (int s = 1; s <= 8; ++s) EXPECT_NE(g.StartingHandClass[s], 9) << s;  // empty seats too
    EXPECT_TRUE(DrawsUsedUp());

    test::TableGame silent;
    silent.Start(TableBuilder());
    silent.g.view.mnuSound.checked = false;
    EXPECT_EQ(DealOrder(silent.g), "2,3,4,5,6,7,8,1,10,11,12,13,14,15,16,9");
    EXPECT_TRUE(silent.p.sounds.empty());
}

TEST_F(Streets, TheStreetChangesOnceAndTheBoardTurnsCardByCard) {
    Start(TableBuilder().Bank(3, 0).Button(8));  // button 1, blinds 2 and 4
    RunUntil(TimerBetHole);
    // The round before the flop as it might end: seat 2 all in, seat 6 folded.
    for (int s : {1, 2, 4, 5, 6, 7, 8}) g.SeatBet[s] = 400;
    g.SeatBank[2] = 0;
    g.SeatInHand[6] = false;
    g.SeatRaised[5] = true;
    g.view.lblBet[5].text = "Raised to $400";
    g.BetAmount = 700;
    PlaceAt(TimerDealFlop, 4, 5, 5, 400);
    p.sounds.clear();
    g.FireTimer(TimerDealFlop);
    EXPECT_EQ(Where() + " " + Bets(g) + " " + Cards(g, 17, 21), "S2 P1 C2 H0/0 D17 K2 DealFlop ||||||| 17");
    EXPECT_EQ(test::Arrows(g) + "bet " + std::to_string(g.BetAmount), "bet 0");
    for (int s = 1; s <= 8; ++s) {
        EXPECT_FALSE(g.SeatRaised[s] || g.SeatBet[s]) << s;
        EXPECT_EQ(g.SeatTotalBet[s], s == 3 ? 0 : 400) << s;  // folded or all in
    }
    RunUntil(TimerBetFlop);
    EXPECT_EQ(Where() + " " + test::Arrows(g) + " " + Cards(g, 17, 21),
              "S2 P1 C2 H0/0 D19 K5 BetFlop 2 17 18 19");
    EXPECT_EQ(std::pair(g.SeatTotalBet[5], p.sounds.size()), std::pair(400, std::size_t{3}));
    EXPECT_EQ(g.view.lblPrevious.text, "1");

    g.Street = 2;
    PlaceAt(TimerDealTurn, 1, 2, 0, 0);
    g.FireTimer(TimerDealTurn);
    EXPECT_EQ(Where() + " " + test::Arrows(g) + " " + Cards(g, 20, 21), "S3 P1 C2 H0/0 D20 K6 BetTurn 2 20");
    PlaceAt(TimerDealRiver, 1, 2, 0, 0);
    g.FireTimer(TimerDealRiver);
    EXPECT_EQ(Where() + " " + Cards(g, 20, 21), "S4 P1 C2 H0/0 D21 K7 BetRiver 20 21");
    EXPECT_TRUE(DrawsUsedUp());
}

TEST_F(Streets, AnOpponentAtTheHighBetClosesTheRoundWithChecked) {
    Start(TableBuilder().Button(8));  // button 1, blinds 2 and 3
    RunUntil(TimerBetHole);
    for (int s : {4, 5, 6, 7, 8, 1, 2}) g.SeatBet[s] = 200;
    PlaceAt(TimerBetHole, 2, 3, 3, 200);
    g.view.lblBet[2].text = "Called $100";
    g.FireTimer(TimerBetHole);
    EXPECT_EQ(Bets(g) + " " + Running(g), "||Checked||||| DealFlop");
    EXPECT_TRUE(DrawsUsedUp());  // no move, no draw
}

TEST_F(Streets, ASeatOutOfTheHandCostsOneTickAndNoArrow) {
    Start(TableBuilder().Button(8));
    RunUntil(TimerBetHole);
    g.SeatInHand[4] = false;
    g.PlayersInHand = 7;
    g.FireTimer(TimerBetHole);
    EXPECT_EQ(Where() + " " + test::Arrows(g), "S1 P4 C5 H3/200 D16 K2 BetHole 4");  // where the deal left it
}

TEST_F(Streets, EveryoneCallsAndTheUserInTheLargeBlindGetsTheOption) {
    Start(TableBuilder().Button(6), test::Draws({kCall, kCall, kCall, kCall, kCall, kCall, kCall}));
    RunUntil(TimerBetHole);  // button 7, blinds 8 and 1
    for (int n = 0; n < 7; ++n) g.FireTimer(TimerBetHole);
    EXPECT_EQ(Bets(g) + " " + Where(), "Large Blind: $200|||||||Called $100 S1 P8 C1 H1/200 D16 K2 BetHole");
    g.FireTimer(TimerBetHole);  // the option waited for this tick
    EXPECT_EQ(Bets(g) + " " + Running(g) + " " + test::Buttons(g), "Amount to Call: $0||||||| none 1.34");
    EXPECT_TRUE(DrawsUsedUp());
    g.cmdPlay_Click(1);
    EXPECT_EQ(g.view.lblBet[1].text + " " + Running(g) + " " + test::Buttons(g), "Checked DealFlop ----");
}

TEST_F(Streets, TheSearchPassesAllInSeatsButStopsAtAnAllInHighBet) {
    Start(TableBuilder().Button(8), {0.999f});  // seat 4 folds on one draw
    RunUntil(TimerBetHole);
    g.SeatBank[5] = g.SeatBank[6] = 0;
    g.HighBetIndex = 6;
    g.FireTimer(TimerBetHole);
    EXPECT_EQ(Bets(g) + " " + Where(), "|Small Blind: $100||Folded|||| S1 P4 C6 H6/200 D16 K2 DealFlop");
    EXPECT_FALSE(g.view.icard[4].visible);
    EXPECT_TRUE(DrawsUsedUp());
}

TEST_F(Streets, AfterTheFlopTheRoundClosesBackAtTheFirstCheck) {
    // Draws of 90: above every RaiseChance, so each seat checks.
    Start(TableBuilder().Banks({0, 5000, 0, 5000, 0, 0, 5000, 0}).Button(8), {0.9f, 0.9f, 0.9f});
    RunUntil(TimerBetHole);
    PlaceAt(TimerDealFlop, 7, 2, 7, 200);
    RunUntil(TimerBetFlop);
    std::string ticks = Where();
    for (int n = 0; n < 3; ++n) {
        g.FireTimer(TimerBetFlop);
        ticks += ", " + Bets(g) + " " + Where();
    }
    EXPECT_EQ(
        ticks,
        "S2 P3 C4 H0/0 D19 K5 BetFlop, |||Checked|||| S2 P4 C7 H4/0 D19 K5 BetFlop, "
        "|||Checked|||Checked| S2 P7 C2 H4/0 D19 K5 BetFlop, |Checked|||||| S2 P2 C4 H4/0 D19 K5 DealTurn");
    EXPECT_TRUE(DrawsUsedUp());
}

TEST_F(Streets, TheUserAtTheHighBetEndsTheRiverAndAllInStillGetsATurn) {
    Start(TableBuilder().Banks({5000, 5000, 5000, 0, 0, 0, 0, 0}).Button(2));  // button 3
    RunUntil(TimerBetHole);
    g.Street = 4;
    PlaceAt(TimerBetRiver, 3, 1, 1, 0);
    g.FireTimer(TimerBetRiver);
    EXPECT_EQ(Running(g) + " " + test::Buttons(g), "HandOver ----");

    g.SeatBank[1] = 0;
    g.Street = 2;
    g.CardsDealt = 19;
    PlaceAt(TimerDealTurn, 3, 1, 0, 0);
    g.FireTimer(TimerDealTurn);
    g.FireTimer(TimerBetTurn);
    EXPECT_EQ(Where() + " " + test::Buttons(g), "S3 P8 C1 H0/0 D20 K6 none 1.34");
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
    for (int s = 1; s <= 8; ++s)
        g.SeatBank[s] = static_cast<float>(g.RosterBank[s] - (g.SeatBet[s] = bets[s]));
    g.SeatInHand[8] = false;
    g.Pot = 430;
    g.PlayersInHand = 3;
    PlaceAt(TimerBetHole, 8, 1, 1, 200);
    g.OpenUserTurn();

    g.cmdPlay_Click(4);
    EXPECT_EQ(Where(), "S1 P2 C3 H8/100 D0 K0 BetHole");
    g.FireTimer(TimerBetHole);
    EXPECT_EQ(g.view.lblBet[3].text + " " + Running(g), "Checked DealFlop");  // no chips: whatever it drew
    EXPECT_TRUE(DrawsUsedUp());
    g.rnd.Script({0.9f, 0.9f, 0.9f});  // seat 3 checks on each street
    RunUntil(TimerHandOver);
    EXPECT_EQ(Running(g) + " " + Cards(g, 17, 21), "HandOver 17 18 19 20 21");
    EXPECT_TRUE(DrawsUsedUp());
    EXPECT_EQ(broken, "");
}

}  // namespace
}  // namespace holdem
