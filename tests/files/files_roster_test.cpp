// LoadRoster, SaveGame and the File menu's Open, Save and Save As.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "engine/game_state.h"
#include "files/seq_text.h"
#include "tests/files/files_test_util.h"
#include "tests/support/scripted_platform.h"

namespace holdem::test {
namespace {

bool NoHandDealt(const Game& g) {
    if (g.RunningTimer() != kTimerCount) return false;
    for (int i = 1; i <= 4; ++i)
        if (g.view.cmdPlay[i].visible) return false;
    for (int c = 1; c <= 21; ++c)
        if (g.view.icard[c].visible) return false;
    for (int s = 1; s <= kSeats; ++s)
        if (g.view.lblName[s].visible || g.view.lblBank[s].visible) return false;
    return !g.view.cmdDeal.visible && !g.view.mnuSave.enabled && !g.view.mnuSaveAs.enabled;
}

void ExpectNotOpened(const ScriptedPlatform& p) {
    ASSERT_EQ(p.messages.size(), 1u);
    EXPECT_EQ(p.messages[0].text, "Saved game not opened.");
    EXPECT_EQ(p.messages[0].title, "Game Not Saved");
    EXPECT_EQ(p.messages[0].icon, MsgIcon::Exclamation);
    EXPECT_EQ(p.messages[0].buttons, MsgButtons::OK);
}

void ExpectNotSaved(const ScriptedPlatform& p) {
    ASSERT_EQ(p.messages.size(), 1u);
    EXPECT_EQ(p.messages[0].text, "There was an error saving the game.");
    EXPECT_EQ(p.messages[0].title, "Game Not Saved");
    EXPECT_EQ(p.messages[0].icon, MsgIcon::Exclamation);
    EXPECT_EQ(p.messages[0].buttons, MsgButtons::OK);
}

class RosterTest : public ::testing::Test {
protected:
    TempFolder dir;
    ScriptedPlatform p;
    Game g{p};

    void SetUp() override { g.AppFolder = dir.Folder(); }

    // Opens `text` as a saved game through the File menu.
    void Open(const std::string& text, std::vector<float> draws) {
        WriteAll(dir.File("game.sgf"), text);
        p.openPaths.push_back(dir.File("game.sgf"));
        g.rnd.Script(std::move(draws));
        g.mnuOpen_Click();
    }
    void ExpectDrawsUsed() {
        EXPECT_EQ(g.rnd.Remaining(), 0u);
        EXPECT_EQ(g.rnd.Overdrawn(), 0);
    }
};

// ---- The header of a new game --------------------------------------------------

TEST_F(RosterTest, NewGameDropsTheFirstHeaderItemAndReadsOnlyTheChosenField) {
    WriteAll(dir.File("gamedata.dat"), RosterText(1000, 0, 5, 700, FieldLines(100)));
    g.TournamentSize = 80;
    g.SeatName[1] = "Alice";
    // Three button draws (only the last counts: 0.5 * 7 = 3.5 rounds to 4, seat
    // 5), then the shuffle of the first hand.
    g.rnd.Script(LoadDraws({0.99f, 0.0f, 0.5f}));
    g.LoadRoster();
    ExpectDrawsUsed();

    EXPECT_EQ(g.TournamentSize, 80);
    EXPECT_EQ(g.RosterName[80], "Player No. 80");
    EXPECT_EQ(g.RosterName[81], "");
    EXPECT_EQ(g.RosterBank[81], 0);
    EXPECT_EQ(g.RosterName[1], "Alice");
    EXPECT_EQ(g.SeatName[1], "Alice");
    EXPECT_EQ(g.view.lblName[1].text, "Alice");
    EXPECT_EQ(g.SmallBlind, 100);
    EXPECT_EQ(g.view.lblBlind.text, "Blinds: $100 - $200");
    EXPECT_EQ(g.view.lblGoodLuck.text, "Good Luck!");
    EXPECT_TRUE(g.view.lblGoodLuck.visible);
    EXPECT_EQ(g.NextFinishPlace, 80);
    EXPECT_FALSE(g.GameUnsaved);
    // The first hand is dealt at once; it moves the button on from the draw.
    EXPECT_EQ(g.HandsPlayed, 1);
    EXPECT_EQ(g.ButtonSeat, 6);
    EXPECT_EQ(g.RunningTimer(), TimerDealHole);
}

TEST_F(RosterTest, ButtonDrawRoundsHalvesToTheEvenSeatAndCoversBothEnds) {
    struct Case {
        float draw;
        int drawnSeat;
    };
    // x * 7 lands exactly on 0.5, 1.5, 2.5 for these floats.
    const Case cases[] = {{0.0f, 1},           {0x1.24924ap-4f, 1}, {0x1.b6db6ep-3f, 3},
                          {0x1.6db6dcp-2f, 3}, {0.5f, 5},           {0.99999994f, 8}};
    WriteAll(dir.File("gamedata.dat"), RosterText(8, 0, 0, 0, FieldLines(8)));
    for (const Case& c : cases) {
        g.TournamentSize = 8;
        g.SavedGamePath.clear();
        g.rnd.Script(LoadDraws({0.3f, 0.7f, c.draw}));
        g.LoadRoster();
        ExpectDrawsUsed();
        EXPECT_EQ(g.ButtonSeat, NextSeat(c.drawnSeat)) << "draw " << c.draw;
    }
}

TEST_F(RosterTest, SavedGameWithNoHandPlayedDrawsTheButtonAndResetsTheBlind) {
    auto lines = FieldLines(8);
    lines[0] = PlayerLine(1, "Saved Name", 10000, 0, 1);
    g.SeatName[1] = "Last Entered";
    Open(RosterText(8, 0, 3, 5000, lines), LoadDraws({0.1f, 0.2f, 0x1.6db6dcp-2f}));
    ExpectDrawsUsed();
    EXPECT_TRUE(p.messages.empty());
    EXPECT_EQ(g.SmallBlind, 100);
    EXPECT_EQ(g.ButtonSeat, 4);
    EXPECT_EQ(g.SeatName[1], "Saved Name");
}

// ---- Counting the field --------------------------------------------------------

TEST_F(RosterTest, PlayersLeftCountsPlacesNotChips) {
    auto lines = FieldLines(8);
    lines[2] = PlayerLine(3, "No Chips Yet In", 0, 0, 3);
    lines[3] = PlayerLine(4, "Out First", 0, 8, 4);
    lines[4] = PlayerLine(5, "Placed With Chips", 10000, 7, 5);
    Open(RosterText(8, 9, 2, 200, lines), LoadDraws({}));
    ExpectDrawsUsed();
    EXPECT_EQ(g.PlayersLeft, 6);
    EXPECT_EQ(g.NextFinishPlace, 6);
    EXPECT_EQ(g.SmallBlind, 200);
    EXPECT_EQ(g.view.lblBlind.text, "Blinds: $200 - $400");
}

TEST_F(RosterTest, UserFinishPlaceComesFromTheRecordNumberedOne) {
    auto lines = FieldLines(8);
    lines[6] = PlayerLine(7, "Gone", 0, 8, 7);
    Open(RosterText(8, 4, 2, 100, lines), LoadDraws({}));
    EXPECT_EQ(g.UserFinishPlace, 0);
    EXPECT_EQ(g.RosterPlace[7], 8);
}

// Eight or fewer players left by places, in a tournament only.
TEST_F(RosterTest, FinalTableCaptionFollowsPlacesInTournaments) {
    auto field = [](int size, const std::vector<int>& in, const std::vector<int>& placedWithChips) {
        std::vector<std::string> lines;
        int place = size;
        for (int p = 1; p <= size; ++p) {
            bool isIn = std::find(in.begin(), in.end(), p) != in.end();
            bool chips =
                std::find(placedWithChips.begin(), placedWithChips.end(), p) != placedWithChips.end();
            lines.push_back(
                PlayerLine(p, "P" + std::to_string(p), isIn || chips ? 10000 : 0, isIn ? 0 : place--, p));
        }
        return lines;
    };
    const std::vector<int> tableOne = {1, 2, 3, 4, 5, 6, 7, 8};
    struct Case {
        int size;
        std::vector<int> in, placedWithChips;
        const char* caption;
    } cases[] = {
        {80, tableOne, {}, "Final Table!"},
        {80, {1, 2, 3, 4, 5, 9, 10, 11, 12}, {}, "Good Luck!"},
        {8, {1, 2, 3}, {}, "Good Luck!"},
        // Ten players hold chips over two tables, but only eight have no place.
        {200, tableOne, {9, 10}, "Final Table!"},
    };
    for (const Case& c : cases) {
        p.messages.clear();
        Open(RosterText(c.size, 30, 1, 1000, field(c.size, c.in, c.placedWithChips)), LoadDraws({}));
        EXPECT_TRUE(p.messages.empty());
        EXPECT_EQ(g.view.lblGoodLuck.text, c.caption) << "size " << c.size << ", " << c.in.size() << " in";
        EXPECT_EQ(g.NextFinishPlace, static_cast<int>(c.in.size()));
    }
}

// ---- Saving and opening --------------------------------------------------------

TEST_F(RosterTest, SavedGameHasTheHeaderThenOneLinePerPositionInOrder) {
    FillRoster(g, 8);
    g.RosterName[2] = "Smith, John";
    g.RosterName[3] = "  Blank Ends  ";
    g.RosterName[4] = "Say \"Hi\"";
    g.RosterTag[5] = -7;
    g.RosterBank[6] = 0;
    g.RosterPlace[6] = 8;
    g.HandsPlayed = 14;
    g.ButtonSeat = 3;
    g.SmallBlind = 400;
    g.GameUnsaved = true;
    p.savePaths.push_back(dir.File("mine"));
    g.mnuSave_Click();

    ASSERT_EQ(p.saveDialogs.size(), 1u);
    EXPECT_EQ(p.saveDialogs[0].title, "Save Game As");
    EXPECT_EQ(p.saveDialogs[0].filter, "Saved Game Files (*.sgf)|*.sgf");
    EXPECT_EQ(p.saveDialogs[0].folder, dir.Folder());
    EXPECT_TRUE(p.messages.empty());
    EXPECT_FALSE(g.GameUnsaved);
    EXPECT_EQ(g.SavedGamePath, dir.File("mine.sgf"));
    EXPECT_EQ(ReadAll(dir.File("mine.sgf")),
              "8,14,3,400\r\n"
              "1,\"The User\",10000,0,1\r\n"
              "2,\"Smith, John\",10000,0,2\r\n"
              "3,\"  Blank Ends  \",10000,0,3\r\n"
              "4,\"Say 'Hi'\",10000,0,4\r\n"
              "-7,\"Player No. 5\",10000,0,5\r\n"
              "6,\"Player No. 6\",0,8,6\r\n"
              "7,\"Player No. 7\",10000,0,7\r\n"
              "8,\"Player No. 8\",10000,0,8\r\n");

    // Save again: the same file, no question.
    g.RosterBank[2] = 12000;
    g.mnuSave_Click();
    EXPECT_EQ(p.saveDialogs.size(), 1u);
    EXPECT_NE(ReadAll(dir.File("mine.sgf")).find("\"Smith, John\",12000"), std::string::npos);

    // Open it in another game: names with commas and blanks come back whole.
    ScriptedPlatform p2;
    Game g2(p2);
    p2.openPaths.push_back(dir.File("mine.sgf"));
    g2.rnd.Script(LoadDraws({}));
    g2.mnuOpen_Click();
    ASSERT_TRUE(p2.messages.empty());
    EXPECT_EQ(p2.openDialogs[0].title, "Open Saved Game");
    EXPECT_EQ(p2.openDialogs[0].filter, "Saved Game Files (*.sgf)|*.sgf");
    EXPECT_EQ(g2.RosterName[2], "Smith, John");
    EXPECT_EQ(g2.RosterName[3], "  Blank Ends  ");
    EXPECT_EQ(g2.RosterName[4], "Say 'Hi'");
    EXPECT_EQ(g2.RosterTag[5], -7);
    EXPECT_EQ(g2.RosterBank[2], 12000);
    EXPECT_EQ(g2.SavedGamePath, dir.File("mine.sgf"));
}

TEST_F(RosterTest, SaveAsMovesTheGameToTheNewPath) {
    FillRoster(g, 8);
    g.HandsPlayed = 3;
    g.ButtonSeat = 1;
    g.SmallBlind = 100;
    g.SavedGamePath = dir.File("old.sgf");
    p.savePaths.push_back(dir.File("new.sgf"));
    g.mnuSaveAs_Click();
    EXPECT_EQ(g.SavedGamePath, dir.File("new.sgf"));
    EXPECT_TRUE(std::filesystem::exists(dir.File("new.sgf")));
    EXPECT_FALSE(std::filesystem::exists(dir.File("old.sgf")));
    EXPECT_EQ(p.saveDialogs[0].title, "Save Game As");
}

// A game saved after some hands, opened again, deals the same next hand as the
// game it came from would have dealt at Deal.
TEST_F(RosterTest, OpenedGamePlaysOnFromTheSameRosterButtonAndBlinds) {
    FillRoster(g, 8);
    const int32_t banks[9] = {0, 14300, 9800, 0, 22100, 3500, 0, 17600, 12700};
    for (int s = 1; s <= 8; ++s) g.RosterBank[s] = banks[s];
    g.RosterPlace[3] = 8;
    g.RosterPlace[6] = 7;
    g.HandsPlayed = 23;
    g.ButtonSeat = 5;
    g.SmallBlind = 200;
    g.GameUnsaved = true;
    g.SavedGamePath = dir.File("played.sgf");
    g.SaveGame();
    ASSERT_TRUE(p.messages.empty());

    std::vector<float> shuffle;
    for (int i = 0; i < 52; ++i) shuffle.push_back(static_cast<float>((i * 37) % 100) / 100.0f);
    ScriptedPlatform p2;
    Game g2(p2);
    p2.openPaths.push_back(g.SavedGamePath);
    g2.rnd.Script(shuffle);
    g2.mnuOpen_Click();
    ASSERT_TRUE(p2.messages.empty());
    EXPECT_EQ(g2.rnd.Remaining(), 0u);

    g.rnd.Script(shuffle);
    g.StartHand();

    for (int pos = 1; pos <= 8; ++pos) {
        EXPECT_EQ(g2.RosterName[pos], g.RosterName[pos]);
        EXPECT_EQ(g2.RosterBank[pos], g.RosterBank[pos]);
        EXPECT_EQ(g2.RosterPlace[pos], g.RosterPlace[pos]);
    }
    EXPECT_EQ(g2.HandsPlayed, 24);
    EXPECT_EQ(g2.HandsPlayed, g.HandsPlayed);
    EXPECT_EQ(g2.ButtonSeat, g.ButtonSeat);
    EXPECT_EQ(g2.SmallBlindSeat, g.SmallBlindSeat);
    EXPECT_EQ(g2.BigBlindSeat, g.BigBlindSeat);
    EXPECT_EQ(g2.SmallBlind, 200);
    EXPECT_EQ(g2.Pot, g.Pot);
    EXPECT_EQ(g2.Deck, g.Deck);
    for (int s = 1; s <= 8; ++s) {
        EXPECT_EQ(g2.SeatBank[s], g.SeatBank[s]);
        EXPECT_EQ(g2.SeatBet[s], g.SeatBet[s]);
        EXPECT_EQ(g2.SeatInHand[s], g.SeatInHand[s]);
        for (int k = 1; k <= 7; ++k) EXPECT_EQ(g2.SeatCards[s][k], g.SeatCards[s][k]);
    }
    EXPECT_EQ(g2.RunningTimer(), TimerDealHole);
}

// Plays the running hand to its end: timers fire, and the user checks when
// he can, calls up to a large blind and folds to more.
void PlayHand(Game& g) {
    for (int steps = 0; steps < 2000; ++steps) {
        TimerId running = g.RunningTimer();
        if (running != kTimerCount) {
            g.FireTimer(running);
        } else if (g.view.cmdPlay[1].visible) {
            bool cheap = g.HighBetValue - g.SeatBet[1] <= 2 * g.SmallBlind;
            g.cmdPlay_Click(g.view.cmdPlay[1].enabled ? 1 : cheap ? 2 : 4);
        } else {
            return;
        }
        std::string why;
        ASSERT_TRUE(g.state_is_ok(&why)) << why;
    }
    FAIL() << "the hand did not end";
}

std::vector<float> SeededDraws(unsigned seed, int count) {
    std::mt19937 rng(seed);
    std::vector<float> draws;
    for (int i = 0; i < count; ++i) draws.push_back(static_cast<float>(rng() >> 8) / 16777216.0f);
    return draws;
}

// Some hands of a real game, a save between hands, and the file opened in
// another game: both play the next hand alike, to the last chip.
TEST_F(RosterTest, GameSavedAfterSomeHandsPlaysOnAsTheGameItCameFrom) {
    WriteAll(dir.File("gamedata.dat"), ReadAll(ShippedFile("gamedata.dat")));
    g.rnd.SeedDeterministic(11);
    p.newGames.push_back({false, "Single Table", "80", "Fast"});
    p.playerNames.push_back("Robin");
    g.mnuNew_Click();
    for (int hand = 1; hand <= 6 && !g.GameEnded; ++hand) {
        PlayHand(g);
        if (hand < 6) g.cmdDeal_Click();
    }
    ASSERT_FALSE(g.GameEnded);
    ASSERT_TRUE(g.view.cmdDeal.visible);
    ASSERT_TRUE(g.view.mnuSave.enabled);
    ASSERT_TRUE(g.GameUnsaved);
    p.savePaths.push_back(dir.File("robin.sgf"));
    g.mnuSave_Click();
    ASSERT_TRUE(p.messages.empty());
    EXPECT_FALSE(g.GameUnsaved);

    ScriptedPlatform p2;
    Game g2(p2);
    g2.AppFolder = dir.Folder();
    p2.openPaths.push_back(dir.File("robin.sgf"));
    const std::vector<float> draws = SeededDraws(5, 4000);
    g2.rnd.Script(draws);
    g2.mnuOpen_Click();
    ASSERT_TRUE(p2.messages.empty());
    g.rnd.Script(draws);
    g.cmdDeal_Click();

    EXPECT_EQ(g2.SeatName[1], "Robin");
    EXPECT_EQ(g2.HandsPlayed, 7);
    EXPECT_EQ(g2.HandsPlayed, g.HandsPlayed);
    EXPECT_EQ(g2.ButtonSeat, g.ButtonSeat);
    EXPECT_EQ(g2.SmallBlind, g.SmallBlind);
    EXPECT_EQ(g2.view.lblBlind.text, g.view.lblBlind.text);
    const auto banksBefore = g.RosterBank;
    PlayHand(g);
    PlayHand(g2);
    EXPECT_NE(g.RosterBank, banksBefore);  // the hand moved chips
    EXPECT_TRUE(g2.view.cmdDeal.visible || g2.GameEnded);
    EXPECT_EQ(g2.rnd.Remaining(), g.rnd.Remaining());
    EXPECT_EQ(g2.rnd.Overdrawn(), 0);
    for (int pos = 1; pos <= 8; ++pos) {
        EXPECT_EQ(g2.RosterName[pos], g.RosterName[pos]);
        EXPECT_EQ(g2.RosterBank[pos], g.RosterBank[pos]) << "position " << pos;
        EXPECT_EQ(g2.RosterPlace[pos], g.RosterPlace[pos]);
    }
    EXPECT_EQ(g2.SmallBlind, g.SmallBlind);
    EXPECT_EQ(g2.PlayersLeft, g.PlayersLeft);
}

// ---- The failure table ---------------------------------------------------------

TEST_F(RosterTest, CancelledOpenLeavesTheGameAsItWas) {
    Open(RosterText(8, 5, 2, 100, FieldLines(8)), LoadDraws({}));
    g.SavedGamePath = "/somewhere/else.sgf";
    g.DisableTimer(TimerDealHole);
    g.EnableTimer(TimerBetFlop);
    p.messages.clear();
    g.mnuOpen_Click();  // the queue is empty: the dialog is cancelled
    ExpectNotOpened(p);
    EXPECT_EQ(p.openDialogs.back().folder, dir.Folder());
    EXPECT_EQ(g.SavedGamePath, "/somewhere/else.sgf");
    EXPECT_EQ(g.RunningTimer(), TimerBetFlop);
    EXPECT_EQ(g.RosterName[2], "Player No. 2");
    EXPECT_EQ(g.HandsPlayed, 6);
}

TEST_F(RosterTest, FailedOpenInMidHandLeavesAnEmptyTableAndNoHand) {
    Open(RosterText(8, 5, 2, 100, FieldLines(8)), LoadDraws({}));
    g.DisableTimer(TimerDealHole);
    g.view.cmdPlay[1].visible = g.view.cmdPlay[4].visible = true;  // the user's turn
    g.view.icard[1].visible = g.view.icard[17].visible = true;
    g.GameUnsaved = true;
    p.messages.clear();

    auto lines = FieldLines(8);
    lines.resize(5);
    Open(RosterText(8, 9, 2, 100, lines), {});
    ExpectNotOpened(p);
    EXPECT_EQ(g.SavedGamePath, dir.File("game.sgf"));
    EXPECT_TRUE(NoHandDealt(g));
    // Filled as far as the read came.
    EXPECT_EQ(g.RosterName[5], "Player No. 5");
    EXPECT_EQ(g.RosterName[6], "");
    EXPECT_EQ(g.RosterBank[6], 0);
    // Nothing left to save or ask about; the views and a new game still work.
    EXPECT_FALSE(g.GameUnsaved);
    g.mnuStandings_Click();
    EXPECT_EQ(ReadAll(g.StandingsPath), "0,0,2,100\r\n");
    p.messages.clear();
    WriteAll(dir.File("gamedata.dat"), RosterText(1000, 0, 1, 100, FieldLines(8)));
    p.newGames.push_back({false, "Single Table", "80", "Fast"});
    g.rnd.Script(LoadDraws({0.1f, 0.1f, 0.1f}));
    g.mnuNew_Click();
    EXPECT_TRUE(p.messages.empty());  // no game was in play: no question
    EXPECT_EQ(g.RunningTimer(), TimerDealHole);
    EXPECT_EQ(g.HandsPlayed, 1);
}

TEST_F(RosterTest, UnreadableFilesAreReportedAndDealNothing) {
    const std::string good = RosterText(8, 5, 2, 100, FieldLines(8));
    const std::string cases[] = {
        "",                                                         // empty
        good.substr(0, good.size() / 2),                            // ends early
        RosterText(50, 5, 2, 100, FieldLines(8)),                   // no such size
        RosterText(8, 5, 9, 100, FieldLines(8)),                    // button off the table
        RosterText(8, 5, 2, 0, FieldLines(8)),                      // no blind
        RosterText(8, -1, 2, 100, FieldLines(8)),                   // hands below zero
        RosterText(8, 5, 2, 100, FieldLines(8, -100)),              // chips below zero
        RosterText(8, 5, 2, 100, FieldLines(8, 3000000)),           // more chips than a Single holds exactly
        RosterText(8, 5, 2, 100, {PlayerLine(1, "A", 100, 9, 1)}),  // place beyond the field
        "8,5,2,100\r\n1,\"Unclosed,10000,0,1\r\n",
        "8,5,2,100\r\n1,\"A\",ten,0,1\r\n",
        "8,5,2,100\r\n70000,\"A\",10000,0,1\r\n",
    };
    for (const std::string& text : cases) {
        p.messages.clear();
        Open(text, {});
        ExpectNotOpened(p);
        EXPECT_TRUE(NoHandDealt(g)) << text.substr(0, 40);
        EXPECT_EQ(g.rnd.Overdrawn(), 0);
    }
    p.messages.clear();
    p.openPaths.push_back(dir.File("missing.sgf"));
    g.mnuOpen_Click();
    ExpectNotOpened(p);
    EXPECT_TRUE(NoHandDealt(g));
}

TEST_F(RosterTest, CancelledSaveDialogWritesNothing) {
    FillRoster(g, 8);
    g.HandsPlayed = 2;
    g.GameUnsaved = true;
    g.mnuSave_Click();
    ExpectNotSaved(p);
    EXPECT_EQ(g.SavedGamePath, "");
    EXPECT_TRUE(g.GameUnsaved);

    p.messages.clear();
    g.SavedGamePath = dir.File("kept.sgf");
    g.mnuSaveAs_Click();
    ExpectNotSaved(p);
    EXPECT_EQ(g.SavedGamePath, dir.File("kept.sgf"));
    EXPECT_TRUE(g.GameUnsaved);
    EXPECT_FALSE(std::filesystem::exists(dir.File("kept.sgf")));
}

TEST_F(RosterTest, FailedWriteKeepsGameUnsavedAndThePreviousFile) {
    FillRoster(g, 8);
    g.HandsPlayed = 2;
    g.ButtonSeat = 1;
    g.SmallBlind = 100;
    g.GameUnsaved = true;
    g.SavedGamePath = dir.File("no-such-folder/game.sgf");
    g.SaveGame();
    ExpectNotSaved(p);
    EXPECT_TRUE(g.GameUnsaved);

    // A folder in the way of the file: the save fails and the folder stays.
    p.messages.clear();
    std::filesystem::create_directory(dir.File("taken.sgf"));
    g.SavedGamePath = dir.File("taken.sgf");
    g.SaveGame();
    ExpectNotSaved(p);
    EXPECT_TRUE(std::filesystem::is_directory(dir.File("taken.sgf")));
    EXPECT_TRUE(g.GameUnsaved);
}

// ---- Files that hold a finished game -------------------------------------------

TEST_F(RosterTest, FinishedGameOpensToItsFinalStateAndDealsNothing) {
    auto line = [](int s, int bank, int place) {
        return PlayerLine(s, "P" + std::to_string(s), bank, place, s);
    };
    // The user went out third; seats 4 and 5 play on.
    const std::vector<std::string> userOut = {line(1, 0, 3),     line(2, 0, 8),     line(3, 0, 7),
                                              line(4, 40000, 0), line(5, 40000, 0), line(6, 0, 6),
                                              line(7, 0, 5),     line(8, 0, 4)};
    // The user holds every chip.
    const std::vector<std::string> userWon = {line(1, 80000, 0), line(2, 0, 8), line(3, 0, 7), line(4, 0, 6),
                                              line(5, 0, 5),     line(6, 0, 4), line(7, 0, 3), line(8, 0, 2)};

    struct Case {
        std::vector<std::string> lines;
        bool won;
        const char* detail;
    } cases[] = {{userOut, false, "You Finished 3rd."}, {userWon, true, "You won it."}};
    for (const Case& c : cases) {
        p.messages.clear();
        g.GameEnded = false;
        Open(RosterText(8, 40, 2, 1000, c.lines), {});
        ExpectDrawsUsed();
        ASSERT_EQ(p.messages.size(), 1u);
        EXPECT_NE(p.messages[0].text.find(c.detail), std::string::npos) << p.messages[0].text;
        EXPECT_EQ(p.messages[0].title, "Game Over");
        EXPECT_TRUE(g.GameEnded);
        EXPECT_FALSE(g.GameUnsaved);
        EXPECT_EQ(g.RunningTimer(), kTimerCount);
        EXPECT_EQ(g.HandsPlayed, 40);
        EXPECT_EQ(g.view.picTableMoney.visible, c.won);
        EXPECT_TRUE(g.view.lblName[1].visible);
        EXPECT_FALSE(g.view.cmdDeal.visible);
        EXPECT_TRUE(g.view.mnuSave.enabled);
    }
}

}  // namespace
}  // namespace holdem::test
