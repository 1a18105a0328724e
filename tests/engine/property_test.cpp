// Whole seeded games through the real timer chain: chips conserved, one timer
// at a time, every hand and every game ends, no closing check ever fires. The
// driver checks these after every step and every hand and lists what failed.
#include <gtest/gtest.h>

#include "engine/autoplay.h"

namespace holdem::sim {
namespace {

// Plays games from `seed` on until `minHands` hands have been played.
void ExpectCleanGames(int players, Policy policy, uint64_t seed, int minHands) {
    for (int hands = 0; hands < minHands; ++seed) {
        GameResult r = PlayOneGame(HOLDEM_ASSETS, players, seed, policy, nullptr);
        hands += r.hands;
        ASSERT_TRUE(r.violations.empty()) << "seed " << seed << ": " << r.violations.front();
        ASSERT_GT(r.hands, 0);
        ASSERT_TRUE(r.userWon || (r.userPlace >= 2 && r.userPlace <= players)) << "seed " << seed;
    }
}

TEST(Property, TenThousandSingleTableHandsUnderTheOpponentsRule) {
    ExpectCleanGames(8, Policy::Rule, 1, 10000);
}

TEST(Property, EveryUserPolicyPlaysCleanGames) {
    ExpectCleanGames(8, Policy::Caller, 5000, 1500);
    ExpectCleanGames(8, Policy::Folder, 6000, 1500);
    ExpectCleanGames(8, Policy::Raiser, 7000, 1500);
}

TEST(Property, TournamentsOf80And200PlayToTheEnd) {
    for (int players : {80, 200})
        for (uint64_t seed : {11u, 12u}) ExpectCleanGames(players, Policy::Rule, seed, 1);  // one game each
}

TEST(Property, SameSeedSameGame) {
    GameResult a = PlayOneGame(HOLDEM_ASSETS, 8, 42, Policy::Rule, nullptr);
    GameResult b = PlayOneGame(HOLDEM_ASSETS, 8, 42, Policy::Rule, nullptr);
    EXPECT_EQ(std::tuple(a.hands, a.userPlace, a.hash), std::tuple(b.hands, b.userPlace, b.hash));
    EXPECT_NE(a.hash, PlayOneGame(HOLDEM_ASSETS, 8, 43, Policy::Rule, nullptr).hash);
}

}  // namespace
}  // namespace holdem::sim
