// What the player keeps when a file fails: a refused open or new game leaves
// the game in play as it was, a failed save leaves the old file whole and no
// temporary file, and a file over its size limit is refused unread.
#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstring>
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
        << g.PlayersLeft << ',' << g.NextFinishPlace << ',' << g.TablesInPlay << ',' << g.GameUnsaved
        << g.GameEnded << g.SavedGamePath << '\n';
    for (int p = 1; p <= kRoster; ++p)
        out << g.RosterTag[p] << g.RosterName[p] << g.RosterBank[p] << ',' << g.RosterPlace[p] << ','
            << g.RosterNumber[p] << '\n';
    for (int s = 1; s <= kSeats; ++s)
        out << g.SeatName[s] << g.SeatBank[s] << g.SeatBet[s] << g.SeatInHand[s];
    auto element = [&out](const Element& e) {
        out << e.text << '|' << e.visible << e.enabled << e.checked << e.picture << ';';
    };
    const View& v = g.view;
    for (const Element* e :
         {&v.mnuSave, &v.mnuSaveAs, &v.mnuOpen, &v.mnuNew, &v.mnuFastSpeed, &v.mnuSlowSpeed, &v.cmdDeal,
          &v.lblBlind, &v.lblGoodLuck, &v.lblPot, &v.picTableMoney})
        element(*e);
    for (const auto* seats : {&v.lblName, &v.lblBank, &v.lblBet, &v.iButton})
        for (const Element& e : *seats) element(e);
    for (const Element& e : v.icard) element(e);
    for (const Element& e : v.cmdPlay) element(e);
    for (const TimerState& t : v.timer) out << t.enabled << t.interval;
    return out.str();
}

// Fires timers and folds (or checks) at the user's turn until the hand is over.
void FinishHand(Game& g) {
    for (int steps = 0; steps < 2000; ++steps) {
        if (TimerId running = g.RunningTimer(); running != kTimerCount)
            g.FireTimer(running);
        else if (g.view.cmdPlay[1].visible)
            g.cmdPlay_Click(g.view.cmdPlay[1].enabled ? 1 : 4);
        else
            return;
    }
    FAIL() << "the hand did not end";
}

class SafetyTest : public FileTest {
protected:
    // An 80-player tournament, its first hand over: Save enabled, the game unsaved.
    void TournamentInPlay() {
        auto lines = FieldLines(80);
        for (int p = 9; p <= 80; p += 9)
            lines[p - 1] = PlayerLine(p, "Out " + std::to_string(p), 0, 81 - p / 9, p);
        WriteAll(dir.File("start.sgf"), RosterText(80, 12, 2, 200, lines));
        p.openPaths.push_back(dir.File("start.sgf"));
        g.rnd.SeedDeterministic(3);
        g.mnuOpen_Click();
        ASSERT_TRUE(p.messages.empty());
        FinishHand(g);
        ASSERT_TRUE(g.GameUnsaved && g.view.mnuSave.enabled && !g.GameEnded);
    }
    std::string Reason() {
        const std::string text = p.messages.at(0).text;
        p.messages.clear();
        return text.substr(text.find('\n') + 1);
    }
};

TEST_F(SafetyTest, RefusedOpenOrNewGameLeavesTheGameInPlayAsItWas) {
    TournamentInPlay();
    const std::string path = dir.File("game.sgf");
    auto lines = FieldLines(80);
    const std::string big = RosterText(80, 3, 1, 100, lines) + std::string(kMaxRosterFileBytes, ' ');
    const std::string shortFile = RosterText(80, 3, 1, 100, {lines.begin(), lines.begin() + 5});
    lines[3] = PlayerLine(4, "Odd", 10050, 0, 4);
    const struct {
        std::string text, reason;
    } cases[] = {
        {shortFile, "Line 7, item 1: the file ends before this item."},
        {RosterText(80, 3, 1, 100, lines), "Line 5: a player's chips are not a whole number of hundreds."},
        {RosterText(8, 3, 1, 150, FieldLines(8)),
         "Line 1: the small blind is not a whole number of hundreds."},
        {"8,3,1,100\r\n1,\"A\",lots,0,1\r\n", "Line 2, item 3: a whole number is expected."},
        {"8,3,1,100\r\n1,\"A\",10000,0,99999\r\n", "Line 2, item 5: the number is outside -32768 to 32767."},
        {big, "Cannot read " + path + ": the file is larger than 1 MB."},
        {"", "Line 1, item 1: the file ends before this item."},
    };
    for (bool midHand : {false, true}) {
        if (midHand) g.cmdDeal_Click();
        for (const auto& c : cases) {
            SCOPED_TRACE(c.reason);
            const std::string before = Snapshot(g);
            Open(c.text, {});
            ASSERT_EQ(p.messages.size(), 1u);
            EXPECT_EQ(std::tie(p.messages[0].text, p.messages[0].title),
                      std::make_tuple("Saved game not opened.\n" + c.reason, "Game Not Saved"));
            p.messages.clear();
            EXPECT_EQ(Snapshot(g), before);
        }
        g.rnd.SeedDeterministic(5);
    }
    // A new game whose players cannot be read: asked, refused, and play goes on.
    WriteAll(dir.File("gamedata.dat"), RosterText(1000, 0, 1, 100, FieldLines(50)));
    p.answers = {MsgAnswer::Yes, MsgAnswer::No};
    p.newGames.push_back({false, "Tournament", "80", "Slow"});
    const std::string before = Snapshot(g);
    g.mnuNew_Click();
    ASSERT_EQ(p.messages.size(), 3u);
    EXPECT_NE(p.messages[2].text.find("\nLine 52, item 1: the file ends before this item.\n"),
              std::string::npos);
    EXPECT_EQ(Snapshot(g), before);
    EXPECT_EQ(p.playerNameCalls, 0);
    // The hand goes on, and Save writes to the game's own file without asking.
    FinishHand(g);
    p.messages.clear();
    g.mnuSave_Click();
    EXPECT_TRUE(p.messages.empty() && p.saveDialogs.empty() && !g.GameUnsaved);
    EXPECT_EQ(ReadAll(dir.File("start.sgf")).substr(0, 6), "80,14,");
}

TEST_F(SafetyTest, AmountsInWholeHundredsOpenThoughTheFieldsChipsDoNotAddUp) {
    auto lines = FieldLines(8);
    lines[1] = PlayerLine(2, "Short", 9700, 0, 2);  // a settlement that reported a shortfall
    Open(RosterText(8, 5, 2, 600, lines), LoadDraws());
    EXPECT_TRUE(p.messages.empty());
    EXPECT_EQ(g.RunningTimer(), TimerDealHole);
    Open(RosterText(8, 0, 2, 150, FieldLines(8)),
         LoadDraws({0.1f, 0.1f, 0.1f}));  // a fresh game's blind is reset
    EXPECT_TRUE(p.messages.empty());
    EXPECT_EQ(g.SmallBlind, 100);
}

// The n-th call of one kind fails with the given error; the rest go through.
SaveCalls gReal;
int gCountdown = 0;
int gError = 0;
bool Injected() {
    if (--gCountdown != 0) return false;
    errno = gError;
    return true;
}

TEST_F(SafetyTest, FailedSaveKeepsTheOldFileTheFlagAndNoTemporary) {
    gReal = SystemSaveCalls();
    SaveCalls& calls = SystemSaveCalls();
    const struct {
        const char* call;
        int nth, error;
        bool replaced;  // the folder's sync comes after the rename
    } cases[] = {
        {"open", 1, EACCES, false},  {"write", 1, ENOSPC, false}, {"fsync", 1, EIO, false},
        {"close", 1, EDQUOT, false}, {"rename", 1, EXDEV, false}, {"fsync", 2, EIO, true},
    };
    FillRoster(g, 8);
    g.SavedGamePath = dir.File("kept.sgf");
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.call) + " " + std::to_string(c.nth));
        WriteAll(g.SavedGamePath, "old\r\n");
        g.GameUnsaved = true;
        gCountdown = c.nth;
        gError = c.error;
        const std::string which = c.call;
        if (which == "open")
            calls.open = [](const char* f, int o, int m) { return Injected() ? -1 : gReal.open(f, o, m); };
        if (which == "write")
            calls.write = [](int fd, const void* d, std::size_t n) {
                return Injected() ? -1L : gReal.write(fd, d, n);
            };
        if (which == "fsync") calls.fsync = [](int fd) { return Injected() ? -1 : gReal.fsync(fd); };
        if (which == "close")
            calls.close = [](int fd) { return gReal.close(fd) != 0 || Injected() ? -1 : 0; };
        if (which == "rename")
            calls.rename = [](const char* a, const char* b) { return Injected() ? -1 : gReal.rename(a, b); };
        g.SaveGame();
        calls = gReal;
        ASSERT_EQ(p.messages.size(), 1u);
        EXPECT_EQ(p.messages[0].text, "There was an error saving the game.\nCannot write " + g.SavedGamePath +
                                          ": " + std::strerror(c.error) + ".");
        p.messages.clear();
        EXPECT_TRUE(g.GameUnsaved);
        EXPECT_EQ(ReadAll(g.SavedGamePath).substr(0, 9), c.replaced ? "8,0,0,0\r\n" : "old\r\n");
        EXPECT_FALSE(std::filesystem::exists(TemporaryPathFor(g.SavedGamePath)));
    }
    const auto entries = std::filesystem::directory_iterator(dir.Folder());
    EXPECT_EQ(std::distance(begin(entries), end(entries)), 1);
}

TEST_F(SafetyTest, NextSaveRemovesWhatAKilledOneLeftAndAReadOnlyFileIsNotReplaced) {
    FillRoster(g, 8);
    g.SavedGamePath = dir.File("mine.sgf");
    const std::string leftover = TemporaryPathFor(g.SavedGamePath);
    WriteAll(leftover, "half a save");
    chmod(leftover.c_str(), 0444);
    g.SaveGame();
    EXPECT_TRUE(p.messages.empty());
    EXPECT_FALSE(std::filesystem::exists(leftover));
    const std::string saved = ReadAll(g.SavedGamePath);
    EXPECT_EQ(saved.substr(0, 9), "8,0,0,0\r\n");

    chmod(g.SavedGamePath.c_str(), 0444);
    g.HandsPlayed = 9;
    g.GameUnsaved = true;
    g.SaveGame();
    EXPECT_EQ(Reason(), "Cannot replace " + g.SavedGamePath + ": the file is read-only.");
    EXPECT_EQ(ReadAll(g.SavedGamePath), saved);
    EXPECT_TRUE(g.GameUnsaved);
}

TEST_F(SafetyTest, EveryFileOverItsLimitIsRefusedAndOneAtItsLimitRead) {
    const std::string tips = dir.File(kTipsFileName);
    for (bool over : {false, true}) {
        SCOPED_TRACE(over ? "over the limit" : "at the limit");
        auto padded = [over](std::string text, std::uintmax_t limit, char fill = '\n') {
            return text + std::string(limit - text.size() + (over ? 1 : 0), fill);
        };
        WriteAll(dir.File("settings.dft"), padded("3,#FALSE#,#FALSE#\r\n", kMaxSettingsFileBytes));
        g.ReadSettings();
        EXPECT_EQ(std::tie(g.GameSpeed, g.SoundOn, g.TipsAtStartup),
                  over ? std::make_tuple(2, true, true) : std::make_tuple(3, false, false));
        WriteAll(dir.File("stnd.dat"), padded(RosterText(8, 1, 1, 100, FieldLines(8)), kMaxRosterFileBytes));
        FieldCopy copy;
        EXPECT_EQ(ReadFieldCopy(dir.File("stnd.dat"), copy), over ? 0 : 8);
        WriteAll(tips, padded("One tip\n", kMaxTipsFileBytes, ' '));
        TipBox box;
        g.rnd.Script({over ? 0.5f : 0.0f});
        EXPECT_TRUE(LoadTips(box, g.rnd, tips));
        EXPECT_EQ(box.lblTipText,
                  over ? "Cannot read " + tips + ": the file is larger than 1 MB." : "One tip");
        EXPECT_EQ(box.Tips.size(), over ? 0u : 2u);
        EXPECT_EQ(g.rnd.Remaining(), over ? 1u : 0u);
    }
}

}  // namespace
}  // namespace holdem::test
