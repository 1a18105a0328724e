// A hand of the shown table: StartHand, the shuffle, the deal, and a whole
// hand through the real timer chain as the hand log tells it.
#include "files/statistics.h"
#include "tests/support/builders.h"

namespace holdem {
namespace {

using namespace test;

// StartHand on the all-zero shuffle over what an earlier hand left behind. Tells the positions and blinds:
// button, small and large blind, the seat to act and the one before, players, pot, the high bet, then every
// label of a bet and every stack that changed. All else the earlier hand left is cleared, the buttons and
// menus of the pause between hands go, and the roster waits for the hand's end.
std::string Start(Game& g, const std::vector<int32_t>& banks, int button, int32_t blind) {
    for (int s = 1; s <= kSeats; ++s) {
        g.SeatRaised[s] = g.view.lblPaid[s].visible = g.view.iArrow[s].visible = true;
        g.SeatTotalBet[s] = 700, g.WinnerSeats[s] = 1, g.SeatHandCode[s] = 61, g.SeatHandName[s] = "Two Pair";
    }
    for (int i = 1; i <= 21; ++i) g.view.icard[i].visible = true;
    g.view.cmdDeal.visible = g.view.cmdStandings.visible = g.view.cmdFloor.visible = g.HandIsOver = true;
    g.view.mnuSave.enabled = g.view.mnuSaveAs.enabled = true;
    g.HandsPlayed = 4, g.Street = 3, g.CardsDealt = 21, g.CardsKnown = 7;
    test::SeatTable(g, banks, button, blind);
    g.rnd.Script(std::vector<float>(52, 0.0f));
    g.StartHand();
    test::ExpectSettled(g);
    const View& v = g.view;
    std::ostringstream out;
    out << "B" << g.ButtonSeat << " S" << g.SmallBlindSeat << " L" << g.BigBlindSeat << " C" << g.CurrentSeat
        << " P" << g.PreviousSeat << " n" << g.PlayersInHand << " pot " << v.lblPot.text << " H"
        << g.HighBetIndex << "/" << g.HighBetValue << " |";
    for (int s = 1; s <= kSeats; ++s) {
        SCOPED_TRACE(s);
        if (!v.lblBet[s].text.empty()) out << " " << s << ":" << v.lblBet[s].text;
        if (g.SeatBank[s] != g.RosterBank[s]) out << " " << s << "=" << v.lblBank[s].text;
        EXPECT_EQ(g.SeatInHand[s], g.RosterBank[s] > 0);
        EXPECT_EQ(v.lblName[s].visible && v.lblBank[s].visible && v.lblBankDollarSign[s].visible,
                  g.SeatInHand[s]);
        EXPECT_EQ(v.iButton[s].visible, s == g.ButtonSeat);
        // Deck[p] and Deck[p + 8] to the seat p + 1 after the button, empty or not; the board to all.
        int p0 = (s - g.ButtonSeat + 7) % kSeats;
        EXPECT_EQ(g.SeatCards[s][1] * 100 + g.SeatCards[s][2], g.Deck[p0] * 100 + g.Deck[p0 + 8]);
        for (int k = 3; k <= 7; ++k) EXPECT_EQ(g.SeatCards[s][k], g.Deck[13 + k]);
        EXPECT_FALSE(g.SeatRaised[s] || v.lblPaid[s].visible || v.iArrow[s].visible);
        EXPECT_EQ(std::vector<int>({g.SeatTotalBet[s], g.WinnerSeats[s], g.StartingHandClass[s],
                                    g.SeatHandCode[s], g.RosterBank[s]}),
                  std::vector<int>({0, 0, 9, 200, banks[s - 1]}));
        EXPECT_EQ(g.SeatHandName[s] + "|" + v.lblName[s].text, "|" + g.RosterName[s]);
    }
    for (int i = 1; i <= 21; ++i) {  // faces for the user's cards and the board only, none shown yet
        int face = i == 1 || i == 9 ? g.SeatCards[1][i / 8 + 1] : i > 16 ? g.Deck[i - 1] : 0;
        EXPECT_EQ(v.icard[i].picture * 10 + v.icard[i].visible, face * 10) << i;
    }
    EXPECT_FALSE(v.cmdDeal.visible || v.cmdStandings.visible || v.cmdFloor.visible || g.HandIsOver ||
                 v.mnuSave.enabled || v.mnuSaveAs.enabled || v.lblHBI.visible);
    EXPECT_TRUE(v.lblBlind.visible && v.lblGoodLuck.visible && v.lblPot.visible && v.lblPotLabel.visible);
    EXPECT_EQ(std::vector<int>({g.HandsPlayed, g.Street, g.CardsDealt, g.RunningTimer()}),
              std::vector<int>({5, 1, 0, TimerDealHole}));
    EXPECT_EQ(v.lblHBI.text + " " + v.lblHBV.text + " " + v.lblPrevious.text,
              std::to_string(g.HighBetIndex) + " " + std::to_string(g.HighBetValue) + " " +
                  std::to_string(g.PreviousSeat));
    return out.str();
}

TEST(StartHand, ButtonBlindsFirstToActAndAClearedTable) {
    // clang-format off
    const std::tuple<std::vector<int32_t>, int, int32_t, const char*> rows[] = {
        {{10000, 10000, 10000, 10000, 10000, 10000, 10000, 10000}, 8, 100, "B1 S2 L3 C4 P3 n8 pot 300 H3/200 | 2:Small Blind: $100 2=9,900 3:Large Blind: $200 3=9,800"},
        // Two players: the button posts the large blind and the small blind acts first.
        {{5000, 0, 0, 0, 3000, 0, 0, 0}, 1, 100, "B5 S1 L5 C1 P5 n2 pot 300 H5/200 | 1:Small Blind: $100 1=4,900 5:Large Blind: $200 5=2,800"},
        // Three players: the button acts first.
        {{0, 4000, 0, 4000, 0, 0, 4000, 0}, 8, 100, "B2 S4 L7 C2 P7 n3 pot 300 H7/200 | 4:Small Blind: $100 4=3,900 7:Large Blind: $200 7=3,800"},
        {{4000, 0, 4000, 0, 0, 4000, 0, 4000}, 3, 100, "B6 S8 L1 C3 P1 n4 pot 300 H1/200 | 1:Large Blind: $200 1=3,800 8:Small Blind: $100 8=3,900"},
        {{10000, 0, 0, 10000, 0, 10000, 10000, 10000}, 1, 100, "B4 S6 L7 C8 P7 n5 pot 300 H7/200 | 6:Small Blind: $100 6=9,900 7:Large Blind: $200 7=9,800"},
        // Short blinds go all in and the full large blind still stands.
        {{10000, 60, 150, 10000, 10000, 10000, 10000, 10000}, 8, 100, "B1 S2 L3 C4 P3 n8 pot 210 H3/200 | 2:Small Blind: $60 All In 2=0 3:Large Blind: $150 All In 3=0"},
        {{10000, 250, 500, 10000, 10000, 10000, 10000, 10000}, 8, 250, "B1 S2 L3 C4 P3 n8 pot 750 H3/500 | 2:Small Blind: $250 2=0 3:Large Blind: $500 3=0"},
        {{10000, 2000000, 2000000, 10000, 10000, 10000, 10000, 10000}, 8, 25000, "B1 S2 L3 C4 P3 n8 pot 75,000 H3/50000 | 2:Small Blind: $25,000 2=1,975,000 3:Large Blind: $50,000 3=1,950,000"},
    };
    // clang-format on
    for (auto& [banks, button, blind, outcome] : rows) {
        ScriptedPlatform p;
        Game g(p);
        EXPECT_EQ(Start(g, banks, button, blind), outcome);
        g.StopHandTimers();
        g.rnd.Script(std::vector<float>(52, 0.0f));
        g.cmdDeal_Click();  // Deal starts the next hand
        EXPECT_EQ(g.HandsPlayed, 6);
        test::ExpectSettled(g);
    }
}

// Three players: the user all in for $1,000 on the button, the small blind re-raises to $2,000, the large
// blind calls, both check it down. Kings beat queens for the main pot; the queens take the side pot.
TEST(HandLog, TellsASidePotHandFromBlindsToPayments) {
    ScriptedPlatform p;
    Game g(p);
    SeatTable(g, {1000, 0, 5000, 0, 5000, 0, 0, 0}, 7);
    for (int s : {2, 4, 6, 7, 8}) g.RosterPlace[s] = static_cast<int16_t>(s);  // out before this hand
    auto deck = DeckFor(1, {"", "KhKs", "", "QhQs", "", "Ad3c"}, "2h7s9dJc4h");
    const float check = 0.999f;
    g.rnd.Script(Draws({ShuffleDrawsFor(deck), {0, 0, 0}, {0, check}, std::vector<float>(6, check)}));
    p.betAmounts.push_back(1000);

    g.StartHand();
    RunTimers(g);
    g.cmdPlay_Click(3);
    RunTimers(g);
    ExpectSettled(g);

    // clang-format off
    std::string lines;  // " / " between lines
    for (const LogLine& line : g.view.log) lines += (lines.empty() ? "" : " / ") + FormatLogLine(line);
    EXPECT_EQ(lines,
        "Hand 1: You has the button, blinds $100 - $200 / You (you) holds K\u2665 K\u2660 / "
        "Player 3 posts the small blind $100 / Player 5 posts the large blind $200 / "
        "You raises $800 to $1,000, all in / Player 3 raises $1,000 to $2,000 / Player 5 calls $1,800 / "
        "*** Flop: 2\u2665 7\u2660 9\u2666 *** / Player 3 checks / Player 5 checks / "
        "*** Turn: 2\u2665 7\u2660 9\u2666 J\u2663 *** / Player 3 checks / Player 5 checks / "
        "*** River: 2\u2665 7\u2660 9\u2666 J\u2663 4\u2665 *** / Player 3 checks / Player 5 checks / "
        "You shows K\u2665 K\u2660: Kings / Player 3 shows Q\u2665 Q\u2660: Queens / Player 5 shows A\u2666 3\u2663: high card / "
        "You is paid $3,000, stack $3,000 / Player 3 is paid $2,000, stack $5,000 / Pot $5,000, you won $3,000");
    // clang-format on

    // The same events make the user's record.
    Statistics stats;
    StatisticsWatcher watcher;
    for (const LogLine& line : g.view.log) watcher.Observe(stats, line);
    EXPECT_EQ(std::vector<int64_t>({stats.handsPlayed, stats.handsVoluntary, stats.handsWon,
                                    stats.showdownsWon, stats.biggestPotWon}),
              std::vector<int64_t>({1, 1, 1, 1, 3000}));
}

}  // namespace
}  // namespace holdem
