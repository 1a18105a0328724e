// StartHand, a whole hand as the log tells it; the user's turn, its presses and refusals; the bet dialog.
#include "engine/bet_amount.h"
#include "files/statistics.h"
#include "tests/support/builders.h"

namespace holdem {
namespace {

using namespace test;

// clang-format off
// StartHand: the banks of seats 1..8, the button before it moves, the blind; the outcome as Start() tells it.
const std::tuple<std::vector<int32_t>, int, int32_t, const char*> kStarts[] = {
    {{10000, 10000, 10000, 10000, 10000, 10000, 10000, 10000}, 8, 100, "B1 S2 L3 C4 P3 n8 pot 300 H3/200 | 2:Small Blind: $100 2=9,900 3:Large Blind: $200 3=9,800"},
    {{5000, 0, 0, 0, 3000, 0, 0, 0}, 1, 100, "B5 S1 L5 C1 P5 n2 pot 300 H5/200 | 1:Small Blind: $100 1=4,900 5:Large Blind: $200 5=2,800"},  // two: the button posts the large blind
    {{0, 4000, 0, 4000, 0, 0, 4000, 0}, 8, 100, "B2 S4 L7 C2 P7 n3 pot 300 H7/200 | 4:Small Blind: $100 4=3,900 7:Large Blind: $200 7=3,800"},  // three: the button acts first
    {{4000, 0, 4000, 0, 0, 4000, 0, 4000}, 3, 100, "B6 S8 L1 C3 P1 n4 pot 300 H1/200 | 1:Large Blind: $200 1=3,800 8:Small Blind: $100 8=3,900"},
    {{10000, 0, 0, 10000, 0, 10000, 10000, 10000}, 1, 100, "B4 S6 L7 C8 P7 n5 pot 300 H7/200 | 6:Small Blind: $100 6=9,900 7:Large Blind: $200 7=9,800"},
    // Short blinds go all in and the full large blind still stands.
    {{10000, 60, 150, 10000, 10000, 10000, 10000, 10000}, 8, 100, "B1 S2 L3 C4 P3 n8 pot 210 H3/200 | 2:Small Blind: $60 All In 2=0 3:Large Blind: $150 All In 3=0"},
    {{10000, 250, 500, 10000, 10000, 10000, 10000, 10000}, 8, 250, "B1 S2 L3 C4 P3 n8 pot 750 H3/500 | 2:Small Blind: $250 2=0 3:Large Blind: $500 3=0"},
    {{10000, 2000000, 2000000, 10000, 10000, 10000, 10000, 10000}, 8, 25000, "B1 S2 L3 C4 P3 n8 pot 75,000 H3/50000 | 2:Small Blind: $25,000 2=1,975,000 3:Large Blind: $50,000 3=1,950,000"},
};
// Stakes "seat:bet" this street, "-seat" folded; bank: the user's stack before; dialog: what it hands back.
// Opened: lblBet(1), buttons on. Outcome: lblBet(1) | timer | HighBetIndex/Value | bank pot | CurrentSeat |
struct Turn { int street; const char* stakes; int32_t bank; int highIndex; int32_t highValue; int button, press; int32_t dialog; const char *opened, *outcome; bool sound = true; };
const Turn kTurns[] = {
    {2, "4:600", 10000, 4, 600, 1, 2, 0, "Amount to Call: $600 234", "Called $600 | 3 | 4/600 | 9400 1200 | 2 |"},
    {2, "4:600", 0, 4, 600, 1, 3, 0, "Amount to Call: $600 134", "Amount to Call: $600 | 9 | 4/600 | 0 600 | 1 | You're all in. You have no more chips to bet!"},
    {3, "", 10000, 0, 0, 1, 1, 0, "Amount to Call: $0 134", "Checked | 5 | 1/0 | 10000 0 | 2 |"},
    {3, "-2", 10000, 0, 0, 1, 1, 0, "Amount to Call: $0 134", "Checked | 5 | 1/0 | 10000 0 | 3 |"},
    {3, "", 10000, 2, 0, 1, 1, 0, "Amount to Call: $0 134", "Checked | 6 | 2/0 | 10000 0 | 1 |"},
    {4, "", 10000, 1, 0, 1, 1, 0, "Amount to Call: $0 134", "Checked | 8 | 1/0 | 10000 0 | 1 |"},
    {1, "1:200", 10000, 1, 200, 7, 1, 0, "Amount to Call: $0 134", "Checked | 2 | 1/200 | 9800 200 | 1 |"},
    {1, "1:200", 10000, 1, 200, 6, 1, 0, "Amount to Call: $0 14", "Checked | 2 | 1/200 | 9800 200 | 1 |"},
    {1, "1:200", 10000, 1, 200, 7, 3, 600, "Amount to Call: $0 134", "Raise $600 to $800 | 1 | 1/800 | 9200 800 | 2 | [0 9800]"},
    {1, "1:600", 10000, 1, 600, 7, 3, 600, "Amount to Call: $0 134", "Amount to Call: $0 | 9 | 1/600 | 9400 600 | 1 | You cannot bet again this round."},
    {2, "", 10000, 1, 0, 1, 3, 600, "Amount to Call: $0 134", "Amount to Call: $0 | 9 | 1/0 | 10000 0 | 1 | You cannot bet again this round."},
    {1, "5:800", 800, 5, 800, 1, 3, 0, "Amount to Call: $800 234", "Amount to Call: $800 | 9 | 5/800 | 800 800 | 1 | You do not have enough chips to raise!"},
    {1, "5:800", 800, 5, 800, 1, 2, 0, "Amount to Call: $800 234", "Called $800 | 1 | 5/800 | 0 1600 | 2 |"},
    {3, "2:1000", 700, 2, 1000, 1, 2, 0, "Amount to Call: $1,000 234", "Called $700 All In | 6 | 2/1000 | 0 1700 | 1 |"},
    {1, "1:200 4:600", 10000, 4, 600, 1, 3, 1400, "Amount to Call: $400 234", "Raise $1,000 to $1,600 | 1 | 1/1600 | 8400 2200 | 2 | [400 9800]"},
    {1, "1:200 4:600", 10000, 4, 600, 1, 3, 0, "Amount to Call: $400 234", "Amount to Call: $400 | 9 | 4/600 | 9800 800 | 1 | [400 9800]"},
    {3, "", 10000, 5, 0, 1, 3, 500, "Amount to Call: $0 134", "Bet $500 | 5 | 1/500 | 9500 500 | 2 | [0 10000]"},
    {2, "", 3000, 0, 0, 1, 3, 3000, "Amount to Call: $0 134", "Bet $3,000 All In | 3 | 1/3000 | 0 3000 | 2 | [0 3000]"},
    {2, "6:1000", 3000, 6, 1000, 1, 3, 3000, "Amount to Call: $1,000 234", "Raise $2,000 to $3,000 All In | 3 | 1/3000 | 0 4000 | 2 | [1000 3000]"},
    {2, "", 10000, 0, 0, 1, 3, 20000, "Amount to Call: $0 134", "Amount to Call: $0 | 9 | 0/0 | 10000 0 | 1 | [0 10000]"},
    {1, "1:200 2:100 -3:200 4:200 6:200", 10000, 1, 200, 1, 4, 0, "Amount to Call: $0 14", "Folded | 1 | 3/200 | 9800 900 | 2 |"},
    {1, "1:100 2:300 4:300 5:400 -6:200 7:200", 10000, 2, 400, 1, 4, 0, "Amount to Call: $300 234", "Folded | 1 | 5/400 | 9900 1500 | 2 |"},
    {3, "5:900 7:1200", 10000, 5, 900, 1, 4, 0, "Amount to Call: $900 234", "Folded | 5 | 5/900 | 10000 2100 | 2 |"},
    {2, "", 10000, 0, 0, 1, 4, 0, "Amount to Call: $0 134", "Folded | 3 | 0/0 | 10000 0 | 2 |"},
    {2, "-3 -4 -5 -6 -7 -8 2:400", 10000, 2, 400, 1, 4, 0, "Amount to Call: $400 234", "Folded | 8 | 2/400 | 10000 400 | 1 |"},
    {2, "4:600", 10000, 4, 600, 1, 2, 0, "Amount to Call: $600 234", "Called $600 | 3 | 4/600 | 9400 1200 | 2 |", false},  // no click
};
// clang-format on

// StartHand on the all-zero shuffle clears an earlier hand; tells seats, pot, high bet, bets, stacks.
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
    for (auto& [banks, button, blind, outcome] : kStarts) {
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

// The user all in for $1,000, re-raised to $2,000 and called, checked down: Kings main pot, Queens side pot.
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
    std::string flags;  // the large blind, the user's raise, the user's payment, the user's win
    for (const LogLine& line : g.view.log) flags += line.flag ? '1' : '0';
    EXPECT_EQ(flags, "0001100000000000000101");

    // The same events make the user's record.
    Statistics stats;
    StatisticsWatcher watcher;
    for (const LogLine& line : g.view.log) watcher.Observe(stats, line);
    EXPECT_EQ(std::vector<int64_t>({stats.handsPlayed, stats.handsVoluntary, stats.handsWon,
                                    stats.showdownsWon, stats.biggestPotWon}),
              std::vector<int64_t>({1, 1, 1, 1, 3000}));
}

// The table after StartHand with the blinds taken back: every seat in with $10,000, the user to act. Presses
// out of range, of a disabled button or after the turn change nothing.
TEST(UserAction, OpeningTheTurnAndEachPress) {
    for (const Turn& t : kTurns) {
        SCOPED_TRACE(::testing::Message() << "row " << &t - kTurns);
        test::ScriptedPlatform p;
        Game g(p);
        test::SeatTable(g, std::vector<int32_t>(kSeats, 10000), 8);
        g.rnd.Script(std::vector<float>(52, 0.0f));
        g.StartHand();
        g.StopHandTimers();
        g.SeatBet = {}, g.Pot = 0;
        for (int s = 1; s <= kSeats; ++s) g.SeatBank[s] = s == 1 ? static_cast<float>(t.bank) : 10000.0f;
        std::istringstream in(t.stakes);
        for (std::string st; in >> st;) {
            int seat = std::abs(std::stoi(st.substr(0, 2)));
            if (st[0] == '-') g.SeatInHand[seat] = false, --g.PlayersInHand;
            int32_t bet = st.find(':') == std::string::npos ? 0 : std::stoi(st.substr(st.find(':') + 1));
            g.SeatBet[seat] = bet, g.SeatBank[seat] -= static_cast<float>(bet), g.Pot += bet;
        }
        g.CurrentSeat = 1, g.PreviousSeat = 8, g.HighBetValue = t.highValue;
        g.Street = static_cast<int16_t>(t.street), g.ButtonSeat = static_cast<int16_t>(t.button);
        g.HighBetIndex = static_cast<int16_t>(t.highIndex);
        g.EnableTimer(static_cast<TimerId>(2 * t.street - 1));
        g.view.icard[1].visible = g.view.icard[9].visible = true;
        g.OpenUserTurn();
        std::string opened = g.view.lblBet[1].text + " ";
        for (int i = 1; i <= 4; ++i) opened += g.view.cmdPlay[i].enabled ? std::to_string(i) : "";
        EXPECT_EQ(opened + (g.RunningTimer() == kTimerCount ? "" : " timer running"), t.opened);
        for (int i = 1; i <= 4; ++i) EXPECT_TRUE(g.view.cmdPlay[i].visible);
        p.sounds.clear();
        p.betAmounts.push_back(t.dialog);
        g.view.mnuSound.checked = t.sound;
        for (int i = 0; i <= 5; ++i)
            if (i < 1 || i > 4 || !g.view.cmdPlay[i].enabled) g.cmdPlay_Click(i);
        g.cmdPlay_Click(t.press);
        std::ostringstream out;
        out << g.view.lblBet[1].text << " | " << g.RunningTimer() << " | " << g.HighBetIndex << "/"
            << g.HighBetValue << " | " << g.SeatBank[1] << " " << g.Pot << " | " << g.CurrentSeat << " |";
        for (const auto& m : p.messages) {
            out << " " << m.text;
            EXPECT_TRUE(m.icon == MsgIcon::Information && m.buttons == MsgButtons::OK &&
                        m.title == "Texas Hold'em");
        }
        for (const auto& r : p.betRequests) {
            out << " [" << r.ToCallAmount << " " << r.MaxBetAmount << "]";
            EXPECT_EQ(r.HighBetIndex * 100000 + r.HighBetValue, t.highIndex * 100000 + t.highValue);
        }
        EXPECT_EQ(out.str(), t.outcome);
        bool done = g.view.lblBet[1].text.rfind("Amount", 0) != 0;
        for (int i = 1; i <= 4; ++i) EXPECT_EQ(g.view.cmdPlay[i].visible, !done) << i;
        const std::string after = StateText(g);
        if (done) g.cmdPlay_Click(t.press);
        EXPECT_EQ(StateText(g), after);
        EXPECT_EQ(p.sounds, std::vector<std::string>(t.sound, "BUTTONCLICK"));
        if (done && (t.press == 2 || t.press == 3)) {
            EXPECT_EQ(g.view.lblBank[1].text, Money(static_cast<int64_t>(g.SeatBank[1])));
            EXPECT_EQ(g.view.lblPot.text, Money(g.Pot));
        }
        EXPECT_EQ(g.view.icard[1].visible, g.SeatInHand[1]);
        EXPECT_EQ(g.rnd.Overdrawn(), 0);
    }
}

// clang-format off
const BetAmountRequest raise{4, 600, 600, 5050}, bet{0, 0, 0, 3000}, checked{3, 0, 0, 3000}, rich{2, 2'000'000'000, 2'000'000'000, 2'147'483'000};
const char* const kHundreds = "You must bet in multiples of $100.|0|1 Texas Hold'em";
const char* const kStack = "|1|1 Bet Exceeds Your Chip Stack";
const struct BetRow { const BetAmountRequest& request; const char* text; bool enter; std::string outcome; /* closes with BetAmount, or message|clears the text|icon */ } kBetTexts[] = {
    {raise, "", false, "No bet entered|1|0 Texas Hold'em"}, {raise, "0", false, "No bet entered|1|0 Texas Hold'em"},
    {raise, "000", false, "No bet entered|1|0 Texas Hold'em"}, {raise, "", true, "No bet entered|0|0 Texas Hold'em"},
    {raise, "0", true, "close 0"}, {raise, "150", false, kHundreds}, {raise, "50", false, kHundreds},
    {raise, "1", false, kHundreds}, {raise, "4450", false, kHundreds}, {raise, "1001", false, kHundreds},
    {raise, "250", true, kHundreds}, {raise, "100", false, "close 700"}, {raise, "4400", false, "close 5000"},
    {raise, "200", true, "close 800"}, {bet, "3000", false, "close 3000"}, {bet, "0100", false, "close 100"},
    {checked, "500", false, "close 500"}, {bet, "-100", false, kHundreds}, {bet, "1e3", false, kHundreds},
    {bet, "1,000", false, kHundreds}, {bet, " 100", false, kHundreds}, {bet, "abc", false, kHundreds},
    {bet, "99999999999999999999999999999950", false, kHundreds}, {rich, "2147483600", false, std::string("You've only got $2,147,483,000.") + kStack},
    {raise, "4500", false, std::string("You've only got $5,050.") + kStack}, {raise, "9900", true, std::string("You've only got $5,050.") + kStack},
    {bet, "3100", false, std::string("You've only got $3,000.") + kStack}, {bet, "2147483700", false, std::string("You've only got $3,000.") + kStack},
    {bet, "99999999999999999999999999999900", false, std::string("You've only got $3,000.") + kStack},
};
// clang-format on

// The dialog opens in raise or bet mode, takes digits and line keys only, and OK or Enter check the amount.
TEST(BetAmount, OpensTakesKeysAndChecksTheAmount) {
    const BetAmountLayout up = BetAmountOpen(raise),
                          first = BetAmountOpen(BetAmountRequest{0, 0, 0, 1234567});
    EXPECT_EQ(up.title + "|" + up.lblBetAmount + "|" + up.lblToCallAmount + "|" + up.lblMaxRaise + "|" +
                  up.lblMaxRaiseAmount + "|" + BetAmountMaxText(raise) + "|" + BetAmountMaxText(bet),
              "Enter Raise Amount|How much do you want to raise?|$600|Max Raise (All In):|$4,450|4450|3000");
    EXPECT_EQ(
        first.title + "|" + first.lblBetAmount + "|" + first.lblMaxRaise + "|" + first.lblMaxRaiseAmount,
        "Enter Bet Amount|How much do you want to bet?|Max Bet (All In):|$1,234,567");
    EXPECT_TRUE(up.toCallVisible && !first.toCallVisible);
    std::string allowed;
    for (int c = 0; c < 128; ++c)
        if (BetAmountKeyAllowed(static_cast<char>(c))) allowed += static_cast<char>(c);
    EXPECT_EQ(allowed, "\b\r0123456789");
    for (const BetRow& r : kBetTexts) {
        BetAmountOutcome out = r.enter ? BetAmountEnter(r.request, r.text) : BetAmountOk(r.request, r.text);
        std::string got = out.close ? "close " + std::to_string(out.betAmount) : "";
        if (out.message)
            got += out.message->text + "|" + std::to_string(out.clearText) + "|" +
                   std::to_string(out.message->icon == MsgIcon::Information) +
                   (out.message->title.empty() ? "" : " " + out.message->title);
        EXPECT_EQ(got, r.outcome) << r.text << (r.enter ? " enter" : " ok");
        EXPECT_TRUE(out.close || out.betAmount == 0);
    }
}

}  // namespace
}  // namespace holdem
