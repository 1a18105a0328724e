// The made hands one by one: codes, names, the arranged ranks on the river,
// and the showdown comparison at its edges.
#include <gtest/gtest.h>

#include <sstream>

#include "tests/support/hand_builder.h"
#include "tests/support/scripted_platform.h"

namespace holdem {
namespace {

// Hole cards first, then the board as far as it is out: 5, 6 or 7 cards.
void Deal(Game& g, int seat, const std::string& cards) {
    std::istringstream in(cards);
    std::string card;
    for (int k = 1; in >> card; g.CardsKnown = static_cast<int16_t>(k++)) {
        if (k > 2) g.Deck[kBoardFirst + k - 3] = test::CardOf(card);
        for (int s = 1; s <= kSeats; ++s)
            if (k > 2 || s == seat) g.SeatCards[s][k] = test::CardOf(card);
    }
    g.SeatInHand[seat] = true;
}

std::string Best(const Game& g, int seat) {
    std::string all;
    for (int k = 1; k <= 5; ++k) all += (k > 1 ? " " : "") + std::to_string(g.SeatBestRanks[seat][k]);
    return all == "0 0 0 0 0" ? "" : all;
}

struct Hand {
    const char* cards;
    int code;
    const char* name;  // "-": none written
    const char* best;  // BestRanks 1..5, "" when not written
};

// clang-format off
const Hand kHands[] = {
    // Straight flushes among all the suited cards: the five lowest of seven hearts, the wheel, 9-high under an Ace.
    {"Ah Kh Qh Jh Th 2c 3d", 1, "Royal Flush", "13 12 11 10 9"}, {"Kh Qh Jh Th 9h Ah 2c", 1, "Royal Flush", "13 12 11 10 9"},
    {"2h 3h 4h 5h 6h 9h Kh", 9, "Straight Flush", "12 8 5 4 3"}, {"Ah Kh 5h 4h 3h 2h 9c", 10, "Straight Flush", "13 12 4 3 2"},
    {"Ah 6h 5h 4h 3h 2h 9c", 9, "Straight Flush", "13 5 4 3 2"}, {"Ad 9d 8d 7d 6d 5d Kc", 6, "Straight Flush", "13 8 7 6 5"},
    // A flush apart from the straight; six suited cards with a pair: the top five of the suit.
    {"2h 7h 9h Jh Kh Tc Qd", 37, "Flush", "12 10 8 6 1"}, {"Ah As Jh 8h 5h 3h 2h", 37, "Flush", "13 10 7 4 2"},
    // Groups by rank; four and three of a kind: the three give the kicker.
    {"Ah As Ad Ac 2h 3c 7d", 11, "Four of a Kind", "13 13 13 13 6"}, {"2h 2s 2d 2c Ah 3c 7d", 23, "Four of a Kind", "1 1 1 1 13"},
    {"7h 7s 7d 7c Kh Ks Kd", 18, "Four of a Kind", "6 6 6 6 12"},
    {"Ah As Ad Kc Kh 3c 7d", 24, "Full House", "13 13 13 12 12"}, {"2h 2s 2d Ac Ah 3c 7d", 36, "Full House", "1 1 1 13 13"},
    // Two threes: the higher makes the house; a three and two pairs: the higher pair.
    {"9h 9s 9d Kc Kh Ks 2d", 25, "Full House", "12 12 12 8 8"}, {"4h 4s 4d 9c 9h Js Jd", 34, "Full House", "3 3 3 10 10"},
    {"Ah Kd Qs Jc Th 3c 7d", 38, "Straight", "13 12 11 10 9"}, {"2h 3d 4s 5c 6h Ac 9d", 46, "Straight", "13 8 5 4 3"},
    {"Ah 2d 3s 4c 5h Kc 9d", 47, "Straight", "13 12 8 4 3"},
    {"Ah As Ad Kc 2h 3c 7d", 48, "Three of a Kind", "13 13 13 12 6"}, {"2h 2s 2d Kc 5h 9c 7d", 60, "Three of a Kind", "1 1 1 12 8"},
    {"8h 8s 8d Ac 2h Js 4d", 54, "Three of a Kind", "7 7 7 13 10"},
    {"Ah As Kd Kc 2h 7c 9d", 61, "Two Pair", "13 13 12 12 8"}, {"Ah As 2d 2c 5h 7c 9d", 72, "Two Pair", "13 13 1 1 8"},
    {"Kh Ks Qd Qc 2h 7c 9d", 73, "Two Pair", "12 12 11 11 8"}, {"3h 3s 2d 2c 5h 7c 9d", 138, "Two Pair", "2 2 1 1 8"},
    // Three pairs: the kicker is the better of the third pair and the single card.
    {"Kh Ks 9d 9c 5h 5c 8d", 76, "Two Pair", "12 12 8 8 7"}, {"Kh Ks 9d 9c 5h 5c 2d", 76, "Two Pair", "12 12 8 8 4"},
    {"8h 8s 2d Ac 3h Js 5d", 145, "Eights", "7 7 13 10 4"},
    // No pair before the river: four to a suit, the spans of the top five, then two high cards.
    {"9h 8s 6d 5c 4h", 199, "-", ""}, {"Kh Qs Jd Tc 4h", 153, "-", ""}, {"Ah Js 8d 5c 2h", 153, "-", ""},
    {"Ah Ks Qd Jc 9h", 154, "-", ""}, {"Ah Qs Jd Tc 9h", 155, "-", ""}, {"Kh Qs Td 9c 8h", 157, "-", ""},
    {"Kh Js Td 9c 8h", 158, "-", ""}, {"Qh Js 9d 8c 7h", 159, "-", ""}, {"Qh Ts 9d 8c 6h", 162, "-", ""},
    {"Kh Ts 9d 8c 7h", 153, "-", ""}, {"2h 7h Kh Jh 4s", 152, "-", ""}, {"2s 7h Kh Jh 4s 9h", 152, "-", ""},
    {"Ah Ks 2d Qc Jh 9s", 154, "-", ""}, {"Ah Ks 2d Qc Jh 4s", 153, "-", ""},
    {"Ah Kh 5h 5c 2h", 148, "Fives", ""},  // a pair with four to a suit
    // On the river every high card is 199.
    {"Ah Ks Qd Jc 9h 3c 2d", 199, "-", "13 12 11 10 8"}, {"2h 7h Kh Jh 4s 9c 3d", 199, "-", "12 10 8 6 3"},
    {"Ah Js 8d 5c 2h 3c Td", 199, "-", "13 10 9 7 4"},
    // BestRanks only on the river.
    {"Kh Ks Kd 5c 5h", 25, "Full House", ""}, {"Kh Ks Kd 5c 5h 2c", 25, "Full House", ""},
    {"Kh Ks Kd 5c 5h 2c 9d", 25, "Full House", "12 12 12 4 4"},
};
// clang-format on

TEST(RankHands, CodesNamesAndArrangedRanks) {
    for (const Hand& h : kHands) {
        test::ScriptedPlatform p;
        Game g(p);
        g.rnd.Script({});
        g.SeatHandName[1] = "-";
        Deal(g, 1, h.cards);
        g.RankHands();
        EXPECT_EQ(std::to_string(g.SeatHandCode[1]) + " " + g.SeatHandName[1] + " | " + Best(g, 1),
                  std::to_string(h.code) + " " + h.name + " | " + h.best)
            << h.cards;
        EXPECT_EQ(g.rnd.Overdrawn(), 0);
        if (std::string(h.cards) == "Kh Ks Kd 5c 5h 2c 9d") {
            EXPECT_EQ(g.SeatBestRanks[1][6] * 100 + g.SeatBestRanks[1][7], 801);  // the left-overs 9 and 2
        }
    }
}

TEST(RankHands, OnePairsByTheirWords) {
    const char* words[] = {"Dueces", "Threes", "Fours", "Fives",  "Sixes", "Sevens", "Eights",
                           "Nines",  "Tens",   "Jacks", "Queens", "Kings", "Aces"};
    const std::string ranks = "23456789TJQKA";
    for (int r = 1; r <= 13; ++r) {
        test::ScriptedPlatform p;
        Game g(p);
        // A board that pairs no pocket and makes nothing else.
        bool high = r == 12 || r == 11 || r == 8 || r == 6 || r == 3;
        Deal(g, 1,
             std::string{ranks[r - 1], 'h', ' ', ranks[r - 1], 's', ' '} +
                 (high ? "2d 5c 6d 8c Td" : "Kd Qc 9d 7c 4d"));
        g.RankHands();
        EXPECT_EQ(std::to_string(g.SeatHandCode[1]) + " " + g.SeatHandName[1],
                  std::to_string(152 - r) + " " + words[r - 1]);
    }
}

struct Showdown {
    const char* board;
    std::vector<const char*> holes;  // seats 1, 2, ...
    const char* codes;
    const char* order;  // "1>2": seat 1 wins, "1=2": they tie
};

const Showdown kShowdowns[] = {
    {"Ah As Ad Ac 2c", {"Kh 3d", "4h 3c"}, "11 11", "1=2"},  // four Aces never split by the kicker
    {"Kh Ks Kd Kc 2c", {"Ah 3d", "Qh Jc", "Qs 4c"}, "12 12 12", "1>2 2=3"},
    {"Kh Ks Kd 5c 5h", {"9h 9c", "7h 7c", "2d 3c"}, "25 25 25", "1>2 2>3 3<1"},
    {"5h 6s 7d 8c 9h", {"Ah 2d", "Kc 3s", "Td 2c"}, "43 43 42", "1=2 3>1"},
    {"2h 7h 9h Jh 3c", {"Kh 4c", "Qh Ac", "Kc Kd"}, "37 37 140", "1>2 3<2"},
    {"Ah Kh Qd Jd 4s", {"9c 2s", "9d 2h"}, "199 199", "1=2"},  // suits never decide
    {"Ah Kd 8s 4c 2h", {"3d 3s", "Qc Jd"}, "150 199", "1>2"},
};

TEST(RankHands, ShowdownComparison) {
    for (const Showdown& c : kShowdowns) {
        SCOPED_TRACE(c.board);
        test::ScriptedPlatform p;
        Game g(p);
        for (int s = 1; s <= kSeats; ++s) g.SeatHandCode[s] = 61, g.SeatHandName[s] = "left";
        std::string codes;
        for (std::size_t s = 1; s <= c.holes.size(); ++s)
            Deal(g, static_cast<int>(s), std::string(c.holes[s - 1]) + " " + c.board);
        g.RankHands();
        for (std::size_t s = 1; s <= c.holes.size(); ++s)
            codes += (s > 1 ? " " : "") + std::to_string(g.SeatHandCode[s]);
        // Seats out of the hand get no code, no name and no arranged ranks.
        std::string out, rest;
        for (int s = static_cast<int>(c.holes.size()) + 1; s <= kSeats; ++s) {
            out += std::to_string(g.SeatHandCode[s]) + g.SeatHandName[s] + Best(g, s) + " ";
            rest += "200left ";
        }
        EXPECT_EQ(codes + " | " + out, c.codes + (" | " + rest));
        std::istringstream in(c.order);
        std::string rel;
        while (in >> rel) {
            int a = rel[0] - '0', b = rel[2] - '0', want = rel[1] == '>' ? 1 : rel[1] == '<' ? -1 : 0;
            EXPECT_EQ(g.CompareShowdown(a, b), want) << rel;
            EXPECT_EQ(g.CompareShowdown(b, a), -want) << rel;
        }
    }
}

}  // namespace
}  // namespace holdem
