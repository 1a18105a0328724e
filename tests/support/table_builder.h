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
    TableBuilder& Bank(int seat, int32_t bank) { return banks_[seat] = bank, *this; }
    TableBuilder& Name(int seat, std::string name) { return names_[seat] = std::move(name), *this; }
    TableBuilder& Button(int seat) { return button_ = static_cast<int16_t>(seat), *this; }
    TableBuilder& SmallBlind(int32_t amount) { return smallBlind_ = amount, *this; }
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
    bool DrawsUsedUp() const { return g.rnd.Remaining() == 0 && g.rnd.Overdrawn() == 0; }

    ScriptedPlatform p;
    Game g{p};
    std::string broken;
};

// f(i) for i from..to, joined by `sep`; empty results are skipped when `skip`.
template <class F>
std::string Join(F f, const char* sep = " ", int from = 1, int to = kSeats, bool skip = false) {
    std::string all;
    for (int i = from; i <= to; ++i) {
        std::string one = f(i);
        if (!skip || !one.empty()) all += (all.empty() && (skip || i == from) ? "" : sep) + one;
    }
    return all;
}
// lblBet(1..8) joined by '|'.
std::string Bets(const Game& g);
// The indexes of icard(from..to), or of iArrow(1..8), that are visible, as "3 5 8".
std::string Cards(const Game& g, int from, int to);
std::string Arrows(const Game& g);
// cmdPlay(1..4): its digit when it can be pressed, '.' shown but disabled, '-' hidden.
std::string Buttons(const Game& g);
// "DealHole" .. "HandOver", or "none".
std::string Running(const Game& g);

}  // namespace holdem::test
