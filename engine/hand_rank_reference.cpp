// The reference ranking: the made hand of every seat still in, as one small
// code (lower is better) and a text; on the river also the seven ranks
// arranged so that the five that play come first. It follows the rules step
// by step; RankHands answers from tables built by running it.
#include <bit>
#include <string>
#include <utility>

#include "engine/game_state.h"
#include "engine/hand_rank.h"

namespace holdem {

namespace {

constexpr int kMaxCards = 7;
constexpr int kSuits = 4;
constexpr int kRanks = 13;
constexpr int kAce = 13;
constexpr int kKing = 12;
constexpr int kQueen = 11;
constexpr int kJack = 10;
constexpr int kTen = 9;

// The straights by rank value, highest first; 5-4-3-2-A is tried last.
constexpr int kStraightRows = 10;
constexpr int kStraights[kStraightRows][5] = {
    {13, 12, 11, 10, 9}, {12, 11, 10, 9, 8}, {11, 10, 9, 8, 7}, {10, 9, 8, 7, 6}, {9, 8, 7, 6, 5},
    {8, 7, 6, 5, 4},     {7, 6, 5, 4, 3},    {6, 5, 4, 3, 2},   {5, 4, 3, 2, 1},  {4, 3, 2, 1, 13}};

constexpr int kRoyalFlush = 1;      // straight flush codes 1..10 by row
constexpr int kFourBase = 24;       // - FourRank: 11..23
constexpr int kFullHouseBase = 37;  // - ThreeRank: 24..36
constexpr int kFlush = 37;
constexpr int kStraightBase = 38;  // + row: 38..47
constexpr int kThreeBase = 61;     // - ThreeRank: 48..60
constexpr int kPairBase = 152;     // - PairRank: 139..151
constexpr int kFourToASuit = 152;
constexpr int kGappedHighCards = 153;
constexpr int kNothing = 199;
constexpr int kFirstHighCard = 152;
constexpr int kLastBelowNothing = 198;

// First two-pair code for each rank of the higher pair.
constexpr int kTwoPairRowStart[kRanks + 1] = {0, 0, 138, 136, 133, 129, 124, 118, 111, 103, 94, 84, 73, 61};

// High-card codes from 154 on: the first pair of ranks present decides.
constexpr int kHighCardBase = 154;
constexpr std::pair<int, int> kHighCardPairs[] = {{kAce, kKing},   {kAce, kQueen}, {kAce, kJack},
                                                  {kKing, kQueen}, {kKing, kJack}, {kQueen, kJack},
                                                  {kAce, kTen},    {kKing, kTen},  {kQueen, kTen}};
// Both spans of the five highest ranks must be this close to leave a chance.
constexpr int kMaxSpan = 4;

// Name ids: the rank words of one pair first, so that a pair's id is its rank.
constexpr int kRoyalFlushName = 14;
constexpr int kStraightFlushName = 15;
constexpr int kFlushName = 16;
constexpr int kFourName = 17;
constexpr int kFullHouseName = 18;
constexpr int kStraightName = 19;
constexpr int kThreeName = 20;
constexpr int kTwoPairName = 21;

// One seat's cards and their ranks, 1..n, always rearranged together.
struct SeatHand {
    int n = 0;
    int card[kMaxCards + 1];
    int rank[kMaxCards + 1];
    int rankCount[kRanks + 1] = {};
    int suitCount[kSuits] = {};
    unsigned rankMask = 0;  // bit r set when rank r is present
    int fourRank = 0, threeRank = 0, pairRank = 0, secondPairRank = 0;
    int flushSuit = -1;
};

void Swap(SeatHand& h, int i, int j) {
    std::swap(h.card[i], h.card[j]);
    std::swap(h.rank[i], h.rank[j]);
}

// Selection sort, highest rank first, taking the first card found among equals.
void SortDown(SeatHand& h, int from, int to) {
    for (int i = from; i < to; ++i) {
        int best = i;
        for (int j = i + 1; j <= to; ++j)
            if (h.rank[j] > h.rank[best]) best = j;
        Swap(h, i, best);
    }
}

void Pull(SeatHand& h, int rank, int from, int to) {
    for (int p = from; p <= to; ++p) {
        for (int j = p; j <= h.n; ++j) {
            if (h.rank[j] == rank) {
                Swap(h, p, j);
                break;
            }
        }
    }
}

void Collect(const int16_t* cards, int n, SeatHand& h) {
    h.n = n;
    for (int k = 1; k <= h.n; ++k) {
        h.card[k] = cards[k];
        h.rank[k] = RankOf(h.card[k]);
        ++h.rankCount[h.rank[k]];
        ++h.suitCount[SuitOf(h.card[k])];
        h.rankMask |= 1u << h.rank[k];
    }
    for (int suit = 0; suit < kSuits; ++suit)
        if (h.suitCount[suit] >= 5) h.flushSuit = suit;
}

// Upward through the ranks present, lowest first.
void FindGroups(SeatHand& h) {
    for (unsigned present = h.rankMask; present != 0; present &= present - 1) {
        int r = std::countr_zero(present);
        if (h.rankCount[r] == 4) {
            h.fourRank = r;
        } else if (h.rankCount[r] == 3) {
            // A lower three of a kind counts as the pair of a full house.
            if (h.threeRank != 0) {
                if (h.pairRank != 0) h.secondPairRank = h.pairRank;
                h.pairRank = h.threeRank;
            }
            h.threeRank = r;
        } else if (h.rankCount[r] == 2) {
            if (h.pairRank != 0) h.secondPairRank = h.pairRank;
            h.pairRank = r;
        }
    }
}

void Arrange(SeatHand& h) {
    if (h.flushSuit >= 0) {
        int front = 1;
        for (int i = 1; i <= h.n; ++i)
            if (SuitOf(h.card[i]) == h.flushSuit) Swap(h, front++, i);
        SortDown(h, 1, front - 1);
        return;
    }
    SortDown(h, 1, h.n);
    if (h.fourRank != 0) {
        Pull(h, h.fourRank, 1, 4);
        SortDown(h, 5, h.n);
    } else if (h.threeRank != 0 && h.pairRank != 0) {
        Pull(h, h.threeRank, 1, 3);
        Pull(h, h.pairRank, 4, 5);
        SortDown(h, 6, h.n);
    } else if (h.threeRank != 0) {
        Pull(h, h.threeRank, 1, 3);
        SortDown(h, 4, h.n);
    } else if (h.pairRank != 0 && h.secondPairRank != 0) {
        Pull(h, h.pairRank, 1, 2);
        Pull(h, h.secondPairRank, 3, 4);
        SortDown(h, 5, h.n);
    } else if (h.pairRank != 0) {
        Pull(h, h.pairRank, 1, 2);
        SortDown(h, 3, h.n);
    }
}

constexpr unsigned MaskOf(const int (&ranks)[5]) {
    unsigned mask = 0;
    for (int r : ranks) mask |= 1u << r;
    return mask;
}

constexpr unsigned kStraightMasks[kStraightRows] = {
    MaskOf(kStraights[0]), MaskOf(kStraights[1]), MaskOf(kStraights[2]), MaskOf(kStraights[3]),
    MaskOf(kStraights[4]), MaskOf(kStraights[5]), MaskOf(kStraights[6]), MaskOf(kStraights[7]),
    MaskOf(kStraights[8]), MaskOf(kStraights[9])};

// Row of the highest straight among the ranks present, -1 for none.
int StraightRow(unsigned present) {
    for (int row = 0; row < kStraightRows; ++row)
        if ((present & kStraightMasks[row]) == kStraightMasks[row]) return row;
    return -1;
}

int HighCardCode(const SeatHand& h) {
    for (int suit = 0; suit < kSuits; ++suit)
        if (h.suitCount[suit] == 4) return kFourToASuit;
    // No rank is paired here, so the five highest ranks are the top five
    // present, as the sorted list would give them.
    int top[6] = {};
    int found = 0;
    for (int r = kRanks; r >= 1 && found < 5; --r)
        if (h.rankMask & (1u << r)) top[++found] = r;
    if (top[1] - top[4] > kMaxSpan || top[2] - top[5] > kMaxSpan) return kGappedHighCards;
    int code = kHighCardBase;
    for (const auto& [high, low] : kHighCardPairs) {
        if (h.rankCount[high] > 0 && h.rankCount[low] > 0) return code;
        ++code;
    }
    return kNothing;
}

// Code by the first category that fits; the name only where one is written.
int Categorise(const SeatHand& h, int& name) {
    name = 0;
    if (h.flushSuit >= 0) {
        unsigned suited = 0;
        for (int k = 1; k <= h.n; ++k)
            if (SuitOf(h.card[k]) == h.flushSuit) suited |= 1u << h.rank[k];
        int row = StraightRow(suited);
        if (row >= 0) {
            name = row == 0 ? kRoyalFlushName : kStraightFlushName;
            return kRoyalFlush + row;
        }
        name = kFlushName;
        return kFlush;
    }
    if (h.fourRank != 0) {
        name = kFourName;
        return kFourBase - h.fourRank;
    }
    if (h.threeRank != 0 && h.pairRank != 0) {
        name = kFullHouseName;
        return kFullHouseBase - h.threeRank;
    }
    int row = StraightRow(h.rankMask);
    if (row >= 0) {
        name = kStraightName;
        return kStraightBase + row;
    }
    if (h.threeRank != 0) {
        name = kThreeName;
        return kThreeBase - h.threeRank;
    }
    if (h.pairRank != 0 && h.secondPairRank != 0) {
        name = kTwoPairName;
        return kTwoPairRowStart[h.pairRank] + (h.pairRank - 1 - h.secondPairRank);
    }
    if (h.pairRank != 0) {
        name = h.pairRank;
        return kPairBase - h.pairRank;
    }
    return HighCardCode(h);
}

}  // namespace

const std::array<std::string, kHandNameCount> kHandNames = {
    "",           "Dueces",   "Threes",          "Fours",          "Fives", "Sixes",
    "Sevens",     "Eights",   "Nines",           "Tens",           "Jacks", "Queens",
    "Kings",      "Aces",     "Royal Flush",     "Straight Flush", "Flush", "Four of a Kind",
    "Full House", "Straight", "Three of a Kind", "Two Pair"};

void RankCardsReference(const int16_t* cards, int n, bool river, HandRanking& out) {
    SeatHand h;
    Collect(cards, n, h);
    FindGroups(h);
    // Only the river's BestRanks read the arranged list; the categories and
    // the high-card rule need nothing of it.
    if (river) Arrange(h);
    int code = Categorise(h, out.name);
    if (river) {
        if (code >= kFirstHighCard && code <= kLastBelowNothing) code = kNothing;
        for (int k = 1; k <= kMaxCards; ++k) out.ranks[k] = static_cast<int16_t>(h.rank[k]);
    }
    out.code = code;
}

void RankSeatReference(Game& g, int s) {
    int16_t cards[kMaxCards + 1] = {};
    int n = 5 + (g.CardsKnown > 5 ? 1 : 0) + (g.CardsKnown > 6 ? 1 : 0);
    cards[1] = g.SeatCards[s][1];
    cards[2] = g.SeatCards[s][2];
    for (int k = 3; k <= n; ++k) cards[k] = g.Deck[kBoardFirst + k - 3];
    bool river = g.CardsKnown == kMaxCards;
    HandRanking r;
    RankCardsReference(cards, n, river, r);
    if (r.name != 0) g.SeatHandName[s] = kHandNames[r.name];
    if (river)
        for (int k = 1; k <= kMaxCards; ++k) g.SeatBestRanks[s][k] = r.ranks[k];
    g.SeatHandCode[s] = static_cast<int16_t>(r.code);
}

void RankHandsReference(Game& g) {
    for (int s = 1; s <= kSeats; ++s) {
        g.SeatHandCode[s] = kNoHand;
        if (!g.SeatInHand[s]) continue;
        RankSeatReference(g, s);
    }
}

}  // namespace holdem
