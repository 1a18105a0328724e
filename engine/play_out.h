// After the user is out: the rest of the field played to its winner by the
// game's own routines, and the figures of a tournament table at a glance.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "engine/game_state.h"

namespace holdem {

// True when the user is out and more than one player is left to play.
bool CanPlayOutField(const Game& g);

struct PlayOutReport {
    bool finished = false;  // false when cancelled or there was nothing to play
    int rounds = 0;
    int winnerPosition = 0;  // roster position of the last player left
};

// Plays round after round, every table a hand by PlayTableHand, then the
// blinds, the count and the balancing, in the order a shown hand's end runs
// them, until one player is left. The user's table plays as a background
// table from its own button, and one of its players takes the user's seat.
// `onRound` sees the players left after each
// round and returns false to stop; a stopped field can be played on later.
// Sounds stay silent meanwhile.
PlayOutReport PlayOutField(Game& g, const std::function<bool(int playersLeft)>& onRound = {});

// Places 1..TournamentSize once the field is decided: the last player left
// first, then the others by their finishing place. Empty while players are
// still in.
struct Standing {
    int place = 0;
    std::string name;
    int16_t number = 0;
};
std::vector<Standing> FinalStandings(const Game& g);

// A tournament table at a glance, from the roster after a hand.
struct TourneyFigures {
    int fieldSize = 0;
    int playersLeft = 0;
    int tablesInPlay = 0;
    int32_t smallBlind = 0;
    int nextRiseAt = 0;  // players left at which the blinds next rise; 0 for none
    int32_t nextSmallBlind = 0;
    int userPlace = 0;  // by chips among the players left; 0 once the user is out
    int64_t averageStack = 0;
};
TourneyFigures ComputeTourneyFigures(const Game& g);

// What the user has left to decide in the hand now running: nothing once the
// user has folded or gone all in.
bool CanFinishHand(const Game& g);
// Fires the enabled hand timers one after another, in the chain's own order,
// until the hand is over; an all-in user's turn is answered with the check
// it allows. Returns the ticks fired.
int FinishHand(Game& g);

}  // namespace holdem
