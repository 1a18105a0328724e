// RankHands answers from tables, the reference follows the rules step by step:
// both must write the same code, name and arranged ranks for every hand.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <numeric>
#include <random>
#include <vector>

#include "engine/game_state.h"
#include "engine/hand_rank.h"
#include "tests/support/scripted_platform.h"

namespace holdem {
namespace {

// The same cards before both paths: g[0] ranks by the tables, g[1] by the
// reference. Unwritten fields keep a mark, so a path that writes too much shows.
struct Twin {
    test::ScriptedPlatform p;
    Game g[2] = {Game(p), Game(p)};
    int failures = 0;

    Twin() { g[0].SeatInHand.fill(true), g[1].SeatInHand.fill(true); }
    ~Twin() { EXPECT_EQ(failures, 0); }
    void Hole(int s, int16_t a, int16_t b) {
        for (Game& x : g) x.SeatCards[s][1] = a, x.SeatCards[s][2] = b;
    }
    void Board(int k, int16_t card) {
        for (Game& x : g) x.Deck[kBoardFirst + k] = card;
    }
    void Check(int known) {
        for (Game& x : g) {
            x.CardsKnown = static_cast<int16_t>(known);
            x.SeatHandName.fill("?");
            std::fill_n(&x.SeatBestRanks[0][0], sizeof x.SeatBestRanks / sizeof(int16_t), int16_t{-1});
        }
        g[0].RankHands();
        RankHandsReference(g[1]);
        for (int s = 1; s <= kSeats; ++s) {
            bool same =
                g[0].SeatHandCode[s] == g[1].SeatHandCode[s] &&
                g[0].SeatHandName[s] == g[1].SeatHandName[s] &&
                std::memcmp(g[0].SeatBestRanks[s], g[1].SeatBestRanks[s], sizeof g[0].SeatBestRanks[s]) == 0;
            if (!same && ++failures <= 5)
                ADD_FAILURE() << "known " << known << " seat " << s << " hole " << g[0].SeatCards[s][1] << ","
                              << g[0].SeatCards[s][2];
        }
    }
};

TEST(RankFast, EveryFiveCardHandAsTheReference) {
    Twin t;
    int hands = 0, seat = 0;
    for (int c = 1; c <= 52; ++c)
        for (int d = c + 1; d <= 52; ++d)
            for (int e = d + 1; e <= 52; ++e) {
                t.Board(0, c), t.Board(1, d), t.Board(2, e);
                for (int a = 1; a < c; ++a)
                    for (int b = a + 1; b < c; ++b, ++hands) {
                        t.Hole(++seat, a, b);
                        if (seat == kSeats) t.Check(5), seat = 0;
                    }
                if (seat != 0) t.Check(5), seat = 0;  // the seats not dealt again keep their hands
            }
    EXPECT_EQ(hands, 2598960);
}

TEST(RankFast, EverySixCardRankPatternAsTheReference) {
    Twin t;
    std::mt19937 rng(6);
    int patterns = 0;
    std::array<int, 14> count{};
    // Each rank from the first suit up (flushes where they can be), then three spreads.
    auto walk = [&](auto& self, int rank, int left) -> void {
        if (left == 0) {
            ++patterns;
            for (int suiting = 0; suiting < 4; ++suiting) {
                std::vector<int> cards;
                for (int r = 1; r <= 13; ++r)
                    for (int c = 0; c < count[r]; ++c) cards.push_back((c + suiting * r) % 4 * 13 + r);
                std::shuffle(cards.begin(), cards.end(), rng);
                t.Hole(1, cards[0], cards[1]);
                for (int b = 0; b < 4; ++b) t.Board(b, cards[2 + b]);
                t.Check(6);
            }
        } else if (rank <= 13) {
            for (count[rank] = std::min(4, left); count[rank] >= 0; --count[rank])
                self(self, rank + 1, left - count[rank]);
            count[rank] = 0;
        }
    };
    walk(walk, 1, 6);
    EXPECT_EQ(patterns, 18395);
}

// Seeded random deals, eight seats each, flop, turn and river; odd input too.
TEST(RankFast, AMillionSevenCardHandsAsTheReference) {
    // Were a table incomplete, the reference would stand in and prove nothing.
    for (int n : {5, 6, 7}) EXPECT_TRUE(RankPatterns(n).complete && FlushCodes().complete);
    Twin t;
    std::mt19937 rng(20240601);
    std::array<int, 52> deck;
    std::iota(deck.begin(), deck.end(), 1);
    for (int deal = 0; deal < 125000; ++deal) {
        std::shuffle(deck.begin(), deck.end(), rng);
        for (int s = 1; s <= kSeats; ++s) t.Hole(s, deck[2 * s - 2], deck[2 * s - 1]);
        for (int b = 0; b < 5; ++b) t.Board(b, deck[kBoardFirst + b]);
        for (int known : {5, 6, 7}) t.Check(known);
    }
    t.Hole(2, 0, deck[0]);
    for (Game& x : t.g) x.SeatInHand[5] = false;
    for (int known : {3, 7, 8}) t.Check(known);
}

}  // namespace
}  // namespace holdem
