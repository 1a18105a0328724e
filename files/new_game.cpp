#include "files/new_game.h"

#include "engine/game_state.h"
#include "files/roster_file.h"
#include "files/seq_text.h"

namespace holdem {

namespace {
const char* const kGameDataFile = "gamedata.dat";
}

int16_t TournamentSizeFor(const std::string& gameType, const std::string& players) {
    if (gameType == "Single Table") return 8;
    if (players == "80") return 80;
    if (players == "200") return 200;
    return 1000;
}

int16_t GameSpeedFor(const std::string& speed) {
    if (speed == "Fast") return 1;
    if (speed == "Medium") return 2;
    return 3;
}

std::string SpeedItemFor(int16_t gameSpeed) {
    if (gameSpeed == 1) return "Fast";
    if (gameSpeed == 3) return "Slow";
    return "Medium";
}

std::string PlayerNameFor(const std::string& entry) { return entry.empty() ? "Player 1" : entry; }

void Game::mnuNew_Click() {
    if (!GameEnded && HandsPlayed >= 1) {
        // Closing the question box counts as No.
        if (platform->MessageBox("Start New Game?", "Start New Game", MsgIcon::Question, MsgButtons::YesNo) !=
            MsgAnswer::Yes)
            return;
        if (GameUnsaved && platform->MessageBox("Save Existing Game?", "Save Game", MsgIcon::Question,
                                                MsgButtons::YesNo) == MsgAnswer::Yes)
            SaveGame();
    }
    NewGame();
}

void Game::NewGame() {
    NewGameChoices choices = platform->ShowNewGame(GameSpeed);
    NewGameCancelled = choices.cancelled;
    if (NewGameCancelled) return;
    const int16_t size = TournamentSizeFor(choices.gameType, choices.players);
    // The players are read before the game in play ends: without them there
    // is no new game, and the old one goes on as it was.
    RosterFile players;
    try {
        players = ReadRosterFile(AppFolder + kGameDataFile, true, size);
    } catch (const FileError& e) {
        platform->MessageBox("The players of a new game could not be read from gamedata.dat in\n" +
                                 AppFolder + "\n" + e.what() + "\n\nReinstalling the game restores the file.",
                             "Game Not Started", MsgIcon::Exclamation, MsgButtons::OK);
        return;
    }
    TournamentSize = size;
    GameSpeed = GameSpeedFor(choices.speed);
    HandsPlayed = 0;
    SavedGamePath.clear();

    SetGameSpeed();
    GameEnded = false;
    PlayerNameEntry = platform->ShowPlayerName();
    SeatName[1] = PlayerNameFor(PlayerNameEntry);
    LoadRosterFrom(*this, players);
}

}  // namespace holdem
