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

// Suit nibbles plus these carry into bit 3 of a nibble at five (a flush) or
// at four cards of the suit.
constexpr uint32_t kFiveOfASuit = 0x3333;
constexpr uint32_t kFourOfASuit = 0x4444;
constexpr uint32_t kNibbleTops = 0x8888;
constexpr int kFirstHighCard = 152;
constexpr int kFourToASuit = 152;
constexpr uint32_t kRankMask = (1u << kRankBits) - 1;

// Written out, not looped: the copy is a large part of a river seat's work.
template <std::size_t... K>
void UnpackRanks(int16_t* to, uint32_t ranks, std::index_sequence<K...>) {
    ((to[K + 1] = static_cast<int16_t>((ranks >> (kRankBits * K)) & kRankMask)), ...);
}

bool IsCard(int c) { return static_cast<unsigned>(c - 1) < static_cast<unsigned>(kDeckSize); }
uint64_t Bit(int card) { return uint64_t{1} << card; }

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

// A seat with five or more cards of one suit; 0 where the tables do not know
// the hand.
int RankFlush(Game& g, int s, int n, const int (&cards)[kHandCardsMax + 1], uint32_t fiveBits) {
    int suit = std::countr_zero(fiveBits) / kRankBits;
    unsigned suited = 0;
    for (int k = 1; k <= n; ++k)
        if (SuitOf(cards[k]) == suit) suited |= 1u << (RankOf(cards[k]) - 1);
    const FlushTable& flushes = FlushCodes();
    int code = flushes.complete ? flushes.code[suited] : 0;
    if (code != 0 && n == kHandCardsMax) ArrangeFlush(g, s, cards, suit);
    return code;
}

}  // namespace

void Game::RankHands() {
    const int n = CardsKnown;
    if (n < 5 || n > kHandCardsMax) return RankHandsReference(*this);
    const RankPatternTable& patterns = RankPatterns(n);
    if (!patterns.complete) return RankHandsReference(*this);
    const bool river = n == kHandCardsMax;
    // Every key the tables are asked for must be a real pattern: that holds
    // for distinct cards.
    int cards[kHandCardsMax + 1] = {};
    uint64_t board = 0, dealt = 0;
    for (int k = 3; k <= n; ++k) {
        cards[k] = Deck[kBoardFirst + k - 3];
        if (!IsCard(cards[k]) || (dealt & Bit(cards[k])) != 0) return RankHandsReference(*this);
        dealt |= Bit(cards[k]);
        board += kCardKey[cards[k]];
    }
    // First the slots of all seats, then their codes: the look-ups go to
    // memory together. The seats found by the tables are listed, so the later
    // passes do not test each seat again. Names are written last, as a string
    // copy between look-ups would hold them back.
    int listed = 0;
    int seatOf[kSeats];
    uint32_t slot[kSeats], suits[kSeats];
    int code[kSeats];
    for (int s = 1; s <= kSeats; ++s) {
        SeatHandCode[s] = kNoHand;
        if (!SeatInHand[s]) continue;
        cards[1] = SeatCards[s][1];
        cards[2] = SeatCards[s][2];
        if (!IsCard(cards[1]) || !IsCard(cards[2]) || cards[1] == cards[2] ||
            (dealt & (Bit(cards[1]) | Bit(cards[2]))) != 0) {
            RankSeatReference(*this, s);
            continue;
        }
        const uint64_t key = board + kCardKey[cards[1]] + kCardKey[cards[2]];
        const auto seatSuits = static_cast<uint32_t>(key >> kSuitShift);
        if (uint32_t five = (seatSuits + kFiveOfASuit) & kNibbleTops; five != 0) {
            if (int flush = RankFlush(*this, s, n, cards, five); flush != 0) {
                SeatHandCode[s] = static_cast<int16_t>(flush);
                SeatHandName[s] = kHandNames[FlushCodes().nameOfCode[flush]];
            } else {
                RankSeatReference(*this, s);
            }
            continue;
        }
        seatOf[listed] = s;
        suits[listed] = seatSuits;
        slot[listed++] = patterns.Find(static_cast<uint32_t>(key));
    }
    for (int i = 0; i < listed; ++i) {
        code[i] = patterns.code[slot[i]];
        // The river makes every high-card hand 199 whatever its suits.
        if (!river && code[i] >= kFirstHighCard && ((suits[i] + kFourOfASuit) & kNibbleTops) != 0)
            code[i] = kFourToASuit;
        SeatHandCode[seatOf[i]] = static_cast<int16_t>(code[i]);
        if (river)
            UnpackRanks(SeatBestRanks[seatOf[i]], patterns.ranks[slot[i]],
                        std::make_index_sequence<kHandCardsMax>{});
    }
    for (int i = 0; i < listed; ++i)
        if (int name = patterns.nameOfCode[code[i]]; name != 0) SeatHandName[seatOf[i]] = kHandNames[name];
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
