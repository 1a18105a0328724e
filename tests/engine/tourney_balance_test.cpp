#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "engine/game_state.h"
#include "tests/support/scripted_platform.h"

namespace holdem {
namespace {

using test::ScriptedPlatform;

// A tournament roster with counts[t - 1] players in the lowest seats of table
// t. Every position up to the size holds a record with its own number, so the
// roster can be checked to stay a permutation; the empty ones are busted
// players with a place. RosterTag marks the position itself.
void SeatField(Game& g, const std::vector<int>& counts, int size) {
    g.TournamentSize = static_cast<int16_t>(size);
    int16_t place = static_cast<int16_t>(size);
    for (int p = 1; p <= size; ++p) {
        int t = TableOf(p);
        int seat = (p - 1) % kSeats + 1;
        bool in = t <= static_cast<int>(counts.size()) && seat <= counts[t - 1];
        g.RosterNumber[p] = static_cast<int16_t>(p);
        g.RosterName[p] = "Player " + std::to_string(p);
        g.RosterBank[p] = in ? 10000 + p : 0;
        g.RosterPlace[p] = in ? 0 : place--;
        g.RosterTag[p] = static_cast<int16_t>(p % 7);
    }
}

// Brings the record at a position back into play with its chips.
void SeatPlayer(Game& g, int pos) {
    g.RosterBank[pos] = 10000 + g.RosterNumber[pos];
    g.RosterPlace[pos] = 0;
}

std::vector<int> TableCounts(const Game& g, int tables) {
    std::vector<int> counts(tables, 0);
    for (int p = 1; p <= tables * kSeats; ++p)
        if (g.RosterBank[p] > 0) ++counts[TableOf(p) - 1];
    return counts;
}

// Every record is still in the roster exactly once, each with its own name,
// chips and place, and the tags have not moved.
void ExpectPermutation(const Game& g, int size) {
    std::vector<int> seen(size + 1, 0);
    for (int p = 1; p <= size; ++p) {
        int n = g.RosterNumber[p];
        ASSERT_GE(n, 1);
        ASSERT_LE(n, size);
        ++seen[n];
        EXPECT_EQ(g.RosterName[p], "Player " + std::to_string(n));
        EXPECT_EQ(g.RosterTag[p], p % 7) << "tag moved at " << p;
        if (g.RosterBank[p] > 0) {
            EXPECT_EQ(g.RosterBank[p], 10000 + n);
            EXPECT_EQ(g.RosterPlace[p], 0);
        } else {
            EXPECT_GT(g.RosterPlace[p], 0);
        }
    }
    for (int n = 1; n <= size; ++n) EXPECT_EQ(seen[n], 1) << "number " << n;
    for (int p = size + 1; p <= kRoster; ++p) {
        EXPECT_EQ(g.RosterBank[p], 0);
        EXPECT_EQ(g.RosterNumber[p], 0);
        EXPECT_TRUE(g.RosterName[p].empty());
    }
    EXPECT_EQ(g.RosterNumber[1], 1) << "the user moved";
}

struct Outcome {
    std::vector<int> before, after;
    const char* sound;  // nullptr for silence
    bool finalTable;
};

void PrintTo(const Outcome& o, std::ostream* os) {
    for (int c : o.before) *os << c << ' ';
    *os << "->";
    for (int c : o.after) *os << ' ' << c;
}

class BalanceOutcomes : public ::testing::TestWithParam<Outcome> {};

TEST_P(BalanceOutcomes, EndsAsTheTableSays) {
    const Outcome& o = GetParam();
    ScriptedPlatform p;
    Game g(p);
    SeatField(g, o.before, 80);
    g.view.lblGoodLuck.text = "Good Luck!";

    g.BalanceTables();

    EXPECT_EQ(TableCounts(g, static_cast<int>(o.before.size())), o.after);
    int left = 0;
    for (int c : o.before) left += c;
    EXPECT_EQ(g.PlayersLeft, left);
    int tables = 0;
    for (int c : o.after) tables += c > 0 ? 1 : 0;
    EXPECT_EQ(g.TablesInPlay, tables);
    EXPECT_EQ(g.view.lblGoodLuck.text, o.finalTable ? "Final Table!" : "Good Luck!");
    if (o.sound)
        EXPECT_EQ(p.sounds, std::vector<std::string>{o.sound});
    else
        EXPECT_TRUE(p.sounds.empty());
    ExpectPermutation(g, 80);
}

// 3,3,3 and 5,4 shuttle for all 100 passes: an odd number would leave the
// nine players the other way round (4,5 with "MOVED" and 4,5 with silence).
INSTANTIATE_TEST_SUITE_P(
    Rows, BalanceOutcomes,
    ::testing::Values(
        Outcome{{8, 8, 8}, {8, 8, 8}, nullptr, false}, Outcome{{8, 6}, {8, 6}, nullptr, false},
        Outcome{{6, 5, 5}, {6, 5, 5}, nullptr, false}, Outcome{{7, 4}, {6, 5}, nullptr, false},
        Outcome{{6, 6, 4}, {8, 8, 0}, "TWOMOVED", false}, Outcome{{8, 8, 3}, {7, 6, 6}, nullptr, false},
        Outcome{{4, 4}, {8, 0}, "FOURMOVED", true}, Outcome{{1, 7}, {8, 0}, nullptr, true},
        Outcome{{2, 2, 2, 2}, {8, 0, 0, 0}, "SIXMOVED", true},
        Outcome{{3, 3, 3}, {5, 4, 0}, "TWOMOVED", false}, Outcome{{5, 4}, {5, 4}, nullptr, false},
        Outcome{{4, 5}, {4, 5}, nullptr, false}, Outcome{{6, 3}, {4, 5}, nullptr, false},
        Outcome{{5, 5}, {5, 5}, nullptr, false}, Outcome{{6, 5}, {6, 5}, nullptr, false},
        Outcome{{3, 2, 1}, {6, 0, 0}, "THREEMOVED", true}, Outcome{{7, 1}, {8, 0}, "MOVED", true}));

TEST(Balance, SingleTableGameIsLeftAlone) {
    ScriptedPlatform p;
    Game g(p);
    SeatField(g, {3}, 8);
    g.PlayersLeft = 99;
    g.TablesInPlay = 7;
    g.view.lblGoodLuck.text = "Good Luck!";
    g.BalanceTables();
    EXPECT_EQ(g.PlayersLeft, 99);
    EXPECT_EQ(g.TablesInPlay, 7);
    EXPECT_EQ(g.view.lblGoodLuck.text, "Good Luck!");
}

TEST(Balance, SingleMoveTakesLowestSeatOfFullestToLowestFreeSeatOfThinnest) {
    ScriptedPlatform p;
    Game g(p);
    SeatField(g, {7, 4}, 80);
    g.BalanceTables();
    // Table 1 is the fullest; position 1 is passed over, so seat 2 goes to
    // table 2 seat 5, and the busted record of position 13 comes to position 2.
    EXPECT_EQ(g.RosterNumber[2], 13);
    EXPECT_EQ(g.RosterBank[2], 0);
    EXPECT_EQ(g.RosterNumber[13], 2);
    EXPECT_EQ(g.RosterBank[13], 10002);
    EXPECT_EQ(g.RosterNumber[1], 1);
}

TEST(Balance, EqualTablesGiveHighestAsFullestAndLowestAsEmptiest) {
    ScriptedPlatform p;
    Game g(p);
    // 8, 8, 3: table 2 gives first (highest of the two full), to table 3.
    SeatField(g, {8, 8, 3}, 80);
    g.BalanceTables();
    EXPECT_EQ(g.RosterNumber[20], 9);  // table 3 seat 4 took table 2 seat 1
    EXPECT_EQ(g.RosterNumber[9], 20);
    // Then table 1 (8 against 7) gives its seat 2 to table 3 seat 5.
    EXPECT_EQ(g.RosterNumber[21], 2);
    // Then table 2 again (7, 7, 5): its lowest seat with chips is now seat 2.
    EXPECT_EQ(g.RosterNumber[22], 10);
}

TEST(Balance, BreakUpTakesTheHighestTableNotTheSmallest) {
    ScriptedPlatform p;
    Game g(p);
    SeatField(g, {5, 3, 8}, 80);
    g.BalanceTables();
    EXPECT_EQ(TableCounts(g, 3), (std::vector<int>{8, 8, 0}));
    // Table 3's eight fill table 1 seats 6..8 first, then table 2 seats 4..8.
    for (int seat = 1; seat <= 3; ++seat) EXPECT_EQ(g.RosterNumber[5 + seat], 16 + seat);
    for (int seat = 4; seat <= 8; ++seat) EXPECT_EQ(g.RosterNumber[8 + seat], 16 + seat);
    EXPECT_EQ(p.sounds, std::vector<std::string>{"THREEMOVED"});
    ExpectPermutation(g, 80);
}

TEST(Balance, TwoTablesBecomeOneWithinSeatsTwoToEight) {
    ScriptedPlatform p;
    Game g(p);
    // Players in the high seats of table 2 land in the first free seats of table 1.
    SeatField(g, {0, 0}, 80);
    for (int pos : {1, 3, 5, 14, 15, 16}) SeatPlayer(g, pos);
    g.BalanceTables();
    EXPECT_EQ(g.RosterNumber[2], 14);
    EXPECT_EQ(g.RosterNumber[4], 15);
    EXPECT_EQ(g.RosterNumber[6], 16);
    EXPECT_EQ(g.TablesInPlay, 1);
    EXPECT_EQ(g.view.lblGoodLuck.text, "Final Table!");
    EXPECT_EQ(p.sounds, std::vector<std::string>{"THREEMOVED"});
}

TEST(Balance, ThinTableFillsFromSeatTwoUp) {
    ScriptedPlatform p;
    Game g(p);
    SeatField(g, {0, 0}, 80);
    for (int pos : {1, 7, 8, 9, 10, 11, 12, 13, 14, 15}) SeatPlayer(g, pos);
    // 3 against 7, ten players: two moves from table 2 into seats 2 and 3.
    g.BalanceTables();
    EXPECT_EQ(g.RosterNumber[1], 1);
    EXPECT_EQ(TableCounts(g, 2), (std::vector<int>{5, 5}));
    EXPECT_EQ(g.RosterNumber[2], 9);
    EXPECT_EQ(g.RosterNumber[3], 10);
    EXPECT_EQ(p.sounds, std::vector<std::string>{"TWOMOVED"});
}

TEST(Balance, PositionOneIsNeverATarget) {
    ScriptedPlatform p;
    Game g(p);
    // Even an empty position 1 (a user out, as in an opened finished game)
    // receives nobody: the first free seat above it does.
    SeatField(g, {0, 8}, 80);
    for (int pos : {2, 3, 4}) SeatPlayer(g, pos);
    g.BalanceTables();
    EXPECT_EQ(g.RosterNumber[1], 1);
    EXPECT_EQ(g.RosterBank[1], 0);
    EXPECT_EQ(g.RosterNumber[5], 9);
    EXPECT_EQ(TableCounts(g, 2), (std::vector<int>{5, 6}));
}

TEST(Balance, SoundOffMovesInSilence) {
    ScriptedPlatform p;
    Game g(p);
    SeatField(g, {4, 4}, 80);
    g.view.mnuSound.checked = false;
    g.BalanceTables();
    EXPECT_EQ(TableCounts(g, 2), (std::vector<int>{8, 0}));
    EXPECT_TRUE(p.sounds.empty());
}

TEST(Balance, MovesOutAndInCancelInTheSound) {
    ScriptedPlatform p;
    Game g(p);
    // The 5,4 shuttle moves players off and onto table 1 fifty times each.
    SeatField(g, {5, 4}, 80);
    std::vector<int16_t> before(g.RosterNumber.begin() + 1, g.RosterNumber.begin() + 9);
    g.BalanceTables();
    std::vector<int16_t> after(g.RosterNumber.begin() + 1, g.RosterNumber.begin() + 9);
    EXPECT_NE(before, after) << "players did change seats";
    EXPECT_TRUE(p.sounds.empty());
    ExpectPermutation(g, 80);
}

TEST(Balance, BalancedFieldGetsNoMoveAndNoSound) {
    ScriptedPlatform p;
    Game g(p);
    SeatField(g, std::vector<int>(10, 8), 80);
    Game reference(p);
    SeatField(reference, std::vector<int>(10, 8), 80);
    g.BalanceTables();
    EXPECT_EQ(g.RosterNumber, reference.RosterNumber);
    EXPECT_EQ(g.RosterBank, reference.RosterBank);
    EXPECT_EQ(g.PlayersLeft, 80);
    EXPECT_EQ(g.TablesInPlay, 10);
    EXPECT_TRUE(p.sounds.empty());
}

TEST(Balance, FinalTableIsAnnouncedAgainOnEveryCall) {
    ScriptedPlatform p;
    Game g(p);
    SeatField(g, {6}, 200);
    g.view.lblGoodLuck.text = "";
    g.BalanceTables();
    EXPECT_EQ(g.view.lblGoodLuck.text, "Final Table!");
    EXPECT_EQ(g.TablesInPlay, 1);
    EXPECT_EQ(g.PlayersLeft, 6);
    EXPECT_TRUE(p.sounds.empty());
    ExpectPermutation(g, 200);
}

TEST(Balance, AFieldOfEightOrFewerAlwaysEndsAtTableOne) {
    for (const auto& counts :
         std::vector<std::vector<int>>{{1, 1, 1, 1, 1, 1, 1, 1}, {4, 1, 1, 1, 1}, {2, 3, 3}, {1, 7}}) {
        ScriptedPlatform p;
        Game g(p);
        SeatField(g, counts, 80);
        g.BalanceTables();
        int left = 0;
        for (int c : counts) left += c;
        std::vector<int> expected(counts.size(), 0);
        expected[0] = left;
        EXPECT_EQ(TableCounts(g, static_cast<int>(counts.size())), expected);
        EXPECT_EQ(g.TablesInPlay, 1);
        ExpectPermutation(g, 80);
    }
}

TEST(Balance, WideFieldScansBothWaysAndSkipsTheEmptiestTestOnANewFullest) {
    ScriptedPlatform p;
    Game g(p);
    std::vector<int> counts(125, 8);
    counts[1] = 5;    // table 2
    counts[2] = 5;    // table 3
    counts[124] = 7;  // table 125, so that table 124 becomes the fullest at step 2
    SeatField(g, counts, 1000);
    g.BalanceTables();
    // Step 2 finds table 124 as the fullest and skips table 2: table 3 is the
    // emptiest and receives table 124's seat 1. Next pass table 2 is the
    // emptiest and receives the lowest seat of table 123, the highest full one.
    EXPECT_EQ(g.RosterNumber[RosterPosition(3, 6)], RosterPosition(124, 1));
    EXPECT_EQ(g.RosterNumber[RosterPosition(2, 6)], RosterPosition(123, 1));
    std::vector<int> expected = counts;
    expected[1] = 6;
    expected[2] = 6;
    expected[122] = 7;
    expected[123] = 7;
    EXPECT_EQ(TableCounts(g, 125), expected);
    EXPECT_EQ(g.TablesInPlay, 125);
    EXPECT_EQ(g.PlayersLeft, 993);
    ExpectPermutation(g, 1000);
}

TEST(Balance, NothingLandsAboveTheTournamentSize) {
    ScriptedPlatform p;
    Game g(p);
    // A thin 200 field spread over all 25 tables: breaking up fills low tables.
    std::vector<int> counts(25, 0);
    for (int t = 0; t < 25; ++t) counts[t] = 1 + (t * 5) % 7;
    SeatField(g, counts, 200);
    g.BalanceTables();
    ExpectPermutation(g, 200);
    std::vector<int> after = TableCounts(g, 25);
    for (int t = 1; t <= g.TablesInPlay; ++t) EXPECT_GE(after[t - 1], 5) << "table " << t;
    for (int t = g.TablesInPlay + 1; t <= 25; ++t) EXPECT_EQ(after[t - 1], 0) << "table " << t;
}

}  // namespace
}  // namespace holdem
