// Pictures of the window after a deal and after a showdown, and of each play
// dialog, saved in the build folder's screenshots/ for a look by eye. The
// checks here catch what a picture would show at once: a blank grab, cards
// not drawn, labels cut off.
#include <QDir>
#include <QPushButton>
#include <QtTest>

#include "tests/views/window_hand_fixture.h"
#include "views/frm_bet_amount.h"
#include "views/frm_game_over.h"
#include "views/frm_new_game.h"
#include "views/frm_player_name.h"
#include "views/frm_pot_breakdown.h"
#include "views/frm_splash.h"

using namespace holdem;

class WindowScreenshotTest : public QObject {
    Q_OBJECT

    QString Folder() {
        QString folder = QCoreApplication::applicationDirPath() + "/../screenshots";
        QDir().mkpath(folder);
        return folder;
    }
    QImage Save(QWidget& w, const QString& name) {
        QPixmap shot = w.grab();
        shot.save(Folder() + "/" + name + ".png");
        return shot.toImage();
    }
    // The middle of a widget, in the window's grab.
    QRgb Middle(const QImage& shot, frmMain& w, QWidget* element) {
        QPoint at = element->mapTo(&w, element->rect().center());
        return shot.pixel(at);
    }
    void RunTo(frmMain& w, TimerId stop) {
        for (int guard = 0; guard < 40; ++guard) {
            TimerId running = test::RunningTimer(w);
            if (running == kTimerCount || running == stop) return;
            w.TimerTick(running);
        }
    }

private slots:
    void theTableAfterTheDealAndAfterTheShowdown() {
        test::ScriptedPlatform platform;
        frmMain w(QCoreApplication::applicationDirPath().toStdString(), &platform);
        w.Start();
        test::SetUpHeadsUp(w.game);
        w.game.rnd.Script(test::HeadsUpDraws());
        platform.betAmounts.push_back(500);
        w.Redraw();
        w.show();
        QTest::mouseClick(w.cmdDeal, Qt::LeftButton);
        RunTo(w, TimerBetHole);
        QImage dealt = Save(w, "window_dealt");
        QCOMPARE(dealt.size(), w.size());
        QVERIFY(test::NoLabelClipped(w));
        // The user's cards are drawn, and differ from the other seat's backs.
        QVERIFY(Middle(dealt, w, w.icard[9]) != Middle(dealt, w, w.icard[10]));
        QVERIFY(Middle(dealt, w, w.icard[10]) != qRgb(0, 64, 0));

        w.TimerTick(TimerBetHole);
        QTest::mouseClick(w.cmdPlay[2], Qt::LeftButton);
        for (int street = 0; street < 3; ++street) {
            RunTo(w, kTimerCount);
            QVERIFY(w.cmdPlay[1]->isVisible());
            QTest::mouseClick(street == 2 ? w.cmdPlay[3] : w.cmdPlay[1], Qt::LeftButton);
        }
        RunTo(w, kTimerCount);
        QVERIFY(w.lblPaid[2]->isVisible());
        QImage showdown = Save(w, "window_showdown");
        QVERIFY(test::NoLabelClipped(w));
        // "Paid $" stands white on black over the winner's cards.
        QColor paid(Middle(showdown, w, w.lblPaid[2]));
        QVERIFY(paid.value() < 60 || paid.saturation() < 30);
        QVERIFY(Middle(showdown, w, w.icard[2]) != Middle(dealt, w, w.icard[2]));

        // The winner's panel over the whole table.
        w.game.view.picTableMoney.visible = true;
        w.Redraw();
        Save(w, "window_won");
        QVERIFY(w.lblYouWon->isVisible());
    }

    void everyPlayDialog() {
        test::ScriptedPlatform platform;
        frmBetAmount raise(BetAmountRequest{2, 1400, 1200, 9900}, platform);
        raise.show();
        QVERIFY(!Save(raise, "form_bet_amount_raise").isNull());
        frmBetAmount bet(BetAmountRequest{0, 0, 0, 123400}, platform);
        bet.show();
        Save(bet, "form_bet_amount_bet");
        QVERIFY(bet.lblMaxRaiseAmount->fontMetrics().horizontalAdvance(bet.lblMaxRaiseAmount->text()) <=
                bet.lblMaxRaiseAmount->width());

        PotBreakdown b;
        const char* names[] = {"",    "Ann Player",      "Bob Bluff", "",    "Dora",
                               "Eve", "Francesca Rossi", "Gus",       "Hiro"};
        for (int s = 1; s <= kSeats; ++s) {
            b.name[s] = names[s];
            b.bet[s] = s == 3 ? 0 : s * 1100;
            b.total += b.bet[s];
        }
        frmPotBreakdown pot(b);
        pot.show();
        Save(pot, "form_pot_breakdown");
        frmGameOver over(22);
        over.show();
        Save(over, "form_game_over");
        frmNewGame newGame(2);
        newGame.show();
        Save(newGame, "form_new_game");
        frmPlayerName name;
        name.show();
        Save(name, "form_player_name");
        frmSplash splash(QCoreApplication::applicationDirPath().toStdString() + "/");
        splash.show();
        Save(splash, "form_splash");
        for (QWidget* form : std::initializer_list<QWidget*>{&pot, &over, &newGame, &name, &splash})
            for (QLabel* label : form->findChildren<QLabel*>())
                QVERIFY2(label->fontMetrics().horizontalAdvance(label->text()) <= label->width(),
                         qPrintable(label->text()));
    }
};

QTEST_MAIN(WindowScreenshotTest)
#include "window_screenshot_test.moc"
