// A whole heads-up hand played through the window: clicks on the buttons, ticks
// of the running QTimer, and after every step the widgets as the view describes them.
#include <QAction>
#include <QPushButton>
#include <QtTest>

#include "tests/views/window_hand_fixture.h"

using namespace holdem;
using test::RunningTimer;

class WindowHandTest : public QObject {
    Q_OBJECT

    static bool Shows(QWidget* w) { return w->isVisibleTo(w->parentWidget()); }
    static bool Face(frmMain& w, int image, int card) {
        return w.icard[image]->picture().cacheKey() == w.Cards().Get(card).cacheKey();
    }
    // The shown ones among card images 1..21, as a list of their numbers.
    static QList<int> CardsShown(frmMain& w) {
        QList<int> shown;
        for (int k = 1; k <= 21; ++k)
            if (Shows(w.icard[k])) shown << k;
        return shown;
    }
    static QString Texts(std::initializer_list<QLabel*> labels) {
        QStringList texts;
        for (QLabel* l : labels) texts << l->text();
        return texts.join('|');
    }
    void Tick(frmMain& w, TimerId expected) {
        QCOMPARE(RunningTimer(w), expected);
        w.TimerTick(expected);
        QString clipped;
        QVERIFY2(test::NoLabelClipped(w, &clipped), qPrintable(clipped));
    }
    // The user's turn: the four buttons, nothing running, nothing of between hands.
    void ExpectUserTurn(frmMain& w, bool check, bool call) {
        QVERIFY(test::NoTimerRunning(w));
        for (int i = 1; i <= 4; ++i) QVERIFY(Shows(w.cmdPlay[i]));
        QCOMPARE(std::make_tuple(w.cmdPlay[1]->isEnabled(), w.cmdPlay[2]->isEnabled(),
                                 w.cmdPlay[3]->isEnabled(), w.cmdPlay[4]->isEnabled()),
                 std::make_tuple(check, call, true, true));
        QVERIFY(!Shows(w.cmdDeal) && !Shows(w.cmdStandings) && !Shows(w.cmdFloor));
        QVERIFY(!w.mnuSave->isEnabled() && !w.mnuSaveAs->isEnabled() && w.mnuNew->isEnabled() &&
                w.mnuOpen->isEnabled());
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
        QVERIFY(!Shows(w.cmdDeal) && !Shows(w.cmdStandings) && !w.mnuSave->isEnabled() &&
                !w.mnuSaveAs->isEnabled());
        QCOMPARE(Texts({w.lblBet[1], w.lblBet[2], w.lblBank[1], w.lblBank[2], w.lblPot}),
                 QString("Small Blind: $100|Large Blind: $200|9,900|9,800|300"));
        QVERIFY(Shows(w.lblBlind) && Shows(w.lblGoodLuck) && Shows(w.iButton[2]) && !Shows(w.iButton[1]));
        QVERIFY(Shows(w.lblName[2]) && !Shows(w.lblName[3]) && !Shows(w.lblBank[5]));
        QVERIFY(CardsShown(w).isEmpty());
        QVERIFY(Face(w, 1, test::kUserHole[0]) && Face(w, 9, test::kUserHole[1]) && Face(w, 2, 0) &&
                Face(w, 10, 0));

        // Empty seats cost no tick: four cards, four ticks.
        const QList<int> dealt[] = {{1}, {1, 2}, {1, 2, 9}, {1, 2, 9, 10}};
        for (const QList<int>& shown : dealt) {
            Tick(w, TimerDealHole);
            QCOMPARE(CardsShown(w), shown);
        }
        QVERIFY(!Shows(w.lblGoodLuck) && !Shows(w.lblBlind));

        // The small blind acts first and owes $100; the pot's breakdown.
        Tick(w, TimerBetHole);
        ExpectUserTurn(w, false, true);
        QCOMPARE(w.lblBet[1]->text(), QString("Amount to Call: $100"));
        QTest::mouseClick(w.lblPot, Qt::LeftButton);
        QCOMPARE(platform.breakdowns.size(), size_t(1));
        const PotBreakdown& b = platform.breakdowns[0];
        QCOMPARE(std::make_tuple(b.bet[1], b.bet[2], b.total, b.name[2]),
                 std::make_tuple(100, 200, 300, std::string("Bob Bluff")));

        // A call with the large blind holding the high bet ends the round.
        QTest::mouseClick(w.cmdPlay[2], Qt::LeftButton);
        QCOMPARE(platform.sounds.back(), std::string("BUTTONCLICK"));
        QCOMPARE(Texts({w.lblBet[1], w.lblBank[1], w.lblPot}), QString("Called $100|9,800|400"));
        QVERIFY(!Shows(w.cmdPlay[1]) && !Shows(w.cmdPlay[4]));
        for (int k = 0; k < 3; ++k) Tick(w, TimerDealFlop);
        QCOMPARE(CardsShown(w), (QList<int>{1, 2, 9, 10, 17, 18, 19}));
        QVERIFY(Face(w, 17, test::kBoard[0]) && Face(w, 18, test::kBoard[1]) && Face(w, 19, test::kBoard[2]));
        QCOMPARE(Texts({w.lblBet[1], w.lblBet[2]}), QString("|"));

        // Flop and turn: the user checks, seat 2 checks behind.
        for (TimerId bet : {TimerBetFlop, TimerBetTurn}) {
            Tick(w, bet);
            ExpectUserTurn(w, true, false);
            QCOMPARE(w.lblBet[1]->text(), QString("Amount to Call: $0"));
            QTest::mouseClick(w.cmdPlay[1], Qt::LeftButton);
            QCOMPARE(w.lblBet[1]->text(), QString("Checked"));
            Tick(w, bet);
            QCOMPARE(w.lblBet[2]->text(), QString("Checked"));
            Tick(w, bet == TimerBetFlop ? TimerDealTurn : TimerDealRiver);
            QCOMPARE(CardsShown(w).size(), bet == TimerBetFlop ? 8 : 9);
        }
        QCOMPARE(CardsShown(w), (QList<int>{1, 2, 9, 10, 17, 18, 19, 20, 21}));
        QVERIFY(Face(w, 20, test::kBoard[3]) && Face(w, 21, test::kBoard[4]));

        // The river: a bet of $500 through the dialog, called.
        Tick(w, TimerBetRiver);
        ExpectUserTurn(w, true, false);
        QTest::mouseClick(w.cmdPlay[3], Qt::LeftButton);
        QCOMPARE(platform.betRequests.size(), size_t(1));
        QCOMPARE(std::make_pair(platform.betRequests[0].HighBetValue, platform.betRequests[0].MaxBetAmount),
                 std::make_pair(0, 9800));
        QCOMPARE(Texts({w.lblBet[1], w.lblPot}), QString("Bet $500|900"));
        Tick(w, TimerBetRiver);
        QCOMPARE(Texts({w.lblBet[2], w.lblPot}), QString("Called $500|1,400"));

        // The showdown: seat 2's King makes the higher straight flush and takes the pot.
        Tick(w, TimerHandOver);
        QVERIFY(test::NoTimerRunning(w));
        QVERIFY(Face(w, 2, test::kSeat2Hole[0]) && Face(w, 10, test::kSeat2Hole[1]));
        QCOMPARE(CardsShown(w), (QList<int>{1, 2, 9, 10, 17, 18, 19, 20, 21}));
        QCOMPARE(w.game.SeatHandName[2], std::string("Straight Flush"));
        QCOMPARE(Texts({w.lblBet[1], w.lblBet[2], w.lblPaid[2], w.lblBank[1], w.lblBank[2], w.lblPot}),
                 QString::fromStdString(w.game.SeatHandName[1] + "|" + w.game.SeatHandName[2]) +
                     "|Paid $1,400|9,300|10,700|1,400");
        QVERIFY(Shows(w.lblPaid[2]) && !Shows(w.lblPaid[1]) && Shows(w.iArrow[2]) && !Shows(w.iArrow[1]));
        QCOMPARE(platform.sounds.back(), std::string("LOSTHAND"));
        QCOMPARE(std::make_tuple(platform.pauses,
                                 std::count(platform.sounds.begin(), platform.sounds.end(), "DEAL"),
                                 std::count(platform.sounds.begin(), platform.sounds.end(), "BUTTONCLICK")),
                 std::make_tuple(1, std::ptrdiff_t(9), std::ptrdiff_t(4)));
        QVERIFY(Shows(w.cmdDeal) && Shows(w.cmdStandings) && Shows(w.cmdFloor) && !Shows(w.cmdPlay[1]));
        QVERIFY(w.mnuSave->isEnabled() && w.mnuSaveAs->isEnabled() && !w.picTableMoney->isVisible());
        QCOMPARE(std::make_pair(w.game.RosterBank[1], w.game.RosterBank[2]), std::make_pair(9300, 10700));
        QVERIFY(w.game.rnd.Remaining() == 0 && w.game.rnd.Overdrawn() == 0 && platform.messages.empty());
    }

    void speedAndSoundApplyToTheRunningTimerAtOnce() {
        test::ScriptedPlatform platform;
        frmMain w(QCoreApplication::applicationDirPath().toStdString(), &platform);
        test::SetUpHeadsUp(w.game);
        w.game.rnd.Script(test::HeadsUpDraws());
        w.Redraw();
        QTest::mouseClick(w.cmdDeal, Qt::LeftButton);
        w.mnuSlowSpeed->trigger();
        QVERIFY(w.mnuSlowSpeed->isChecked() && !w.mnuMediumSpeed->isChecked());
        QCOMPARE(w.timers[TimerDealHole]->interval(), 550);
        w.mnuFastSpeed->trigger();
        QCOMPARE(w.timers[TimerDealHole]->interval(), 350);
        QCOMPARE(RunningTimer(w), TimerDealHole);
        w.mnuSound->trigger();
        QVERIFY(!w.mnuSound->isChecked() && !w.game.SoundOn);
        w.TimerTick(TimerDealHole);
        QVERIFY(platform.sounds.empty());
    }
};

QTEST_MAIN(WindowHandTest)
#include "window_hand_test.moc"
