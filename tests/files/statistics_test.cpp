#include "files/statistics.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace holdem {
namespace {

class StatisticsFile : public ::testing::Test {
protected:
    void SetUp() override {
        dir = std::filesystem::temp_directory_path() /
              ("holdem_stats_" + std::to_string(::testing::UnitTest::GetInstance()->random_seed()) + "_" +
               ::testing::UnitTest::GetInstance()->current_test_info()->name());
        std::filesystem::remove_all(dir);
        path = (dir / "user" / kStatisticsFile).string();
    }
    void TearDown() override { std::filesystem::remove_all(dir); }
    void Write(const std::string& text) {
        std::filesystem::create_directories(dir / "user");
        std::ofstream(path, std::ios::binary) << text;
    }

    std::filesystem::path dir;
    std::string path;
};

TEST_F(StatisticsFile, SurvivesARestart) {
    Statistics s;
    s.gamesPlayed = 4;
    s.tournamentsPlayed = 3;
    s.bestFinish = {2, 0, 57, 734};
    s.handsPlayed = 310;
    s.handsWon = 41;
    s.showdownsWon = 17;
    s.biggestPotWon = 123400;
    s.handsVoluntary = 88;
    s.showHandLog = false;
    ASSERT_TRUE(WriteStatistics(path, s));  // makes the folder too
    EXPECT_EQ(ReadStatistics(path), s);

    ResetRecord(s);
    EXPECT_EQ(s.handsPlayed, 0);
    EXPECT_FALSE(s.showHandLog) << "a reset keeps the panel choices";
}

TEST_F(StatisticsFile, MissingCorruptOrOversizedGivesDefaults) {
    const std::string good = "holdem statistics 1\ngames 2\nhands 10\nwon 3\n";
    const std::string cases[] = {
        "",
        "holdem statistics 2\ngames 2\n",
        "games 2\n",
        good + "won three\n",
        good + "hands -5\n",
        good + "hands 99999999999\n",
        good + "best-80 81\n",
        good + "show-tourney 2\n",
        good + "colour blue\n",
        "holdem statistics 1\nhands 1\nwon 5\n",
        good + std::string(20000, '\n'),
        std::string("holdem statistics 1\0games 2\n", 28),
    };
    EXPECT_EQ(ReadStatistics(path), Statistics{}) << "no file yet";
    for (const std::string& text : cases) {
        SCOPED_TRACE(text.substr(0, 60));
        Write(text);
        EXPECT_EQ(ReadStatistics(path), Statistics{});
    }
    Write(good + "\r\n");
    EXPECT_EQ(ReadStatistics(path).handsWon, 3) << "a good file with Windows line ends";
}

TEST_F(StatisticsFile, UnwritableFolderLosesNothing) {
    Write("holdem statistics 1\ngames 2\n");
    Statistics s;
    s.gamesPlayed = 9;
    EXPECT_FALSE(WriteStatistics((std::filesystem::path(path) / "below-a-file.txt").string(), s));
    EXPECT_EQ(ReadStatistics(path).gamesPlayed, 2);
}

}  // namespace
}  // namespace holdem
