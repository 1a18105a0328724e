#pragma once

#include <cstdint>
#include <string>

namespace holdem {

// "You Finished " + place + its ordinal ending: 1st, 2nd, 3rd, 11th, 1000th.
std::string FinishText(int16_t place);
// The place with its ordinal ending alone: "1st", "112th".
std::string Ordinal(int place);

class Game;
// Step 5 of closing a hand: counts the players with chips and gives the
// busted ones their places. Playing out the field after the user is out
// runs it too.
void CountAndPlace(Game& g);
// After the count and the balancing: the field as it stands, for the log.
void LogFieldSummary(Game& g);

// The rise that follows the small blind now in play, by the players-left table
// of the field size: it comes once no more than `playersLeft` are left (from
// the hand after that count) and brings `smallBlind`. playersLeft is 0 when no
// rise is to come or the blind is not one of the table's.
struct BlindRise {
    int playersLeft = 0;
    int32_t smallBlind = 0;
};
BlindRise NextBlindRise(int16_t tournamentSize, int32_t smallBlind);

}  // namespace holdem
