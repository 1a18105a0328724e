// The tables of RankHands, built on first use by running the reference over
// every rank pattern of five, six and seven cards and every set of suited
// ranks that makes a flush.
//
// A hand with no flush ranks the same whatever its suits and order, save the
// four-to-a-suit code, which RankHands adds itself: so each rank pattern is
// ranked once, dealt round the suits so that no suit holds four. The patterns
// of one size are found by a perfect hash: a bucket by one hash, and within
// it a slot by a second hash moved by the bucket's displacement, chosen here
// so that no two patterns share a slot.
#include <algorithm>
#include <array>
#include <bit>
#include <chrono>
#include <vector>

#include "engine/common.h"
#include "engine/hand_rank.h"

namespace holdem {

namespace {

constexpr int kRanks = 13;
constexpr int kSuits = 4;
constexpr int kSmallestHand = 5;
constexpr int kSuitBits = 4;
// A bucket's displacements are tried in this order until its patterns fit.
constexpr uint32_t kDisplacementStep = 0x9E3779B9u;
constexpr uint32_t kMaxTries = 1u << 20;
constexpr uint32_t kMaxBucket = 64;

struct Pattern {
    uint32_t key;
    RankPatternSlot slot;
};

constexpr auto kPower5 = [] {
    std::array<uint32_t, kRanks + 1> p{};
    p[0] = 1;
    for (int e = 1; e <= kRanks; ++e) p[e] = p[e - 1] * 5;
    return p;
}();

// Every way of holding n cards with at most four of a rank, ranked. The cards
// go round the suits in rank order, so no suit holds four of up to seven.
class PatternWalk {
public:
    PatternWalk(int n, std::vector<Pattern>& out) : n_(n), out_(out) { Visit(1, n, 0, 0); }

private:
    void Visit(int rank, int left, int dealt, uint32_t key) {
        if (left == 0) return Rank(key);
        if (left > kSuits * (kRanks + 1 - rank)) return;
        for (int c = 0; c <= std::min(kSuits, left); ++c) {
            if (c > 0) cards_[dealt + c] = static_cast<int16_t>(((dealt + c - 1) % kSuits) * kRanks + rank);
            Visit(rank + 1, left - c, dealt + c, key + static_cast<uint32_t>(c) * kPower5[rank - 1]);
        }
    }

    void Rank(uint32_t key) {
        HandRanking ranked;
        RankCardsReference(cards_, n_, n_ == kHandCardsMax, ranked);
        RankPatternSlot slot{key, static_cast<uint8_t>(ranked.code), static_cast<uint8_t>(ranked.name)};
        for (int k = 1; k <= kHandCardsMax; ++k) slot.ranks[k] = static_cast<uint8_t>(ranked.ranks[k]);
        out_.push_back({key, slot});
    }

    int n_;
    std::vector<Pattern>& out_;
    int16_t cards_[kHandCardsMax + 1] = {};
};

struct PatternStore {
    std::vector<uint32_t> displacement;
    std::vector<RankPatternSlot> slots;
};

// Biggest buckets first, each at the first displacement that lands all its
// patterns on free slots. A bucket that finds none is left out, and its
// patterns go to the reference.
void PlacePatterns(const std::vector<Pattern>& patterns, PatternStore& store, RankPatternTable& table) {
    table.buckets = static_cast<uint32_t>(patterns.size() / 4 + 1);
    table.slots = static_cast<uint32_t>(patterns.size() + patterns.size() / 4 + 1);
    store.displacement.assign(table.buckets, 0);
    store.slots.assign(table.slots, RankPatternSlot{});

    // The patterns grouped by bucket, and the buckets by falling size.
    std::vector<uint32_t> first(table.buckets + 1, 0);
    std::vector<uint32_t> bucketOf(patterns.size());
    for (std::size_t i = 0; i < patterns.size(); ++i) {
        bucketOf[i] = static_cast<uint32_t>(
            (static_cast<uint64_t>(RankPatternTable::BucketHash(patterns[i].key)) * table.buckets) >> 32);
        ++first[bucketOf[i] + 1];
    }
    for (uint32_t b = 0; b < table.buckets; ++b) first[b + 1] += first[b];
    std::vector<uint32_t> member(patterns.size());
    std::vector<uint32_t> fill(first.begin(), first.end() - 1);
    for (std::size_t i = 0; i < patterns.size(); ++i) member[fill[bucketOf[i]]++] = static_cast<uint32_t>(i);
    std::vector<uint32_t> order(table.buckets);
    for (uint32_t b = 0; b < table.buckets; ++b) order[b] = b;
    auto size = [&](uint32_t b) { return first[b + 1] - first[b]; };
    std::stable_sort(order.begin(), order.end(), [&](uint32_t a, uint32_t b) { return size(a) > size(b); });

    std::vector<uint8_t> taken(table.slots, 0);
    uint32_t trial[kMaxBucket];
    for (uint32_t b : order) {
        const uint32_t n = size(b);
        if (n == 0) break;
        if (n > kMaxBucket) continue;
        for (uint32_t t = 0; t < kMaxTries; ++t) {
            const uint32_t d = t * kDisplacementStep;
            uint32_t placed = 0;
            for (; placed < n; ++placed) {
                uint32_t h = RankPatternTable::SlotHash(patterns[member[first[b] + placed]].key) ^ d;
                uint32_t s = static_cast<uint32_t>((static_cast<uint64_t>(h) * table.slots) >> 32);
                if (taken[s] || std::find(trial, trial + placed, s) != trial + placed) break;
                trial[placed] = s;
            }
            if (placed != n) continue;
            store.displacement[b] = d;
            for (uint32_t i = 0; i < n; ++i) {
                taken[trial[i]] = 1;
                store.slots[trial[i]] = patterns[member[first[b] + i]].slot;
            }
            break;
        }
    }
    table.displacement = store.displacement.data();
    table.slot = store.slots.data();
}

// Every suited rank set of five to seven cards, as one suit would hold it.
void FillFlushes(HandRankTables& t) {
    for (unsigned mask = 0; mask < t.flushCode.size(); ++mask) {
        int n = std::popcount(mask);
        if ((mask & 1u) != 0 || n < kSmallestHand || n > kHandCardsMax) continue;
        int16_t cards[kHandCardsMax + 1] = {};
        int k = 0;
        for (int r = 1; r <= kRanks; ++r)
            if (mask & (1u << r)) cards[++k] = static_cast<int16_t>(r);
        HandRanking ranked;
        RankCardsReference(cards, n, false, ranked);
        t.flushCode[mask] = static_cast<uint8_t>(ranked.code);
        t.flushName[mask] = static_cast<uint8_t>(ranked.name);
    }
}

struct TableStore {
    PatternStore bySize[kHandCardsMax + 1];
    HandRankTables tables;

    TableStore() {
        auto start = std::chrono::steady_clock::now();
        HandRankTables& t = tables;
        for (int c = 1; c <= kDeckSize; ++c)
            t.cardKey[c] = kPower5[RankOf(c) - 1] | (uint64_t{1} << (kSuitShift + kSuitBits * SuitOf(c)));
        t.bytes = sizeof t.cardKey + sizeof t.flushCode + sizeof t.flushName;
        std::vector<Pattern> patterns;
        for (int n = kSmallestHand; n <= kHandCardsMax; ++n) {
            patterns.clear();
            PatternWalk(n, patterns);
            PlacePatterns(patterns, bySize[n], t.bySize[n]);
            t.bytes += bySize[n].displacement.size() * sizeof(uint32_t) +
                       bySize[n].slots.size() * sizeof(RankPatternSlot);
        }
        FillFlushes(t);
        t.buildMilliseconds =
            std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
    }
};

}  // namespace

const HandRankTables& HandRankTablesInUse() {
    static const TableStore store;
    return store.tables;
}

}  // namespace holdem
