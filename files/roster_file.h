// The roster file layout shared by saved games and the standings scratch file.
#pragma once

#include <string>

#include "engine/game_state.h"

namespace holdem {

// Header (TournamentSize, HandsPlayed, ButtonSeat, SmallBlind), then one line
// per position 1..TournamentSize: tag, name, bank, place, number. Names lose
// any double quote, which the format cannot carry. Throws FileError.
void WriteRosterFile(const Game& game, const std::string& path);

// Hides every element of a hand and of the seats: the table as it stands
// before any game.
void ClearTable(View& view);

// After a failed load: no hand runs and no game is in play, whatever was read.
void AbandonGame(Game& game);

}  // namespace holdem
