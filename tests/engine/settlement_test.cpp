// Paying the shown table: finish order, stake levels, layers, odd hundreds,
// the winners' marks, the sound, the pause and the closing check.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>
#include <sstream>
#include <string>

#include "tests/support/builders.h"
#include "tests/support/scripted_platform.h"

namespace holdem {
namespace {

constexpr int32_t kStart = 10000;

// Eight seats of 10,000 over a board that pairs and draws to nothing; the
// seats named ("2:1000:AhAd", no cards when folded) put their stake in.
// Tells "seat:paid ..." from the labels, ">" the arrowed seats, the sounds
// and the closing-check messages.
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
    EXPECT_EQ(g.UserWonHand, g.view.iArrow[1].visible);
    EXPECT_TRUE(g.HandIsOver);
    EXPECT_EQ(p.pauses, 1);
    EXPECT_EQ(g.rnd.Overdrawn(), 0);
    return out;
}

TEST(SettlePots, Examples) {
    const std::pair<const char*, const char*> rows[] = {
        // A all in with 1,000 and best, B and C 5,000: Layer1 3,000 to A, Layer2 8,000 to B.
        {"2:1000:AhAd 3:5000:KhKd 4:5000:QhQd", "2:3,000 3:8,000 >2 Aces Kings Queens LOSTHAND"},
        // The uncalled part of B's bet comes back as a payment; C folded after 300.
        {"2:1000:AhAd 3:5000:KhKd 4:300", "2:2,300 3:4,000 >2 Aces Kings LOSTHAND"},
        // Odd hundreds one by one in finish order: layers of 500, 700, 800, 1,000, 1,100.
        {"2:200:AhKd 3:200:AsKc 6:100", "2:300 3:200 >2 3 LOSTHAND"},
        {"2:200:AhKd 3:200:AsKc 4:200:AdKh 6:100", "2:300 3:200 4:200 >2 3 4 LOSTHAND"},
        {"2:200:AhKd 3:200:AsKc 4:200:AdKh 6:200", "2:300 3:300 4:200 >2 3 4 LOSTHAND"},
        {"2:300:AhKd 3:300:AsKc 4:300:AdKh 6:100", "2:400 3:300 4:300 >2 3 4 LOSTHAND"},
        {"2:300:AhKd 3:300:AsKc 4:300:AdKh 6:100 7:100", "2:400 3:400 4:300 >2 3 4 LOSTHAND"},
        // Seat 3 best, 1 and 2 tied behind: the swap puts 2 first. A side layer is no won hand.
        {"1:400:AsKc 2:400:AhKd 3:200:QhQd 4:300", "1:200 2:300 3:800 >3 Queens LOSTHAND"},
        // A tie with a smaller stake: Layer1 2,700 split with its odd hundred, Layer2 whole to seat 3.
        {"2:900:AhKd 3:3000:AsKc 4:3000:Qh8d", "2:1,400 3:5,500 >2 3 LOSTHAND"},
        // The best hand has the lowest stake: each layer falls to the first place that can claim it.
        {"2:500:AhAd 3:2000:KhKd 4:4000:QhQd 5:4000:ThTd",
         "2:2,000 3:4,500 4:4,000 >2 Aces Kings Queens Tens LOSTHAND"},
        // Six stakes: chips above the fourth level are one layer, claimed by finish order.
        {"2:1000:AhAd 3:2000:KhKd 4:3000:QhQd 5:4000:ThTd 6:5000:8h8d 7:6000:6h6d",
         "2:6,000 3:5,000 4:4,000 5:3,000 6:3,000 >2 Aces Kings Queens Tens Eights Sixes LOSTHAND"},
        {"2:6000:AhAd 3:5000:KhKd 4:4000:QhQd 5:3000:ThTd 6:2000:8h8d 7:1000:6h6d",
         "2:21,000 >2 Aces Kings Queens Tens Eights Sixes LOSTHAND"},
        {"2:1000:6h6d 3:6000:KhKd 4:5000:QhQd 5:4000:ThTd 6:3000:8h8d 7:2000:AhAd",
         "3:10,000 7:11,000 >7 Sixes Kings Queens Tens Eights Aces LOSTHAND"},
        // Equal stakes add one level; a folded stake above them all goes to whoever is in.
        {"1:2000:AhAd 2:2000:KhKd 3:2000:QhQd 4:1000:ThTd 5:3000",
         "1:10,000 >1 Aces Kings Queens Tens WONHAND"},
        // The user folds and a side layer is all that is left to decide.
        {"1:200 2:500:AhAd 3:3000:KhKd 4:3000:QhQd", "2:1,700 3:5,000 >2 Aces Kings Queens LOSTHAND"},
        // A Layer5 nobody in the hand can claim leaves the table, and the closing check says so.
        {"2:1000:AhAd 3:2000:KhKd 4:3000:QhQd 5:4000:ThTd 6:5000",
         "2:5,000 3:4,000 4:3,000 5:2,000 >2 Aces Kings Queens Tens LOSTHAND | Table 1: Total Pot: 15000   "
         "Total Paid: 14000 | "
         "Table Total: 79000"},
        // All fold to the large blind: its 200 and the small blind's 100, no card turned.
        {"2:100 3:200:AhKd", "3:300 >3 LOSTHAND"},
        {"1:1000:AhAd 3:5000:KhKd 4:5000:Qh8d 6:300", "1:3,300 3:8,000 >1 Aces Kings WONHAND"},
    };
    for (auto [stakes, outcome] : rows) EXPECT_EQ(Settle(stakes), outcome) << stakes;
    EXPECT_EQ(Settle("1:1000:AhAd 3:5000:KhKd 4:5000:Qh8d 6:300", false), "1:3,300 3:8,000 >1 Aces Kings");
}

// Chips that folded seats put above the fourth level when nobody in the hand
// reaches past it: the one case the settlement cannot pay.
int64_t Unclaimable(const Game& g) {
    std::set<int32_t> stakes;
    for (int s = 1; s <= kSeats; ++s)
        if (g.SeatInHand[s]) stakes.insert(g.SeatTotalBet[s]);
    if (stakes.size() < 4) return 0;
    int32_t level4 = *std::next(stakes.begin(), 3), lost = 0;
    if (*stakes.rbegin() > level4) return 0;
    for (int s = 1; s <= kSeats; ++s)
        if (!g.SeatInHand[s]) lost += std::max(0, g.SeatTotalBet[s] - level4);
    return lost;
}

// Seeded showdowns: every claimable chip paid, in hundreds, and never to a
// seat behind a better hand that staked at least as much.
TEST(SettlePots, SeededShowdownsPayEveryClaimableChip) {
    std::mt19937 rng(90210u);
    std::vector<int16_t> deck(52);
    for (int i = 0; i < 52; ++i) deck[i] = static_cast<int16_t>(i + 1);
    int shortPaid = 0;
    for (int round = 0; round < 2000; ++round) {
        SCOPED_TRACE(round);
        test::ScriptedPlatform p;
        Game g(p);
        g.rnd.Script({});
        test::EmptyTable(g);
        std::shuffle(deck.begin(), deck.end(), rng);
        for (int k = 0; k < 5; ++k)
            for (int s = 1; s <= kSeats; ++s) g.SeatCards[s][3 + k] = deck[k];
        int64_t chips = 0;
        for (int s = 1; s <= kSeats; ++s) {
            bool in = rng() % 3 != 0;
            int32_t stake = static_cast<int32_t>(rng() % 12) * 100 * (1 + static_cast<int32_t>(rng() % 3));
            test::SeatPlayer(g, s, static_cast<float>((rng() % 50) * 100), in ? std::max(stake, 100) : stake,
                             0, in);
            g.SeatCards[s][1] = deck[5 + 2 * s];
            g.SeatCards[s][2] = deck[6 + 2 * s];
            chips += g.RosterBank[s];
        }
        if (g.PlayersInHand == 0) continue;
        test::RankRiver(g);
        const int64_t lost = Unclaimable(g);
        const Game before = g;
        g.TimerHandOver_Timer();
        int64_t after = 0;
        for (int s = 1; s <= kSeats; ++s) {
            after += g.RosterBank[s];
            int32_t paid = g.RosterBank[s] - static_cast<int32_t>(before.SeatBank[s]);
            ASSERT_TRUE(paid >= 0 && paid % 100 == 0 && (paid == 0 || g.SeatInHand[s])) << s;
            for (int b = 1; b <= kSeats && paid > 0 && g.PlayersInHand > 1; ++b)
                ASSERT_FALSE(b != s && g.SeatInHand[b] && g.SeatTotalBet[b] >= g.SeatTotalBet[s] &&
                             before.CompareShowdown(b, s) > 0)
                    << "seat " << s << " paid behind seat " << b;
        }
        ASSERT_EQ(after, chips - lost);
        ASSERT_EQ(p.messages.empty(), lost == 0);
        shortPaid += lost > 0;
    }
    EXPECT_GT(shortPaid, 0);
}

}  // namespace
}  // namespace holdem
