// The tables of RankHands, built on first use by running the reference over
// every rank pattern of five, six and seven cards and every set of suited
// ranks that makes a flush.
//
// A hand with no flush ranks the same whatever its suits and order, save the
// four-to-a-suit code, which RankHands adds itself: so each rank pattern is
// ranked once, dealt round the suits so that no suit holds four.
#include <algorithm>
#include <array>
#include <bit>
#include <chrono>
#include <vector>

#include "engine/hand_rank.h"

namespace holdem {

namespace {

constexpr int kRanks = 13;
constexpr int kSuits = 4;
constexpr int kSmallestHand = 5;
// Buckets of four patterns on average, slots for ten in nine.
constexpr std::size_t kPatternsPerBucket = 4;
constexpr std::size_t kSlots = 10, kPerPatterns = 9;
constexpr uint32_t kMaxTries = UINT16_MAX;
constexpr uint32_t kMaxBucket = 64;

struct Pattern {
    uint32_t key;
    uint8_t code;
    uint32_t ranks;
};

double MillisecondsSince(std::chrono::steady_clock::time_point start) {
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

constexpr auto kPower5 = [] {
    std::array<uint32_t, kRanks + 1> p{};
    p[0] = 1;
    for (int e = 1; e <= kRanks; ++e) p[e] = p[e - 1] * 5;
    return p;
}();

// Records the name of each code met, and whether every code has one name.
class NameOfCode {
public:
    explicit NameOfCode(std::array<uint8_t, 256>& names) : names_(names) {}
    uint8_t operator()(const HandRanking& r) {
        auto code = static_cast<uint8_t>(r.code);
        if (seen_[code] && names_[code] != r.name) agree_ = false;
        seen_[code] = true;
        names_[code] = static_cast<uint8_t>(r.name);
        return code;
    }
    bool Agree() const { return agree_; }

private:
    std::array<uint8_t, 256>& names_;
    std::array<bool, 256> seen_{};
    bool agree_ = true;
};

// Every way of holding n cards with at most four of a rank, ranked. The cards
// go round the suits in rank order, so no suit holds four of up to seven.
class PatternWalk {
public:
    PatternWalk(int n, NameOfCode& names, std::vector<Pattern>& out) : n_(n), names_(names), out_(out) {
        Visit(1, n, 0, 0);
    }

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
        uint32_t ranks = 0;
        for (int k = 1; k <= kHandCardsMax; ++k)
            ranks |= static_cast<uint32_t>(ranked.ranks[k]) << (kRankBits * (k - 1));
        out_.push_back({key, names_(ranked), ranks});
    }

    int n_;
    NameOfCode& names_;
    std::vector<Pattern>& out_;
    int16_t cards_[kHandCardsMax + 1] = {};
};

struct PatternStore {
    std::vector<uint16_t> tryOfBucket;
    std::vector<uint8_t> code;
    std::vector<uint32_t> ranks;

    std::size_t Bytes() const {
        return tryOfBucket.size() * sizeof(uint16_t) + code.size() + ranks.size() * sizeof(uint32_t);
    }
};

// The patterns grouped by bucket: those of bucket b are member[first[b]] up
// to member[first[b + 1]].
struct Buckets {
    std::vector<uint32_t> first, member;
};

Buckets GroupByBucket(const std::vector<Pattern>& patterns, const RankPatternTable& table) {
    Buckets g;
    g.first.assign(table.buckets + 1, 0);
    g.member.resize(patterns.size());
    std::vector<uint32_t> bucketOf(patterns.size());
    for (std::size_t i = 0; i < patterns.size(); ++i) {
        bucketOf[i] = table.Bucket(patterns[i].key);
        ++g.first[bucketOf[i] + 1];
    }
    for (uint32_t b = 0; b < table.buckets; ++b) g.first[b + 1] += g.first[b];
    std::vector<uint32_t> fill(g.first.begin(), g.first.end() - 1);
    for (std::size_t i = 0; i < patterns.size(); ++i)
        g.member[fill[bucketOf[i]]++] = static_cast<uint32_t>(i);
    return g;
}

// Biggest buckets first, each at the first displacement that lands all its
// patterns on free slots. Should a bucket find none, the table is left
// incomplete and RankHands asks the reference for that hand size.
void PlacePatterns(const std::vector<Pattern>& patterns, bool river, PatternStore& store,
                   RankPatternTable& table) {
    table.buckets = static_cast<uint32_t>(patterns.size() / kPatternsPerBucket + 1);
    table.slots = static_cast<uint32_t>(patterns.size() * kSlots / kPerPatterns + 1);
    store.tryOfBucket.assign(table.buckets, 0);
    store.code.assign(table.slots, 0);
    store.ranks.assign(river ? table.slots : 0, 0);
    table.tryOfBucket = store.tryOfBucket.data();
    table.code = store.code.data();
    table.ranks = river ? store.ranks.data() : nullptr;

    const Buckets g = GroupByBucket(patterns, table);
    auto size = [&](uint32_t b) { return g.first[b + 1] - g.first[b]; };
    std::vector<uint32_t> order(table.buckets);
    for (uint32_t b = 0; b < table.buckets; ++b) order[b] = b;
    std::stable_sort(order.begin(), order.end(), [&](uint32_t a, uint32_t b) { return size(a) > size(b); });

    std::vector<uint8_t> taken(table.slots, 0);
    uint32_t trial[kMaxBucket];
    table.complete = true;
    for (uint32_t b : order) {
        const uint32_t n = size(b);
        if (n == 0) break;
        bool placed = false;
        for (uint32_t t = 0; t <= kMaxTries && n <= kMaxBucket && !placed; ++t) {
            uint32_t k = 0;
            for (; k < n; ++k) {
                uint32_t s = table.Slot(patterns[g.member[g.first[b] + k]].key, t * table.kDisplacementStep);
                if (taken[s] || std::find(trial, trial + k, s) != trial + k) break;
                trial[k] = s;
            }
            if (k != n) continue;
            placed = true;
            store.tryOfBucket[b] = static_cast<uint16_t>(t);
            for (uint32_t i = 0; i < n; ++i) {
                const Pattern& p = patterns[g.member[g.first[b] + i]];
                taken[trial[i]] = 1;
                store.code[trial[i]] = p.code;
                if (river) store.ranks[trial[i]] = p.ranks;
            }
        }
        table.complete = table.complete && placed;
    }
}

// Every suited rank set of five to seven cards, as one suit would hold it.
struct FlushesBuilt {
    FlushTable table;

    FlushesBuilt() {
        auto start = std::chrono::steady_clock::now();
        NameOfCode names(table.nameOfCode);
        for (unsigned mask = 0; mask < table.code.size(); ++mask) {
            int n = std::popcount(mask);
            if (n < kSmallestHand || n > kHandCardsMax) continue;
            int16_t cards[kHandCardsMax + 1] = {};
            int k = 0;
            for (int r = 1; r <= kRanks; ++r)
                if (mask & (1u << (r - 1))) cards[++k] = static_cast<int16_t>(r);
            HandRanking ranked;
            RankCardsReference(cards, n, false, ranked);
            table.code[mask] = names(ranked);
        }
        table.complete = names.Agree();
        table.bytes = sizeof table.code + sizeof table.nameOfCode;
        table.buildMilliseconds = MillisecondsSince(start);
    }
};

struct PatternsBuilt {
    PatternStore store;
    RankPatternTable table;

    explicit PatternsBuilt(int n) {
        auto start = std::chrono::steady_clock::now();
        NameOfCode names(table.nameOfCode);
        std::vector<Pattern> patterns;
        PatternWalk(n, names, patterns);
        PlacePatterns(patterns, n == kHandCardsMax, store, table);
        table.complete = table.complete && names.Agree();
        table.bytes = store.Bytes() + sizeof table;
        table.buildMilliseconds = MillisecondsSince(start);
    }
};

}  // namespace

const RankPatternTable& RankPatterns(int n) {
    if (n == kSmallestHand) {
        static const PatternsBuilt flop(kSmallestHand);
        return flop.table;
    }
    if (n == kSmallestHand + 1) {
        static const PatternsBuilt turn(kSmallestHand + 1);
        return turn.table;
    }
    static const PatternsBuilt river(kHandCardsMax);
    return river.table;
}

const FlushTable& FlushCodes() {
    static const FlushesBuilt flushes;
    return flushes.table;
}

}  // namespace holdem
