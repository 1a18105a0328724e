// The tournament around the shown table: a background hand, its one-pot
// settlement, the balancing of the tables, and whole seeded tournaments.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <sstream>
#include <string>
#include <vector>

#include "tests/support/builders.h"
#include "tests/support/scripted_platform.h"

namespace holdem {
namespace {

constexpr float kNo = 0.99f;  // folds to a bet, never raises, checks with nothing to call
constexpr int kTable = 7;

// The whole of a background hand at table 7 in one line: button, blinds,
// cards known, every stack after the hand and what each seat put in.
// Moves: 's' a draw of 0 (stays, raises when it may, by the smallest size),
// 'n' kNo, 'm' 0.49 (a middle draw: calls a class-5 hand, x of 5 or 10).
std::string PlayBackground(const char* stacks, int buttonBefore, const char* holes, const char* moves) {
    test::ScriptedPlatform p;
    Game g(p);
    g.SmallBlind = 100;
    g.TableButton[kTable] = static_cast<int16_t>(buttonBefore);
    std::istringstream in(stacks);
    int players = 0, button = 0;
    for (int s = 1; s <= kSeats; ++s)
        in >> g.RosterBank[RosterPosition(kTable, s)], players += g.RosterBank[RosterPosition(kTable, s)] > 0;
    for (int s = buttonBefore % kSeats + 1; button == 0 && players > 1; s = s % kSeats + 1)
        if (g.RosterBank[RosterPosition(kTable, s)] > 0) button = s;
    std::array<std::string, 9> hole{};
    std::istringstream hin(holes);
    for (std::string h; hin >> h;) hole[h[0] - '0'] = h.substr(2);
    std::vector<float> draws =
        players > 1 ? test::ShuffleDrawsFor(test::DeckFor(button, hole, "Kc9d5s3hJd")) : std::vector<float>{};
    for (const char* m = moves; *m; ++m) draws.push_back(*m == 's' ? 0.0f : *m == 'm' ? 0.49f : kNo);
    g.rnd.Script(draws);
    g.PlayTableHand(kTable);

    std::ostringstream out;
    out << "button " << g.TableButton[kTable] << " blinds " << g.SmallBlindSeat << "/" << g.BigBlindSeat
        << " known " << g.CardsKnown << " |";
    for (int s = 1; s <= kSeats; ++s) out << " " << g.RosterBank[RosterPosition(kTable, s)];
    out << " |";
    for (int s = 1; s <= kSeats; ++s)
        if (g.SeatTotalBet[s] > 0) out << " " << s << ":" << g.SeatTotalBet[s];
    bool ranked = false;
    for (int s = 1; s <= kSeats; ++s) ranked = ranked || g.SeatHandCode[s] != kNoHand;
    EXPECT_EQ(ranked, g.CardsKnown > 2) << "ranked only once a street is out";
    EXPECT_EQ(g.rnd.Remaining() + g.rnd.Overdrawn(), 0u) << out.str();
    EXPECT_TRUE(p.messages.empty());
    EXPECT_EQ(g.RosterBank[RosterPosition(kTable - 1, 8)] + g.RosterBank[RosterPosition(kTable + 1, 1)], 0);
    return out.str();
}

TEST(Background, WholeHands) {
    const std::tuple<const char*, int, const char*, const char*, const char*> rows[] = {
        // A full table: button 1, blinds 2 and 3, seat 4 first; it calls, the rest fold; 3 and 4 check down.
        {"10000 10000 10000 10000 10000 10000 10000 10000", 0, "4:AhAs 3:7d2c", "snnnnnnnnnnnnn",
         "button 1 blinds 2/3 known 7 | 10000 9900 9800 10300 10000 10000 10000 10000 | 2:100 3:200 4:200"},
        // Seats 1 and 2 empty: the button lands on 3; all fold to the large blind, nothing is ranked.
        {"0 0 10000 10000 10000 10000 10000 10000", 0, "", "nnnnn",
         "button 3 blinds 4/5 known 2 | 0 0 10000 9900 10100 10000 10000 10000 | 4:100 5:200"},
        // Two players: the small blind is the seat after the button and wins the check-down.
        {"0 0 10000 0 0 10000", 6, "6:AhAs 3:7d2c", "nnnnnn",
         "button 3 blinds 6/3 known 7 | 0 0 9900 0 0 10100 0 0 | 3:200 6:100"},
        // ... and opens the flop: seat 6 bets 500, seat 3 folds.
        {"0 0 10000 0 0 10000", 6, "6:7d2c 3:8d2s", "ssn",
         "button 3 blinds 6/3 known 5 | 0 0 9800 0 0 10200 0 0 | 3:200 6:600"},
        {"0 0 0 0 12300", 4, "", "", "button 4 blinds 0/0 known 0 | 0 0 0 0 12300 0 0 0 |"},
        // Blinds that take the whole stacks: every street is still dealt, one check each.
        {"0 0 200 0 0 100", 6, "6:AhAs 3:7d2c", "nnn",
         "button 3 blinds 6/3 known 7 | 0 0 100 0 0 200 0 0 | 3:200 6:100"},
        // Three players all in: the button calls short; the shortest wins the main pot.
        {"100 100 200", 0, "1:AhAs 2:7d2c 3:8h2s", "snnnn",
         "button 1 blinds 2/3 known 7 | 300 0 100 0 0 0 0 0 | 1:100 2:100 3:200"},
        // An all-in seat first after the button still opens each street, with a check.
        {"10000 100 10000", 0, "2:AhAs 1:7d2c 3:8h2s", "snnnnnnnnnn",
         "button 1 blinds 2/3 known 7 | 9900 300 9900 0 0 0 0 0 | 1:200 2:100 3:200"},
        // A short large blind: callers pay the full 200 and get 50 back.
        {"10000 10000 150", 0, "3:AhAs 1:7d2c 2:8h2s", "snsnnnnnnn",
         "button 1 blinds 2/3 known 7 | 9850 9850 450 0 0 0 0 0 | 1:200 2:200 3:150"},
        // Raises are unlimited: 4 to 400, 1 and 2 fold, 3 to 800, 4 to 1,600, 3 calls.
        {"10000 10000 10000 10000", 0, "4:AhAs 3:QhQs 1:7d2c 2:8h2s", "sssnnsssssssnnnnnnn",
         "button 1 blinds 2/3 known 7 | 10000 9900 8400 11700 0 0 0 0 | 2:100 3:1600 4:1600"},
        // The button moves on to the next seat with chips; three players, the button folds first.
        {"0 10000 0 0 10000 0 10000", 5, "", "nn",
         "button 7 blinds 2/5 known 2 | 0 9900 0 0 10100 0 10000 0 | 2:100 5:200"},
    };
    for (auto [stacks, button, holes, moves, outcome] : rows)
        EXPECT_EQ(PlayBackground(stacks, button, holes, moves), outcome) << stacks << " " << moves;
}

// Settles table 3 with the stakes ("2:3000+2000:120": SeatTotalBet, SeatBet,
// code, or "-" for a folded seat) and tells what each seat gained.
std::string SettleBackground(const std::string& stakes, int32_t potExtra = 0) {
    test::ScriptedPlatform p;
    Game g(p);
    g.rnd.Script({});
    for (int s = 1; s <= kSeats; ++s) {
        g.TableBank[s] = 100000;
        g.RosterBank[RosterPosition(3, s)] = -1;
        for (int k = 1; k <= 7; ++k) g.SeatBestRanks[s][k] = static_cast<int16_t>(s);  // kickers rise by seat
    }
    std::istringstream in(stakes);
    int seat = 0;
    char colon = 0;
    for (std::string code; in >> seat >> colon >> g.SeatTotalBet[seat];) {
        if (in.peek() == '+') in >> colon >> g.SeatBet[seat];
        in >> colon >> code;
        g.SeatInHand[seat] = code != "-";
        g.SeatHandCode[seat] = static_cast<int16_t>(code == "-" ? kNoHand : std::stoi(code));
        g.Pot += g.SeatTotalBet[seat] + g.SeatBet[seat];
    }
    g.Pot += potExtra;
    g.SettleTableHand(3);
    std::ostringstream out;
    for (int s = 1; s <= kSeats; ++s)
        if (int32_t gain = g.RosterBank[RosterPosition(3, s)] - 100000; gain != 0)
            out << s << "=" << gain << " ";
    for (const auto& m : p.messages)
        out << "[" << m.text << "|" << m.title << "|" << static_cast<int>(m.icon)
            << static_cast<int>(m.buttons) << "]";
    EXPECT_EQ(g.RosterBank[RosterPosition(2, 8)] + g.RosterBank[RosterPosition(4, 1)], 0);
    return out.str();
}

TEST(Background, OnePotToTheLowestCode) {
    const std::pair<const char*, const char*> rows[] = {
        // A all in with 1,000 and best, B and C 5,000: no side pot, B and C get their excess back.
        {"1:1000:100 2:3000+2000:120 3:3000+2000:150", "1=3000 2=4000 3=4000 "},
        // Equal codes share evenly whatever the stakes, and seat 2's better kickers count for nothing.
        {"1:1000:139 2:5000:139", "1=3000 2=3000 "},
        {"1:0+1000:60 2:0+5000:120 3:300:-", "1=2300 2=4000 "},
        {"2:0+500:140 5:1500:- 6:0+500:150", "2=2500 "},  // a folded stake above the winner's stays in
        // Three tied seats: odd hundreds to the lowest seats; pots of 700, 800, 1,000.
        {"2:200:199 4:200:199 5:100:- 7:0+200:199", "2=300 4=200 7=200 "},
        {"2:200:199 4:200:199 5:200:- 7:0+200:199", "2=300 4=300 7=200 "},
        {"2:300:199 4:300:199 5:100:- 7:0+300:199", "2=400 4=300 7=300 "},
        {"2:200:199 4:200:199 6:200:199 8:200:199 5:100:-", "2=300 4=200 6=200 8=200 "},
        {"1:0+1000:50 2:0+4000:199 3:0+4000:120", "1=3000 2=3000 3=3000 "},
        {"1:0+1000:37 2:0+3000:37 3:0+4000:120", "1=3500 2=3500 3=1000 "},
        {"3:200:199 6:100:150", "3=100 6=200 "},
        {"3:200:140 6:100:150", "3=300 "},
        {"2:200:- 5:200+1300:200 8:400:-", "5=2100 "},
        // A pot of 1 cannot be paid in hundreds: the check tells it, no title, no icon, OK.
        {"1:0:199 2:0:199 +1", "[Total Pot: 1   Total Paid: 0   Paid Back: 0   Winners: 2||00]"},
    };
    for (auto [stakes, gains] : rows) {
        std::string s = stakes;
        bool extra = s.find(" +1") != std::string::npos;
        EXPECT_EQ(SettleBackground(s.substr(0, s.find(" +")), extra ? 1 : 0), gains) << stakes;
    }
}

// A field of 80 laid out by a seat map, tables apart by spaces: 'x' a player
// with chips, '.' a busted record. Record number = position before, so where
// records went can be read back; the tags mark positions.
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

std::vector<int> TableCounts(const Game& g, int tables) {
    std::vector<int> counts(tables, 0);
    for (int p = 1; p <= tables * kSeats; ++p) counts[TableOf(p) - 1] += g.RosterBank[p] > 0;
    return counts;
}

// Every record once, with its own name, chips and place; tags unmoved; the user at 1.
void ExpectPermutation(const Game& g, int size) {
    std::vector<int> seen(size + 1, 0);
    for (int p = 1; p <= size; ++p) {
        int n = g.RosterNumber[p];
        ASSERT_TRUE(n >= 1 && n <= size) << p;
        ++seen[n];
        ASSERT_EQ(g.RosterName[p], "Player " + std::to_string(n));
        ASSERT_EQ(g.RosterTag[p], p % 7) << "tag moved at " << p;
        ASSERT_EQ(g.RosterBank[p], g.RosterPlace[p] == 0 ? 10000 + n : 0) << p;
    }
    for (int n = 1; n <= size; ++n) ASSERT_EQ(seen[n], 1) << "number " << n;
    for (int p = size + 1; p <= kRoster; ++p) ASSERT_EQ(g.RosterBank[p] + g.RosterNumber[p], 0);
    EXPECT_EQ(g.RosterNumber[1], 1) << "the user moved";
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
        {"xxxx.... xx...... x.......", "7 0 0 THREEMOVED Final Table!"},
        {"xxx..... xx...... xx......", "7 0 0 FOURMOVED Final Table!"},
        {"xxx..... xxxxx...", "8 0 FIVEMOVED Final Table!"},
        {"x....... x....... x....... x....... x....... x....... x....... x.......",
         "8 0 0 0 0 0 0 0 Final Table!"},
        {"xxxxxx.. ........", "6 0 Final Table!"},  // announced again on every call
        // Two tables become one within seats 2 to 8 of table 1.
        {"x.x.x... .....xxx", "6 0 THREEMOVED Final Table!", {{2, 14}, {4, 15}, {6, 16}}},
        {"x.....xx xxxxxxx.", "5 5 TWOMOVED Good Luck!", {{2, 9}, {3, 10}}},
        {".xxx.... xxxxxxxx",
         "5 6 TWOMOVED Good Luck!",
         {{1, 1}, {5, 9}, {6, 10}}},  // position 1 never a target
        // Nine on two tables shuttle for all 100 passes; 3,3,3 ends there too.
        {"xxxxx... xxxx....", "5 4 Good Luck!"},
        {"xxxx.... xxxxx...", "4 5 Good Luck!"},
        {"xxxxxx.. xxx.....", "4 5 Good Luck!"},
        {"xxx..... xxx..... xxx.....", "5 4 0 TWOMOVED Good Luck!"},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.before);
        for (bool sound : {true, false}) {
            test::ScriptedPlatform p;
            Game g(p);
            SeatField(g, r.before, 80);
            g.view.mnuSound.checked = sound;
            g.view.lblGoodLuck.text = "Good Luck!";
            g.BalanceTables();
            std::string out;
            int left = 0, inPlay = 0;
            for (int c : TableCounts(g, static_cast<int>(std::string(r.before).size() + 1) / 9))
                out += std::to_string(c) + " ", left += c, inPlay += c > 0;
            EXPECT_EQ(g.PlayersLeft * 1000 + g.TablesInPlay, left * 1000 + inPlay);
            ExpectPermutation(g, 80);
            for (const auto& s : p.sounds) out += s + " ";
            std::string want = r.outcome;
            if (!sound)  // the moves all the same, in silence
                for (const char* s :
                     {"TWOMOVED ", "THREEMOVED ", "FOURMOVED ", "FIVEMOVED ", "SIXMOVED ", "MOVED "})
                    if (auto at = want.find(s); at != std::string::npos)
                        want.erase(at, std::string(s).size());
            EXPECT_EQ(out + g.view.lblGoodLuck.text, want);
            for (auto [pos, number] : r.at) EXPECT_EQ(g.RosterNumber[pos], number) << "at " << pos;
        }
    }
}

TEST(Balance, SingleTablesWideAndThinFields) {
    test::ScriptedPlatform p;
    Game g(p);
    SeatField(g, "xxx.....", 8);
    g.PlayersLeft = 99;
    g.BalanceTables();
    EXPECT_EQ(g.PlayersLeft, 99);  // a single-table game is not counted here

    std::vector<int> counts(125, 8);
    counts[1] = counts[2] = 5;  // tables 2 and 3
    counts[124] = 7;            // table 124 becomes the fullest at step 2, so table 2 misses its turn
    std::string map;
    for (int c : counts) map += std::string(c, 'x') + std::string(kSeats - c, '.') + " ";
    SeatField(g, map, 1000);
    g.BalanceTables();
    EXPECT_EQ(g.RosterNumber[RosterPosition(3, 6)], RosterPosition(124, 1));
    EXPECT_EQ(g.RosterNumber[RosterPosition(2, 6)], RosterPosition(123, 1));
    counts[1] = counts[2] = 6;
    counts[122] = counts[123] = 7;
    EXPECT_EQ(TableCounts(g, 125), counts);
    EXPECT_EQ(g.TablesInPlay * 10000 + g.PlayersLeft, 125 * 10000 + 993);
    ExpectPermutation(g, 1000);
}

}  // namespace
}  // namespace holdem
