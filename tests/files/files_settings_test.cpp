// settings.dft, the speeds and the Settings menu, the standings scratch file, and the statistics file.
#include "files/statistics.h"
#include "tests/files/files_test_util.h"

namespace holdem::test {
namespace {

// The nine intervals in the order of the chain, then the checked speed entries (F, M, S).
std::string Speed(const Game& g) {
    std::string out;
    for (const TimerState& t : g.view.timer) out += std::to_string(t.interval) + " ";
    const View& v = g.view;
    return out + (v.mnuFastSpeed.checked ? "F" : "") + (v.mnuMediumSpeed.checked ? "M" : "") +
           (v.mnuSlowSpeed.checked ? "S" : "");
}
const char* const kFast = "350 800 350 800 350 800 350 800 1000 F";
const char* const kMedium = "450 1200 450 1200 450 1200 450 1200 1200 M";
const char* const kSlow = "550 1600 550 1600 550 1600 550 1600 1600 S";
const char* const kAsDrawn = "400 1200 450 1200 450 1200 450 1200 1500 M";
std::string Flag(bool on) { return on ? "#TRUE#" : "#FALSE#"; }
// clang-format off
const std::tuple<const char*, int, bool, bool, const char*> kSettingsFiles[] = {
    // file (nullptr: none), speed, sound, tips, timers and mark
    {"1,#TRUE#,#FALSE#\r\n", 1, true, false, kFast}, {"3,#FALSE#,#TRUE#\n", 3, false, true, kSlow},
    {" 2 , #false# , #true#", 2, false, true, kMedium}, {"\xEF\xBB\xBF" "3,#TRUE#,#FALSE#\r\n", 3, true, false, kSlow},
    // A speed outside 1 to 3 changes no timer and no mark, and is written back as it was.
    {"0,#FALSE#,#FALSE#\r\n", 0, false, false, kAsDrawn}, {"4,#TRUE#,#TRUE#\r\n", 4, true, true, kAsDrawn},
    // A file that cannot be read gives what the menus show before any file.
    {nullptr, 2, true, true, kMedium}, {"3,#FALSE#", 2, true, true, kMedium},
    {"fast,#FALSE#,#FALSE#\r\n", 2, true, true, kMedium}, {"1,-1,0\r\n", 2, true, true, kMedium},
};
// Clicked one after the other: the timers and marks, the speed, sound, tips after each.
const std::tuple<void (Game::*)(), const char*, int, bool, bool> kMenuSteps[] = {
    {&Game::mnuFastSpeed_Click, kFast, 1, true, true}, {&Game::mnuSound_Click, kFast, 1, false, true},
    {&Game::mnuSlowSpeed_Click, kSlow, 3, false, true}, {&Game::mnuTips_Click, kSlow, 3, false, false},
    {&Game::mnuSound_Click, kSlow, 3, true, false}, {&Game::mnuMediumSpeed_Click, kMedium, 2, true, false},
    {&Game::mnuTips_Click, kMedium, 2, true, true}};
const std::string kGood = "holdem statistics 1\ngames 2\nhands 10\nwon 3\n";
const std::string kBadStatistics[] = {"", "holdem statistics 2\ngames 2\n", "games 2\n", kGood + "won three\n", kGood + "won 3 3\n",
    kGood + "hands -5\n", kGood + "hands 99999999999\n", kGood + "best-80 81\n", kGood + "show-tourney 2\n",
    kGood + "colour blue\n", "holdem statistics 1\nhands 1\nwon 5\n", kGood + std::string(20000, '\n'),
    std::string("holdem statistics 1\0games 2\n", 28)};
using K = LogKind;
const std::tuple<LogKind, int32_t, bool, int32_t, int16_t> kLogLines[] = {  // kind, number, flag, total, street
    {K::GameStart, 80, false, 0, 0}, {K::HoleCards, 0, true, 0, 1}, {K::GameStart, 80, true, 0, 0},
    {K::HoleCards, 0, true, 0, 1}, {K::Call, 0, false, 0, 1}, {K::Raise, 0, true, 0, 1}, {K::Bet, 0, true, 0, 1},
    {K::HandResult, 2, true, 900, 4}, {K::HoleCards, 0, true, 0, 1}, {K::Call, 0, true, 0, 2},
    {K::HandResult, 1, true, 400, 2}, {K::HandResult, 1, true, 5000, 1}, {K::HoleCards, 0, true, 0, 1},
    {K::HandResult, 1, false, 0, 1}, {K::UserOut, 7, true, 0, 0}, {K::Winner, 0, false, 0, 0},
    {K::GameStart, 8, true, 0, 0}, {K::UserOut, 3, true, 0, 0}, {K::GameStart, 100, true, 0, 0},
    {K::UserOut, 2, true, 0, 0}, {K::GameStart, 1000, true, 0, 0}, {K::UserOut, 9, true, 0, 0},
    {K::UserOut, 12, true, 0, 0}, {K::Winner, 0, true, 0, 0}, {K::Fold, 0, true, 0, 1}};
// clang-format on

using SettingsTest = FileTest;

// What was read is written back whole, as speed, sound, tips.
TEST_F(SettingsTest, ReadsTheFileOrStartsWithTheDefaultsAndWritesItBack) {
    for (const auto& [text, speed, sound, tips, timers] : kSettingsFiles) {
        SCOPED_TRACE(text ? text : "(no file)");
        ScriptedPlatform p2;
        Game g2(p2);
        g2.AppFolder = dir.Folder();
        std::filesystem::remove(dir.File("settings.dft"));
        if (text) WriteAll(dir.File("settings.dft"), text);
        g2.ReadSettings();
        EXPECT_EQ(std::make_tuple(int{g2.GameSpeed}, g2.SoundOn, g2.view.mnuSound.checked, g2.TipsAtStartup,
                                  g2.view.mnuTips.checked, Speed(g2)),
                  std::make_tuple(speed, sound, sound, tips, tips, timers));
        g2.WriteSettings();
        EXPECT_EQ(ReadAll(dir.File("settings.dft")),
                  std::to_string(speed) + "," + Flag(sound) + "," + Flag(tips) + "\r\n");
    }
}

// Each entry of the Settings menu, one after the other, while a hand's timer runs on.
TEST_F(SettingsTest, MenuEntriesSetTheTimersTheMarksAndTheFlags) {
    g.ReadSettings();
    g.EnableTimer(TimerBetFlop);
    for (const auto& [click, timers, speed, sound, tips] : kMenuSteps) {
        (g.*click)();
        EXPECT_EQ(std::make_tuple(Speed(g), int{g.GameSpeed}, g.RunningTimer(), g.SoundOn,
                                  g.view.mnuSound.checked, g.TipsAtStartup, g.view.mnuTips.checked),
                  std::make_tuple(timers, speed, TimerBetFlop, sound, sound, tips, tips));
    }
}

// An installed or unwritable copy writes only the user folder, and its settings stay there after.
TEST_F(SettingsTest, InstalledOrUnwritableCopiesWriteTheUserFolder) {
    WriteAll(dir.File("blocked"), "not a folder");
    for (bool installed : {true, false}) {
        SCOPED_TRACE(installed);
        std::filesystem::remove_all(dir.File("user"));
        WriteAll(dir.File("settings.dft"), "3,#TRUE#,#FALSE#\r\n");
        std::tie(g.InstalledCopy, g.AppFolder, g.UserDataFolder, g.StandingsPath) =
            std::make_tuple(installed, installed ? dir.Folder() : dir.File("blocked/"),
                            dir.File("user/data/"), installed ? dir.File("stnd.dat") : "");
        g.ReadSettings();
        EXPECT_EQ(std::make_pair(g.GameSpeed, g.TipsAtStartup),
                  std::make_pair(int16_t(installed ? 3 : 2), !installed));
        g.mnuFastSpeed_Click();
        g.WriteSettings();
        FillRoster(g, 8);
        installed ? g.cmdStandings_Click() : g.cmdFloor_Click();
        EXPECT_EQ(
            std::make_tuple(ReadAll(dir.File("settings.dft")), std::filesystem::exists(dir.File("stnd.dat")),
                            ReadAll(dir.File("user/data/settings.dft")), g.StandingsPath,
                            ReadAll(g.StandingsPath).substr(0, 11)),
            std::make_tuple("3,#TRUE#,#FALSE#\r\n", false,
                            installed ? "1,#TRUE#,#FALSE#\r\n" : "1,#TRUE#,#TRUE#\r\n",
                            dir.File("user/data/stnd.dat"), "8,0,0,0\r\n1,"));
    }
    EXPECT_EQ(std::make_pair(p.standings, p.floors),
              std::make_pair(std::vector<std::string>{dir.File("user/data/stnd.dat")}, p.standings));
    // Nowhere to write: a message, and neither view opens on an old file.
    for (auto [click, title] : {std::make_pair(&Game::cmdStandings_Click, "Standings"),
                                std::make_pair(&Game::mnuFloor_Click, "View Floor")}) {
        std::tie(g.UserDataFolder, g.StandingsPath) = std::make_tuple(dir.File("blocked/also/"), "");
        (g.*click)();
        ExpectMessage("The list of players could not be written to " + dir.File("blocked") + "/stnd.dat.",
                      title);
    }
    EXPECT_EQ(std::make_pair(p.standings.size(), p.floors.size()),
              std::make_pair(std::size_t{1}, std::size_t{1}));
    std::tie(g.AppFolder, g.UserDataFolder) = std::make_tuple(dir.Folder(), dir.File("user/data/"));
    WriteAll(dir.File("settings.dft"), "3,#TRUE#,#TRUE#\r\n");
    g.ReadSettings();
    g.mnuSound_Click();
    g.WriteSettings();
    EXPECT_EQ(std::make_tuple(int{g.GameSpeed}, ReadAll(dir.File("user/data/settings.dft")),
                              ReadAll(dir.File("settings.dft"))),
              std::make_tuple(1, "1,#FALSE#,#TRUE#\r\n", "3,#TRUE#,#TRUE#\r\n"));
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

// The statistics file: read back whole after a restart, or the defaults for anything doubtful.
TEST(StatisticsFile, SurvivesARestartOrGivesTheDefaults) {
    TempFolder dir;
    const std::string path = dir.File("user/" + std::string(kStatisticsFile));
    EXPECT_EQ(ReadStatistics(path), Statistics{}) << "no file yet";
    Statistics s;
    std::tie(s.gamesPlayed, s.tournamentsPlayed, s.bestFinish, s.handsPlayed, s.handsWon, s.showdownsWon,
             s.biggestPotWon, s.handsVoluntary, s.showTourney) =
        std::make_tuple(4, 3, decltype(s.bestFinish){2, 0, 57, 734}, 310, 41, 17, 123400, 88, false);
    ASSERT_TRUE(WriteStatistics(path, s));  // makes the folder too
    EXPECT_EQ(
        ReadAll(path),
        "holdem statistics 1\ngames 4\ntournaments 3\nhands 310\nwon 41\nshowdowns 17\nbiggest-pot 123400\n"
        "voluntary 88\nbest-8 2\nbest-80 0\nbest-200 57\nbest-1000 734\nshow-hand-log 1\nshow-tourney 0\n");
    EXPECT_EQ(ReadStatistics(path), s);
    ResetRecord(s);
    EXPECT_EQ(std::make_tuple(s.handsPlayed, s.showHandLog, s.showTourney),
              std::make_tuple(0, true, false));  // keeps the panels

    for (const std::string& text : kBadStatistics) {
        SCOPED_TRACE(text.substr(0, 60));
        WriteAll(path, text);
        EXPECT_EQ(ReadStatistics(path), Statistics{});
    }
    WriteAll(path, kGood + "\r\n");
    EXPECT_EQ(ReadStatistics(path).handsWon, 3) << "a good file with Windows line ends";
    s.gamesPlayed = 9;
    EXPECT_FALSE(WriteStatistics(path + "/below-a-file.txt", s));
    EXPECT_EQ(ReadStatistics(path).gamesPlayed, 2);
}

// The record follows the log: games, tournaments, hands, chips in by choice, pots, showdowns, best finishes.
TEST(StatisticsFile, TheWatcherKeepsTheRecordFromTheLog) {
    Statistics s, want;
    StatisticsWatcher watcher;
    std::string saves;
    for (const auto& [kind, number, flag, total, street] : kLogLines) {
        LogLine l;
        std::tie(l.kind, l.number, l.flag, l.total, l.street) = std::tie(kind, number, flag, total, street);
        saves += watcher.Observe(s, l) ? '1' : '0';
    }
    std::tie(want.gamesPlayed, want.tournamentsPlayed, want.bestFinish, want.handsPlayed, want.handsWon,
             want.showdownsWon, want.biggestPotWon, want.handsVoluntary) =
        std::make_tuple(4, 3, decltype(want.bestFinish){3, 7, 0, 1}, 4, 2, 1, 900, 1);
    EXPECT_EQ(s, want);
    EXPECT_EQ(saves, "0010000100100110111011110");
}

}  // namespace
}  // namespace holdem::test
