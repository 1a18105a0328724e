// LoadRoster, SaveGame and the File menu's Open, Save and Save As.
#include <gtest/gtest.h>

#include <random>

#include "tests/files/files_test_util.h"

namespace holdem::test {
namespace {

const char* const kNotOpened = "Saved game not opened.";
const char* const kNotSaved = "There was an error saving the game.";

using RosterTest = FileTest;

TEST_F(RosterTest, NewGameDropsTheFirstHeaderItemAndReadsOnlyTheChosenField) {
    WriteAll(dir.File("gamedata.dat"), RosterText(1000, 0, 5, 700, FieldLines(100)));
    g.TournamentSize = 80;
    g.SeatName[1] = "Alice";
    // Three button draws; only the last counts: 0.5 * 7 rounds to 4, seat 5.
    g.rnd.Script(LoadDraws({0.99f, 0.0f, 0.5f}));
    g.LoadRoster();
    ExpectDrawsUsed(g);
    EXPECT_EQ(std::tie(g.TournamentSize, g.RosterName[80], g.RosterName[81], g.RosterBank[81]),
              std::make_tuple(int16_t{80}, std::string("Player No. 80"), std::string(), 0));
    EXPECT_EQ(std::tie(g.RosterName[1], g.SeatName[1], g.view.lblName[1].text),
              std::make_tuple("Alice", "Alice", "Alice"));
    EXPECT_EQ(g.view.lblBlind.text, "Blinds: $100 - $200");
    EXPECT_TRUE(g.view.lblGoodLuck.visible);
    EXPECT_EQ(g.view.lblGoodLuck.text, "Good Luck!");
    EXPECT_EQ(g.NextFinishPlace, 80);
    EXPECT_FALSE(g.GameUnsaved);
    // The first hand is dealt at once and moves the button on from the draw.
    EXPECT_EQ(std::tie(g.HandsPlayed, g.ButtonSeat, g.SmallBlind), std::make_tuple(1, 6, 100));
    EXPECT_EQ(g.RunningTimer(), TimerDealHole);
}

TEST_F(RosterTest, ButtonDrawRoundsHalvesToTheEvenSeatAndCoversBothEnds) {
    // x * 7 lands exactly on 0.5, 1.5 and 2.5 for the middle floats.
    const std::pair<float, int> cases[] = {{0.0f, 1},           {0x1.24924ap-4f, 1}, {0x1.b6db6ep-3f, 3},
                                           {0x1.6db6dcp-2f, 3}, {0.5f, 5},           {0.99999994f, 8}};
    WriteAll(dir.File("gamedata.dat"), RosterText(8, 0, 0, 0, FieldLines(8)));
    for (const auto& [draw, drawnSeat] : cases) {
        g.TournamentSize = 8;
        g.rnd.Script(LoadDraws({0.3f, 0.7f, draw}));
        g.LoadRoster();
        ExpectDrawsUsed(g);
        EXPECT_EQ(g.ButtonSeat, NextSeat(drawnSeat)) << draw;
    }
}

TEST_F(RosterTest, SavedGameWithNoHandPlayedDrawsTheButtonResetsTheBlindAndKeepsItsName) {
    auto lines = FieldLines(8);
    lines[0] = PlayerLine(1, "Saved Name", 10000, 0, 1);
    g.SeatName[1] = "Last Entered";
    Open(RosterText(8, 0, 3, 5000, lines), LoadDraws({0.1f, 0.2f, 0x1.6db6dcp-2f}));
    ExpectDrawsUsed(g);
    EXPECT_TRUE(p.messages.empty());
    EXPECT_EQ(std::tie(g.SmallBlind, g.ButtonSeat, g.SeatName[1]), std::make_tuple(100, 4, "Saved Name"));
}

// One letter per position, the rest as `rest`: i in, z in with no chips, o out,
// p placed yet holding chips. Places go out from the size down.
std::string Field(int size, std::string kinds, char rest) {
    kinds.resize(size, rest);
    std::vector<std::string> lines;
    int place = size;
    for (int p = 1; p <= size; ++p) {
        const char k = kinds[p - 1];
        lines.push_back(PlayerLine(p, "P" + std::to_string(p), k == 'i' || k == 'p' ? 10000 : 0,
                                   k == 'o' || k == 'p' ? place-- : 0, p));
    }
    return RosterText(size, 30, 1, 200, lines);
}

TEST_F(RosterTest, PlayersLeftAndTheFinalTableComeFromPlacesNotChips) {
    const struct {
        int size;
        const char* kinds;
        char rest;
        int left;
        const char* caption;
    } cases[] = {
        {80, "iiiiiiii", 'o', 8, "Final Table!"}, {80, "iiiiioooiiii", 'o', 9, "Good Luck!"},
        {8, "iiiooooo", 'o', 3, "Good Luck!"},    {200, "iiiiiiiipp", 'o', 8, "Final Table!"},
        {8, "iizopiii", 'i', 6, "Good Luck!"},
    };
    for (const auto& c : cases) {
        Open(Field(c.size, c.kinds, c.rest), LoadDraws());
        EXPECT_TRUE(p.messages.empty());
        EXPECT_EQ(std::tie(g.NextFinishPlace, g.view.lblGoodLuck.text), std::make_tuple(c.left, c.caption))
            << c.size << " " << c.kinds;
        EXPECT_EQ(g.view.lblBlind.text, "Blinds: $200 - $400");
    }
}

TEST_F(RosterTest, SaveWritesTheHeaderThenOneLinePerPositionAndOpensBackWhole) {
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
    const FileDialogRequest& asked = p.saveDialogs[0];
    EXPECT_EQ(std::tie(asked.title, asked.filter, asked.folder),
              std::make_tuple("Save Game As", "Saved Game Files (*.sgf)|*.sgf", dir.Folder()));
    EXPECT_TRUE(p.messages.empty());
    EXPECT_FALSE(g.GameUnsaved);
    EXPECT_EQ(g.SavedGamePath, dir.File("mine.sgf"));
    EXPECT_EQ(
        ReadAll(dir.File("mine.sgf")),
        "8,14,3,400\r\n1,\"The User\",10000,0,1\r\n2,\"Smith, John\",10000,0,2\r\n"
        "3,\"  Blank Ends  \",10000,0,3\r\n4,\"Say 'Hi'\",10000,0,4\r\n-7,\"Player No. 5\",10000,0,5\r\n"
        "6,\"Player No. 6\",0,8,6\r\n7,\"Player No. 7\",10000,0,7\r\n8,\"Player No. 8\",10000,0,8\r\n");

    g.RosterBank[2] = 12000;  // saved again to the same file, without a question
    g.mnuSave_Click();
    EXPECT_EQ(p.saveDialogs.size(), 1u);

    ScriptedPlatform p2;
    Game g2(p2);
    p2.openPaths.push_back(dir.File("mine.sgf"));
    g2.rnd.Script(LoadDraws());
    g2.mnuOpen_Click();
    ASSERT_TRUE(p2.messages.empty());
    EXPECT_EQ(std::tie(p2.openDialogs.at(0).title, p2.openDialogs[0].filter),
              std::make_tuple("Open Saved Game", "Saved Game Files (*.sgf)|*.sgf"));
    g.RosterName[4] = "Say 'Hi'";
    for (int pos = 1; pos <= 8; ++pos)
        EXPECT_EQ(std::tie(g2.RosterTag[pos], g2.RosterName[pos], g2.RosterBank[pos], g2.RosterPlace[pos]),
                  std::tie(g.RosterTag[pos], g.RosterName[pos], g.RosterBank[pos], g.RosterPlace[pos]));
    EXPECT_EQ(g2.SavedGamePath, dir.File("mine.sgf"));
}

TEST_F(RosterTest, SaveAsMovesTheGameToTheNewPath) {
    FillRoster(g, 8);
    g.SavedGamePath = dir.File("old.sgf");
    p.savePaths.push_back(dir.File("new.sgf"));
    g.mnuSaveAs_Click();
    EXPECT_EQ(g.SavedGamePath, dir.File("new.sgf"));
    EXPECT_TRUE(std::filesystem::exists(dir.File("new.sgf")));
    EXPECT_FALSE(std::filesystem::exists(dir.File("old.sgf")));
}

// Timers fire; the user checks when he can, calls up to a large blind, folds to more.
void PlayHand(Game& g) {
    for (int steps = 0; steps < 2000; ++steps) {
        if (TimerId running = g.RunningTimer(); running != kTimerCount)
            g.FireTimer(running);
        else if (g.view.cmdPlay[1].visible)
            g.cmdPlay_Click(g.view.cmdPlay[1].enabled                           ? 1
                            : g.HighBetValue - g.SeatBet[1] <= 2 * g.SmallBlind ? 2
                                                                                : 4);
        else
            return;
        std::string why;
        ASSERT_TRUE(g.state_is_ok(&why)) << why;
    }
    FAIL() << "the hand did not end";
}

TEST_F(RosterTest, GameSavedAfterSomeHandsPlaysOnAsTheGameItCameFrom) {
    WriteAll(dir.File("gamedata.dat"), ReadAll(ShippedFile("gamedata.dat")));
    g.rnd.SeedDeterministic(11);
    p.newGames.push_back({false, "Single Table", "80", "Fast"});
    p.playerNames.push_back("Robin");
    g.mnuNew_Click();
    for (int hand = 1; hand <= 6; ++hand) {
        PlayHand(g);
        ASSERT_FALSE(g.GameEnded);
        if (hand < 6) g.cmdDeal_Click();
    }
    ASSERT_TRUE(g.view.mnuSave.enabled && g.GameUnsaved);
    p.savePaths.push_back(dir.File("robin.sgf"));
    g.mnuSave_Click();
    ASSERT_TRUE(p.messages.empty());

    ScriptedPlatform p2;
    Game g2(p2);
    p2.openPaths.push_back(dir.File("robin.sgf"));
    std::mt19937 rng(5);
    std::vector<float> draws;
    for (int i = 0; i < 4000; ++i) draws.push_back(static_cast<float>(rng() >> 8) / 16777216.0f);
    g2.rnd.Script(draws);
    g2.mnuOpen_Click();
    ASSERT_TRUE(p2.messages.empty());
    g.rnd.Script(draws);
    g.cmdDeal_Click();
    EXPECT_EQ(g2.SeatName[1], "Robin");
    EXPECT_EQ(std::tie(g2.HandsPlayed, g2.ButtonSeat, g2.SmallBlind, g2.view.lblBlind.text),
              std::tie(g.HandsPlayed, g.ButtonSeat, g.SmallBlind, g.view.lblBlind.text));
    EXPECT_EQ(g2.HandsPlayed, 7);
    const auto banksBefore = g.RosterBank;
    PlayHand(g);
    PlayHand(g2);
    EXPECT_NE(g.RosterBank, banksBefore);
    EXPECT_EQ(std::tie(g2.RosterName, g2.RosterBank, g2.RosterPlace, g2.PlayersLeft, g2.SmallBlind),
              std::tie(g.RosterName, g.RosterBank, g.RosterPlace, g.PlayersLeft, g.SmallBlind));
    EXPECT_EQ(g2.rnd.Remaining(), g.rnd.Remaining());
    EXPECT_EQ(g2.rnd.Overdrawn(), 0);
}

TEST_F(RosterTest, CancelledOpenLeavesTheGameAsItWas) {
    Open(RosterText(8, 5, 2, 100, FieldLines(8)), LoadDraws());
    g.SavedGamePath = "/somewhere/else.sgf";
    g.DisableTimer(TimerDealHole);
    g.EnableTimer(TimerBetFlop);
    g.mnuOpen_Click();  // nothing queued: the dialog is cancelled
    ExpectMessage(kNotOpened, "Game Not Saved");
    EXPECT_EQ(p.openDialogs.back().folder, dir.Folder());
    EXPECT_EQ(std::tie(g.SavedGamePath, g.RosterName[2], g.HandsPlayed),
              std::make_tuple("/somewhere/else.sgf", "Player No. 2", 6));
    EXPECT_EQ(g.RunningTimer(), TimerBetFlop);
}

TEST_F(RosterTest, UnreadableOrMissingFilesAreReportedAndDealNothing) {
    const std::string good = RosterText(8, 5, 2, 100, FieldLines(8));
    const std::string cases[] = {
        "",
        good.substr(0, good.size() / 2),
        RosterText(50, 5, 2, 100, FieldLines(8)),                   // no such size
        RosterText(8, 5, 9, 100, FieldLines(8)),                    // button off the table
        RosterText(8, 5, 2, 0, FieldLines(8)),                      // no blind
        RosterText(8, -1, 2, 100, FieldLines(8)),                   // hands below zero
        RosterText(8, 5, 2, 100, FieldLines(8, -100)),              // chips below zero
        RosterText(8, 5, 2, 100, FieldLines(8, 3000000)),           // more than a Single holds exactly
        RosterText(8, 5, 2, 100, {PlayerLine(1, "A", 100, 9, 1)}),  // place beyond the field
        "8,5,2,100\r\n1,\"Unclosed,10000,0,1\r\n",
        "8,5,2,100\r\n1,\"A\",ten,0,1\r\n",
        "8,5,2,100\r\n70000,\"A\",10000,0,1\r\n",
    };
    for (const std::string& text : cases) {
        Open(text, {});
        ASSERT_EQ(p.messages.size(), 1u);
        p.messages[0].text.resize(p.messages[0].text.find('\n'));  // the reason follows
        ExpectMessage(kNotOpened, "Game Not Saved");
        EXPECT_TRUE(NoHandDealt(g)) << text.substr(0, 40);
        EXPECT_EQ(g.rnd.Overdrawn(), 0);
    }
    p.openPaths.push_back(dir.File("missing.sgf"));
    g.mnuOpen_Click();
    ASSERT_EQ(p.messages.size(), 1u);
    p.messages[0].text.resize(p.messages[0].text.find('\n'));
    ExpectMessage(kNotOpened, "Game Not Saved");
    EXPECT_TRUE(NoHandDealt(g));
}

TEST_F(RosterTest, CancelledOrFailedSaveKeepsThePathTheFlagAndWhatWasOnDisk) {
    FillRoster(g, 8);
    g.GameUnsaved = true;
    g.mnuSave_Click();  // no path and the dialog cancelled
    ExpectMessage(kNotSaved, "Game Not Saved");
    EXPECT_EQ(g.SavedGamePath, "");
    g.SavedGamePath = dir.File("kept.sgf");
    g.mnuSaveAs_Click();
    ExpectMessage(kNotSaved, "Game Not Saved");
    EXPECT_EQ(g.SavedGamePath, dir.File("kept.sgf"));
    EXPECT_FALSE(std::filesystem::exists(dir.File("kept.sgf")));
    std::filesystem::create_directory(dir.File("taken.sgf"));
    for (const char* name : {"no-such-folder/game.sgf", "taken.sgf"}) {
        g.SavedGamePath = dir.File(name);
        g.SaveGame();
        ASSERT_EQ(p.messages.size(), 1u);
        p.messages[0].text.resize(p.messages[0].text.find('\n'));
        ExpectMessage(kNotSaved, "Game Not Saved");
    }
    EXPECT_TRUE(std::filesystem::is_directory(dir.File("taken.sgf")));
    EXPECT_TRUE(g.GameUnsaved);
}

TEST_F(RosterTest, FinishedGameOpensToItsFinalStateAndDealsNothing) {
    auto field = [](std::vector<std::pair<int, int>> bankPlace) {
        std::vector<std::string> lines;
        for (int s = 1; s <= 8; ++s)
            lines.push_back(
                PlayerLine(s, "P" + std::to_string(s), bankPlace[s - 1].first, bankPlace[s - 1].second, s));
        return RosterText(8, 40, 2, 1000, lines);
    };
    const struct {
        std::string text;
        bool won;
        const char* detail;
    } cases[] = {
        // The user went out third; seats 4 and 5 play on.
        {field({{0, 3}, {0, 8}, {0, 7}, {40000, 0}, {40000, 0}, {0, 6}, {0, 5}, {0, 4}}), false,
         "You Finished 3rd."},
        {field({{80000, 0}, {0, 8}, {0, 7}, {0, 6}, {0, 5}, {0, 4}, {0, 3}, {0, 2}}), true, "You won it."},
    };
    for (const auto& c : cases) {
        g.GameEnded = false;
        Open(c.text, {});
        ExpectDrawsUsed(g);
        ASSERT_EQ(p.messages.size(), 1u);
        EXPECT_NE(p.messages[0].text.find(c.detail), std::string::npos) << p.messages[0].text;
        EXPECT_EQ(p.messages[0].title, "Game Over");
        p.messages.clear();
        EXPECT_TRUE(g.GameEnded && !g.GameUnsaved && g.view.lblName[1].visible && g.view.mnuSave.enabled);
        EXPECT_EQ(std::tie(g.HandsPlayed, g.view.picTableMoney.visible, g.view.cmdDeal.visible),
                  std::make_tuple(40, c.won, false));
        EXPECT_EQ(g.RunningTimer(), kTimerCount);
    }
}

}  // namespace
}  // namespace holdem::test
