// Small builders for tests of the shown table: the roster of its eight seats,
// the draws that make StartHand's shuffle deal chosen cards, and a game to
// drive through the timer chain.
#pragma once

#include <array>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "engine/game_state.h"
#include "tests/support/scripted_platform.h"

namespace holdem::test {

// Roster positions 1..8, the button before StartHand moves it on, and the
// small blind. Seat 1 is "You", seat n "Player n"; every seat has $10,000.
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

// The first 21 cards of a deck that deals `holes[s]` to seat s and `board` to
// the middle, once StartHand has moved the button to `button`. Seats given
// {0, 0} get cards nobody else holds.
std::vector<int> DeckFor(int button, const std::array<std::pair<int, int>, 9>& holes,
                         const std::array<int, 5>& board);

std::vector<float> Draws(std::initializer_list<std::vector<float>> parts);

// A game at the shown table.
struct TableGame {
    // Applies `table` and starts a hand on the all-zero shuffle (deck 1, 52,
    // 51, ..., 2); `then` follows its 52 draws.
    void Start(const TableBuilder& table, const std::vector<float>& then = {});
    // Fires the running timer until `until` runs, or none does; returns the
    // ticks. `broken` keeps the first broken invariant seen after a tick.
    int RunUntil(TimerId until);
    // Fires `id` while it is the running timer.
    int RunWhile(TimerId id);
    bool DrawsUsedUp() const { return g.rnd.Remaining() == 0 && g.rnd.Overdrawn() == 0; }

    ScriptedPlatform p;
    Game g{p};
    std::string broken;
};

// lblBet(1..8) joined by '|'.
std::string Bets(const Game& g);
// The indexes from..to of a family of elements that are visible, as "3 5 8".
std::string Visible(const std::array<Element, 9>& family);
std::string Visible(const std::array<Element, 22>& family, int from, int to);
// cmdPlay(1..4): its digit when it can be pressed, '.' shown but disabled, '-' hidden.
std::string Buttons(const Game& g);
// "DealHole" .. "HandOver", or "none".
std::string Running(const Game& g);

}  // namespace holdem::test
