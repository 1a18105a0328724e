// Properties over seeded games played through the real timer chain: chips
// conserved, one timer at a time, every hand and game ends, no closing check
// fires. The driver checks these after every step and lists what went wrong.
#include <gtest/gtest.h>

#include "engine/autoplay.h"

namespace holdem::sim {
namespace {

TEST(Property, SeededGamesUnderEveryPolicyPlayClean) {
    const std::tuple<int, Policy, uint64_t, int> runs[] = {
        {8, Policy::Rule, 1, 6000},      {8, Policy::Caller, 5000, 1000}, {8, Policy::Folder, 6000, 1000},
        {8, Policy::Raiser, 7000, 1000}, {80, Policy::Rule, 11, 1},       {200, Policy::Rule, 12, 1}};
    for (auto [players, policy, firstSeed, minHands] : runs) {
        long long hands = 0;
        for (uint64_t seed = firstSeed; hands < minHands; ++seed) {
            SCOPED_TRACE(::testing::Message() << players << " players, seed " << seed);
            GameResult r = PlayOneGame(HOLDEM_ASSETS, players, seed, policy, nullptr);
            hands += r.hands;
            ASSERT_TRUE(r.violations.empty()) << r.violations.front();
            ASSERT_GT(r.hands, 0);
            ASSERT_TRUE(r.userWon ? r.userPlace <= 1 : r.userPlace >= 2 && r.userPlace <= players)
                << r.userPlace;
        }
    }
    GameResult a = PlayOneGame(HOLDEM_ASSETS, 8, 42, Policy::Rule, nullptr);
    GameResult b = PlayOneGame(HOLDEM_ASSETS, 8, 42, Policy::Rule, nullptr);
    GameResult c = PlayOneGame(HOLDEM_ASSETS, 8, 43, Policy::Rule, nullptr);
    EXPECT_EQ(std::make_tuple(a.hands, a.userPlace, a.hash), std::make_tuple(b.hands, b.userPlace, b.hash));
    EXPECT_NE(a.hash, c.hash);
}

}  // namespace
}  // namespace holdem::sim
