// Shared by the window tests: a heads-up table ready to deal, the one running
// timer, screenshots, and stnd.dat files in the game's format.
#pragma once

#include <QLabel>
#include <QTimer>
#include <QtTest>
#include <fstream>

#include "tests/support/scripted_platform.h"
#include "views/frm_main.h"

namespace holdem::test {

// Seat 1 against seat 2, the other seats out. With every shuffle draw 0 the
// button moves to seat 2: seat 1 holds the Nine of clubs and Ace of diamonds,
// seat 2 the Eight of clubs and King of diamonds, the board Queen down to Eight
// of diamonds, so seat 2's straight flush wins. Seat 2 checks flop and turn and
// calls the river.
inline void SetUpHeadsUp(frmMain& w) {
    Game& g = w.game;
    g.TournamentSize = 8;
    for (int s = 1; s <= kSeats; ++s) {
        g.RosterName[s] = g.SeatName[s] = s == 1 ? "Ann Player" : "Bob Bluff";
        g.RosterNumber[s] = static_cast<int16_t>(s);
        g.RosterBank[s] = s <= 2 ? 10000 : 0;
        g.RosterPlace[s] = static_cast<int16_t>(s <= 2 ? 0 : s);
    }
    g.PlayersLeft = g.NextFinishPlace = 2;
    g.HandsPlayed = g.ButtonSeat = 1;
    g.SmallBlind = 100;
    g.view.cmdDeal.visible = g.view.cmdStandings.visible = g.view.cmdFloor.visible = true;
    g.view.mnuSave.enabled = true;
    std::vector<float> draws(52, 0.0f);
    draws.insert(draws.end(), 4, 0.99f);
    g.rnd.Script(draws);
    w.Redraw();
}

// The one QTimer running, kTimerCount unless exactly one runs.
inline TimerId RunningTimer(const frmMain& w) {
    int found = kTimerCount, count = 0;
    for (int id = 0; id < kTimerCount; ++id)
        if (w.timers[id]->isActive()) found = id, ++count;
    return static_cast<TimerId>(count == 1 ? found : kTimerCount);
}

inline bool Shows(QWidget* w) { return w->isVisibleTo(w->window()); }

// Shown and saved beside the test program, to be looked at; no visible label cuts its text.
inline void Shot(QWidget& form, const QString& name) {
    form.show();
    QVERIFY(form.grab().save(QCoreApplication::applicationDirPath() + "/" + name + ".png"));
    for (QLabel* l : form.findChildren<QLabel*>())
        QVERIFY2(!l->isVisible() || l->fontMetrics().horizontalAdvance(l->text()) <= l->width(),
                 qPrintable(name + ": " + l->text()));
}

// n players numbered by line: the user "You" first and out last, "P5" far ahead,
// the rest still in with 10,000.
inline std::string WriteStnd(const QString& path, int n) {
    std::ofstream out(path.toStdString(), std::ios::binary);
    out << n << ",12,3,200\r\n";
    for (int p = 1; p <= n; ++p)
        out << p % 7 << ",\"" << (p == 1 ? "You" : "P" + std::to_string(p)) << "\","
            << (p == 1   ? 0
                : p == 5 ? 1234567
                         : 10000)
            << "," << (p == 1 ? n : 0) << "," << p << "\r\n";
    return path.toStdString();
}

}  // namespace holdem::test
