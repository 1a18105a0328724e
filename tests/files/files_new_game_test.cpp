// mnuNew_Click, NewGame and the plain functions behind frmNewGame.
#include <gtest/gtest.h>

#include "files/new_game.h"
#include "tests/files/files_test_util.h"

namespace holdem::test {
namespace {

TEST(NewGameChoicesTest, MapTheListsToTheGame) {
    EXPECT_EQ(
        (std::vector<int>{TournamentSizeFor("Single Table", "1,000"),
                          TournamentSizeFor("Single Table", "200"), TournamentSizeFor("Tournament", "80"),
                          TournamentSizeFor("Tournament", "200"), TournamentSizeFor("Tournament", "1,000")}),
        (std::vector<int>{8, 8, 80, 200, 1000}));
    EXPECT_EQ((std::vector<int>{GameSpeedFor("Fast"), GameSpeedFor("Medium"), GameSpeedFor("Slow")}),
              (std::vector<int>{1, 2, 3}));
    EXPECT_EQ((std::vector<std::string>{SpeedItemFor(0), SpeedItemFor(1), SpeedItemFor(2), SpeedItemFor(3),
                                        SpeedItemFor(4)}),
              (std::vector<std::string>{"Medium", "Fast", "Medium", "Slow", "Medium"}));
    EXPECT_EQ((std::vector<std::string>{PlayerNameFor(""), PlayerNameFor(" "), PlayerNameFor("Ann")}),
              (std::vector<std::string>{"Player 1", " ", "Ann"}));
}

class NewGameTest : public FileTest {
protected:
    void SetUp() override {
        FileTest::SetUp();
        WriteAll(dir.File("gamedata.dat"), RosterText(1000, 0, 1, 100, FieldLines(200)));
    }
    void Choose(bool cancel, const std::string& name) {
        p.newGames.push_back({cancel, "Tournament", "80", "Fast"});
        p.playerNames.push_back(name);
        g.rnd.Script(LoadDraws({0.0f, 0.0f, 0.0f}));
    }
    // A slow game of 8 by Ann with hands played, its file named, a hand running.
    void GameInPlay() {
        g.GameEnded = true;  // whatever came before ends without a question
        p.newGames.clear();
        p.playerNames.clear();
        p.newGames.push_back({false, "Single Table", "80", "Slow"});
        p.playerNames.push_back("Ann");
        g.rnd.Script(LoadDraws({0.1f, 0.2f, 0.3f}));
        g.mnuNew_Click();
        g.SavedGamePath = dir.File("current.sgf");
        g.HandsPlayed = 7;
        g.GameUnsaved = true;
        g.StopHandTimers();
        g.EnableTimer(TimerBetTurn);
    }
};

TEST_F(NewGameTest, FirstGameAsksNothingAndDealsAtOnce) {
    g.GameSpeed = 3;
    Choose(false, "");
    g.mnuNew_Click();
    ExpectDrawsUsed(g);
    EXPECT_TRUE(p.messages.empty());
    EXPECT_EQ(p.newGameSpeeds, std::vector<int16_t>{3});
    EXPECT_EQ(p.playerNameCalls, 1);
    EXPECT_EQ(std::tie(g.NewGameCancelled, g.TournamentSize, g.GameSpeed, g.GameEnded, g.HandsPlayed),
              std::make_tuple(false, 80, 1, false, 1));
    EXPECT_TRUE(g.view.mnuFastSpeed.checked);
    EXPECT_EQ(g.view.timer[TimerBetHole].interval, 800);
    EXPECT_EQ(std::tie(g.SeatName[1], g.RosterName[1], g.RosterName[81], g.SavedGamePath),
              std::make_tuple("Player 1", "Player 1", "", ""));
    EXPECT_EQ(std::tie(g.view.lblBlind.text, g.view.lblGoodLuck.text),
              std::make_tuple("Blinds: $100 - $200", "Good Luck!"));
    EXPECT_EQ(g.RunningTimer(), TimerDealHole);
}

TEST_F(NewGameTest, TheQuestionsBeforeANewGame) {
    const char* const kStart = "Start New Game?";
    const char* const kSave = "Save Existing Game?";
    const char* const kError = "There was an error saving the game.";
    const struct {
        bool unsaved, ended, named;
        std::vector<MsgAnswer> answers;
        bool cancelDialog;
        std::vector<std::string> messages;
        bool started, saved;
    } cases[] = {
        {true, false, true, {MsgAnswer::No}, false, {kStart}, false, false},
        {true, false, true, {MsgAnswer::Yes, MsgAnswer::No}, true, {kStart, kSave}, false, false},
        {true, false, true, {MsgAnswer::Yes, MsgAnswer::Yes}, false, {kStart, kSave}, true, true},
        {false, false, true, {MsgAnswer::Yes}, false, {kStart}, true, false},
        {true, false, false, {MsgAnswer::Yes, MsgAnswer::Yes}, false, {kStart, kSave, kError}, true, false},
        {true, true, true, {}, false, {}, true, false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << "unsaved " << c.unsaved << " ended " << c.ended << " named "
                                        << c.named << " answers " << c.answers.size());
        std::filesystem::remove(dir.File("current.sgf"));
        GameInPlay();
        const std::string header = "8,7," + std::to_string(g.ButtonSeat) + "," + std::to_string(g.SmallBlind);
        g.GameUnsaved = c.unsaved;
        g.GameEnded = c.ended;
        if (!c.named) g.SavedGamePath.clear();
        p.messages.clear();
        p.answers.assign(c.answers.begin(), c.answers.end());
        Choose(c.cancelDialog, "Bea");
        g.mnuNew_Click();
        std::vector<std::string> texts;
        for (const auto& m : p.messages) {
            texts.push_back(m.text);
            if (m.text == kError) continue;
            EXPECT_EQ(std::tie(m.title, m.icon, m.buttons),
                      std::make_tuple(m.text == kStart ? "Start New Game" : "Save Game", MsgIcon::Question,
                                      MsgButtons::YesNo));
        }
        EXPECT_EQ(texts, c.messages);
        EXPECT_EQ(g.NewGameCancelled, c.cancelDialog);
        EXPECT_EQ(std::make_tuple(g.SeatName[1], int{g.TournamentSize}, int{g.HandsPlayed}, int{g.GameSpeed},
                                  g.view.mnuSlowSpeed.checked, g.SavedGamePath, g.GameEnded),
                  c.started
                      ? std::make_tuple(std::string("Bea"), 80, 1, 1, false, std::string(), false)
                      : std::make_tuple(std::string("Ann"), 8, 7, 3, true, dir.File("current.sgf"), c.ended));
        EXPECT_EQ(g.RunningTimer(), c.started ? TimerDealHole : TimerBetTurn);
        const std::string file = ReadAll(dir.File("current.sgf"));
        EXPECT_EQ(file.substr(0, file.find("\r\n")), c.saved ? header : "");
        EXPECT_EQ(file.find("\r\n1,\"Ann\",10000,0,1\r\n") != std::string::npos, c.saved);
    }
}

TEST_F(NewGameTest, MissingOrShortGameDataGivesAMessageAndNoGame) {
    for (const std::string& text : {std::string(), RosterText(1000, 0, 1, 100, FieldLines(50))}) {
        std::filesystem::remove(dir.File("gamedata.dat"));
        if (!text.empty()) WriteAll(dir.File("gamedata.dat"), text);
        Choose(false, "Flo");
        g.mnuNew_Click();
        ASSERT_EQ(p.messages.size(), 1u);
        EXPECT_NE(p.messages[0].text.find("gamedata.dat"), std::string::npos);
        EXPECT_EQ(p.messages[0].icon, MsgIcon::Exclamation);
        p.messages.clear();
        EXPECT_TRUE(NoHandDealt(g));
        EXPECT_EQ(std::tie(g.TournamentSize, g.HandsPlayed), std::make_tuple(0, 0));
    }
}

}  // namespace
}  // namespace holdem::test
