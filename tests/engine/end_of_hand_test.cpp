// The end of a hand: paying the shown table, the blinds, the places, the ways out, the pot breakdown.
#include "engine/end_of_hand.h"

#include "tests/support/builders.h"

namespace holdem {
namespace {

// clang-format off
const std::pair<int16_t, const char*> kBlinds[] = {  // per size, from the top: n above the first figure plays the second
    {8, "6:100 4:200 3:400 2:600 0:1000"}, {80, "60:100 50:200 40:400 30:600 20:800 10:1000 5:2000 3:4000 0:8000"},
    {200, "160:100 120:200 80:400 60:600 50:800 40:1000 30:1500 20:2000 10:4000 5:7000 3:10000 0:15000"},
    {1000, "900:100 800:200 700:400 600:600 500:800 400:1000 300:1500 200:2000 100:4000 50:7000 30:10000 15:15000 7:20000 3:25000 0:35000"}};
// Settle(): each row's stakes and what is paid, shown and heard.
const std::pair<const char*, const char*> kSettles[] = {
    {"2:1000:AhAd 3:5000:KhKd 4:5000:QhQd", "2:3,000 3:8,000 >2 Aces Kings Queens LOSTHAND"},  // Layer1 3,000, Layer2 8,000
    {"2:1000:AhAd 3:5000:KhKd 4:300", "2:2,300 3:4,000 >2 Aces Kings LOSTHAND"},  // the uncalled part comes back as a payment
    // Odd hundreds one by one in finish order: layers of 500, 700, 800, 1,000, 1,100.
    {"2:200:AhKd 3:200:AsKc 6:100", "2:300 3:200 >2 3 LOSTHAND"}, {"2:200:AhKd 3:200:AsKc 4:200:AdKh 6:100", "2:300 3:200 4:200 >2 3 4 LOSTHAND"},
    {"2:200:AhKd 3:200:AsKc 4:200:AdKh 6:200", "2:300 3:300 4:200 >2 3 4 LOSTHAND"}, {"2:300:AhKd 3:300:AsKc 4:300:AdKh 6:100", "2:400 3:300 4:300 >2 3 4 LOSTHAND"},
    {"2:300:AhKd 3:300:AsKc 4:300:AdKh 6:100 7:100", "2:400 3:400 4:300 >2 3 4 LOSTHAND"},
    {"1:400:AsKc 2:400:AhKd 3:200:QhQd 4:300", "1:200 2:300 3:800 >3 Queens LOSTHAND"},  // 1 and 2 tied behind: 2 first; a side layer is no won hand
    {"2:900:AhKd 3:3000:AsKc 4:3000:Qh8d", "2:1,400 3:5,500 >2 3 LOSTHAND"},  // Layer1 2,700 split with its odd hundred
    // The best hand staked least: each layer to the first place that can claim it; above the fourth, one.
    {"2:500:AhAd 3:2000:KhKd 4:4000:QhQd 5:4000:ThTd", "2:2,000 3:4,500 4:4,000 >2 Aces Kings Queens Tens LOSTHAND"},
    {"2:1000:AhAd 3:2000:KhKd 4:3000:QhQd 5:4000:ThTd 6:5000:8h8d 7:6000:6h6d", "2:6,000 3:5,000 4:4,000 5:3,000 6:3,000 >2 Aces Kings Queens Tens Eights Sixes LOSTHAND"},
    {"2:6000:AhAd 3:5000:KhKd 4:4000:QhQd 5:3000:ThTd 6:2000:8h8d 7:1000:6h6d", "2:21,000 >2 Aces Kings Queens Tens Eights Sixes LOSTHAND"},
    {"2:1000:6h6d 3:6000:KhKd 4:5000:QhQd 5:4000:ThTd 6:3000:8h8d 7:2000:AhAd", "3:10,000 7:11,000 >7 Sixes Kings Queens Tens Eights Aces LOSTHAND"},
    // Equal stakes add one level; a folded stake above all goes to whoever is in; the user folds.
    {"1:2000:AhAd 2:2000:KhKd 3:2000:QhQd 4:1000:ThTd 5:3000", "1:10,000 >1 Aces Kings Queens Tens WONHAND"},
    {"1:200 2:500:AhAd 3:3000:KhKd 4:3000:QhQd", "2:1,700 3:5,000 >2 Aces Kings Queens LOSTHAND"},
    // A Layer5 nobody in the hand can claim leaves the table, and the closing check says so.
    {"2:1000:AhAd 3:2000:KhKd 4:3000:QhQd 5:4000:ThTd 6:5000", "2:5,000 3:4,000 4:3,000 5:2,000 >2 Aces Kings Queens Tens LOSTHAND | Table 1: Total Pot: 15000   Total Paid: 14000 | Table Total: 79000"},
    {"2:100 3:200:AhKd", "3:300 >3 LOSTHAND"},  // all fold to the large blind, no card turned
    {"1:1000:AhAd 3:5000:KhKd 4:5000:Qh8d 6:300", "1:3,300 3:8,000 >1 Aces Kings WONHAND"},
};
// clang-format on

TEST(EndOfHand, BlindsByPlayersLeftAtEveryBoundary) {
    test::ScriptedPlatform p;
    Game g(p);
    auto blindAt = [&g](int16_t size, int n) {
        g.TournamentSize = size, g.PlayersLeft = static_cast<int16_t>(n), g.SmallBlind = 700;
        g.SetBlinds();
        return g.SmallBlind;
    };
    for (auto [size, steps] : kBlinds) {
        EXPECT_EQ(blindAt(size, size), 100) << size;
        std::istringstream in(steps);
        int above = 0, previous = -1;
        char colon = 0;
        for (int32_t blind = 0; in >> above >> colon >> blind; previous = above) {
            EXPECT_EQ(blindAt(size, above + 1), blind) << size << " above " << above;
            EXPECT_EQ(previous < 0 ? blind : blindAt(size, previous), blind) << size << " at " << previous;
        }
    }
    EXPECT_EQ(blindAt(100, 3), 700);  // any other size leaves the blind as it is
    std::string all;
    for (int16_t n : {1, 2, 3, 4, 11, 12, 13, 21, 22, 23, 101, 111, 112, 1000}) all += FinishText(n) + ",";
    EXPECT_EQ(all,
              "You Finished 1st,You Finished 2nd,You Finished 3rd,You Finished 4th,You Finished 11th,You "
              "Finished 12th,You Finished 13th,You Finished 21st,You Finished 22nd,You Finished 23rd,You "
              "Finished 101st,You Finished 111th,You Finished 112th,You Finished 1000th,");
}

// A shown hand at its end: the user against one opponent, the rest folded; no other table plays.
struct HandOver {
    HandOver() { g.rnd.Script({}); }
    ~HandOver() { test::ExpectSettled(g); }
    // `size` players of 10,000; those in `out` busted before, placed upward from NextFinishPlace + 1.
    void Field(int16_t size, const std::vector<int>& out = {}) {
        test::EmptyTable(g, size);
        for (int i = 1; i <= size; ++i)
            g.RosterName[i] = "Player " + std::to_string(i), g.RosterBank[i] = 10000, g.RosterPlace[i] = 0;
        g.UserFinishPlace = 0;
        g.NextFinishPlace = g.PlayersLeft = static_cast<int16_t>(size - out.size());
        int16_t place = g.NextFinishPlace;
        for (int i : out) g.RosterBank[i] = 0, g.RosterPlace[i] = ++place;
        g.TablesInPlay = 1;
        test::SetBoard(g, "2c7d9hJs4s");
        for (int s = 1; s <= kSeats; ++s) {
            test::SeatPlayer(g, s, static_cast<float>(g.RosterBank[s]), 0, 0, false);
            test::SetHole(g, s, "3c5c");
        }
    }
    void Showdown(int32_t stake, bool userWins, int opponent = 2) {
        g.HandIsOver = false;
        for (int s = 1; s <= kSeats; ++s) {
            bool in = s == 1 || s == opponent;
            test::SeatPlayer(g, s, static_cast<float>(g.RosterBank[s] - (in ? stake : 0)), in ? stake : 0, 0,
                             in);
        }
        test::SetHole(g, 1, userWins ? "AhAd" : "KhKd");
        test::SetHole(g, opponent, userWins ? "KcKs" : "AcAs");
        g.view.timer[TimerHandOver].enabled = true;
        test::RankRiver(g);
        g.TimerHandOver_Timer();
    }
    // The game after the hand, in one line.
    std::string State() const {
        std::ostringstream s;
        s << "left " << g.PlayersLeft << " next " << g.NextFinishPlace << " user " << g.UserFinishPlace << " "
          << g.view.lblBlind.text;
        const View& v = g.view;
        // clang-format off
        for (auto [on, what] : {std::pair(v.cmdDeal.visible, " deal"), {v.cmdStandings.visible, " standings"}, {v.cmdFloor.visible, " floor"},
                                {v.picTableMoney.visible, " winner"}, {v.mnuSave.enabled && v.mnuSaveAs.enabled, " save"},
                                {g.GameUnsaved, " unsaved"}, {g.GameEnded, " ended"}})
            if (on) s << what;
        // clang-format on
        for (const auto& sound : p.sounds) s << " " << sound;
        for (int16_t place : p.gameOvers) s << " over " << place;
        s << " pauses " << p.pauses;
        return s.str();
    }
    test::ScriptedPlatform p;
    Game g{p};
};

// Field, out elsewhere now, blind, sound, Deal; each hand and the game after; the places of 1, 2, 8 ... 200.
TEST(EndOfHand, PlacesBlindsAndTheEndOfTheGame) {
    std::vector<int> wide;  // out before in a field of 200, with places 58 to 200
    for (int i = 58; i <= 200; ++i)
        if (i != 75 && i != 140) wide.push_back(i);
    wide.push_back(41), wide.push_back(42);
    // clang-format off
    // The blinds follow the count before the hand: 7 left, so still 100; then 6, so 200.
    const struct { int16_t size; std::vector<int> out, elsewhere; int32_t blind; bool sound, deal; std::vector<std::tuple<int32_t, bool, int, const char*>> hands; std::vector<int> places; } cases[] = {
        {8, {8}, {}, 100, true, false, {{10000, true, 2, "left 6 next 6 user 0 Blinds: $100 - $200 deal standings floor save unsaved WONHAND pauses 1"},
                                        {1000, true, 3, "left 6 next 6 user 0 Blinds: $200 - $400 deal standings floor save unsaved WONHAND pauses 1"}}, {0, 7, 8, 0, 0, 0, 0, 0}},
        {200, wide, {20, 75, 140}, 800, true, false, {{10000, false, 2, "left 53 next 53 user 57 Blinds: $800 - $1,600 save unsaved ended LOSTHAND GAMEOVER over 57 pauses 1"}}, {57, 0, 0, 56, 199, 55, 54, 198}},
        // The last two, sound off: the end sounds play all the same. Closing the game-over form hid Deal.
        {8, {8, 7, 6, 5, 4, 3}, {}, 100, false, true, {{10000, false, 2, "left 1 next 1 user 2 Blinds: $1,000 - $2,000 save unsaved ended GAMEOVER over 2 pauses 1"}}, {2, 0, 3, 0, 0, 0, 0, 0}},
        {8, {8, 7, 6, 5, 4, 3}, {}, 100, false, false, {{10000, true, 2, "left 1 next 1 user 0 Blinds: $1,000 - $2,000 winner save unsaved ended WIN pauses 2"}}, {0, 2, 3, 0, 0, 0, 0, 0}},
    };
    // clang-format on
    for (const auto& c : cases) {
        SCOPED_TRACE(std::get<3>(c.hands.back()));
        HandOver t;
        Game& g = t.g;
        t.Field(c.size, c.out);
        for (int i : c.elsewhere) g.RosterBank[i] = 0;
        g.SmallBlind = c.blind, g.view.mnuSound.checked = c.sound, g.view.cmdDeal.visible = c.deal;
        for (const auto& [stake, userWins, opponent, state] : c.hands) {
            t.p.sounds.clear(), t.p.gameOvers.clear(), t.p.pauses = 0;
            t.Showdown(stake, userWins, opponent);
            EXPECT_EQ(t.State() + (g.RunningTimer() == kTimerCount ? "" : " timer running"), state);
            for (int s = 1; s <= kSeats; ++s) EXPECT_EQ(g.BreakdownName[s], g.RosterName[s]);
        }
        std::vector<int> places;
        for (int pos : {1, 2, 8, 20, 41, 75, 140, 200}) places.push_back(g.RosterPlace[pos]);
        EXPECT_EQ(places, c.places);  // a place is given once, and earlier places stand
    }
}

TEST(EndOfHand, PotBreakdownLiveThenSnapshot) {
    HandOver t;
    Game& g = t.g;
    test::ScriptedPlatform& p = t.p;
    t.Field(8, {5});
    g.RosterName[5] = "";
    test::SeatPlayer(g, 1, 9000.0f, 600, 400);
    test::SeatPlayer(g, 2, 9000.0f, 600, 400);
    test::SeatPlayer(g, 3, 9400.0f, 600, 0, false);
    test::SetHole(g, 1, "AhAd");
    test::SetHole(g, 2, "KhKd");
    auto shown = [&p] {
        const PotBreakdown& b = p.breakdowns.back();
        std::string s;
        for (int i = 1; i <= kSeats; ++i) s += b.name[i] + "=" + std::to_string(b.bet[i]) + " ";
        return s + std::to_string(b.total);
    };
    const std::string live =
        "Player 1=1000 Player 2=1000 Player 3=600 Player 4=0 =0 Player 6=0 Player 7=0 Player 8=0 2600";
    g.lblPot_Click();
    EXPECT_EQ(shown(), live);
    EXPECT_EQ(g.BreakdownTotal, 2600);
    for (int s = 1; s <= kSeats; ++s) g.SeatTotalBet[s] += g.SeatBet[s], g.SeatBet[s] = 0;  // a new street
    g.lblPotLabel_Click();
    EXPECT_EQ(shown(), live);
    g.view.timer[TimerHandOver].enabled = true;  // after the hand: the stakes, not the payments
    test::RankRiver(g);
    g.TimerHandOver_Timer();
    g.RosterName[1] = "Renamed";
    g.SeatTotalBet[1] = 0;
    g.lblPot_Click();
    EXPECT_EQ(shown(), live);
    g.HandIsOver = false;  // a new hand: live figures again
    for (int s = 1; s <= kSeats; ++s) g.SeatTotalBet[s] = g.SeatBet[s] = 0;
    g.SeatBet[2] = 100, g.SeatBet[3] = 200;
    g.lblPot_Click();
    EXPECT_EQ(shown(),
              "Renamed=0 Player 2=100 Player 3=200 Player 4=0 =0 Player 6=0 Player 7=0 Player 8=0 300");
    EXPECT_EQ(p.breakdowns.size(), 4u);
}

// Paying the shown table: finish order, stake levels, layers, odd hundreds, marks, sound, pause, check.
constexpr int32_t kStart = 10000;

// Seats "2:1000:AhAd" (no cards: folded) stake from 10,000 over no board; tells "seat:paid", ">" arrows.
std::string Settle(const std::string& stakes, bool sound = true) {
    test::ScriptedPlatform p;
    Game g(p);
    test::EmptyTable(g);
    g.view.mnuSound.checked = sound;
    g.rnd.Script({});
    test::SetBoard(g, "2c7d9hJs4s");
    for (int s = 1; s <= kSeats; ++s) test::SeatPlayer(g, s, kStart, 0, 0, false);
    std::istringstream in(stakes);
    for (std::string st; in >> st;) {
        int seat = st[0] - '0', stake = std::stoi(st.substr(2));
        std::string hole = st.size() > 7 && st[st.size() - 5] == ':' ? st.substr(st.size() - 4) : "";
        test::SeatPlayer(g, seat, static_cast<float>(kStart - stake), stake, 0, !hole.empty());
        if (!hole.empty()) test::SetHole(g, seat, hole);
        g.SeatHandCode[seat] = 61;  // ranked on the river, then folded
    }
    test::RankRiver(g);
    for (int s = 1; s <= kSeats; ++s)
        g.view.lblBet[s].text = "Checked";  // the betting's words go when it closes
    g.TimerHandOver_Timer();

    std::string out, arrows;
    for (int s = 1; s <= kSeats; ++s) {
        int32_t paid = g.RosterBank[s] - kStart + g.BreakdownBet[s];
        EXPECT_EQ(g.view.lblPaid[s].visible, paid > 0) << s;
        EXPECT_EQ(g.view.lblBank[s].text, Money(g.RosterBank[s])) << s;
        EXPECT_EQ(g.SeatHandCode[s] == kNoHand, !g.SeatInHand[s]) << s;
        if (paid > 0) {
            EXPECT_EQ(g.view.lblPaid[s].text, "Paid $" + Money(paid));
            out += std::to_string(s) + ":" + Money(paid) + " ";
        }
        if (g.view.iArrow[s].visible) arrows += " " + std::to_string(s);
        EXPECT_EQ(g.view.icard[s].picture != 0, g.SeatInHand[s] && g.PlayersInHand > 1) << s;
    }
    out += ">" + arrows.substr(std::min<std::size_t>(1, arrows.size()));
    for (int s = 1; s <= kSeats; ++s)  // the names, only with two or more left
        if (!g.view.lblBet[s].text.empty()) out += " " + g.view.lblBet[s].text;
    for (const auto& sound : p.sounds) out += " " + sound;
    for (const auto& m : p.messages) {
        out += " | " + m.text;
        EXPECT_TRUE(m.buttons == MsgButtons::OK && m.icon == MsgIcon::None && m.title.empty());
    }
    EXPECT_EQ(std::make_tuple(g.UserWonHand, g.HandIsOver, p.pauses, g.rnd.Overdrawn()),
              std::make_tuple(g.view.iArrow[1].visible, true, 1, 0));
    return out;
}

TEST(SettlePots, Examples) {
    for (auto [stakes, outcome] : kSettles) EXPECT_EQ(Settle(stakes), outcome) << stakes;
    EXPECT_EQ(Settle("1:1000:AhAd 3:5000:KhKd 4:5000:Qh8d 6:300", false), "1:3,300 3:8,000 >1 Aces Kings");
}

}  // namespace
}  // namespace holdem
