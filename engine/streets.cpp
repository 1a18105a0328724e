// The chain of timers that carries a hand: the deal of the hole cards, the
// board streets and one seat's turn per tick of a Bet timer.
#include "engine/game_state.h"
#include "engine/log_events.h"
#include "engine/table_play.h"

namespace holdem {

namespace {

// The seat of deal position p: 0..7 the first time round from the seat after
// the button, 8..15 the second.
int DealSeat(const Game& g, int position) { return (g.ButtonSeat + position) % kSeats + 1; }

void ChangeStreet(Game& g, int street) {
    g.Street = static_cast<int16_t>(street);
    g.view.lblBet[g.PreviousSeat].text.clear();
    g.view.lblBet[g.CurrentSeat].text.clear();
    ShowArrowAt(g, 0);

    // The first seat in the hand after the button; all-in seats count.
    g.PreviousSeat = g.ButtonSeat;
    g.CurrentSeat = static_cast<int16_t>(NextSeat(g.ButtonSeat));
    for (int n = 0; n < kSeats && !g.SeatInHand[g.CurrentSeat]; ++n) {
        g.PreviousSeat = g.CurrentSeat;
        g.CurrentSeat = static_cast<int16_t>(NextSeat(g.CurrentSeat));
    }

    for (int seat = 1; seat <= kSeats; ++seat) {
        g.SeatRaised[seat] = false;
        g.SeatTotalBet[seat] += g.SeatBet[seat];
        g.SeatBet[seat] = 0;
        g.view.lblBet[seat].text.clear();
    }
    g.HighBetIndex = 0;
    g.HighBetValue = 0;
    g.BetAmount = 0;
}

// Turns over board image `image` and, when it is the street's last card,
// hands the action to the street's Bet timer.
void TurnBoardCard(Game& g, TimerId self, int image, bool last, int cardsKnown, TimerId bet) {
    PlayDealSound(g);
    g.view.icard[image].visible = true;
    ++g.CardsDealt;
    if (!last) return;
    g.DisableTimer(self);
    g.CardsKnown = static_cast<int16_t>(cardsKnown);
    LogBoard(g, g.Street, cardsKnown - 2);
    g.RankHands();
    ShowArrowAt(g, g.CurrentSeat);
    g.EnableTimer(bet);
}

// How the four Bet timers differ.
struct BetTimerRow {
    int street;
    TimerId self;
    TimerId next;
};

constexpr BetTimerRow kBetHole{1, TimerBetHole, TimerDealFlop};
constexpr BetTimerRow kBetFlop{2, TimerBetFlop, TimerDealTurn};
constexpr BetTimerRow kBetTurn{3, TimerBetTurn, TimerDealRiver};
constexpr BetTimerRow kBetRiver{4, TimerBetRiver, TimerHandOver};

// The large blind closing the round before the flop with nothing raised.
void LogOptionCheck(Game& g, int seat) {
    if (seat == g.BigBlindSeat && g.HighBetValue == 2 * g.SmallBlind) LogSeat(g, LogKind::Check, seat);
}

void RoundOver(Game& g, const BetTimerRow& row) {
    g.DisableTimer(row.self);
    g.EnableTimer(row.next);
}

// Step 7 of a tick: on to the next seat that can still act, or to an all-in
// seat holding the high bet. Returns false when no seat qualifies.
bool MoveToNextActor(Game& g) {
    g.PreviousSeat = g.CurrentSeat;
    g.CurrentSeat = static_cast<int16_t>(NextSeat(g.CurrentSeat));
    for (int n = 0; n < kSeats; ++n) {
        int s = g.CurrentSeat;
        if (g.SeatInHand[s] && (g.SeatBank[s] > 0 || s == g.HighBetIndex)) return true;
        g.CurrentSeat = static_cast<int16_t>(NextSeat(s));
    }
    return false;
}

// One seat's turn. Returns when the tick is over; the caller refreshes the
// hidden mirrors.
void BetTickSteps(Game& g, const BetTimerRow& row) {
    const bool beforeFlop = row.street == kPreFlop;
    View& v = g.view;
    if (g.HighBetIndex != g.PreviousSeat) v.lblBet[g.PreviousSeat].text.clear();

    if (!g.SeatInHand[g.CurrentSeat]) {
        g.PreviousSeat = g.CurrentSeat;
        g.CurrentSeat = static_cast<int16_t>(NextSeat(g.CurrentSeat));
        return;
    }
    ShowArrowAt(g, g.CurrentSeat);

    if (g.CurrentSeat == 1) {
        // Before the flop the large blind's option lets the user act although
        // the high bet is the user's own.
        bool closed = g.HighBetIndex == 1 && (!beforeFlop || g.HighBetValue > 2 * g.SmallBlind);
        if (closed)
            RoundOver(g, row);
        else
            g.OpenUserTurn();
        return;
    }

    g.RateHand(g.CurrentSeat);
    if (g.CurrentSeat == g.HighBetIndex) {
        v.lblBet[g.PreviousSeat].text.clear();
        v.lblBet[g.CurrentSeat].text = beforeFlop ? "Checked" : "";
        if (beforeFlop) LogOptionCheck(g, g.CurrentSeat);
        RoundOver(g, row);
        return;
    }

    if (beforeFlop)
        g.OpponentMoveBeforeFlop(g.CurrentSeat, false);
    else
        g.OpponentMoveAfterFlop(g.CurrentSeat, false);
    // The move has already switched to TimerHandOver.
    if (g.PlayersInHand <= 1) return;

    if (!MoveToNextActor(g)) {
        // Only all-in seats are left and the high bet lies with a seat that has
        // folded (after the user's fold): nobody can close the round, so it
        // closes here and the hand runs out at the normal pace.
        RoundOver(g, row);
        return;
    }
    if (g.CurrentSeat != g.HighBetIndex) return;

    if (beforeFlop) {
        // The user in the large blind still gets the option on the next tick.
        if (g.HighBetValue == 2 * g.SmallBlind && g.CurrentSeat == 1) return;
        v.lblBet[g.CurrentSeat].text = g.CurrentSeat == g.BigBlindSeat ? "Checked" : "";
        LogOptionCheck(g, g.CurrentSeat);
    } else {
        v.lblBet[g.CurrentSeat].text.clear();
    }
    RoundOver(g, row);
}

void BetTick(Game& g, const BetTimerRow& row) {
    BetTickSteps(g, row);
    ShowBettingState(g);
}

}  // namespace

void Game::TimerDealHole_Timer() {
    // Seats out of the hand cost no tick.
    for (int n = 0; n < kSeats; ++n) {
        if (SeatInHand[DealSeat(*this, CardsDealt)]) break;
        if (++CardsDealt >= kHoleCardsDealt) break;
    }
    if (CardsDealt < kHoleCardsDealt) {
        PlayDealSound(*this);
        int seat = DealSeat(*this, CardsDealt);
        view.icard[CardsDealt < kSeats ? seat : seat + kSeats].visible = true;
        ++CardsDealt;
    }
    if (CardsDealt < kHoleCardsDealt) return;

    CardsDealt = kHoleCardsDealt;
    view.lblGoodLuck.visible = false;
    view.lblBlind.visible = false;
    DisableTimer(TimerDealHole);
    ShowArrowAt(*this, CurrentSeat);
    ClassifyHoleCards();
    CardsKnown = 2;
    EnableTimer(TimerBetHole);
    ShowBettingState(*this);
}

void Game::TimerDealFlop_Timer() {
    if (CardsDealt == kHoleCardsDealt) ChangeStreet(*this, 2);
    // icard(17) at 16, icard(18) at 17, icard(19) at 18.
    int image = CardsDealt + 1;
    TurnBoardCard(*this, TimerDealFlop, image, image == 19, 5, TimerBetFlop);
    ShowBettingState(*this);
}

void Game::TimerDealTurn_Timer() {
    ChangeStreet(*this, 3);
    TurnBoardCard(*this, TimerDealTurn, 20, true, 6, TimerBetTurn);
    ShowBettingState(*this);
}

void Game::TimerDealRiver_Timer() {
    ChangeStreet(*this, 4);
    TurnBoardCard(*this, TimerDealRiver, 21, true, 7, TimerBetRiver);
    ShowBettingState(*this);
}

void Game::TimerBetHole_Timer() { BetTick(*this, kBetHole); }
void Game::TimerBetFlop_Timer() { BetTick(*this, kBetFlop); }
void Game::TimerBetTurn_Timer() { BetTick(*this, kBetTurn); }
void Game::TimerBetRiver_Timer() { BetTick(*this, kBetRiver); }

void Game::FireTimer(TimerId id) {
    switch (id) {
        case TimerDealHole:
            TimerDealHole_Timer();
            break;
        case TimerBetHole:
            TimerBetHole_Timer();
            break;
        case TimerDealFlop:
            TimerDealFlop_Timer();
            break;
        case TimerBetFlop:
            TimerBetFlop_Timer();
            break;
        case TimerDealTurn:
            TimerDealTurn_Timer();
            break;
        case TimerBetTurn:
            TimerBetTurn_Timer();
            break;
        case TimerDealRiver:
            TimerDealRiver_Timer();
            break;
        case TimerBetRiver:
            TimerBetRiver_Timer();
            break;
        case TimerHandOver:
            TimerHandOver_Timer();
            break;
        case kTimerCount:
            break;
    }
}

}  // namespace holdem
