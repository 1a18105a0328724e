// Properties over many seeded games played through the real timer chain:
// chips conserved, one timer at a time, every hand and every game ends, no
// closing check ever fires. The driver checks each of these after every step
// and every hand and lists what went wrong.
#include <gtest/gtest.h>

#include "engine/autoplay.h"

namespace holdem::sim {
namespace {

void ExpectCleanGames(int players, Policy policy, uint64_t firstSeed, int minHands, long long& handsOut) {
    long long hands = 0;
    int games = 0;
    for (uint64_t seed = firstSeed; hands < minHands; ++seed, ++games) {
        GameResult r = PlayOneGame(HOLDEM_ASSETS, players, seed, policy, nullptr);
        hands += r.hands;
        ASSERT_TRUE(r.violations.empty()) << "seed " << seed << ": " << r.violations.front();
        ASSERT_GT(r.hands, 0);
        ASSERT_TRUE(r.userWon || r.userPlace >= 2) << "seed " << seed;
        ASSERT_LE(r.userPlace, players);
    }
    handsOut = hands;
    EXPECT_GT(games, 0);
}

TEST(Property, TenThousandSingleTableHandsUnderTheOpponentsRule) {
    long long hands = 0;
    ExpectCleanGames(8, Policy::Rule, 1, 10000, hands);
    EXPECT_GE(hands, 10000);
}

TEST(Property, EveryUserPolicyPlaysCleanGames) {
    long long hands = 0;
    ExpectCleanGames(8, Policy::Caller, 5000, 1500, hands);
    ExpectCleanGames(8, Policy::Folder, 6000, 1500, hands);
    ExpectCleanGames(8, Policy::Raiser, 7000, 1500, hands);
}

TEST(Property, SameSeedSameGame) {
    GameResult a = PlayOneGame(HOLDEM_ASSETS, 8, 42, Policy::Rule, nullptr);
    GameResult b = PlayOneGame(HOLDEM_ASSETS, 8, 42, Policy::Rule, nullptr);
    EXPECT_EQ(a.hands, b.hands);
    EXPECT_EQ(a.userPlace, b.userPlace);
    EXPECT_EQ(a.hash, b.hash);
    GameResult c = PlayOneGame(HOLDEM_ASSETS, 8, 43, Policy::Rule, nullptr);
    EXPECT_NE(a.hash, c.hash);
}

TEST(Property, SeededTournamentsOf80And200PlayToTheEnd) {
    for (int players : {80, 200}) {
        for (uint64_t seed : {11u, 12u}) {
            GameResult r = PlayOneGame(HOLDEM_ASSETS, players, seed, Policy::Rule, nullptr);
            ASSERT_TRUE(r.violations.empty()) << players << " seed " << seed << ": " << r.violations.front();
            EXPECT_TRUE(r.userWon || (r.userPlace >= 2 && r.userPlace <= players));
        }
    }
}

}  // namespace
}  // namespace holdem::sim
