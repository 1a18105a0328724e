// TimerHandOver, first half: the end of a hand on the shown table. Closes the
// betting, orders the seats by the showdown, cuts the stakes into at most five
// layers and pays each to the best seats that can claim it, then shows the
// result and writes the stacks back to the roster.
#include <cmath>
#include <string>
#include <utility>

#include "engine/game_state.h"
#include "engine/log_events.h"

namespace holdem {

namespace {

constexpr int kLevels = 4;
constexpr int kLayers = 5;
constexpr int32_t kChipUnit = 100;  // the smallest amount a split hands out

// Working values of one settlement.
struct Settlement {
    int FinishOrder[kSeats + 1] = {};
    bool TiedWithNext[kSeats + 1] = {};
    int FinishPlace[kSeats + 1] = {};
    int32_t Level[kLevels + 1] = {};  // Level1..Level4, 0 when absent
    int32_t Layer[kLayers + 1] = {};  // Layer1 is the main pot
    int32_t Paid[kSeats + 1] = {};
    int32_t TotalBet = 0;
    int32_t TotalPaid = 0;
    int32_t TableTotal = 0;
};

int32_t Whole(double amount) { return static_cast<int32_t>(RoundHalfEven(amount)); }
int32_t Whole(float amount) { return static_cast<int32_t>(RoundHalfEven(amount)); }

void CloseBetting(Game& g, Settlement& w) {
    g.DisableTimer(TimerHandOver);
    for (int s = 1; s <= kSeats; ++s) {
        g.view.iArrow[s].visible = false;
        g.view.lblBet[s].text.clear();
        g.SeatTotalBet[s] += g.SeatBet[s];
        w.TotalBet += g.SeatTotalBet[s];
        if (!g.SeatInHand[s]) {
            g.SeatHandCode[s] = kNoHand;
            g.view.icard[s].visible = false;
            g.view.icard[s + kSeats].visible = false;
        }
    }
    g.HandIsOver = true;
    for (int s = 1; s <= kSeats; ++s) g.BreakdownBet[s] = g.SeatTotalBet[s];
}

// A selection by the showdown comparison. Tied seats stay in the order the
// swaps leave them, which need not be seat order.
void OrderFinish(const Game& g, Settlement& w) {
    for (int p = 1; p <= kSeats; ++p) w.FinishOrder[p] = p;
    for (int p = 1; p <= kSeats; ++p) {
        int best = 0;
        bool tie = false;
        for (int j = p; j <= kSeats; ++j) {
            if (!g.SeatInHand[w.FinishOrder[j]]) continue;
            if (best == 0) {
                best = j;
                continue;
            }
            int cmp = g.CompareShowdown(w.FinishOrder[j], w.FinishOrder[best]);
            if (cmp > 0) {
                best = j;
                tie = false;
            } else if (cmp == 0) {
                tie = true;
            }
        }
        w.TiedWithNext[p] = tie;
        if (best != 0 && best != p) std::swap(w.FinishOrder[p], w.FinishOrder[best]);
    }
    w.FinishPlace[1] = 1;
    for (int k = 2; k <= kSeats; ++k) w.FinishPlace[k] = w.TiedWithNext[k - 1] ? w.FinishPlace[k - 1] : k;
}

void ShowHands(Game& g) {
    if (g.PlayersInHand <= 1) return;
    for (int s = 1; s <= kSeats; ++s) {
        g.view.icard[s].picture = g.SeatCards[s][1];
        g.view.icard[s + kSeats].picture = g.SeatCards[s][2];
    }
    for (int s = 1; s <= kSeats; ++s)
        if (g.SeatInHand[s]) g.view.lblBet[s].text = g.SeatHandName[s];
}

// The lowest four different stakes of the seats in the hand, rising.
void FindLevels(const Game& g, Settlement& w) {
    int count = 0;
    for (int s = 1; s <= kSeats; ++s) {
        if (!g.SeatInHand[s]) continue;
        int32_t stake = g.SeatTotalBet[s];
        bool known = false;
        for (int k = 1; k <= count; ++k) known = known || w.Level[k] == stake;
        if (known || (count == kLevels && stake > w.Level[kLevels])) continue;
        if (count < kLevels) ++count;
        int k = count;
        while (k > 1 && w.Level[k - 1] > stake) {
            w.Level[k] = w.Level[k - 1];
            --k;
        }
        w.Level[k] = stake;
    }
}

// Every seat's stake, folded seats' too, goes into the layers it reaches.
void CutLayers(const Game& g, Settlement& w) {
    for (int s = 1; s <= kSeats; ++s) {
        int32_t stake = g.SeatTotalBet[s];
        int top = 0;
        for (int k = kLevels; k >= 1 && top == 0; --k)
            if (w.Level[k] > 0 && stake >= w.Level[k]) top = k;
        if (top == 0) {
            w.Layer[1] += stake;
            continue;
        }
        w.Layer[top + 1] += stake - w.Level[top];
        for (int m = top; m >= 2; --m) w.Layer[m] += w.Level[m] - w.Level[m - 1];
        w.Layer[1] += w.Level[1];
    }
}

bool CanClaim(const Game& g, const Settlement& w, int layer, int seat) {
    if (!g.SeatInHand[seat]) return false;
    int32_t stake = g.SeatTotalBet[seat];
    if (layer == kLayers) return stake > w.Level[kLevels];
    return w.Level[layer] == 0 || stake >= w.Level[layer];
}

bool SplitsInHundreds(int32_t layer, int winners) {
    return std::fmod(static_cast<double>(layer) / winners, static_cast<double>(kChipUnit)) == 0.0;
}

// The layer to the seats of this place that can claim it: first the odd
// hundreds one by one in finish order, then equal shares.
void PayLayer(Game& g, Settlement& w, int place, int layer) {
    auto isWinner = [&](int j) {
        return w.FinishPlace[j] == place && CanClaim(g, w, layer, w.FinishOrder[j]);
    };
    int n = 0;
    for (int j = place; j <= g.PlayersInHand; ++j) n += isWinner(j) ? 1 : 0;
    int32_t& amount = w.Layer[layer];
    if (n == 0 || amount == 0) return;

    if (!SplitsInHundreds(amount, n)) {
        for (int j = place; j <= g.PlayersInHand; ++j) {
            if (isWinner(j)) {
                int seat = w.FinishOrder[j];
                g.SeatBank[seat] += static_cast<float>(kChipUnit);
                w.Paid[seat] += kChipUnit;
                amount -= kChipUnit;
            }
            if (SplitsInHundreds(amount, n)) break;
        }
    }
    int k = 0;
    for (int j = place; j <= g.PlayersInHand; ++j) {
        if (!isWinner(j)) continue;
        int seat = w.FinishOrder[j];
        double share = static_cast<double>(amount) / (n - k);
        g.SeatBank[seat] = static_cast<float>(static_cast<double>(g.SeatBank[seat]) + share);
        w.Paid[seat] = Whole(w.Paid[seat] + share);
        amount = Whole(amount - share);
        ++k;
    }
}

void MarkWinners(Game& g, const Settlement& w) {
    g.UserWonHand = false;
    for (int j = 1; j <= g.PlayersInHand && w.FinishPlace[j] == 1; ++j) {
        int seat = w.FinishOrder[j];
        g.view.lblBank[seat].text = Money(Whole(g.SeatBank[seat]));
        g.view.iArrow[seat].visible = true;
        if (seat == 1) g.UserWonHand = true;
    }
}

void SoundAndPause(Game& g) {
    if (g.view.mnuSound.checked) g.platform->PlaySound(g.UserWonHand ? "WONHAND" : "LOSTHAND");
    g.platform->Pause();
}

// Chips that no seat could claim leave the table; say so, and play on.
void CheckTotals(Game& g, Settlement& w) {
    for (int s = 1; s <= kSeats; ++s) {
        w.TableTotal = Whole(w.TableTotal + static_cast<double>(g.SeatBank[s]));
        w.TotalPaid += w.Paid[s];
    }
    if (w.TotalBet == w.TotalPaid) return;
    g.platform->MessageBox(
        "Table 1: Total Pot: " + Plain(w.TotalBet) + "   Total Paid: " + Plain(w.TotalPaid), "",
        MsgIcon::None, MsgButtons::OK);
    g.platform->MessageBox("Table Total: " + Plain(w.TableTotal), "", MsgIcon::None, MsgButtons::OK);
}

void ShowPayments(Game& g, const Settlement& w) {
    for (int s = 1; s <= kSeats; ++s) {
        if (w.Paid[s] > 0) {
            g.view.lblPaid[s].text = "Paid $" + Money(w.Paid[s]);
            g.view.lblPaid[s].visible = true;
        }
        g.view.lblBank[s].text = Money(Whole(g.SeatBank[s]));
        g.RosterBank[s] = Whole(g.SeatBank[s]);
    }
}

void LogPayments(Game& g, const Settlement& w) {
    for (int s = 1; s <= kSeats; ++s)
        if (w.Paid[s] > 0) LogSeat(g, LogKind::Paid, s, w.Paid[s], g.RosterBank[s]);
    LogLine result = MakeLine(LogKind::HandResult, {}, g.PlayersInHand, g.UserWonHand);
    result.amount = w.TotalBet;
    result.total = w.Paid[1];
    LogEvent(g, std::move(result));
}

}  // namespace

void Game::TimerHandOver_Timer() {
    Settlement w;
    CloseBetting(*this, w);
    OrderFinish(*this, w);
    ShowHands(*this);
    LogShownHands(*this);
    FindLevels(*this, w);
    CutLayers(*this, w);
    for (int place = 1; place <= PlayersInHand; ++place)
        for (int layer = 1; layer <= kLayers; ++layer) PayLayer(*this, w, place, layer);
    MarkWinners(*this, w);
    SoundAndPause(*this);
    CheckTotals(*this, w);
    ShowPayments(*this, w);
    LogPayments(*this, w);
    CloseHand();
}

}  // namespace holdem
