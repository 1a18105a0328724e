// What a failed file leaves: the game in play, the old file and no temporary one, memory before a huge file.
#include <sys/stat.h>

#include <cerrno>
#include <cstring>
#include <random>

#include "files/safe_file.h"
#include "tests/files/files_test_util.h"
#include "views/field_copy.h"
#include "views/tip_model.h"

namespace holdem::test {
namespace {

// Fires timers and folds (or checks) at the user's turn until the hand is over.
void FinishHand(Game& g) {
    for (int step = 0; step < 2000 && (g.RunningTimer() != kTimerCount || g.view.cmdPlay[1].visible); ++step)
        g.RunningTimer() != kTimerCount ? g.FireTimer(g.RunningTimer())
                                        : g.cmdPlay_Click(g.view.cmdPlay[1].enabled ? 1 : 4);
    ASSERT_TRUE(g.view.cmdDeal.visible || g.GameEnded);
}

using SafetyTest = FileTest;

TEST_F(SafetyTest, RefusedOpenOrNewGameLeavesTheGameInPlayAsItWas) {
    // An 80-player tournament, its first hand over: Save enabled, the game unsaved.
    auto lines = FieldLines(80);
    for (int p = 9; p <= 80; p += 9)
        lines[p - 1] = PlayerLine(p, "Out " + std::to_string(p), 0, 81 - p / 9, p);
    WriteAll(dir.File("start.sgf"), RosterText(80, 12, 2, 200, lines));
    p.openPaths.push_back(dir.File("start.sgf"));
    g.rnd.SeedDeterministic(3);
    g.mnuOpen_Click();
    FinishHand(g);
    ASSERT_TRUE(p.messages.empty() && g.GameUnsaved && g.view.mnuSave.enabled && !g.GameEnded);

    const std::string path = dir.File("game.sgf");
    lines = FieldLines(80);
    auto odd = lines;
    odd[3] = PlayerLine(4, "Odd", 10050, 0, 4);
    // Each file just beyond a range and the reason given under the message; "-" opens a missing file.
    // clang-format off
    const std::pair<std::string, std::string> cases[] = {
        {RosterText(80, 3, 1, 100, {lines.begin(), lines.begin() + 5}), "Line 7, item 1: the file ends before this item."},
        {RosterText(80, 3, 1, 100, odd), "Line 5: a player's chips are not a whole number of hundreds."},
        {RosterText(8, 3, 1, 150, FieldLines(8)), "Line 1: the small blind is not a whole number of hundreds."},
        {"8,3,1,100\r\n1,\"A\",lots,0,1\r\n", "Line 2, item 3: a whole number is expected."},
        {RosterText(80, 3, 1, 100, lines) + std::string(kMaxRosterFileBytes, ' '), "Cannot read " + path + ": the file is larger than 1 MB."},
        {"", "Line 1, item 1: the file ends before this item."}, {"-", "Cannot read " + path + ": " + std::strerror(ENOENT) + "."},
        {kMostChips.substr(0, kMostChips.size() / 2), "Line 5, item 4: the file ends before this item."},
        {RosterText(1000, 5, 2, 100, FieldLines(999)), "Line 1001, item 1: the file ends before this item."},
        {RosterText(50, 5, 2, 100, FieldLines(50)), "Line 1: the size of the game is not 8, 80, 200 or 1000."},
        {EightPlayers("8,5,2,100", -100), "Line 2: a player's chips are below zero."},
        {EightPlayers("8,5,2,100", 2097200, "8,\"P8\",2096900,0,8"), "Line 9: the chips of the game add up to more than it can hold."},
        {EightPlayers("8,5,2,100", 10000, "8,\"P8\",0,9,8"), "Line 9: a place is beyond the size of the game."},
        {"8,5,2,100\r\n1,\"Open,10000,0,1\r\n", "Line 2, item 2: a quoted text is not closed on its line."},
        {"8,5,2,100\r\n70000,\"A\",10000,0,1\r\n", "Line 2, item 1: the number is outside -32768 to 32767."},
        {EightPlayers("8,32767,2,100"), "Line 1: the count of hands is out of range."}, {EightPlayers("8,-1,2,100"), "Line 1: the count of hands is out of range."},
        {EightPlayers("8,5,0,100"), "Line 1: the button is not at a seat from 1 to 8."}, {EightPlayers("8,5,9,100"), "Line 1: the button is not at a seat from 1 to 8."},
        {EightPlayers("8,5,2,0"), "Line 1: the small blind is out of range."}};
    // clang-format on
    for (bool midHand : {false, true}) {
        if (midHand) g.cmdDeal_Click();
        for (const auto& [text, reason] : cases) {
            SCOPED_TRACE(text.substr(0, 60));
            const std::string before = StateText(g);
            std::filesystem::remove(path);
            text == "-" ? (p.openPaths.push_back(path), g.rnd.Script({}), g.mnuOpen_Click()) : Open(text, {});
            ExpectMessage("Saved game not opened.\n" + reason, "Game Not Saved");
            EXPECT_EQ(g.rnd.Overdrawn(), 0);
            EXPECT_EQ(StateText(g), before);
        }
    }
    // A new game whose players cannot be read (none, too few, no chips): asked, refused, and play goes on.
    const std::pair<std::string, std::string> games[] = {
        {"", "\nCannot read " + dir.File("gamedata.dat") + ": " + std::strerror(ENOENT) + "."},
        {RosterText(1000, 0, 1, 100, FieldLines(50)), "\nLine 52, item 1: the file ends before this item."},
        {RosterText(1000, 0, 1, 100, FieldLines(1000, 0)), "\nIt holds no field to play."}};
    for (const auto& [text, reason] : games) {
        SCOPED_TRACE(text.size());
        std::filesystem::remove(dir.File("gamedata.dat"));
        if (!text.empty()) WriteAll(dir.File("gamedata.dat"), text);
        p.answers = {MsgAnswer::Yes, MsgAnswer::No};
        p.newGames.push_back({false, "Tournament", "80", "Slow"});
        const std::string before = StateText(g);
        g.mnuNew_Click();
        ASSERT_EQ(p.messages.size(), 3u);
        p.messages.erase(p.messages.begin(), p.messages.begin() + 2);  // the two questions
        ExpectMessage("The players of a new game could not be read from gamedata.dat in\n" + dir.Folder() +
                          reason + "\n\nReinstalling the game restores the file.",
                      "Game Not Started");
        EXPECT_TRUE(StateText(g) == before && p.playerNameCalls == 0);
    }
    // The hand goes on, and Save writes to the game's own file without asking.
    FinishHand(g);
    p.messages.clear();
    g.mnuSave_Click();
    EXPECT_TRUE(p.messages.empty() && p.saveDialogs.empty() && !g.GameUnsaved);
    EXPECT_EQ(ReadAll(dir.File("start.sgf")).substr(0, 6), "80,14,");

    // Amounts in hundreds open though the field holds fewer chips, as after a settlement's shortfall.
    lines[3] = PlayerLine(4, "Short", 9700, 0, 4);
    Open(RosterText(80, 5, 2, 600, lines), LoadDraws());
    EXPECT_TRUE(p.messages.empty());
    EXPECT_EQ(std::tie(g.SavedGamePath, g.HandsPlayed), std::make_tuple(path, 6));
}

// The n-th call of the failing kind fails with the given error; the rest go through.
SaveCalls gReal;
std::string gFailing;
int gCountdown = 0, gError = 0;
bool Injected(const char* call) {
    if (gFailing != call || --gCountdown != 0) return false;
    errno = gError;
    return true;
}
const SaveCalls kInjecting{
    [](const char* f, int o, int m) { return Injected("open") ? -1 : gReal.open(f, o, m); },
    [](int fd, const void* d, std::size_t n) { return Injected("write") ? -1L : gReal.write(fd, d, n); },
    [](int fd) { return Injected("fsync") ? -1 : gReal.fsync(fd); },
    [](int fd) { return gReal.close(fd) != 0 || Injected("close") ? -1 : 0; },
    [](const char* a, const char* b) { return Injected("rename") ? -1 : gReal.rename(a, b); },
};

// A cancelled dialog or a failed save (which call, its turn and error) keeps path, flag, hand and old file.
TEST_F(SafetyTest, CancelsAndFailedSavesKeepThePathTheFlagAndTheOldFile) {
    Open(RosterText(8, 5, 2, 100, FieldLines(8)), LoadDraws());
    g.StopHandTimers();
    g.EnableTimer(TimerBetFlop);
    std::filesystem::create_directory(dir.File("taken.sgf"));
    const std::string failed = "There was an error saving the game.\n",
                      cannot = failed + "Cannot write " + dir.File("kept.sgf") + ": ";
    // clang-format off
    const std::tuple<void (Game::*)(), const char*, const char*, int, int, std::string> cases[] = {
        {&Game::mnuOpen_Click, "else.sgf", "", 0, 0, "Saved game not opened."},
        {&Game::mnuSave_Click, "", "", 0, 0, "There was an error saving the game."}, {&Game::SaveGame, "", "", 0, 0, "There was an error saving the game."},
        {&Game::mnuSaveAs_Click, "kept.sgf", "", 0, 0, "There was an error saving the game."},
        {&Game::SaveGame, "no-such-folder/game.sgf", "", 0, 0, failed + "Cannot write " + dir.File("no-such-folder/game.sgf") + ": " + std::strerror(ENOENT) + "."},
        {&Game::mnuSave_Click, "taken.sgf", "", 0, 0, failed + "Cannot write " + dir.File("taken.sgf") + ": it is a folder."},
        {&Game::SaveGame, "kept.sgf", "open", 1, EACCES, cannot + std::strerror(EACCES) + "."},
        {&Game::SaveGame, "kept.sgf", "write", 1, ENOSPC, cannot + std::strerror(ENOSPC) + "."},
        {&Game::SaveGame, "kept.sgf", "fsync", 1, EIO, cannot + std::strerror(EIO) + "."},
        {&Game::SaveGame, "kept.sgf", "close", 1, EDQUOT, cannot + std::strerror(EDQUOT) + "."},
        {&Game::SaveGame, "kept.sgf", "rename", 1, EXDEV, cannot + std::strerror(EXDEV) + "."},
        // The folder's sync comes after the rename: the file is new, the flag stays.
        {&Game::SaveGame, "kept.sgf", "fsync", 2, EIO, cannot + std::strerror(EIO) + "."}};
    // clang-format on
    gReal = SystemSaveCalls();
    for (const auto& [action, path, call, nth, error, message] : cases) {
        SCOPED_TRACE(std::string(path) + " " + call);
        WriteAll(dir.File("kept.sgf"), "old\r\n");
        g.SavedGamePath = *path ? dir.File(path) : "";
        g.GameUnsaved = true;
        std::tie(gFailing, gCountdown, gError) = std::make_tuple(call, nth, error);
        SystemSaveCalls() = kInjecting;
        (g.*action)();
        SystemSaveCalls() = gReal;
        ExpectMessage(message, "Game Not Saved");
        EXPECT_EQ(std::make_tuple(g.SavedGamePath, g.GameUnsaved, int{g.HandsPlayed}, g.RosterName[2],
                                  g.RunningTimer(), ReadAll(dir.File("kept.sgf")).substr(0, 4)),
                  std::make_tuple(*path ? dir.File(path) : "", true, 6, "Player No. 2", TimerBetFlop,
                                  nth == 2 ? "8,6," : "old\r"));
        const auto entries = std::filesystem::directory_iterator(dir.Folder());
        EXPECT_EQ(std::distance(begin(entries), end(entries)),
                  3);  // game.sgf, kept.sgf, taken.sgf: no temporary
    }
    EXPECT_EQ(std::make_pair(p.openDialogs.back().folder, p.saveDialogs.size()),
              std::make_pair(dir.Folder(), std::size_t{3}));
    // What a killed save left goes at the next save; a read-only file is not replaced.
    const std::string leftover = TemporaryPathFor(g.SavedGamePath);
    WriteAll(leftover, "half a save");
    chmod(leftover.c_str(), 0444);
    g.SaveGame();
    EXPECT_TRUE(p.messages.empty() && !g.GameUnsaved && !std::filesystem::exists(leftover));
    const std::string saved = ReadAll(g.SavedGamePath);
    chmod(g.SavedGamePath.c_str(), 0444);
    g.HandsPlayed = 9, g.GameUnsaved = true;
    g.SaveGame();
    EXPECT_EQ(p.messages.at(0).text, "There was an error saving the game.\nCannot replace " +
                                         g.SavedGamePath + ": the file is read-only.");
    EXPECT_TRUE(ReadAll(g.SavedGamePath) == saved && g.GameUnsaved);
}

TEST_F(SafetyTest, EveryFileOverItsLimitIsRefusedAndOneAtItsLimitRead) {
    const std::string tips = dir.File(kTipsFileName);
    for (int over : {0, 1}) {
        SCOPED_TRACE(over);
        auto write = [&](const std::string& path, const std::string& text, std::uintmax_t limit) {
            WriteAll(path, text + std::string(limit - text.size() + over, ' '));
        };
        write(dir.File("settings.dft"), "3,#FALSE#,#FALSE#\r\n", kMaxSettingsFileBytes);
        write(dir.File("stnd.dat"), RosterText(8, 1, 1, 100, FieldLines(8)), kMaxRosterFileBytes);
        write(tips, "One tip\n", kMaxTipsFileBytes);
        g.ReadSettings();
        FieldCopy copy;
        TipBox box;
        g.rnd.Script({0.0f});
        EXPECT_TRUE(LoadTips(box, g.rnd, tips));
        EXPECT_EQ(std::make_tuple(g.GameSpeed, g.SoundOn, ReadFieldCopy(dir.File("stnd.dat"), copy),
                                  box.Tips.size(), g.rnd.Remaining()),
                  over ? std::make_tuple(2, true, 0, 0u, 1u) : std::make_tuple(3, false, 8, 2u, 0u));
        EXPECT_EQ(box.lblTipText,
                  over ? "Cannot read " + tips + ": the file is larger than 1 MB." : "One tip");
        if (over)
            ExpectMessage("The settings were not read; the game starts with its usual ones.\nCannot read " +
                              dir.File("settings.dft") + ": the file is larger than 4 KB.",
                          "Texas Hold'em");
        EXPECT_TRUE(p.messages.empty());
    }
}

// Seeded damage to every file the game reads: each read or refused, the game in play kept. Also sanitized.
constexpr int kInputs = 2000;

// One damage or four: cut short, a byte or number changed, a delimiter or blanks in, a line lost or doubled.
std::string Mutate(std::string text, std::mt19937& rng) {
    static const char* const kNumbers[] = {"99999999999", "2147483648", "-32769", "32767",   "0",
                                           "-1",          "1000",       "150",    "16777217"};
    const auto digit = [&](std::size_t i) { return i < text.size() && text[i] >= '0' && text[i] <= '9'; };
    for (int n = rng() % 4 == 0 ? 4 : 1; n > 0; --n) {
        std::size_t at = rng() % (text.size() + 1), end = at;
        const unsigned kind = rng() % 5;
        if (kind == 0) text.resize(at);
        if (kind == 1 && at < text.size()) text[at] = static_cast<char>(rng() % 256);
        if (kind == 2) {
            while (at < text.size() && !digit(at)) ++at;
            for (end = at; digit(end);) ++end;
            text.replace(at, end - at, kNumbers[rng() % std::size(kNumbers)]);
        }
        if (kind == 3)
            text.insert(at, rng() % 2 ? std::string(1, "\",#\n"[rng() % 4]) : std::string(rng() % 64, ' '));
        if (kind == 4 && (at = text.find('\n', at)) != std::string::npos &&
            (end = text.find('\n', at + 1)) != std::string::npos)
            rng() % 2 ? text.erase(at + 1, end - at) : text.insert(at + 1, text.substr(at + 1, end - at));
    }
    return text;
}

using MutationTest = FileTest;

// Beside each, the settings, the standings copy and the tips, read or left at their defaults.
TEST_F(MutationTest, EveryFileReadOrRefusedAndTheGameInPlayKeptWhole) {
    std::mt19937 rng(20240607);
    auto lines = FieldLines(200);
    for (int p = 3; p <= 200; p += 5)
        lines[p - 1] = PlayerLine(p, "Out, " + std::to_string(p), 0, 200 - p / 5, p);
    const std::string saved = RosterText(200, 40, 4, 400, lines),
                      gameData = ReadAll(ShippedFile("gamedata.dat"));
    const std::string settings = "3,#FALSE#,#TRUE#\r\n",
                      standings = RosterText(80, 12, 3, 200, FieldLines(80)),
                      tips = ReadAll(ShippedFile(kTipsFileName));
    WriteAll(dir.File("start.sgf"), saved);
    p.openPaths.push_back(dir.File("start.sgf"));
    g.rnd.SeedDeterministic(1);
    g.mnuOpen_Click();  // the hand it deals is under way
    ASSERT_TRUE(p.messages.empty() && g.RunningTimer() == TimerDealHole);
    const Game inPlay = g;
    const std::string before = StateText(inPlay);
    int opened = 0, refused = 0, settingsRead = 0, standingsRead = 0;
    for (int i = 0; i < 2 * kInputs; ++i) {
        SCOPED_TRACE("input " + std::to_string(i));
        // A new file each time: one cut to nothing and rewritten is flushed to disk on close.
        Game game = inPlay;
        const bool save = i % 2 == 0;
        const std::string folder = dir.File(std::to_string(i)) + "/";
        std::filesystem::create_directory(folder);
        WriteAll(folder + (save ? "m.sgf" : "gamedata.dat"), Mutate(save ? saved : gameData, rng));
        if (save) {
            p.openPaths.push_back(folder + "m.sgf");
            game.mnuOpen_Click();
        } else {
            game.AppFolder = folder;
            p.answers = {MsgAnswer::Yes};  // start a new game; the one in play was just saved
            p.newGames.push_back({false, "Tournament", i % 4 == 1 ? "1,000" : "200", "Fast"});
            game.mnuNew_Click();
            ASSERT_GE(p.messages.size(), 1u);
            p.messages.erase(p.messages.begin());
        }
        std::string why;
        ASSERT_TRUE(game.state_is_ok(&why)) << why;
        if (p.messages.empty() || p.messages[0].title == "Game Over") {
            ++opened;
            EXPECT_EQ(game.RunningTimer(), p.messages.empty() ? TimerDealHole : kTimerCount);
            for (int pos = 1; pos <= kRoster; ++pos) ASSERT_EQ(game.RosterBank[pos] % 100, 0);
        } else {
            ++refused;
            ASSERT_EQ(p.messages.size(), 1u);
            const std::string& text = p.messages[0].text;
            EXPECT_EQ(p.messages[0].title, save ? "Game Not Saved" : "Game Not Started");
            EXPECT_TRUE(!save || text.rfind("Saved game not opened.\n", 0) == 0) << text;
            ASSERT_EQ(StateText(game), before) << text;
        }
        if (!save) {
            Game other(p);
            other.AppFolder = folder;
            WriteAll(folder + "settings.dft", Mutate(settings, rng));
            WriteAll(folder + "stnd.dat", Mutate(standings, rng));
            WriteAll(folder + kTipsFileName, Mutate(tips, rng));
            other.ReadSettings();
            const int16_t speed = other.GameSpeed >= 1 && other.GameSpeed <= 3 ? other.GameSpeed : 2;
            settingsRead += other.GameSpeed != 2 || !other.SoundOn;  // not the defaults
            const View& v = other.view;
            EXPECT_EQ(
                std::make_tuple(v.mnuFastSpeed.checked, v.mnuMediumSpeed.checked, v.mnuSlowSpeed.checked,
                                v.mnuSound.checked, v.mnuTips.checked),
                std::make_tuple(speed == 1, speed == 2, speed == 3, other.SoundOn, other.TipsAtStartup));
            FieldCopy copy;
            const int16_t count = ReadFieldCopy(folder + "stnd.dat", copy);
            ASSERT_TRUE(count >= 0 && count <= kRoster);
            standingsRead += count == 80 && copy.Name[80] == "Player No. 80";
            TipBox box;
            other.rnd.SeedDeterministic(static_cast<uint64_t>(i));
            ASSERT_TRUE(LoadTips(box, other.rnd, folder + kTipsFileName));
            ASSERT_TRUE(box.Tips.empty() || box.lblTipText == box.Tips.at(std::size_t(box.CurrentTip - 1)));
        }
        p.messages.clear();
        std::filesystem::remove_all(folder);
    }
    EXPECT_GT(opened, kInputs / 5);
    EXPECT_GT(refused, kInputs / 2);
    EXPECT_GT(settingsRead, kInputs / 20);
    EXPECT_GT(standingsRead, kInputs / 20);
}

}  // namespace
}  // namespace holdem::test
