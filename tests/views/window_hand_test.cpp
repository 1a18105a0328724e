// A whole heads-up hand played through the window: clicks on the buttons,
// ticks of the running QTimer, and after every step the widgets as the game's
// view describes them.
#include <QAction>
#include <QPushButton>
#include <QtTest>
#include <algorithm>

#include "tests/views/window_hand_fixture.h"

using namespace holdem;
using test::RunningTimer;

class WindowHandTest : public QObject {
    Q_OBJECT

    QString Text(QLabel* label) { return label->text(); }
    bool Shows(QWidget* w) { return w->isVisibleTo(w->parentWidget()); }
    bool Face(frmMain& w, int image, int card) {
        return w.icard[image]->picture().cacheKey() == w.Cards().Get(card).cacheKey();
    }
    void Tick(frmMain& w, TimerId expected) {
        QCOMPARE(RunningTimer(w), expected);
        w.TimerTick(expected);
        QString clipped;
        QVERIFY2(test::NoLabelClipped(w, &clipped), qPrintable(clipped));
    }
    int Count(const test::ScriptedPlatform& p, const std::string& sound) {
        return static_cast<int>(std::count(p.sounds.begin(), p.sounds.end(), sound));
    }
    // The buttons of the user's turn, and none of the between-hands ones.
    void ExpectUserTurn(frmMain& w, bool check, bool call, bool raise) {
        QVERIFY(test::NoTimerRunning(w));
        for (int i = 1; i <= 4; ++i) QVERIFY(Shows(w.cmdPlay[i]));
        QCOMPARE(w.cmdPlay[1]->isEnabled(), check);
        QCOMPARE(w.cmdPlay[2]->isEnabled(), call);
        QCOMPARE(w.cmdPlay[3]->isEnabled(), raise);
        QVERIFY(w.cmdPlay[4]->isEnabled());
        QVERIFY(!Shows(w.cmdDeal) && !Shows(w.cmdStandings) && !Shows(w.cmdFloor));
        QVERIFY(!w.mnuSave->isEnabled() && !w.mnuSaveAs->isEnabled());
        QVERIFY(w.mnuNew->isEnabled() && w.mnuOpen->isEnabled());
        QVERIFY(Shows(w.iArrow[1]) && !Shows(w.iArrow[2]));
    }

private slots:
    void initTestCase() { QLocale::setDefault(QLocale::c()); }

    void aHeadsUpHandFromTheDealToTheShowdown() {
        test::ScriptedPlatform platform;
        frmMain w(QCoreApplication::applicationDirPath().toStdString(), &platform);
        test::SetUpHeadsUp(w.game);
        w.game.rnd.Script(test::HeadsUpDraws());
        platform.betAmounts.push_back(500);
        w.Redraw();
        w.show();
        QVERIFY(Shows(w.cmdDeal) && w.mnuSave->isEnabled());

        // The deal: blinds posted, the button on seat 2, every card face down.
        QTest::mouseClick(w.cmdDeal, Qt::LeftButton);
        QVERIFY(!Shows(w.cmdDeal) && !Shows(w.cmdStandings) && !Shows(w.cmdFloor));
        QVERIFY(!w.mnuSave->isEnabled() && !w.mnuSaveAs->isEnabled());
        QCOMPARE(Text(w.lblBet[1]), QString("Small Blind: $100"));
        QCOMPARE(Text(w.lblBet[2]), QString("Large Blind: $200"));
        QCOMPARE(Text(w.lblBank[1]), QString("9,900"));
        QCOMPARE(Text(w.lblBank[2]), QString("9,800"));
        QCOMPARE(Text(w.lblPot), QString("300"));
        QVERIFY(Shows(w.lblBlind) && Shows(w.lblGoodLuck));
        QVERIFY(Shows(w.iButton[2]) && !Shows(w.iButton[1]));
        QVERIFY(Shows(w.lblName[1]) && Shows(w.lblName[2]) && !Shows(w.lblName[3]) && !Shows(w.lblBank[5]));
        for (int k = 1; k <= 21; ++k) QVERIFY(!Shows(w.icard[k]));
        QVERIFY(Face(w, 1, test::kUserHole[0]) && Face(w, 9, test::kUserHole[1]));
        QVERIFY(Face(w, 2, 0) && Face(w, 10, 0));

        // Empty seats cost no tick: four cards, four ticks.
        Tick(w, TimerDealHole);
        QVERIFY(Shows(w.icard[1]) && !Shows(w.icard[2]));
        Tick(w, TimerDealHole);
        Tick(w, TimerDealHole);
        QVERIFY(Shows(w.icard[9]) && !Shows(w.icard[10]));
        Tick(w, TimerDealHole);
        for (int k : {1, 2, 9, 10}) QVERIFY(Shows(w.icard[k]));
        for (int k : {3, 8, 11, 16, 17}) QVERIFY(!Shows(w.icard[k]));
        QVERIFY(!Shows(w.lblGoodLuck) && !Shows(w.lblBlind));
        QCOMPARE(Count(platform, "DEAL"), 4);

        // The small blind acts first and owes $100.
        Tick(w, TimerBetHole);
        ExpectUserTurn(w, false, true, true);
        QCOMPARE(Text(w.lblBet[1]), QString("Amount to Call: $100"));

        QTest::mouseClick(w.lblPot, Qt::LeftButton);
        QCOMPARE(platform.breakdowns.size(), size_t(1));
        QCOMPARE(platform.breakdowns[0].bet[1], 100);
        QCOMPARE(platform.breakdowns[0].bet[2], 200);
        QCOMPARE(platform.breakdowns[0].total, 300);
        QCOMPARE(platform.breakdowns[0].name[2], std::string("Bob Bluff"));

        // A call with the large blind holding the high bet ends the round.
        QTest::mouseClick(w.cmdPlay[2], Qt::LeftButton);
        QCOMPARE(platform.sounds.back(), std::string("BUTTONCLICK"));
        QCOMPARE(Text(w.lblBet[1]), QString("Called $100"));
        QCOMPARE(Text(w.lblBank[1]), QString("9,800"));
        QCOMPARE(Text(w.lblPot), QString("400"));
        for (int i = 1; i <= 4; ++i) QVERIFY(!Shows(w.cmdPlay[i]));

        for (int k = 0; k < 3; ++k) Tick(w, TimerDealFlop);
        for (int k = 0; k < 3; ++k) QVERIFY(Shows(w.icard[17 + k]) && Face(w, 17 + k, test::kBoard[k]));
        QVERIFY(!Shows(w.icard[20]) && !Shows(w.icard[21]));
        QCOMPARE(Text(w.lblBet[1]), QString(""));
        QCOMPARE(Text(w.lblBet[2]), QString(""));

        // Flop and turn: the user checks, seat 2 checks behind.
        for (TimerId bet : {TimerBetFlop, TimerBetTurn}) {
            Tick(w, bet);
            ExpectUserTurn(w, true, false, true);
            QCOMPARE(Text(w.lblBet[1]), QString("Amount to Call: $0"));
            QTest::mouseClick(w.cmdPlay[1], Qt::LeftButton);
            QCOMPARE(Text(w.lblBet[1]), QString("Checked"));
            Tick(w, bet);
            QCOMPARE(Text(w.lblBet[2]), QString("Checked"));
            if (bet == TimerBetFlop) Tick(w, TimerDealTurn);
        }
        QVERIFY(Shows(w.icard[20]) && Face(w, 20, test::kBoard[3]));
        QVERIFY(!Shows(w.icard[21]));
        Tick(w, TimerDealRiver);
        QVERIFY(Shows(w.icard[21]) && Face(w, 21, test::kBoard[4]));

        // The river: a bet of $500 through the dialog, called.
        Tick(w, TimerBetRiver);
        ExpectUserTurn(w, true, false, true);
        QTest::mouseClick(w.cmdPlay[3], Qt::LeftButton);
        QCOMPARE(platform.betRequests.size(), size_t(1));
        QCOMPARE(platform.betRequests[0].HighBetValue, 0);
        QCOMPARE(platform.betRequests[0].MaxBetAmount, 9800);
        QCOMPARE(Text(w.lblBet[1]), QString("Bet $500"));
        QCOMPARE(Text(w.lblPot), QString("900"));
        Tick(w, TimerBetRiver);
        QCOMPARE(Text(w.lblBet[2]), QString("Called $500"));
        QCOMPARE(Text(w.lblPot), QString("1,400"));

        // The showdown: both hands face up; seat 2's King makes the higher
        // straight flush and takes the pot.
        Tick(w, TimerHandOver);
        QVERIFY(test::NoTimerRunning(w));
        QVERIFY(Face(w, 2, test::kSeat2Hole[0]) && Face(w, 10, test::kSeat2Hole[1]));
        for (int k : {1, 2, 9, 10, 17, 18, 19, 20, 21}) QVERIFY(Shows(w.icard[k]));
        QVERIFY(!Text(w.lblBet[1]).isEmpty());
        QCOMPARE(Text(w.lblBet[1]), QString::fromStdString(w.game.SeatHandName[1]));
        QCOMPARE(Text(w.lblBet[2]), QString::fromStdString(w.game.SeatHandName[2]));
        QCOMPARE(Text(w.lblPaid[2]), QString("Paid $1,400"));
        QVERIFY(Shows(w.lblPaid[2]) && !Shows(w.lblPaid[1]));
        QCOMPARE(Text(w.lblBank[1]), QString("9,300"));
        QCOMPARE(Text(w.lblBank[2]), QString("10,700"));
        QVERIFY(Shows(w.iArrow[2]) && !Shows(w.iArrow[1]));
        QCOMPARE(Text(w.lblPot), QString("1,400"));
        QCOMPARE(platform.sounds.back(), std::string("LOSTHAND"));
        QCOMPARE(platform.pauses, 1);
        QCOMPARE(Count(platform, "DEAL"), 9);
        QCOMPARE(Count(platform, "BUTTONCLICK"), 4);
        QVERIFY(Shows(w.cmdDeal) && Shows(w.cmdStandings) && Shows(w.cmdFloor));
        for (int i = 1; i <= 4; ++i) QVERIFY(!Shows(w.cmdPlay[i]));
        QVERIFY(w.mnuSave->isEnabled() && w.mnuSaveAs->isEnabled());
        QVERIFY(!w.picTableMoney->isVisible());
        QCOMPARE(w.game.RosterBank[1], 9300);
        QCOMPARE(w.game.RosterBank[2], 10700);
        QCOMPARE(w.game.rnd.Remaining(), size_t(0));
        QCOMPARE(w.game.rnd.Overdrawn(), 0);
        QVERIFY(platform.messages.empty());
    }

    void speedAppliesToTheRunningTimerAtOnce() {
        test::ScriptedPlatform platform;
        frmMain w(QCoreApplication::applicationDirPath().toStdString(), &platform);
        test::SetUpHeadsUp(w.game);
        w.game.rnd.Script(test::HeadsUpDraws());
        w.Redraw();
        QTest::mouseClick(w.cmdDeal, Qt::LeftButton);
        QCOMPARE(RunningTimer(w), TimerDealHole);
        w.mnuSlowSpeed->trigger();
        QVERIFY(w.mnuSlowSpeed->isChecked() && !w.mnuMediumSpeed->isChecked());
        QCOMPARE(w.timers[TimerDealHole]->interval(), 550);
        w.mnuFastSpeed->trigger();
        QCOMPARE(w.timers[TimerDealHole]->interval(), 350);
        QCOMPARE(RunningTimer(w), TimerDealHole);
        // The sound entry follows the game's check mark.
        w.mnuSound->trigger();
        QVERIFY(!w.mnuSound->isChecked());
        QVERIFY(!w.game.SoundOn);
        w.TimerTick(TimerDealHole);
        QVERIFY(platform.sounds.empty());
    }
};

QTEST_MAIN(WindowHandTest)
#include "window_hand_test.moc"
