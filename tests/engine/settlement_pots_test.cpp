// Paying the shown table: finish order, stake levels, layers, odd hundreds,
// the marks of the winners, the sound, the pause and the closing check.
#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "engine/game_state.h"
#include "tests/support/hand_builder.h"
#include "tests/support/scripted_platform.h"

namespace holdem {
namespace {

constexpr float kStart = 10000.0f;

// Eight seats of 10,000 over a board that pairs nothing and draws to nothing;
// the seats named ("2:1000:AhAd", no cards when folded) put their stake in,
// the rest are out with nothing in.
struct Hand {
    test::ScriptedPlatform p;
    Game g{p};

    explicit Hand(const std::string& stakes, bool sound = true) {
        test::EmptyTable(g);
        g.view.mnuSound.checked = sound;
        g.rnd.Script({});
        test::SetBoard(g, {"2c", "7d", "9h", "Js", "4s"});
        for (int s = 1; s <= kSeats; ++s) test::SeatPlayer(g, s, "P", kStart, 0, 0, false);
        std::istringstream in(stakes);
        for (std::string st; in >> st;) {
            int seat = st[0] - '0', stake = std::stoi(st.substr(2));
            std::string hole = st.size() > 7 && st[st.size() - 5] == ':' ? st.substr(st.size() - 4) : "";
            test::SeatPlayer(g, seat, "P", kStart - stake, stake, 0, !hole.empty());
            if (!hole.empty()) test::SetHole(g, seat, hole.substr(0, 2).c_str(), hole.substr(2).c_str());
        }
        test::RankRiver(g);
    }
    Hand& Settle() {
        g.TimerHandOver_Timer();
        return *this;
    }

    // "seat:paid ..." from the labels, ">" the arrowed seats, the sounds, and
    // the closing-check messages; every payment must also be in the roster.
    std::string Outcome() const {
        std::string out, arrows;
        for (int s = 1; s <= kSeats; ++s) {
            int32_t paid = g.RosterBank[s] - static_cast<int32_t>(kStart) + g.BreakdownBet[s];
            EXPECT_EQ(g.view.lblPaid[s].visible, paid > 0) << "seat " << s;
            if (paid > 0) {
                EXPECT_EQ(g.view.lblPaid[s].text, "Paid $" + Money(paid));
                out += std::to_string(s) + ":" + Money(paid) + " ";
            }
            if (g.view.iArrow[s].visible) arrows += " " + std::to_string(s);
        }
        out += ">" + arrows.substr(1);
        for (const auto& sound : p.sounds) out += " " + sound;
        for (const auto& m : p.messages) {
            out += " | " + m.text;
            EXPECT_TRUE(m.buttons == MsgButtons::OK && m.icon == MsgIcon::None && m.title.empty());
        }
        EXPECT_EQ(p.pauses, 1);
        EXPECT_EQ(g.rnd.Remaining(), 0u);
        EXPECT_EQ(g.rnd.Overdrawn(), 0);
        return out;
    }
};

TEST(SettlePots, Examples) {
    struct Row {
        const char* stakes;
        const char* outcome;
    } rows[] = {
        // A all in with 1,000 and best, B and C 5,000: Layer1 3,000 to A, Layer2 8,000 to B.
        {"2:1000:AhAd 3:5000:KhKd 4:5000:QhQd", "2:3,000 3:8,000 >2 LOSTHAND"},
        // The uncalled part of B's bet comes back as a payment; C folded after 300.
        {"2:1000:AhAd 3:5000:KhKd 4:300", "2:2,300 3:4,000 >2 LOSTHAND"},
        // Odd hundreds one by one in finish order: layers of 500, 700, 800, 1,000, 1,100.
        {"2:200:AhKd 3:200:AsKc 6:100", "2:300 3:200 >2 3 LOSTHAND"},
        {"2:200:AhKd 3:200:AsKc 4:200:AdKh 6:100", "2:300 3:200 4:200 >2 3 4 LOSTHAND"},
        {"2:200:AhKd 3:200:AsKc 4:200:AdKh 6:200", "2:300 3:300 4:200 >2 3 4 LOSTHAND"},
        {"2:300:AhKd 3:300:AsKc 4:300:AdKh 6:100", "2:400 3:300 4:300 >2 3 4 LOSTHAND"},
        {"2:300:AhKd 3:300:AsKc 4:300:AdKh 6:100 7:100", "2:400 3:400 4:300 >2 3 4 LOSTHAND"},
        // Seat 3 best, 1 and 2 tied behind: the swap puts 2 first. A side layer is no won hand.
        {"1:400:AsKc 2:400:AhKd 3:200:QhQd 4:300", "1:200 2:300 3:800 >3 LOSTHAND"},
        // A tie with a smaller stake: Layer1 2,700 split with its odd hundred, Layer2 whole to seat 3.
        {"2:900:AhKd 3:3000:AsKc 4:3000:Qh8d", "2:1,400 3:5,500 >2 3 LOSTHAND"},
        // The best hand has the lowest stake: each layer falls to the first place that can claim it.
        {"2:500:AhAd 3:2000:KhKd 4:4000:QhQd 5:4000:ThTd", "2:2,000 3:4,500 4:4,000 >2 LOSTHAND"},
        // Six stakes: chips above the fourth level are one layer, claimed by finish order.
        {"2:1000:AhAd 3:2000:KhKd 4:3000:QhQd 5:4000:ThTd 6:5000:8h8d 7:6000:6h6d",
         "2:6,000 3:5,000 4:4,000 5:3,000 6:3,000 >2 LOSTHAND"},
        // Equal stakes add one level; a folded stake above them all goes to whoever is in.
        {"1:2000:AhAd 2:2000:KhKd 3:2000:QhQd 4:1000:ThTd 5:3000", "1:10,000 >1 WONHAND"},
        // The user folds and a side layer is all that is left to decide.
        {"1:200 2:500:AhAd 3:3000:KhKd 4:3000:QhQd", "2:1,700 3:5,000 >2 LOSTHAND"},
        // A Layer5 nobody in the hand can claim leaves the table, and the closing check says so.
        {"2:1000:AhAd 3:2000:KhKd 4:3000:QhQd 5:4000:ThTd 6:5000",
         "2:5,000 3:4,000 4:3,000 5:2,000 >2 LOSTHAND | Table 1: Total Pot: 15000   Total Paid: 14000 | "
         "Table "
         "Total: 79000"},
    };
    for (const Row& r : rows) EXPECT_EQ(Hand(r.stakes).Settle().Outcome(), r.outcome);
}

TEST(SettlePots, AllFoldToTheLargeBlind) {
    test::ScriptedPlatform p;
    Game g(p);
    test::EmptyTable(g);
    g.rnd.Script({});
    for (int s = 1; s <= kSeats; ++s) test::SeatPlayer(g, s, "P", kStart, 0, 0, false);
    test::SeatPlayer(g, 2, "P2", kStart - 100, 0, 100, false);
    test::SeatPlayer(g, 3, "P3", kStart - 200, 0, 200, true);
    g.view.lblBet[3].text = "Large Blind: $200";
    g.TimerHandOver_Timer();
    EXPECT_FALSE(g.view.timer[TimerHandOver].enabled);
    EXPECT_TRUE(g.HandIsOver);
    EXPECT_EQ(g.SeatTotalBet[2] + g.BreakdownBet[2] + g.SeatTotalBet[3] + g.BreakdownBet[3], 600);
    EXPECT_EQ(g.view.lblPaid[3].text, "Paid $300");
    EXPECT_FALSE(g.view.lblPaid[2].visible);
    EXPECT_EQ(g.view.lblBank[3].text + " " + g.view.lblBank[2].text, "10,100 9,900");
    EXPECT_EQ(g.RosterBank[3] + g.RosterBank[2], 20000);
    EXPECT_TRUE(g.view.iArrow[3].visible);
    EXPECT_EQ(g.view.icard[3].picture + g.view.icard[11].picture, 0);  // no card turned
    EXPECT_EQ(g.view.lblBet[3].text, "");                              // and no name shown
    EXPECT_EQ(p.sounds, std::vector<std::string>{"LOSTHAND"});
    EXPECT_EQ(p.pauses, 1);
}

TEST(SettlePots, ShowsTheHandsAndPausesWithTheSoundOff) {
    Hand h("1:1000:AhAd 3:5000:KhKd 4:5000:Qh8d 6:300", false);
    h.g.SeatHandCode[6] = 61;  // ranked before it folded
    h.Settle();
    EXPECT_EQ(h.Outcome(), "1:3,300 3:8,000 >1");
    EXPECT_TRUE(h.g.UserWonHand);
    EXPECT_EQ(h.g.view.lblBet[1].text + "|" + h.g.view.lblBet[3].text + "|" + h.g.view.lblBet[4].text,
              "Aces|Kings|");
    EXPECT_EQ(h.g.view.icard[3].picture, test::CardOf("Kh"));
    EXPECT_EQ(h.g.view.icard[11].picture, test::CardOf("Kd"));
    EXPECT_FALSE(h.g.view.icard[6].visible || h.g.view.icard[14].visible);
    EXPECT_EQ(h.g.SeatHandCode[6], kNoHand);
}

}  // namespace
}  // namespace holdem
