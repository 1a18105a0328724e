// One hand at every other table of a tournament, out of sight: the shown
// table's rule in all eight seats, the whole hand in one call, one pot.
#include <algorithm>

#include "engine/game_state.h"

namespace holdem {

namespace {

constexpr int kMaxTurns = 1000;
constexpr int kBoardCards = 5;
constexpr int16_t kFirstStreetCardsKnown[] = {5, 6, 7};  // flop, turn, river
constexpr int32_t kChipUnit = 100;

// First seat after `from` that holds cards, looking at eight seats at most.
int NextSeatInHand(const std::array<bool, 9>& inHand, int from) {
    int seat = from;
    for (int n = 0; n < kSeats; ++n) {
        seat = NextSeat(seat);
        if (inHand[seat]) break;
    }
    return seat;
}

// A blind of `amount`, or the whole stack when it holds less.
void PostBlind(int32_t& bank, int32_t& seatBet, int32_t& pot, int32_t amount) {
    int32_t paid = std::min(bank, amount);
    bank -= paid;
    seatBet += paid;
    pot += paid;
}

}  // namespace

void Game::PlayOtherTables() {
    if (TablesInPlay < 2) return;
    for (int t = 2; t <= TablesInPlay; ++t) PlayTableHand(t);
}

void Game::PlayTableHand(int t) {
    CardsKnown = 0;
    Pot = 0;
    HighBetIndex = 0;
    HighBetValue = 0;
    PlayersInHand = 0;
    for (int s = 1; s <= kSeats; ++s) {
        StartingHandClass[s] = kUnclassified;
        SeatHandCode[s] = kNoHand;
        SeatHandName[s].clear();
        SeatBet[s] = 0;
        SeatTotalBet[s] = 0;
        WinnerSeats[s] = 0;
        TableBank[s] = RosterBank[RosterPosition(t, s)];
        SeatInHand[s] = TableBank[s] > 0;
        if (SeatInHand[s]) ++PlayersInHand;
    }
    // A lone player sits out: no blinds, no button move, no draw. An empty
    // table, which balancing never leaves in play, is treated the same.
    if (PlayersInHand <= 1) return;

    int16_t& button = TableButton[t];
    for (int n = 0; n < kSeats; ++n) {
        button = static_cast<int16_t>(NextSeat(button));  // 0 before the first hand gives 1
        if (SeatInHand[button]) break;
    }
    SmallBlindSeat = static_cast<int16_t>(NextSeatInHand(SeatInHand, button));
    BigBlindSeat = static_cast<int16_t>(NextSeatInHand(SeatInHand, SmallBlindSeat));

    // Two players: the large blind is first and closes the round at once, so
    // nobody bets before the flop.
    if (PlayersInHand == 2) {
        PreviousSeat = SmallBlindSeat;
        CurrentSeat = BigBlindSeat;
    } else if (PlayersInHand == 3) {
        PreviousSeat = BigBlindSeat;
        CurrentSeat = button;
    } else {
        PreviousSeat = BigBlindSeat;
        CurrentSeat = static_cast<int16_t>(NextSeatInHand(SeatInHand, BigBlindSeat));
    }

    PostBlind(TableBank[SmallBlindSeat], SeatBet[SmallBlindSeat], Pot, SmallBlind);
    PostBlind(TableBank[BigBlindSeat], SeatBet[BigBlindSeat], Pot, 2 * SmallBlind);
    HighBetIndex = BigBlindSeat;
    HighBetValue = 2 * SmallBlind;

    for (int s = 1; s <= kSeats; ++s) std::fill(std::begin(SeatCards[s]), std::end(SeatCards[s]), int16_t{0});
    ShuffleDeck();

    // Deck[0..7] go once round from the seat after the button, empty seats
    // included; Deck[8..15] a second time; Deck[16..20] is everyone's board.
    int seat = button;
    for (int p = 1; p <= kSeats; ++p) {
        seat = NextSeat(seat);
        SeatCards[seat][1] = Deck[p - 1];
        SeatCards[seat][2] = Deck[p + kSeats - 1];
        for (int b = 0; b < kBoardCards; ++b) SeatCards[seat][3 + b] = Deck[kBoardFirst + b];
    }

    ClassifyHoleCards();
    CardsKnown = 2;
    PlayTableRound(true);

    for (int16_t known : kFirstStreetCardsKnown) {
        if (PlayersInHand <= 1) break;
        PreviousSeat = button;
        CurrentSeat = static_cast<int16_t>(NextSeat(button));
        for (int n = 0; n < kSeats && !SeatInHand[CurrentSeat]; ++n) {
            PreviousSeat = CurrentSeat;
            CurrentSeat = static_cast<int16_t>(NextSeat(CurrentSeat));
        }
        for (int s = 1; s <= kSeats; ++s) {
            SeatTotalBet[s] += SeatBet[s];
            SeatBet[s] = 0;
        }
        HighBetIndex = 0;
        HighBetValue = 0;
        CardsKnown = known;
        RankHands();
        PlayTableRound(false);
    }

    SettleTableHand(t);
}

void Game::PlayTableRound(bool beforeFlop) {
    for (int turn = 1; turn <= kMaxTurns; ++turn) {
        int s = CurrentSeat;
        if (SeatInHand[s]) {
            if (s == HighBetIndex) return;
            RateHand(s);
            if (beforeFlop)
                OpponentMoveBeforeFlop(s, true);
            else
                OpponentMoveAfterFlop(s, true);
            if (PlayersInHand == 1) return;
        }
        // Folded and all-in seats are passed over, unless the all-in seat
        // holds the high bet and so closes the round.
        PreviousSeat = CurrentSeat;
        CurrentSeat = static_cast<int16_t>(NextSeat(CurrentSeat));
        for (int n = 0; n < kSeats; ++n) {
            if (SeatInHand[CurrentSeat] && (TableBank[CurrentSeat] > 0 || CurrentSeat == HighBetIndex)) break;
            CurrentSeat = static_cast<int16_t>(NextSeat(CurrentSeat));
        }
        if (CurrentSeat == HighBetIndex) return;
    }
}

void Game::SettleTableHand(int t) {
    int winnerCount = 0;
    int32_t topStake = 0;
    int32_t paidBack = 0;
    int32_t totalPaid = 0;

    for (int s = 1; s <= kSeats; ++s) {
        SeatTotalBet[s] += SeatBet[s];
        if (!SeatInHand[s]) continue;
        // The code alone decides; kickers are never looked at here.
        if (winnerCount == 0 || SeatHandCode[s] < SeatHandCode[WinnerSeats[1]]) {
            WinnerSeats[1] = static_cast<int16_t>(s);
            winnerCount = 1;
        } else if (SeatHandCode[s] == SeatHandCode[WinnerSeats[1]]) {
            ++winnerCount;
            WinnerSeats[winnerCount] = static_cast<int16_t>(s);
        }
    }

    const int32_t totalPot = Pot;
    for (int i = 1; i <= winnerCount; ++i) topStake = std::max(topStake, SeatTotalBet[WinnerSeats[i]]);

    // One pot: a stake above every winner's comes back to a seat still in;
    // what a folded seat put in stays for the winners.
    for (int s = 1; s <= kSeats; ++s) {
        if (SeatInHand[s] && SeatTotalBet[s] > topStake) {
            int32_t d = SeatTotalBet[s] - topStake;
            TableBank[s] += d;
            paidBack += d;
            totalPaid += d;
            Pot -= d;
        }
    }

    // Hundreds that do not divide evenly go one each to the lowest winning seats.
    if (winnerCount > 1) {
        for (int i = 1; i <= winnerCount; ++i) {
            double share = static_cast<double>(Pot) / winnerCount;
            if (RoundHalfEven(share / kChipUnit) * kChipUnit == share) break;
            TableBank[WinnerSeats[i]] += kChipUnit;
            totalPaid += kChipUnit;
            Pot -= kChipUnit;
        }
    }

    const double share = static_cast<double>(Pot) / std::max(winnerCount, 1);
    for (int i = 1; i <= winnerCount; ++i) {
        int32_t& bank = TableBank[WinnerSeats[i]];
        bank = static_cast<int32_t>(RoundHalfEven(static_cast<double>(bank) + share));
        totalPaid = static_cast<int32_t>(RoundHalfEven(static_cast<double>(totalPaid) + share));
    }

    for (int s = 1; s <= kSeats; ++s) RosterBank[RosterPosition(t, s)] = TableBank[s];

    if (totalPot != totalPaid) {
        platform->MessageBox("Total Pot: " + Plain(totalPot) + "   Total Paid: " + Plain(totalPaid) +
                                 "   Paid Back: " + Plain(paidBack) + "   Winners: " + Plain(winnerCount),
                             "", MsgIcon::None, MsgButtons::OK);
    }
}

}  // namespace holdem
