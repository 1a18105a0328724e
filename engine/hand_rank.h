// Hand ranking in two forms. The reference follows the rules step by step:
// groups, selection sorts, the category table. RankHands answers from tables
// built once, at first use, by running the reference over every rank pattern,
// so the two cannot disagree. A hand the tables do not hold (a card out of
// range or dealt twice, an odd CardsKnown) goes to the reference.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace holdem {

class Game;

constexpr int kHandCardsMax = 7;

// SeatHandName texts by id; id 0 means the routine writes no name.
constexpr int kHandNameCount = 22;
extern const std::array<std::string, kHandNameCount> kHandNames;

// One seat's ranking: what RankHands writes for it.
struct HandRanking {
    int code = 0;
    int name = 0;                           // index into kHandNames
    int16_t ranks[kHandCardsMax + 1] = {};  // arranged, 1..7; only the river writes them
};

// cards[1..n] in the order hole 1, hole 2, board; `river` as CardsKnown == 7.
void RankCardsReference(const int16_t* cards, int n, bool river, HandRanking& out);
// The reference for one seat and for all eight, writing what RankHands writes.
void RankSeatReference(Game& g, int s);
void RankHandsReference(Game& g);

// ---- The tables -------------------------------------------------------------

// A card's key: the rank counts as base-5 digits in the low half (5^(rank-1)
// per card), the suit counts as nibbles in the high half. The keys of
// distinct cards add up without carries.
constexpr int kSuitShift = 32;
constexpr int kRankBits = 4;
constexpr auto kCardKey = [] {
    std::array<uint64_t, 53> key{};  // by card 1..52
    for (int c = 1; c <= 52; ++c) {
        uint64_t rankKey = 1;
        for (int r = 1; r < (c - 1) % 13 + 1; ++r) rankKey *= 5;
        key[c] = rankKey | uint64_t{1} << (kSuitShift + kRankBits * ((c - 1) / 13));
    }
    return key;
}();

// The rank patterns of one hand size, found by a perfect hash of the rank
// key: a bucket by one hash, then a slot by a second hash moved by the
// bucket's displacement. Only keys of real patterns may be looked up, so the
// slots hold no key. Small, because every street of every table reads it.
struct RankPatternTable {
    uint32_t slots = 0;
    uint32_t buckets = 0;
    bool complete = false;                  // every pattern placed, one name to a code
    const uint16_t* tryOfBucket = nullptr;  // displacement = try * kDisplacementStep
    const uint8_t* code = nullptr;
    const uint32_t* ranks = nullptr;  // seven cards only: arranged ranks 1..7, kRankBits each
    // The name goes with the code; the slots hold codes alone, to stay small.
    std::array<uint8_t, 256> nameOfCode{};
    std::size_t bytes = 0;
    double buildMilliseconds = 0;

    static constexpr uint32_t kDisplacementStep = 0x9E3779B9u;

    uint32_t Bucket(uint32_t key) const { return Scale(Hash(key, 0x9E3779B97F4A7C15ull), buckets); }
    uint32_t Slot(uint32_t key, uint32_t displacement) const {
        return Scale(Hash(key, 0xC2B2AE3D27D4EB4Full) ^ displacement, slots);
    }
    uint32_t Find(uint32_t key) const { return Slot(key, tryOfBucket[Bucket(key)] * kDisplacementStep); }

private:
    static uint32_t Hash(uint32_t key, uint64_t multiplier) {
        return static_cast<uint32_t>((key * multiplier) >> 32);
    }
    static uint32_t Scale(uint32_t h, uint32_t n) {
        return static_cast<uint32_t>((static_cast<uint64_t>(h) * n) >> 32);
    }
};

// Flush codes by the suited ranks, bit r - 1 for rank r; 0 where the
// reference must decide.
struct FlushTable {
    std::array<uint8_t, 1u << 13> code{};
    std::array<uint8_t, 256> nameOfCode{};
    bool complete = false;
    std::size_t bytes = 0;
    double buildMilliseconds = 0;
};

// Each built from the reference on its first call, so the first flop, turn
// and river each pay for their own table: n is 5, 6 or 7.
const RankPatternTable& RankPatterns(int n);
const FlushTable& FlushCodes();

}  // namespace holdem
