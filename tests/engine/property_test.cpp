// Money, rounding, the random source; seeded games checked after every step and hand (chips, one timer, the
// roster, places 1..N, balanced tables, no closing check); a field the user left plays out to its winner.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <set>

#include "engine/autoplay.h"
#include "engine/play_out.h"

namespace holdem::sim {
namespace {

TEST(Common, MoneyAndRoundingHalfToEven) {
    EXPECT_EQ(Money(0) + " " + Money(999) + " " + Money(1000) + " " + Money(-2500) + " " + Money(123456789),
              "0 999 1,000 -2,500 123,456,789");
    for (auto [x, want] :
         {std::pair{0.5, 0.0}, {1.5, 2.0}, {2.5, 2.0}, {-0.5, 0.0}, {2.4, 2.0}, {2.6, 3.0}}) {
        EXPECT_EQ(RoundHalfEven(x), want) << x;
        EXPECT_EQ(RoundHalfEven(static_cast<float>(x)), static_cast<float>(want)) << x;
    }
    volatile float five = 5.0f, share = 0.7f;
    EXPECT_EQ(RoundHalfEven(five * share), 4.0f);  // 3.5 in single precision, 3.4999... in double
    // The inline rounding agrees with the library's over quarters, near-halves and sizes past 2^23.
    for (int i = -4000; i <= 4000; ++i)
        for (float x : {i / 4.0f, i / 4.0f + 1e-4f, i * 4097.0f + 0.5f, i * 1e9f + 0.5f}) {
            ASSERT_EQ(RoundHalfEven(x), std::nearbyint(x)) << x;
            ASSERT_EQ(RoundHalfEven(double{x} * 1e6 + 0.5), std::nearbyint(double{x} * 1e6 + 0.5)) << x;
        }
}

// Scripted draws are counted; a seed repeats exactly, across reseeds too, and spreads over all of [0, 1).
TEST(Random, ScriptedAndSeededDraws) {
    Random r;
    r.Script({0.25f, 0.5f});
    r.Randomize();
    EXPECT_EQ(r.Rnd() + r.Rnd(), 0.75f);
    EXPECT_EQ(r.Overdrawn() + r.Remaining(), 0u);
    r.Rnd();
    EXPECT_EQ(r.Overdrawn(), 1);

    Random a, b, c;
    a.SeedDeterministic(7), b.SeedDeterministic(7), c.SeedDeterministic(8);
    EXPECT_NE(a.Rnd(), c.Rnd());
    b.Rnd();
    std::array<int, 20> bins{};
    float low = 1, high = 0;
    const int n = 100000;
    for (int i = 0; i < n; ++i) {
        if (i % 500 == 0) a.Randomize(), b.Randomize();
        float x = a.Rnd();
        ASSERT_EQ(x, b.Rnd());
        ASSERT_TRUE(x >= 0.0f && x < 1.0f) << x;
        ++bins[static_cast<int>(x * 20)];
        low = std::min(low, x), high = std::max(high, x);
    }
    for (int count : bins) EXPECT_NEAR(count, n / 20, n / 200);
    EXPECT_TRUE(low < 0.001f && high > 0.999f);
}

// Stopped after a round (unless that ended it), played on: places 1..N, each once. Tells if it stopped.
bool CheckPlayOut(Game& g, int players) {
    g.view.logging = true;
    const int userPlace = g.UserFinishPlace;
    int rounds = 0;
    PlayOutReport report = PlayOutField(g, [&](int) { return ++rounds < 2; });
    const bool stopped = !report.finished;
    EXPECT_EQ(CanPlayOutField(g), stopped) << "a stopped field plays on later";
    if (stopped) report = PlayOutField(g);
    EXPECT_TRUE(report.finished);
    EXPECT_LT(report.rounds, 10000) << "rounds stop with the winner";
    EXPECT_FALSE(CanPlayOutField(g));

    std::vector<Standing> standings = FinalStandings(g);
    EXPECT_EQ(standings.size(), static_cast<std::size_t>(players));
    if (standings.size() != static_cast<std::size_t>(players)) return stopped;
    std::vector<int> numbers;
    for (std::size_t i = 0; i < standings.size(); ++i) {
        EXPECT_EQ(standings[i].place, static_cast<int>(i) + 1);
        numbers.push_back(standings[i].number);
        EXPECT_TRUE(standings[i].number != 1 || standings[i].place == userPlace);
    }
    std::sort(numbers.begin(), numbers.end());
    for (int i = 0; i < players; ++i) EXPECT_EQ(numbers[i], i + 1);
    EXPECT_EQ(g.RosterBank[report.winnerPosition], players * 10000);
    EXPECT_EQ(g.view.log.empty() ? "" : FormatLogLine(g.view.log.back()),
              standings.front().name + (players > 8 ? " wins the tournament" : " wins the game"));
    return stopped;
}

// Every policy and size, with the log and without; signatures of every hand and of the log pin the play.
TEST(Property, SeededGamesPlayCleanAndRepeatExactly) {
    const std::tuple<int, Policy, uint64_t, uint64_t> runs[] = {
        {8, Policy::Rule, 1, 200},     {8, Policy::Caller, 201, 240}, {8, Policy::Folder, 241, 280},
        {8, Policy::Raiser, 281, 320}, {80, Policy::Rule, 1, 4},      {200, Policy::Raiser, 5, 6},
        {1000, Policy::Rule, 7, 7}};
    Signature sig, printed;  // printed: every line the simulator printed, byte by byte
    long hands = 0;
    std::set<int> stoppedAndPlayedOut;  // field sizes
    for (auto [players, policy, first, last] : runs)
        for (uint64_t seed = first; seed <= last; ++seed) {
            SCOPED_TRACE(::testing::Message() << players << " players, seed " << seed);
            // Played again without the log: it watches, so draws and payments stay the same.
            std::FILE* sink = std::tmpfile();
            uint64_t draws[2] = {};
            GameResult r = PlayOneGame(HOLDEM_ASSETS, players, seed, policy, sink, [&](Game& g) {
                draws[0] = g.rnd.Draws();
                if (CanPlayOutField(g) && CheckPlayOut(g, players)) stoppedAndPlayedOut.insert(players);
            });
            const long logged = std::ftell(sink);
            std::rewind(sink);
            for (int c; (c = std::fgetc(sink)) != EOF;) printed.Mix(static_cast<uint64_t>(c));
            std::fclose(sink);
            ASSERT_TRUE(r.violations.empty()) << r.violations.front();
            ASSERT_TRUE(r.hands > 0 &&
                        (r.userWon ? r.userPlace <= 1 : r.userPlace >= 2 && r.userPlace <= players));
            GameResult again = PlayOneGame(HOLDEM_ASSETS, players, seed, policy, nullptr, [&](Game& g) {
                draws[1] = g.rnd.Draws();
                ASSERT_TRUE(g.view.log.empty());
            });
            ASSERT_GT(logged, 0);
            ASSERT_EQ(std::make_tuple(r.hands, r.userPlace, r.hash, draws[0]),
                      std::make_tuple(again.hands, again.userPlace, again.hash, draws[1]));
            sig.Add(r);
            hands += r.hands;
        }
    EXPECT_EQ(hands, 7941);
    EXPECT_EQ(stoppedAndPlayedOut, (std::set<int>{8, 80, 200, 1000}));
    EXPECT_EQ(sig.value, 0x16f39027739eb4b7ull);
    EXPECT_EQ(printed.value, 0x50d2b96464904f26ull);
}

}  // namespace
}  // namespace holdem::sim
