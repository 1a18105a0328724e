#include "engine/table_play.h"

namespace holdem {

void ShowBettingState(Game& g) {
    g.view.lblHBI.text = Plain(g.HighBetIndex);
    g.view.lblHBV.text = Plain(g.HighBetValue);
    g.view.lblPrevious.text = Plain(g.PreviousSeat);
}

void ShowBank(Game& g, int seat) { g.view.lblBank[seat].text = Money(WholeDollars(g.SeatBank[seat])); }

void ShowPot(Game& g) { g.view.lblPot.text = Money(g.Pot); }

void ShowArrowAt(Game& g, int seat) {
    for (int s = 1; s <= kSeats; ++s) g.view.iArrow[s].visible = (s == seat);
}

void PlayDealSound(Game& g) {
    if (g.view.mnuSound.checked) g.platform->PlaySound("DEAL");
}

}  // namespace holdem
