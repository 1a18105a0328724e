// The tournament around the shown table: background pots, balancing, figures and hurrying a hand.
#include <regex>

#include "engine/autoplay.h"
#include "engine/end_of_hand.h"
#include "engine/play_out.h"
#include "tests/support/builders.h"

namespace holdem {
namespace {

// clang-format off
const std::pair<const char*, const char*> kBackground[] = {
    {"1:1000:100 2:3000+2000:120 3:3000+2000:150", "1=3000 2=4000 3=4000 "},  // no side pot: B and C get their excess back
    // Equal codes share evenly whatever the stakes, and seat 2's better kickers count for nothing.
    {"1:1000:139 2:5000:139", "1=3000 2=3000 "}, {"1:0+1000:60 2:0+5000:120 3:300:-", "1=2300 2=4000 "},
    {"2:0+500:140 5:1500:- 6:0+500:150", "2=2500 "},  // a folded stake above the winner's stays in
    // Three tied seats: odd hundreds to the lowest seats; pots of 700, 800, 1,000.
    {"2:200:199 4:200:199 5:100:- 7:0+200:199", "2=300 4=200 7=200 "}, {"2:200:199 4:200:199 5:200:- 7:0+200:199", "2=300 4=300 7=200 "},
    {"2:300:199 4:300:199 5:100:- 7:0+300:199", "2=400 4=300 7=300 "}, {"2:200:199 4:200:199 6:200:199 8:200:199 5:100:-", "2=300 4=200 6=200 8=200 "},
    {"1:0+1000:50 2:0+4000:199 3:0+4000:120", "1=3000 2=3000 3=3000 "}, {"1:0+1000:37 2:0+3000:37 3:0+4000:120", "1=3500 2=3500 3=1000 "},
    {"3:200:199 6:100:150", "3=100 6=200 "}, {"3:200:140 6:100:150", "3=300 "}, {"2:200:- 5:200+1300:200 8:400:-", "5=2100 "},
    // A pot of 1 cannot be paid in hundreds: the check tells it, no title, no icon, OK.
    {"1:0:199 2:0:199 +1", "[Total Pot: 1   Total Paid: 0   Paid Back: 0   Winners: 2||00]"},
};
const struct BalanceRow { const char* before; const char* outcome; std::vector<std::pair<int, int>> at = {}; /* position, record found there */ } kBalances[] = {
    {"xxxxxxxx xxxxxxxx xxxxxxxx", "8 8 8 Good Luck!"}, {"xxxxxxxx xxxxxx..", "8 6 Good Luck!"}, {"xxxxx... xxxxx...", "5 5 Good Luck!"},
    {"xxxxxx.. xxxxx... xxxxx...", "6 5 5 Good Luck!"}, {"xxxxxx.. xxxxx...", "6 5 Good Luck!"},  // 16 would fit on two tables
    // Lowest seat of the fullest (position 1 passed over) to the lowest free seat of the thinnest.
    {"xxxxxxx. xxxx....", "6 5 Good Luck!", {{2, 13}, {13, 2}}}, {"xxxxxxxx xxxxxxxx xxx.....", "7 6 6 Good Luck!", {{20, 9}, {9, 20}, {21, 2}, {22, 10}}},
    {"xxxxxx.. xxxxxx.. xxxx....", "8 8 0 TWOMOVED Good Luck!"}, {"xxxx.... xxxx....", "8 0 FOURMOVED Final Table!"},
    // A break-up takes the highest table, not the smallest, and fills table 1 first.
    {"xxxxx... xxx..... xxxxxxxx", "8 8 0 THREEMOVED Good Luck!", {{6, 17}, {7, 18}, {8, 19}, {12, 20}, {13, 21}, {14, 22}, {15, 23}, {16, 24}}},
    {"x....... xxxxxxx.", "8 0 Final Table!"},  // seven joined: more than any sound tells
    {"xx...... xx...... xx...... xx......", "8 0 0 0 SIXMOVED Final Table!"}, {"xxx..... xx...... x.......", "6 0 0 THREEMOVED Final Table!"},
    {"xxxxxxx. x.......", "8 0 MOVED Final Table!"}, {"xxxx.... xx...... x.......", "7 0 0 THREEMOVED Final Table!"},
    {"xxx..... xx...... xx......", "7 0 0 FOURMOVED Final Table!"}, {"xxx..... xxxxx...", "8 0 FIVEMOVED Final Table!"},
    {"x....... x....... x....... x....... x....... x....... x....... x.......", "8 0 0 0 0 0 0 0 Final Table!"},
    {"xxxxxx.. ........", "6 0 Final Table!"},  // announced again on every call
    // Two tables become one within seats 2 to 8 of table 1; position 1 is never a target.
    {"x.x.x... .....xxx", "6 0 THREEMOVED Final Table!", {{2, 14}, {4, 15}, {6, 16}}}, {"x.....xx xxxxxxx.", "5 5 TWOMOVED Good Luck!", {{2, 9}, {3, 10}}},
    {".xxx.... xxxxxxxx", "5 6 TWOMOVED Good Luck!", {{1, 1}, {5, 9}, {6, 10}}},
    // Nine on two tables shuttle for all 100 passes; 3,3,3 ends there too.
    {"xxxxx... xxxx....", "5 4 Good Luck!"}, {"xxxx.... xxxxx...", "4 5 Good Luck!"}, {"xxxxxx.. xxx.....", "4 5 Good Luck!"},
    {"xxx..... xxx..... xxx.....", "5 4 0 TWOMOVED Good Luck!"},
};
const std::array<int, 4> kRises[] = {  // size, small blind, the next rise: players left, small blind
    {1000, 100, 900, 200}, {1000, 25000, 3, 35000}, {1000, 35000, 0, 0}, {200, 1500, 30, 2000}, {80, 4000, 3, 8000}, {8, 600, 2, 1000}, {80, 150, 0, 0}};
// clang-format on

// Settles table 3 ("2:3000+2000:120": SeatTotalBet, SeatBet, code or "-" folded); tells each gain.
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
    for (auto [stakes, gains] : kBackground) {
        std::string s = stakes;
        bool extra = s.find(" +1") != std::string::npos;
        EXPECT_EQ(SettleBackground(s.substr(0, s.find(" +")), extra ? 1 : 0), gains) << stakes;
    }
}

// A field of 80 by a seat map, tables apart by spaces: 'x' has chips, '.' is out; number = position before.
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
    for (const BalanceRow& r : kBalances) {
        SCOPED_TRACE(r.before);
        for (bool sound : {true, false}) {
            test::ScriptedPlatform p;
            Game g(p);
            SeatField(g, r.before, 80);
            g.view.mnuSound.checked = sound;
            g.view.lblGoodLuck.text = "Good Luck!";
            g.BalanceTables();
            std::vector<int> counts((std::string(r.before).size() + 1) / 9);  // players by table
            for (int p = 1; p <= static_cast<int>(counts.size()) * kSeats; ++p)
                counts[TableOf(p) - 1] += g.RosterBank[p] > 0;
            std::string out;
            int left = 0, inPlay = 0;
            for (int c : counts) out += std::to_string(c) + " ", left += c, inPlay += c > 0;
            EXPECT_EQ(g.PlayersLeft * 1000 + g.TablesInPlay, left * 1000 + inPlay);
            ExpectPermutation(g, 80);
            for (const auto& s : p.sounds) out += s + " ";
            std::string want = r.outcome;
            if (!sound) want = std::regex_replace(want, std::regex("[A-Z]*MOVED "), "");  // moved in silence
            EXPECT_EQ(out + g.view.lblGoodLuck.text, want);
            for (auto [pos, number] : r.at) EXPECT_EQ(g.RosterNumber[pos], number) << "at " << pos;
        }
    }
    test::ScriptedPlatform p;
    Game g(p);
    SeatField(g, "xxx.....", 8);
    g.PlayersLeft = 99;
    g.BalanceTables();
    EXPECT_EQ(g.PlayersLeft, 99);  // a single-table game is not counted here
}

// The figures after a round, and the next rise of the blinds by size and blind.
TEST(TourneyFigures, FromTheRosterAndTheNextRise) {
    test::ScriptedPlatform p;
    Game g(p);
    g.TournamentSize = 80;
    for (int pos = 1; pos <= 80; ++pos)
        g.RosterNumber[pos] = static_cast<int16_t>(pos), g.RosterBank[pos] = pos <= 40 ? 1000 * pos : 0;
    g.RosterBank[1] = 25500;
    g.BalanceTables();
    g.SmallBlind = 400;
    TourneyFigures f = ComputeTourneyFigures(g);
    // The user 16th ($26,000 .. $40,000 stand above); $844,500 over 40, rounded.
    EXPECT_EQ(std::vector<int64_t>({f.fieldSize, f.playersLeft, f.tablesInPlay, f.smallBlind, f.nextRiseAt,
                                    f.nextSmallBlind, f.userPlace, f.averageStack}),
              std::vector<int64_t>({80, 40, 5, 400, 40, 600, 16, 21113}));
    g.RosterBank[2] -= 1;  // $844,499: one chip more would round the average up
    EXPECT_EQ(ComputeTourneyFigures(g).averageStack, 21112);
    g.RosterBank[1] = 0;
    EXPECT_EQ(ComputeTourneyFigures(g).userPlace, 0);
    for (auto [size, smallBlind, riseAt, next] : kRises) {
        BlindRise rise = NextBlindRise(static_cast<int16_t>(size), smallBlind);
        EXPECT_EQ(std::make_pair(rise.playersLeft, rise.smallBlind), std::make_pair(riseAt, next))
            << size << " at " << smallBlind;
    }
}

// The user folds at once; the rest of the hand runs tick by tick, or all at once by FinishHand.
std::string FoldAndFinish(int players, uint64_t seed, bool hurry) {
    test::ScriptedPlatform p;
    Game g(p);
    g.AppFolder = HOLDEM_ASSETS;
    g.rnd.SeedDeterministic(seed);
    sim::SetUpGame(g, players);
    for (; g.RunningTimer() != kTimerCount; g.FireTimer(g.RunningTimer())) EXPECT_FALSE(CanFinishHand(g));
    if (g.view.cmdPlay[4].visible) g.cmdPlay_Click(4);
    EXPECT_EQ(CanFinishHand(g), g.RunningTimer() != kTimerCount);
    hurry ? void(FinishHand(g)) : test::RunTimers(g);
    EXPECT_FALSE(CanFinishHand(g));
    std::string out = test::StateText(g) + " draws " + std::to_string(g.rnd.Draws()) + " pauses " +
                      std::to_string(p.pauses);
    for (const std::string& sound : p.sounds) out += " " + sound;
    return out;
}

TEST(FinishHand, SameOutcomeAndDrawsAsTheTimers) {
    for (int players : {8, 80, 1000}) {
        for (uint64_t seed = 1; seed <= 4; ++seed) {
            SCOPED_TRACE(std::to_string(players) + " players, seed " + std::to_string(seed));
            EXPECT_EQ(FoldAndFinish(players, seed, true), FoldAndFinish(players, seed, false));
        }
    }
}

}  // namespace
}  // namespace holdem
