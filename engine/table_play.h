// Helpers shared by the routines of the shown table: the timers of each
// street and the few view updates that several routines make.
#pragma once

#include <cmath>
#include <cstdint>

#include "engine/game_state.h"

namespace holdem {

// By Street (1 before the flop .. 4 river): the street's Bet timer and the
// timer that follows when its round is over.
struct StreetTimers {
    TimerId bet;
    TimerId next;
};

inline constexpr StreetTimers kStreetTimers[5] = {
    {TimerBetHole, TimerDealFlop},  // unused: Street is never 0 during a hand
    {TimerBetHole, TimerDealFlop},  {TimerBetFlop, TimerDealTurn},
    {TimerBetTurn, TimerDealRiver}, {TimerBetRiver, TimerHandOver},
};

inline const StreetTimers& TimersOfStreet(int street) {
    return kStreetTimers[street >= 1 && street <= 4 ? street : 1];
}

inline constexpr int kPreFlop = 1;
inline constexpr int kFlop = 2;

inline constexpr const char* kAllIn = " All In";
// The title of the game's own message boxes.
inline constexpr const char* kGameTitle = "Texas Hold'em";

// A seat's stack as a whole number of dollars.
inline int32_t WholeDollars(float bank) { return static_cast<int32_t>(std::lround(bank)); }

// The hidden labels that mirror HighBetIndex, HighBetValue and PreviousSeat.
void ShowBettingState(Game& g);
void ShowBank(Game& g, int seat);
void ShowPot(Game& g);
// Shows iArrow(seat) and hides the other seven; seat 0 hides all eight.
void ShowArrowAt(Game& g, int seat);
void PlayDealSound(Game& g);

}  // namespace holdem
