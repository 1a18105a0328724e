// The few calls by which the routines of the shown table and of the end of a
// hand write their events. None of them draws or changes a field the game
// reads: they only append to View::log.
#pragma once

#include <string>
#include <utility>

#include "engine/game_state.h"
#include "engine/hand_log.h"

namespace holdem {

// An event with the fields most events use.
inline LogLine MakeLine(LogKind kind, std::string name = {}, int32_t number = 0, bool flag = false) {
    LogLine line;
    line.kind = kind;
    line.name = std::move(name);
    line.number = number;
    line.flag = flag;
    return line;
}

// Appends an event, stamped with the street, when logging is on.
void LogEvent(Game& g, LogLine line);
// A move of seat `seat` at the shown table, with the seat's name and whether
// it has gone all in.
void LogSeat(Game& g, LogKind kind, int seat, int32_t amount = 0, int32_t total = 0);
// The hand's number, button and blinds, the user's cards, the blinds posted.
void LogHandStart(Game& g);
void LogBlinds(Game& g);
// Who joined or left the user's table in one balancing, from the roster
// numbers as they stood before it.
using RosterNumbers = std::array<int16_t, kRoster + 1>;
void LogUserTableChanges(Game& g, const RosterNumbers& before);
void LogBoard(Game& g, int street, int cards);
void LogShownHands(Game& g);

}  // namespace holdem
