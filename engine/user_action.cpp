// The user's turn: the four play buttons and what each press does.
#include <string>

#include "engine/game_state.h"
#include "engine/log_events.h"
#include "engine/table_play.h"

namespace holdem {

namespace {

enum PlayButton { kCheck = 1, kCall = 2, kBetRaise = 3, kFold = 4 };

void ShowPlayButtons(Game& g, bool visible) {
    for (int i = kCheck; i <= kFold; ++i) g.view.cmdPlay[i].visible = visible;
}

// Moves the turn on to the next seat still holding cards; all-in seats count.
void GoToNextSeatInHand(Game& g) {
    for (int n = 0; n < kSeats; ++n) {
        g.PreviousSeat = g.CurrentSeat;
        g.CurrentSeat = static_cast<int16_t>(NextSeat(g.CurrentSeat));
        if (g.SeatInHand[g.CurrentSeat]) break;
    }
}

// Seat 2 acts right after the user, so a high bet there also ends the round.
bool RoundEndsWithUser(const Game& g) { return g.HighBetIndex == 1 || g.HighBetIndex == 2; }

void ContinueRound(Game& g) {
    GoToNextSeatInHand(g);
    g.EnableTimer(TimersOfStreet(g.Street).bet);
}

void EndRoundOrContinue(Game& g) {
    if (RoundEndsWithUser(g))
        g.EnableTimer(TimersOfStreet(g.Street).next);
    else
        ContinueRound(g);
}

void MoveUserChips(Game& g, int32_t amount) {
    g.SeatBank[1] -= static_cast<float>(amount);
    ShowBank(g, 1);
    g.Pot += amount;
    ShowPot(g);
    g.SeatBet[1] += amount;
}

void Refuse(Game& g, const char* text) {
    g.platform->MessageBox(text, kGameTitle, MsgIcon::Information, MsgButtons::OK);
}

void Check(Game& g) {
    g.view.lblBet[1].text = "Checked";
    LogSeat(g, LogKind::Check, 1);
    if (RoundEndsWithUser(g)) {
        g.EnableTimer(TimersOfStreet(g.Street).next);
        return;
    }
    // The first check of a street marks where the round ends.
    if (g.HighBetIndex == 0) g.HighBetIndex = 1;
    ContinueRound(g);
}

void Call(Game& g) {
    int32_t amount = g.HighBetValue - g.SeatBet[1];
    std::string label;
    if (g.SeatBank[1] < static_cast<float>(amount)) {
        amount = WholeDollars(g.SeatBank[1]);
        label = "Called $" + Money(amount) + kAllIn;
    } else {
        label = "Called $" + Money(amount);
    }
    g.view.lblBet[1].text = label;
    MoveUserChips(g, amount);
    LogSeat(g, LogKind::Call, 1, amount);
    EndRoundOrContinue(g);
}

// Returns false when the press changes nothing: a refusal or a void dialog.
bool BetOrRaise(Game& g) {
    if (g.SeatBank[1] == 0) {
        Refuse(g, "You're all in. You have no more chips to bet!");
        return false;
    }
    if (g.HighBetIndex == 1 && (g.Street > kPreFlop || g.HighBetValue > 2 * g.SmallBlind)) {
        Refuse(g, "You cannot bet again this round.");
        return false;
    }
    g.BetAmount = 0;
    g.MaxBetAmount = WholeDollars(g.SeatBank[1]);
    g.ToCallAmount = g.HighBetValue - g.SeatBet[1];
    if (!(g.SeatBank[1] > static_cast<float>(g.ToCallAmount))) {
        Refuse(g, "You do not have enough chips to raise!");
        return false;
    }

    g.BetAmount = g.platform->ShowBetAmount(
        BetAmountRequest{g.HighBetIndex, g.HighBetValue, g.ToCallAmount, g.MaxBetAmount});
    // The dialog lets nothing else out, but an amount beyond the stack from any
    // other source is treated as a void press rather than trusted.
    if (g.BetAmount <= 0 || g.BetAmount > g.MaxBetAmount) {
        g.BetAmount = 0;
        return false;
    }

    const char* allIn = g.SeatBank[1] == static_cast<float>(g.BetAmount) ? kAllIn : "";
    const bool raise = g.HighBetValue != 0;
    if (raise) {
        g.HighBetIndex = 1;
        g.HighBetValue = g.SeatBet[1] + g.BetAmount;
        g.RaiseByAmount = g.BetAmount - g.ToCallAmount;
        g.view.lblBet[1].text = "Raise $" + Money(g.RaiseByAmount) + " to $" + Money(g.HighBetValue) + allIn;
    } else {
        g.view.lblBet[1].text = "Bet $" + Money(g.BetAmount) + allIn;
        g.HighBetValue = g.BetAmount;
        g.HighBetIndex = 1;
    }
    MoveUserChips(g, g.BetAmount);
    if (raise)
        LogSeat(g, LogKind::Raise, 1, g.RaiseByAmount, g.HighBetValue);
    else
        LogSeat(g, LogKind::Bet, 1, g.BetAmount);
    ContinueRound(g);
    return true;
}

// After the user's fold the high bet passes to the highest stake among seats
// 2..8, ties to the lower seat. This looks at SeatBet alone and may land on a
// seat that has folded; the Bet tick closes a round that nobody can close.
void FindNewHighBet(Game& g) {
    g.HighBetValue = 0;
    for (int s = 2; s <= kSeats; ++s) {
        if (g.SeatBet[s] > g.HighBetValue) {
            g.HighBetIndex = static_cast<int16_t>(s);
            g.HighBetValue = g.SeatBet[s];
        }
    }
}

void Fold(Game& g) {
    g.SeatInHand[1] = false;
    g.view.icard[1].visible = false;
    g.view.icard[9].visible = false;
    g.view.lblBet[1].text = "Folded";
    LogSeat(g, LogKind::Fold, 1);
    --g.PlayersInHand;
    if (g.PlayersInHand <= 1) {
        g.EnableTimer(TimerHandOver);
        return;
    }
    if (RoundEndsWithUser(g)) FindNewHighBet(g);
    ContinueRound(g);
}

}  // namespace

void Game::OpenUserTurn() {
    DisableTimer(TimersOfStreet(Street).bet);
    for (int i = kCheck; i <= kFold; ++i) view.cmdPlay[i].enabled = true;
    view.lblBet[1].text = "Amount to Call: $" + Money(HighBetValue - SeatBet[1]);

    if (HighBetValue > SeatBet[1] && SeatBank[1] > 0) {
        view.cmdPlay[kCheck].enabled = false;
    } else if (Street > kPreFlop) {
        view.cmdPlay[kCall].enabled = false;
    } else {
        // Seat 1 is the large blind when the button is on seat 7 (with seats 8
        // and 1 in the hand); the test reads ButtonSeat, not BigBlindSeat.
        view.cmdPlay[kCall].enabled = false;
        if (ButtonSeat != 7) view.cmdPlay[kBetRaise].enabled = false;
    }
    ShowPlayButtons(*this, true);
    ShowBettingState(*this);
}

void Game::cmdPlay_Click(int index) {
    // Only a shown, enabled button can be pressed.
    if (index < kCheck || index > kFold) return;
    if (!view.cmdPlay[index].visible || !view.cmdPlay[index].enabled) return;
    if (view.mnuSound.checked) platform->PlaySound("BUTTONCLICK");

    bool done = true;
    switch (index) {
        case kCheck:
            Check(*this);
            break;
        case kCall:
            Call(*this);
            break;
        case kBetRaise:
            done = BetOrRaise(*this);
            break;
        case kFold:
            Fold(*this);
            break;
    }
    if (done) ShowPlayButtons(*this, false);
    ShowBettingState(*this);
}

}  // namespace holdem
