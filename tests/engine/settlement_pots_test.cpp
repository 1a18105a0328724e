// Paying the shown table: finish order, stake levels, layers, odd hundreds,
// the marks of the winners, the sound and the closing check.
#include <gtest/gtest.h>

#include <string>

#include "engine/game_state.h"
#include "tests/support/hand_builder.h"
#include "tests/support/scripted_platform.h"

namespace holdem {
namespace {

constexpr float kStart = 10000.0f;

class SettlePots : public ::testing::Test {
protected:
    SettlePots() {
        test::EmptyTable(g);
        g.rnd.Script({});
        // A board that pairs nothing and holds no straight or flush draw.
        test::SetBoard(g, {"2c", "7d", "9h", "Js", "4s"});
        for (int s = 1; s <= kSeats; ++s) {
            test::SeatPlayer(g, s, "P" + std::to_string(s), kStart, 0, 0, false);
            test::SetHole(g, s, "3h", "5d");
        }
    }
    ~SettlePots() override {
        EXPECT_EQ(g.rnd.Remaining(), 0u);
        EXPECT_EQ(g.rnd.Overdrawn(), 0);
    }

    // A seat that put `stake` in this hand, with the two cards it holds.
    void Stake(int seat, int32_t stake, const char* first, const char* second, bool inHand = true) {
        test::SeatPlayer(g, seat, "P" + std::to_string(seat), kStart - stake, stake, 0, inHand);
        test::SetHole(g, seat, first, second);
        if (seat == 1) {
            g.view.icard[1].picture = test::CardOf(first);
            g.view.icard[9].picture = test::CardOf(second);
        }
    }
    void Fold(int seat, int32_t stake) { Stake(seat, stake, "3c", "5c", false); }

    void Settle() {
        test::RankRiver(g);
        g.TimerHandOver_Timer();
    }

    // What the seat was paid, read from its label; 0 when none is shown.
    std::string PaidText(int seat) const {
        return g.view.lblPaid[seat].visible ? g.view.lblPaid[seat].text : std::string("none");
    }
    int32_t Gain(int seat) const { return g.RosterBank[seat] - static_cast<int32_t>(kStart); }

    test::ScriptedPlatform p;
    Game g{p};
};

TEST_F(SettlePots, AllFoldToTheLargeBlind) {
    test::SeatPlayer(g, 2, "P2", kStart - 100, 0, 100, false);  // small blind, folded
    test::SeatPlayer(g, 3, "P3", kStart - 200, 0, 200, true);   // large blind
    g.view.lblBet[3].text = "Large Blind: $200";
    g.view.iArrow[3].visible = true;
    g.TimerHandOver_Timer();

    EXPECT_FALSE(g.view.timer[TimerHandOver].enabled);
    EXPECT_TRUE(g.HandIsOver);
    EXPECT_EQ(g.SeatTotalBet[2], 100);
    EXPECT_EQ(g.SeatTotalBet[3], 200);
    EXPECT_EQ(g.BreakdownBet[2], 100);
    EXPECT_EQ(g.BreakdownBet[3], 200);
    EXPECT_EQ(PaidText(3), "Paid $300");
    EXPECT_EQ(PaidText(2), "none");
    EXPECT_EQ(g.SeatBank[3], 10100.0f);
    EXPECT_EQ(g.RosterBank[3], 10100);
    EXPECT_EQ(g.RosterBank[2], 9900);
    EXPECT_EQ(g.view.lblBank[3].text, "10,100");
    EXPECT_EQ(g.view.lblBank[2].text, "9,900");
    EXPECT_TRUE(g.view.iArrow[3].visible);
    // No card turned and no name shown.
    EXPECT_EQ(g.view.icard[3].picture, 0);
    EXPECT_EQ(g.view.icard[11].picture, 0);
    EXPECT_EQ(g.view.lblBet[3].text, "");
    EXPECT_FALSE(g.view.icard[2].visible);
    EXPECT_FALSE(g.UserWonHand);
    EXPECT_EQ(p.sounds, (std::vector<std::string>{"LOSTHAND"}));
    EXPECT_EQ(p.pauses, 1);
    EXPECT_TRUE(p.messages.empty());
}

TEST_F(SettlePots, AShortAllInTakesTheMainPotAndTheSecondTheSide) {
    Stake(2, 1000, "Ah", "Ad");  // A, all in
    Stake(3, 5000, "Kh", "Kd");  // B
    Stake(4, 5000, "Qh", "Qd");  // C
    g.SeatHandCode[6] = 61;      // stale code of a folded seat
    Settle();
    EXPECT_EQ(PaidText(2), "Paid $3,000");
    EXPECT_EQ(PaidText(3), "Paid $8,000");
    EXPECT_EQ(PaidText(4), "none");
    EXPECT_EQ(g.RosterBank[2], 12000);
    EXPECT_EQ(g.RosterBank[3], 13000);
    EXPECT_EQ(g.RosterBank[4], 5000);
    EXPECT_TRUE(g.view.iArrow[2].visible);
    EXPECT_FALSE(g.view.iArrow[3].visible);
    EXPECT_FALSE(g.view.iArrow[4].visible);
    // All hands up with their names.
    EXPECT_EQ(g.view.icard[2].picture, test::CardOf("Ah"));
    EXPECT_EQ(g.view.icard[10].picture, test::CardOf("Ad"));
    EXPECT_EQ(g.view.lblBet[2].text, "Aces");
    EXPECT_EQ(g.view.lblBet[3].text, "Kings");
    EXPECT_EQ(g.view.lblBet[4].text, "Queens");
    EXPECT_EQ(g.view.lblBet[5].text, "");
    EXPECT_EQ(g.SeatHandCode[6], kNoHand);
    EXPECT_FALSE(g.view.icard[6].visible);
    EXPECT_FALSE(g.view.icard[14].visible);
}

TEST_F(SettlePots, AnUncalledBetComesBackAsPartOfThePayment) {
    Stake(2, 1000, "Ah", "Ad");  // A calls all in and wins
    Stake(3, 5000, "Kh", "Kd");  // B bet 5,000
    Fold(4, 300);
    Settle();
    EXPECT_EQ(PaidText(2), "Paid $2,300");
    EXPECT_EQ(PaidText(3), "Paid $4,000");
    EXPECT_TRUE(g.view.iArrow[2].visible);
    EXPECT_FALSE(g.view.iArrow[3].visible);
    EXPECT_EQ(Gain(2), 1300);
    EXPECT_EQ(Gain(3), -1000);
    EXPECT_EQ(Gain(4), -300);
}

TEST_F(SettlePots, OddHundredsGoOneByOneInFinishOrder) {
    struct Case {
        int32_t stake, foldedA, foldedB;
        int tied;
        int32_t expected[3];
    } cases[] = {
        {200, 100, 0, 2, {300, 200, 0}},      // a layer of 500 between two
        {200, 100, 0, 3, {300, 200, 200}},    // 700 between three
        {200, 200, 0, 3, {300, 300, 200}},    // 800
        {300, 100, 0, 3, {400, 300, 300}},    // 1,000
        {300, 100, 100, 3, {400, 400, 300}},  // 1,100: two odd hundreds
    };
    const char* hands[3][2] = {{"Ah", "Kd"}, {"As", "Kc"}, {"Ad", "Kh"}};
    for (const Case& c : cases) {
        test::ScriptedPlatform q;
        Game h(q);
        test::EmptyTable(h);
        h.rnd.Script({});
        test::SetBoard(h, {"2c", "7d", "9h", "Js", "4s"});
        for (int s = 1; s <= kSeats; ++s) test::SeatPlayer(h, s, "P", kStart, 0, 0, false);
        for (int i = 0; i < c.tied; ++i) {
            test::SeatPlayer(h, 2 + i, "P", kStart - c.stake, c.stake);
            test::SetHole(h, 2 + i, hands[i][0], hands[i][1]);
        }
        test::SeatPlayer(h, 6, "P", kStart - c.foldedA, c.foldedA, 0, false);
        test::SeatPlayer(h, 7, "P", kStart - c.foldedB, c.foldedB, 0, false);
        test::RankRiver(h);
        h.TimerHandOver_Timer();
        for (int i = 0; i < c.tied; ++i) {
            EXPECT_EQ(h.RosterBank[2 + i] - (kStart - c.stake), c.expected[i])
                << "stake " << c.stake << " seat " << 2 + i;
            EXPECT_TRUE(h.view.iArrow[2 + i].visible);
        }
        EXPECT_TRUE(q.messages.empty());
        EXPECT_EQ(h.rnd.Overdrawn(), 0);
    }
}

TEST_F(SettlePots, TiedSeatsStandInTheOrderTheSwapsLeave) {
    // Seat 3 best; seats 1 and 2 tie behind it, and the swap puts 2 before 1.
    Stake(1, 400, "As", "Kc");
    Stake(2, 400, "Ah", "Kd");
    Stake(3, 200, "Qh", "Qd");
    Fold(4, 300);
    Settle();
    EXPECT_EQ(PaidText(3), "Paid $800");
    EXPECT_EQ(PaidText(2), "Paid $300");  // first of the tied pair: the odd hundred
    EXPECT_EQ(PaidText(1), "Paid $200");
    EXPECT_TRUE(g.view.iArrow[3].visible);
    EXPECT_FALSE(g.view.iArrow[1].visible);
    // The user won only a side layer: not a won hand.
    EXPECT_FALSE(g.UserWonHand);
    EXPECT_EQ(p.sounds, (std::vector<std::string>{"LOSTHAND"}));
}

TEST_F(SettlePots, ATieWithASmallerStakeSplitsOnlyTheMainPot) {
    Stake(2, 1000, "Ah", "Kd");  // all in, ties for best
    Stake(3, 3000, "As", "Kc");  // ties, and covers
    Stake(4, 3000, "Qh", "8d");  // Queen high
    Settle();
    // Layer1 3,000 split 1,500 / 1,500 after two odd hundreds; Layer2 4,000 whole to seat 3.
    EXPECT_EQ(PaidText(2), "Paid $1,500");
    EXPECT_EQ(PaidText(3), "Paid $5,500");
    EXPECT_EQ(PaidText(4), "none");
    EXPECT_TRUE(g.view.iArrow[2].visible);
    EXPECT_TRUE(g.view.iArrow[3].visible);
}

TEST_F(SettlePots, EachLayerFallsToTheFirstPlaceThatCanClaimIt) {
    Stake(2, 500, "Ah", "Ad");
    Stake(3, 2000, "Kh", "Kd");
    Stake(4, 4000, "Qh", "Qd");
    Stake(5, 4000, "Th", "Td");
    Settle();
    EXPECT_EQ(PaidText(2), "Paid $2,000");
    EXPECT_EQ(PaidText(3), "Paid $4,500");
    EXPECT_EQ(PaidText(4), "Paid $4,000");
    EXPECT_EQ(PaidText(5), "none");
    EXPECT_TRUE(g.view.iArrow[2].visible);
    EXPECT_FALSE(g.view.iArrow[3].visible);
}

TEST_F(SettlePots, AboveTheFourthLevelAllChipsAreOneLayer) {
    const char* pairs[6][2] = {{"Ah", "Ad"}, {"Kh", "Kd"}, {"Qh", "Qd"},
                               {"Th", "Td"}, {"8h", "8d"}, {"6h", "6d"}};
    for (int i = 0; i < 6; ++i) Stake(2 + i, 1000 * (i + 1), pairs[i][0], pairs[i][1]);
    Settle();
    EXPECT_EQ(PaidText(2), "Paid $6,000");
    EXPECT_EQ(PaidText(3), "Paid $5,000");
    EXPECT_EQ(PaidText(4), "Paid $4,000");
    EXPECT_EQ(PaidText(5), "Paid $3,000");
    // Seat 6 staked 1,000 above the fourth level, seat 7 2,000: seat 6 the better takes both.
    EXPECT_EQ(PaidText(6), "Paid $3,000");
    EXPECT_EQ(PaidText(7), "none");
    EXPECT_TRUE(p.messages.empty());
}

TEST_F(SettlePots, EqualStakesAddOneLevel) {
    Stake(1, 2000, "Ah", "Ad");
    Stake(2, 2000, "Kh", "Kd");
    Stake(3, 2000, "Qh", "Qd");
    Stake(4, 1000, "Th", "Td");
    Fold(5, 3000);  // above every level: a layer that anyone in the hand may claim
    Settle();
    EXPECT_EQ(PaidText(1), "Paid $10,000");
    EXPECT_EQ(Gain(1), 8000);
    EXPECT_TRUE(g.UserWonHand);
    EXPECT_EQ(p.sounds, (std::vector<std::string>{"WONHAND"}));
    EXPECT_TRUE(p.messages.empty());
}

TEST_F(SettlePots, AFifthLayerNobodyCanClaimFiresTheClosingCheck) {
    Stake(2, 1000, "Ah", "Ad");
    Stake(3, 2000, "Kh", "Kd");
    Stake(4, 3000, "Qh", "Qd");
    Stake(5, 4000, "Th", "Td");
    Fold(6, 5000);
    Settle();
    ASSERT_EQ(p.messages.size(), 2u);
    EXPECT_EQ(p.messages[0].text, "Table 1: Total Pot: 15000   Total Paid: 14000");
    EXPECT_EQ(p.messages[1].text, "Table Total: 79000");
    for (const auto& m : p.messages) {
        EXPECT_EQ(m.buttons, MsgButtons::OK);
        EXPECT_EQ(m.icon, MsgIcon::None);
    }
    // Play goes on: stacks written back and the deal offered.
    EXPECT_EQ(PaidText(2), "Paid $5,000");
    EXPECT_EQ(PaidText(5), "Paid $2,000");
    EXPECT_EQ(g.RosterBank[6], 5000);
    EXPECT_TRUE(g.view.cmdDeal.visible);
}

TEST_F(SettlePots, TheUserFoldsAndASideLayerIsLeftToDecide) {
    Fold(1, 200);
    Stake(2, 500, "Ah", "Ad");
    Stake(3, 3000, "Kh", "Kd");
    Stake(4, 3000, "Qh", "Qd");
    Settle();
    EXPECT_EQ(PaidText(2), "Paid $1,700");
    EXPECT_EQ(PaidText(3), "Paid $5,000");
    EXPECT_FALSE(g.view.icard[1].visible);
    EXPECT_FALSE(g.UserWonHand);
    EXPECT_EQ(p.sounds, (std::vector<std::string>{"LOSTHAND"}));
    EXPECT_EQ(p.pauses, 1);
}

TEST_F(SettlePots, SoundOffStillPauses) {
    g.view.mnuSound.checked = false;
    Stake(1, 500, "Ah", "Ad");
    Stake(2, 500, "Kh", "Kd");
    Settle();
    EXPECT_TRUE(g.UserWonHand);
    EXPECT_EQ(PaidText(1), "Paid $1,000");
    EXPECT_TRUE(p.sounds.empty());
    EXPECT_EQ(p.pauses, 1);
    EXPECT_EQ(g.view.lblBet[1].text, "Aces");
    EXPECT_EQ(g.view.icard[2].picture, test::CardOf("Kh"));
}

}  // namespace
}  // namespace holdem
