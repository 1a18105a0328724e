// The window and its forms on the offscreen platform: a heads-up hand played by
// clicks and timer ticks, the exit question, the dialogs by keys, and the field
// views by clicks. Each form is photographed beside the test program.
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QtTest>
#include <fstream>

#include "tests/support/scripted_platform.h"
#include "views/frm_bet_amount.h"
#include "views/frm_casino_floor.h"
#include "views/frm_help.h"
#include "views/frm_main.h"
#include "views/frm_new_game.h"
#include "views/frm_player_name.h"
#include "views/frm_rankings.h"
#include "views/frm_splash.h"
#include "views/frm_tip.h"

using namespace holdem;

namespace {
bool Shows(QWidget* w) { return w->isVisibleTo(w->parentWidget()); }
// Shown and photographed; no visible label cuts its text.
void Shot(QWidget& form, const QString& name) {
    form.show();
    QVERIFY(form.grab().save(name + ".png"));
    for (QLabel* l : form.findChildren<QLabel*>())
        QVERIFY2(!l->isVisible() || l->fontMetrics().horizontalAdvance(l->text()) <= l->width(),
                 qPrintable(l->text()));
}
void Tick(frmMain& w, TimerId id, int times = 1) {
    for (int k = 0; k < times; ++k) {
        QVERIFY(std::count_if(w.timers.begin(), w.timers.end(), [](QTimer* t) { return t->isActive(); }) ==
                1);
        QVERIFY2(w.timers[id]->isActive(), qPrintable(QString::number(id)));
        w.TimerTick(id);
    }
}
}  // namespace

class WindowTest : public QObject {
    Q_OBJECT
    QTemporaryDir dir_;
    std::string Folder() { return dir_.path().toStdString() + "/"; }

private slots:
    void initTestCase() { QLocale::setDefault(QLocale::c()); }

    // Seat 1 against seat 2. With every shuffle draw 0 the button goes to seat 2 and seat 2's
    // King-high straight flush beats seat 1's; seat 2 checks flop and turn and calls the river.
    void aHeadsUpHandByClicks() {
        test::ScriptedPlatform platform;
        frmMain w(QCoreApplication::applicationDirPath().toStdString(), &platform);
        Game& g = w.game;
        g.TournamentSize = 8;
        for (int s = 1; s <= kSeats; ++s)
            std::tie(g.RosterName[s], g.RosterNumber[s], g.RosterBank[s], g.RosterPlace[s]) =
                std::make_tuple(s == 1 ? "Ann Player" : "Bob Bluff", s, s <= 2 ? 10000 : 0, s <= 2 ? 0 : s);
        std::tie(g.PlayersLeft, g.NextFinishPlace, g.HandsPlayed, g.ButtonSeat, g.SmallBlind) =
            std::make_tuple(2, 2, 1, 1, 100);
        g.view.cmdDeal.visible = g.view.mnuSave.enabled = true;
        std::vector<float> draws(52, 0.0f);
        draws.insert(draws.end(), 4, 0.99f);
        g.rnd.Script(draws);
        platform.betAmounts.push_back(500);
        w.Redraw();
        w.show();
        QVERIFY(w.cmdDeal->geometry() == w.cmdPlay[1]->geometry() &&
                w.cmdFloor->geometry() == w.cmdPlay[4]->geometry());
        QTest::mouseClick(w.cmdDeal, Qt::LeftButton);
        QVERIFY(!Shows(w.cmdDeal) && !w.mnuSave->isEnabled() && Shows(w.lblBlind) && Shows(w.iButton[2]));
        QCOMPARE(w.lblBet[1]->text() + "|" + w.lblBet[2]->text() + "|" + w.lblPot->text(),
                 QString("Small Blind: $100|Large Blind: $200|300"));
        w.mnuSlowSpeed->trigger();  // at once, on the running timer too
        QCOMPARE(std::make_pair(w.timers[TimerDealHole]->interval(), w.mnuMediumSpeed->isChecked()),
                 std::make_pair(550, false));
        Tick(w, TimerDealHole, 4);  // empty seats cost no tick
        QVERIFY(Shows(w.icard[10]) && !Shows(w.icard[3]) && !Shows(w.lblBlind));
        Shot(w, "window_dealt");
        Tick(w, TimerBetHole);
        QVERIFY(Shows(w.cmdPlay[1]) && !w.cmdPlay[1]->isEnabled() && w.cmdPlay[2]->isEnabled() &&
                !Shows(w.cmdStandings));
        QTest::mouseClick(w.lblPot, Qt::LeftButton);
        QCOMPARE(std::make_pair(platform.breakdowns.at(0).bet[1], platform.breakdowns[0].total),
                 std::make_pair(100, 300));
        QTest::mouseClick(w.cmdPlay[2], Qt::LeftButton);
        QCOMPARE(w.lblBet[1]->text() + "|" + w.lblPot->text(), QString("Called $100|400"));
        Tick(w, TimerDealFlop, 3);
        for (TimerId bet : {TimerBetFlop, TimerBetTurn}) {
            Tick(w, bet);
            QTest::mouseClick(w.cmdPlay[1], Qt::LeftButton);
            QCOMPARE(w.lblBet[1]->text(), QString("Checked"));
            Tick(w, bet);
            Tick(w, bet == TimerBetFlop ? TimerDealTurn : TimerDealRiver);
        }
        Tick(w, TimerBetRiver);
        QTest::mouseClick(w.cmdPlay[3], Qt::LeftButton);
        Tick(w, TimerBetRiver);
        Tick(w, TimerHandOver);
        QCOMPARE(w.lblPaid[2]->text() + "|" + w.lblBank[1]->text() + "|" + w.lblBank[2]->text(),
                 QString("Paid $1,400|9,300|10,700"));
        QVERIFY(Shows(w.lblPaid[2]) && !Shows(w.lblPaid[1]) && Shows(w.cmdFloor) && w.mnuSaveAs->isEnabled());
        QCOMPARE(std::make_tuple(platform.sounds.back(),
                                 std::count(platform.sounds.begin(), platform.sounds.end(), "DEAL"),
                                 platform.betRequests.at(0).MaxBetAmount, g.rnd.Remaining()),
                 std::make_tuple(std::string("LOSTHAND"), std::ptrdiff_t(9), 9800, std::size_t(0)));
        Shot(w, "window_showdown");
        w.mnuSound->trigger();
        QVERIFY(!g.SoundOn && !w.mnuSound->isChecked());
    }

    // Which exits ask, by the way out and the state of the game, and what each answer does.
    void theExitQuestion() {
        const int no = int(MsgAnswer::No), yes = int(MsgAnswer::Yes), cancel = int(MsgAnswer::Cancel);
        const int cases[][8] = {// close box, user's bank, hands, unsaved, ended, players left, answer, asks
                                {0, 5000, 2, 1, 0, 8, no, 1},     {1, 5000, 2, 1, 0, 8, no, 1},
                                {1, 5000, 1, 1, 0, 8, no, 0},     {0, 5000, 5, 0, 0, 8, no, 0},
                                {1, 0, 5, 1, 1, 8, no, 0},        {0, 5000, 5, 1, 1, 8, no, 0},
                                {1, 5000, 5, 1, 1, 8, no, 1},     {0, 80000, 5, 1, 0, 1, no, 1},
                                {1, 80000, 5, 1, 0, 1, no, 0},    {0, 5000, 2, 1, 0, 8, cancel, 1},
                                {1, 5000, 2, 1, 0, 8, cancel, 1}, {0, 5000, 2, 1, 0, 8, yes, 1}};
        for (const auto& [closeBox, userBank, hands, unsaved, ended, left, answer, asks] : cases) {
            QFile::remove(dir_.filePath("settings.dft"));
            QFile::remove(dir_.filePath("mine.sgf"));
            test::ScriptedPlatform platform;
            frmMain w(Folder(), &platform);
            int quits = 0;
            w.onQuit = [&quits] { ++quits; };
            w.Start();  // the splash, then the tip, over the shown window
            QVERIFY(platform.infos == std::vector<InfoForm>({InfoForm::Splash, InfoForm::Tip}) &&
                    w.cmdDeal->isHidden());
            Game& g = w.game;
            g.TournamentSize = 8;
            for (int s = 1; s <= kSeats; ++s)
                std::tie(g.RosterNumber[s], g.RosterBank[s]) = std::make_tuple(s, s == 1 ? userBank : 10000);
            std::tie(g.HandsPlayed, g.GameUnsaved, g.GameEnded, g.PlayersLeft, g.ButtonSeat) =
                std::make_tuple(hands, unsaved, ended, left, 3);
            w.mnuSlowSpeed->trigger();  // the settings of the run are written on the way out
            platform.answers.push_back(MsgAnswer(answer));
            platform.savePaths.push_back(dir_.filePath("mine.sgf").toStdString());
            const bool leaves = !(asks && answer == cancel), saves = asks && answer == yes;
            QVERIFY(closeBox ? w.close() == leaves : w.mnuExit_Click() == leaves);
            QCOMPARE(platform.messages.size(), std::size_t(asks));
            if (asks)
                QCOMPARE(platform.messages[0].text + platform.messages[0].title,
                         std::string("Do you want to save the current game?Exit"));
            if (asks)
                QVERIFY(platform.messages[0].icon == MsgIcon::Information &&
                        platform.messages[0].buttons == MsgButtons::YesNoCancel);
            QFile saved(dir_.filePath("mine.sgf")), settings(dir_.filePath("settings.dft"));
            QCOMPARE(saved.open(QIODevice::ReadOnly) &&
                         saved.readAll().startsWith("8," + QByteArray::number(hands) + ",3,"),
                     saves);
            QCOMPARE(settings.open(QIODevice::ReadOnly) && settings.readAll() == "3,#TRUE#,#TRUE#\r\n",
                     leaves);
            QCOMPARE(std::make_tuple(quits, w.isVisible(), g.GameUnsaved),
                     std::make_tuple(int(leaves), !leaves, unsaved && !saves));
        }
    }

    // Only digits get through; OK or Enter refuses with a message and keeps the dialog, or closes
    // it with the typed amount plus the $1,200 to call.
    void theBetDialogByKeys() {
        const std::tuple<const char*, bool, const char*, const char*, int> cases[] = {
            // typed, Enter, left, message, amount
            {"1a2-b.0 0x,", true, "1200", "", 2400},
            {"", true, "", "No bet entered", -1},
            {"0", false, "", "No bet entered", -1},
            {"150", false, "150", "You must bet in multiples of $100.", -1},
            {"8800", false, "", "You've only got $9,900.", -1},
            {"8700", true, "8700", "", 9900},
            {"0", true, "0", "", 0}};
        for (const auto& [typed, enter, left, message, amount] : cases) {
            test::ScriptedPlatform platform;
            frmBetAmount form(BetAmountRequest{2, 1400, 1200, 9900}, platform);
            Shot(form, "form_bet_amount");
            QTest::keyClicks(form.txtBetAmount, typed);
            if (enter)
                QTest::keyClick(form.txtBetAmount, Qt::Key_Return);
            else
                QTest::mouseClick(form.cmdOK, Qt::LeftButton);
            QCOMPARE(std::make_tuple(form.txtBetAmount->text(),
                                     platform.messages.empty() ? "" : platform.messages[0].text,
                                     form.isVisible(), form.BetAmount),
                     std::make_tuple(QString(left), std::string(message), amount < 0, std::max(amount, 0)));
        }
    }

    void theOtherDialogs() {
        frmNewGame newGame(3);
        Shot(newGame, "form_new_game");
        QVERIFY(newGame.cbSpeed->currentText() == "Slow" && !newGame.cbPlayers->isEnabled());
        newGame.cbGameType->setCurrentText("Tournament");
        newGame.cbPlayers->setCurrentText("1,000");
        QTest::mouseClick(newGame.lblOK, Qt::LeftButton);
        QCOMPARE(newGame.Choices().gameType + newGame.Choices().players, std::string("Tournament1,000"));
        frmPlayerName name;
        Shot(name, "form_player_name");
        QTest::keyClicks(name.txtPlayerName, "Ann \"Ace\" Lee");
        QTest::keyClick(name.txtPlayerName, Qt::Key_Return);
        QCOMPARE(std::make_pair(name.isVisible(), name.Entry()),
                 std::make_pair(false, std::string("Ann Ace Lee")));
        frmSplash splash(QCoreApplication::applicationDirPath().toStdString() + "/");
        Shot(splash, "form_splash");
        splash.timerSplash_Timer();
        QVERIFY(splash.isVisible() && splash.lblVersion->text() == "Version 1.1");
        QTest::keyClick(&splash, Qt::Key_Space);
        QVERIFY(!splash.isVisible() && !splash.timerSplash->isActive());
    }

    // stnd.dat of 30: the user out first (last line), player 5 far ahead; the view pages and finds
    // the user; the floor names a clicked seat; the tip and help forms turn over.
    void theFieldViewsByClicks() {
        std::ofstream(Folder() + "stnd.dat", std::ios::binary) << "30,12,3,200\r\n";
        for (int p = 1; p <= 30; ++p)
            std::ofstream(Folder() + "stnd.dat", std::ios::app | std::ios::binary)
                << p << ",\"" << (p == 1 ? "You" : "P" + std::to_string(p)) << "\","
                << (p == 1   ? 0
                    : p == 5 ? 1234567
                             : 10000)
                << "," << (p == 1 ? 30 : 0) << "," << p << "\r\n";
        frmRankings standings(Folder() + "stnd.dat");
        Shot(standings, "form_standings");
        QCOMPARE(standings.lblName[1]->text() + standings.lblBank[1]->text() + standings.lblRank[26]->text() +
                     standings.lblBank[26]->text(),
                 QString("P51,234,56730"
                         "0"));
        QTest::mouseClick(standings.lblNext, Qt::LeftButton);
        QVERIFY(standings.lblPage->text() == "Page 2" && !standings.lblRank[26]->isVisible() &&
                !standings.lblNext->isEnabled());
        QCOMPARE(standings.lblName[5]->text() + standings.lblBank[5]->text(), QString("You--"));
        frmCasinoFloor floor(Folder() + "stnd.dat");
        Shot(floor, "form_floor");
        QTest::mouseClick(floor.sSeat[1], Qt::LeftButton);  // out: takes no click
        QTest::mouseClick(floor.sSeat[5], Qt::LeftButton);
        QCOMPARE(std::make_tuple(floor.lblSeatData->text(), floor.sSeat[5]->colour(),
                                 floor.sSeat[1]->colour(), floor.lblPlayers->text()),
                 std::make_tuple(QString("#5 P5   $1,234,567"), QColor(255, 255, 255), QColor(64, 0, 0),
                                 QString("Players Remaining: 29")));
        std::ofstream(Folder() + "TIPOFDAY.TXT", std::ios::binary) << "Alpha\r\n\r\nGamma\r\n";
        test::ScriptedPlatform platform;
        Game game(platform);
        game.AppFolder = Folder();
        game.rnd.Script({0.7f, 0.3f});  // tip 3, then tip 1
        frmTip tip(game);
        Shot(tip, "form_tip");
        QTest::mouseClick(tip.cmdNextTip, Qt::LeftButton);
        QTest::mouseClick(tip.chkLoadTipsAtStartup, Qt::LeftButton);
        QCOMPARE(std::make_tuple(tip.lblTipText->text(), game.TipsAtStartup, game.view.mnuTips.checked),
                 std::make_tuple(QString("Alpha"), false, false));
        frmHelp help(QCoreApplication::applicationDirPath().toStdString() + "/");
        help.show();
        QTest::mouseClick(help.cmdNext, Qt::LeftButton);
        Shot(help, "form_help2");
        QVERIFY(help.Page() == 2 && help.cmdPrevious->isEnabled() && !help.cmdNext->isEnabled());
    }
};

QTEST_MAIN(WindowTest)
#include "window_test.moc"
