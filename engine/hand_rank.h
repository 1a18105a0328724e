// Hand ranking in two forms. The reference follows the rules step by step:
// groups, selection sorts, the category table. RankHands answers from tables
// built once, at first use, by running the reference over every rank pattern,
// so the two cannot disagree; a hand the tables do not hold (a flush whose
// suited ranks they do not know, a card out of range, an odd CardsKnown) goes
// to the reference.
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
// per card), the suit counts as nibbles in the high half. Keys of a hand add
// up without carries for up to seven cards of distinct ranks and suits.
constexpr int kSuitShift = 32;

// Rank patterns of one hand size, by a perfect hash of the low half.
struct RankPatternSlot {
    uint32_t key = UINT32_MAX;  // no pattern has this key
    uint8_t code = 0;
    uint8_t name = 0;
    uint8_t ranks[kHandCardsMax + 1] = {};  // arranged, 1..7, as BestRanks
};

struct RankPatternTable {
    uint32_t slots = 0;
    uint32_t buckets = 0;
    const uint32_t* displacement = nullptr;
    const RankPatternSlot* slot = nullptr;

    const RankPatternSlot& Find(uint32_t key) const {
        uint32_t bucket = static_cast<uint32_t>((static_cast<uint64_t>(BucketHash(key)) * buckets) >> 32);
        uint32_t h = SlotHash(key) ^ displacement[bucket];
        return slot[(static_cast<uint64_t>(h) * slots) >> 32];
    }
    static uint32_t BucketHash(uint32_t key) {
        return static_cast<uint32_t>((key * 0x9E3779B97F4A7C15ull) >> 32);
    }
    static uint32_t SlotHash(uint32_t key) {
        return static_cast<uint32_t>((key * 0xC2B2AE3D27D4EB4Full) >> 32);
    }
};

struct HandRankTables {
    std::array<uint64_t, 53> cardKey{};  // by card 1..52
    RankPatternTable bySize[kHandCardsMax + 1];
    // Flushes by the mask of suited ranks (bit r for rank r): code, 0 where
    // the reference must decide.
    std::array<uint8_t, 1u << 14> flushCode{};
    std::array<uint8_t, 1u << 14> flushName{};
    std::size_t bytes = 0;
    double buildMilliseconds = 0;
};

// Built on the first call, from the reference.
const HandRankTables& HandRankTablesInUse();

}  // namespace holdem
