// RankHands: the made hand of every seat still in, as one small code (lower is
// better) and a text; on the river also the seven ranks arranged so that the
// five that play come first. CompareShowdown reads both to order the seats.
//
// It runs three times for each of up to 125 tables a round, so it looks each
// hand up in tables made from the reference (hand_rank_tables.cpp) instead of
// sorting: the board's keys are summed once, each seat adds its two cards.
#include "engine/hand_rank.h"

#include <bit>
#include <utility>

#include "engine/game_state.h"

namespace holdem {

namespace {

constexpr int kSuitBits = 4;
// Suit nibbles plus these carry into bit 3 of a nibble at five (a flush) or
// at four cards of the suit.
constexpr uint32_t kFiveOfASuit = 0x3333;
constexpr uint32_t kFourOfASuit = 0x4444;
constexpr uint32_t kNibbleTops = 0x8888;
constexpr int kFirstHighCard = 152;
constexpr int kFourToASuit = 152;

// Written out, not looped: this copy is a third of a river seat's work.
template <std::size_t... K>
void CopyRanks(int16_t* to, const uint8_t* from, std::index_sequence<K...>) {
    ((to[K + 1] = from[K + 1]), ...);
}

bool IsCard(int c) { return static_cast<unsigned>(c - 1) < static_cast<unsigned>(kDeckSize); }

// The arranged list of a flush: the suited cards swapped to the front in the
// order met, then those sorted, highest first; the rest stay where the swaps
// left them.
void ArrangeFlush(Game& g, int s, const int (&cards)[kHandCardsMax + 1], int suit) {
    int16_t* rank = g.SeatBestRanks[s];
    for (int k = 1; k <= kHandCardsMax; ++k) rank[k] = static_cast<int16_t>(RankOf(cards[k]));
    int front = 1;
    for (int k = 1; k <= kHandCardsMax; ++k)
        if (SuitOf(cards[k]) == suit) std::swap(rank[front++], rank[k]);
    for (int i = 2; i < front; ++i)
        for (int j = i; j > 1 && rank[j] > rank[j - 1]; --j) std::swap(rank[j], rank[j - 1]);
}

// A seat with five or more cards of one suit: the id of its name, 0 where
// the tables do not know the hand.
int RankFlush(Game& g, const HandRankTables& t, int s, int n, const int (&cards)[kHandCardsMax + 1],
              uint32_t fiveBits) {
    int suit = std::countr_zero(fiveBits) / kSuitBits;
    unsigned suited = 0;
    for (int k = 1; k <= n; ++k)
        if (SuitOf(cards[k]) == suit) suited |= 1u << RankOf(cards[k]);
    int code = t.flushCode[suited];
    if (code == 0) return 0;
    if (n == kHandCardsMax) ArrangeFlush(g, s, cards, suit);
    g.SeatHandCode[s] = static_cast<int16_t>(code);
    return t.flushName[suited];
}

}  // namespace

void Game::RankHands() {
    const int n = CardsKnown;
    if (n < 5 || n > kHandCardsMax) return RankHandsReference(*this);
    const HandRankTables& t = HandRankTablesInUse();
    const bool river = n == kHandCardsMax;
    int cards[kHandCardsMax + 1] = {};
    uint64_t board = 0;
    for (int k = 3; k <= n; ++k) {
        cards[k] = Deck[kBoardFirst + k - 3];
        if (!IsCard(cards[k])) return RankHandsReference(*this);
        board += t.cardKey[cards[k]];
    }
    const RankPatternTable& patterns = t.bySize[n];
    // Names are written after all the look-ups: a string copy between them
    // would hold them back.
    uint8_t name[kSeats + 1] = {};
    for (int s = 1; s <= kSeats; ++s) {
        SeatHandCode[s] = kNoHand;
        if (!SeatInHand[s]) continue;
        cards[1] = SeatCards[s][1];
        cards[2] = SeatCards[s][2];
        if (!IsCard(cards[1]) || !IsCard(cards[2])) {
            RankSeatReference(*this, s);
            continue;
        }
        const uint64_t key = board + t.cardKey[cards[1]] + t.cardKey[cards[2]];
        const uint32_t suits = static_cast<uint32_t>(key >> kSuitShift);
        const uint32_t rankKey = static_cast<uint32_t>(key);
        if (uint32_t five = (suits + kFiveOfASuit) & kNibbleTops; five != 0) {
            name[s] = static_cast<uint8_t>(RankFlush(*this, t, s, n, cards, five));
            if (name[s] == 0) RankSeatReference(*this, s);
            continue;
        }
        const RankPatternSlot& hand = patterns.Find(rankKey);
        if (hand.key != rankKey) {
            RankSeatReference(*this, s);
            continue;
        }
        int code = hand.code;
        // The river makes every high-card hand 199 whatever its suits.
        if (!river && code >= kFirstHighCard && ((suits + kFourOfASuit) & kNibbleTops) != 0)
            code = kFourToASuit;
        name[s] = hand.name;
        if (river) CopyRanks(SeatBestRanks[s], hand.ranks, std::make_index_sequence<kHandCardsMax>{});
        SeatHandCode[s] = static_cast<int16_t>(code);
    }
    for (int s = 1; s <= kSeats; ++s)
        if (name[s] != 0) SeatHandName[s] = kHandNames[name[s]];
}

// Codes below this tie outright: the straight flushes and four Aces.
constexpr int kTieOutrightBelow = 12;
constexpr int kStraightBase = 38;
constexpr int kLastStraight = 47;
constexpr int kPlayingCards = 5;

int Game::CompareShowdown(int a, int b) const {
    int codeA = SeatHandCode[a];
    int codeB = SeatHandCode[b];
    if (codeA != codeB) return codeA < codeB ? 1 : -1;
    if (codeA < kTieOutrightBelow) return 0;
    if (codeA >= kStraightBase && codeA <= kLastStraight) return 0;
    for (int k = 1; k <= kPlayingCards; ++k) {
        if (SeatBestRanks[a][k] != SeatBestRanks[b][k])
            return SeatBestRanks[a][k] > SeatBestRanks[b][k] ? 1 : -1;
    }
    return 0;
}

}  // namespace holdem
