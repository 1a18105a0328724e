// Builders for engine tests: cards by name, seats, tables, the draws that deal chosen cards, closing checks.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <initializer_list>
#include <sstream>
#include <string>
#include <vector>

#include "engine/game_state.h"
#include "tests/support/scripted_platform.h"

namespace holdem::test {

// "AhKd 2c7s": every two characters a card, spaces ignored: rank 2..9, T, J, Q, K, A, then h, s, d or c for
// the four suit blocks in their order; 0 for a card it cannot read.
std::vector<int16_t> CardsOf(const std::string& names);

// The five board cards into Deck[16..20] and elements 3..7 of every seat.
void SetBoard(Game& g, const std::string& cards);
void SetHole(Game& g, int seat, const std::string& cards);

// A seat in the hand (or out) with what it has left and has put in; RosterBank, PlayersInHand, Pot in step.
void SeatPlayer(Game& g, int seat, float bankLeft, int32_t totalBet, int32_t bet = 0, bool inHand = true);

// A field of `size`, nobody at the shown table, sound on, the hand-over timer running.
void EmptyTable(Game& g, int16_t size = 8);
void RankRiver(Game& g);

// Positions 1..8 of a single table (0 an empty seat), the button before StartHand moves it, the blind.
void SeatTable(Game& g, const std::vector<int32_t>& banks, int button, int32_t smallBlind = 100);

// The 52 draws that shuffle `front` to Deck[0], Deck[1], ...; the rest falls as draws of 0 leave it.
std::vector<float> ShuffleDrawsFor(const std::vector<int>& front);
// The first 21 cards that deal holes[s] ("" for spare cards) to seat s, the button at `button`; the board.
std::vector<int> DeckFor(int button, const std::array<std::string, 9>& holes, const std::string& board);
std::vector<float> Draws(std::initializer_list<std::vector<float>> parts);

// A game's figures, roster, seats, shown elements, timers and log as text, to compare two runs or moments.
std::string StateText(const Game& g);
void ExpectSettled(const Game& g);  // every scripted draw taken, none beyond; state_is_ok
void RunTimers(Game& g);            // fires the running timer until none runs

// The nine classes of poker hands, weakest first, and the class of a code.
enum HandCategory { HighCard, Pair, TwoPair, Trips, Straight, Flush, FullHouse, Quads, StraightFlush };
constexpr int kCategories = StraightFlush + 1;
HandCategory CategoryOfCode(int code);

}  // namespace holdem::test
