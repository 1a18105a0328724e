// The keyboard at the table and in the dialogs, and the forms opened in the
// middle of a hand, driven through the real window.
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>

#include "tests/views/fieldviews_support.h"
#include "tests/views/window_hand_fixture.h"
#include "views/frm_about.h"
#include "views/frm_bet_amount.h"
#include "views/frm_casino_floor.h"
#include "views/frm_help.h"
#include "views/frm_new_game.h"
#include "views/frm_pot_breakdown.h"
#include "views/frm_rankings.h"
#include "views/frm_rules.h"

using namespace holdem;

namespace {

// Opens the real forms, and while each one's own event loop runs, fires the
// hand timer that is due, as a QTimer would, before Escape closes the form.
class FormsPlatform : public test::ScriptedPlatform {
public:
    frmMain* w = nullptr;
    void ShowPotBreakdown(const PotBreakdown& b) override { Open(new frmPotBreakdown(b, w)); }
    void ShowStandings(const std::string& path) override { Open(new frmRankings(path, w)); }
    void ShowFloor(const std::string& path) override { Open(new frmCasinoFloor(path, w)); }
    void ShowInfo(InfoForm f) override {
        const std::string& at = w->game.AppFolder;
        Open(f == InfoForm::Help    ? static_cast<QDialog*>(new frmHelp(at, w))
             : f == InfoForm::Rules ? static_cast<QDialog*>(new frmRules(at, w))
                                    : new frmAbout(at, w));
    }
    void Open(QDialog* form) {
        QTimer::singleShot(0, form, [this, form] {
            if (TimerId due = test::RunningTimer(*w); due != kTimerCount) w->TimerTick(due);
            QTest::keyClick(form, Qt::Key_Escape);
        });
        form->exec();
        delete form;
    }
};

bool Shows(QWidget* w) { return w->isVisibleTo(w->window()); }
bool FocusOnAButton() { return qobject_cast<QPushButton*>(QApplication::focusWidget()); }

void Activate(QWidget& w) {
    w.show();
    QApplication::setActiveWindow(&w);
    QVERIFY(QTest::qWaitForWindowActive(&w));
}

// The user's table with slow timers, shown and active, between hands.
void Open(frmMain& w) {
    test::SetUpHeadsUp(w.game);
    w.game.rnd.Script(test::HeadsUpDraws());
    w.game.GameSpeed = 3;
    w.game.SetGameSpeed();
    w.Redraw();
    Activate(w);
}

void RunToTurn(frmMain& w) {
    for (TimerId t; (t = test::RunningTimer(w)) != kTimerCount;) w.TimerTick(t);
}

}  // namespace

class WindowKeysTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale::c()); }

    void accessKeysBetweenHandsAndDuringTheTurn_data() {
        QTest::addColumn<int>("key");
        QTest::addColumn<bool>("onTheFlop");
        QTest::addColumn<QString>("words");  // lblBet(1) after the press
        QTest::newRow("Alt+C") << int(Qt::Key_C) << false << "Called $100";
        QTest::newRow("Alt+F") << int(Qt::Key_F) << false << "Folded";
        QTest::newRow("Alt+B") << int(Qt::Key_B) << false << "Amount to Call: $100";
        QTest::newRow("Alt+H") << int(Qt::Key_H) << true << "Checked";
        QTest::newRow("Space on Fold, moved there") << int(Qt::Key_Space) << true << "Folded";
    }
    void accessKeysBetweenHandsAndDuringTheTurn() {
        QFETCH(int, key);
        QFETCH(bool, onTheFlop);
        QFETCH(QString, words);
        test::ScriptedPlatform platform;
        frmMain w(QCoreApplication::applicationDirPath().toStdString(), &platform);
        Open(w);
        // Between hands the buttons take S and V; File and Help keep their letters.
        QCOMPARE(w.mnuSettings->title() + w.mnuFile->title() + w.mnuHelp->title(),
                 QString("Settings&File&Help"));
        QTest::keyClick(&w, Qt::Key_S, Qt::AltModifier);
        QTest::keyClick(&w, Qt::Key_V, Qt::AltModifier);
        QVERIFY(
            QTest::qWaitFor([&] { return platform.standings.size() == 1 && platform.floors.size() == 1; }));
        QTest::keyClick(&w, Qt::Key_D, Qt::AltModifier);
        QVERIFY(QTest::qWaitFor([&] { return !Shows(w.cmdDeal); }));
        RunToTurn(w);
        if (onTheFlop) {
            QTest::mouseClick(w.cmdPlay[2], Qt::LeftButton);
            RunToTurn(w);
        }
        QCOMPARE(w.mnuSettings->title() + w.mnuFile->title() + w.mnuHelp->title(),
                 QString("&SettingsFileHelp"));
        // A new turn: no button holds the keyboard, and Space presses none.
        QVERIFY(!FocusOnAButton());
        const QString before = w.lblBet[1]->text();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
        QTest::keyClick(&w, Qt::Key_Return);
        QCOMPARE(w.lblBet[1]->text(), before);
        if (key == Qt::Key_Space) w.cmdPlay[4]->setFocus(Qt::TabFocusReason);  // moved there this turn
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(key),
                        key == Qt::Key_Space ? Qt::NoModifier : Qt::AltModifier);
        QTRY_COMPARE(platform.betRequests.size(), size_t(key == Qt::Key_B));
        QTRY_COMPARE(w.lblBet[1]->text(), words);
        QTRY_VERIFY(!FocusOnAButton());
    }

    // The same seeded hands, once undisturbed and once with every form that
    // the table opens brought up and closed at every step.
    void openingFormsNeverChangesAHand() {
        QStringList record[2];
        uint64_t draws[2];
        for (int disturbed = 0; disturbed < 2; ++disturbed) {
            FormsPlatform platform;
            frmMain w(QCoreApplication::applicationDirPath().toStdString(), &platform);
            platform.w = &w;
            w.show();
            w.game.rnd.SeedDeterministic(11);
            platform.newGames.push_back({false, "Single Table", "80", "Fast"});
            w.mnuNew->trigger();
            while (w.game.HandsPlayed <= 4 && !w.game.GameEnded) {
                if (disturbed) {
                    for (QAction* a : {w.mnuStandings, w.mnuFloor, w.mnuHelpIndex, w.mnuRules, w.mnuAbout})
                        a->trigger();
                    emit w.lblPot->clicked();
                }
                QStringList step;
                for (int s = 1; s <= kSeats; ++s)
                    step << w.lblBet[s]->text() << w.lblPaid[s]->text() << w.lblBank[s]->text()
                         << QString::number(Shows(w.icard[s]));
                record[disturbed] << step.join('|');
                if (TimerId t = test::RunningTimer(w); t != kTimerCount)
                    w.TimerTick(t);
                else if (Shows(w.cmdDeal))
                    w.cmdDeal->click();
                else
                    w.cmdPlay[w.cmdPlay[2]->isEnabled() ? 2 : 1]->click();
            }
            draws[disturbed] = w.game.rnd.Draws();
        }
        QVERIFY(record[0].size() > 50);  // four whole hands
        QCOMPARE(record[1], record[0]);
        QCOMPARE(draws[1], draws[0]);
    }

    void dialogKeys() {
        frmNewGame newGame(2);
        Activate(newGame);
        QCOMPARE(newGame.focusWidget(), newGame.cbGameType);
        QTest::keyClick(&newGame, Qt::Key_Return);
        QVERIFY(!newGame.isVisible() && !newGame.Choices().cancelled);
        test::ScriptedPlatform platform;
        frmBetAmount bet(BetAmountRequest{0, 0, 0, 123400}, platform);
        bet.show();
        QApplication::clipboard()->setText("1200");
        QTest::keyClick(bet.txtBetAmount, Qt::Key_V, Qt::ControlModifier);
        QTest::keyClick(bet.txtBetAmount, Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(bet.txtBetAmount->selectedText(), QString("1200"));
        QTest::keyClick(bet.txtBetAmount, Qt::Key_Escape);
        QVERIFY(!bet.isVisible() && bet.BetAmount == 0);
        QTemporaryDir dir;
        frmRankings standings(test::WriteStnd(dir, test::EvenField(1000)));
        Activate(standings);
        for (auto [key, page] : {std::pair{Qt::Key_PageDown, 2},
                                 {Qt::Key_End, 40},
                                 {Qt::Key_PageUp, 39},
                                 {Qt::Key_Home, 1},
                                 {Qt::Key_PageUp, 1},
                                 {Qt::Key_End, 40}}) {
            QTest::keyClick(&standings, key);
            QCOMPARE(standings.lblPage->text(), QString("Page %1").arg(page));
        }
        QTest::keyClick(&standings, Qt::Key_Return);
        QVERIFY(!standings.isVisible());
    }
};

QTEST_MAIN(WindowKeysTest)
#include "window_keys_test.moc"
