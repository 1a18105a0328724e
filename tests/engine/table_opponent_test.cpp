#include <gtest/gtest.h>

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

// A shown table in the middle of a round: all eight seats in with $10,000
// (also at the background table), and the seat to act is seat 5.
class MoveTest : public ::testing::Test {
protected:
    void SetUp() override {
        g.SeatBet = {};
        g.SeatRaised = {};
        g.Pot = 0;
        g.StopHandTimers();
        g.view.lblBet[5].text.clear();
        g.view.lblPot.text.clear();
        for (int s = 1; s <= 8; ++s) {
            g.SeatInHand[s] = true;
            g.SeatBank[s] = 10000;
            g.TableBank[s] = 10000;
            g.view.icard[s].visible = g.view.icard[s + 8].visible = true;
            g.view.lblBank[s].text = "10,000";
        }
        g.PlayersInHand = 8;
    }

    void BeforeFlop(int call, int raise) {
        g.Street = 1;
        g.CardsKnown = 2;
        g.SeatBet[2] = 100;
        g.SeatBet[3] = 200;
        g.Pot = 300;
        g.HighBetIndex = 3;
        g.HighBetValue = 200;
        g.CallChance = static_cast<int16_t>(call);
        g.RaiseChance = static_cast<int16_t>(raise);
        g.EnableTimer(TimerBetHole);
    }

    void AfterFlop(int street, int call, int raise) {
        g.Street = static_cast<int16_t>(street);
        g.CardsKnown = static_cast<int16_t>(street + 3);
        g.HighBetIndex = 0;
        g.HighBetValue = 0;
        g.CallChance = static_cast<int16_t>(call);
        g.RaiseChance = static_cast<int16_t>(raise);
        g.EnableTimer(street == 2 ? TimerBetFlop : street == 3 ? TimerBetTurn : TimerBetRiver);
    }

    // Seat 3 has bet `amount` into seat 5.
    void FacingBet(int32_t amount) {
        g.SeatBet[3] = amount;
        g.Pot += amount;
        g.HighBetIndex = 3;
        g.HighBetValue = amount;
    }

    void Shown(const std::vector<float>& draws, bool beforeFlop) {
        g.rnd.Script(draws);
        if (beforeFlop)
            g.OpponentMoveBeforeFlop(5, false);
        else
            g.OpponentMoveAfterFlop(5, false);
        ExpectDrawsUsedUp();
    }
    void Background(const std::vector<float>& draws, bool beforeFlop) {
        g.rnd.Script(draws);
        if (beforeFlop)
            g.OpponentMoveBeforeFlop(5, true);
        else
            g.OpponentMoveAfterFlop(5, true);
        ExpectDrawsUsedUp();
    }
    void ExpectDrawsUsedUp() {
        EXPECT_EQ(g.rnd.Remaining(), 0u);
        EXPECT_EQ(g.rnd.Overdrawn(), 0);
    }
    const std::string& Words() const { return g.view.lblBet[5].text; }

    ScriptedPlatform p;
    Game g{p};
};

TEST_F(MoveTest, BeforeTheFlopASeatThatHasMatchedDoesNothing) {
    BeforeFlop(10, 0);
    g.SeatBet[5] = 200;
    g.view.lblBet[5].text = "Called $200";
    Shown({}, true);
    EXPECT_EQ(Words(), "Called $200");
    EXPECT_EQ(g.SeatBank[5], 10000.0f);
    EXPECT_TRUE(g.SeatInHand[5]);
}

TEST_F(MoveTest, BeforeTheFlopAFoldTakesOneDraw) {
    BeforeFlop(50, 5);
    Shown({0.51f}, true);
    EXPECT_EQ(Words(), "Folded");
    EXPECT_FALSE(g.SeatInHand[5]);
    EXPECT_EQ(g.PlayersInHand, 7);
    EXPECT_FALSE(g.view.icard[5].visible);
    EXPECT_FALSE(g.view.icard[13].visible);
    EXPECT_TRUE(g.view.icard[6].visible);
    EXPECT_EQ(g.Pot, 300);
    EXPECT_EQ(g.RunningTimer(), TimerBetHole);
}

TEST_F(MoveTest, BeforeTheFlopStayingAtExactlyTheCallChanceAndNotRaisingAtTheRaiseChance) {
    BeforeFlop(50, 5);
    Shown({0.5f, 0.05f}, true);
    EXPECT_EQ(Words(), "Called $200");
    EXPECT_EQ(g.SeatBank[5], 9800.0f);
    EXPECT_EQ(g.view.lblBank[5].text, "9,800");
    EXPECT_EQ(g.SeatBet[5], 200);
    EXPECT_EQ(g.Pot, 500);
    EXPECT_EQ(g.view.lblPot.text, "500");
    EXPECT_EQ(g.HighBetIndex, 3);
    EXPECT_FALSE(g.SeatRaised[5]);
}

TEST_F(MoveTest, BeforeTheFlopRaiseSizes) {
    struct Case {
        float x;
        int32_t to;
        const char* words;
    };
    for (const Case& c : {Case{kX1, 400, "Raised to $400"}, Case{kX8, 1800, "Raised to $1,800"},
                          Case{kX9, 2200, "Raised to $2,200"}, Case{kX10, 2200, "Raised to $2,200"}}) {
        SCOPED_TRACE(c.to);
        SetUp();
        g.SeatRaised[5] = false;
        g.SeatBet[5] = 0;
        BeforeFlop(50, 5);
        Shown({0.0f, 0.0f, c.x}, true);
        EXPECT_EQ(Words(), c.words);
        EXPECT_EQ(g.SeatBet[5], c.to);
        EXPECT_EQ(g.HighBetValue, c.to);
        EXPECT_EQ(g.HighBetIndex, 5);
        EXPECT_TRUE(g.SeatRaised[5]);
        EXPECT_EQ(g.SeatBank[5], 10000.0f - static_cast<float>(c.to));
    }
}

// (x * H + H - SeatBet) / 100 rounds half to even: with $150 in, 2.5 hundreds
// become 2.
TEST_F(MoveTest, BeforeTheFlopTheRaiseRoundsToHundredsHalfToEven) {
    BeforeFlop(50, 5);
    g.SeatBet[5] = 150;
    Shown({0.0f, 0.0f, kX1}, true);
    EXPECT_EQ(g.SeatBet[5], 350);
    EXPECT_EQ(Words(), "Raised to $350");
    EXPECT_EQ(g.SeatBank[5], 9800.0f);
}

TEST_F(MoveTest, BeforeTheFlopASeatThatHasRaisedMayOnlyCall) {
    BeforeFlop(50, 5);
    g.SeatRaised[5] = true;
    Shown({0.0f, 0.0f}, true);  // b is drawn and has no effect
    EXPECT_EQ(Words(), "Called $200");
    EXPECT_EQ(g.HighBetIndex, 3);
}

TEST_F(MoveTest, BeforeTheFlopAllInRaiseAndShortAllInCall) {
    BeforeFlop(50, 5);
    g.SeatBank[5] = 300;
    Shown({0.0f, 0.0f, kX10}, true);
    EXPECT_EQ(Words(), "Raised to $300 All In");
    EXPECT_EQ(g.HighBetValue, 300);
    EXPECT_EQ(g.HighBetIndex, 5);
    EXPECT_EQ(g.SeatBank[5], 0.0f);

    SetUp();
    g.SeatBet[5] = 0;
    BeforeFlop(50, 5);
    g.SeatBank[5] = 150;
    Shown({0.0f, 0.0f, kX10}, true);  // the raise is cut below H: a call
    EXPECT_EQ(Words(), "Called $150 All In");
    EXPECT_EQ(g.HighBetValue, 200);
    EXPECT_EQ(g.HighBetIndex, 3);
}

TEST_F(MoveTest, BeforeTheFlopASeatWithNoChipsCannotFold) {
    BeforeFlop(10, 0);
    g.SeatBank[5] = 0;
    Shown({0.99f}, true);
    EXPECT_EQ(Words(), "Checked");
    EXPECT_TRUE(g.SeatInHand[5]);
    EXPECT_EQ(g.PlayersInHand, 8);
}

TEST_F(MoveTest, TheLastFoldStartsTheHandOver) {
    BeforeFlop(10, 0);
    for (int s : {2, 3, 4, 6, 7, 8}) g.SeatInHand[s] = false;
    g.PlayersInHand = 2;
    Shown({0.5f}, true);
    EXPECT_EQ(Words(), "Folded");
    EXPECT_EQ(g.PlayersInHand, 1);
    EXPECT_EQ(g.RunningTimer(), TimerHandOver);

    SetUp();
    AfterFlop(3, 10, 0);
    FacingBet(500);
    for (int s : {2, 4, 6, 7, 8}) g.SeatInHand[s] = false;
    g.PlayersInHand = 2;
    Shown({0.5f}, false);
    EXPECT_EQ(Words(), "Folded");
    EXPECT_EQ(g.RunningTimer(), TimerHandOver);
}

TEST_F(MoveTest, AfterTheFlopWithNothingToCallOnlyTheRaiseChanceCounts) {
    AfterFlop(2, 100, 75);
    Shown({0.76f}, false);  // a monster checks one time in four
    EXPECT_EQ(Words(), "Checked");
    EXPECT_EQ(g.HighBetIndex, 5);
    EXPECT_TRUE(g.SeatInHand[5]);

    g.HighBetIndex = 2;
    Shown({0.99f}, false);
    EXPECT_EQ(g.HighBetIndex, 2);  // only the first check takes it
}

TEST_F(MoveTest, AfterTheFlopBetSizes) {
    struct Case {
        float share;
        int32_t bank;
        const char* words;
    };
    for (const Case& c : {Case{kShare20, 10000, "Bet $2,000"}, Case{kShare5, 10000, "Bet $500"},
                          Case{kShare100, 10000, "Bet $10,000 All In"},
                          Case{kShare100, 10070, "Bet $10,070 All In"},  // rounds up, the stack caps it
                          Case{kShare100, 10040, "Bet $10,000"}}) {
        SCOPED_TRACE(c.words);
        SetUp();
        g.SeatBank[5] = static_cast<float>(c.bank);
        g.SeatRaised[5] = false;
        AfterFlop(2, 80, 40);
        Shown({0.4f, c.share}, false);
        EXPECT_EQ(Words(), c.words);
        EXPECT_EQ(g.HighBetIndex, 5);
        EXPECT_EQ(g.HighBetValue, g.SeatBet[5]);
        EXPECT_TRUE(g.SeatRaised[5]);
    }
}

TEST_F(MoveTest, AfterTheFlopABetOverAStandingStakeReadsRaised) {
    AfterFlop(2, 80, 40);
    g.SeatBet[3] = g.SeatBet[5] = 400;
    g.HighBetValue = 400;
    g.HighBetIndex = 3;
    Shown({0.0f, kShare20}, false);
    EXPECT_EQ(Words(), "Raised to $2,400");
    EXPECT_EQ(g.HighBetValue, 2400);
}

// 5 percent of $500 is 0.25 hundreds: a check. On the flop the seat keeps its
// raise; on the turn and the river the drawn bet alone uses it up.
TEST_F(MoveTest, AfterTheFlopABetThatRoundsToNothingIsACheck) {
    for (int street : {2, 3, 4}) {
        SCOPED_TRACE(street);
        SetUp();
        g.SeatRaised[5] = false;
        g.SeatBank[5] = 500;
        AfterFlop(street, 80, 40);
        Shown({0.0f, kShare5}, false);
        EXPECT_EQ(Words(), "Checked");
        EXPECT_EQ(g.HighBetIndex, 5);
        EXPECT_EQ(g.SeatBank[5], 500.0f);
        EXPECT_EQ(g.SeatRaised[5], street != 2);
    }
}

TEST_F(MoveTest, AfterTheFlopASeatThatHasBetOrHasNoChipsChecks) {
    AfterFlop(3, 80, 40);
    g.SeatRaised[5] = true;
    Shown({0.0f}, false);
    EXPECT_EQ(Words(), "Checked");

    SetUp();
    AfterFlop(3, 80, 40);
    g.SeatRaised[5] = false;
    g.SeatBank[5] = 0;
    Shown({0.0f}, false);
    EXPECT_EQ(Words(), "Checked");
    EXPECT_EQ(g.HighBetIndex, 5);
}

TEST_F(MoveTest, AfterTheFlopFacingABet) {
    AfterFlop(2, 80, 40);
    FacingBet(1000);
    Shown({0.81f}, false);
    EXPECT_EQ(Words(), "Folded");
    EXPECT_FALSE(g.view.icard[13].visible);

    SetUp();
    AfterFlop(2, 80, 40);
    FacingBet(1000);
    Shown({0.8f, 0.4f}, false);
    EXPECT_EQ(Words(), "Called $1,000");
    EXPECT_EQ(g.SeatBank[5], 9000.0f);
    EXPECT_EQ(g.HighBetIndex, 3);

    // The call plus 20 percent of what the stack holds after calling.
    SetUp();
    AfterFlop(2, 80, 40);
    FacingBet(1000);
    Shown({0.0f, 0.0f, kShare20}, false);
    EXPECT_EQ(Words(), "Raised to $2,800");
    EXPECT_EQ(g.HighBetValue, 2800);
    EXPECT_EQ(g.HighBetIndex, 5);
    EXPECT_TRUE(g.SeatRaised[5]);
    EXPECT_EQ(g.view.lblPot.text, Money(g.Pot));
}

TEST_F(MoveTest, AfterTheFlopARaiseThatRoundsBackToTheCallStillCountsAsTheRaise) {
    AfterFlop(3, 80, 40);
    FacingBet(1000);
    g.SeatBank[5] = 1050;
    Shown({0.0f, 0.0f, kShare5}, false);  // (50 * 5% + 1000) / 100 = 10.025
    EXPECT_EQ(Words(), "Called $1,000");
    EXPECT_TRUE(g.SeatRaised[5]);
    EXPECT_EQ(g.HighBetIndex, 3);
}

TEST_F(MoveTest, AfterTheFlopAnAllInSeatFacingABetChecksWhateverItDrew) {
    AfterFlop(4, 80, 40);
    FacingBet(1000);
    g.SeatBank[5] = 0;
    Shown({0.0f, 0.0f, kShare100}, false);
    EXPECT_EQ(Words(), "Checked");
    EXPECT_TRUE(g.SeatInHand[5]);
    EXPECT_EQ(g.SeatBet[5], 0);
}

TEST_F(MoveTest, AfterTheFlopARaiseIsLimitedToOnePerStreet) {
    AfterFlop(2, 80, 40);
    FacingBet(1000);
    g.SeatRaised[5] = true;
    Shown({0.0f, 0.0f}, false);
    EXPECT_EQ(Words(), "Called $1,000");
}

// ---- The background table -----------------------------------------------------

TEST_F(MoveTest, InTheBackgroundTableBankPaysAndTheViewIsUntouched) {
    BeforeFlop(50, 5);
    g.SeatRaised[5] = true;  // no limit on raises in the background
    Background({0.0f, 0.0f, kX1}, true);
    EXPECT_EQ(g.TableBank[5], 9600);
    EXPECT_EQ(g.SeatBank[5], 10000.0f);
    EXPECT_EQ(g.SeatBet[5], 400);
    EXPECT_EQ(g.Pot, 700);
    EXPECT_EQ(g.HighBetValue, 400);
    EXPECT_EQ(g.HighBetIndex, 5);
    EXPECT_EQ(Words(), "");
    EXPECT_EQ(g.view.lblBank[5].text, "10,000");
    EXPECT_EQ(g.view.lblPot.text, "");
    EXPECT_EQ(g.view.lblHBI.text, "");
}

TEST_F(MoveTest, InTheBackgroundAFoldLeavesCardsAndTimersAlone) {
    BeforeFlop(10, 0);
    for (int s : {2, 3, 4, 6, 7, 8}) g.SeatInHand[s] = false;
    g.PlayersInHand = 2;
    Background({0.5f}, true);
    EXPECT_FALSE(g.SeatInHand[5]);
    EXPECT_EQ(g.PlayersInHand, 1);
    EXPECT_TRUE(g.view.icard[5].visible);
    EXPECT_EQ(g.RunningTimer(), TimerBetHole);
    EXPECT_EQ(Words(), "");

    SetUp();
    BeforeFlop(10, 0);
    g.TableBank[5] = 0;
    Background({0.5f}, true);  // no chips: cannot fold
    EXPECT_TRUE(g.SeatInHand[5]);
}

TEST_F(MoveTest, InTheBackgroundAShortCallLeavesTheHighBet) {
    BeforeFlop(50, 5);
    g.TableBank[5] = 150;
    Background({0.0f, 0.0f, kX10}, true);
    EXPECT_EQ(g.TableBank[5], 0);
    EXPECT_EQ(g.SeatBet[5], 150);
    EXPECT_EQ(g.HighBetValue, 200);
    EXPECT_EQ(g.HighBetIndex, 3);
}

// 15 percent of $3,000 is 4.5 hundreds in double precision, rounded to the
// even 4; in single precision 0.15f makes it 4.50000048 and so 5.
TEST_F(MoveTest, TheBetSizeIsDoublePrecisionInTheBackgroundAndSingleOnTheShownTable) {
    AfterFlop(2, 80, 40);
    g.TableBank[5] = 3000;
    Background({0.0f, kShare15}, false);
    EXPECT_EQ(g.SeatBet[5], 400);
    EXPECT_EQ(g.TableBank[5], 2600);
    EXPECT_EQ(g.HighBetValue, 400);
    EXPECT_EQ(g.HighBetIndex, 5);
    EXPECT_FALSE(g.SeatRaised[5]);

    SetUp();
    g.SeatBet[5] = 0;
    AfterFlop(2, 80, 40);
    g.SeatBank[5] = 3000;
    Shown({0.0f, kShare15}, false);
    EXPECT_EQ(Words(), "Bet $500");
}

TEST_F(MoveTest, InTheBackgroundTheNothingToCallBranchIgnoresTheRaiseMark) {
    AfterFlop(3, 80, 40);
    g.SeatRaised[5] = true;
    Background({0.0f, kShare20}, false);
    EXPECT_EQ(g.SeatBet[5], 2000);
    EXPECT_EQ(g.HighBetIndex, 5);

    // A seat with no chips still makes its draw, bets nothing and checks.
    SetUp();
    g.SeatBet[5] = 0;
    AfterFlop(3, 80, 40);
    g.SeatRaised[5] = false;
    g.TableBank[5] = 0;
    Background({0.0f}, false);
    EXPECT_EQ(g.HighBetIndex, 5);
    EXPECT_EQ(g.SeatBet[5], 0);
    EXPECT_FALSE(g.SeatRaised[5]);  // the turn's rule is the shown table's alone
}

TEST_F(MoveTest, InTheBackgroundASeatRaisesAgainFacingABet) {
    AfterFlop(2, 80, 40);
    FacingBet(1000);
    g.SeatRaised[5] = true;
    Background({0.0f, 0.0f, kShare20}, false);
    EXPECT_EQ(g.SeatBet[5], 2800);
    EXPECT_EQ(g.HighBetValue, 2800);
    EXPECT_EQ(g.HighBetIndex, 5);
    EXPECT_EQ(Words(), "");
}

}  // namespace
}  // namespace holdem
