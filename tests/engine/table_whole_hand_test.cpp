#include <gtest/gtest.h>

#include <random>

#include "tests/support/table_builder.h"

namespace holdem {
namespace {

using test::Bets;
using test::Buttons;
using test::Running;
using test::TableBuilder;

// Before the flop seats call (a of 0, b of 99.9); after it a of 99.9 is above
// every RaiseChance, so every seat checks.
TEST(WholeHand, FourPlayersCallAndCheckDownToTheHandOver) {
    test::TableGame t;
    Game& g = t.g;
    t.Start(TableBuilder().Banks({10000, 0, 10000, 0, 10000, 0, 10000, 0}).Button(7),
            test::Draws({{0.0f, 0.999f, 0.0f, 0.999f}, std::vector<float>(9, 0.999f)}));
    ASSERT_EQ(std::vector<int>({g.ButtonSeat, g.SmallBlindSeat, g.BigBlindSeat, g.CurrentSeat}),
              std::vector<int>({1, 3, 5, 7}));
    EXPECT_EQ(t.RunUntil(TimerBetHole), 8);
    EXPECT_EQ(test::Cards(g, 1, 16), "1 3 5 7 9 11 13 15");

    t.RunUntil(kTimerCount);  // seat 7 calls, then the user's turn opens
    EXPECT_EQ(Bets(g), "Amount to Call: $200||Small Blind: $100||Large Blind: $200|||");
    EXPECT_EQ(Buttons(g), ".234");
    g.cmdPlay_Click(2);
    EXPECT_EQ(t.RunUntil(TimerDealFlop), 1);  // the small blind completes; the large blind closes
    EXPECT_EQ(Bets(g), "Called $200||Called $100||Checked|||");  // PreviousSeat is 2: seat 1 keeps its words
    EXPECT_EQ(t.RunUntil(TimerBetFlop), 3);
    EXPECT_EQ(Bets(g), "|||||||");
    EXPECT_EQ(g.Pot, 800);
    for (int street = 2; street <= 4; ++street) {
        SCOPED_TRACE(street);
        t.RunUntil(kTimerCount);  // seats 3, 5 and 7 check
        ASSERT_EQ(Buttons(g), "1.34");
        EXPECT_EQ(g.HighBetIndex, 3);
        g.cmdPlay_Click(1);
        t.RunUntil(street == 4 ? TimerHandOver : kTimerCount);
    }
    EXPECT_EQ(Running(g), "HandOver");
    EXPECT_EQ(test::Cards(g, 17, 21), "17 18 19 20 21");
    EXPECT_EQ(std::vector<int>({g.Pot, g.CardsDealt, g.CardsKnown}), std::vector<int>({800, 21, 7}));
    EXPECT_TRUE(t.DrawsUsedUp());
    EXPECT_EQ(t.p.sounds.size(), 8u + 5u + 4u);  // the deal, the board, the user's presses
    EXPECT_EQ(t.broken, "");
}

// Seeded hands with small uneven stacks and a user pressing at random: every
// hand reaches TimerHandOver, one timer at a time, chips conserved throughout.
TEST(WholeHand, SeededHandsAlwaysReachTheHandOver) {
    test::TableGame t;
    Game& g = t.g;
    std::mt19937 user(20240917);
    g.view.mnuSound.checked = false;
    int ticks = 0;
    for (int hand = 0; hand < 300; ++hand) {
        SCOPED_TRACE(hand);
        g.rnd.SeedDeterministic(static_cast<uint64_t>(hand));
        TableBuilder table;
        int players = 0;
        for (int s = 1; s <= 8; ++s) {
            int32_t bank = user() % 8 == 0 ? 0 : 50 * static_cast<int32_t>(1 + user() % 60);
            if (s == 1 && bank == 0) bank = 1000;
            players += bank > 0;
            table.Bank(s, bank);
        }
        if (players < 2) table.Bank(2, 700);
        table.Button(1 + static_cast<int>(user() % 8)).ApplyTo(g);
        g.StopHandTimers();
        g.StartHand();
        for (int presses = 0; g.RunningTimer() != TimerHandOver && presses < 100; ++presses) {
            ticks += t.RunUntil(TimerHandOver);
            if (g.RunningTimer() == TimerHandOver) break;
            ASSERT_TRUE(g.view.cmdPlay[4].visible) << "no timer and no turn";
            int index = 1 + static_cast<int>(user() % 4);
            // What the dialog hands back: the call plus whole hundreds.
            t.p.betAmounts.clear();
            if (index == 3)
                t.p.betAmounts.push_back(g.HighBetValue - g.SeatBet[1] +
                                         100 * static_cast<int32_t>(1 + user() % 30));
            g.cmdPlay_Click(index);
        }
        ASSERT_EQ(Running(g), "HandOver");
        ASSERT_EQ(t.broken, "");
    }
    EXPECT_GT(ticks, 300 * 20);
}

}  // namespace
}  // namespace holdem
