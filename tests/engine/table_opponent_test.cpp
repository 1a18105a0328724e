#include <gtest/gtest.h>

#include <cctype>
#include <ostream>
#include <string>
#include <vector>

#include "engine/game_state.h"
#include "tests/support/scripted_platform.h"

namespace holdem {
namespace {

using test::ScriptedPlatform;

// Ranks 1 (Two) .. 13 (Ace); suit blocks 0..3.
constexpr int kTwo = 1, kThree = 2, kFour = 3, kFive = 4, kSix = 5, kSeven = 6, kEight = 7, kNine = 8,
              kTen = 9, kJack = 10, kQueen = 11, kKing = 12, kAce = 13;
int Card(int rank, int suit = 0) { return suit * 13 + rank; }

// Draws that give the size of a raise before the flop: x = Round(9r + 1).
constexpr float kX1 = 0.0f, kX8 = 0.78f, kX9 = 0.89f, kX10 = 0.95f;
// After the flop: x = Round(19r + 1); the share is 5x percent.
constexpr float kShare5 = 0.0f, kShare15 = 0.1f, kShare20 = 0.158f, kShare100 = 0.9f;

// ---- Classes of the hole cards ------------------------------------------------

class ClassifyTest : public ::testing::Test {
protected:
    int ClassOf(int first, int second) {
        g.SeatCards[4][1] = static_cast<int16_t>(first);
        g.SeatCards[4][2] = static_cast<int16_t>(second);
        g.ClassifyHoleCards();
        return g.StartingHandClass[4];
    }
    ScriptedPlatform p;
    Game g{p};
};

TEST_F(ClassifyTest, PairsSplitAtNines) {
    EXPECT_EQ(ClassOf(Card(kAce, 0), Card(kAce, 1)), 1);
    EXPECT_EQ(ClassOf(Card(kNine, 2), Card(kNine, 3)), 1);
    EXPECT_EQ(ClassOf(Card(kTen, 2), Card(kTen, 3)), 1);
    EXPECT_EQ(ClassOf(Card(kEight, 0), Card(kEight, 1)), 2);
    EXPECT_EQ(ClassOf(Card(kTwo, 0), Card(kTwo, 3)), 2);
}

TEST_F(ClassifyTest, TwoHighCardsJackAndUp) {
    EXPECT_EQ(ClassOf(Card(kJack, 1), Card(kQueen, 1)), 3);
    EXPECT_EQ(ClassOf(Card(kAce, 3), Card(kKing, 3)), 3);
    EXPECT_EQ(ClassOf(Card(kKing, 0), Card(kJack, 2)), 4);
}

TEST_F(ClassifyTest, TheOrderOfTheCardsCounts) {
    EXPECT_EQ(ClassOf(Card(kAce, 0), Card(kFour, 1)), 5);  // high first, any suits
    EXPECT_EQ(ClassOf(Card(kAce, 0), Card(kFour, 0)), 5);
    EXPECT_EQ(ClassOf(Card(kFour, 1), Card(kAce, 0)), 6);  // low first, unsuited
    EXPECT_EQ(ClassOf(Card(kFour, 0), Card(kAce, 0)), 5);  // low first, suited
    // A Ten is low.
    EXPECT_EQ(ClassOf(Card(kTen, 2), Card(kAce, 1)), 6);
    EXPECT_EQ(ClassOf(Card(kAce, 1), Card(kTen, 2)), 5);
    EXPECT_EQ(ClassOf(Card(kTen, 2), Card(kJack, 2)), 5);
}

TEST_F(ClassifyTest, TwoLowCards) {
    EXPECT_EQ(ClassOf(Card(kTen, 1), Card(kNine, 1)), 7);
    EXPECT_EQ(ClassOf(Card(kSeven, 1), Card(kTwo, 1)), 7);
    EXPECT_EQ(ClassOf(Card(kTen, 1), Card(kNine, 2)), 8);
    // Block edges: 13 is an Ace of the first block, 14 a Two of the next.
    EXPECT_EQ(ClassOf(13, 14), 5);
    EXPECT_EQ(ClassOf(14, 27), 2);
}

TEST_F(ClassifyTest, EverySeatIsClassifiedInTheHandOrNot) {
    for (int s = 1; s <= 8; ++s) {
        g.SeatCards[s][1] = static_cast<int16_t>(Card(kSeven, 0));
        g.SeatCards[s][2] = static_cast<int16_t>(Card(kSeven + (s % 2 ? 0 : 6), 1));
        g.StartingHandClass[s] = 9;
    }
    g.ClassifyHoleCards();
    for (int s = 1; s <= 8; ++s) EXPECT_EQ(g.StartingHandClass[s], s % 2 ? 2 : 6) << s;
}

// ---- RateHand -----------------------------------------------------------------

class RateHandTest : public ::testing::Test {
protected:
    // Rates seat 3 holding `first` and `second` with the made hand `code`.
    std::pair<int, int> Rate(int code, int first = Card(kTwo, 3), int second = Card(kThree, 2)) {
        g.CardsKnown = 6;
        g.SeatCards[3][1] = static_cast<int16_t>(first);
        g.SeatCards[3][2] = static_cast<int16_t>(second);
        g.SeatHandCode[3] = static_cast<int16_t>(code);
        g.RateHand(3);
        return {g.CallChance, g.RaiseChance};
    }
    using Pair = std::pair<int, int>;
    ScriptedPlatform p;
    Game g{p};
};

TEST_F(RateHandTest, BeforeTheFlopTheClassDecides) {
    const Pair expected[9] = {{}, {90, 25}, {75, 20}, {65, 10}, {55, 5}, {50, 5}, {40, 5}, {30, 0}, {10, 0}};
    g.CardsKnown = 2;
    g.SeatHandCode[6] = 1;  // the made hand plays no part before the flop
    for (int cls = 1; cls <= 8; ++cls) {
        g.StartingHandClass[6] = static_cast<int16_t>(cls);
        g.RateHand(6);
        EXPECT_EQ(Pair(g.CallChance, g.RaiseChance), expected[cls]) << cls;
    }
}

TEST_F(RateHandTest, MadeHandsThatDoNotCountHoleCards) {
    const std::vector<std::pair<int, Pair>> rows = {
        {1, {100, 75}},  {27, {100, 75}}, {28, {95, 60}},  {31, {95, 60}}, {32, {90, 50}}, {36, {90, 50}},
        {37, {80, 40}},  {38, {75, 35}},  {41, {75, 35}},  {42, {70, 30}}, {47, {70, 30}}, {152, {70, 20}},
        {153, {65, 15}}, {154, {50, 10}}, {162, {50, 10}}, {163, {10, 0}}, {199, {10, 0}}, {200, {10, 0}},
    };
    for (const auto& [code, chances] : rows) EXPECT_EQ(Rate(code), chances) << code;
    // With both hole cards in the hand it makes no difference either.
    EXPECT_EQ(Rate(37, Card(kAce, 1), Card(kKing, 1)), Pair(80, 40));
}

TEST_F(RateHandTest, ThreeOfAKindCountsTheHoleCardsOfItsRank) {
    EXPECT_EQ(Rate(48, Card(kAce, 0), Card(kAce, 1)), Pair(90, 40));
    EXPECT_EQ(Rate(48, Card(kAce, 0), Card(kNine, 1)), Pair(80, 30));
    EXPECT_EQ(Rate(48, Card(kKing, 0), Card(kNine, 1)), Pair(60, 15));
    EXPECT_EQ(Rate(52, Card(kFive, 0), Card(kTen, 1)), Pair(80, 30));
    EXPECT_EQ(Rate(53, Card(kNine, 0), Card(kNine, 1)), Pair(85, 35));
    EXPECT_EQ(Rate(55, Card(kSeven, 2), Card(kTwo, 1)), Pair(70, 25));
    EXPECT_EQ(Rate(55, Card(kEight, 2), Card(kTwo, 1)), Pair(50, 10));
    EXPECT_EQ(Rate(56, Card(kSix, 2), Card(kTwo, 1)), Pair(65, 25));
    EXPECT_EQ(Rate(60, Card(kTwo, 2), Card(kTwo, 1)), Pair(80, 30));
}

TEST_F(RateHandTest, TwoPairSumsTheHoleCardsOfBothRanks) {
    EXPECT_EQ(Rate(61, Card(kAce, 0), Card(kKing, 1)), Pair(80, 30));
    EXPECT_EQ(Rate(61, Card(kKing, 0), Card(kNine, 1)), Pair(65, 25));
    EXPECT_EQ(Rate(61, Card(kQueen, 0), Card(kNine, 1)), Pair(50, 10));
    EXPECT_EQ(Rate(138, Card(kThree, 0), Card(kThree, 1)), Pair(80, 30));

    // Each block of codes by its low rank: one hole card of it gives h of 1,
    // one of the rank just below gives 0.
    struct Code {
        int code, high, low;
    };
    const Code codes[] = {
        {61, kAce, kKing},     {72, kAce, kTwo},    {73, kKing, kQueen},  {83, kKing, kTwo},
        {84, kQueen, kJack},   {93, kQueen, kTwo},  {94, kJack, kTen},    {102, kJack, kTwo},
        {103, kTen, kNine},    {110, kTen, kTwo},   {111, kNine, kEight}, {117, kNine, kTwo},
        {118, kEight, kSeven}, {123, kEight, kTwo}, {124, kSeven, kSix},  {128, kSeven, kTwo},
        {129, kSix, kFive},    {132, kSix, kTwo},   {133, kFive, kFour},  {135, kFive, kTwo},
        {136, kFour, kThree},  {137, kFour, kTwo},  {138, kThree, kTwo},
    };
    for (const Code& c : codes) {
        SCOPED_TRACE(c.code);
        int other = c.low == kTwo ? c.high - 1 : c.low - 1;  // a rank of neither pair
        if (other == c.low) other = c.high + 1;
        EXPECT_EQ(Rate(c.code, Card(c.low, 1), Card(other, 2)), Pair(65, 25));
        EXPECT_EQ(Rate(c.code, Card(c.high, 1), Card(other, 2)), Pair(65, 25));
        EXPECT_EQ(Rate(c.code, Card(other, 1), Card(other, 2)), Pair(50, 10));
        EXPECT_EQ(Rate(c.code, Card(c.high, 0), Card(c.low, 3)), Pair(80, 30));
    }
}

TEST_F(RateHandTest, OnePairByItsRankAndItsHoleCards) {
    EXPECT_EQ(Rate(139, Card(kAce, 0), Card(kAce, 1)), Pair(95, 45));
    EXPECT_EQ(Rate(139, Card(kAce, 0), Card(kTwo, 1)), Pair(85, 30));
    EXPECT_EQ(Rate(139, Card(kKing, 0), Card(kTwo, 1)), Pair(50, 10));
    // One King in the hole rates below one Queen.
    EXPECT_EQ(Rate(140, Card(kKing, 0), Card(kTwo, 1)), Pair(80, 30));
    EXPECT_EQ(Rate(140, Card(kKing, 0), Card(kKing, 1)), Pair(95, 45));
    EXPECT_EQ(Rate(141, Card(kQueen, 0), Card(kTwo, 1)), Pair(85, 30));
    EXPECT_EQ(Rate(143, Card(kTen, 0), Card(kTen, 1)), Pair(90, 40));
    EXPECT_EQ(Rate(143, Card(kNine, 0), Card(kNine, 1)), Pair(50, 10));  // a board pair of Tens
    EXPECT_EQ(Rate(144, Card(kTwo, 0), Card(kNine, 1)), Pair(70, 20));
    EXPECT_EQ(Rate(146, Card(kAce, 0), Card(kKing, 1)), Pair(40, 10));
    EXPECT_EQ(Rate(147, Card(kSix, 0), Card(kSix, 2)), Pair(70, 30));
    EXPECT_EQ(Rate(151, Card(kTwo, 0), Card(kAce, 2)), Pair(60, 20));
    EXPECT_EQ(Rate(151, Card(kThree, 0), Card(kAce, 2)), Pair(40, 10));
}

// ---- The move -----------------------------------------------------------------

// Seat 5 moves; seat 3 holds the high bet when there is one. Every other seat
// is in with $10,000. Draws are percentages 100 * r, x draws as above.
struct MoveCase {
    const char* name;
    int street;  // 1 before the flop, 2 flop, 3 turn, 4 river
    bool background;
    int16_t call, raise;
    int32_t bank, stake, high;  // seat 5's stack and stake, HighBetValue
    bool raised;                // SeatRaised[5] before the move
    std::vector<float> draws;
    const char* words;  // lblBet(5) on the shown table
    int32_t stakeAfter, highAfter;
    int highIndexAfter;
    bool raisedAfter, inHandAfter;
};

void PrintTo(const MoveCase& c, std::ostream* os) { *os << c.name; }

// clang-format off
const MoveCase kMoves[] = {
    // name, street, background, call, raise, bank, stake, high, raised, draws,
    //   words, stake after, high after, high index after, raised after, in hand after

    // Before the flop, facing the large blind of $200.
    {"matched: no draw", 1, false, 10, 0, 10000, 200, 200, false, {},
     "", 200, 200, 3, false, true},
    {"fold", 1, false, 50, 5, 10000, 0, 200, false, {0.51f},
     "Folded", 0, 200, 3, false, false},
    {"stay at exactly CallChance, no raise at RaiseChance", 1, false, 50, 5, 10000, 0, 200, false, {0.5f, 0.05f},
     "Called $200", 200, 200, 3, false, true},
    {"x 1", 1, false, 50, 5, 10000, 0, 200, false, {0, 0, kX1},
     "Raised to $400", 400, 400, 5, true, true},
    {"x 8", 1, false, 50, 5, 10000, 0, 200, false, {0, 0, kX8},
     "Raised to $1,800", 1800, 1800, 5, true, true},
    {"x 9 is 10", 1, false, 50, 5, 10000, 0, 200, false, {0, 0, kX9},
     "Raised to $2,200", 2200, 2200, 5, true, true},
    {"x 10", 1, false, 50, 5, 10000, 0, 200, false, {0, 0, kX10},
     "Raised to $2,200", 2200, 2200, 5, true, true},
    {"2.5 hundreds round to 2", 1, false, 50, 5, 10000, 150, 200, false, {0, 0, kX1},
     "Raised to $350", 350, 350, 5, true, true},
    {"one raise a street", 1, false, 50, 5, 10000, 0, 200, true, {0, 0},
     "Called $200", 200, 200, 3, true, true},
    {"all-in raise", 1, false, 50, 5, 300, 0, 200, false, {0, 0, kX10},
     "Raised to $300 All In", 300, 300, 5, true, true},
    {"raise cut below H: short call", 1, false, 50, 5, 150, 0, 200, false, {0, 0, kX10},
     "Called $150 All In", 150, 200, 3, true, true},
    {"no chips cannot fold", 1, false, 10, 0, 0, 0, 200, false, {0.99f},
     "Checked", 0, 200, 3, false, true},
    {"background raises without limit", 1, true, 50, 5, 10000, 0, 200, true, {0, 0, kX1},
     "", 400, 400, 5, true, true},
    {"background marks no raise", 1, true, 50, 5, 10000, 0, 200, false, {0, 0, kX1},
     "", 400, 400, 5, false, true},
    {"background short call", 1, true, 50, 5, 150, 0, 200, false, {0, 0, kX10},
     "", 150, 200, 3, false, true},
    {"background fold", 1, true, 10, 0, 10000, 0, 200, false, {0.5f},
     "", 0, 200, 3, false, false},
    {"background no chips", 1, true, 10, 0, 0, 0, 200, false, {0.5f},
     "", 0, 200, 3, false, true},

    // After the flop with nothing to call: only RaiseChance counts.
    {"monster checks", 2, false, 100, 75, 10000, 0, 0, false, {0.76f},
     "Checked", 0, 0, 5, false, true},
    {"later check keeps HighBetIndex", 2, false, 80, 40, 10000, 400, 400, false, {0.99f},
     "Checked", 400, 400, 3, false, true},
    {"bet 20%", 2, false, 80, 40, 10000, 0, 0, false, {0.4f, kShare20},
     "Bet $2,000", 2000, 2000, 5, true, true},
    {"bet 5%", 2, false, 80, 40, 10000, 0, 0, false, {0, kShare5},
     "Bet $500", 500, 500, 5, true, true},
    {"x above 16: the stack", 2, false, 80, 40, 10000, 0, 0, false, {0, kShare100},
     "Bet $10,000 All In", 10000, 10000, 5, true, true},
    {"stack rounded up, then capped", 2, false, 80, 40, 10070, 0, 0, false, {0, kShare100},
     "Bet $10,070 All In", 10070, 10070, 5, true, true},
    {"stack rounded down", 2, false, 80, 40, 10040, 0, 0, false, {0, kShare100},
     "Bet $10,000", 10000, 10000, 5, true, true},
    {"bet over a standing stake", 2, false, 80, 40, 10000, 400, 400, false, {0, kShare20},
     "Raised to $2,400", 2400, 2400, 5, true, true},
    {"flop: bet rounding to 0 is a check", 2, false, 80, 40, 500, 0, 0, false, {0, kShare5},
     "Checked", 0, 0, 5, false, true},
    {"turn: the drawn bet marks the raise", 3, false, 80, 40, 500, 0, 0, false, {0, kShare5},
     "Checked", 0, 0, 5, true, true},
    {"river: the same", 4, false, 80, 40, 500, 0, 0, false, {0, kShare5},
     "Checked", 0, 0, 5, true, true},
    {"has bet this street", 3, false, 80, 40, 10000, 0, 0, true, {0},
     "Checked", 0, 0, 5, true, true},
    {"no chips", 3, false, 80, 40, 0, 0, 0, false, {0},
     "Checked", 0, 0, 5, false, true},
    {"15% of $3,000 in single precision", 2, false, 80, 40, 3000, 0, 0, false, {0, kShare15},
     "Bet $500", 500, 500, 5, true, true},
    {"background: the same in double precision", 2, true, 80, 40, 3000, 0, 0, false, {0, kShare15},
     "", 400, 400, 5, false, true},
    {"background ignores the raise mark", 3, true, 80, 40, 10000, 0, 0, true, {0, kShare20},
     "", 2000, 2000, 5, true, true},
    {"background no chips still draws", 3, true, 80, 40, 0, 0, 0, false, {0},
     "", 0, 0, 5, false, true},
    {"background bet rounding to 0", 3, true, 80, 40, 500, 0, 0, false, {0, kShare5},
     "", 0, 0, 5, false, true},

    // After the flop facing a bet of $1,000.
    {"fold", 2, false, 80, 40, 10000, 0, 1000, false, {0.81f},
     "Folded", 0, 1000, 3, false, false},
    {"call", 2, false, 80, 40, 10000, 0, 1000, false, {0.8f, 0.4f},
     "Called $1,000", 1000, 1000, 3, false, true},
    {"raise: call plus 20% of the rest", 2, false, 80, 40, 10000, 0, 1000, false, {0, 0, kShare20},
     "Raised to $2,800", 2800, 2800, 5, true, true},
    {"raise rounding back to the call", 3, false, 80, 40, 1050, 0, 1000, false, {0, 0, kShare5},
     "Called $1,000", 1000, 1000, 3, true, true},
    {"all in: checked whatever it drew", 4, false, 80, 40, 0, 0, 1000, false, {0, 0, kShare100},
     "Checked", 0, 1000, 3, true, true},
    {"one raise a street", 2, false, 80, 40, 10000, 0, 1000, true, {0, 0},
     "Called $1,000", 1000, 1000, 3, true, true},
    {"background raises again", 2, true, 80, 40, 10000, 0, 1000, true, {0, 0, kShare20},
     "", 2800, 2800, 5, true, true},
};
// clang-format on

class MoveTest : public ::testing::TestWithParam<MoveCase> {
protected:
    // Sets the table for the case; returns the pot before the move.
    int32_t Arrange(const MoveCase& c) {
        for (int s = 1; s <= 8; ++s) {
            g.SeatInHand[s] = true;
            g.SeatBank[s] = 10000;
            g.TableBank[s] = 10000;
            g.view.icard[s].visible = g.view.icard[s + 8].visible = true;
        }
        g.PlayersInHand = 8;
        g.Street = static_cast<int16_t>(c.street);
        g.CardsKnown = static_cast<int16_t>(c.street == 1 ? 2 : c.street + 3);
        g.CallChance = c.call;
        g.RaiseChance = c.raise;
        if (c.background)
            g.TableBank[5] = c.bank;
        else
            g.SeatBank[5] = static_cast<float>(c.bank);
        g.SeatRaised[5] = c.raised;
        g.SeatBet[5] = c.stake;
        g.SeatBet[3] = c.high;
        g.HighBetValue = c.high;
        g.HighBetIndex = static_cast<int16_t>(c.high > 0 ? 3 : 0);
        g.Pot = c.stake + c.high;
        g.view.lblBank[5].text = "before";
        g.EnableTimer(c.street == 1 ? TimerBetHole : TimerBetFlop);
        return g.Pot;
    }

    ScriptedPlatform p;
    Game g{p};
};

TEST_P(MoveTest, Outcome) {
    const MoveCase& c = GetParam();
    int32_t pot = Arrange(c);
    g.rnd.Script(c.draws);
    if (c.street == 1)
        g.OpponentMoveBeforeFlop(5, c.background);
    else
        g.OpponentMoveAfterFlop(5, c.background);

    EXPECT_EQ(g.rnd.Remaining(), 0u);
    EXPECT_EQ(g.rnd.Overdrawn(), 0);
    int32_t paid = c.stakeAfter - c.stake;
    EXPECT_EQ(g.SeatBet[5], c.stakeAfter);
    EXPECT_EQ(g.Pot, pot + paid);
    EXPECT_EQ(g.HighBetValue, c.highAfter);
    EXPECT_EQ(g.HighBetIndex, c.highIndexAfter);
    EXPECT_EQ(g.SeatRaised[5], c.raisedAfter);
    EXPECT_EQ(g.SeatInHand[5], c.inHandAfter);
    EXPECT_EQ(g.PlayersInHand, c.inHandAfter ? 8 : 7);
    EXPECT_EQ(g.view.lblBet[5].text, c.words);
    EXPECT_EQ(g.RunningTimer(), c.street == 1 ? TimerBetHole : TimerBetFlop);
    if (c.background) {
        EXPECT_EQ(g.TableBank[5], c.bank - paid);
        EXPECT_EQ(g.SeatBank[5], 10000.0f);
        EXPECT_EQ(g.view.lblBank[5].text, "before");
        EXPECT_EQ(g.view.lblPot.text, "");
        EXPECT_EQ(g.view.lblHBI.text, "");
        EXPECT_TRUE(g.view.icard[5].visible);
    } else {
        EXPECT_EQ(g.SeatBank[5], static_cast<float>(c.bank - paid));
        if (c.draws.empty()) {
            EXPECT_EQ(g.view.lblBank[5].text, "before");  // no chips, no words
        } else {
            EXPECT_EQ(g.view.lblBank[5].text, Money(c.bank - paid));
            EXPECT_EQ(g.view.lblPot.text, Money(pot + paid));
        }
        EXPECT_EQ(g.view.icard[5].visible, c.inHandAfter);
        EXPECT_EQ(g.view.icard[13].visible, c.inHandAfter);
        EXPECT_TRUE(g.view.icard[6].visible);
    }
}

INSTANTIATE_TEST_SUITE_P(Table, MoveTest, ::testing::ValuesIn(kMoves),
                         [](const ::testing::TestParamInfo<MoveCase>& info) {
                             std::string name = std::to_string(info.index) + "_";
                             for (const char* c = info.param.name; *c; ++c)
                                 name += std::isalnum(static_cast<unsigned char>(*c)) ? *c : '_';
                             return name;
                         });

// A fold by the last opponent with the user still in ends the hand at once on
// the shown table, before the flop and after it; a background fold does not.
TEST(OpponentFold, TheLastFoldStartsTheHandOverOnTheShownTableOnly) {
    for (int street : {1, 3}) {
        for (bool background : {false, true}) {
            SCOPED_TRACE(street * 10 + background);
            ScriptedPlatform p;
            Game g(p);
            g.SeatInHand[1] = g.SeatInHand[5] = true;
            g.SeatBank[5] = 4000;
            g.TableBank[5] = 4000;
            g.PlayersInHand = 2;
            g.Street = static_cast<int16_t>(street);
            g.SeatBet[1] = 600;
            g.HighBetIndex = 1;
            g.HighBetValue = 600;
            g.CallChance = 10;
            TimerId bet = street == 1 ? TimerBetHole : TimerBetTurn;
            g.EnableTimer(bet);
            g.rnd.Script({0.5f});
            if (street == 1)
                g.OpponentMoveBeforeFlop(5, background);
            else
                g.OpponentMoveAfterFlop(5, background);
            EXPECT_EQ(g.PlayersInHand, 1);
            EXPECT_EQ(g.RunningTimer(), background ? bet : TimerHandOver);
        }
    }
}

}  // namespace
}  // namespace holdem
