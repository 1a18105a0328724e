// Damaged files fed to the loaders: each one loads or is reported, and one that
// is reported leaves no hand dealt. Also run under the sanitizers.
#include <gtest/gtest.h>

#include <cstring>
#include <random>

#include "tests/files/files_test_util.h"

namespace holdem::test {
namespace {

std::string Mutate(std::string text, std::mt19937& rng) {
    auto pick = [&](std::size_t n) { return n == 0 ? 0 : static_cast<std::size_t>(rng() % n); };
    static const char* const kNumbers[] = {"99999999999", "2147483648", "-2147483648", "32767",
                                           "-32768",      "0",          "65536",       "-1",
                                           "1000",        "8",          "9",           "16777217"};
    switch (rng() % 9) {
        case 0:
            text.resize(pick(text.size() + 1));
            break;
        case 1:
            if (!text.empty()) text[pick(text.size())] ^= static_cast<char>(1u << (rng() % 8));
            break;
        case 2:
            if (!text.empty()) text[pick(text.size())] = static_cast<char>(rng() % 256);
            break;
        case 3: {  // a number replaced by an extreme one
            std::size_t at = pick(text.size());
            while (at < text.size() && !std::isdigit(static_cast<unsigned char>(text[at]))) ++at;
            std::size_t end = at;
            while (end < text.size() && std::isdigit(static_cast<unsigned char>(text[end]))) ++end;
            text.replace(at, end - at, kNumbers[rng() % std::size(kNumbers)]);
            break;
        }
        case 4:
            text.insert(pick(text.size() + 1), 1, '"');
            break;
        case 5:  // a quote, comma or line end removed
            for (int tries = 0; tries < 50 && !text.empty(); ++tries)
                if (std::size_t at = pick(text.size()); std::strchr("\",\n", text[at]) && text[at]) {
                    text.erase(at, 1);
                    break;
                }
            break;
        case 6: {  // a line dropped or repeated
            std::size_t at = text.find('\n', pick(text.size()));
            std::size_t end = at == std::string::npos ? at : text.find('\n', at + 1);
            if (end == std::string::npos) break;
            if (rng() % 2)
                text.erase(at + 1, end - at);
            else
                text.insert(at + 1, text.substr(at + 1, end - at));
            break;
        }
        case 7:
            text.insert(pick(text.size() + 1), 1, ',');
            break;
        default:
            for (int i = 0; i < 4; ++i) text = Mutate(std::move(text), rng);
    }
    return text;
}

// A game part-way through: busted players with places, uneven stacks, commas in names.
std::string SavedGame(int size, int hands) {
    std::vector<std::string> lines;
    for (int p = 1, place = size; p <= size; ++p) {
        const bool out = p % 5 == 3;
        lines.push_back(PlayerLine(p * 3, "Name, " + std::to_string(p), out ? 0 : 10000 + p % 4 * 100,
                                   out ? place-- : 0, p));
    }
    return RosterText(size, hands, 4, 200, lines);
}

TEST(FileCorruptionTest, DamagedFilesLoadOrAreReportedWithNoHandDealt) {
    TempFolder dir;
    const std::string gameData = ReadAll(ShippedFile("gamedata.dat"));
    const std::string bases[] = {SavedGame(8, 17), SavedGame(80, 40), SavedGame(200, 3), SavedGame(8, 0)};
    std::mt19937 rng(20240607);
    constexpr int kMutations = 10000;
    int loaded = 0, reported = 0;
    for (int i = 0; i < kMutations; ++i) {
        SCOPED_TRACE("mutation " + std::to_string(i));
        ScriptedPlatform p;
        Game g(p);
        g.rnd.SeedDeterministic(static_cast<uint64_t>(i));
        // One in sixteen is a new game from a damaged gamedata.dat. Every file
        // is new: rewriting one in place makes some file systems flush each time.
        const bool newGame = i % 16 == 7;
        g.AppFolder = newGame ? dir.File("m" + std::to_string(i)) + "/" : dir.Folder();
        const std::string path =
            newGame ? g.AppFolder + "gamedata.dat" : dir.File("d" + std::to_string(i) + ".sgf");
        if (newGame) {
            std::filesystem::create_directory(g.AppFolder);
            WriteAll(path, Mutate(gameData, rng));
            p.newGames.push_back({false, i % 32 == 7 ? "Single Table" : "Tournament", "80", "Medium"});
            g.mnuNew_Click();
        } else {
            WriteAll(path, Mutate(bases[i % std::size(bases)], rng));
            p.openPaths.push_back(path);
            g.mnuOpen_Click();
        }
        ASSERT_LE(p.messages.size(), 1u);
        std::string why;
        ASSERT_TRUE(g.state_is_ok(&why)) << why;
        if (p.messages.empty()) {
            ++loaded;
            ASSERT_EQ(g.RunningTimer(), TimerDealHole);
            ASSERT_TRUE(g.TournamentSize == 8 || g.TournamentSize == 80 || g.TournamentSize == 200 ||
                        g.TournamentSize == 1000);
            ASSERT_TRUE(g.ButtonSeat >= 1 && g.ButtonSeat <= 8 && g.PlayersInHand >= 1);
        } else if (p.messages[0].title == "Game Over") {
            ASSERT_TRUE(g.GameEnded);
            ASSERT_EQ(g.RunningTimer(), kTimerCount);
        } else {
            ++reported;
            ASSERT_EQ(p.messages[0].icon, MsgIcon::Exclamation);
            ASSERT_TRUE(NoHandDealt(g));
            ASSERT_EQ(g.HandsPlayed, 0);
            if (reported % 50 == 1) {  // what is left can still be shown
                g.mnuStandings_Click();
                ASSERT_EQ(p.standings.size(), 1u);
            }
        }
        std::filesystem::remove_all(newGame ? g.AppFolder : path);
    }
    // Both outcomes are well represented, so the mutations reach the checks.
    EXPECT_GT(loaded, kMutations / 10);
    EXPECT_GT(reported, kMutations / 4);
}

}  // namespace
}  // namespace holdem::test
