// The made hands one by one: codes, names, the arranged ranks on the river,
// and the showdown comparison at its edges.
#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "engine/game_state.h"
#include "tests/support/hand_builder.h"
#include "tests/support/scripted_platform.h"

namespace holdem {
namespace {

using test::CardOf;

class RankCases : public ::testing::Test {
protected:
    RankCases() { g.rnd.Script({}); }
    ~RankCases() override { EXPECT_EQ(g.rnd.Overdrawn(), 0); }

    // Hole cards first, then the board as far as it is out (5, 6 or 7 cards).
    void Deal(int seat, const std::vector<const char*>& cards) {
        g.SeatInHand[seat] = true;
        g.SeatCards[seat][1] = CardOf(cards[0]);
        g.SeatCards[seat][2] = CardOf(cards[1]);
        for (std::size_t k = 2; k < cards.size(); ++k) {
            g.Deck[kBoardFirst + k - 2] = CardOf(cards[k]);
            for (int s = 1; s <= kSeats; ++s) g.SeatCards[s][k + 1] = CardOf(cards[k]);
        }
        g.CardsKnown = static_cast<int16_t>(cards.size());
    }

    // Ranks one seat alone and gives its code.
    int Code(const std::vector<const char*>& cards, int seat = 1) {
        Deal(seat, cards);
        g.RankHands();
        return g.SeatHandCode[seat];
    }

    std::array<int, 5> Best(int seat = 1) const {
        return {g.SeatBestRanks[seat][1], g.SeatBestRanks[seat][2], g.SeatBestRanks[seat][3],
                g.SeatBestRanks[seat][4], g.SeatBestRanks[seat][5]};
    }

    test::ScriptedPlatform p;
    Game g{p};
};

TEST_F(RankCases, StraightFlushesAreFoundAmongAllTheSuitedCards) {
    EXPECT_EQ(Code({"Ah", "Kh", "Qh", "Jh", "Th", "2c", "3d"}), 1);
    EXPECT_EQ(g.SeatHandName[1], "Royal Flush");
    // Seven hearts whose five lowest run: the 6-high straight flush, not a flush.
    EXPECT_EQ(Code({"2h", "3h", "4h", "5h", "6h", "9h", "Kh"}), 9);
    EXPECT_EQ(g.SeatHandName[1], "Straight Flush");
    EXPECT_EQ(Code({"Ah", "Kh", "5h", "4h", "3h", "2h", "9c"}), 10);
    EXPECT_EQ(Code({"Ah", "6h", "5h", "4h", "3h", "2h", "9c"}), 9);
    EXPECT_EQ(Code({"Ad", "9d", "8d", "7d", "6d", "5d", "Kc"}), 6);
    EXPECT_EQ(Code({"Kh", "Qh", "Jh", "Th", "9h", "Ah", "2c"}), 1);
    // The flush and the straight lie apart: a flush.
    EXPECT_EQ(Code({"2h", "7h", "9h", "Jh", "Kh", "Tc", "Qd"}), 37);
    EXPECT_EQ(g.SeatHandName[1], "Flush");
    EXPECT_EQ(Best(), (std::array<int, 5>{12, 10, 8, 6, 1}));
}

TEST_F(RankCases, GroupsGiveCodesByRank) {
    EXPECT_EQ(Code({"Ah", "As", "Ad", "Ac", "2h", "3c", "7d"}), 11);
    EXPECT_EQ(g.SeatHandName[1], "Four of a Kind");
    EXPECT_EQ(Code({"2h", "2s", "2d", "2c", "Ah", "3c", "7d"}), 23);
    EXPECT_EQ(Code({"Ah", "As", "Ad", "Kc", "Kh", "3c", "7d"}), 24);
    EXPECT_EQ(g.SeatHandName[1], "Full House");
    EXPECT_EQ(Code({"2h", "2s", "2d", "Ac", "Ah", "3c", "7d"}), 36);
    EXPECT_EQ(Code({"Ah", "Kd", "Qs", "Jc", "Th", "3c", "7d"}), 38);
    EXPECT_EQ(g.SeatHandName[1], "Straight");
    EXPECT_EQ(Code({"Ah", "2d", "3s", "4c", "5h", "Kc", "9d"}), 47);
    EXPECT_EQ(Code({"2h", "3d", "4s", "5c", "6h", "Ac", "9d"}), 46);
    EXPECT_EQ(Code({"Ah", "As", "Ad", "Kc", "2h", "3c", "7d"}), 48);
    EXPECT_EQ(g.SeatHandName[1], "Three of a Kind");
    EXPECT_EQ(Code({"2h", "2s", "2d", "Kc", "5h", "9c", "7d"}), 60);
}

TEST_F(RankCases, TwoPairCodesAndOnePairWords) {
    EXPECT_EQ(Code({"Ah", "As", "Kd", "Kc", "2h", "7c", "9d"}), 61);
    EXPECT_EQ(g.SeatHandName[1], "Two Pair");
    EXPECT_EQ(Code({"Ah", "As", "2d", "2c", "5h", "7c", "9d"}), 72);
    EXPECT_EQ(Code({"Kh", "Ks", "Qd", "Qc", "2h", "7c", "9d"}), 73);
    EXPECT_EQ(Code({"3h", "3s", "2d", "2c", "5h", "7c", "9d"}), 138);

    const char* words[] = {"Dueces", "Threes", "Fours", "Fives",  "Sixes", "Sevens", "Eights",
                           "Nines",  "Tens",   "Jacks", "Queens", "Kings", "Aces"};
    const char* pairs[][2] = {{"2h", "2s"}, {"3h", "3s"}, {"4h", "4s"}, {"5h", "5s"}, {"6h", "6s"},
                              {"7h", "7s"}, {"8h", "8s"}, {"9h", "9s"}, {"Th", "Ts"}, {"Jh", "Js"},
                              {"Qh", "Qs"}, {"Kh", "Ks"}, {"Ah", "As"}};
    // Board cards that pair none of the pockets and make nothing else.
    const char* lowBoard[] = {"Kd", "Qc", "9d", "7c", "4d"};
    const char* highBoard[] = {"2d", "5c", "6d", "8c", "Td"};
    for (int r = 1; r <= 13; ++r) {
        const char** board = (r == 12 || r == 11 || r == 8 || r == 6 || r == 3) ? highBoard : lowBoard;
        EXPECT_EQ(Code({pairs[r - 1][0], pairs[r - 1][1], board[0], board[1], board[2], board[3], board[4]}),
                  152 - r);
        EXPECT_EQ(g.SeatHandName[1], words[r - 1]);
    }
}

TEST_F(RankCases, ArrangedRanksKeepTheRightKicker) {
    // Three pairs: the two highest play; the kicker is the better of the third
    // pair and the single card.
    EXPECT_EQ(Code({"Kh", "Ks", "9d", "9c", "5h", "5c", "8d"}), 76);
    EXPECT_EQ(Best(), (std::array<int, 5>{12, 12, 8, 8, 7}));
    EXPECT_EQ(Code({"Kh", "Ks", "9d", "9c", "5h", "5c", "2d"}), 76);
    EXPECT_EQ(Best(), (std::array<int, 5>{12, 12, 8, 8, 4}));
    // Two threes: the higher is the full house, two of the lower the pair.
    EXPECT_EQ(Code({"9h", "9s", "9d", "Kc", "Kh", "Ks", "2d"}), 25);
    EXPECT_EQ(Best(), (std::array<int, 5>{12, 12, 12, 8, 8}));
    // Four and three of a kind: the three give the kicker.
    EXPECT_EQ(Code({"7h", "7s", "7d", "7c", "Kh", "Ks", "Kd"}), 18);
    EXPECT_EQ(Best(), (std::array<int, 5>{6, 6, 6, 6, 12}));
    // Three of a kind keeps the two best singles.
    EXPECT_EQ(Code({"8h", "8s", "8d", "Ac", "2h", "Js", "4d"}), 54);
    EXPECT_EQ(Best(), (std::array<int, 5>{7, 7, 7, 13, 10}));
    // One pair and three kickers.
    EXPECT_EQ(Code({"8h", "8s", "2d", "Ac", "3h", "Js", "5d"}), 145);
    EXPECT_EQ(Best(), (std::array<int, 5>{7, 7, 13, 10, 4}));
    // Full house with two pairs: the higher pair plays.
    EXPECT_EQ(Code({"4h", "4s", "4d", "9c", "9h", "Js", "Jd"}), 34);
    EXPECT_EQ(Best(), (std::array<int, 5>{3, 3, 3, 10, 10}));
    // Six suited cards: the top five of the suit, pairs ignored.
    EXPECT_EQ(Code({"Ah", "As", "Jh", "8h", "5h", "3h", "2h"}), 37);
    EXPECT_EQ(Best(), (std::array<int, 5>{13, 10, 7, 4, 2}));
}

TEST_F(RankCases, HighCardsBeforeTheRiver) {
    EXPECT_EQ(Code({"9h", "8s", "6d", "5c", "4h"}), 199);
    EXPECT_EQ(Code({"Kh", "Qs", "Jd", "Tc", "4h"}), 153);
    EXPECT_EQ(Code({"Ah", "Js", "8d", "5c", "2h"}), 153);
    EXPECT_EQ(Code({"Ah", "Ks", "Qd", "Jc", "9h"}), 154);
    EXPECT_EQ(Code({"Ah", "Qs", "Jd", "Tc", "9h"}), 155);
    EXPECT_EQ(Code({"Kh", "Qs", "Td", "9c", "8h"}), 157);
    EXPECT_EQ(Code({"Kh", "Js", "Td", "9c", "8h"}), 158);
    EXPECT_EQ(Code({"Qh", "Js", "9d", "8c", "7h"}), 159);
    EXPECT_EQ(Code({"Qh", "Ts", "9d", "8c", "6h"}), 162);
    // Kings and Tens without a Queen or Jack span too far for the second test.
    EXPECT_EQ(Code({"Kh", "Ts", "9d", "8c", "7h"}), 153);
    // Four to a suit comes first, wherever the cards lie.
    EXPECT_EQ(Code({"2h", "7h", "Kh", "Jh", "4s"}), 152);
    EXPECT_EQ(Code({"2s", "7h", "Kh", "Jh", "4s", "9h"}), 152);
    // The turn: the five highest of six decide.
    EXPECT_EQ(Code({"Ah", "Ks", "2d", "Qc", "Jh", "9s"}), 154);
    EXPECT_EQ(Code({"Ah", "Ks", "2d", "Qc", "Jh", "4s"}), 153);
    EXPECT_EQ(g.SeatHandName[1], "");
    // A pair with four to a suit is a pair.
    EXPECT_EQ(Code({"Ah", "Kh", "5h", "5c", "2h"}), 148);
    EXPECT_EQ(g.SeatHandName[1], "Fives");
}

TEST_F(RankCases, TheRiverTurnsEveryHighCardTo199) {
    EXPECT_EQ(Code({"Ah", "Ks", "Qd", "Jc", "9h", "3c", "2d"}), 199);
    EXPECT_EQ(Code({"2h", "7h", "Kh", "Jh", "4s", "9c", "3d"}), 199);
    EXPECT_EQ(Code({"Ah", "Js", "8d", "5c", "2h", "3c", "Td"}), 199);
    EXPECT_EQ(g.SeatHandName[1], "");
    EXPECT_EQ(Best(), (std::array<int, 5>{13, 10, 9, 7, 4}));
}

TEST_F(RankCases, BestRanksAreWrittenOnlyOnTheRiver) {
    Code({"Kh", "Ks", "Kd", "5c", "5h"});
    EXPECT_EQ(g.SeatHandCode[1], 25);
    EXPECT_EQ(g.SeatHandName[1], "Full House");
    EXPECT_EQ(Best(), (std::array<int, 5>{0, 0, 0, 0, 0}));
    Code({"Kh", "Ks", "Kd", "5c", "5h", "2c"});
    EXPECT_EQ(Best(), (std::array<int, 5>{0, 0, 0, 0, 0}));
    Code({"Kh", "Ks", "Kd", "5c", "5h", "2c", "9d"});
    EXPECT_EQ(Best(), (std::array<int, 5>{12, 12, 12, 4, 4}));
    EXPECT_EQ(g.SeatBestRanks[1][6], 8);
    EXPECT_EQ(g.SeatBestRanks[1][7], 1);
}

TEST_F(RankCases, OnlySeatsInTheHandAreRanked) {
    Deal(2, {"Ah", "As", "Kd", "Kc", "2h", "7c", "9d"});
    Deal(5, {"Qh", "Qs", "Kd", "Kc", "2h", "7c", "9d"});
    g.SeatInHand[5] = false;
    g.SeatHandCode[5] = 61;
    g.SeatHandName[5] = "Two Pair";
    g.SeatHandName[2] = "Aces";
    g.RankHands();
    EXPECT_EQ(g.SeatHandCode[2], 61);
    EXPECT_EQ(g.SeatHandName[2], "Two Pair");
    for (int s : {1, 3, 4, 5, 6, 7, 8}) EXPECT_EQ(g.SeatHandCode[s], kNoHand) << s;
    EXPECT_EQ(g.SeatHandName[5], "Two Pair");  // no code, so no text written
    EXPECT_EQ(g.SeatBestRanks[5][1], 0);
}

// Only codes that carry a text write one; StartHand is what empties it.
TEST_F(RankCases, AHighCardLeavesTheNameAsItWas) {
    g.SeatHandName[1] = "Kings";
    EXPECT_EQ(Code({"Ah", "Ks", "Qd", "Jc", "9h"}), 154);
    EXPECT_EQ(g.SeatHandName[1], "Kings");
}

// Board and hole cards for several seats, ranked together on the river.
class Showdown : public RankCases {
protected:
    void Board(std::vector<const char*> board) { board_ = std::move(board); }
    void Hole(int seat, const char* a, const char* b) {
        std::vector<const char*> cards{a, b};
        cards.insert(cards.end(), board_.begin(), board_.end());
        Deal(seat, cards);
    }
    std::vector<const char*> board_;
};

TEST_F(Showdown, FourAcesTieWhateverTheKicker) {
    Board({"Ah", "As", "Ad", "Ac", "2c"});
    Hole(1, "Kh", "3d");
    Hole(2, "4h", "3c");
    g.RankHands();
    EXPECT_EQ(g.SeatHandCode[1], 11);
    EXPECT_EQ(g.SeatHandCode[2], 11);
    EXPECT_EQ(g.CompareShowdown(1, 2), 0);
    EXPECT_EQ(g.CompareShowdown(2, 1), 0);
}

TEST_F(Showdown, FourKingsAreSplitByTheKicker) {
    Board({"Kh", "Ks", "Kd", "Kc", "2c"});
    Hole(1, "Ah", "3d");
    Hole(2, "Qh", "Jc");
    Hole(3, "Qs", "4c");
    g.RankHands();
    EXPECT_EQ(g.SeatHandCode[1], 12);
    EXPECT_EQ(g.CompareShowdown(1, 2), 1);
    EXPECT_EQ(g.CompareShowdown(2, 1), -1);
    EXPECT_EQ(g.CompareShowdown(2, 3), 0);
}

TEST_F(Showdown, AFullHouseOnTheBoardIsBeatenByAHigherPocketPair) {
    Board({"Kh", "Ks", "Kd", "5c", "5h"});
    Hole(1, "9h", "9c");
    Hole(2, "7h", "7c");
    Hole(3, "2d", "3c");
    g.RankHands();
    for (int s = 1; s <= 3; ++s) EXPECT_EQ(g.SeatHandCode[s], 25) << s;
    EXPECT_EQ(g.CompareShowdown(1, 2), 1);
    EXPECT_EQ(g.CompareShowdown(2, 3), 1);
    EXPECT_EQ(g.CompareShowdown(3, 1), -1);
}

TEST_F(Showdown, StraightsOfOneHeightTieAndTheHigherWins) {
    Board({"5h", "6s", "7d", "8c", "9h"});
    Hole(1, "Ah", "2d");
    Hole(2, "Kc", "3s");
    Hole(3, "Td", "2c");
    g.RankHands();
    EXPECT_EQ(g.SeatHandCode[1], 43);
    EXPECT_EQ(g.SeatHandCode[2], 43);
    EXPECT_EQ(g.SeatHandCode[3], 42);
    EXPECT_EQ(g.CompareShowdown(1, 2), 0);
    EXPECT_EQ(g.CompareShowdown(3, 1), 1);
}

TEST_F(Showdown, FlushesCompareTheSuitedRanksAndSuitsNeverDecide) {
    Board({"2h", "7h", "9h", "Jh", "3c"});
    Hole(1, "Kh", "4c");
    Hole(2, "Qh", "Ac");
    Hole(3, "Kc", "Kd");
    g.RankHands();
    EXPECT_EQ(g.SeatHandCode[1], 37);
    EXPECT_EQ(g.SeatHandCode[2], 37);
    EXPECT_EQ(g.CompareShowdown(1, 2), 1);
    EXPECT_EQ(g.CompareShowdown(3, 2), -1);  // a pair of Kings against a flush

    Board({"Ah", "Kh", "Qd", "Jd", "4s"});
    Hole(4, "9c", "2s");
    Hole(5, "9d", "2h");
    g.RankHands();
    EXPECT_EQ(g.SeatHandCode[4], 199);
    EXPECT_EQ(g.CompareShowdown(4, 5), 0);
}

TEST_F(Showdown, LowerCodeWinsWhateverTheRanks) {
    Board({"Ah", "Kd", "8s", "4c", "2h"});
    Hole(1, "3d", "3s");  // pair of Threes
    Hole(2, "Qc", "Jd");  // Ace high
    g.RankHands();
    EXPECT_EQ(g.SeatHandCode[1], 150);
    EXPECT_EQ(g.SeatHandCode[2], 199);
    EXPECT_EQ(g.CompareShowdown(1, 2), 1);
    EXPECT_EQ(g.CompareShowdown(2, 1), -1);
}

}  // namespace
}  // namespace holdem
