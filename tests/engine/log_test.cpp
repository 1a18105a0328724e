#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <vector>

#include "engine/autoplay.h"
#include "engine/game_state.h"
#include "files/statistics.h"
#include "tests/support/builders.h"
#include "tests/support/scripted_platform.h"

namespace holdem {
namespace {

using namespace test;

std::vector<std::string> Lines(const Game& g) {
    std::vector<std::string> out;
    for (const LogLine& line : g.view.log) out.push_back(FormatLogLine(line));
    return out;
}

// Three players: the user all in for $1,000 on the button, the small blind
// re-raises to $2,000, the large blind calls, both check it down. Kings beat
// queens for the main pot; the queens take the side pot.
TEST(HandLog, TellsASidePotHandFromBlindsToPayments) {
    ScriptedPlatform p;
    Game g(p);
    SeatTable(g, {1000, 0, 5000, 0, 5000, 0, 0, 0}, 7);
    for (int s : {2, 4, 6, 7, 8}) g.RosterPlace[s] = static_cast<int16_t>(s);  // out before this hand
    auto deck = DeckFor(1, {"", "KhKs", "", "QhQs", "", "Ad3c"}, "2h7s9dJc4h");
    const float check = 0.999f;
    g.rnd.Script(Draws({ShuffleDrawsFor(deck), {0, 0, 0}, {0, check}, std::vector<float>(6, check)}));
    p.betAmounts.push_back(1000);

    g.StartHand();
    while (g.RunningTimer() != kTimerCount) g.FireTimer(g.RunningTimer());
    g.cmdPlay_Click(3);
    while (g.RunningTimer() != kTimerCount) g.FireTimer(g.RunningTimer());
    EXPECT_EQ(g.rnd.Remaining(), 0u);
    EXPECT_EQ(g.rnd.Overdrawn(), 0);

    const std::vector<std::string> expected = {
        "Hand 1: You has the button, blinds $100 - $200",
        "You (you) holds K\u2665 K\u2660",
        "Player 3 posts the small blind $100",
        "Player 5 posts the large blind $200",
        "You raises $800 to $1,000, all in",
        "Player 3 raises $1,000 to $2,000",
        "Player 5 calls $1,800",
        "*** Flop: 2\u2665 7\u2660 9\u2666 ***",
        "Player 3 checks",
        "Player 5 checks",
        "*** Turn: 2\u2665 7\u2660 9\u2666 J\u2663 ***",
        "Player 3 checks",
        "Player 5 checks",
        "*** River: 2\u2665 7\u2660 9\u2666 J\u2663 4\u2665 ***",
        "Player 3 checks",
        "Player 5 checks",
        "You shows K\u2665 K\u2660: Kings",
        "Player 3 shows Q\u2665 Q\u2660: Queens",
        "Player 5 shows A\u2666 3\u2663: high card",
        "You is paid $3,000, stack $3,000",
        "Player 3 is paid $2,000, stack $5,000",
        "Pot $5,000, you won $3,000",
    };
    EXPECT_EQ(Lines(g), expected);

    // The same events make the user's record.
    Statistics stats;
    StatisticsWatcher watcher;
    for (const LogLine& line : g.view.log) watcher.Observe(stats, line);
    EXPECT_EQ(stats.handsPlayed, 1);
    EXPECT_EQ(stats.handsVoluntary, 1);
    EXPECT_EQ(stats.handsWon, 1);
    EXPECT_EQ(stats.showdownsWon, 1);
    EXPECT_EQ(stats.biggestPotWon, 3000);
}

// The log watches: a game played with it and without it draws the same
// numbers and pays the same amounts, hand by hand.
TEST(HandLog, ChangesNoDrawAndNoPayment) {
    for (int players : {8, 80, 1000}) {
        SCOPED_TRACE(players);
        uint64_t draws[2] = {};
        std::size_t lines = 0;
        std::FILE* sink = std::tmpfile();
        ASSERT_NE(sink, nullptr);
        sim::GameResult with = sim::PlayOneGame(HOLDEM_ASSETS, players, 11, sim::Policy::Rule, sink,
                                                [&](Game& g) { draws[0] = g.rnd.Draws(); });
        lines = static_cast<std::size_t>(std::ftell(sink));
        std::fclose(sink);
        sim::GameResult without =
            sim::PlayOneGame(HOLDEM_ASSETS, players, 11, sim::Policy::Rule, nullptr, [&](Game& g) {
                draws[1] = g.rnd.Draws();
                EXPECT_TRUE(g.view.log.empty());
            });
        EXPECT_GT(lines, 0u);
        EXPECT_EQ(with.hands, without.hands);
        EXPECT_EQ(with.hash, without.hash);
        EXPECT_EQ(with.userPlace, without.userPlace);
        EXPECT_EQ(draws[0], draws[1]);
        EXPECT_TRUE(with.violations.empty());
    }
}

}  // namespace
}  // namespace holdem
