// Whole seeded tournaments through the timer chain, the field checked after every hand.
#include <gtest/gtest.h>

#include <cstdint>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "engine/game_state.h"
#include "tests/support/scripted_platform.h"

namespace holdem {
namespace {

constexpr int32_t kChips = 10000;

// The user reads the deck StartHand laid out and calls only what it wins, so
// the game is played out to the last player.
int UserButton(const Game& g) {
    if (g.view.cmdPlay[1].enabled) return 1;
    Game river(g);
    river.CardsKnown = 7;
    river.RankHands();
    bool wins = g.view.cmdPlay[2].enabled;
    for (int s = 2; s <= kSeats; ++s)
        wins = wins && !(river.SeatInHand[s] && river.CompareShowdown(1, s) <= 0);
    return wins ? 2 : 4;
}

struct Census {
    int hands = 0;
    bool finalTable = false, shuttled = false;
};

void CheckField(const Game& g, const test::ScriptedPlatform& p, int n, Census& c) {
    ++c.hands;
    int64_t chips = 0;
    std::set<int> numbers, places;
    int busted = 0;
    for (int pos = 1; pos <= kRoster; ++pos) {
        chips += g.RosterBank[pos];
        if (pos > n) continue;
        numbers.insert(g.RosterNumber[pos]);
        bool out = g.RosterBank[pos] == 0;
        busted += out;
        ASSERT_EQ(out, g.RosterPlace[pos] > 0) << "position " << pos << " after hand " << c.hands;
        ASSERT_TRUE(!out || (places.insert(g.RosterPlace[pos]).second && g.RosterPlace[pos] <= n))
            << "place twice or beyond the field: " << g.RosterPlace[pos];
    }
    ASSERT_EQ(chips, int64_t{n} * kChips) << "after hand " << c.hands;
    ASSERT_TRUE(numbers.size() == static_cast<size_t>(n) && *numbers.begin() == 1 && *numbers.rbegin() == n);
    ASSERT_EQ(g.NextFinishPlace, n - busted);
    ASSERT_TRUE(p.messages.empty()) << p.messages.front().text;
    std::string why;
    ASSERT_TRUE(g.state_is_ok(&why)) << why;
    if (g.GameEnded) return;
    ASSERT_EQ(g.PlayersLeft, n - busted);
    c.finalTable |= g.TablesInPlay == 1;
    bool shuttle = g.TablesInPlay == 2 && g.PlayersLeft == 9;
    c.shuttled |= shuttle;
    for (int t = 1; t <= kTables; ++t) {
        int here = 0;
        for (int s = 1; s <= kSeats; ++s) here += g.RosterBank[RosterPosition(t, s)] > 0;
        int least = t > g.TablesInPlay ? 0 : g.TablesInPlay > 1 && !shuttle ? 5 : 1;
        ASSERT_TRUE(t > g.TablesInPlay ? here == 0 : here >= least)
            << "table " << t << " after hand " << c.hands;
    }
}

Census PlayTournament(int n, uint64_t seed) {
    SCOPED_TRACE(std::to_string(n) + " players, seed " + std::to_string(seed));
    test::ScriptedPlatform p;
    Game g(p);
    g.rnd.SeedDeterministic(seed);
    g.TournamentSize = g.PlayersLeft = g.NextFinishPlace = static_cast<int16_t>(n);
    for (int pos = 1; pos <= n; ++pos) {
        g.RosterName[pos] = "Player " + std::to_string(pos);
        g.RosterBank[pos] = kChips;
        g.RosterNumber[pos] = static_cast<int16_t>(pos);
    }
    for (int s = 1; s <= kSeats; ++s) g.SeatName[s] = g.RosterName[s], g.SeatBank[s] = kChips;
    g.SmallBlind = 100;
    g.ButtonSeat = 4;
    g.BalanceTables();
    g.StartHand();

    Census c;
    for (long step = 0; !g.GameEnded && !::testing::Test::HasFatalFailure(); ++step) {
        TimerId running = g.RunningTimer();
        if (step > 5'000'000) {
            ADD_FAILURE() << "the game did not end";
            break;
        } else if (running != kTimerCount) {
            g.FireTimer(running);
            if (running == TimerHandOver) CheckField(g, p, n, c);
        } else if (g.view.cmdPlay[1].visible) {
            g.cmdPlay_Click(UserButton(g));
        } else if (g.view.cmdDeal.visible) {
            g.cmdDeal_Click();
        } else {
            ADD_FAILURE() << "nothing to do after hand " << c.hands;
            break;
        }
    }
    // Every place from 2 to n given once, the winner with none.
    EXPECT_EQ(std::make_tuple(g.RosterBank[1], g.NextFinishPlace, g.UserFinishPlace, g.RosterPlace[1]),
              std::make_tuple(n * kChips, int16_t{1}, int16_t{0}, int16_t{0}));
    return c;
}

TEST(Tournament, EightyPlayersPlayedToTheLastPlayer) {
    bool shuttled = false;
    for (uint64_t seed = 1; seed <= 6; ++seed) {
        Census c = PlayTournament(80, seed);
        EXPECT_TRUE(c.finalTable) << "seed " << seed;
        shuttled |= c.shuttled;
    }
    EXPECT_TRUE(shuttled) << "no game passed through nine players on two tables";
}

TEST(Tournament, TwoHundredPlayersPlayedToTheLastPlayer) {
    for (uint64_t seed = 1; seed <= 3; ++seed) {
        Census c = PlayTournament(200, seed);
        EXPECT_TRUE(c.finalTable) << "seed " << seed;
    }
}

}  // namespace
}  // namespace holdem
