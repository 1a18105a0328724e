// StartHand: from an idle table to a hand in progress, in one step. Every
// card of the hand, the board included, is fixed here; the timers only turn
// them over.
#include <string>

#include "engine/game_state.h"
#include "engine/log_events.h"
#include "engine/table_play.h"

namespace holdem {

namespace {

// The first seat in the hand after `from`, looking at eight seats at most.
int NextSeatInHand(const Game& g, int from) {
    int seat = from;
    for (int n = 0; n < kSeats; ++n) {
        seat = NextSeat(seat);
        if (g.SeatInHand[seat]) break;
    }
    return seat;
}

void HideBetweenHandsControls(Game& g) {
    g.view.mnuSave.enabled = false;
    g.view.mnuSaveAs.enabled = false;
    g.view.cmdDeal.visible = false;
    g.view.cmdStandings.visible = false;
    g.view.cmdFloor.visible = false;
    for (int i = 1; i <= 4; ++i) g.view.cmdPlay[i].visible = false;
    g.view.lblBlind.visible = true;
}

void ResetHand(Game& g) {
    ++g.HandsPlayed;
    g.Street = kPreFlop;
    g.CardsDealt = 0;
    g.Pot = 0;
    g.HighBetIndex = 0;
    g.HighBetValue = 0;
    g.PlayersInHand = 0;
    g.HandIsOver = false;
    g.view.lblPotLabel.visible = true;
    g.view.lblPot.visible = true;
}

void ResetSeat(Game& g, int seat) {
    View& v = g.view;
    v.lblName[seat].text = g.RosterName[seat];
    g.SeatBank[seat] = static_cast<float>(g.RosterBank[seat]);
    ShowBank(g, seat);

    v.iArrow[seat].visible = false;
    v.lblPaid[seat].visible = false;
    v.lblPCardIndex[seat].visible = false;
    v.lblPCardValue[seat].visible = false;
    v.lblBet[seat].text.clear();
    v.lblBet[seat].visible = true;

    g.StartingHandClass[seat] = kUnclassified;
    g.SeatHandCode[seat] = kNoHand;
    g.SeatHandName[seat].clear();
    g.SeatRaised[seat] = false;
    g.SeatBet[seat] = 0;
    g.SeatTotalBet[seat] = 0;
    g.WinnerSeats[seat] = 0;

    bool hasChips = g.SeatBank[seat] > 0;
    g.SeatInHand[seat] = hasChips;
    if (hasChips) ++g.PlayersInHand;
    v.lblName[seat].visible = hasChips;
    v.lblBankDollarSign[seat].visible = hasChips;
    v.lblBank[seat].visible = hasChips;
}

void PlaceButtonAndBlinds(Game& g) {
    for (int n = 0; n < kSeats; ++n) {
        g.ButtonSeat = static_cast<int16_t>(NextSeat(g.ButtonSeat));
        if (g.SeatInHand[g.ButtonSeat]) break;
    }
    g.SmallBlindSeat = static_cast<int16_t>(NextSeatInHand(g, g.ButtonSeat));
    g.BigBlindSeat = static_cast<int16_t>(NextSeatInHand(g, g.SmallBlindSeat));
}

void ChooseFirstToAct(Game& g) {
    g.PreviousSeat = g.BigBlindSeat;
    if (g.PlayersInHand == 2)
        g.CurrentSeat = g.SmallBlindSeat;
    else if (g.PlayersInHand == 3)
        g.CurrentSeat = g.ButtonSeat;
    else
        g.CurrentSeat = static_cast<int16_t>(NextSeatInHand(g, g.BigBlindSeat));
}

// A stack smaller than the blind goes in whole; one exactly equal to it goes
// in without the words " All In".
void PostBlind(Game& g, int seat, int32_t blind, const char* words) {
    std::string& label = g.view.lblBet[seat].text;
    if (g.SeatBank[seat] < static_cast<float>(blind)) {
        int32_t stack = WholeDollars(g.SeatBank[seat]);
        g.Pot += stack;
        g.SeatBet[seat] += stack;
        g.SeatBank[seat] = 0;
        label = words + Money(stack) + kAllIn;
    } else {
        g.SeatBank[seat] -= static_cast<float>(blind);
        g.Pot += blind;
        g.SeatBet[seat] += blind;
        label = words + Money(blind);
    }
    ShowBank(g, seat);
}


// Deck[p - 1] and Deck[p + 7] go to the seat p places after the button, empty
// or not; Deck[16..20] is the board of every seat.
void LayOutCards(Game& g) {
    for (int p = 1; p <= kSeats; ++p) {
        int seat = (g.ButtonSeat + p - 1) % kSeats + 1;
        g.SeatCards[seat][1] = g.Deck[p - 1];
        g.SeatCards[seat][2] = g.Deck[p + 7];
    }
    for (int seat = 1; seat <= kSeats; ++seat)
        for (int k = 3; k <= 7; ++k) g.SeatCards[seat][k] = g.Deck[kBoardFirst + k - 3];
}

void PictureTheCards(Game& g) {
    auto& icard = g.view.icard;
    for (int i = 1; i <= 16; ++i) icard[i].picture = 0;
    for (int i = 17; i <= 21; ++i) icard[i].picture = g.Deck[kBoardFirst + i - 17];
    icard[1].picture = g.SeatCards[1][1];
    icard[9].picture = g.SeatCards[1][2];
}

}  // namespace

// One draw per card: j = Round(k * Rnd) in single precision, so the two end
// values of j carry half the weight of the others. The draws are taken in
// one go so that the generator stays in registers.
void Game::ShuffleDeck() {
    static constexpr auto kFreshPool = [] {
        std::array<int16_t, kDeckSize> pool{};
        for (int i = 0; i < kDeckSize; ++i) pool[i] = static_cast<int16_t>(i + 1);
        return pool;
    }();
    CardPool = kFreshPool;
    rnd.Randomize();
    rnd.Randomize();
    rnd.Randomize();
    float draws[kDeckSize];
    rnd.Rnd(draws);
    for (int i = 0; i < kDeckSize; ++i) {
        int k = kDeckSize - 1 - i;
        int j = static_cast<int>(RoundHalfEven(static_cast<float>(k) * draws[i]));
        Deck[i] = CardPool[j];
        CardPool[j] = CardPool[k];
    }
}

void Game::StartHand() {
    HideBetweenHandsControls(*this);
    ResetHand(*this);
    for (int seat = 1; seat <= kSeats; ++seat) ResetSeat(*this, seat);
    PlaceButtonAndBlinds(*this);
    ChooseFirstToAct(*this);

    PostBlind(*this, SmallBlindSeat, SmallBlind, "Small Blind: $");
    PostBlind(*this, BigBlindSeat, 2 * SmallBlind, "Large Blind: $");
    ShowPot(*this);
    // A short large blind still stands as the full bet to match.
    HighBetIndex = BigBlindSeat;
    HighBetValue = 2 * SmallBlind;

    for (int seat = 1; seat <= kSeats; ++seat) view.iButton[seat].visible = (seat == ButtonSeat);

    for (auto& cards : SeatCards)
        for (auto& card : cards) card = 0;
    for (int i = 1; i <= 21; ++i) view.icard[i].visible = false;

    ShuffleDeck();
    LayOutCards(*this);
    PictureTheCards(*this);
    LogHandStart(*this);
    LogBlinds(*this);

    view.lblGoodLuck.visible = true;
    ShowBettingState(*this);
    EnableTimer(TimerDealHole);
}

void Game::cmdDeal_Click() { StartHand(); }

}  // namespace holdem
