// A hand of the shown table: StartHand, the shuffle, the deal, and whole
// hands through the real timer chain, move by move and dollar by dollar.
#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "tests/support/builders.h"
#include "tests/support/scripted_platform.h"

namespace holdem {
namespace {

using test::ScriptedPlatform;

// Positions and blinds after StartHand on the all-zero shuffle: button,
// small and large blind, the seat to act and the one before, players, pot,
// the high bet, then every label of a bet and every stack that changed.
std::string Start(Game& g, const std::vector<int32_t>& banks, int button, int32_t blind = 100) {
    test::SeatTable(g, banks, button, blind);
    g.rnd.Script(std::vector<float>(52, 0.0f));
    g.StartHand();
    test::ExpectSettled(g);
    std::ostringstream out;
    out << "B" << g.ButtonSeat << " S" << g.SmallBlindSeat << " L" << g.BigBlindSeat << " C" << g.CurrentSeat
        << " P" << g.PreviousSeat << " n" << g.PlayersInHand << " pot " << g.view.lblPot.text << " H"
        << g.HighBetIndex << "/" << g.HighBetValue << " |";
    for (int s = 1; s <= kSeats; ++s) {
        if (!g.view.lblBet[s].text.empty()) out << " " << s << ":" << g.view.lblBet[s].text;
        if (g.SeatBank[s] != g.RosterBank[s]) out << " " << s << "=" << g.view.lblBank[s].text;
        EXPECT_EQ(g.SeatInHand[s], g.RosterBank[s] > 0);
        EXPECT_EQ(
            g.view.lblName[s].visible && g.view.lblBank[s].visible && g.view.lblBankDollarSign[s].visible,
            g.RosterBank[s] > 0);
        EXPECT_EQ(g.view.iButton[s].visible, s == g.ButtonSeat);
        // Deck[p] and Deck[p + 8] to the seat p + 1 after the button, empty or not; the board to all.
        int p0 = (s - g.ButtonSeat + 7) % kSeats;
        EXPECT_EQ(g.SeatCards[s][1] * 100 + g.SeatCards[s][2], g.Deck[p0] * 100 + g.Deck[p0 + 8]) << s;
        for (int k = 3; k <= 7; ++k) EXPECT_EQ(g.SeatCards[s][k], g.Deck[13 + k]) << s;
    }
    for (int i = 1; i <= 21; ++i)  // faces for the user's cards and the board only
        EXPECT_EQ(g.view.icard[i].picture, i == 1   ? g.SeatCards[1][1]
                                           : i == 9 ? g.SeatCards[1][2]
                                           : i > 16 ? g.Deck[i - 1]
                                                    : 0)
            << i;
    return out.str();
}

TEST(StartHand, ButtonBlindsAndFirstToAct) {
    const std::tuple<std::vector<int32_t>, int, int32_t, const char*> rows[] = {
        {{10000, 10000, 10000, 10000, 10000, 10000, 10000, 10000},
         8,
         100,
         "B1 S2 L3 C4 P3 n8 pot 300 H3/200 | 2:Small Blind: $100 2=9,900 3:Large Blind: $200 3=9,800"},
        // Two players: the button posts the large blind and the small blind acts first.
        {{5000, 0, 0, 0, 3000, 0, 0, 0},
         1,
         100,
         "B5 S1 L5 C1 P5 n2 pot 300 H5/200 | 1:Small Blind: $100 1=4,900 5:Large Blind: $200 5=2,800"},
        // Three players: the button acts first.
        {{0, 4000, 0, 4000, 0, 0, 4000, 0},
         8,
         100,
         "B2 S4 L7 C2 P7 n3 pot 300 H7/200 | 4:Small Blind: $100 4=3,900 7:Large Blind: $200 7=3,800"},
        {{4000, 0, 4000, 0, 0, 4000, 0, 4000},
         3,
         100,
         "B6 S8 L1 C3 P1 n4 pot 300 H1/200 | 1:Large Blind: $200 1=3,800 8:Small Blind: $100 8=3,900"},
        {{10000, 0, 0, 10000, 0, 10000, 10000, 10000},
         1,
         100,
         "B4 S6 L7 C8 P7 n5 pot 300 H7/200 | 6:Small Blind: $100 6=9,900 7:Large Blind: $200 7=9,800"},
        // Short blinds go all in and the full large blind still stands.
        {{10000, 60, 150, 10000, 10000, 10000, 10000, 10000},
         8,
         100,
         "B1 S2 L3 C4 P3 n8 pot 210 H3/200 | 2:Small Blind: $60 All In 2=0 3:Large Blind: $150 All In 3=0"},
        {{10000, 250, 500, 10000, 10000, 10000, 10000, 10000},
         8,
         250,
         "B1 S2 L3 C4 P3 n8 pot 750 H3/500 | 2:Small Blind: $250 2=0 3:Large Blind: $500 3=0"},
        {{10000, 2000000, 2000000, 10000, 10000, 10000, 10000, 10000},
         8,
         25000,
         "B1 S2 L3 C4 P3 n8 pot 75,000 H3/50000 | 2:Small Blind: $25,000 2=1,975,000 3:Large Blind: $50,000 "
         "3=1,950,000"},
    };
    for (auto& [banks, button, blind, outcome] : rows) {
        ScriptedPlatform p;
        Game g(p);
        EXPECT_EQ(Start(g, banks, button, blind), outcome);
    }
}

// Everything an earlier hand left behind is cleared, the buttons and menus
// of the pause between hands go, and the roster waits for the hand's end.
TEST(StartHand, ResetsTheSeatsAndTheView) {
    ScriptedPlatform p;
    Game g(p);
    for (int s = 1; s <= kSeats; ++s) {
        g.SeatRaised[s] = g.view.lblPaid[s].visible = g.view.iArrow[s].visible = true;
        g.SeatTotalBet[s] = 700, g.WinnerSeats[s] = 1, g.SeatHandCode[s] = 61, g.SeatHandName[s] = "Two Pair";
    }
    for (int i = 1; i <= 21; ++i) g.view.icard[i].visible = true;
    g.view.cmdDeal.visible = g.view.cmdStandings.visible = g.view.cmdFloor.visible = g.HandIsOver = true;
    g.view.mnuSave.enabled = g.view.mnuSaveAs.enabled = true;
    g.HandsPlayed = 4, g.Street = 3, g.CardsDealt = 21, g.CardsKnown = 7;
    Start(g, {10000, 10000, 10000, 10000, 10000, 10000, 10000, 10000}, 8);
    for (int s = 1; s <= kSeats; ++s) {
        SCOPED_TRACE(s);
        EXPECT_FALSE(g.SeatRaised[s] || g.view.lblPaid[s].visible || g.view.iArrow[s].visible);
        EXPECT_EQ(std::vector<int>({g.SeatTotalBet[s], g.WinnerSeats[s], g.StartingHandClass[s],
                                    g.SeatHandCode[s], g.RosterBank[s]}),
                  std::vector<int>({0, 0, 9, 200, 10000}));
        EXPECT_EQ(g.SeatHandName[s], "");
        EXPECT_EQ(g.view.lblName[s].text, s == 1 ? "You" : "Player " + std::to_string(s));
    }
    for (int i = 1; i <= 21; ++i) EXPECT_FALSE(g.view.icard[i].visible) << i;
    EXPECT_FALSE(g.view.cmdDeal.visible || g.view.cmdStandings.visible || g.view.cmdFloor.visible ||
                 g.HandIsOver || g.view.mnuSave.enabled || g.view.mnuSaveAs.enabled || g.view.lblHBI.visible);
    EXPECT_TRUE(g.view.lblBlind.visible && g.view.lblGoodLuck.visible && g.view.lblPot.visible &&
                g.view.lblPotLabel.visible);
    EXPECT_EQ(std::vector<int>({g.HandsPlayed, g.Street, g.CardsDealt, g.RunningTimer()}),
              std::vector<int>({5, 1, 0, TimerDealHole}));
    EXPECT_EQ(g.view.lblHBI.text + " " + g.view.lblHBV.text + " " + g.view.lblPrevious.text, "3 200 3");
    g.StopHandTimers();
    g.rnd.Script(std::vector<float>(52, 0.0f));
    g.cmdDeal_Click();
    EXPECT_EQ(g.HandsPlayed, 6);
    test::ExpectSettled(g);
}

// Fires the running timer; at the user's turn takes the next press ("2", or
// "3:600" with the dialog's answer). The log has each new label of a bet as
// "seat:text", "|" at each new street, and the payments at the end.
std::string Play(Game& g, ScriptedPlatform& p, std::vector<std::string> presses) {
    std::string log;
    std::array<std::string, 9> shown{};
    int ticks = 0;
    while (ticks++ < 500 && !g.view.cmdDeal.visible && !g.GameEnded) {
        TimerId running = g.RunningTimer();
        if (running == kTimerCount) {
            if (presses.empty()) return log + " <no press left>";
            std::string press = presses.front();
            presses.erase(presses.begin());
            if (press.size() > 2) p.betAmounts.push_back(std::stoi(press.substr(2)));
            g.cmdPlay_Click(press[0] - '0');
        } else {
            if ((running == TimerDealFlop && g.CardsDealt == 16) || running == TimerDealTurn ||
                running == TimerDealRiver)
                log += "|";
            g.FireTimer(running);
        }
        std::string why;
        EXPECT_TRUE(running == TimerHandOver || g.state_is_ok(&why)) << why << " after " << log;
        for (int s = 1; s <= kSeats; ++s)
            if (g.view.lblBet[s].text != shown[s] && !(shown[s] = g.view.lblBet[s].text).empty() &&
                running != TimerHandOver && shown[s].rfind("Amount", 0) != 0)
                log += " " + std::to_string(s) + ":" + shown[s];
    }
    log += " =";
    for (int s = 1; s <= kSeats; ++s)
        if (g.view.lblPaid[s].visible)
            log += " " + std::to_string(s) + "+" + g.view.lblPaid[s].text.substr(6);
    EXPECT_TRUE(presses.empty()) << "presses left";
    EXPECT_EQ(g.rnd.Overdrawn(), 0) << log;
    return log;
}

struct WholeHand {
    std::vector<int32_t> banks;
    int button;                        // before StartHand moves it
    std::array<std::string, 9> holes;  // by seat
    const char* board;
    std::vector<float> moves;          // the opponents' draws in order
    std::vector<std::string> presses;  // the user's
    const char* log;
};

TEST(WholeHand, MoveByMove) {
    const WholeHand hands[] = {
        // Four players call and check it down; the user in the large blind
        // would have the option, but here calls from seat 1 and checks after.
        {{10000, 0, 10000, 0, 10000, 0, 10000, 0},
         7,
         {"", "", "", "", "", "", "", "", ""},
         "2c7d9hJs4s",
         {0.0f, 0.999f, 0.0f, 0.999f, 0.999f, 0.999f, 0.999f, 0.999f, 0.999f, 0.999f, 0.999f, 0.999f, 0.999f},
         {"2", "1", "1", "1"},
         " 3:Small Blind: $100 5:Large Blind: $200 7:Called $200 1:Called $200 3:Called $100 5:Checked| "
         "3:Checked "
         "5:Checked 7:Checked 1:Checked| 3:Checked 5:Checked 7:Checked 1:Checked| 3:Checked 5:Checked "
         "7:Checked "
         "1:Checked = 1+800"},
        // A full table: a raise before the flop, a re-raise from the large
        // blind, an all-in raise capped at the stack, and four all in to the river.
        {{10000, 10000, 10000, 10000, 10000, 10000, 10000, 10000},
         8,
         {"", "JsJc", "Tc9c", "KdQc", "AhKh", "7c2d", "QsQd", "9s8s", "Ac5d"},
         "2c7d9hJd4s",
         {0.4f,  0.5f,  0.6f,  0.2f, 0.1f, 0.29f, 0.25f, 0.3f, 0.55f, 0.7f, 0.5f, 0.04f,
          0.49f, 0.65f, 0.05f, 0.0f, 0.9f, 0.3f,  0.31f, 0.1f, 0.0f,  0.5f, 0.5f, 0.5f},
         {"2", "2"},
         " 2:Small Blind: $100 3:Large Blind: $200 4:Called $200 5:Folded 6:Raised to $1,000 7:Called $1,000 "
         "8:Folded 1:Called $1,000 2:Folded 3:Raised to $6,000 4:Raised to $10,000 All In 6:Called $9,000 "
         "All In "
         "7:Folded 1:Called $9,000 3:Called $4,000 All In||| = 1+41,100"},
        // Three players: the user in the large blind may only check; a bet on
        // the flop is raised through the dialog, a raise rounds back to a call.
        {{5000, 0, 0, 5000, 0, 0, 5000, 0},
         1,
         {"", "JsTs", "", "", "AhQh", "", "", "8c8d", ""},
         "Qc8s3d5hKd",
         {0.3f, 0.5f, 0.7f, 0.6f, 0.2f, 0.3f, 0.86f, 0.5f, 0.1f, 0.9f, 0.3f, 0.2f, 0.5f, 0.5f},
         {"1", "3:3100", "3:1700"},
         " 1:Large Blind: $200 7:Small Blind: $100 4:Called $200 7:Called $100 1:Checked| 7:Bet $1,700 "
         "1:Raise "
         "$1,400 to $3,100 4:Folded 7:Called $1,400| 7:Checked 1:Bet $1,700 All In 7:Called $1,700 All In| = "
         "7+10,200"},
    };
    for (const WholeHand& h : hands) {
        ScriptedPlatform p;
        Game g(p);
        test::SeatTable(g, h.banks, h.button);
        int button = h.button;
        do button = NextSeat(button);
        while (g.RosterBank[button] == 0);
        g.rnd.Script(test::Draws({test::ShuffleDrawsFor(test::DeckFor(button, h.holes, h.board)), h.moves}));
        g.StartHand();
        EXPECT_EQ(Play(g, p, h.presses), h.log);
        EXPECT_EQ(g.rnd.Remaining(), 0u);
    }
}

}  // namespace
}  // namespace holdem
