// RankHands over every five-card hand, and RankHands with CompareShowdown
// against a plain best-five-of-seven evaluator written here from the ordinary
// ranking of poker hands. The one deliberate difference: four Aces tie
// whatever the kicker.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>
#include <vector>

#include "engine/game_state.h"
#include "tests/support/scripted_platform.h"

namespace holdem {
namespace {

enum Category {
    HighCard,
    Pair,
    TwoPair,
    Trips,
    Straight,
    Flush,
    FullHouse,
    Quads,
    StraightFlush,
    kCategories
};

Category CategoryOfCode(int code) {
    const int last[] = {10, 23, 36, 37, 47, 60, 138, 151};
    const Category cat[] = {StraightFlush, Quads, FullHouse, Flush, Straight, Trips, TwoPair, Pair};
    for (int i = 0; i < 8; ++i)
        if (code <= last[i]) return cat[i];
    return HighCard;
}

TEST(RankCensus, AllFiveCardHandsFallIntoTheKnownClasses) {
    test::ScriptedPlatform p;
    Game g(p);
    g.rnd.Script({});
    g.SeatInHand[1] = true;
    g.CardsKnown = 5;
    std::array<int64_t, kCategories> count{};
    std::array<int64_t, 201> byCode{};
    int16_t* cards[5] = {&g.SeatCards[1][1], &g.SeatCards[1][2], &g.Deck[kBoardFirst],
                         &g.Deck[kBoardFirst + 1], &g.Deck[kBoardFirst + 2]};
    for (*cards[0] = 1; *cards[0] <= 52; ++*cards[0])
        for (*cards[1] = *cards[0] + 1; *cards[1] <= 52; ++*cards[1])
            for (*cards[2] = *cards[1] + 1; *cards[2] <= 52; ++*cards[2])
                for (*cards[3] = *cards[2] + 1; *cards[3] <= 52; ++*cards[3])
                    for (*cards[4] = *cards[3] + 1; *cards[4] <= 52; ++*cards[4]) {
                        g.RankHands();
                        int code = g.SeatHandCode[1];
                        ASSERT_TRUE(code >= 1 && code <= 199) << code;
                        ++byCode[code];
                        ++count[CategoryOfCode(code)];
                    }
    EXPECT_EQ(count, (std::array<int64_t, kCategories>{1302540, 1098240, 123552, 54912, 10200, 5108, 3744,
                                                       624, 40}));
    // Each code of a category is equally common: straight (flush) heights,
    // quads, houses, trips and pairs by rank, each two pair of ranks.
    const int counts[][3] = {{1, 10, 4},     {11, 23, 48},    {24, 36, 288},     {38, 47, 1020},
                             {48, 60, 4224}, {61, 138, 1584}, {139, 151, 84480}, {163, 198, 0}};
    for (const auto& [first, last, n] : counts)
        for (int code = first; code <= last; ++code) EXPECT_EQ(byCode[code], n) << code;
    EXPECT_EQ(byCode[152], 76620);  // four to a suit: 1,277 unpaired non-straight rank sets, 60 ways each
    EXPECT_TRUE(byCode[153] > 0 && byCode[199] > 0);
    EXPECT_EQ(g.rnd.Overdrawn(), 0);
}

// Category in the top bits, then the deciding faces (2..14) four bits each.
using Value = uint32_t;

Value ValueOfFive(const std::array<int, 5>& cards) {
    int counts[15] = {};
    bool flush = true;
    for (int c : cards) {
        ++counts[(c - 1) % 13 + 2];
        flush = flush && (c - 1) / 13 == (cards[0] - 1) / 13;
    }
    std::vector<std::pair<int, int>> groups;  // (count, face): most first, then highest
    for (int face = 14; face >= 2; --face)
        if (counts[face] > 0) groups.push_back({counts[face], face});
    std::stable_sort(groups.begin(), groups.end(), [](auto a, auto b) { return a.first > b.first; });
    int top = 0;
    if (groups.size() == 5 && groups[0].second - groups[4].second == 4) top = groups[0].second;
    if (groups.size() == 5 && groups[0].second == 14 && groups[1].second == 5) top = 5;  // the wheel
    int shape = groups[0].first * 10 + groups[1].first;
    Category cat = top && flush  ? StraightFlush
                   : shape == 41 ? Quads
                   : shape == 32 ? FullHouse
                   : flush       ? Flush
                   : top         ? Straight
                   : shape == 31 ? Trips
                   : shape == 22 ? TwoPair
                   : shape == 21 ? Pair
                                 : HighCard;
    Value v = static_cast<Value>(cat) << 20;
    if (top) return v | static_cast<Value>(top) << 16;
    int shift = 20;
    for (auto [n, face] : groups) v |= static_cast<Value>(face) << (shift -= 4);
    return v;
}

Value BestOfSeven(const std::array<int, 7>& cards) {
    Value best = 0;
    for (int skipA = 0; skipA < 7; ++skipA)
        for (int skipB = skipA + 1; skipB < 7; ++skipB) {
            std::array<int, 5> five{};
            for (int i = 0, k = 0; i < 7; ++i)
                if (i != skipA && i != skipB) five[k++] = cards[i];
            best = std::max(best, ValueOfFive(five));
        }
    return best;
}

bool FourAces(Value v) { return (v & 0xFF0000u) == ((static_cast<Value>(Quads) << 20) | (14u << 16)); }

struct Run {
    int firstRank, suits, seats, deals;
    uint32_t seed;
};

// Deals `seats` hands and a board from the cards of `firstRank` up in `suits`
// suits, many times, and checks every seat's category and every pair of seats.
void CompareMany(const Run& run, std::array<int, kCategories>& seen, int& acesKickersDiffer) {
    test::ScriptedPlatform p;
    Game g(p);
    g.rnd.Script({});
    std::mt19937 rng(run.seed);
    std::vector<int> deck;
    for (int suit = 0; suit < run.suits; ++suit)
        for (int rank = run.firstRank; rank <= 13; ++rank) deck.push_back(suit * 13 + rank);
    for (int s = 1; s <= run.seats; ++s) g.SeatInHand[s] = true;
    g.CardsKnown = 7;
    for (int deal = 0; deal < run.deals; ++deal) {
        std::shuffle(deck.begin(), deck.end(), rng);
        for (int k = 0; k < 5; ++k) g.Deck[kBoardFirst + k] = static_cast<int16_t>(deck[k]);
        std::array<Value, 9> value{};
        for (int s = 1; s <= run.seats; ++s) {
            g.SeatCards[s][1] = static_cast<int16_t>(deck[3 + 2 * s]);
            g.SeatCards[s][2] = static_cast<int16_t>(deck[4 + 2 * s]);
            value[s] =
                BestOfSeven({deck[3 + 2 * s], deck[4 + 2 * s], deck[0], deck[1], deck[2], deck[3], deck[4]});
            ++seen[value[s] >> 20];
        }
        g.RankHands();
        for (int a = 1; a <= run.seats; ++a) {
            ASSERT_EQ(CategoryOfCode(g.SeatHandCode[a]), static_cast<Category>(value[a] >> 20))
                << "deal " << deal << " seat " << a << " code " << g.SeatHandCode[a];
            for (int b = 1; b <= run.seats; ++b) {
                bool aces = FourAces(value[a]) && FourAces(value[b]);
                acesKickersDiffer += aces && value[a] != value[b];
                int want = aces ? 0 : value[a] > value[b] ? 1 : value[a] < value[b] ? -1 : 0;
                ASSERT_EQ(g.CompareShowdown(a, b), want)
                    << "deal " << deal << " seats " << a << "/" << b << " codes " << g.SeatHandCode[a] << "/"
                    << g.SeatHandCode[b];
            }
        }
    }
}

TEST(RankReference, SeededShowdownsAgreeWithTheOrdinaryRanking) {
    std::array<int, kCategories> seen{};
    int acesKickersDiffer = 0;
    CompareMany({1, 4, 8, 6000, 20240601u}, seen, acesKickersDiffer);  // the full deck
    CompareMany({8, 4, 5, 8000, 77u}, seen, acesKickersDiffer);    // Nine to Ace: quads, four Aces, houses
    CompareMany({1, 2, 8, 6000, 4242u}, seen, acesKickersDiffer);  // two suits: flushes against flushes
    for (int cat = HighCard; cat < kCategories; ++cat) EXPECT_GT(seen[cat], 100) << cat;
    EXPECT_GT(acesKickersDiffer, 0);
}

}  // namespace
}  // namespace holdem
