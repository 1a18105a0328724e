// The computer players' rule: the class of the hole cards, the two chances
// that RateHand gives a seat, and the move drawn against them. One move
// routine per street group serves the shown table and the background tables.
#include <algorithm>
#include <cstdint>
#include <iterator>
#include <limits>
#include <string>

#include "engine/game_state.h"
#include "engine/log_events.h"
#include "engine/table_play.h"

namespace holdem {

namespace {

// ---- Classes of the hole cards ------------------------------------------------

constexpr int kNine = 8;   // pairs of Nines and up are class 1
constexpr int kJack = 10;  // Jack and up count as high; a Ten is low

// The order of the two cards counts: high then low is class 5 whatever the
// suits, low then high unsuited is class 6.
constexpr int HoleCardClass(int first, int second) {
    int r1 = RankOf(first);
    int r2 = RankOf(second);
    bool suited = SuitOf(first) == SuitOf(second);
    bool high1 = r1 >= kJack;
    bool high2 = r2 >= kJack;
    if (r1 == r2) return r1 >= kNine ? 1 : 2;
    if (high1 && high2) return suited ? 3 : 4;
    if (high1) return 5;
    if (high2) return suited ? 5 : 6;
    return suited ? 7 : 8;
}

// The class of every ordered pair of cards 0..52, worked out once: the
// background tables classify eight seats a hand, and the branches of
// HoleCardClass on random cards cost more than the look-up.
constexpr auto kHoleCardClass = [] {
    std::array<std::array<int8_t, kDeckSize + 1>, kDeckSize + 1> classes{};
    for (int a = 0; a <= kDeckSize; ++a)
        for (int b = 0; b <= kDeckSize; ++b) classes[a][b] = static_cast<int8_t>(HoleCardClass(a, b));
    return classes;
}();

int HoleClassOf(int first, int second) {
    if (first >= 0 && first <= kDeckSize && second >= 0 && second <= kDeckSize) return kHoleCardClass[first][second];
    return HoleCardClass(first, second);
}

// ---- Rating tables ------------------------------------------------------------

struct Chances {
    int16_t call;
    int16_t raise;
};

// By StartingHandClass 1..8.
constexpr Chances kClassChances[9] = {
    {10, 0},  // unused
    {90, 25}, {75, 20}, {65, 10}, {55, 5}, {50, 5}, {40, 5}, {30, 0}, {10, 0},
};

// Which ranks the hole-card count h is taken of.
enum class Counted { Nothing, Trips, TwoPair, Pair };

// The first row whose `last` is not below the code applies. Rows that do not
// count hole cards use `h2` alone.
struct CodeRow {
    int16_t last;
    Counted counted;
    Chances h2, h1, h0;  // h of 2 or more, of 1, of 0
};

constexpr CodeRow kCodeRows[] = {
    {27, Counted::Nothing, {100, 75}, {}, {}},  // up to a full house of Jacks
    {31, Counted::Nothing, {95, 60}, {}, {}},   // full house of Tens to Sevens
    {36, Counted::Nothing, {90, 50}, {}, {}},   // full house of Sixes to Twos
    {37, Counted::Nothing, {80, 40}, {}, {}},   // flush
    {41, Counted::Nothing, {75, 35}, {}, {}},   // straight, Ace to Jack high
    {47, Counted::Nothing, {70, 30}, {}, {}},   // straight, Ten to Five high
    {52, Counted::Trips, {90, 40}, {80, 30}, {60, 15}},
    {55, Counted::Trips, {85, 35}, {70, 25}, {50, 10}},
    {60, Counted::Trips, {80, 30}, {65, 25}, {50, 10}},
    {138, Counted::TwoPair, {80, 30}, {65, 25}, {50, 10}},
    {139, Counted::Pair, {95, 45}, {85, 30}, {50, 10}},  // Aces
    {140, Counted::Pair, {95, 45}, {80, 30}, {50, 10}},  // Kings
    {143, Counted::Pair, {90, 40}, {85, 30}, {50, 10}},
    {146, Counted::Pair, {80, 30}, {70, 20}, {40, 10}},
    {151, Counted::Pair, {70, 30}, {60, 20}, {40, 10}},
    {152, Counted::Nothing, {70, 20}, {}, {}},  // four to a flush
    {153, Counted::Nothing, {65, 15}, {}, {}},  // spread wide
    {162, Counted::Nothing, {50, 10}, {}, {}},  // two high cards
    {std::numeric_limits<int16_t>::max(), Counted::Nothing, {10, 0}, {}, {}},
};

constexpr int kFirstTrips = 48;
constexpr int kFirstTwoPair = 61;
constexpr int kFirstPair = 139;
constexpr int kAce = 13;

struct TwoRanks {
    int8_t high, low;
};

// Two-pair codes 61..138 in order: Aces over Kings down to Aces over Twos,
// then Kings over Queens, and so on to Threes over Twos.
constexpr auto kTwoPairRanks = [] {
    std::array<TwoRanks, 78> ranks{};
    int code = 0;
    for (int high = kAce; high >= 2; --high)
        for (int low = high - 1; low >= 1; --low)
            ranks[code++] = {static_cast<int8_t>(high), static_cast<int8_t>(low)};
    return ranks;
}();

// For each code 0..kNoHand: the ranks whose hole cards count (-1 for none;
// two-pair codes count both pairs) and the chances by that count h, 0 to 2.
// Rows that count nothing give h2 whatever h is. Worked out once, so that
// rating a seat is a look-up with no branch on random cards: the background
// tables rate thousands of seats a round.
struct CodeRating {
    int8_t rankA = -1, rankB = -1;
    std::array<Chances, 3> byCount{};
};

constexpr auto kRatingOfCode = [] {
    std::array<CodeRating, kNoHand + 1> ratings{};
    std::size_t row = 0;
    for (int code = 0; code <= kNoHand; ++code) {
        while (code > kCodeRows[row].last) ++row;
        const CodeRow& r = kCodeRows[row];
        CodeRating& rating = ratings[code];
        switch (r.counted) {
            case Counted::Trips:
                rating.rankA = static_cast<int8_t>(kAce - (code - kFirstTrips));
                break;
            case Counted::Pair:
                rating.rankA = static_cast<int8_t>(kAce - (code - kFirstPair));
                break;
            case Counted::TwoPair:
                rating.rankA = kTwoPairRanks[code - kFirstTwoPair].high;
                rating.rankB = kTwoPairRanks[code - kFirstTwoPair].low;
                break;
            case Counted::Nothing:
                break;
        }
        rating.byCount = r.counted == Counted::Nothing ? std::array{r.h2, r.h2, r.h2} : std::array{r.h0, r.h1, r.h2};
    }
    return ratings;
}();

Chances ChancesAfterFlop(const Game& g, int seat) {
    int code = g.SeatHandCode[seat];
    if (code < 1 || code > kNoHand) code = kNoHand;
    const CodeRating& rating = kRatingOfCode[code];
    const int r1 = RankOf(g.SeatCards[seat][1]);
    const int r2 = RankOf(g.SeatCards[seat][2]);
    const int h = (r1 == rating.rankA) + (r2 == rating.rankA) + (r1 == rating.rankB) + (r2 == rating.rankB);
    return rating.byCount[std::min(h, 2)];
}

// ---- The move: what differs between the shown table and a background table --
//
// Shown table: SeatBank (Single), one raise per seat per street, labels.
// Background: TableBank (Long), raises without limit, no view at all.

double StackOf(const Game& g, int s, bool background) {
    return background ? static_cast<double>(g.TableBank[s]) : static_cast<double>(g.SeatBank[s]);
}

bool MayRaise(const Game& g, int s, bool background) { return background || !g.SeatRaised[s]; }

void MarkRaised(Game& g, int s, bool background) {
    if (!background) g.SeatRaised[s] = true;
}

// The size of a bet with nothing to call: x * 5 percent of the stack, to
// whole hundreds. The shown table works it out in single precision, the
// background tables in double.
double BetSize(const Game& g, int s, int x, bool background) {
    if (background) {
        double share = x * 5 / 100.0;
        return 100.0 * RoundHalfEven(share * g.TableBank[s] / 100.0);
    }
    float share = static_cast<float>(x * 5) / 100.0f;
    return 100.0 * static_cast<double>(RoundHalfEven(share * g.SeatBank[s] / 100.0f));
}

// ---- Draws --------------------------------------------------------------------

float PercentDraw(Game& g) { return 100.0f * g.rnd.Rnd(); }

// Before the flop: the raise brings the bet to x + 1 times the high bet.
int RaiseMultipleDraw(Game& g) {
    int x = static_cast<int>(RoundHalfEven(9.0f * g.rnd.Rnd() + 1.0f));
    return x > 8 ? 10 : x;
}

// After the flop: x * 5 percent, 5 to 80 or the whole stack.
int ShareDraw(Game& g) {
    int x = static_cast<int>(RoundHalfEven(19.0f * g.rnd.Rnd() + 1.0f));
    return x > 16 ? 20 : x;
}

enum class Facing { Fold, Call, Raise };

// First draw a against CallChance; a seat that stays draws b against
// RaiseChance.
Facing DrawAgainstBet(Game& g, int s, bool background) {
    if (!(PercentDraw(g) <= g.CallChance)) return Facing::Fold;
    bool raises = PercentDraw(g) < g.RaiseChance && MayRaise(g, s, background);
    return raises ? Facing::Raise : Facing::Call;
}

// ---- Chips and words ----------------------------------------------------------

// Caps the amount at the stack, moves the chips and returns what moved.
int32_t PayIn(Game& g, int s, double wanted, bool background) {
    double stack = StackOf(g, s, background);
    int32_t amount =
        stack < wanted ? static_cast<int32_t>(std::llround(stack)) : static_cast<int32_t>(wanted);
    if (background) {
        g.TableBank[s] -= amount;
    } else {
        g.SeatBank[s] -= static_cast<float>(amount);
        ShowBank(g, s);
    }
    g.SeatBet[s] += amount;
    g.Pot += amount;
    if (!background) ShowPot(g);
    return amount;
}

// A seat with no chips left cannot fold.
void FoldUnlessBroke(Game& g, int s, bool background) {
    if (StackOf(g, s, background) > 0) {
        g.SeatInHand[s] = false;
        --g.PlayersInHand;
    }
}

std::string AllInWords(const Game& g, int s) { return g.SeatBank[s] <= 0 ? kAllIn : ""; }

// What a seat that faced a bet did, and its effect on the high bet.
void SettleFacingBet(Game& g, int s, int32_t amount, bool background) {
    if (g.SeatBet[s] > g.HighBetValue) {
        const int32_t before = g.HighBetValue;
        g.HighBetValue = g.SeatBet[s];
        g.HighBetIndex = static_cast<int16_t>(s);
        if (background) return;
        g.SeatRaised[s] = true;
        g.view.lblBet[s].text = "Raised to $" + Money(g.HighBetValue) + AllInWords(g, s);
        LogSeat(g, LogKind::Raise, s, g.HighBetValue - before, g.HighBetValue);
        return;
    }
    if (background) return;
    std::string& label = g.view.lblBet[s].text;
    if (amount > 0) {
        label = "Called $" + Money(amount) + AllInWords(g, s);
        LogSeat(g, LogKind::Call, s, amount);
    } else if (g.SeatInHand[s]) {
        label = "Checked";
        LogSeat(g, LogKind::Check, s);
    } else {
        g.view.icard[s].visible = false;
        g.view.icard[s + kSeats].visible = false;
        label = "Folded";
        LogSeat(g, LogKind::Fold, s);
        if (g.PlayersInHand == 1) {
            g.DisableTimer(TimersOfStreet(g.Street).bet);
            g.EnableTimer(TimerHandOver);
        }
    }
}

// What a seat with nothing to call did. The first check of a street takes
// HighBetIndex, which is what ends a round in which nobody bets.
void SettleNothingToCall(Game& g, int s, int32_t amount, bool background) {
    if (amount < 1) {
        if (g.HighBetIndex == 0) g.HighBetIndex = static_cast<int16_t>(s);
        if (!background) {
            g.view.lblBet[s].text = "Checked";
            LogSeat(g, LogKind::Check, s);
        }
        return;
    }
    const int32_t before = g.HighBetValue;
    const char* words = before != 0 ? "Raised to $" : "Bet $";
    MarkRaised(g, s, background);
    g.HighBetValue = g.SeatBet[s];
    g.HighBetIndex = static_cast<int16_t>(s);
    if (background) return;
    g.view.lblBet[s].text = words + Money(g.HighBetValue) + AllInWords(g, s);
    if (before != 0)
        LogSeat(g, LogKind::Raise, s, g.HighBetValue - before, g.HighBetValue);
    else
        LogSeat(g, LogKind::Bet, s, g.HighBetValue);
}

}  // namespace

void Game::ClassifyHoleCards() {
    for (int s = 1; s <= kSeats; ++s)
        StartingHandClass[s] = static_cast<int16_t>(HoleClassOf(SeatCards[s][1], SeatCards[s][2]));
}

void Game::RateHand(int seat) {
    Chances chances;
    if (CardsKnown == 2) {
        int cls = StartingHandClass[seat];
        chances = kClassChances[cls >= 1 && cls <= 8 ? cls : 8];
    } else {
        chances = ChancesAfterFlop(*this, seat);
    }
    CallChance = chances.call;
    RaiseChance = chances.raise;
}

void Game::OpponentMoveBeforeFlop(int s, bool background) {
    const int32_t H = HighBetValue;
    if (SeatBet[s] == H) return;

    double wanted = 0;
    switch (DrawAgainstBet(*this, s, background)) {
        case Facing::Raise: {
            int x = RaiseMultipleDraw(*this);
            int64_t raised = static_cast<int64_t>(x) * H + H - SeatBet[s];
            wanted = 100.0 * RoundHalfEven(static_cast<double>(raised) / 100.0);
            MarkRaised(*this, s, background);
            break;
        }
        case Facing::Call:
            wanted = H - SeatBet[s];
            break;
        case Facing::Fold:
            FoldUnlessBroke(*this, s, background);
            break;
    }
    int32_t amount = PayIn(*this, s, wanted, background);
    SettleFacingBet(*this, s, amount, background);
    if (!background) ShowBettingState(*this);
}

void Game::OpponentMoveAfterFlop(int s, bool background) {
    const int32_t c = HighBetValue - SeatBet[s];
    double wanted = 0;

    if (c == 0) {
        bool bets = PercentDraw(*this) <= RaiseChance && StackOf(*this, s, background) != 0 &&
                    MayRaise(*this, s, background);
        if (bets) {
            wanted = BetSize(*this, s, ShareDraw(*this), background);
            // On the turn and the river the drawn bet alone uses up the seat's
            // raise, even when it rounds to nothing; on the flop only a bet of
            // at least $1 does.
            if (Street != kFlop) MarkRaised(*this, s, background);
        }
        int32_t amount = PayIn(*this, s, wanted, background);
        SettleNothingToCall(*this, s, amount, background);
    } else {
        switch (DrawAgainstBet(*this, s, background)) {
            case Facing::Raise: {
                double share = ShareDraw(*this) * 5 / 100.0;
                double stack = StackOf(*this, s, background);
                wanted = 100.0 * RoundHalfEven(((stack - c) * share + c) / 100.0);
                MarkRaised(*this, s, background);
                break;
            }
            case Facing::Call:
                wanted = c;
                break;
            case Facing::Fold:
                FoldUnlessBroke(*this, s, background);
                break;
        }
        int32_t amount = PayIn(*this, s, wanted, background);
        SettleFacingBet(*this, s, amount, background);
    }
    if (!background) ShowBettingState(*this);
}

}  // namespace holdem
