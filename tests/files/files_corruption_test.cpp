// Seeded mutations of every kind of file the game reads, each read or refused; a refused saved game
// or list of players leaves the game in play as it was. Also run under the sanitizers.
#include <random>

#include "tests/files/files_test_util.h"
#include "views/field_copy.h"
#include "views/tip_model.h"

namespace holdem::test {

std::string Snapshot(const Game& g);  // in files_safety_test.cpp
namespace {
constexpr int kInputs = 2000;  // of each kind

// One damage, or four at once: cut short, a byte changed, a number out of range
// or odd, a delimiter or blanks put in, a line lost or doubled.
std::string Mutate(std::string text, std::mt19937& rng) {
    auto pick = [&](std::size_t n) { return n == 0 ? 0 : static_cast<std::size_t>(rng() % n); };
    static const char* const kNumbers[] = {"99999999999", "2147483648", "-32769", "32767",   "0",
                                           "-1",          "1000",       "150",    "16777217"};
    for (int n = rng() % 4 == 0 ? 4 : 1; n > 0; --n) {
        std::size_t at = pick(text.size() + 1), end = at;
        switch (rng() % 5) {
            case 0:
                text.resize(at);
                break;
            case 1:
                if (at < text.size()) text[at] = static_cast<char>(rng() % 256);
                break;
            case 2:
                while (at < text.size() && !std::isdigit(static_cast<unsigned char>(text[at]))) ++at;
                for (end = at; end < text.size() && std::isdigit(static_cast<unsigned char>(text[end]));)
                    ++end;
                text.replace(at, end - at, kNumbers[rng() % std::size(kNumbers)]);
                break;
            case 3:
                text.insert(at, rng() % 2 ? std::string(1, "\",#\n"[rng() % 4]) : std::string(pick(64), ' '));
                break;
            default:
                at = text.find('\n', at);
                end = at == std::string::npos ? at : text.find('\n', at + 1);
                if (end == std::string::npos) break;
                rng() % 2 ? text.erase(at + 1, end - at) : text.insert(at + 1, text.substr(at + 1, end - at));
        }
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
                      standings = RosterText(80, 12, 3, 200, FieldLines(80));
    const std::string tips = ReadAll(ShippedFile(kTipsFileName));
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
        const int16_t speed =
            game.GameSpeed >= 1 && game.GameSpeed <= 3 ? game.GameSpeed : 2;  // else unchanged
        settingsRead += game.GameSpeed != 2 || !game.SoundOn;                 // not the defaults
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
