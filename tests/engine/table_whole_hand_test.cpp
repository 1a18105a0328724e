#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "engine/game_state.h"
#include "tests/support/scripted_platform.h"
#include "tests/support/table_builder.h"

namespace holdem {
namespace {

using test::ScriptedPlatform;
using test::TableBuilder;

class WholeHandTest : public ::testing::Test {
protected:
    // One tick of the running timer; returns false during the user's turn.
    bool Tick() {
        TimerId running = g.RunningTimer();
        if (running == kTimerCount) return false;
        g.FireTimer(running);
        std::string why;
        EXPECT_TRUE(g.state_is_ok(&why)) << why;
        return true;
    }
    // Ticks until the user's turn opens or `until` starts.
    int TickUntil(TimerId until) {
        int ticks = 0;
        while (g.RunningTimer() != until && ticks < 200 && Tick()) ++ticks;
        return ticks;
    }

    ScriptedPlatform p;
    Game g{p};
};

TEST_F(WholeHandTest, FourPlayersCallAndCheckDownToTheHandOver) {
    TableBuilder().Banks({10000, 0, 10000, 0, 10000, 0, 10000, 0}).Button(7).ApplyTo(g);
    // Calls before the flop stay (a of 0) and do not raise (b of 99.9); after
    // the flop a of 99.9 is above every RaiseChance, so every seat checks.
    const float call[] = {0.0f, 0.999f};
    const float check = 0.999f;
    std::vector<float> draws(52, 0.0f);
    draws.insert(draws.end(), {call[0], call[1], call[0], call[1]});
    draws.insert(draws.end(), 9, check);
    g.rnd.Script(draws);

    g.StartHand();
    ASSERT_EQ(g.ButtonSeat, 1);
    ASSERT_EQ(g.SmallBlindSeat, 3);
    ASSERT_EQ(g.BigBlindSeat, 5);
    ASSERT_EQ(g.CurrentSeat, 7);
    EXPECT_EQ(g.view.icard[1].picture, 46);  // the all-zero shuffle: Deck[7] is 46

    EXPECT_EQ(TickUntil(TimerBetHole), 8);
    EXPECT_FALSE(g.view.lblGoodLuck.visible);
    for (int s : {1, 3, 5, 7}) EXPECT_TRUE(g.view.icard[s].visible && g.view.icard[s + 8].visible) << s;

    ASSERT_TRUE(Tick());  // seat 7 calls
    EXPECT_EQ(g.view.lblBet[7].text, "Called $200");
    EXPECT_EQ(g.CurrentSeat, 1);

    ASSERT_TRUE(Tick());  // the user's turn opens
    EXPECT_EQ(g.RunningTimer(), kTimerCount);
    EXPECT_EQ(g.view.lblBet[7].text, "");
    EXPECT_EQ(g.view.lblBet[1].text, "Amount to Call: $200");
    EXPECT_FALSE(g.view.cmdPlay[1].enabled);
    EXPECT_TRUE(g.view.cmdPlay[2].enabled);
    g.cmdPlay_Click(2);
    EXPECT_EQ(g.view.lblBet[1].text, "Called $200");
    EXPECT_EQ(g.CurrentSeat, 3);

    ASSERT_TRUE(Tick());  // the small blind completes; the large blind closes
    EXPECT_EQ(g.view.lblBet[3].text, "Called $100");
    EXPECT_EQ(g.view.lblBet[5].text, "Checked");
    EXPECT_EQ(g.RunningTimer(), TimerDealFlop);
    EXPECT_EQ(g.Pot, 800);

    EXPECT_EQ(TickUntil(TimerBetFlop), 3);
    for (int s = 1; s <= 8; ++s) EXPECT_EQ(g.view.lblBet[s].text, "") << s;
    EXPECT_TRUE(g.view.icard[19].visible);
    EXPECT_EQ(g.CurrentSeat, 3);

    for (int street = 2; street <= 4; ++street) {
        SCOPED_TRACE(street);
        TickUntil(kTimerCount);  // seats 3, 5 and 7 check
        ASSERT_EQ(g.RunningTimer(), kTimerCount);
        EXPECT_EQ(g.HighBetIndex, 3);
        EXPECT_FALSE(g.view.cmdPlay[2].enabled);
        g.cmdPlay_Click(1);
        EXPECT_EQ(g.view.lblBet[1].text, "Checked");
        ASSERT_TRUE(Tick());  // back at seat 3: the round is over
        if (street < 4) TickUntil(street == 2 ? TimerBetTurn : TimerBetRiver);
    }
    EXPECT_EQ(g.RunningTimer(), TimerHandOver);
    for (int i = 17; i <= 21; ++i) EXPECT_TRUE(g.view.icard[i].visible) << i;
    EXPECT_EQ(g.Pot, 800);
    EXPECT_EQ(g.CardsDealt, 21);
    EXPECT_EQ(g.CardsKnown, 7);
    EXPECT_EQ(g.rnd.Remaining(), 0u);
    EXPECT_EQ(g.rnd.Overdrawn(), 0);
    EXPECT_EQ(p.sounds.size(), 8u + 5u + 4u);  // deal, board, the user's presses
}

// Seeded hands with small uneven stacks and a user who presses buttons at
// random: every hand reaches TimerHandOver, one timer at a time, with the
// chips conserved after every step.
TEST_F(WholeHandTest, SeededHandsAlwaysReachTheHandOver) {
    std::mt19937 user(20240917);
    g.view.mnuSound.checked = false;
    for (int hand = 0; hand < 300; ++hand) {
        SCOPED_TRACE(hand);
        g.rnd.SeedDeterministic(static_cast<uint64_t>(hand));
        TableBuilder table;
        int players = 0;
        for (int s = 1; s <= 8; ++s) {
            int32_t bank = static_cast<int32_t>(user() % 8 == 0 ? 0 : 50 * (1 + user() % 60));
            if (s == 1 && bank == 0) bank = 1000;
            players += bank > 0;
            table.Bank(s, bank);
        }
        if (players < 2) table.Bank(2, 700);
        table.Button(1 + static_cast<int>(user() % 8)).SmallBlind(100).ApplyTo(g);
        g.StopHandTimers();
        g.StartHand();

        int steps = 0;
        while (g.RunningTimer() != TimerHandOver && steps < 1000) {
            ++steps;
            if (Tick()) continue;
            ASSERT_TRUE(g.view.cmdPlay[4].visible) << "no timer and no turn";
            int index = 1 + static_cast<int>(user() % 4);
            if (!g.view.cmdPlay[index].enabled) continue;
            // What the dialog hands back: the call plus whole hundreds.
            if (index == 3)
                p.betAmounts.push_back(g.HighBetValue - g.SeatBet[1] +
                                       100 * static_cast<int32_t>(1 + user() % 30));
            g.cmdPlay_Click(index);
            p.betAmounts.clear();
            std::string why;
            ASSERT_TRUE(g.state_is_ok(&why)) << why;
        }
        ASSERT_EQ(g.RunningTimer(), TimerHandOver) << "the hand did not end";
    }
}

}  // namespace
}  // namespace holdem
