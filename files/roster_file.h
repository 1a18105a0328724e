// The roster file layout shared by saved games, gamedata.dat and the
// standings scratch file.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "engine/game_state.h"

namespace holdem {

// One player line: tag, name, bank, place, number.
struct RosterRecord {
    int16_t Tag = 0;
    std::string Name;
    int32_t Bank = 0;
    int16_t Place = 0;
    int16_t Number = 0;
};

// A roster file read whole and checked, apart from any game.
struct RosterFile {
    int16_t TournamentSize = 0;
    int16_t HandsPlayed = 0;
    int16_t ButtonSeat = 0;
    int32_t SmallBlind = 0;
    std::vector<RosterRecord> Records;  // positions 1..TournamentSize in order
};

// Reads and checks a whole roster file; no game is touched, so a file that
// fails leaves the game in play as it was. A new game drops the header's
// size and reads newGameSize records. Throws FileError saying which line is
// at fault and why.
RosterFile ReadRosterFile(const std::string& path, bool newGame, int16_t newGameSize);

// LoadRoster once the file is read: the roster, the table, the first hand.
void LoadRosterFrom(Game& game, const RosterFile& file);

// Header (TournamentSize, HandsPlayed, ButtonSeat, SmallBlind), then one line
// per position 1..TournamentSize: tag, name, bank, place, number. Names lose
// any double quote, which the format cannot carry. Throws FileError.
void WriteRosterFile(const Game& game, const std::string& path);

// Hides every element of a hand and of the seats: the table as it stands
// before any game.
void ClearTable(View& view);

}  // namespace holdem
