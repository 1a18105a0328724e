// settings.dft, the speeds and the Settings menu, and the standings scratch file.
#include <gtest/gtest.h>

#include "engine/game_state.h"
#include "tests/files/files_test_util.h"
#include "tests/support/scripted_platform.h"

namespace holdem::test {
namespace {

struct Intervals {
    int32_t dealHole, dealOther, bet, handOver;
};

Intervals IntervalsOf(const Game& g) {
    const auto& t = g.view.timer;
    for (TimerId id : {TimerDealFlop, TimerDealTurn, TimerDealRiver})
        EXPECT_EQ(t[id].interval, t[TimerDealFlop].interval);
    for (TimerId id : {TimerBetFlop, TimerBetTurn, TimerBetRiver})
        EXPECT_EQ(t[id].interval, t[TimerBetHole].interval);
    return {t[TimerDealHole].interval, t[TimerDealFlop].interval, t[TimerBetHole].interval,
            t[TimerHandOver].interval};
}

int CheckedSpeed(const Game& g) {
    int marks = g.view.mnuFastSpeed.checked + g.view.mnuMediumSpeed.checked + g.view.mnuSlowSpeed.checked;
    EXPECT_EQ(marks, 1);
    return g.view.mnuFastSpeed.checked ? 1 : g.view.mnuMediumSpeed.checked ? 2 : 3;
}

class SettingsTest : public ::testing::Test {
protected:
    TempFolder dir;
    ScriptedPlatform p;
    Game g{p};
    void SetUp() override { g.AppFolder = dir.Folder(); }
};

TEST_F(SettingsTest, SpeedsSetAllNineTimersFromTheTable) {
    g.mnuFastSpeed_Click();
    Intervals fast = IntervalsOf(g);
    EXPECT_EQ(CheckedSpeed(g), 1);
    g.mnuSlowSpeed_Click();
    Intervals slow = IntervalsOf(g);
    EXPECT_EQ(CheckedSpeed(g), 3);
    g.mnuMediumSpeed_Click();
    Intervals medium = IntervalsOf(g);
    EXPECT_EQ(CheckedSpeed(g), 2);
    EXPECT_EQ(g.GameSpeed, 2);
    EXPECT_EQ((std::vector<int>{fast.dealHole, fast.dealOther, fast.bet, fast.handOver}),
              (std::vector<int>{350, 350, 800, 1000}));
    EXPECT_EQ((std::vector<int>{medium.dealHole, medium.dealOther, medium.bet, medium.handOver}),
              (std::vector<int>{450, 450, 1200, 1200}));
    EXPECT_EQ((std::vector<int>{slow.dealHole, slow.dealOther, slow.bet, slow.handOver}),
              (std::vector<int>{550, 550, 1600, 1600}));

    // A running timer keeps running at its new pace.
    g.EnableTimer(TimerBetFlop);
    g.mnuSlowSpeed_Click();
    EXPECT_EQ(g.RunningTimer(), TimerBetFlop);
    EXPECT_EQ(g.view.timer[TimerBetFlop].interval, 1600);
}

TEST_F(SettingsTest, ReadsTheFileOrStartsWithTheDefaults) {
    struct Case {
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
        {"\xEF\xBB\xBF" "3,#TRUE#,#FALSE#\r\n", 3, true, false},
    };
    for (const Case& c : cases) {
        ScriptedPlatform p2;
        Game g2(p2);
        g2.AppFolder = dir.Folder();
        std::filesystem::remove(dir.File("settings.dft"));
        if (c.text) WriteAll(dir.File("settings.dft"), c.text);
        g2.ReadSettings();
        SCOPED_TRACE(c.text ? c.text : "(no file)");
        EXPECT_EQ(g2.GameSpeed, c.speed);
        EXPECT_EQ(CheckedSpeed(g2), c.speed);
        EXPECT_EQ(IntervalsOf(g2).bet, c.speed == 1 ? 800 : c.speed == 2 ? 1200 : 1600);
        EXPECT_EQ(g2.SoundOn, c.sound);
        EXPECT_EQ(g2.view.mnuSound.checked, c.sound);
        EXPECT_EQ(g2.TipsAtStartup, c.tips);
        EXPECT_EQ(g2.view.mnuTips.checked, c.tips);
        EXPECT_TRUE(p2.messages.empty());
    }
}

TEST_F(SettingsTest, SpeedOutsideOneToThreeChangesNothingAndIsWrittenBack) {
    for (int speed : {0, 4}) {
        WriteAll(dir.File("settings.dft"), std::to_string(speed) + ",#TRUE#,#TRUE#\r\n");
        ScriptedPlatform p2;
        Game g2(p2);
        g2.AppFolder = dir.Folder();
        g2.ReadSettings();
        EXPECT_EQ(g2.GameSpeed, speed);
        EXPECT_EQ(CheckedSpeed(g2), 2);
        Intervals start = IntervalsOf(g2);
        EXPECT_EQ((std::vector<int>{start.dealHole, start.dealOther, start.bet, start.handOver}),
                  (std::vector<int>{400, 450, 1200, 1500}));
        g2.WriteSettings();
        EXPECT_EQ(ReadAll(dir.File("settings.dft")), std::to_string(speed) + ",#TRUE#,#TRUE#\r\n");
    }
}

TEST_F(SettingsTest, MenuSwitchesRoundTripThroughTheFile) {
    g.ReadSettings();
    g.mnuSound_Click();
    EXPECT_FALSE(g.SoundOn);
    EXPECT_FALSE(g.view.mnuSound.checked);
    g.mnuTips_Click();
    g.mnuTips_Click();
    g.mnuTips_Click();
    EXPECT_FALSE(g.TipsAtStartup);
    EXPECT_FALSE(g.view.mnuTips.checked);
    g.mnuSlowSpeed_Click();
    g.WriteSettings();
    EXPECT_EQ(ReadAll(dir.File("settings.dft")), "3,#FALSE#,#FALSE#\r\n");

    ScriptedPlatform p2;
    Game next(p2);
    next.AppFolder = dir.Folder();
    next.ReadSettings();
    EXPECT_EQ(next.GameSpeed, 3);
    EXPECT_FALSE(next.view.mnuSound.checked);
    EXPECT_FALSE(next.view.mnuTips.checked);
}

TEST_F(SettingsTest, ShippedSettingsAreMediumSoundOnTipOn) {
    g.AppFolder = HOLDEM_ASSETS;
    g.GameSpeed = 1;
    g.ReadSettings();
    EXPECT_EQ(g.GameSpeed, 2);
    EXPECT_TRUE(g.SoundOn);
    EXPECT_TRUE(g.TipsAtStartup);
    EXPECT_EQ(ReadAll(ShippedFile("settings.dft")), "2,#TRUE#,#TRUE#\r\n");
}

// A file in the way of AppFolder makes it unwritable, even for root.
TEST_F(SettingsTest, UnwritableAppFolderFallsBackToTheUserFolder) {
    WriteAll(dir.File("blocked"), "not a folder");
    g.AppFolder = dir.File("blocked") + "/";
    g.UserDataFolder = dir.File("user/data") + "/";
    g.ReadSettings();  // nothing to read anywhere
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

// ---- stnd.dat -------------------------------------------------------------------

TEST_F(SettingsTest, StandingsAndFloorWriteTheWholeRosterFirst) {
    g.StandingsPath = dir.File("stnd.dat");
    g.mnuStandings_Click();
    EXPECT_EQ(ReadAll(g.StandingsPath), "0,0,0,0\r\n");
    ASSERT_EQ(p.standings.size(), 1u);
    EXPECT_EQ(p.standings[0], g.StandingsPath);

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
        std::string text = ReadAll(g.StandingsPath);
        EXPECT_EQ(text.substr(0, text.find("\r\n") + 2), "80,12,6,200\r\n");
        EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 81);
        EXPECT_NE(text.find("\r\n2,\"O'Neil, Pat\",10000,0,2\r\n"), std::string::npos);
        EXPECT_NE(text.find("\r\n80,\"Player No. 80\",0,80,80\r\n"), std::string::npos);
    }
    EXPECT_EQ(p.standings.size(), 3u);
    ASSERT_EQ(p.floors.size(), 2u);
    EXPECT_EQ(p.floors[1], g.StandingsPath);
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
    EXPECT_EQ(p.floors.at(0), g.StandingsPath);
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
