// Many seeded random showdowns: every chip paid out unless a layer has no
// claimant, payments in hundreds, and a seat never paid while a better hand
// that staked at least as much stands in front of it.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>
#include <vector>

#include "engine/game_state.h"
#include "tests/support/hand_builder.h"
#include "tests/support/scripted_platform.h"

namespace holdem {
namespace {

// Chips above the fourth level that folded seats left and nobody in the hand
// reaches: the one case in which the settlement cannot pay everything.
int64_t Unclaimable(const Game& g) {
    std::set<int32_t> stakes;
    int32_t deepest = 0;
    for (int s = 1; s <= kSeats; ++s) {
        if (!g.SeatInHand[s]) continue;
        stakes.insert(g.SeatTotalBet[s]);
        deepest = std::max(deepest, g.SeatTotalBet[s]);
    }
    if (stakes.size() < 4) return 0;
    int32_t level4 = *std::next(stakes.begin(), 3);
    if (deepest > level4) return 0;
    int64_t lost = 0;
    for (int s = 1; s <= kSeats; ++s)
        if (!g.SeatInHand[s] && g.SeatTotalBet[s] > level4) lost += g.SeatTotalBet[s] - level4;
    return lost;
}

TEST(SettlementProperty, RandomShowdownsPayOutEveryClaimableChip) {
    std::mt19937 rng(90210u);
    std::vector<int16_t> deck(52);
    for (int i = 0; i < 52; ++i) deck[i] = static_cast<int16_t>(i + 1);
    int checks = 0, shortPaid = 0;
    for (int round = 0; round < 3000; ++round) {
        test::ScriptedPlatform p;
        Game g(p);
        g.rnd.Script({});
        test::EmptyTable(g);
        std::shuffle(deck.begin(), deck.end(), rng);
        for (int k = 0; k < 5; ++k) {
            g.Deck[kBoardFirst + k] = deck[k];
            for (int s = 1; s <= kSeats; ++s) g.SeatCards[s][3 + k] = deck[k];
        }
        float before[kSeats + 1] = {};
        int64_t chips = 0;
        int inHand = 0;
        for (int s = 1; s <= kSeats; ++s) {
            bool in = rng() % 3 != 0;
            int32_t stake = static_cast<int32_t>(rng() % 12) * 100 * (1 + static_cast<int32_t>(rng() % 3));
            if (in && stake == 0) stake = 100;
            float bank = static_cast<float>((rng() % 50) * 100);
            test::SeatPlayer(g, s, "P", bank, stake, 0, in);
            g.SeatCards[s][1] = deck[5 + 2 * s];
            g.SeatCards[s][2] = deck[6 + 2 * s];
            before[s] = bank;
            chips += static_cast<int64_t>(bank) + stake;
            inHand += in ? 1 : 0;
        }
        if (inHand == 0) continue;
        test::RankRiver(g);
        int64_t lost = Unclaimable(g);
        Game ranked = g;  // the codes and ranks as the settlement sees them
        g.TimerHandOver_Timer();

        int64_t after = 0;
        for (int s = 1; s <= kSeats; ++s) {
            after += g.RosterBank[s];
            int32_t paid = g.RosterBank[s] - static_cast<int32_t>(before[s]);
            ASSERT_GE(paid, 0);
            ASSERT_EQ(paid % 100, 0) << "round " << round << " seat " << s;
            if (!g.SeatInHand[s]) {
                ASSERT_EQ(paid, 0);
            }
            for (int better = 1; better <= kSeats && paid > 0 && inHand > 1; ++better) {
                if (better == s || !g.SeatInHand[better]) continue;
                if (g.SeatTotalBet[better] >= g.SeatTotalBet[s] && ranked.CompareShowdown(better, s) > 0)
                    ADD_FAILURE() << "round " << round << ": seat " << s << " paid behind seat " << better;
            }
        }
        ASSERT_EQ(after, chips - lost) << "round " << round;
        ASSERT_EQ(p.messages.empty(), lost == 0) << "round " << round;
        shortPaid += lost > 0 ? 1 : 0;
        ASSERT_EQ(g.rnd.Overdrawn(), 0);
        ++checks;
    }
    EXPECT_GT(checks, 2900);
    EXPECT_GT(shortPaid, 0);  // the closing check was reached too
}

}  // namespace
}  // namespace holdem
