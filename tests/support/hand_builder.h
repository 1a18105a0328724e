// Small builders for a shown hand: cards by name, seats, stakes, the board.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>

#include "engine/game_state.h"

namespace holdem::test {

// "Ah", "Td", "2c": rank 2..9, T, J, Q, K, A, then h, s, d or c for the four
// suit blocks in their order. Returns 0 for text it cannot read.
int16_t CardOf(const std::string& name);

// The five board cards, into Deck[16..20] and elements 3..7 of every seat.
void SetBoard(Game& g, std::initializer_list<const char*> cards);
// A seat's two hole cards, elements 1 and 2 of its card array.
void SetHole(Game& g, int seat, const char* first, const char* second);

// A seat of the shown table in the hand (or out of it) with what it has left
// and what it has put in; RosterBank becomes the stack it started the hand
// with. Keeps PlayersInHand and Pot in step.
void SeatPlayer(Game& g, int seat, const std::string& name, float bankLeft, int32_t totalBet, int32_t bet = 0,
                bool inHand = true);

// A single table of eight, nobody seated, sound on: the ground for one hand.
void EmptyTable(Game& g, int16_t tournamentSize = 8);

// The river is out: rank every seat as the deal timer would.
void RankRiver(Game& g);

// The nine classes of poker hands, weakest first, and the class of a hand code.
enum HandCategory { HighCard, Pair, TwoPair, Trips, Straight, Flush, FullHouse, Quads, StraightFlush, kCategories };
inline HandCategory CategoryOfCode(int code) {
    if (code <= 10) return StraightFlush;
    if (code <= 23) return Quads;
    if (code <= 36) return FullHouse;
    if (code == 37) return Flush;
    if (code <= 47) return Straight;
    if (code <= 60) return Trips;
    if (code <= 138) return TwoPair;
    if (code <= 151) return Pair;
    return HighCard;
}

}  // namespace holdem::test
