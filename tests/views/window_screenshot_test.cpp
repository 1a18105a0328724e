// Pictures of the window after a deal and after a showdown, and of each play
// dialog, saved in the build's screenshots/ to be looked at. The checks catch
// what a picture would show at once: a blank grab, cards not drawn, cut labels.
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

    QImage Save(QWidget& w, const QString& name) {
        const QString folder = QCoreApplication::applicationDirPath() + "/../screenshots";
        QDir().mkpath(folder);
        w.show();
        const QPixmap shot = w.grab();
        shot.save(folder + "/" + name + ".png");
        return shot.toImage();
    }
    // The middle of a widget, in the window's grab.
    QRgb Middle(const QImage& shot, frmMain& w, QWidget* element) {
        return shot.pixel(element->mapTo(&w, element->rect().center()));
    }
    void RunTo(frmMain& w, TimerId stop) {
        for (TimerId t; (t = test::RunningTimer(w)) != kTimerCount && t != stop;) w.TimerTick(t);
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
        const QImage dealt = Save(w, "window_dealt");
        QCOMPARE(dealt.size(), w.size());
        QVERIFY(test::NoLabelClipped(w));
        // The user's cards face up, unlike the other seat's backs over the felt.
        QVERIFY(Middle(dealt, w, w.icard[9]) != Middle(dealt, w, w.icard[10]));
        QVERIFY(Middle(dealt, w, w.icard[10]) != qRgb(0, 64, 0));

        w.TimerTick(TimerBetHole);
        QTest::mouseClick(w.cmdPlay[2], Qt::LeftButton);
        for (int street = 0; street < 3; ++street) {
            RunTo(w, kTimerCount);
            QVERIFY(w.cmdPlay[1]->isVisible());
            QTest::mouseClick(w.cmdPlay[street == 2 ? 3 : 1], Qt::LeftButton);
        }
        RunTo(w, kTimerCount);
        QVERIFY(w.lblPaid[2]->isVisible());
        const QImage showdown = Save(w, "window_showdown");
        QVERIFY(test::NoLabelClipped(w));
        const QColor paid(Middle(showdown, w, w.lblPaid[2]));  // white on black over the winner's cards
        QVERIFY(paid.value() < 60 || paid.saturation() < 30);
        QVERIFY(Middle(showdown, w, w.icard[2]) != Middle(dealt, w, w.icard[2]));
        w.game.view.picTableMoney.visible = true;
        w.Redraw();
        Save(w, "window_won");
        QVERIFY(w.lblYouWon->isVisible());
    }

    void everyPlayDialog() {
        test::ScriptedPlatform platform;
        frmBetAmount raise(BetAmountRequest{2, 1400, 1200, 9900}, platform);
        QVERIFY(!Save(raise, "form_bet_amount_raise").isNull());
        frmBetAmount bet(BetAmountRequest{0, 0, 0, 123400}, platform);
        PotBreakdown b;
        const char* names[] = {"",    "Ann Player",      "Bob Bluff", "",    "Dora",
                               "Eve", "Francesca Rossi", "Gus",       "Hiro"};
        for (int s = 1; s <= kSeats; ++s) {
            b.name[s] = names[s];
            b.total += b.bet[s] = s == 3 ? 0 : s * 1100;
        }
        frmPotBreakdown pot(b);
        frmGameOver over(22);
        frmNewGame newGame(2);
        frmPlayerName name;
        frmSplash splash(QCoreApplication::applicationDirPath().toStdString() + "/");
        const std::pair<QWidget*, const char*> forms[] = {
            {&bet, "form_bet_amount_bet"}, {&pot, "form_pot_breakdown"}, {&over, "form_game_over"},
            {&newGame, "form_new_game"},   {&name, "form_player_name"},  {&splash, "form_splash"}};
        for (const auto& [form, file] : forms) {
            Save(*form, file);
            for (QLabel* label : form->findChildren<QLabel*>())
                QVERIFY2(label->fontMetrics().horizontalAdvance(label->text()) <= label->width(),
                         qPrintable(label->text()));
        }
    }
};

QTEST_MAIN(WindowScreenshotTest)
#include "window_screenshot_test.moc"
