// After the payments: the blinds, the finishing places, the three ways a hand
// leaves the game, the finish text and the pot breakdown.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "engine/end_of_hand.h"
#include "engine/game_state.h"
#include "tests/support/hand_builder.h"
#include "tests/support/scripted_platform.h"

namespace holdem {
namespace {

TEST(SetBlinds, EveryTableAtItsBoundaries) {
    struct Row {
        int16_t size, playersLeft;
        int32_t smallBlind;
    } rows[] = {
        {8, 8, 100},       {8, 7, 100},       {8, 6, 200},       {8, 5, 200},       {8, 4, 400},
        {8, 3, 600},       {8, 2, 1000},      {8, 1, 1000},      {80, 80, 100},     {80, 61, 100},
        {80, 60, 200},     {80, 51, 200},     {80, 50, 400},     {80, 41, 400},     {80, 40, 600},
        {80, 31, 600},     {80, 30, 800},     {80, 21, 800},     {80, 20, 1000},    {80, 11, 1000},
        {80, 10, 2000},    {80, 6, 2000},     {80, 5, 4000},     {80, 4, 4000},     {80, 3, 8000},
        {80, 2, 8000},     {200, 200, 100},   {200, 161, 100},   {200, 160, 200},   {200, 121, 200},
        {200, 120, 400},   {200, 81, 400},    {200, 80, 600},    {200, 61, 600},    {200, 60, 800},
        {200, 51, 800},    {200, 50, 1000},   {200, 41, 1000},   {200, 40, 1500},   {200, 31, 1500},
        {200, 30, 2000},   {200, 21, 2000},   {200, 20, 4000},   {200, 11, 4000},   {200, 10, 7000},
        {200, 6, 7000},    {200, 5, 10000},   {200, 4, 10000},   {200, 3, 15000},   {200, 2, 15000},
        {1000, 1000, 100}, {1000, 901, 100},  {1000, 900, 200},  {1000, 801, 200},  {1000, 800, 400},
        {1000, 701, 400},  {1000, 700, 600},  {1000, 601, 600},  {1000, 600, 800},  {1000, 501, 800},
        {1000, 500, 1000}, {1000, 401, 1000}, {1000, 400, 1500}, {1000, 301, 1500}, {1000, 300, 2000},
        {1000, 201, 2000}, {1000, 200, 4000}, {1000, 101, 4000}, {1000, 100, 7000}, {1000, 51, 7000},
        {1000, 50, 10000}, {1000, 31, 10000}, {1000, 30, 15000}, {1000, 16, 15000}, {1000, 15, 20000},
        {1000, 8, 20000},  {1000, 7, 25000},  {1000, 4, 25000},  {1000, 3, 35000},  {1000, 2, 35000},
    };
    test::ScriptedPlatform p;
    Game g(p);
    for (const Row& r : rows) {
        g.TournamentSize = r.size;
        g.PlayersLeft = r.playersLeft;
        g.SmallBlind = -1;
        g.SetBlinds();
        EXPECT_EQ(g.SmallBlind, r.smallBlind) << r.size << " players, " << r.playersLeft << " left";
    }
    // Any other size leaves the blind as it is.
    g.TournamentSize = 100;
    g.PlayersLeft = 3;
    g.SmallBlind = 700;
    g.SetBlinds();
    EXPECT_EQ(g.SmallBlind, 700);
}

TEST(FinishText, OrdinalEndings) {
    EXPECT_EQ(FinishText(1), "You Finished 1st");
    EXPECT_EQ(FinishText(2), "You Finished 2nd");
    EXPECT_EQ(FinishText(3), "You Finished 3rd");
    EXPECT_EQ(FinishText(4), "You Finished 4th");
    EXPECT_EQ(FinishText(11), "You Finished 11th");
    EXPECT_EQ(FinishText(12), "You Finished 12th");
    EXPECT_EQ(FinishText(13), "You Finished 13th");
    EXPECT_EQ(FinishText(21), "You Finished 21st");
    EXPECT_EQ(FinishText(22), "You Finished 22nd");
    EXPECT_EQ(FinishText(23), "You Finished 23rd");
    EXPECT_EQ(FinishText(101), "You Finished 101st");
    EXPECT_EQ(FinishText(111), "You Finished 111th");
    EXPECT_EQ(FinishText(112), "You Finished 112th");
    EXPECT_EQ(FinishText(1000), "You Finished 1000th");
}

// A shown hand at its end: seat 1 the user against seat 2, the rest folded
// with nothing in. The user's hand wins or loses as asked.
class EndOfHand : public ::testing::Test {
protected:
    void SetUp() override { g.rnd.Script({}); }
    void TearDown() override {
        std::string why;
        EXPECT_TRUE(g.state_is_ok(&why)) << why;
        EXPECT_EQ(g.rnd.Remaining(), 0u);
        EXPECT_EQ(g.rnd.Overdrawn(), 0);
    }

    void Table(int16_t size) {
        test::EmptyTable(g, size);
        for (int i = 1; i <= size; ++i) {
            g.RosterName[i] = "Player " + std::to_string(i);
            g.RosterBank[i] = 10000;
        }
        // The other tables' hand is not what these tests are about.
        g.TablesInPlay = 1;
        test::SetBoard(g, {"2c", "7d", "9h", "Js", "4s"});
        for (int s = 1; s <= kSeats; ++s) {
            if (g.RosterBank[s] == 0) continue;
            test::SeatPlayer(g, s, g.RosterName[s], 10000.0f, 0, 0, false);
            test::SetHole(g, s, "3c", "5c");
        }
    }
    // Seat 1 and an opponent put `stake` in against each other.
    void Showdown(int32_t stake, bool userWins, int opponent = 2) {
        test::SeatPlayer(g, 1, g.RosterName[1], static_cast<float>(g.RosterBank[1] - stake), stake);
        test::SeatPlayer(g, opponent, g.RosterName[opponent],
                         static_cast<float>(g.RosterBank[opponent] - stake), stake);
        test::SetHole(g, 1, userWins ? "Ah" : "Kh", userWins ? "Ad" : "Kd");
        test::SetHole(g, opponent, userWins ? "Kc" : "Ac", userWins ? "Ks" : "As");
        g.view.timer[TimerHandOver].enabled = true;
        test::RankRiver(g);
        g.TimerHandOver_Timer();
    }

    test::ScriptedPlatform p;
    Game g{p};
};

TEST_F(EndOfHand, TheGameGoesOnBetweenHands) {
    Table(8);
    g.PlayersLeft = 8;
    g.GameUnsaved = false;
    g.view.mnuSave.enabled = g.view.mnuSaveAs.enabled = false;
    Showdown(2000, true);
    EXPECT_EQ(g.RosterBank[1], 12000);
    EXPECT_EQ(g.PlayersLeft, 8);
    EXPECT_EQ(g.SmallBlind, 100);
    EXPECT_EQ(g.view.lblBlind.text, "Blinds: $100 - $200");
    EXPECT_TRUE(g.GameUnsaved);
    EXPECT_TRUE(g.view.mnuSave.enabled);
    EXPECT_TRUE(g.view.mnuSaveAs.enabled);
    EXPECT_TRUE(g.view.cmdDeal.visible);
    EXPECT_TRUE(g.view.cmdStandings.visible);
    EXPECT_TRUE(g.view.cmdFloor.visible);
    EXPECT_FALSE(g.GameEnded);
    for (int s = 1; s <= kSeats; ++s) EXPECT_EQ(g.BreakdownName[s], g.RosterName[s]);
    EXPECT_EQ(p.sounds, (std::vector<std::string>{"WONHAND"}));
    EXPECT_EQ(p.pauses, 1);
    EXPECT_TRUE(p.gameOvers.empty());
    EXPECT_EQ(g.RunningTimer(), kTimerCount);
}

TEST_F(EndOfHand, TheBlindsFollowThePreviousCount) {
    Table(8);
    g.RosterBank[8] = 0;  // busted before: seven players
    g.RosterPlace[8] = 8;
    g.NextFinishPlace = 7;
    test::SeatPlayer(g, 8, g.RosterName[8], 0.0f, 0, 0, false);
    g.PlayersLeft = 7;
    Showdown(10000, true);  // seat 2 busts
    EXPECT_EQ(g.SmallBlind, 100);
    EXPECT_EQ(g.PlayersLeft, 6);
    EXPECT_EQ(g.RosterPlace[2], 7);
    EXPECT_EQ(g.NextFinishPlace, 6);

    // The next hand at 100 ends with nobody out; the one after is at 200.
    g.HandIsOver = false;
    test::SeatPlayer(g, 2, g.RosterName[2], 0.0f, 0, 0, false);
    Showdown(1000, true, 3);
    EXPECT_EQ(g.RosterBank[3], 9000);
    EXPECT_EQ(g.SmallBlind, 200);
    EXPECT_EQ(g.view.lblBlind.text, "Blinds: $200 - $400");
    EXPECT_EQ(g.RosterPlace[2], 7);  // a place is given once
}

TEST_F(EndOfHand, BustedTogetherTheUserTakesTheWorstPlace) {
    Table(200);
    g.NextFinishPlace = 57;
    // Out before: 143 players with places 58 to 200.
    int16_t place = 200;
    for (int i = 41; i <= 200; ++i) {
        bool outBefore = (i >= 58 && i != 75 && i != 140) || i == 41 || i == 42;
        if (!outBefore) continue;
        g.RosterBank[i] = 0;
        g.RosterPlace[i] = place--;
    }
    ASSERT_EQ(place, 57);
    // Busted at their tables in this round.
    for (int i : {20, 75, 140}) g.RosterBank[i] = 0;
    g.PlayersLeft = 57;
    g.SmallBlind = 800;
    Showdown(10000, false);

    EXPECT_EQ(g.RosterBank[1], 0);
    EXPECT_EQ(g.RosterPlace[1], 57);
    EXPECT_EQ(g.UserFinishPlace, 57);
    EXPECT_EQ(g.RosterPlace[20], 56);
    EXPECT_EQ(g.RosterPlace[75], 55);
    EXPECT_EQ(g.RosterPlace[140], 54);
    EXPECT_EQ(g.RosterPlace[41], 200);  // earlier places stand
    EXPECT_EQ(g.NextFinishPlace, 53);
    EXPECT_EQ(g.PlayersLeft, 53);
    EXPECT_EQ(g.SmallBlind, 800);  // set from the 57 of the last count

    // Out, with 53 players left: the game ends for the user at once.
    EXPECT_TRUE(g.GameEnded);
    EXPECT_EQ(p.gameOvers, (std::vector<int16_t>{57}));
    EXPECT_EQ(p.sounds, (std::vector<std::string>{"LOSTHAND", "GAMEOVER"}));
    EXPECT_FALSE(g.view.cmdDeal.visible);
    EXPECT_FALSE(g.view.cmdStandings.visible);
    EXPECT_FALSE(g.view.cmdFloor.visible);
    EXPECT_TRUE(g.view.mnuSave.enabled);
    EXPECT_FALSE(g.view.picTableMoney.visible);
}

TEST_F(EndOfHand, TheUserBustsAgainstTheLastOpponent) {
    Table(8);
    for (int i = 3; i <= 8; ++i) {
        g.RosterBank[i] = 0;
        g.RosterPlace[i] = static_cast<int16_t>(i);
        test::SeatPlayer(g, i, g.RosterName[i], 0.0f, 0, 0, false);
    }
    g.NextFinishPlace = 2;
    g.PlayersLeft = 2;
    g.view.mnuSound.checked = false;
    g.view.cmdDeal.visible = true;  // as if shown before; the game-over form hides it
    Showdown(10000, false);
    EXPECT_EQ(g.UserFinishPlace, 2);
    EXPECT_EQ(p.gameOvers, (std::vector<int16_t>{2}));
    EXPECT_EQ(FinishText(g.UserFinishPlace), "You Finished 2nd");
    // The game-over sound plays with the sound switched off.
    EXPECT_EQ(p.sounds, (std::vector<std::string>{"GAMEOVER"}));
    EXPECT_TRUE(g.GameEnded);
    EXPECT_FALSE(g.view.cmdDeal.visible);
    EXPECT_EQ(g.PlayersLeft, 1);
    EXPECT_EQ(g.RosterPlace[2], 0);  // the winner keeps no place
}

TEST_F(EndOfHand, TheUserTakesTheLastChips) {
    Table(8);
    for (int i = 3; i <= 8; ++i) {
        g.RosterBank[i] = 0;
        g.RosterPlace[i] = static_cast<int16_t>(i);
        test::SeatPlayer(g, i, g.RosterName[i], 0.0f, 0, 0, false);
    }
    g.NextFinishPlace = 2;
    g.PlayersLeft = 2;
    g.view.mnuSound.checked = false;
    Showdown(10000, true);
    EXPECT_EQ(g.RosterBank[1], 20000);
    EXPECT_EQ(g.RosterPlace[2], 2);
    EXPECT_EQ(g.RosterPlace[1], 0);
    EXPECT_EQ(g.UserFinishPlace, 0);
    EXPECT_TRUE(g.view.picTableMoney.visible);
    EXPECT_EQ(p.sounds, (std::vector<std::string>{"WIN"}));
    EXPECT_EQ(p.pauses, 2);  // after the payments and after the win
    EXPECT_TRUE(g.GameEnded);
    EXPECT_TRUE(p.gameOvers.empty());
    EXPECT_FALSE(g.view.cmdDeal.visible);
    EXPECT_FALSE(g.view.cmdStandings.visible);
    EXPECT_FALSE(g.view.cmdFloor.visible);
}

TEST_F(EndOfHand, PotBreakdownLiveThenSnapshot) {
    Table(8);
    g.RosterName[5] = "";  // an empty seat
    g.RosterBank[5] = 0;
    g.RosterPlace[5] = 8;
    g.NextFinishPlace = 7;
    test::SeatPlayer(g, 5, "", 0.0f, 0, 0, false);
    test::SeatPlayer(g, 1, g.RosterName[1], 9000.0f, 600, 400);
    test::SeatPlayer(g, 2, g.RosterName[2], 9000.0f, 600, 400);
    test::SeatPlayer(g, 3, g.RosterName[3], 9400.0f, 600, 0, false);  // folded
    test::SetHole(g, 1, "Ah", "Ad");
    test::SetHole(g, 2, "Kh", "Kd");

    g.lblPot_Click();
    ASSERT_EQ(p.breakdowns.size(), 1u);
    const PotBreakdown& live = p.breakdowns[0];
    EXPECT_EQ(live.bet[1], 1000);
    EXPECT_EQ(live.bet[2], 1000);
    EXPECT_EQ(live.bet[3], 600);
    EXPECT_EQ(live.bet[5], 0);
    EXPECT_EQ(live.name[1], "Player 1");
    EXPECT_EQ(live.name[5], "");
    EXPECT_EQ(live.total, 2600);
    EXPECT_EQ(g.BreakdownTotal, 2600);

    // The street changes: the bets move to the totals and the sum stays.
    for (int s = 1; s <= kSeats; ++s) {
        g.SeatTotalBet[s] += g.SeatBet[s];
        g.SeatBet[s] = 0;
    }
    g.lblPotLabel_Click();
    ASSERT_EQ(p.breakdowns.size(), 2u);
    for (int s = 1; s <= kSeats; ++s) EXPECT_EQ(p.breakdowns[1].bet[s], live.bet[s]) << s;
    EXPECT_EQ(p.breakdowns[1].total, 2600);

    // After the hand: the stakes, not the payments, and they stay until the next hand.
    g.view.timer[TimerHandOver].enabled = true;
    test::RankRiver(g);
    g.TimerHandOver_Timer();
    g.RosterName[1] = "Renamed";
    g.SeatTotalBet[1] = 0;
    g.lblPot_Click();
    ASSERT_EQ(p.breakdowns.size(), 3u);
    EXPECT_EQ(p.breakdowns[2].bet[1], 1000);
    EXPECT_EQ(p.breakdowns[2].bet[3], 600);
    EXPECT_EQ(p.breakdowns[2].name[1], "Player 1");
    EXPECT_EQ(p.breakdowns[2].total, 2600);

    // A new hand: live figures again.
    g.HandIsOver = false;
    for (int s = 1; s <= kSeats; ++s) g.SeatTotalBet[s] = g.SeatBet[s] = 0;
    g.SeatBet[2] = 100;
    g.SeatBet[3] = 200;
    g.lblPot_Click();
    ASSERT_EQ(p.breakdowns.size(), 4u);
    EXPECT_EQ(p.breakdowns[3].name[1], "Renamed");
    EXPECT_EQ(p.breakdowns[3].bet[1], 0);
    EXPECT_EQ(p.breakdowns[3].total, 300);
}

}  // namespace
}  // namespace holdem
