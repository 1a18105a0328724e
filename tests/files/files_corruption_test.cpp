// Damaged files fed to the loaders: every one either loads or is reported, and
// a file that is reported leaves no hand dealt. Run under the sanitizers too.
#include <gtest/gtest.h>

#include <random>

#include "engine/game_state.h"
#include "tests/files/files_test_util.h"
#include "tests/support/scripted_platform.h"

namespace holdem::test {
namespace {

// One seeded change to a valid file.
std::string Mutate(std::string text, std::mt19937& rng) {
    auto pick = [&](std::size_t n) { return n == 0 ? 0 : static_cast<std::size_t>(rng() % n); };
    static const char* const kNumbers[] = {"99999999999", "2147483648", "-2147483648", "32767",
                                           "-32768",      "0",          "65536",       "-1",
                                           "1000",        "8",          "9",           "16777217"};
    switch (rng() % 9) {
        case 0:  // truncate
            text.resize(pick(text.size() + 1));
            break;
        case 1:  // flip a bit
            if (!text.empty()) text[pick(text.size())] ^= static_cast<char>(1u << (rng() % 8));
            break;
        case 2:  // any byte
            if (!text.empty()) text[pick(text.size())] = static_cast<char>(rng() % 256);
            break;
        case 3: {  // a number replaced by an extreme one
            std::size_t at = pick(text.size());
            while (at < text.size() && !(text[at] >= '0' && text[at] <= '9')) ++at;
            std::size_t end = at;
            while (end < text.size() && text[end] >= '0' && text[end] <= '9') ++end;
            text.replace(at, end - at, kNumbers[rng() % std::size(kNumbers)]);
            break;
        }
        case 4:  // a stray quote
            text.insert(pick(text.size() + 1), 1, '"');
            break;
        case 5:  // a quote, comma or line end removed
            for (int tries = 0; tries < 50 && !text.empty(); ++tries) {
                std::size_t at = pick(text.size());
                if (text[at] == '"' || text[at] == ',' || text[at] == '\n') {
                    text.erase(at, 1);
                    break;
                }
            }
            break;
        case 6: {  // a line dropped or repeated
            std::size_t at = text.find('\n', pick(text.size()));
            if (at == std::string::npos) break;
            std::size_t end = text.find('\n', at + 1);
            if (end == std::string::npos) break;
            std::string line = text.substr(at + 1, end - at);
            if (rng() % 2)
                text.erase(at + 1, end - at);
            else
                text.insert(at + 1, line);
            break;
        }
        case 7:  // a comma inserted
            text.insert(pick(text.size() + 1), 1, ',');
            break;
        default:  // several changes at once
            for (int i = 0; i < 4; ++i) text = Mutate(std::move(text), rng);
            break;
    }
    return text;
}

// A game part-way through: busted players with places, uneven stacks.
std::string SavedGame(int size, int hands) {
    std::vector<std::string> lines;
    int place = size;
    for (int p = 1; p <= size; ++p) {
        bool out = p % 5 == 3;
        lines.push_back(PlayerLine(p * 3, "Name, " + std::to_string(p), out ? 0 : 10000 + (p % 4) * 100,
                                   out ? place-- : 0, p));
    }
    return RosterText(size, hands, 4, 200, lines);
}

bool NoHandDealt(const Game& g) {
    if (g.RunningTimer() != kTimerCount) return false;
    for (int i = 1; i <= 4; ++i)
        if (g.view.cmdPlay[i].visible) return false;
    for (int c = 1; c <= 21; ++c)
        if (g.view.icard[c].visible) return false;
    return !g.view.mnuSave.enabled;
}

TEST(FileCorruptionTest, DamagedFilesLoadOrAreReportedWithNoHandDealt) {
    TempFolder dir;
    const std::string gameData = ReadAll(ShippedFile("gamedata.dat"));
    const std::string bases[] = {SavedGame(8, 17), SavedGame(80, 40), SavedGame(200, 3), SavedGame(8, 0)};
    std::mt19937 rng(20240607);
    int loaded = 0, reported = 0, finished = 0;
    constexpr int kMutations = 10000;
    for (int i = 0; i < kMutations; ++i) {
        ScriptedPlatform p;
        Game g(p);
        g.rnd.SeedDeterministic(static_cast<uint64_t>(i));
        // One in sixteen goes through a new game and a damaged gamedata.dat.
        // Each file is a new one: rewriting a file in place makes some file
        // systems flush it at every step.
        const bool newGame = i % 16 == 7;
        const std::string folder = newGame ? dir.File("m" + std::to_string(i)) + "/" : dir.Folder();
        const std::string path =
            newGame ? folder + "gamedata.dat" : dir.File("d" + std::to_string(i) + ".sgf");
        if (newGame) std::filesystem::create_directory(folder);
        g.AppFolder = folder;
        if (newGame) {
            WriteAll(path, Mutate(gameData, rng));
            p.newGames.push_back({false, i % 32 == 7 ? "Single Table" : "Tournament", "80", "Medium"});
            g.mnuNew_Click();
        } else {
            WriteAll(path, Mutate(bases[i % std::size(bases)], rng));
            p.openPaths.push_back(path);
            g.mnuOpen_Click();
        }
        SCOPED_TRACE("mutation " + std::to_string(i));
        ASSERT_LE(p.messages.size(), 1u);
        std::string why;
        ASSERT_TRUE(g.state_is_ok(&why)) << why;
        if (p.messages.empty()) {
            ++loaded;
            ASSERT_EQ(g.RunningTimer(), TimerDealHole);
            ASSERT_TRUE(g.TournamentSize == 8 || g.TournamentSize == 80 || g.TournamentSize == 200 ||
                        g.TournamentSize == 1000);
            ASSERT_GE(g.ButtonSeat, 1);
            ASSERT_LE(g.ButtonSeat, 8);
            ASSERT_GE(g.PlayersInHand, 1);
        } else if (p.messages[0].title == "Game Over") {
            ++finished;
            ASSERT_TRUE(g.GameEnded);
            ASSERT_EQ(g.RunningTimer(), kTimerCount);
        } else {
            ++reported;
            ASSERT_EQ(p.messages[0].icon, MsgIcon::Exclamation);
            ASSERT_TRUE(NoHandDealt(g));
            ASSERT_EQ(g.HandsPlayed, 0);
            // What is left of the game can still be shown.
            if (reported % 50 == 1) {
                g.mnuStandings_Click();
                ASSERT_EQ(p.standings.size(), 1u);
            }
        }
        std::filesystem::remove(path);
        if (newGame) std::filesystem::remove_all(folder);
    }
    RecordProperty("loaded", loaded);
    RecordProperty("reported", reported);
    EXPECT_EQ(loaded + reported + finished, kMutations);
    // Both outcomes are well represented, so the mutations reach the checks.
    EXPECT_GT(loaded, kMutations / 10);
    EXPECT_GT(reported, kMutations / 4);
}

}  // namespace
}  // namespace holdem::test
