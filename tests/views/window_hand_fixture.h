// A heads-up table for whole-hand tests of the window: the user in seat 1
// against seat 2, the other six seats empty, the next hand ready to deal.
//
// With every shuffle draw 0 the deck runs 1, 52, 51, 50, ... The button moves
// to seat 2, so seat 1 holds Deck[6] = 47 (Nine of clubs) and Deck[14] = 39
// (Ace of diamonds), seat 2 Deck[7] = 46 and Deck[15] = 38 (Eight of clubs,
// King of diamonds), and the board is Deck[16..20] = 37, 36, 35, 34, 33: the
// Queen down to the Eight of diamonds: both hold a straight flush, and seat
// 2's King of diamonds makes the higher one.
#pragma once

#include <QAbstractButton>
#include <QLabel>
#include <QTimer>
#include <QtTest>
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
        game.RosterName[s] = names[s];
        game.RosterNumber[s] = static_cast<int16_t>(s);
        game.RosterBank[s] = s <= 2 ? 10000 : 0;
        game.RosterPlace[s] = s <= 2 ? 0 : static_cast<int16_t>(s);
        game.SeatName[s] = names[s];
    }
    game.PlayersLeft = 2;
    game.NextFinishPlace = 2;
    game.HandsPlayed = 1;
    game.ButtonSeat = 1;
    game.SmallBlind = 100;
    // Idle between two hands.
    game.view.cmdDeal.visible = game.view.cmdStandings.visible = game.view.cmdFloor.visible = true;
    game.view.mnuSave.enabled = game.view.mnuSaveAs.enabled = true;
}

// The shuffle's 52 draws, then the draws of seat 2 on each street: a check
// on the flop and the turn, a call without a raise on the river.
inline std::vector<float> HeadsUpDraws() {
    std::vector<float> draws(52, 0.0f);
    draws.insert(draws.end(), {0.99f, 0.99f, 0.99f, 0.99f});
    return draws;
}

// The one QTimer running; fails the test if there is not exactly one.
inline TimerId RunningTimer(const frmMain& w) {
    int found = -1, count = 0;
    for (int id = 0; id < kTimerCount; ++id)
        if (w.timers[id]->isActive()) {
            found = id;
            ++count;
        }
    if (count != 1) return kTimerCount;
    return static_cast<TimerId>(found);
}

inline bool NoTimerRunning(const frmMain& w) {
    for (QTimer* t : w.timers)
        if (t->isActive()) return false;
    return true;
}

// Every visible label shows the whole of its text.
inline bool NoLabelClipped(const frmMain& w, QString* which = nullptr) {
    for (QLabel* label : w.centralWidget()->findChildren<QLabel*>()) {
        if (!label->isVisibleTo(w.centralWidget()) || label->text().isEmpty()) continue;
        if (label->fontMetrics().horizontalAdvance(label->text()) > label->width()) {
            if (which) *which = label->text();
            return false;
        }
    }
    return true;
}

}  // namespace holdem::test
