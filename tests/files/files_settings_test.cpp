// settings.dft, the speeds and the Settings menu, and the standings scratch file.
#include <gtest/gtest.h>

#include "tests/files/files_test_util.h"

namespace holdem::test {
namespace {

// Deal hole, other deals, betting, hand over; the families must agree.
std::vector<int> Intervals(const Game& g) {
    const auto& t = g.view.timer;
    for (TimerId id : {TimerDealTurn, TimerDealRiver}) EXPECT_EQ(t[id].interval, t[TimerDealFlop].interval);
    for (TimerId id : {TimerBetFlop, TimerBetTurn, TimerBetRiver})
        EXPECT_EQ(t[id].interval, t[TimerBetHole].interval);
    return {t[TimerDealHole].interval, t[TimerDealFlop].interval, t[TimerBetHole].interval,
            t[TimerHandOver].interval};
}

// The one checked speed entry, 0 if not exactly one.
int CheckedSpeed(const Game& g) {
    const bool marks[] = {g.view.mnuFastSpeed.checked, g.view.mnuMediumSpeed.checked,
                          g.view.mnuSlowSpeed.checked};
    if (std::count(std::begin(marks), std::end(marks), true) != 1) return 0;
    return static_cast<int>(std::find(std::begin(marks), std::end(marks), true) - marks) + 1;
}

using SettingsTest = FileTest;

TEST_F(SettingsTest, SpeedsSetAllNineTimersFromTheTable) {
    const struct {
        void (Game::*click)();
        int speed;
        std::vector<int> intervals;
    } speeds[] = {{&Game::mnuFastSpeed_Click, 1, {350, 350, 800, 1000}},
                  {&Game::mnuSlowSpeed_Click, 3, {550, 550, 1600, 1600}},
                  {&Game::mnuMediumSpeed_Click, 2, {450, 450, 1200, 1200}}};
    for (const auto& s : speeds) {
        g.EnableTimer(TimerBetFlop);
        (g.*s.click)();
        EXPECT_EQ(std::make_tuple(Intervals(g), CheckedSpeed(g), int{g.GameSpeed}),
                  std::make_tuple(s.intervals, s.speed, s.speed));
        EXPECT_EQ(g.RunningTimer(), TimerBetFlop);  // a running timer keeps running at its new pace
    }
}

TEST_F(SettingsTest, ReadsTheFileOrStartsWithTheDefaults) {
    const struct {
        const char* text;  // nullptr: no file
        int speed;
        bool sound, tips;
    } cases[] = {
        {"1,#TRUE#,#FALSE#\r\n", 1, true, false},
        {"3,#FALSE#,#TRUE#\n", 3, false, true},
        {" 2 , #false# , #true#", 2, false, true},
        {nullptr, 2, true, true},
        {"", 2, true, true},
        {"1,#FALSE#", 2, true, true},
        {"fast,#TRUE#,#TRUE#\r\n", 2, true, true},
        {"1,-1,0\r\n", 2, true, true},
        {"\xEF\xBB\xBF"
         "3,#TRUE#,#FALSE#\r\n",
         3, true, false},
    };
    const int betInterval[] = {0, 800, 1200, 1600};
    for (const auto& c : cases) {
        ScriptedPlatform p2;
        Game g2(p2);
        g2.AppFolder = dir.Folder();
        std::filesystem::remove(dir.File("settings.dft"));
        if (c.text) WriteAll(dir.File("settings.dft"), c.text);
        g2.ReadSettings();
        EXPECT_EQ(std::make_tuple(g2.GameSpeed, CheckedSpeed(g2), Intervals(g2)[2], g2.SoundOn,
                                  g2.view.mnuSound.checked, g2.TipsAtStartup, g2.view.mnuTips.checked),
                  std::make_tuple(c.speed, c.speed, betInterval[c.speed], c.sound, c.sound, c.tips, c.tips))
            << (c.text ? c.text : "(no file)");
        EXPECT_TRUE(p2.messages.empty());
    }
}

TEST_F(SettingsTest, SpeedOutsideOneToThreeChangesNothingAndIsWrittenBack) {
    for (const char* text : {"0,#TRUE#,#TRUE#\r\n", "4,#TRUE#,#TRUE#\r\n"}) {
        WriteAll(dir.File("settings.dft"), text);
        ScriptedPlatform p2;
        Game g2(p2);
        g2.AppFolder = dir.Folder();
        g2.ReadSettings();
        EXPECT_EQ(g2.GameSpeed, text[0] - '0');
        EXPECT_EQ(CheckedSpeed(g2), 2);
        EXPECT_EQ(Intervals(g2), (std::vector<int>{400, 450, 1200, 1500}));  // as the form was drawn
        g2.WriteSettings();
        EXPECT_EQ(ReadAll(dir.File("settings.dft")), text);
    }
}

TEST_F(SettingsTest, MenuSwitchesRoundTripThroughTheFile) {
    g.ReadSettings();
    g.mnuSound_Click();
    for (int i = 0; i < 3; ++i) g.mnuTips_Click();
    g.mnuSlowSpeed_Click();
    EXPECT_EQ(std::tie(g.SoundOn, g.view.mnuSound.checked, g.TipsAtStartup, g.view.mnuTips.checked),
              std::make_tuple(false, false, false, false));
    g.WriteSettings();
    EXPECT_EQ(ReadAll(dir.File("settings.dft")), "3,#FALSE#,#FALSE#\r\n");
    ScriptedPlatform p2;
    Game next(p2);
    next.AppFolder = dir.Folder();
    next.ReadSettings();
    EXPECT_EQ(std::make_tuple(next.GameSpeed, next.view.mnuSound.checked, next.view.mnuTips.checked),
              std::make_tuple(3, false, false));
}

TEST_F(SettingsTest, ShippedSettingsAreMediumSoundOnTipOn) {
    EXPECT_EQ(ReadAll(ShippedFile("settings.dft")), "2,#TRUE#,#TRUE#\r\n");
}

// A file in the way of AppFolder makes it unwritable, even for root.
TEST_F(SettingsTest, UnwritableAppFolderFallsBackToTheUserFolder) {
    WriteAll(dir.File("blocked"), "not a folder");
    g.AppFolder = dir.File("blocked") + "/";
    g.UserDataFolder = dir.File("user/data") + "/";
    g.ReadSettings();
    EXPECT_EQ(g.GameSpeed, 2);
    g.mnuFastSpeed_Click();
    g.WriteSettings();
    EXPECT_EQ(ReadAll(dir.File("user/data/settings.dft")), "1,#TRUE#,#TRUE#\r\n");
    // The per-user file is read first and, once there, written there.
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
    g.StandingsPath = dir.File("stnd.dat");
    g.mnuStandings_Click();
    EXPECT_EQ(ReadAll(g.StandingsPath), "0,0,0,0\r\n");
    FillRoster(g, 80);
    g.RosterName[2] = "O\"Neil, Pat";
    g.RosterBank[80] = 0;
    g.RosterPlace[80] = 80;
    g.HandsPlayed = 12;
    g.ButtonSeat = 6;
    g.SmallBlind = 200;
    for (auto click : {&Game::cmdStandings_Click, &Game::mnuStandings_Click, &Game::cmdFloor_Click,
                       &Game::mnuFloor_Click}) {
        std::filesystem::remove(g.StandingsPath);
        (g.*click)();
        const std::string text = ReadAll(g.StandingsPath);
        EXPECT_EQ(text.substr(0, text.find("\r\n") + 2), "80,12,6,200\r\n");
        EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 81);
        EXPECT_NE(text.find("\r\n2,\"O'Neil, Pat\",10000,0,2\r\n"), std::string::npos);
        EXPECT_NE(text.find("\r\n80,\"Player No. 80\",0,80,80\r\n"), std::string::npos);
    }
    EXPECT_EQ(p.standings, std::vector<std::string>(3, g.StandingsPath));
    EXPECT_EQ(p.floors, std::vector<std::string>(2, g.StandingsPath));
    EXPECT_TRUE(p.messages.empty());
}

TEST_F(SettingsTest, StandingsGoToTheUserFolderWhereAppFolderRefuses) {
    WriteAll(dir.File("blocked"), "not a folder");
    g.AppFolder = dir.File("blocked") + "/";
    g.StandingsPath = g.AppFolder + "stnd.dat";
    g.UserDataFolder = dir.File("per-user") + "/";
    FillRoster(g, 8);
    g.cmdFloor_Click();
    EXPECT_EQ(g.StandingsPath, g.UserDataFolder + "stnd.dat");
    EXPECT_EQ(p.floors, std::vector<std::string>{g.StandingsPath});
    EXPECT_EQ(ReadAll(g.StandingsPath).substr(0, 11), "8,0,0,0\r\n1,");
    // Nowhere to write: a message, and the view does not open on an old file.
    g.UserDataFolder = dir.File("blocked") + "/also/";
    g.StandingsPath = g.AppFolder + "stnd.dat";
    g.cmdStandings_Click();
    EXPECT_TRUE(p.standings.empty());
    ASSERT_EQ(p.messages.size(), 1u);
    EXPECT_EQ(p.messages[0].icon, MsgIcon::Exclamation);
}

}  // namespace
}  // namespace holdem::test
