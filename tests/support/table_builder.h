// Small builders for tests of the shown table: the roster of its eight seats,
// and the draws that make StartHand's shuffle deal chosen cards.
#pragma once

#include <array>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "engine/game_state.h"

namespace holdem::test {

// Roster positions 1..8 (the shown table), the button before StartHand moves
// it on, and the small blind. Seat 1 is "You", seat n "Player n"; every seat
// starts with $10,000.
class TableBuilder {
public:
    TableBuilder();
    // Stacks of seats 1..8 in order; 0 leaves the seat empty.
    TableBuilder& Banks(std::initializer_list<int32_t> banks);
    TableBuilder& Bank(int seat, int32_t bank);
    TableBuilder& Name(int seat, std::string name);
    TableBuilder& Button(int seat);
    TableBuilder& SmallBlind(int32_t amount);
    void ApplyTo(Game& game) const;

private:
    std::array<int32_t, 9> banks_{};
    std::array<std::string, 9> names_{};
    int16_t button_ = 8;
    int32_t smallBlind_ = 100;
};

// The 52 draws that make the shuffle put `front` at Deck[0], Deck[1], ...;
// the rest of the deck falls as draws of 0 leave it.
std::vector<float> ShuffleDrawsFor(const std::vector<int>& front);

// The first 21 cards of a deck that deals `holes[s]` (first, second) to seat s
// and `board` to the middle, with the button at `button` once StartHand has
// moved it. Seats given {0, 0} get cards nobody else holds.
std::vector<int> DeckFor(int button, const std::array<std::pair<int, int>, 9>& holes,
                         const std::array<int, 5>& board);

// Joins lists of draws in order.
std::vector<float> Draws(std::initializer_list<std::vector<float>> parts);

}  // namespace holdem::test
