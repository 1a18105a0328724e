// The card encoding and the small helpers every routine shares.
//
// A card is 1..52, 0 for none. Suit blocks are 1..13, 14..26, 27..39, 40..52
// (hearts, spades, diamonds, clubs on the pictures). Within a block the rank
// runs 1 (Two) to 13 (Ace).
#pragma once

#include <cfloat>
#include <cmath>
#include <cstdint>
#include <string>

namespace holdem {

constexpr int kSeats = 8;
constexpr int kRoster = 1000;
constexpr int kTables = 125;
constexpr int kDeckSize = 52;
constexpr int kBoardFirst = 16;  // Deck[16..20] is the board
constexpr int kHoleCardsDealt = 16;
constexpr int kNoHand = 200;      // SeatHandCode of a seat with no hand
constexpr int kUnclassified = 9;  // StartingHandClass before the deal ends

constexpr int RankOf(int card) { return (card - 1) % 13 + 1; }
constexpr int SuitOf(int card) { return (card - 1) / 13; }  // 0..3
// Seats are never negative, so the unsigned remainder is the same and cheaper.
constexpr int NextSeat(int seat) { return static_cast<int>(static_cast<unsigned>(seat) % kSeats) + 1; }
// Seat s of table t is roster position (t - 1) * 8 + s.
inline int RosterPosition(int table, int seat) { return (table - 1) * kSeats + seat; }
inline int TableOf(int position) { return (position + 7) / kSeats; }

// Round to the nearest whole number, halves to the even neighbour, in the
// precision of the argument: a float product stays a float. Adding and taking
// away 2^23 (2^52) lets the processor's own rounding do it inline, where
// nearbyint is a library call: the background tables round some ten thousand
// times a round. From that size up every value is already whole.
#if defined(FLT_EVAL_METHOD) && FLT_EVAL_METHOD == 0
inline float RoundHalfEven(float x) {
    constexpr float kWhole = 8388608.0f;
    const float a = std::fabs(x);
    return a < kWhole ? std::copysign((a + kWhole) - kWhole, x) : x;
}
inline double RoundHalfEven(double x) {
    constexpr double kWhole = 4503599627370496.0;
    const double a = std::fabs(x);
    return a < kWhole ? std::copysign((a + kWhole) - kWhole, x) : x;
}
#else
inline float RoundHalfEven(float x) { return std::nearbyint(x); }
inline double RoundHalfEven(double x) { return std::nearbyint(x); }
#endif

// "##,###,##0": groups of three digits, no decimals, 0 shown as "0".
std::string Money(int64_t amount);
// Plain decimal, no grouping.
inline std::string Plain(int64_t amount) { return std::to_string(amount); }

}  // namespace holdem
