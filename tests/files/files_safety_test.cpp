// What the player keeps when a file fails: the game in play after a refused open or new game,
// the old file after a failed save (and no temporary file), and memory before a huge file.
#include <sys/stat.h>

#include <cerrno>
#include <cstring>
#include <random>
#include <sstream>

#include "files/safe_file.h"
#include "tests/files/files_test_util.h"
#include "views/field_copy.h"
#include "views/tip_model.h"

namespace holdem::test {
namespace {

// Everything of a game that a failed open or save must leave alone.
std::string Snapshot(const Game& g) {
    std::ostringstream out;
    out << g.TournamentSize << ',' << g.HandsPlayed << ',' << g.ButtonSeat << ',' << g.SmallBlind << ','
        << g.PlayersLeft << ',' << g.TablesInPlay << g.GameUnsaved << g.GameEnded << g.SavedGamePath << '\n';
    for (int p = 1; p <= kRoster; ++p)
        out << g.RosterName[p] << g.RosterBank[p] << ',' << g.RosterPlace[p] << ',' << g.RosterNumber[p]
            << '\n';
    for (int s = 1; s <= kSeats; ++s)
        out << g.SeatName[s] << g.SeatBank[s] << g.SeatBet[s] << g.SeatInHand[s];
    const View& v = g.view;
    std::vector<const Element*> all = {&v.mnuSave,  &v.mnuSaveAs,   &v.mnuMediumSpeed, &v.cmdDeal,
                                       &v.lblBlind, &v.lblGoodLuck, &v.lblPot,         &v.picTableMoney};
    for (const auto* group : {&v.lblName, &v.lblBank, &v.lblBet, &v.iButton})
        for (const Element& e : *group) all.push_back(&e);
    for (const Element& e : v.icard) all.push_back(&e);
    for (const Element& e : v.cmdPlay) all.push_back(&e);
    for (const Element* e : all)
        out << e->text << '|' << e->visible << e->enabled << e->checked << e->picture;
    for (const TimerState& t : v.timer) out << t.enabled << t.interval;
    return out.str();
}

// Fires timers and folds (or checks) at the user's turn until the hand is over.
void FinishHand(Game& g) {
    for (int step = 0; step < 2000 && (g.RunningTimer() != kTimerCount || g.view.cmdPlay[1].visible);
         ++step) {
        if (g.RunningTimer() != kTimerCount)
            g.FireTimer(g.RunningTimer());
        else
            g.cmdPlay_Click(g.view.cmdPlay[1].enabled ? 1 : 4);
    }
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
    const std::string big = RosterText(80, 3, 1, 100, lines) + std::string(kMaxRosterFileBytes, ' ');
    const std::string shortFile = RosterText(80, 3, 1, 100, {lines.begin(), lines.begin() + 5});
    lines[3] = PlayerLine(4, "Odd", 10050, 0, 4);
    const std::pair<std::string, std::string> cases[] = {
        {shortFile, "Line 7, item 1: the file ends before this item."},
        {RosterText(80, 3, 1, 100, lines), "Line 5: a player's chips are not a whole number of hundreds."},
        {RosterText(8, 3, 1, 150, FieldLines(8)),
         "Line 1: the small blind is not a whole number of hundreds."},
        {"8,3,1,100\r\n1,\"A\",lots,0,1\r\n", "Line 2, item 3: a whole number is expected."},
        {big, "Cannot read " + path + ": the file is larger than 1 MB."},
    };
    for (bool midHand : {false, true}) {
        if (midHand) g.cmdDeal_Click();
        for (const auto& [text, reason] : cases) {
            SCOPED_TRACE(reason);
            const std::string before = Snapshot(g);
            Open(text, {});
            ASSERT_EQ(p.messages.size(), 1u);
            EXPECT_EQ(std::tie(p.messages[0].text, p.messages[0].title),
                      std::make_tuple("Saved game not opened.\n" + reason, "Game Not Saved"));
            p.messages.clear();
            EXPECT_EQ(Snapshot(g), before);
        }
    }
    // A new game whose players cannot be read (none, too few, no chips): asked, refused, and play goes on.
    const std::pair<std::string, std::string> games[] = {
        {"", ""},
        {RosterText(1000, 0, 1, 100, FieldLines(50)), "\nLine 52, item 1: the file ends before this item.\n"},
        {RosterText(1000, 0, 1, 100, FieldLines(1000, 0)), ""}};
    for (const auto& [text, reason] : games) {
        SCOPED_TRACE(text.size());
        std::filesystem::remove(dir.File("gamedata.dat"));
        if (!text.empty()) WriteAll(dir.File("gamedata.dat"), text);
        p.answers = {MsgAnswer::Yes, MsgAnswer::No};
        p.newGames.push_back({false, "Tournament", "80", "Slow"});
        const std::string before = Snapshot(g);
        g.mnuNew_Click();
        ASSERT_EQ(p.messages.size(), 3u);
        const MessageCall& m = p.messages[2];
        EXPECT_EQ(
            std::make_tuple(m.text.substr(0, 65 + dir.Folder().size()), m.title, m.icon, m.text.find(reason)),
            std::make_tuple(
                "The players of a new game could not be read from gamedata.dat in\n" + dir.Folder(),
                "Game Not Started", MsgIcon::Exclamation,
                reason.empty() ? 0 : m.text.find('\n', 65 + dir.Folder().size())));
        EXPECT_TRUE(Snapshot(g) == before && p.playerNameCalls == 0);
        p.messages.clear();
    }
    // The hand goes on, and Save writes to the game's own file without asking.
    FinishHand(g);
    p.messages.clear();
    g.mnuSave_Click();
    EXPECT_TRUE(p.messages.empty() && p.saveDialogs.empty() && !g.GameUnsaved);
    EXPECT_EQ(ReadAll(dir.File("start.sgf")).substr(0, 6), "80,14,");

    // Amounts in hundreds open, though a settlement that reported a shortfall
    // has left the field with fewer chips than it started with.
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

TEST_F(SafetyTest, FailedSaveKeepsTheOldFileAndTheFlagAndLeavesNoTemporaryFile) {
    // The call that fails, which call of its kind, the error; the folder's sync comes after the rename.
    const std::tuple<const char*, int, int, bool> cases[] = {
        {"open", 1, EACCES, false},  {"write", 1, ENOSPC, false}, {"fsync", 1, EIO, false},
        {"close", 1, EDQUOT, false}, {"rename", 1, EXDEV, false}, {"fsync", 2, EIO, true},
    };
    FillRoster(g, 8);
    g.SavedGamePath = dir.File("kept.sgf");
    gReal = SystemSaveCalls();
    for (const auto& [call, nth, error, replaced] : cases) {
        SCOPED_TRACE(std::string(call) + " " + std::to_string(nth));
        WriteAll(g.SavedGamePath, "old\r\n");
        g.GameUnsaved = true;
        std::tie(gFailing, gCountdown, gError) = std::make_tuple(call, nth, error);
        SystemSaveCalls() = kInjecting;
        g.SaveGame();
        SystemSaveCalls() = gReal;
        EXPECT_EQ(p.messages.at(0).text, "There was an error saving the game.\nCannot write " +
                                             g.SavedGamePath + ": " + std::strerror(error) + ".");
        p.messages.clear();
        EXPECT_TRUE(g.GameUnsaved);
        EXPECT_EQ(ReadAll(g.SavedGamePath).substr(0, 9), replaced ? "8,0,0,0\r\n" : "old\r\n");
        const auto entries = std::filesystem::directory_iterator(dir.Folder());
        EXPECT_EQ(std::distance(begin(entries), end(entries)), 1);  // no temporary file
    }
    // What a killed save left goes at the next save; a read-only file is not replaced.
    const std::string leftover = TemporaryPathFor(g.SavedGamePath);
    WriteAll(leftover, "half a save");
    chmod(leftover.c_str(), 0444);
    g.SaveGame();
    EXPECT_TRUE(p.messages.empty() && !g.GameUnsaved && !std::filesystem::exists(leftover));
    const std::string saved = ReadAll(g.SavedGamePath);
    chmod(g.SavedGamePath.c_str(), 0444);
    g.HandsPlayed = 9;
    g.GameUnsaved = true;
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
            ExpectMessage("The settings were not read; the game starts with its usual ones.",
                          "Texas Hold'em");
        EXPECT_TRUE(p.messages.empty());
    }
}

// Seeded mutations of every kind of file the game reads, each read or refused; a refused saved game
// or list of players leaves the game in play as it was. Also run under the sanitizers.
constexpr int kInputs = 2000;

// One damage, or four at once: cut short, a byte changed, a number out of range
// or odd, a delimiter or blanks put in, a line lost or doubled.
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

TEST_F(MutationTest, SavedGamesAndListsOfPlayersOpenOrLeaveTheGameInPlayAsItWas) {
    std::mt19937 rng(20240607);
    auto lines = FieldLines(200);
    for (int p = 3; p <= 200; p += 5)
        lines[p - 1] = PlayerLine(p, "Out, " + std::to_string(p), 0, 200 - p / 5, p);
    const std::string saved = RosterText(200, 40, 4, 400, lines);
    const std::string gameData = ReadAll(ShippedFile("gamedata.dat"));
    WriteAll(dir.File("start.sgf"), saved);
    p.openPaths.push_back(dir.File("start.sgf"));
    g.rnd.SeedDeterministic(1);
    g.mnuOpen_Click();  // the hand it deals is under way
    ASSERT_TRUE(p.messages.empty() && g.RunningTimer() == TimerDealHole);
    const Game inPlay = g;
    const std::string before = Snapshot(inPlay);
    int opened = 0, refused = 0;
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
            ASSERT_EQ(Snapshot(game), before) << text;
        }
        p.messages.clear();
        std::filesystem::remove_all(folder);
    }
    EXPECT_GT(opened, kInputs / 5);
    EXPECT_GT(refused, kInputs / 2);
}

TEST_F(MutationTest, SettingsStandingsAndTipsAreReadOrLeftAtTheirDefaults) {
    const std::string settings = "3,#FALSE#,#TRUE#\r\n",
                      standings = RosterText(80, 12, 3, 200, FieldLines(80)),
                      tips = ReadAll(ShippedFile(kTipsFileName));
    std::mt19937 rng(20240608);
    int settingsRead = 0, standingsRead = 0;
    for (int i = 0; i < kInputs; ++i) {
        SCOPED_TRACE("input " + std::to_string(i));
        Game game(p);
        game.AppFolder = dir.File(std::to_string(i)) + "/";
        std::filesystem::create_directory(game.AppFolder);
        WriteAll(game.AppFolder + "settings.dft", Mutate(settings, rng));
        WriteAll(game.AppFolder + "stnd.dat", Mutate(standings, rng));
        WriteAll(game.AppFolder + kTipsFileName, Mutate(tips, rng));
        game.ReadSettings();
        const int16_t speed = game.GameSpeed >= 1 && game.GameSpeed <= 3 ? game.GameSpeed : 2;
        settingsRead += game.GameSpeed != 2 || !game.SoundOn;  // not the defaults
        const View& v = game.view;
        EXPECT_EQ(std::make_tuple(v.mnuFastSpeed.checked, v.mnuMediumSpeed.checked, v.mnuSlowSpeed.checked,
                                  v.mnuSound.checked, v.mnuTips.checked),
                  std::make_tuple(speed == 1, speed == 2, speed == 3, game.SoundOn, game.TipsAtStartup));
        FieldCopy copy;
        const int16_t count = ReadFieldCopy(game.AppFolder + "stnd.dat", copy);
        ASSERT_TRUE(count >= 0 && count <= kRoster);
        standingsRead += count == 80 && copy.Name[80] == "Player No. 80";
        TipBox box;
        game.rnd.SeedDeterministic(static_cast<uint64_t>(i));
        ASSERT_TRUE(LoadTips(box, game.rnd, game.AppFolder + kTipsFileName));
        if (!box.Tips.empty()) {
            ASSERT_EQ(box.lblTipText, box.Tips.at(static_cast<std::size_t>(box.CurrentTip - 1)));
        }
        std::filesystem::remove_all(game.AppFolder);
    }
    EXPECT_GT(settingsRead, kInputs / 20);
    EXPECT_GT(standingsRead, kInputs / 20);
}

}  // namespace
}  // namespace holdem::test
