#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "engine/autoplay.h"
#include "engine/end_of_hand.h"
#include "engine/play_out.h"
#include "tests/support/scripted_platform.h"

namespace holdem {
namespace {

// Stopped once and played on: the field ends with places 1..N, each once.
void CheckPlayOut(Game& g, int players) {
    g.view.logging = true;
    const int userPlace = g.UserFinishPlace;
    int rounds = 0;
    PlayOutReport stopped = PlayOutField(g, [&](int) { return ++rounds < 2; });
    EXPECT_FALSE(stopped.finished);
    EXPECT_TRUE(CanPlayOutField(g)) << "a stopped field plays on later";
    PlayOutReport report = PlayOutField(g);
    ASSERT_TRUE(report.finished);
    EXPECT_FALSE(CanPlayOutField(g));

    std::vector<Standing> standings = FinalStandings(g);
    ASSERT_EQ(standings.size(), static_cast<std::size_t>(players));
    std::vector<int> numbers;
    for (std::size_t i = 0; i < standings.size(); ++i) {
        EXPECT_EQ(standings[i].place, static_cast<int>(i) + 1);
        numbers.push_back(standings[i].number);
        EXPECT_TRUE(standings[i].number != 1 || standings[i].place == userPlace);
    }
    std::sort(numbers.begin(), numbers.end());
    for (int i = 0; i < players; ++i) EXPECT_EQ(numbers[i], i + 1);
    EXPECT_EQ(g.RosterBank[report.winnerPosition], players * 10000);
    ASSERT_FALSE(g.view.log.empty());
    EXPECT_EQ(FormatLogLine(g.view.log.back()),
              standings.front().name + (players > 8 ? " wins the tournament" : " wins the game"));
}

TEST(PlayOut, FieldEndsWithOneWinnerAndEveryPlaceOnce) {
    for (int players : {8, 80, 200, 1000}) {
        SCOPED_TRACE(players);
        bool playedOut = false;
        for (uint64_t seed = 1; seed <= 10 && !playedOut; ++seed) {
            sim::PlayOneGame(HOLDEM_ASSETS, players, seed, sim::Policy::Folder, nullptr, [&](Game& g) {
                if (!CanPlayOutField(g)) return;
                CheckPlayOut(g, players);
                playedOut = true;
            });
        }
        EXPECT_TRUE(playedOut);
    }
}

TEST(TourneyFigures, FromTheRosterAfterARound) {
    test::ScriptedPlatform p;
    Game g(p);
    g.TournamentSize = 80;
    for (int pos = 1; pos <= 80; ++pos) {
        g.RosterNumber[pos] = static_cast<int16_t>(pos);
        g.RosterBank[pos] = pos <= 40 ? 1000 * pos : 0;
    }
    g.RosterBank[1] = 25500;
    g.BalanceTables();
    g.SmallBlind = 400;
    TourneyFigures f = ComputeTourneyFigures(g);
    EXPECT_EQ(f.fieldSize, 80);
    EXPECT_EQ(f.playersLeft, 40);
    EXPECT_EQ(f.tablesInPlay, 5);
    EXPECT_EQ(f.smallBlind, 400);
    EXPECT_EQ(f.nextRiseAt, 40);
    EXPECT_EQ(f.nextSmallBlind, 600);
    EXPECT_EQ(f.userPlace, 16);        // $26,000 .. $40,000 stand above
    EXPECT_EQ(f.averageStack, 21113);  // $844,500 over 40, rounded

    g.RosterBank[1] = 0;
    EXPECT_EQ(ComputeTourneyFigures(g).userPlace, 0);
}

TEST(TourneyFigures, NextRiseOfTheBlinds) {
    struct Case {
        int16_t size;
        int32_t smallBlind;
        int riseAt;
        int32_t next;
    };
    const Case cases[] = {{1000, 100, 900, 200}, {1000, 25000, 3, 35000}, {1000, 35000, 0, 0},
                          {200, 1500, 30, 2000}, {80, 4000, 3, 8000},     {8, 600, 2, 1000},
                          {80, 150, 0, 0}};
    for (const Case& c : cases) {
        SCOPED_TRACE(std::to_string(c.size) + " at " + std::to_string(c.smallBlind));
        BlindRise rise = NextBlindRise(c.size, c.smallBlind);
        EXPECT_EQ(rise.playersLeft, c.riseAt);
        EXPECT_EQ(rise.smallBlind, c.next);
    }
}

// What a hand leaves behind, as text, to compare two runs field by field.
std::vector<std::string> Snapshot(const Game& g, const test::ScriptedPlatform& p) {
    std::vector<std::string> out = {
        "draws " + std::to_string(g.rnd.Draws()),         "left " + std::to_string(g.PlayersLeft),
        "tables " + std::to_string(g.TablesInPlay),       "blind " + std::to_string(g.SmallBlind),
        "deal " + std::to_string(g.view.cmdDeal.visible), "pauses " + std::to_string(p.pauses)};
    for (int pos = 1; pos <= g.TournamentSize; ++pos)
        out.push_back(std::to_string(pos) + ": " + g.RosterName[pos] + " " +
                      std::to_string(g.RosterBank[pos]) + " " + std::to_string(g.RosterPlace[pos]));
    for (int s = 1; s <= kSeats; ++s)
        out.push_back(g.view.lblBet[s].text + "|" + g.view.lblPaid[s].text + "|" + g.view.lblBank[s].text +
                      "|" + std::to_string(g.view.icard[s].visible) +
                      std::to_string(g.view.iArrow[s].visible));
    for (const std::string& sound : p.sounds) out.push_back(sound);
    for (const LogLine& line : g.view.log) out.push_back(FormatLogLine(line));
    return out;
}

// The user folds at the first turn; the rest of the hand runs tick by tick
// as the window's timers would fire it, or all at once by FinishHand.
std::vector<std::string> FoldAndFinish(int players, uint64_t seed, bool hurry) {
    test::ScriptedPlatform p;
    Game g(p);
    g.AppFolder = HOLDEM_ASSETS;
    g.rnd.SeedDeterministic(seed);
    sim::SetUpGame(g, players);
    while (g.RunningTimer() != kTimerCount) {
        EXPECT_FALSE(CanFinishHand(g));
        g.FireTimer(g.RunningTimer());
    }
    if (g.view.cmdPlay[4].visible) g.cmdPlay_Click(4);
    EXPECT_EQ(CanFinishHand(g), g.RunningTimer() != kTimerCount);
    if (hurry)
        FinishHand(g);
    else
        while (g.RunningTimer() != kTimerCount) g.FireTimer(g.RunningTimer());
    EXPECT_FALSE(CanFinishHand(g));
    return Snapshot(g, p);
}

TEST(FinishHand, SameOutcomeAndDrawsAsTheTimers) {
    for (int players : {8, 80, 1000}) {
        for (uint64_t seed = 1; seed <= 4; ++seed) {
            SCOPED_TRACE(std::to_string(players) + " players, seed " + std::to_string(seed));
            EXPECT_EQ(FoldAndFinish(players, seed, true), FoldAndFinish(players, seed, false));
        }
    }
}

}  // namespace
}  // namespace holdem
