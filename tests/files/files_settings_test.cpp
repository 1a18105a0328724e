// settings.dft, the speeds and the Settings menu, and the standings scratch file.
#include <gtest/gtest.h>

#include "tests/files/files_test_util.h"

namespace holdem::test {
namespace {

// The nine intervals in the order of the chain, then the checked speed entries
// as a string of F, M and S.
std::pair<std::vector<int>, std::string> Speed(const Game& g) {
    std::vector<int> intervals;
    for (const TimerState& t : g.view.timer) intervals.push_back(t.interval);
    const std::string marks = std::string(g.view.mnuFastSpeed.checked ? "F" : "") +
                              (g.view.mnuMediumSpeed.checked ? "M" : "") +
                              (g.view.mnuSlowSpeed.checked ? "S" : "");
    return {intervals, marks};
}
const std::vector<int> kFast = {350, 800, 350, 800, 350, 800, 350, 800, 1000};
const std::vector<int> kMedium = {450, 1200, 450, 1200, 450, 1200, 450, 1200, 1200};
const std::vector<int> kSlow = {550, 1600, 550, 1600, 550, 1600, 550, 1600, 1600};
const std::vector<int> kAsDrawn = {400, 1200, 450, 1200, 450, 1200, 450, 1200, 1500};

using SettingsTest = FileTest;

TEST_F(SettingsTest, ReadsTheFileOrStartsWithTheDefaultsAndWritesItBack) {
    const struct {
        const char* text;  // nullptr: no file
        int speed;
        bool sound, tips;
        std::vector<int> intervals;
        const char *mark, *written;
    } cases[] = {
        {"1,#TRUE#,#FALSE#\r\n", 1, true, false, kFast, "F", "1,#TRUE#,#FALSE#\r\n"},
        {"3,#FALSE#,#TRUE#\n", 3, false, true, kSlow, "S", "3,#FALSE#,#TRUE#\r\n"},
        {" 2 , #false# , #true#", 2, false, true, kMedium, "M", "2,#FALSE#,#TRUE#\r\n"},
        {"\xEF\xBB\xBF"
         "3,#TRUE#,#FALSE#\r\n",
         3, true, false, kSlow, "S", "3,#TRUE#,#FALSE#\r\n"},
        // A speed outside 1 to 3 changes no timer and no mark, and is written back as it was.
        {"0,#FALSE#,#FALSE#\r\n", 0, false, false, kAsDrawn, "M", "0,#FALSE#,#FALSE#\r\n"},
        {"4,#TRUE#,#TRUE#\r\n", 4, true, true, kAsDrawn, "M", "4,#TRUE#,#TRUE#\r\n"},
        // A file that cannot be read gives what the menus show before any file.
        {nullptr, 2, true, true, kMedium, "M", "2,#TRUE#,#TRUE#\r\n"},
        {"3,#FALSE#", 2, true, true, kMedium, "M", "2,#TRUE#,#TRUE#\r\n"},
        {"fast,#FALSE#,#FALSE#\r\n", 2, true, true, kMedium, "M", "2,#TRUE#,#TRUE#\r\n"},
        {"1,-1,0\r\n", 2, true, true, kMedium, "M", "2,#TRUE#,#TRUE#\r\n"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text ? c.text : "(no file)");
        ScriptedPlatform p2;
        Game g2(p2);
        g2.AppFolder = dir.Folder();
        std::filesystem::remove(dir.File("settings.dft"));
        if (c.text) WriteAll(dir.File("settings.dft"), c.text);
        g2.ReadSettings();
        EXPECT_EQ(std::make_tuple(int{g2.GameSpeed}, g2.SoundOn, g2.view.mnuSound.checked, g2.TipsAtStartup,
                                  g2.view.mnuTips.checked, Speed(g2)),
                  std::make_tuple(c.speed, c.sound, c.sound, c.tips, c.tips,
                                  std::make_pair(c.intervals, std::string(c.mark))));
        g2.WriteSettings();
        EXPECT_EQ(ReadAll(dir.File("settings.dft")), c.written);
    }
}

// Each entry of the Settings menu, one after the other, while a hand's timer runs on.
TEST_F(SettingsTest, MenuEntriesSetTheTimersTheMarksAndTheFlags) {
    g.ReadSettings();
    g.EnableTimer(TimerBetFlop);
    const std::tuple<void (Game::*)(), std::vector<int>, const char*, bool, bool> steps[] = {
        {&Game::mnuFastSpeed_Click, kFast, "F", true, true},
        {&Game::mnuSound_Click, kFast, "F", false, true},
        {&Game::mnuSlowSpeed_Click, kSlow, "S", false, true},
        {&Game::mnuTips_Click, kSlow, "S", false, false},
        {&Game::mnuSound_Click, kSlow, "S", true, false},
        {&Game::mnuMediumSpeed_Click, kMedium, "M", true, false},
        {&Game::mnuTips_Click, kMedium, "M", true, true}};
    for (const auto& [click, intervals, mark, sound, tips] : steps) {
        (g.*click)();
        EXPECT_EQ(std::make_tuple(Speed(g), int{g.GameSpeed}, g.RunningTimer()),
                  std::make_tuple(std::make_pair(intervals, std::string(mark)),
                                  std::string("FMS").find(mark) + 1, TimerBetFlop));
        EXPECT_EQ(
            std::make_tuple(g.SoundOn, g.view.mnuSound.checked, g.TipsAtStartup, g.view.mnuTips.checked),
            std::make_tuple(sound, sound, tips, tips));
    }
}

// A file in the way of AppFolder makes it unwritable, even for root.
TEST_F(SettingsTest, UnwritableAppFolderFallsBackToTheUserFolderAndStaysThere) {
    WriteAll(dir.File("blocked"), "not a folder");
    g.AppFolder = dir.File("blocked") + "/";
    g.UserDataFolder = dir.File("user/data") + "/";
    g.ReadSettings();
    g.mnuFastSpeed_Click();
    g.WriteSettings();
    EXPECT_EQ(ReadAll(dir.File("user/data/settings.dft")), "1,#TRUE#,#TRUE#\r\n");
    g.AppFolder = dir.Folder();
    WriteAll(dir.File("settings.dft"), "3,#TRUE#,#TRUE#\r\n");
    g.ReadSettings();
    EXPECT_EQ(g.GameSpeed, 1);
    g.mnuSound_Click();
    g.WriteSettings();
    EXPECT_EQ(ReadAll(dir.File("user/data/settings.dft")), "1,#FALSE#,#TRUE#\r\n");
    EXPECT_EQ(ReadAll(dir.File("settings.dft")), "3,#TRUE#,#TRUE#\r\n");
}

// An installed copy never writes its own folder, even where it could.
TEST_F(SettingsTest, InstalledCopyWritesOnlyTheUserFolder) {
    WriteAll(dir.File("settings.dft"), "3,#TRUE#,#FALSE#\r\n");
    g.InstalledCopy = true;
    g.UserDataFolder = dir.File("user/data") + "/";
    g.StandingsPath = g.AppFolder + "stnd.dat";
    g.ReadSettings();
    EXPECT_EQ(std::make_tuple(g.GameSpeed, g.TipsAtStartup), std::make_tuple(3, false));
    g.mnuFastSpeed_Click();
    g.WriteSettings();
    FillRoster(g, 8);
    g.cmdStandings_Click();
    EXPECT_EQ(ReadAll(dir.File("settings.dft")), "3,#TRUE#,#FALSE#\r\n");
    EXPECT_FALSE(std::filesystem::exists(dir.File("stnd.dat")));
    EXPECT_EQ(ReadAll(dir.File("user/data/settings.dft")), "1,#TRUE#,#FALSE#\r\n");
    EXPECT_EQ(p.standings, std::vector<std::string>{dir.File("user/data/stnd.dat")});
    EXPECT_EQ(ReadAll(p.standings.at(0)).substr(0, 11), "8,0,0,0\r\n1,");
}

TEST_F(SettingsTest, StandingsAndFloorWriteTheWholeRosterFirst) {
    g.mnuFloor_Click();  // before any game: the header of zeros
    EXPECT_EQ(ReadAll(dir.File("stnd.dat")), "0,0,0,0\r\n");
    FillRoster(g, 80);
    g.RosterName[2] = "O\"Neil, Pat";
    std::tie(g.RosterTag[80], g.RosterBank[80], g.RosterPlace[80]) = std::make_tuple(-3, 0, 79);
    std::tie(g.HandsPlayed, g.ButtonSeat, g.SmallBlind) = std::make_tuple(12, 6, 200);
    for (auto click : {&Game::cmdStandings_Click, &Game::mnuStandings_Click, &Game::cmdFloor_Click,
                       &Game::mnuFloor_Click}) {
        std::filesystem::remove(g.StandingsPath);
        (g.*click)();
        const std::string text = ReadAll(g.StandingsPath);
        EXPECT_EQ(std::make_tuple(text.substr(0, text.find("\r\n3,")),
                                  std::count(text.begin(), text.end(), '\n'), text.substr(text.size() - 30)),
                  std::make_tuple("80,12,6,200\r\n1,\"The User\",10000,0,1\r\n2,\"O'Neil, Pat\",10000,0,2",
                                  81, "\r\n-3,\"Player No. 80\",0,79,80\r\n"));
    }
    EXPECT_EQ(p.standings, std::vector<std::string>(2, dir.File("stnd.dat")));
    EXPECT_EQ(p.floors, std::vector<std::string>(3, dir.File("stnd.dat")));
    EXPECT_TRUE(p.messages.empty());
}

TEST_F(SettingsTest, StandingsGoToTheUserFolderWhereAppFolderRefuses) {
    WriteAll(dir.File("blocked"), "not a folder");
    g.AppFolder = dir.File("blocked") + "/";
    g.UserDataFolder = dir.File("per-user") + "/";
    FillRoster(g, 8);
    g.cmdFloor_Click();
    EXPECT_EQ(g.StandingsPath, g.UserDataFolder + "stnd.dat");
    EXPECT_EQ(p.floors, std::vector<std::string>{g.StandingsPath});
    EXPECT_EQ(ReadAll(g.StandingsPath).substr(0, 11), "8,0,0,0\r\n1,");
    // Nowhere to write: a message, and neither view opens on an old file.
    for (auto [click, title] : {std::make_pair(&Game::cmdStandings_Click, "Standings"),
                                std::make_pair(&Game::mnuFloor_Click, "View Floor")}) {
        g.UserDataFolder = dir.File("blocked") + "/also/";
        g.StandingsPath.clear();
        (g.*click)();
        ExpectMessage("The list of players could not be written to " + dir.File("blocked") + "/stnd.dat.",
                      title);
    }
    EXPECT_TRUE(p.standings.empty());
    EXPECT_EQ(p.floors.size(), 1u);
}

}  // namespace
}  // namespace holdem::test
