#include <gtest/gtest.h>

#include <cstdint>
#include <set>
#include <string>
#include <vector>

#include "engine/game_state.h"
#include "tests/support/scripted_platform.h"

namespace holdem {
namespace {

using test::ScriptedPlatform;

constexpr int32_t kStartingChips = 10000;

// A fresh tournament of n players as a new game leaves it before the first
// hand: everybody at 10,000, numbers 1..n in seat order, nobody placed.
void FillField(Game& g, int n) {
    g.TournamentSize = static_cast<int16_t>(n);
    for (int p = 1; p <= n; ++p) {
        g.RosterName[p] = "Player " + std::to_string(p);
        g.RosterBank[p] = kStartingChips;
        g.RosterNumber[p] = static_cast<int16_t>(p);
        g.RosterPlace[p] = 0;
    }
    for (int s = 1; s <= kSeats; ++s) {
        g.SeatName[s] = g.RosterName[s];
        g.SeatBank[s] = static_cast<float>(g.RosterBank[s]);
    }
    g.HandsPlayed = 0;
    g.SmallBlind = 100;
    g.ButtonSeat = 4;
    g.PlayersLeft = static_cast<int16_t>(n);
    g.NextFinishPlace = static_cast<int16_t>(n);
    g.UserFinishPlace = 0;
    g.GameEnded = false;
}

// Two users. The tight one stays in with a high pair or two picture cards
// before the flop and with a pair of Sevens or better after it, and busts
// sooner or later. The seer looks at the whole deck, which StartHand has
// already laid out, and calls only what it wins at the showdown, so that a
// game is played out to its last player.
enum class Policy { Tight, Seer };

bool UserWinsShowdown(const Game& g) {
    Game river(g);
    river.CardsKnown = 7;
    river.RankHands();
    for (int s = 2; s <= kSeats; ++s)
        if (river.SeatInHand[s] && river.CompareShowdown(1, s) <= 0) return false;
    return true;
}

int UserButton(const Game& g, Policy policy) {
    const auto& cmd = g.view.cmdPlay;
    if (cmd[1].enabled) return 1;
    bool stays;
    if (policy == Policy::Seer) {
        stays = UserWinsShowdown(g);
    } else if (g.Street == 1) {
        int r1 = RankOf(g.SeatCards[1][1]);
        int r2 = RankOf(g.SeatCards[1][2]);
        stays = (r1 == r2 && r1 >= 8) || (r1 >= 12 && r2 >= 12);
    } else {
        stays = g.SeatHandCode[1] <= 146;
    }
    return cmd[2].enabled && stays ? 2 : 4;
}

struct Census {
    int hands = 0;
    bool reachedFinalTable = false;
    bool userWon = false;
    bool shuttled = false;
};

void CheckAfterHand(const Game& g, const ScriptedPlatform& p, int n, Census& census) {
    ++census.hands;
    int64_t chips = 0;
    std::vector<int> numbers(n + 1, 0);
    std::set<int> places;
    int busted = 0;
    for (int pos = 1; pos <= n; ++pos) {
        chips += g.RosterBank[pos];
        int num = g.RosterNumber[pos];
        ASSERT_TRUE(num >= 1 && num <= n) << "position " << pos;
        ++numbers[num];
        if (g.RosterBank[pos] > 0) {
            EXPECT_EQ(g.RosterPlace[pos], 0) << "position " << pos;
        } else {
            ++busted;
            EXPECT_GT(g.RosterPlace[pos], 0) << "busted without a place at " << pos;
            EXPECT_TRUE(places.insert(g.RosterPlace[pos]).second)
                << "place given twice: " << g.RosterPlace[pos];
        }
    }
    for (int pos = n + 1; pos <= kRoster; ++pos) ASSERT_EQ(g.RosterBank[pos], 0);
    ASSERT_EQ(chips, int64_t{n} * kStartingChips) << "after hand " << census.hands;
    for (int num = 1; num <= n; ++num) ASSERT_EQ(numbers[num], 1) << "number " << num;
    EXPECT_EQ(g.NextFinishPlace, n - busted);
    ASSERT_TRUE(p.messages.empty()) << p.messages.front().text;
    std::string why;
    ASSERT_TRUE(g.state_is_ok(&why)) << why;

    if (g.GameEnded) return;  // a user out ends the game before any balancing
    EXPECT_EQ(g.PlayersLeft, n - busted);
    if (g.TablesInPlay == 1) census.reachedFinalTable = true;
    bool shuttle = g.TablesInPlay == 2 && g.PlayersLeft == 9;
    census.shuttled |= shuttle;
    for (int t = 1; t <= kTables; ++t) {
        int here = 0;
        for (int s = 1; s <= kSeats; ++s) here += g.RosterBank[RosterPosition(t, s)] > 0 ? 1 : 0;
        if (t > g.TablesInPlay) {
            ASSERT_EQ(here, 0) << "table " << t << " above the tables in play";
        } else if (g.TablesInPlay > 1 && !shuttle) {
            ASSERT_GE(here, 5) << "table " << t << " of " << g.TablesInPlay << " after hand " << census.hands;
        } else {
            ASSERT_GE(here, 1);
        }
    }
}

// Plays a whole tournament through the timer chain, the way the window does.
Census PlayTournament(int n, uint64_t seed, Policy policy) {
    ScriptedPlatform p;
    Game g(p);
    g.rnd.SeedDeterministic(seed);
    FillField(g, n);
    g.BalanceTables();
    g.StartHand();

    Census census;
    for (long step = 0; !g.GameEnded; ++step) {
        if (step > 5'000'000) {
            ADD_FAILURE() << "the game did not end";
            break;
        }
        TimerId running = g.RunningTimer();
        if (running != kTimerCount) {
            g.FireTimer(running);
            if (running == TimerHandOver) {
                CheckAfterHand(g, p, n, census);
                if (::testing::Test::HasFatalFailure()) break;
            }
        } else if (g.view.cmdPlay[1].visible) {
            g.cmdPlay_Click(UserButton(g, policy));
        } else if (g.view.cmdDeal.visible) {
            g.cmdDeal_Click();
        } else {
            ADD_FAILURE() << "nothing to do after hand " << census.hands;
            break;
        }
    }
    if (::testing::Test::HasFailure()) return census;

    // Every place from the bottom up to the last one given is given once;
    // a user who busts with others takes the worst of their places, and the
    // last player standing has none.
    std::set<int> places;
    for (int pos = 1; pos <= n; ++pos)
        if (g.RosterPlace[pos] > 0) places.insert(g.RosterPlace[pos]);
    int best = g.NextFinishPlace + 1;
    EXPECT_EQ(static_cast<int>(places.size()), n - best + 1);
    EXPECT_EQ(*places.begin(), best);
    EXPECT_EQ(*places.rbegin(), n);
    census.userWon = g.RosterBank[1] > 0;
    if (census.userWon) {
        EXPECT_EQ(g.RosterBank[1], int64_t{n} * kStartingChips);
        EXPECT_EQ(g.NextFinishPlace, 1);
        EXPECT_EQ(g.UserFinishPlace, 0);
    } else {
        EXPECT_EQ(g.RosterPlace[1], g.UserFinishPlace);
        EXPECT_GE(g.UserFinishPlace, best);
        EXPECT_GE(g.UserFinishPlace, 2);
    }
    return census;
}

// Seers win their games, so these run until one player holds every chip.
TEST(Tournament, EightyPlayersPlayedToTheLastPlayer) {
    bool shuttled = false;
    for (uint64_t seed = 1; seed <= 6; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        Census c = PlayTournament(80, seed, Policy::Seer);
        EXPECT_TRUE(c.reachedFinalTable);
        EXPECT_TRUE(c.userWon);
        shuttled |= c.shuttled;
    }
    EXPECT_TRUE(shuttled) << "no game passed through nine players on two tables";
}

TEST(Tournament, TwoHundredPlayersPlayedToTheLastPlayer) {
    for (uint64_t seed = 1; seed <= 3; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        Census c = PlayTournament(200, seed, Policy::Seer);
        EXPECT_TRUE(c.reachedFinalTable);
        EXPECT_TRUE(c.userWon);
    }
}

// A tight user busts somewhere in the field, alone or with others.
TEST(Tournament, UserOutEndsTheGameWithThePlacesGivenSoFar) {
    int busted = 0;
    for (uint64_t seed = 1; seed <= 6; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        busted += PlayTournament(80, seed, Policy::Tight).userWon ? 0 : 1;
        busted += PlayTournament(200, seed, Policy::Tight).userWon ? 0 : 1;
    }
    EXPECT_GT(busted, 0);
}

}  // namespace
}  // namespace holdem
