#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "engine/game_state.h"
#include "tests/support/scripted_platform.h"

namespace holdem {
namespace {

constexpr int kTable = 3;
constexpr int32_t kLeft = 100000;  // what every seat keeps back from the hand

// Settles table 3 with the stakes ("2:3000+2000:120": SeatTotalBet, SeatBet,
// code, or "-" for a folded seat) and tells what each seat gained, read back
// from the roster, plus any closing-check message.
std::string Settle(const std::string& stakes, int32_t potExtra = 0) {
    test::ScriptedPlatform p;
    Game g(p);
    g.rnd.Script({});
    for (int s = 1; s <= kSeats; ++s) {
        g.TableBank[s] = kLeft;
        g.RosterBank[RosterPosition(kTable, s)] = -1;
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
        g.PlayersInHand += g.SeatInHand[seat];
    }
    g.Pot += potExtra;
    g.SettleTableHand(kTable);
    std::ostringstream out;
    for (int s = 1; s <= kSeats; ++s)
        if (int32_t gain = g.RosterBank[RosterPosition(kTable, s)] - kLeft; gain != 0)
            out << s << "=" << gain << " ";
    for (const auto& m : p.messages)
        out << "[" << m.text << "|" << m.title << "|" << static_cast<int>(m.icon)
            << static_cast<int>(m.buttons) << "]";
    EXPECT_EQ(g.RosterBank[RosterPosition(kTable - 1, 8)] + g.RosterBank[RosterPosition(kTable + 1, 1)], 0);
    EXPECT_EQ(g.rnd.Overdrawn(), 0);
    std::string text = out.str();
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

TEST(BackgroundSettle, OnePotToTheLowestCode) {
    struct Row {
        const char* stakes;
        const char* gains;
    } rows[] = {
        // A all in with 1,000 and best, B and C 5,000: no side pot, B and C get their excess back.
        {"1:1000:100 2:3000+2000:120 3:3000+2000:150", "1=3000 2=4000 3=4000"},
        // Equal codes share evenly whatever the stakes, and seat 2's better kickers count for nothing.
        {"1:1000:139 2:5000:139", "1=3000 2=3000"},
        // B bets 5,000, A calls all in with 1,000 and wins, C folded after 300.
        {"1:0+1000:60 2:0+5000:120 3:300:-", "1=2300 2=4000"},
        // A folded stake above the winner's stays in the pot.
        {"2:0+500:140 5:1500:- 6:0+500:150", "2=2500"},
        // Three tied seats: odd hundreds to the lowest seats; pots of 700, 800, 1,000.
        {"2:200:199 4:200:199 5:100:- 7:0+200:199", "2=300 4=200 7=200"},
        {"2:200:199 4:200:199 5:200:- 7:0+200:199", "2=300 4=300 7=200"},
        {"2:300:199 4:300:199 5:100:- 7:0+300:199", "2=400 4=300 7=300"},
        // Best all in for the least: both others get the excess back, whichever was better.
        {"1:0+1000:50 2:0+4000:199 3:0+4000:120", "1=3000 2=3000 3=3000"},
        // Tied winners with unequal stakes: the smaller gains from the larger.
        {"1:0+1000:37 2:0+3000:37 3:0+4000:120", "1=3500 2=3500 3=1000"},
        // Two players checked down from the blinds: small blind wins, then large blind wins.
        {"3:200:199 6:100:150", "3=100 6=200"},
        {"3:200:140 6:100:150", "3=300"},
        // The last seat standing takes everything, its uncalled bet included.
        {"2:200:- 5:200+1300:200 8:400:-", "5=2100"},
    };
    for (const Row& r : rows) EXPECT_EQ(Settle(r.stakes), r.gains);
}

TEST(BackgroundSettle, ClosingCheckReportsAPotThatDoesNotPayOut) {
    // A pot of 1 cannot be paid in hundreds: no title, no icon, an OK button.
    EXPECT_EQ(Settle("1:0:199 2:0:199", 1), "[Total Pot: 1   Total Paid: 0   Paid Back: 0   Winners: 2||00]");
}

}  // namespace
}  // namespace holdem
