// A heads-up table for whole-hand tests of the window: the user in seat 1
// against seat 2, the other six seats empty, the next hand ready to deal.
//
// With every shuffle draw 0 the deck runs 1, 52, 51, 50, ... and the button
// moves to seat 2: seat 1 holds 47 and 39 (Nine of clubs, Ace of diamonds),
// seat 2 46 and 38 (Eight of clubs, King of diamonds), and the board 37 to 33
// (Queen down to Eight of diamonds): two straight flushes, seat 2's the higher.
#pragma once

#include <QLabel>
#include <QTimer>
#include <QtTest>
#include <algorithm>
#include <vector>

#include "tests/support/scripted_platform.h"
#include "views/frm_main.h"

namespace holdem::test {

inline constexpr int kUserHole[2] = {47, 39};
inline constexpr int kSeat2Hole[2] = {46, 38};
inline constexpr int kBoard[5] = {37, 36, 35, 34, 33};

inline void SetUpHeadsUp(Game& game) {
    const char* names[] = {"", "Ann Player", "Bob Bluff", "C", "D", "E", "F", "G", "H"};
    game.TournamentSize = 8;
    for (int s = 1; s <= kSeats; ++s) {
        game.RosterName[s] = game.SeatName[s] = names[s];
        game.RosterNumber[s] = static_cast<int16_t>(s);
        game.RosterBank[s] = s <= 2 ? 10000 : 0;
        game.RosterPlace[s] = static_cast<int16_t>(s <= 2 ? 0 : s);
    }
    game.PlayersLeft = game.NextFinishPlace = 2;
    game.HandsPlayed = game.ButtonSeat = 1;
    game.SmallBlind = 100;
    game.view.cmdDeal.visible = game.view.cmdStandings.visible = game.view.cmdFloor.visible = true;
    game.view.mnuSave.enabled = game.view.mnuSaveAs.enabled = true;
}

// The shuffle, then seat 2's draws: a check on flop and turn, a call on the river.
inline std::vector<float> HeadsUpDraws() {
    std::vector<float> draws(52, 0.0f);
    draws.insert(draws.end(), 4, 0.99f);
    return draws;
}

// The one QTimer running, kTimerCount unless exactly one runs.
inline TimerId RunningTimer(const frmMain& w) {
    int found = kTimerCount, count = 0;
    for (int id = 0; id < kTimerCount; ++id)
        if (w.timers[id]->isActive()) found = id, ++count;
    return static_cast<TimerId>(count == 1 ? found : kTimerCount);
}

inline bool NoTimerRunning(const frmMain& w) {
    return std::none_of(w.timers.begin(), w.timers.end(), [](QTimer* t) { return t->isActive(); });
}

// Every visible label shows the whole of its text; the first cut one is named.
inline bool NoLabelClipped(const frmMain& w, QString* which = nullptr) {
    for (QLabel* label : w.centralWidget()->findChildren<QLabel*>())
        if (label->isVisibleTo(w.centralWidget()) &&
            label->fontMetrics().horizontalAdvance(label->text()) > label->width()) {
            if (which) *which = label->text();
            return false;
        }
    return true;
}

}  // namespace holdem::test
