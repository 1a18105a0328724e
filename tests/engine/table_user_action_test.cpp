#include <gtest/gtest.h>

#include <vector>

#include "engine/game_state.h"
#include "tests/support/scripted_platform.h"
#include "tests/support/table_builder.h"

namespace holdem {
namespace {

using test::ScriptedPlatform;
using test::TableBuilder;

// The user's turn with the table as each test arranges it: stacks, stakes of
// this street, the high bet and the street.
class UserActionTest : public ::testing::Test {
protected:
    void SetUp() override {
        TableBuilder().Button(8).ApplyTo(g);
        g.rnd.Script(std::vector<float>(52, 0.0f));
        g.StartHand();  // button 1, blinds 2 and 3
        g.StopHandTimers();
        g.SeatBet = {};
        g.Pot = 0;
        for (int s = 1; s <= kSeats; ++s) g.SeatBank[s] = static_cast<float>(g.RosterBank[s]);
        g.CurrentSeat = 1;
        g.PreviousSeat = 8;
    }

    void Stake(int seat, int32_t bet) {
        g.SeatBet[seat] = bet;
        g.SeatBank[seat] -= static_cast<float>(bet);
        g.Pot += bet;
    }

    void OpenTurn(int street, int highIndex, int32_t highValue) {
        g.Street = static_cast<int16_t>(street);
        g.HighBetIndex = static_cast<int16_t>(highIndex);
        g.HighBetValue = highValue;
        g.OpenUserTurn();
        p.sounds.clear();
    }

    bool Enabled(int i) const { return g.view.cmdPlay[i].enabled; }
    bool ButtonsShown() const {
        for (int i = 1; i <= 4; ++i)
            if (!g.view.cmdPlay[i].visible) return false;
        return true;
    }
    bool ButtonsHidden() const {
        for (int i = 1; i <= 4; ++i)
            if (g.view.cmdPlay[i].visible) return false;
        return true;
    }
    void ExpectMessage(const std::string& text) {
        ASSERT_EQ(p.messages.size(), 1u);
        EXPECT_EQ(p.messages[0].text, text);
        EXPECT_EQ(p.messages[0].icon, MsgIcon::Information);
        EXPECT_EQ(p.messages[0].buttons, MsgButtons::OK);
        EXPECT_TRUE(p.betRequests.empty());
        EXPECT_TRUE(ButtonsShown());
        EXPECT_EQ(g.RunningTimer(), kTimerCount);
    }

    ScriptedPlatform p;
    Game g{p};
};

TEST_F(UserActionTest, OpeningTheTurnChoosesTheButtons) {
    Stake(4, 600);
    OpenTurn(2, 4, 600);
    EXPECT_EQ(g.view.lblBet[1].text, "Amount to Call: $600");
    EXPECT_TRUE(ButtonsShown());
    EXPECT_FALSE(Enabled(1));
    EXPECT_TRUE(Enabled(2) && Enabled(3) && Enabled(4));

    g.SeatBank[1] = 0;  // all in: nothing to call with
    OpenTurn(2, 4, 600);
    EXPECT_TRUE(Enabled(1) && Enabled(3) && Enabled(4));
    EXPECT_FALSE(Enabled(2));

    g.SeatBank[1] = 5000;
    g.SeatBet = {};
    OpenTurn(3, 0, 0);
    EXPECT_EQ(g.view.lblBet[1].text, "Amount to Call: $0");
    EXPECT_TRUE(Enabled(1) && Enabled(3) && Enabled(4));
    EXPECT_FALSE(Enabled(2));

    // Before the flop with nothing to call: only with the button on seat 7
    // may the user raise, whoever holds the large blind.
    g.SeatBet[1] = 200;
    g.ButtonSeat = 7;
    OpenTurn(1, 1, 200);
    EXPECT_TRUE(Enabled(1) && Enabled(3) && Enabled(4));
    EXPECT_FALSE(Enabled(2));
    g.ButtonSeat = 6;
    OpenTurn(1, 1, 200);
    EXPECT_TRUE(Enabled(1) && Enabled(4));
    EXPECT_FALSE(Enabled(2));
    EXPECT_FALSE(Enabled(3));
}

TEST_F(UserActionTest, OpeningTheTurnStopsTheStreetsBetTimer) {
    g.Street = 3;
    g.EnableTimer(TimerBetTurn);
    g.HighBetIndex = 0;
    g.OpenUserTurn();
    EXPECT_EQ(g.RunningTimer(), kTimerCount);
}

TEST_F(UserActionTest, FirstCheckOfAStreetTakesTheHighBet) {
    g.SeatInHand[2] = false;
    OpenTurn(2, 0, 0);
    g.cmdPlay_Click(1);
    EXPECT_EQ(p.sounds, std::vector<std::string>{"BUTTONCLICK"});
    EXPECT_EQ(g.view.lblBet[1].text, "Checked");
    EXPECT_EQ(g.HighBetIndex, 1);
    EXPECT_EQ(g.PreviousSeat, 2);
    EXPECT_EQ(g.CurrentSeat, 3);  // seat 2 has folded
    EXPECT_EQ(g.RunningTimer(), TimerBetFlop);
    EXPECT_TRUE(ButtonsHidden());
    EXPECT_EQ(g.view.lblHBI.text, "1");
}

TEST_F(UserActionTest, CheckWithTheHighBetAtSeatTwoEndsTheRound) {
    OpenTurn(3, 2, 0);
    g.cmdPlay_Click(1);
    EXPECT_EQ(g.RunningTimer(), TimerDealRiver);
    EXPECT_EQ(g.CurrentSeat, 1);
    EXPECT_EQ(g.HighBetIndex, 2);
}

TEST_F(UserActionTest, CheckOnTheRiverWithTheHighBetEndsTheHand) {
    OpenTurn(4, 1, 0);
    g.cmdPlay_Click(1);
    EXPECT_EQ(g.RunningTimer(), TimerHandOver);
}

TEST_F(UserActionTest, SoundOffPlaysNoClick) {
    g.view.mnuSound.checked = false;
    OpenTurn(2, 0, 0);
    g.cmdPlay_Click(1);
    EXPECT_TRUE(p.sounds.empty());
}

TEST_F(UserActionTest, CallMovesTheChipsAndPassesTheTurnOn) {
    Stake(5, 1500);
    OpenTurn(2, 5, 1500);
    g.cmdPlay_Click(2);
    EXPECT_EQ(g.view.lblBet[1].text, "Called $1,500");
    EXPECT_EQ(g.SeatBank[1], 8500.0f);
    EXPECT_EQ(g.view.lblBank[1].text, "8,500");
    EXPECT_EQ(g.SeatBet[1], 1500);
    EXPECT_EQ(g.Pot, 3000);
    EXPECT_EQ(g.view.lblPot.text, "3,000");
    EXPECT_EQ(g.CurrentSeat, 2);
    EXPECT_EQ(g.RunningTimer(), TimerBetFlop);
    EXPECT_TRUE(ButtonsHidden());
    std::string why;
    EXPECT_TRUE(g.state_is_ok(&why)) << why;
}

TEST_F(UserActionTest, CallingMoreThanTheStackGoesAllIn) {
    g.SeatBank[1] = 700;
    g.RosterBank[1] = 700;
    Stake(2, 1000);
    OpenTurn(3, 2, 1000);
    g.cmdPlay_Click(2);
    EXPECT_EQ(g.view.lblBet[1].text, "Called $700 All In");
    EXPECT_EQ(g.SeatBank[1], 0.0f);
    EXPECT_EQ(g.view.lblBank[1].text, "0");
    EXPECT_EQ(g.Pot, 1700);
    EXPECT_EQ(g.RunningTimer(), TimerDealRiver);  // seat 2 holds the high bet
}

TEST_F(UserActionTest, CallingExactlyTheStackHasNoAllIn) {
    g.SeatBank[1] = 1000;
    Stake(6, 1000);
    OpenTurn(2, 6, 1000);
    g.cmdPlay_Click(2);
    EXPECT_EQ(g.view.lblBet[1].text, "Called $1,000");
    EXPECT_EQ(g.SeatBank[1], 0.0f);
}

TEST_F(UserActionTest, TheThreeRefusalsOfBetOrRaise) {
    {
        SCOPED_TRACE("all in");
        g.SeatBank[1] = 0;
        Stake(4, 600);
        OpenTurn(2, 4, 600);
        g.cmdPlay_Click(3);
        ExpectMessage("You're all in. You have no more chips to bet!");
        EXPECT_EQ(g.view.lblBet[1].text, "Amount to Call: $600");
    }
    p.messages.clear();
    {
        SCOPED_TRACE("bet again after the flop");
        g.SeatBank[1] = 5000;
        g.SeatBet = {};
        OpenTurn(2, 1, 0);
        g.cmdPlay_Click(3);
        ExpectMessage("You cannot bet again this round.");
    }
    p.messages.clear();
    {
        SCOPED_TRACE("bet again before the flop after a raise");
        g.SeatBet[1] = 600;
        g.ButtonSeat = 7;  // leaves Bet/Raise enabled before the flop
        OpenTurn(1, 1, 600);
        g.cmdPlay_Click(3);
        ExpectMessage("You cannot bet again this round.");
        EXPECT_EQ(g.HighBetValue, 600);
    }
    p.messages.clear();
    {
        SCOPED_TRACE("not enough to raise");
        g.SeatBet = {};
        g.SeatBank[1] = 800;
        Stake(5, 800);
        OpenTurn(1, 5, 800);
        g.cmdPlay_Click(3);
        ExpectMessage("You do not have enough chips to raise!");
        EXPECT_EQ(g.ToCallAmount, 800);
        EXPECT_EQ(g.MaxBetAmount, 800);
        EXPECT_EQ(g.BetAmount, 0);
        g.cmdPlay_Click(2);  // Call still takes the stack
        EXPECT_EQ(g.view.lblBet[1].text, "Called $800");
    }
}

TEST_F(UserActionTest, TheLargeBlindsOptionMayRaise) {
    g.ButtonSeat = 7;
    g.SeatBet[1] = 200;
    p.betAmounts.push_back(600);
    OpenTurn(1, 1, 200);
    g.cmdPlay_Click(3);
    EXPECT_TRUE(p.messages.empty());
    EXPECT_EQ(g.view.lblBet[1].text, "Raise $600 to $800");
    EXPECT_EQ(g.HighBetValue, 800);
}

TEST_F(UserActionTest, ACancelledDialogChangesNothing) {
    Stake(4, 600);
    OpenTurn(2, 4, 600);
    g.cmdPlay_Click(3);
    ASSERT_EQ(p.betRequests.size(), 1u);
    EXPECT_EQ(p.betRequests[0].HighBetIndex, 4);
    EXPECT_EQ(p.betRequests[0].HighBetValue, 600);
    EXPECT_EQ(p.betRequests[0].ToCallAmount, 600);
    EXPECT_EQ(p.betRequests[0].MaxBetAmount, 10000);
    EXPECT_EQ(g.view.lblBet[1].text, "Amount to Call: $600");
    EXPECT_TRUE(ButtonsShown());
    EXPECT_EQ(g.HighBetIndex, 4);
    EXPECT_EQ(g.SeatBank[1], 10000.0f);
    EXPECT_EQ(g.RunningTimer(), kTimerCount);
    EXPECT_EQ(p.sounds, std::vector<std::string>{"BUTTONCLICK"});
}

TEST_F(UserActionTest, ARaiseTakesTheCallAndTheRaise) {
    Stake(1, 200);
    Stake(4, 600);
    p.betAmounts.push_back(1400);  // 400 to call and 1,000 more
    OpenTurn(1, 4, 600);
    g.cmdPlay_Click(3);
    EXPECT_EQ(g.HighBetIndex, 1);
    EXPECT_EQ(g.HighBetValue, 1600);
    EXPECT_EQ(g.RaiseByAmount, 1000);
    EXPECT_EQ(g.view.lblBet[1].text, "Raise $1,000 to $1,600");
    EXPECT_EQ(g.SeatBank[1], 8400.0f);
    EXPECT_EQ(g.view.lblBank[1].text, "8,400");
    EXPECT_EQ(g.SeatBet[1], 1600);
    EXPECT_EQ(g.Pot, 2200);
    EXPECT_EQ(g.view.lblPot.text, "2,200");
    EXPECT_EQ(g.CurrentSeat, 2);
    EXPECT_EQ(g.RunningTimer(), TimerBetHole);
    EXPECT_TRUE(ButtonsHidden());
    EXPECT_EQ(g.view.lblHBV.text, "1600");
}

TEST_F(UserActionTest, ABetWhenNobodyHasBet) {
    p.betAmounts.push_back(500);
    OpenTurn(3, 5, 0);
    g.cmdPlay_Click(3);
    EXPECT_EQ(g.view.lblBet[1].text, "Bet $500");
    EXPECT_EQ(g.HighBetValue, 500);
    EXPECT_EQ(g.HighBetIndex, 1);
    EXPECT_EQ(g.RunningTimer(), TimerBetTurn);
}

TEST_F(UserActionTest, BettingOrRaisingTheWholeStackIsAllIn) {
    g.SeatBank[1] = 3000;
    p.betAmounts.push_back(3000);
    OpenTurn(2, 0, 0);
    g.cmdPlay_Click(3);
    EXPECT_EQ(g.view.lblBet[1].text, "Bet $3,000 All In");
    EXPECT_EQ(g.SeatBank[1], 0.0f);

    g.SeatBet = {};
    g.SeatBank[1] = 3000;
    Stake(6, 1000);
    p.betAmounts.push_back(3000);
    OpenTurn(2, 6, 1000);
    g.cmdPlay_Click(3);
    EXPECT_EQ(g.view.lblBet[1].text, "Raise $2,000 to $3,000 All In");
}

TEST_F(UserActionTest, AnAmountBeyondTheStackFromTheDialogIsAVoidPress) {
    p.betAmounts.push_back(20000);
    OpenTurn(2, 0, 0);
    g.cmdPlay_Click(3);
    EXPECT_EQ(g.BetAmount, 0);
    EXPECT_EQ(g.SeatBank[1], 10000.0f);
    EXPECT_TRUE(ButtonsShown());
}

TEST_F(UserActionTest, FoldingToTheLastOpponentEndsTheHand) {
    for (int s = 3; s <= 8; ++s) g.SeatInHand[s] = false;
    g.PlayersInHand = 2;
    Stake(2, 400);
    OpenTurn(2, 2, 400);
    g.cmdPlay_Click(4);
    EXPECT_FALSE(g.SeatInHand[1]);
    EXPECT_EQ(g.PlayersInHand, 1);
    EXPECT_EQ(g.view.lblBet[1].text, "Folded");
    EXPECT_FALSE(g.view.icard[1].visible);
    EXPECT_FALSE(g.view.icard[9].visible);
    EXPECT_TRUE(ButtonsHidden());
    EXPECT_EQ(g.RunningTimer(), TimerHandOver);
}

TEST_F(UserActionTest, FoldingWhileHoldingTheHighBetMovesItToTheHighestStake) {
    g.view.icard[1].visible = g.view.icard[9].visible = true;
    Stake(1, 200);
    Stake(2, 100);
    Stake(4, 200);
    Stake(6, 200);
    g.SeatInHand[3] = false;  // folded holding a stake no higher than the others
    Stake(3, 200);
    g.PlayersInHand = 7;
    OpenTurn(1, 1, 200);
    g.cmdPlay_Click(4);
    EXPECT_EQ(g.HighBetIndex, 3);  // ties go to the lower seat, folded or not
    EXPECT_EQ(g.HighBetValue, 200);
    EXPECT_EQ(g.PlayersInHand, 6);
    EXPECT_EQ(g.CurrentSeat, 2);
    EXPECT_EQ(g.RunningTimer(), TimerBetHole);
    EXPECT_FALSE(g.view.icard[1].visible);
}

TEST_F(UserActionTest, FoldingWithTheHighBetElsewhereLeavesIt) {
    Stake(5, 900);
    Stake(7, 1200);
    OpenTurn(3, 5, 900);
    g.cmdPlay_Click(4);
    EXPECT_EQ(g.HighBetIndex, 5);
    EXPECT_EQ(g.HighBetValue, 900);
    EXPECT_EQ(g.RunningTimer(), TimerBetTurn);
}

TEST_F(UserActionTest, FoldingWhenACheckWasPossibleIsAllowed) {
    OpenTurn(2, 0, 0);
    g.cmdPlay_Click(4);
    EXPECT_EQ(g.view.lblBet[1].text, "Folded");
    EXPECT_EQ(g.HighBetIndex, 0);
    EXPECT_EQ(g.CurrentSeat, 2);
}

TEST_F(UserActionTest, HiddenOrDisabledButtonsCannotBePressed) {
    Stake(4, 600);
    OpenTurn(2, 4, 600);
    g.cmdPlay_Click(1);  // Check is disabled while there is a bet to call
    g.cmdPlay_Click(0);
    g.cmdPlay_Click(5);
    EXPECT_EQ(g.view.lblBet[1].text, "Amount to Call: $600");
    EXPECT_TRUE(p.sounds.empty());
    g.cmdPlay_Click(2);
    g.cmdPlay_Click(2);  // the buttons are gone after the call
    EXPECT_EQ(g.SeatBet[1], 600);
}

}  // namespace
}  // namespace holdem
