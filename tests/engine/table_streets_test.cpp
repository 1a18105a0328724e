#include <gtest/gtest.h>

#include <vector>

#include "engine/game_state.h"
#include "tests/support/scripted_platform.h"
#include "tests/support/table_builder.h"

namespace holdem {
namespace {

using test::ScriptedPlatform;
using test::TableBuilder;

// A call before the flop: a of 0 stays, b of 99.9 does not raise.
const std::vector<float> kCall = {0.0f, 0.999f};

class StreetsTest : public ::testing::Test {
protected:
    void Start(const TableBuilder& table, std::vector<float> afterShuffle = {}) {
        table.ApplyTo(g);
        std::vector<float> draws(52, 0.0f);
        draws.insert(draws.end(), afterShuffle.begin(), afterShuffle.end());
        g.rnd.Script(draws);
        g.StartHand();
    }

    // Fires the running timer until another one (or none) runs; returns ticks.
    int RunWhile(TimerId id) {
        int ticks = 0;
        while (g.RunningTimer() == id && ticks < 100) {
            g.FireTimer(id);
            ++ticks;
            std::string why;
            EXPECT_TRUE(g.state_is_ok(&why)) << why;
        }
        return ticks;
    }

    void ExpectDrawsUsedUp() {
        EXPECT_EQ(g.rnd.Remaining(), 0u);
        EXPECT_EQ(g.rnd.Overdrawn(), 0);
    }

    // Puts the hand at the start of `timer` with the given seats in.
    void PlaceAt(TimerId timer) {
        g.StopHandTimers();
        g.EnableTimer(timer);
    }

    ScriptedPlatform p;
    Game g{p};
};

TEST_F(StreetsTest, DealSkipsEmptySeatsWithoutATick) {
    Start(TableBuilder().Banks({5000, 0, 5000, 0, 5000, 0, 0, 5000}).Button(8));
    ASSERT_EQ(g.ButtonSeat, 1);
    int ticks = 0;
    while (g.RunningTimer() == TimerDealHole) {
        int shownBefore = 0, shownAfter = 0;
        for (int i = 1; i <= 16; ++i) shownBefore += g.view.icard[i].visible;
        g.FireTimer(TimerDealHole);
        for (int i = 1; i <= 16; ++i) shownAfter += g.view.icard[i].visible;
        EXPECT_EQ(shownAfter, shownBefore + 1) << "a tick without a card";
        ++ticks;
        ASSERT_LE(ticks, 16);
    }
    EXPECT_EQ(ticks, 8);
    EXPECT_EQ(p.sounds, std::vector<std::string>(8, "DEAL"));
    for (int s : {1, 3, 5, 8}) {
        EXPECT_TRUE(g.view.icard[s].visible) << s;
        EXPECT_TRUE(g.view.icard[s + 8].visible) << s;
    }
    for (int s : {2, 4, 6, 7}) {
        EXPECT_FALSE(g.view.icard[s].visible) << s;
        EXPECT_FALSE(g.view.icard[s + 8].visible) << s;
    }
    EXPECT_EQ(g.CardsDealt, 16);
    EXPECT_EQ(g.CardsKnown, 2);
    EXPECT_FALSE(g.view.lblGoodLuck.visible);
    EXPECT_FALSE(g.view.lblBlind.visible);
    EXPECT_EQ(g.RunningTimer(), TimerBetHole);
    for (int s = 1; s <= 8; ++s) {
        EXPECT_EQ(g.view.iArrow[s].visible, s == g.CurrentSeat) << s;
        EXPECT_NE(g.StartingHandClass[s], 9) << s;  // empty seats are classified too
    }
    ExpectDrawsUsedUp();
}

TEST_F(StreetsTest, DealIsSilentWithSoundOff) {
    Start(TableBuilder());
    g.view.mnuSound.checked = false;
    EXPECT_EQ(RunWhile(TimerDealHole), 16);
    EXPECT_TRUE(p.sounds.empty());
    // The first card goes to the seat after the button, the second round after.
    EXPECT_TRUE(g.view.icard[2].visible);
    EXPECT_TRUE(g.view.icard[9].visible);
}

TEST_F(StreetsTest, FlopChangesTheStreetAndTurnsThreeCards) {
    Start(TableBuilder().Bank(3, 0).Button(8));  // button 1, blinds 2 and 4
    RunWhile(TimerDealHole);
    // The round before the flop as it might end: seat 2 all in, seat 6 folded.
    for (int s : {1, 2, 4, 5, 6, 7, 8}) g.SeatBet[s] = 400;
    g.SeatBank[2] = 0;
    g.SeatInHand[6] = false;
    g.PlayersInHand = 6;
    g.Pot = 2800;
    g.HighBetIndex = 5;
    g.HighBetValue = 400;
    g.PreviousSeat = 4;
    g.CurrentSeat = 5;
    g.SeatRaised[5] = true;
    g.view.lblBet[4].text = "Called $200";
    g.view.lblBet[5].text = "Raised to $400";
    g.BetAmount = 700;
    PlaceAt(TimerDealFlop);
    p.sounds.clear();

    g.FireTimer(TimerDealFlop);
    EXPECT_EQ(g.Street, 2);
    EXPECT_EQ(g.PreviousSeat, 1);
    EXPECT_EQ(g.CurrentSeat, 2);  // all in, but not passed over
    for (int s = 1; s <= 8; ++s) {
        EXPECT_EQ(g.view.lblBet[s].text, "") << s;
        EXPECT_FALSE(g.view.iArrow[s].visible) << s;
        EXPECT_FALSE(g.SeatRaised[s]) << s;
        EXPECT_EQ(g.SeatBet[s], 0) << s;
    }
    EXPECT_EQ(g.SeatTotalBet[5], 400);
    EXPECT_EQ(g.SeatTotalBet[6], 400);
    EXPECT_EQ(g.HighBetIndex, 0);
    EXPECT_EQ(g.HighBetValue, 0);
    EXPECT_EQ(g.BetAmount, 0);
    EXPECT_TRUE(g.view.icard[17].visible);
    EXPECT_FALSE(g.view.icard[18].visible);
    EXPECT_EQ(g.CardsDealt, 17);
    EXPECT_EQ(g.RunningTimer(), TimerDealFlop);

    g.FireTimer(TimerDealFlop);
    EXPECT_EQ(g.Street, 2);
    EXPECT_EQ(g.SeatTotalBet[5], 400);  // the street changes only once
    g.FireTimer(TimerDealFlop);
    EXPECT_TRUE(g.view.icard[19].visible);
    EXPECT_FALSE(g.view.icard[20].visible);
    EXPECT_EQ(g.CardsDealt, 19);
    EXPECT_EQ(g.CardsKnown, 5);
    EXPECT_EQ(g.RunningTimer(), TimerBetFlop);
    EXPECT_TRUE(g.view.iArrow[2].visible);
    EXPECT_EQ(p.sounds.size(), 3u);
    EXPECT_EQ(g.view.lblPrevious.text, "1");
}

TEST_F(StreetsTest, TurnAndRiverTurnOneCardEach) {
    Start(TableBuilder().Bank(2, 0).Button(8));  // button 1; seat 2 empty
    RunWhile(TimerDealHole);
    g.CardsDealt = 19;
    g.Street = 2;
    PlaceAt(TimerDealTurn);
    g.FireTimer(TimerDealTurn);
    EXPECT_EQ(g.Street, 3);
    EXPECT_EQ(g.CurrentSeat, 3);
    EXPECT_EQ(g.PreviousSeat, 2);
    EXPECT_TRUE(g.view.icard[20].visible);
    EXPECT_EQ(g.CardsDealt, 20);
    EXPECT_EQ(g.CardsKnown, 6);
    EXPECT_EQ(g.RunningTimer(), TimerBetTurn);
    EXPECT_TRUE(g.view.iArrow[3].visible);

    PlaceAt(TimerDealRiver);
    g.FireTimer(TimerDealRiver);
    EXPECT_EQ(g.Street, 4);
    EXPECT_TRUE(g.view.icard[21].visible);
    EXPECT_EQ(g.CardsDealt, 21);
    EXPECT_EQ(g.CardsKnown, 7);
    EXPECT_EQ(g.RunningTimer(), TimerBetRiver);
    ExpectDrawsUsedUp();
}

TEST_F(StreetsTest, OpponentInTheLargeBlindClosesTheRoundWithChecked) {
    Start(TableBuilder().Button(8));  // button 1, SB 2, BB 3
    RunWhile(TimerDealHole);
    for (int s : {4, 5, 6, 7, 8, 1, 2}) g.SeatBet[s] = 200;
    for (int s : {4, 5, 6, 7, 8, 1, 2}) g.SeatBank[s] = 9800;
    g.Pot = 1600;
    g.PreviousSeat = 2;
    g.CurrentSeat = 3;
    g.view.lblBet[2].text = "Called $100";
    g.FireTimer(TimerBetHole);
    EXPECT_EQ(g.view.lblBet[2].text, "");
    EXPECT_EQ(g.view.lblBet[3].text, "Checked");
    EXPECT_EQ(g.RunningTimer(), TimerDealFlop);
    ExpectDrawsUsedUp();  // it draws no chances
}

TEST_F(StreetsTest, ASeatOutOfTheHandCostsOneTickAndNoArrow) {
    Start(TableBuilder().Button(8));
    RunWhile(TimerDealHole);
    g.SeatInHand[4] = false;
    g.PlayersInHand = 7;
    g.FireTimer(TimerBetHole);
    EXPECT_EQ(g.PreviousSeat, 4);
    EXPECT_EQ(g.CurrentSeat, 5);
    EXPECT_TRUE(g.view.iArrow[4].visible);  // the arrow stays where the deal left it
    EXPECT_FALSE(g.view.iArrow[5].visible);
    EXPECT_EQ(g.RunningTimer(), TimerBetHole);
}

TEST_F(StreetsTest, EveryoneCallsAndTheUserInTheLargeBlindGetsTheOption) {
    // Button 7, small blind 8, the user in the large blind; seats 2..8 call.
    std::vector<float> calls;
    for (int n = 0; n < 7; ++n) calls.insert(calls.end(), kCall.begin(), kCall.end());
    Start(TableBuilder().Button(6), calls);
    ASSERT_EQ(g.BigBlindSeat, 1);
    RunWhile(TimerDealHole);
    for (int n = 0; n < 7; ++n) g.FireTimer(TimerBetHole);  // seats 2..8 call
    EXPECT_EQ(g.view.lblBet[7].text, "");
    EXPECT_EQ(g.view.lblBet[8].text, "Called $100");
    EXPECT_EQ(g.CurrentSeat, 1);
    EXPECT_EQ(g.RunningTimer(), TimerBetHole);  // the option waits for the next tick
    g.FireTimer(TimerBetHole);
    EXPECT_EQ(g.view.lblBet[8].text, "");
    EXPECT_EQ(g.CurrentSeat, 1);
    EXPECT_EQ(g.RunningTimer(), kTimerCount);
    EXPECT_TRUE(g.view.cmdPlay[1].visible);
    EXPECT_TRUE(g.view.cmdPlay[1].enabled);
    EXPECT_FALSE(g.view.cmdPlay[2].enabled);
    EXPECT_TRUE(g.view.cmdPlay[3].enabled);
    EXPECT_EQ(g.view.lblBet[1].text, "Amount to Call: $0");
    ExpectDrawsUsedUp();

    g.cmdPlay_Click(1);
    EXPECT_EQ(g.view.lblBet[1].text, "Checked");
    EXPECT_EQ(g.RunningTimer(), TimerDealFlop);
    EXPECT_FALSE(g.view.cmdPlay[1].visible);
}

TEST_F(StreetsTest, TheSearchPassesAllInSeatsButStopsAtAnAllInHighBet) {
    Start(TableBuilder().Button(8), {0.999f});  // seat 4 folds with one draw
    RunWhile(TimerDealHole);
    g.SeatBank[5] = 0;  // all in
    g.SeatBank[6] = 0;  // all in and holding the high bet
    g.HighBetIndex = 6;
    g.FireTimer(TimerBetHole);
    EXPECT_EQ(g.view.lblBet[4].text, "Folded");
    EXPECT_FALSE(g.view.icard[4].visible);
    EXPECT_EQ(g.PreviousSeat, 4);
    EXPECT_EQ(g.CurrentSeat, 6);
    EXPECT_EQ(g.RunningTimer(), TimerDealFlop);  // back at the high bet: round over
    EXPECT_EQ(g.view.lblBet[6].text, "");        // not the large blind
    ExpectDrawsUsedUp();
}

TEST_F(StreetsTest, AfterTheFlopTheRoundClosesBackAtTheFirstCheck) {
    // Draws of 90: above every RaiseChance, so each seat checks.
    Start(TableBuilder().Banks({0, 5000, 0, 5000, 0, 0, 5000, 0}).Button(8), {0.9f, 0.9f, 0.9f});
    RunWhile(TimerDealHole);
    PlaceAt(TimerDealFlop);
    RunWhile(TimerDealFlop);
    ASSERT_EQ(g.ButtonSeat, 2);
    ASSERT_EQ(g.CurrentSeat, 4);
    g.FireTimer(TimerBetFlop);
    EXPECT_EQ(g.view.lblBet[4].text, "Checked");
    EXPECT_EQ(g.HighBetIndex, 4);
    EXPECT_EQ(g.CurrentSeat, 7);
    g.FireTimer(TimerBetFlop);
    EXPECT_EQ(g.view.lblBet[4].text, "Checked");  // the high bet's words stay
    EXPECT_EQ(g.view.lblBet[7].text, "Checked");
    EXPECT_EQ(g.CurrentSeat, 2);
    g.FireTimer(TimerBetFlop);  // seat 2 checks and the search comes back to seat 4
    EXPECT_EQ(g.view.lblBet[7].text, "");
    EXPECT_EQ(g.view.lblBet[2].text, "Checked");
    EXPECT_EQ(g.view.lblBet[4].text, "");
    EXPECT_EQ(g.CurrentSeat, 4);
    EXPECT_EQ(g.RunningTimer(), TimerDealTurn);
    ExpectDrawsUsedUp();
}

TEST_F(StreetsTest, TheRiverRoundEndsInTheHandOver) {
    Start(TableBuilder().Banks({5000, 5000, 0, 0, 0, 0, 0, 0}).Button(2));
    RunWhile(TimerDealHole);
    g.Street = 4;
    g.CardsKnown = 7;
    g.SeatBet = {};
    g.SeatTotalBet[1] = g.SeatTotalBet[2] = 200;
    g.SeatBank[1] = g.SeatBank[2] = 4800;
    g.HighBetIndex = 1;
    g.HighBetValue = 0;
    g.CurrentSeat = 1;
    g.PreviousSeat = 2;
    PlaceAt(TimerBetRiver);
    g.FireTimer(TimerBetRiver);
    EXPECT_EQ(g.RunningTimer(), TimerHandOver);
    EXPECT_FALSE(g.view.cmdPlay[1].visible);
}

TEST_F(StreetsTest, TheUserAllInAndFirstOnANewStreetStillGetsATurn) {
    Start(TableBuilder().Banks({5000, 5000, 5000, 0, 0, 0, 0, 0}).Button(2));
    RunWhile(TimerDealHole);
    g.SeatBank[1] = 0;
    g.RosterBank[1] = 0;
    g.CardsDealt = 19;
    PlaceAt(TimerDealTurn);
    g.FireTimer(TimerDealTurn);
    ASSERT_EQ(g.CurrentSeat, 1);
    g.FireTimer(TimerBetTurn);
    EXPECT_EQ(g.RunningTimer(), kTimerCount);
    EXPECT_TRUE(g.view.cmdPlay[1].enabled);
    EXPECT_FALSE(g.view.cmdPlay[2].enabled);
}

// The user folds the large blind's option; what is left is two all-in seats
// and the new high bet lands on the folded small blind. Nobody can close the
// round, so the Bet tick closes it and the hand runs on to the flop.
TEST_F(StreetsTest, AFoldThatLeavesOnlyAllInSeatsStillEndsTheRound) {
    Start(TableBuilder().Banks({10000, 0, 50, 80, 0, 0, 0, 10000}).Button(6), kCall);
    ASSERT_EQ(g.ButtonSeat, 8);
    ASSERT_EQ(g.SmallBlindSeat, 1);
    // Rebuild the position by hand: button 7, the user the large blind.
    g.ButtonSeat = 7;
    g.SmallBlindSeat = 8;
    g.BigBlindSeat = 1;
    g.SeatBet = {};
    g.SeatBank[1] = 9800;
    g.SeatBet[1] = 200;
    g.SeatBank[8] = 9900;
    g.SeatBet[8] = 100;
    g.SeatInHand[8] = false;
    g.SeatBank[3] = 0;
    g.SeatBet[3] = 50;
    g.SeatBank[4] = 0;
    g.SeatBet[4] = 80;
    g.Pot = 430;
    g.PlayersInHand = 3;
    g.HighBetIndex = 1;
    g.HighBetValue = 200;
    g.CurrentSeat = 1;
    g.PreviousSeat = 8;
    g.StopHandTimers();
    g.OpenUserTurn();

    g.cmdPlay_Click(4);
    EXPECT_EQ(g.HighBetIndex, 8);
    EXPECT_EQ(g.HighBetValue, 100);
    EXPECT_EQ(g.CurrentSeat, 3);
    EXPECT_EQ(g.RunningTimer(), TimerBetHole);

    g.FireTimer(TimerBetHole);
    EXPECT_EQ(g.view.lblBet[3].text, "Checked");  // no chips: it stays whatever it drew
    EXPECT_EQ(g.RunningTimer(), TimerDealFlop);
    ExpectDrawsUsedUp();

    // The rest of the hand runs out, street by street.
    int ticks = 0;
    while (g.RunningTimer() != TimerHandOver && g.RunningTimer() != kTimerCount && ticks < 50) {
        g.rnd.Script({0.9f, 0.9f, 0.9f});
        g.FireTimer(g.RunningTimer());
        ++ticks;
    }
    EXPECT_EQ(g.RunningTimer(), TimerHandOver);
    EXPECT_TRUE(g.view.icard[21].visible);
}

TEST_F(StreetsTest, TheUserFoldsAndOneOpponentIsLeft) {
    Start(TableBuilder().Banks({5000, 5000, 0, 0, 0, 0, 0, 0}).Button(1));
    ASSERT_EQ(g.ButtonSeat, 2);
    ASSERT_EQ(g.CurrentSeat, 1);  // two players: the small blind acts first
    RunWhile(TimerDealHole);
    g.FireTimer(TimerBetHole);
    ASSERT_TRUE(g.view.cmdPlay[4].visible);
    g.cmdPlay_Click(4);
    EXPECT_EQ(g.RunningTimer(), TimerHandOver);
    EXPECT_FALSE(g.view.icard[17].visible);
}

}  // namespace
}  // namespace holdem
