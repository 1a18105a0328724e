// Balancing the tables: single moves, break-ups, the final table, the sound,
// and a roster that stays a permutation of the field throughout.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "engine/game_state.h"
#include "tests/support/scripted_platform.h"

namespace holdem {
namespace {

// A field laid out by a seat map, tables apart by spaces: 'x' a player with
// chips, '.' a busted record. Every position up to `size` holds record number
// = position, so where records went can be read back; the tags mark positions.
void SeatField(Game& g, const std::string& map, int size) {
    g.TournamentSize = static_cast<int16_t>(size);
    std::string seats;
    for (char c : map)
        if (c != ' ') seats += c;
    int16_t place = static_cast<int16_t>(size);
    for (int p = 1; p <= size; ++p) {
        bool in = p <= static_cast<int>(seats.size()) && seats[p - 1] == 'x';
        g.RosterNumber[p] = static_cast<int16_t>(p);
        g.RosterName[p] = "Player " + std::to_string(p);
        g.RosterBank[p] = in ? 10000 + p : 0;
        g.RosterPlace[p] = in ? 0 : place--;
        g.RosterTag[p] = static_cast<int16_t>(p % 7);
    }
}

std::string MapOf(const std::vector<int>& counts) {
    std::string map;
    for (int c : counts) map += std::string(c, 'x') + std::string(kSeats - c, '.') + " ";
    return map;
}

std::vector<int> TableCounts(const Game& g, int tables) {
    std::vector<int> counts(tables, 0);
    for (int p = 1; p <= tables * kSeats; ++p) counts[TableOf(p) - 1] += g.RosterBank[p] > 0 ? 1 : 0;
    return counts;
}

// Every record once, with its own name, chips and place; tags unmoved; the user at 1.
void ExpectPermutation(const Game& g, int size) {
    std::vector<int> seen(size + 1, 0);
    for (int p = 1; p <= size; ++p) {
        int n = g.RosterNumber[p];
        ASSERT_TRUE(n >= 1 && n <= size) << p;
        ++seen[n];
        EXPECT_EQ(g.RosterName[p], "Player " + std::to_string(n));
        EXPECT_EQ(g.RosterTag[p], p % 7) << "tag moved at " << p;
        EXPECT_EQ(g.RosterBank[p], g.RosterPlace[p] == 0 ? 10000 + n : 0) << p;
    }
    for (int n = 1; n <= size; ++n) EXPECT_EQ(seen[n], 1) << "number " << n;
    for (int p = size + 1; p <= kRoster; ++p) EXPECT_EQ(g.RosterBank[p] + g.RosterNumber[p], 0);
    EXPECT_EQ(g.RosterNumber[1], 1) << "the user moved";
}

// Balances an 80 field and tells the players per table, the sound and the caption.
std::string Balance(Game& g, test::ScriptedPlatform& p, const std::string& map) {
    SeatField(g, map, 80);
    g.view.lblGoodLuck.text = "Good Luck!";
    g.BalanceTables();
    const int tables = static_cast<int>(map.size() + 1) / (kSeats + 1);
    std::vector<int> after = TableCounts(g, tables);
    std::string out;
    int left = 0, inPlay = 0;
    for (int c : after) out += std::to_string(c) + " ", left += c, inPlay += c > 0;
    EXPECT_EQ(g.PlayersLeft, left);
    EXPECT_EQ(g.TablesInPlay, inPlay);
    ExpectPermutation(g, 80);
    // A settled field stays exactly as it was; nine on two tables shuttle, with a
    // net sound of none, whatever moves on and off table 1.
    bool moved = false;
    for (int pos = 1; pos <= 80; ++pos) moved = moved || g.RosterNumber[pos] != pos;
    std::vector<int> before;
    for (size_t i = 0; i < map.size(); i += kSeats + 1)
        before.push_back(static_cast<int>(std::count(map.begin() + i, map.begin() + i + kSeats, 'x')));
    EXPECT_EQ(moved, after != before || left == 9) << map;
    for (const auto& sound : p.sounds) out += sound + " ";
    return out + g.view.lblGoodLuck.text;
}

TEST(Balance, Outcomes) {
    struct Row {
        const char* before;
        const char* outcome;
        std::vector<std::pair<int, int>> at = {};  // position, record number found there
    } rows[] = {
        {"xxxxxxxx xxxxxxxx xxxxxxxx", "8 8 8 Good Luck!"},
        {"xxxxxxxx xxxxxx..", "8 6 Good Luck!"},
        {"xxxxxx.. xxxxx... xxxxx...", "6 5 5 Good Luck!"},  // 16 would fit on two tables
        {"xxxxx... xxxxx...", "5 5 Good Luck!"},
        {"xxxxxx.. xxxxx...", "6 5 Good Luck!"},
        // Lowest seat of the fullest (position 1 passed over) to the lowest free seat of the thinnest.
        {"xxxxxxx. xxxx....", "6 5 Good Luck!", {{2, 13}, {13, 2}}},
        // Highest of equals is the fullest, lowest the emptiest.
        {"xxxxxxxx xxxxxxxx xxx.....", "7 6 6 Good Luck!", {{20, 9}, {9, 20}, {21, 2}, {22, 10}}},
        {"xxxxxx.. xxxxxx.. xxxx....", "8 8 0 TWOMOVED Good Luck!"},
        // A break-up takes the highest table, not the smallest, and fills table 1 first.
        {"xxxxx... xxx..... xxxxxxxx",
         "8 8 0 THREEMOVED Good Luck!",
         {{6, 17}, {7, 18}, {8, 19}, {12, 20}, {13, 21}, {14, 22}, {15, 23}, {16, 24}}},
        {"xxxx.... xxxx....", "8 0 FOURMOVED Final Table!"},
        {"x....... xxxxxxx.", "8 0 Final Table!"},  // seven joined: more than any sound tells
        {"xx...... xx...... xx...... xx......", "8 0 0 0 SIXMOVED Final Table!"},
        {"xxx..... xx...... x.......", "6 0 0 THREEMOVED Final Table!"},
        {"xxxxxxx. x.......", "8 0 MOVED Final Table!"},
        {"x....... x....... x....... x....... x....... x....... x....... x.......",
         "8 0 0 0 0 0 0 0 Final Table!"},
        {"xxxx.... x....... x....... x....... x.......", "8 0 0 0 0 FOURMOVED Final Table!"},
        {"xxxxxx.. ........", "6 0 Final Table!"},  // announced again on every call
        // Two tables become one within seats 2 to 8 of table 1.
        {"x.x.x... .....xxx", "6 0 THREEMOVED Final Table!", {{2, 14}, {4, 15}, {6, 16}}},
        {"x.....xx xxxxxxx.", "5 5 TWOMOVED Good Luck!", {{2, 9}, {3, 10}}},
        // An empty position 1 is never a target either.
        {".xxx.... xxxxxxxx", "5 6 TWOMOVED Good Luck!", {{1, 1}, {5, 9}, {6, 10}}},
        // Nine on two tables shuttle for all 100 passes; 3,3,3 ends there too.
        {"xxxxx... xxxx....", "5 4 Good Luck!"},
        {"xxxx.... xxxxx...", "4 5 Good Luck!"},
        {"xxxxxx.. xxx.....", "4 5 Good Luck!"},
        {"xxx..... xxx..... xxx.....", "5 4 0 TWOMOVED Good Luck!"},
    };
    for (const Row& r : rows) {
        test::ScriptedPlatform p;
        Game g(p);
        EXPECT_EQ(Balance(g, p, r.before), r.outcome) << r.before;
        for (auto [pos, number] : r.at) EXPECT_EQ(g.RosterNumber[pos], number) << r.before << " at " << pos;
    }
}

TEST(Balance, SingleTableGameAndSoundOff) {
    test::ScriptedPlatform p;
    Game g(p);
    SeatField(g, "xxx.....", 8);
    g.PlayersLeft = 99;
    g.BalanceTables();
    EXPECT_EQ(g.PlayersLeft, 99);
    g.view.mnuSound.checked = false;
    EXPECT_EQ(Balance(g, p, "xxxx.... xxxx...."), "8 0 Final Table!");
}

TEST(Balance, WideFieldScansBothWaysAndSkipsTheEmptiestTestOnANewFullest) {
    test::ScriptedPlatform p;
    Game g(p);
    std::vector<int> counts(125, 8);
    counts[1] = counts[2] = 5;  // tables 2 and 3
    counts[124] = 7;            // table 125: table 124 becomes the fullest at step 2 and table 2 is skipped
    SeatField(g, MapOf(counts), 1000);
    g.BalanceTables();
    EXPECT_EQ(g.RosterNumber[RosterPosition(3, 6)], RosterPosition(124, 1));
    EXPECT_EQ(g.RosterNumber[RosterPosition(2, 6)], RosterPosition(123, 1));
    counts[1] = counts[2] = 6;
    counts[122] = counts[123] = 7;
    EXPECT_EQ(TableCounts(g, 125), counts);
    EXPECT_EQ(g.TablesInPlay * 10000 + g.PlayersLeft, 125 * 10000 + 993);
    ExpectPermutation(g, 1000);
}

TEST(Balance, NothingLandsAboveTheTournamentSize) {
    test::ScriptedPlatform p;
    Game g(p);
    std::vector<int> counts(25, 0);  // a thin 200 field over all 25 tables
    for (int t = 0; t < 25; ++t) counts[t] = 1 + (t * 5) % 7;
    SeatField(g, MapOf(counts), 200);
    g.BalanceTables();
    ExpectPermutation(g, 200);
    std::vector<int> after = TableCounts(g, 25);
    for (int t = 1; t <= 25; ++t)
        EXPECT_TRUE(t <= g.TablesInPlay ? after[t - 1] >= 5 : after[t - 1] == 0) << t;
}

}  // namespace
}  // namespace holdem
