// mnuNew_Click, NewGame and the plain functions behind frmNewGame.
#include <gtest/gtest.h>

#include "engine/game_state.h"
#include "files/new_game.h"
#include "tests/files/files_test_util.h"
#include "tests/support/scripted_platform.h"

namespace holdem::test {
namespace {

TEST(NewGameChoicesTest, MapTheListsToTheGame) {
    EXPECT_EQ(TournamentSizeFor("Single Table", "1,000"), 8);
    EXPECT_EQ(TournamentSizeFor("Single Table", "200"), 8);
    EXPECT_EQ(TournamentSizeFor("Tournament", "80"), 80);
    EXPECT_EQ(TournamentSizeFor("Tournament", "200"), 200);
    EXPECT_EQ(TournamentSizeFor("Tournament", "1,000"), 1000);
    EXPECT_EQ(GameSpeedFor("Fast"), 1);
    EXPECT_EQ(GameSpeedFor("Medium"), 2);
    EXPECT_EQ(GameSpeedFor("Slow"), 3);
    EXPECT_EQ(SpeedItemFor(1), "Fast");
    EXPECT_EQ(SpeedItemFor(2), "Medium");
    EXPECT_EQ(SpeedItemFor(3), "Slow");
    EXPECT_EQ(SpeedItemFor(0), "Medium");
    EXPECT_EQ(SpeedItemFor(4), "Medium");
    EXPECT_EQ(PlayerNameFor(""), "Player 1");
    EXPECT_EQ(PlayerNameFor(" "), " ");
    EXPECT_EQ(PlayerNameFor("Ann"), "Ann");
}

class NewGameTest : public ::testing::Test {
protected:
    TempFolder dir;
    ScriptedPlatform p;
    Game g{p};

    void SetUp() override {
        g.AppFolder = dir.Folder();
        WriteAll(dir.File("gamedata.dat"), RosterText(1000, 0, 1, 100, FieldLines(200)));
    }
    // A game of 8 in play: some hands played, saved to a file.
    void GameInPlay() {
        p.newGames.push_back({false, "Single Table", "80", "Slow"});
        p.playerNames.push_back("Ann");
        g.rnd.Script(LoadDraws({0.1f, 0.2f, 0.3f}));
        g.mnuNew_Click();
        g.SavedGamePath = dir.File("current.sgf");
        g.HandsPlayed = 7;
        g.GameUnsaved = true;
        g.StopHandTimers();
        g.view.timer[TimerBetTurn].enabled = true;  // a hand runs
        p.messages.clear();
    }
    void ChooseTournament80(const std::string& name) {
        p.newGames.push_back({false, "Tournament", "80", "Fast"});
        p.playerNames.push_back(name);
        g.rnd.Script(LoadDraws({0.0f, 0.0f, 0.0f}));
    }
    void ExpectQuestion(std::size_t i, const char* text, const char* title) {
        ASSERT_GT(p.messages.size(), i);
        EXPECT_EQ(p.messages[i].text, text);
        EXPECT_EQ(p.messages[i].title, title);
        EXPECT_EQ(p.messages[i].icon, MsgIcon::Question);
        EXPECT_EQ(p.messages[i].buttons, MsgButtons::YesNo);
    }
};

TEST_F(NewGameTest, FirstGameAsksNothingAndDealsAtOnce) {
    g.GameSpeed = 3;
    ChooseTournament80("");
    g.mnuNew_Click();
    EXPECT_TRUE(p.messages.empty());
    ASSERT_EQ(p.newGameSpeeds.size(), 1u);
    EXPECT_EQ(p.newGameSpeeds[0], 3);
    EXPECT_EQ(p.playerNameCalls, 1);
    EXPECT_EQ(g.rnd.Remaining(), 0u);
    EXPECT_EQ(g.rnd.Overdrawn(), 0);

    EXPECT_FALSE(g.NewGameCancelled);
    EXPECT_EQ(g.TournamentSize, 80);
    EXPECT_EQ(g.GameSpeed, 1);
    EXPECT_TRUE(g.view.mnuFastSpeed.checked);
    EXPECT_EQ(g.view.timer[TimerBetHole].interval, 800);
    EXPECT_EQ(g.SeatName[1], "Player 1");
    EXPECT_EQ(g.RosterName[1], "Player 1");
    EXPECT_EQ(g.RosterName[81], "");
    EXPECT_EQ(g.SavedGamePath, "");
    EXPECT_FALSE(g.GameEnded);
    EXPECT_EQ(g.HandsPlayed, 1);
    EXPECT_EQ(g.view.lblBlind.text, "Blinds: $100 - $200");
    EXPECT_EQ(g.view.lblGoodLuck.text, "Good Luck!");
    EXPECT_EQ(g.RunningTimer(), TimerDealHole);
}

TEST_F(NewGameTest, NoToStartNewGameKeepsTheGame) {
    GameInPlay();
    p.answers.push_back(MsgAnswer::No);
    g.mnuNew_Click();
    ASSERT_EQ(p.messages.size(), 1u);
    ExpectQuestion(0, "Start New Game?", "Start New Game");
    EXPECT_EQ(p.newGameSpeeds.size(), 1u);  // only the first game's dialog
    EXPECT_EQ(g.HandsPlayed, 7);
    EXPECT_EQ(g.RunningTimer(), TimerBetTurn);
}

TEST_F(NewGameTest, CancelledNewGameChangesNothing) {
    GameInPlay();
    const std::string before = g.RosterName[2];
    p.answers = {MsgAnswer::Yes, MsgAnswer::No};
    p.newGames.push_back({true, "Tournament", "200", "Fast"});
    g.mnuNew_Click();
    ASSERT_EQ(p.messages.size(), 2u);
    ExpectQuestion(1, "Save Existing Game?", "Save Game");
    EXPECT_TRUE(g.NewGameCancelled);
    EXPECT_EQ(g.GameSpeed, 3);
    EXPECT_TRUE(g.view.mnuSlowSpeed.checked);
    EXPECT_EQ(g.HandsPlayed, 7);
    EXPECT_EQ(g.TournamentSize, 8);
    EXPECT_EQ(g.SavedGamePath, dir.File("current.sgf"));
    EXPECT_EQ(g.RosterName[2], before);
    EXPECT_EQ(g.RunningTimer(), TimerBetTurn);
    EXPECT_EQ(p.playerNameCalls, 1);
    EXPECT_FALSE(std::filesystem::exists(dir.File("current.sgf")));  // No gave up the hands
}

TEST_F(NewGameTest, YesToSaveWritesTheOldGameThenStartsTheNewOne) {
    GameInPlay();
    const std::string header = "8,7," + std::to_string(g.ButtonSeat) + "," + std::to_string(g.SmallBlind);
    p.answers = {MsgAnswer::Yes, MsgAnswer::Yes};
    ChooseTournament80("Bea");
    g.mnuNew_Click();
    ASSERT_EQ(p.messages.size(), 2u);
    ExpectQuestion(0, "Start New Game?", "Start New Game");
    ExpectQuestion(1, "Save Existing Game?", "Save Game");
    // The old game: 8 players, its hands count, seat 1 named Ann.
    std::string saved = ReadAll(dir.File("current.sgf"));
    EXPECT_EQ(saved.substr(0, saved.find("\r\n")), header);
    EXPECT_NE(saved.find("1,\"Ann\",10000,0,1\r\n"), std::string::npos);
    // The new one: a fresh hand with its own chain only.
    EXPECT_EQ(g.TournamentSize, 80);
    EXPECT_EQ(g.SeatName[1], "Bea");
    EXPECT_EQ(g.SavedGamePath, "");
    EXPECT_EQ(g.HandsPlayed, 1);
    EXPECT_EQ(g.RunningTimer(), TimerDealHole);
    EXPECT_EQ(g.view.timer[TimerBetTurn].enabled, false);
}

TEST_F(NewGameTest, SaveQuestionOnlyWithUnsavedHandsAndAFailedSaveGoesOn) {
    GameInPlay();
    g.GameUnsaved = false;
    p.answers = {MsgAnswer::Yes};
    ChooseTournament80("Cy");
    g.mnuNew_Click();
    ASSERT_EQ(p.messages.size(), 1u);
    ExpectQuestion(0, "Start New Game?", "Start New Game");
    EXPECT_EQ(g.TournamentSize, 80);

    // Unsaved, never saved: Yes opens the save dialog, which is cancelled.
    g.GameUnsaved = true;
    g.HandsPlayed = 3;
    p.messages.clear();
    p.answers = {MsgAnswer::Yes, MsgAnswer::Yes};
    ChooseTournament80("Di");
    g.mnuNew_Click();
    ASSERT_EQ(p.messages.size(), 3u);
    EXPECT_EQ(p.messages[2].text, "There was an error saving the game.");
    EXPECT_EQ(g.SeatName[1], "Di");
    EXPECT_EQ(g.RunningTimer(), TimerDealHole);
}

TEST_F(NewGameTest, EndedGameGoesStraightToTheDialog) {
    GameInPlay();
    g.GameEnded = true;
    ChooseTournament80("Ed");
    g.mnuNew_Click();
    EXPECT_TRUE(p.messages.empty());
    EXPECT_FALSE(g.GameEnded);
    EXPECT_EQ(g.SeatName[1], "Ed");
}

TEST_F(NewGameTest, MissingOrShortGameDataGivesAMessageAndNoGame) {
    for (const std::string& text : {std::string(), RosterText(1000, 0, 1, 100, FieldLines(50))}) {
        if (text.empty())
            std::filesystem::remove(dir.File("gamedata.dat"));
        else
            WriteAll(dir.File("gamedata.dat"), text);
        p.messages.clear();
        ChooseTournament80("Flo");
        g.mnuNew_Click();
        ASSERT_EQ(p.messages.size(), 1u);
        EXPECT_NE(p.messages[0].text.find("gamedata.dat"), std::string::npos);
        EXPECT_EQ(p.messages[0].icon, MsgIcon::Exclamation);
        EXPECT_EQ(g.RunningTimer(), kTimerCount);
        EXPECT_FALSE(g.view.lblName[1].visible);
        EXPECT_FALSE(g.view.mnuSave.enabled);
        EXPECT_EQ(g.TournamentSize, 0);
        EXPECT_EQ(g.HandsPlayed, 0);
    }
}

}  // namespace
}  // namespace holdem::test
