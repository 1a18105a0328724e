// RankHands and CompareShowdown against a plain best-five-of-seven evaluator
// written here from the ordinary ranking of poker hands, over many seeded
// random showdowns. The one deliberate difference: four Aces tie whatever
// the kicker.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <random>
#include <vector>

#include "engine/game_state.h"
#include "tests/support/hand_builder.h"
#include "tests/support/scripted_platform.h"

namespace holdem {
namespace {

using Category = test::HandCategory;
using namespace test;

// Category in the top bits, then the deciding ranks (2..14) four bits each.
using Value = uint32_t;

Category CategoryOf(Value v) { return static_cast<Category>(v >> 20); }

Value ValueOfFive(const int (&cards)[5]) {
    int counts[15] = {};
    bool flush = true;
    for (int i = 0; i < 5; ++i) {
        int face = (cards[i] - 1) % 13 + 2;  // 2..14, Ace high
        ++counts[face];
        if ((cards[i] - 1) / 13 != (cards[0] - 1) / 13) flush = false;
    }
    // Ranks ordered by how many, then by height.
    std::vector<std::pair<int, int>> groups;
    for (int face = 14; face >= 2; --face)
        if (counts[face] > 0) groups.push_back({counts[face], face});
    std::stable_sort(groups.begin(), groups.end(), [](auto a, auto b) { return a.first > b.first; });

    int straightTop = 0;
    if (groups.size() == 5) {
        if (groups[0].second - groups[4].second == 4) straightTop = groups[0].second;
        if (groups[0].second == 14 && groups[1].second == 5) straightTop = 5;  // the wheel
    }
    Category cat;
    if (straightTop && flush)
        cat = StraightFlush;
    else if (groups[0].first == 4)
        cat = Quads;
    else if (groups[0].first == 3 && groups[1].first == 2)
        cat = FullHouse;
    else if (flush)
        cat = Flush;
    else if (straightTop)
        cat = Straight;
    else if (groups[0].first == 3)
        cat = Trips;
    else if (groups[0].first == 2 && groups[1].first == 2)
        cat = TwoPair;
    else if (groups[0].first == 2)
        cat = Pair;
    else
        cat = HighCard;

    Value v = static_cast<Value>(cat) << 20;
    if (straightTop) return v | static_cast<Value>(straightTop) << 16;
    int shift = 16;
    for (auto [n, face] : groups) {
        v |= static_cast<Value>(face) << shift;
        shift -= 4;
    }
    return v;
}

Value BestOfSeven(const std::array<int, 7>& cards) {
    Value best = 0;
    for (int skipA = 0; skipA < 7; ++skipA) {
        for (int skipB = skipA + 1; skipB < 7; ++skipB) {
            int five[5];
            int k = 0;
            for (int i = 0; i < 7; ++i)
                if (i != skipA && i != skipB) five[k++] = cards[i];
            best = std::max(best, ValueOfFive(five));
        }
    }
    return best;
}

constexpr Value kFourAces = (static_cast<Value>(Quads) << 20) | (14u << 16);

bool FourAces(Value v) { return (v & 0xFF0000u) == kFourAces; }

// +1, -1 or 0 as the ordinary ranking says, except that four Aces tie.
int Expected(Value a, Value b) {
    if (FourAces(a) && FourAces(b)) return 0;
    return a > b ? 1 : a < b ? -1 : 0;
}

// Deals `seats` hands and a board from `deck` many times and checks every
// pair of seats. Returns how many showdowns were compared.
struct Seen {
    std::array<int, 9> category{};
    int fourAcesKickersDiffer = 0;  // showdowns the exception decided
};

int CompareMany(const std::vector<int>& fullDeck, int seats, int deals, uint32_t seed, Seen& seen) {
    test::ScriptedPlatform p;
    Game g(p);
    g.rnd.Script({});
    std::mt19937 rng(seed);
    std::vector<int> deck = fullDeck;
    int compared = 0;
    for (int s = 1; s <= seats; ++s) g.SeatInHand[s] = true;
    for (int deal = 0; deal < deals; ++deal) {
        std::shuffle(deck.begin(), deck.end(), rng);
        for (int k = 0; k < 5; ++k) g.Deck[kBoardFirst + k] = static_cast<int16_t>(deck[k]);
        for (int s = 1; s <= seats; ++s) {
            g.SeatCards[s][1] = static_cast<int16_t>(deck[5 + 2 * (s - 1)]);
            g.SeatCards[s][2] = static_cast<int16_t>(deck[6 + 2 * (s - 1)]);
        }
        g.CardsKnown = 7;
        g.RankHands();
        std::array<Value, 9> value{};
        for (int s = 1; s <= seats; ++s) {
            value[s] = BestOfSeven(
                {g.SeatCards[s][1], g.SeatCards[s][2], deck[0], deck[1], deck[2], deck[3], deck[4]});
            ++seen.category[CategoryOf(value[s])];
            EXPECT_EQ(CategoryOfCode(g.SeatHandCode[s]), CategoryOf(value[s]))
                << "deal " << deal << " seat " << s << " code " << g.SeatHandCode[s];
        }
        for (int a = 1; a <= seats; ++a) {
            for (int b = 1; b <= seats; ++b) {
                if (a == b) continue;
                int want = Expected(value[a], value[b]);
                if (FourAces(value[a]) && FourAces(value[b]) && value[a] != value[b])
                    ++seen.fourAcesKickersDiffer;
                int got = g.CompareShowdown(a, b);
                if (want != got) {
                    ADD_FAILURE() << "deal " << deal << " seats " << a << "/" << b << " codes "
                                  << g.SeatHandCode[a] << "/" << g.SeatHandCode[b] << " expected " << want
                                  << " got " << got;
                    return compared;
                }
                ++compared;
            }
        }
    }
    EXPECT_EQ(g.rnd.Overdrawn(), 0);
    return compared;
}

std::vector<int> Cards(int firstRank, int suits) {
    std::vector<int> cards;
    for (int suit = 0; suit < suits; ++suit)
        for (int rank = firstRank; rank <= 13; ++rank) cards.push_back(suit * 13 + rank);
    return cards;
}

TEST(RankReference, FullDeckShowdownsOfEightSeats) {
    Seen seen;
    int compared = CompareMany(Cards(1, 4), 8, 6000, 20240601u, seen);
    EXPECT_EQ(compared, 6000 * 56);
    for (int cat = HighCard; cat <= Quads; ++cat) EXPECT_GT(seen.category[cat], 0) << cat;
}

// Nine to Ace in four suits: quads, four Aces on the board, full houses and
// straights every few deals.
TEST(RankReference, HighCardsOnlyShowdowns) {
    Seen seen;
    int compared = CompareMany(Cards(8, 4), 5, 8000, 77u, seen);
    EXPECT_EQ(compared, 8000 * 20);
    for (int cat = TwoPair; cat <= StraightFlush; ++cat) EXPECT_GT(seen.category[cat], 0) << cat;
    EXPECT_GT(seen.fourAcesKickersDiffer, 0);
}

// Two suits: flushes against flushes and straight flushes.
TEST(RankReference, TwoSuitShowdowns) {
    Seen seen;
    int compared = CompareMany(Cards(1, 2), 8, 6000, 4242u, seen);
    EXPECT_EQ(compared, 6000 * 56);
    EXPECT_GT(seen.category[Flush], 1000);
    EXPECT_GT(seen.category[StraightFlush], 100);
}

}  // namespace
}  // namespace holdem
