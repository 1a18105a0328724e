// RankHands against the step-by-step reference, a five-card census, seven-card showdowns, named cases.
#include <cstring>
#include <numeric>
#include <random>

#include "engine/hand_rank.h"
#include "tests/support/builders.h"

namespace holdem {
namespace {

using namespace test;

// clang-format off
const std::array<int64_t, 3> kRuns[] = {  // five-card hands: codes first..last, each this often
    {1, 10, 4}, {11, 23, 48}, {24, 36, 288}, {37, 37, 5108}, {38, 47, 1020}, {48, 60, 4224}, {61, 138, 1584},
    {139, 151, 84480}, {152, 152, 76620}, {153, 153, 1188480}, {154, 154, 2880}, {155, 155, 1920}, {156, 156, 0},
    {157, 157, 2880}, {158, 158, 1920}, {159, 159, 2880}, {160, 161, 0}, {162, 162, 1920}, {163, 198, 0},
    {199, 199, 23040}, {0, 0, 0}, {200, 200, 0}};
const std::array<int, 4> kDecks[] = {{1, 4, 8, 3000}, {8, 4, 5, 3000}, {1, 2, 8, 3000}};  // low rank, suits, seats, deals
const struct NamedRow { const char* cards; int code; const char* name; const char* best; /* elements 1..7 on the river */ } kNamed[] = {
    {"AhKh QhJhTh 2c3d", 1, "Royal Flush", "13 12 11 10 9 1 2"}, {"2h3h 4h5h6h 9hKh", 9, "Straight Flush", "12 8 5 4 3 2 1"},  // the 6-high
    {"AhKh 5h4h3h 2h9c", 10, "Straight Flush", "13 12 4 3 2 1 8"}, {"Ah6h 5h4h3h 2h9c", 9, "Straight Flush", "13 5 4 3 2 1 8"},
    {"Ad9d 8d7d6d 5dKc", 6, "Straight Flush", "13 8 7 6 5 4 12"}, {"2h7h 9hJhKh TcQd", 37, "Flush", "12 10 8 6 1 9 11"},
    {"AhAs Jh8h5h 3h2h", 37, "Flush", "13 10 7 4 2 1 13"}, {"AhAs AdAc 2h3c7d", 11, "Four of a Kind", "13 13 13 13 6 2 1"},
    {"2h2s 2d2c Ah3c7d", 23, "Four of a Kind", "1 1 1 1 13 6 2"}, {"7h7s 7d7c KhKsKd", 18, "Four of a Kind", "6 6 6 6 12 12 12"},
    {"AhAs AdKcKh 3c7d", 24, "Full House", "13 13 13 12 12 6 2"}, {"2h2s 2dAcAh 3c7d", 36, "Full House", "1 1 1 13 13 6 2"},
    {"9h9s 9dKcKh Ks2d", 25, "Full House", "12 12 12 8 8 8 1"}, {"4h4s 4d9c9h JsJd", 34, "Full House", "3 3 3 10 10 8 8"},
    {"AhKd QsJcTh 3c7d", 38, "Straight", "13 12 11 10 9 6 2"}, {"Ah2d 3s4c5h Kc9d", 47, "Straight", "13 12 8 4 3 2 1"},
    {"2h3d 4s5c6h Ac9d", 46, "Straight", "13 8 5 4 3 2 1"}, {"AhAs AdKc2h 3c7d", 48, "Three of a Kind", "13 13 13 12 6 2 1"},
    {"8h8s 8dAc2h Js4d", 54, "Three of a Kind", "7 7 7 13 10 3 1"}, {"2h2s 2dKc5h 9c7d", 60, "Three of a Kind", "1 1 1 12 8 6 4"},
    {"AhAs KdKc2h 7c9d", 61, "Two Pair", "13 13 12 12 8 6 1"}, {"AhAs 2d2c5h 7c9d", 72, "Two Pair", "13 13 1 1 8 6 4"},
    {"KhKs QdQc2h 7c9d", 73, "Two Pair", "12 12 11 11 8 6 1"}, {"KhKs 9d9c5h 5c8d", 76, "Two Pair", "12 12 8 8 7 4 4"},  // kicker over third pair
    {"KhKs 9d9c5h 5c2d", 76, "Two Pair", "12 12 8 8 4 4 1"}, {"3h3s 2d2c5h 7c9d", 138, "Two Pair", "2 2 1 1 8 6 4"},
    {"8h8s 2dAc3h Js5d", 145, "Eights", "7 7 13 10 4 2 1"}, {"Ah Js 8d5c2h 3cTd", 199, "", "13 10 9 7 4 2 1"},
    {"2h7h KhJh4s 9c3d", 199, "", "12 10 8 6 3 2 1"},
};
const char* const kPairWords[] = {"Dueces", "Threes", "Fours", "Fives", "Sixes", "Sevens", "Eights", "Nines", "Tens", "Jacks", "Queens", "Kings", "Aces"};
const std::pair<const char*, int> kBeforeTheRiver[] = {  // cards on the flop or the turn, code
    {"9h8s 6d5c4h", 199}, {"KhQs JdTc4h", 153}, {"AhJs 8d5c2h", 153}, {"AhKs QdJc9h", 154}, {"AhQs JdTc9h", 155},
    {"AhJs Td9c8h", 153}, {"KhQs Td9c8h", 157}, {"KhJs Td9c8h", 158}, {"QhJs 9d8c7h", 159}, {"AhTs 9d8c7h", 153},
    {"KhTs 9d8c6h", 153}, {"QhTs 9d8c6h", 162}, {"KhTs 9d8c7h", 153}, {"2h7h KhJh4s", 152}, {"2s7h KhJh4s9h", 152},
    {"AhKs 2dQcJh9s", 154}, {"AhKs 2dQcJh4s", 153}, {"AhKh 5h5c2h", 148}, {"KhKs Kd5c5h", 25}, {"KhKs Kd5c5h2c", 25}};
// clang-format on

// The same cards before the tables (g[0]) and the reference (g[1]); marks show a path that writes too much.
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

class Rank : public ::testing::Test {
protected:
    Rank() { g.rnd.Script({}); }
    ~Rank() override { EXPECT_EQ(g.rnd.Overdrawn(), 0); }
    // Hole cards, then the board as far as it is out (5, 6 or 7 cards).
    int Code(const std::string& names) {
        std::vector<int16_t> cards = CardsOf(names);
        g.SeatInHand[1] = true;
        for (std::size_t k = 0; k < cards.size(); ++k)
            g.SeatCards[1][k + 1] = k < 2 ? cards[k] : (g.Deck[kBoardFirst + k - 2] = cards[k]);
        g.CardsKnown = static_cast<int16_t>(cards.size());
        g.RankHands();
        return g.SeatHandCode[1];
    }
    std::string Best() const {
        std::string s = std::to_string(g.SeatBestRanks[1][1]);
        for (int k = 2; k <= 7; ++k) s += " " + std::to_string(g.SeatBestRanks[1][k]);
        return s;
    }
    ScriptedPlatform p;
    Game g{p};
};

// Every five-card hand as the reference, by class and by code; high cards split by the draw rules.
TEST(RankFast, EveryFiveCardHandAsTheReferenceByCode) {
    Twin t;
    std::array<int64_t, 201> byCode{};
    int seat = 0;
    auto check = [&] {  // the seats not dealt again keep their hands and are not counted
        t.Check(5);
        for (int s = 1; s <= seat; ++s) ++byCode[t.g[0].SeatHandCode[s]];
        seat = 0;
    };
    for (int c = 1; c <= 52; ++c)
        for (int d = c + 1; d <= 52; ++d)
            for (int e = d + 1; e <= 52; ++e) {
                t.Board(0, c), t.Board(1, d), t.Board(2, e);
                for (int a = 1; a < c; ++a)
                    for (int b = a + 1; b < c; ++b) {
                        t.Hole(++seat, a, b);
                        if (seat == kSeats) check();
                    }
                if (seat != 0) check();
            }
    std::array<int64_t, kCategories> byCategory{};
    for (int code = 0; code <= 200; ++code) byCategory[CategoryOfCode(code)] += byCode[code];
    EXPECT_EQ(byCategory, (std::array<int64_t, kCategories>{1302540, 1098240, 123552, 54912, 10200, 5108,
                                                            3744, 624, 40}));
    for (auto [first, last, each] : kRuns)
        for (int code = static_cast<int>(first); code <= last; ++code) EXPECT_EQ(byCode[code], each) << code;
}

// The ordinary ranking: category in the top bits, then the deciding ranks (2..14) four bits each.
uint32_t ValueOfFive(const int* cards) {
    int counts[15] = {};
    bool flush = true;
    for (int i = 0; i < 5; ++i)
        ++counts[RankOf(cards[i]) + 1], flush = flush && SuitOf(cards[i]) == SuitOf(cards[0]);
    std::vector<std::pair<int, int>> groups;  // (count, face), most first, then highest
    for (int face = 14; face >= 2; --face)
        if (counts[face]) groups.push_back({counts[face], face});
    std::stable_sort(groups.begin(), groups.end(), [](auto a, auto b) { return a.first > b.first; });
    int top = 0;
    if (groups.size() == 5 && groups[0].second - groups[4].second == 4) top = groups[0].second;
    if (groups.size() == 5 && groups[0].second == 14 && groups[1].second == 5) top = 5;
    int n0 = groups[0].first, n1 = groups.size() > 1 ? groups[1].first : 0;
    HandCategory cat = top && flush         ? StraightFlush
                       : n0 == 4            ? Quads
                       : n0 == 3 && n1 == 2 ? FullHouse
                       : flush              ? Flush
                       : top                ? Straight
                       : n0 == 3            ? Trips
                       : n0 == 2            ? (n1 == 2 ? TwoPair : Pair)
                                            : HighCard;
    uint32_t v = static_cast<uint32_t>(cat) << 20;
    if (top) return v | top << 16;
    int shift = 16;
    for (auto [n, face] : groups) v |= static_cast<uint32_t>(face) << shift, shift -= 4;
    return v;
}

uint32_t BestOfSeven(const int* seven) {
    uint32_t best = 0;
    for (int a = 0; a < 7; ++a)
        for (int b = a + 1; b < 7; ++b) {
            int five[5], k = 0;
            for (int i = 0; i < 7; ++i)
                if (i != a && i != b) five[k++] = seven[i];
            best = std::max(best, ValueOfFive(five));
        }
    return best;
}

// Seeded showdowns (full deck, high cards, two suits): class and comparisons as the reference, four Aces tie.
TEST_F(Rank, SevenCardShowdownsAgreeWithTheReference) {
    std::mt19937 rng(20240601u);
    std::array<int, kCategories> seen{};
    for (auto [low, suits, seats, deals] : kDecks) {
        std::vector<int> deck;
        for (int suit = 0; suit < suits; ++suit)
            for (int rank = low; rank <= 13; ++rank) deck.push_back(suit * 13 + rank);
        for (int s = 1; s <= kSeats; ++s) g.SeatInHand[s] = s <= seats;
        for (int deal = 0; deal < deals; ++deal) {
            std::shuffle(deck.begin(), deck.end(), rng);
            SCOPED_TRACE(::testing::Message() << "deck " << low << "/" << suits << " deal " << deal);
            std::array<uint32_t, 9> value{};
            for (int s = 1; s <= seats; ++s) {
                int seven[7] = {deck[5 + 2 * s], deck[6 + 2 * s], deck[0], deck[1],
                                deck[2],         deck[3],         deck[4]};
                for (int k = 0; k < 7; ++k) g.SeatCards[s][k + 1] = static_cast<int16_t>(seven[k]);
                for (int k = 0; k < 5; ++k) g.Deck[kBoardFirst + k] = static_cast<int16_t>(deck[k]);
                value[s] = BestOfSeven(seven);
                ++seen[value[s] >> 20];
            }
            RankRiver(g);
            for (int a = 1; a <= seats; ++a) {
                ASSERT_EQ(CategoryOfCode(g.SeatHandCode[a]), static_cast<int>(value[a] >> 20))
                    << "seat " << a;
                for (int b = 1; b <= seats; ++b) {
                    bool aces =
                        (value[a] >> 16) == (Quads << 4 | 14) && (value[b] >> 16) == (Quads << 4 | 14);
                    int want = aces || value[a] == value[b] ? 0 : value[a] > value[b] ? 1 : -1;
                    ASSERT_EQ(g.CompareShowdown(a, b), want) << "seats " << a << "/" << b;
                }
            }
        }
    }
    for (int cat = HighCard; cat < kCategories; ++cat) EXPECT_GT(seen[cat], 20) << cat;
}

// Stack full of the Ace of hearts (13): were the reference to read element 0, a flush to K would be royal.
[[gnu::noinline]] void FillStackWithAces() {
    volatile int junk[8192];
    for (volatile int& card : junk) card = 13;
}

TEST_F(Rank, NamedHandsCodesAndArrangedRanks) {
    for (const NamedRow& r : kNamed) {
        SCOPED_TRACE(r.cards);
        g.SeatHandName[1] = "";
        EXPECT_EQ(Code(r.cards), r.code);
        EXPECT_EQ(g.SeatHandName[1], r.name);
        EXPECT_EQ(Best(), r.best);
    }
    for (int r = 1; r <= 13; ++r) {  // a pocket pair over a board that pairs nothing
        std::string pair = std::string(1, "23456789TJQKA"[r - 1]);
        bool high = r == 3 || r == 6 || r == 8 || r == 11 || r == 12;
        EXPECT_EQ(Code(pair + "h" + pair + "s" + (high ? "2d5c6d8cTd" : "KdQc9d7c4d")), 152 - r) << r;
        EXPECT_EQ(g.SeatHandName[1], kPairWords[r - 1]);
    }
    const std::vector<int16_t> flush = CardsOf("KhQh JhTh2h 3c4d");
    int16_t cards[kHandCardsMax + 1] = {0,        flush[0], flush[1], flush[2],
                                        flush[3], flush[4], flush[5], flush[6]};
    HandRanking ranked;
    FillStackWithAces();
    RankCardsReference(cards, 7, true, ranked);
    EXPECT_EQ(ranked.code, 37);
}

// Before the river no pair keeps its name, the codes tell the draws apart and BestRanks waits.
TEST_F(Rank, HighCardsOnTheFlopAndTheTurn) {
    for (auto [cards, code] : kBeforeTheRiver) {
        g.SeatHandName[1] = "kept";
        EXPECT_EQ(Code(cards), code) << cards;
        EXPECT_EQ(g.SeatHandName[1], code >= 152 ? "kept" : code == 148 ? "Fives" : "Full House") << cards;
        EXPECT_EQ(Best(), "0 0 0 0 0 0 0") << cards;
    }
}

// Every six-card rank pattern in four suitings, a million seeded seats on flop, turn and river, odd input.
TEST(RankFast, EverySixCardPatternAndAMillionHandsAsTheReference) {
    // Were a table incomplete, the reference would stand in and prove nothing.
    for (int n : {5, 6, 7}) EXPECT_TRUE(RankPatterns(n).complete && FlushCodes().complete);
    Twin t;
    std::mt19937 rng(6);
    int patterns = 0;
    std::array<int, 14> count{};
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
    rng.seed(20240601);
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
    t.Board(0, 4), t.Board(1, 17), t.Board(2, 30),
        t.Hole(3, 4, 43);  // a hole card repeats a Five of the board
    for (int known : {5, 6, 7}) t.Check(known);
}

}  // namespace
}  // namespace holdem
