// The window, its forms, pictures and sounds offscreen at a device pixel ratio of 2; each form photographed.
#include <QtTest>
#include <QtWidgets>
#include <fstream>

#include "tests/support/scripted_platform.h"
#include "views/frm_about.h"
#include "views/frm_bet_amount.h"
#include "views/frm_casino_floor.h"
#include "views/frm_help.h"
#include "views/frm_main.h"
#include "views/frm_new_game.h"
#include "views/frm_player_name.h"
#include "views/frm_pot_breakdown.h"
#include "views/frm_rankings.h"
#include "views/frm_rules.h"
#include "views/frm_splash.h"
#include "views/frm_tip.h"
#include "views/table_scene.h"

using namespace holdem;

namespace {
// clang-format off
const std::tuple<Qt::Key, bool, QString> kKeys[] = {  // key, on the flop, lblBet(1) after the press
    {Qt::Key_C, false, "Called $100"}, {Qt::Key_F, false, "Folded"}, {Qt::Key_B, false, "Amount to Call: $100"},
    {Qt::Key_H, true, "Checked"}, {Qt::Key_Space, true, "Folded"}};  // Space on Fold, moved there
const int no = int(MsgAnswer::No), yes = int(MsgAnswer::Yes), cancel = int(MsgAnswer::Cancel);
const int kExits[][8] = {  // close box, user's bank, hands, unsaved, ended, players left, answer, asks
    {0, 5000, 2, 1, 0, 8, no, 1}, {1, 5000, 2, 1, 0, 8, no, 1}, {1, 5000, 1, 1, 0, 8, no, 0}, {0, 5000, 5, 0, 0, 8, no, 0},
    {1, 0, 5, 1, 1, 8, no, 0}, {0, 5000, 5, 1, 1, 8, no, 0}, {1, 5000, 5, 1, 1, 8, no, 1}, {0, 80000, 5, 1, 0, 1, no, 1},
    {1, 80000, 5, 1, 0, 1, no, 0}, {0, 5000, 2, 1, 0, 8, cancel, 1}, {1, 5000, 2, 1, 0, 8, cancel, 1}, {0, 5000, 2, 1, 0, 8, yes, 1}};
enum { OK, Enter, Escape };  // the bet dialog's ways out
const std::tuple<const char*, const char*, int, const char*, const char*, int> kBetKeys[] = {
    // pasted, typed, way out, left, message, amount
    {"", "1a2-b.0 0x,", Enter, "1200", "", 2400}, {"", "", Enter, "", "No bet entered", -1}, {"", "0", OK, "", "No bet entered", -1},
    {"", "150", OK, "150", "You must bet in multiples of $100.", -1}, {"", "8800", OK, "", "You've only got $9,900.", -1},
    {"1200", "", Escape, "1200", "", 0}, {"87", "00", Enter, "8700", "", 9900}};
const std::tuple<const char*, QSize, qreal, bool> kScenes[] = {  // name, client area, scale, showdown
    {"as_laid_out_dealing", {755, 508}, 1.0, false}, {"as_laid_out_showdown", {755, 508}, 1.0, true},
    {"wide_showdown", {1400, 800}, 800 / 508.0, true}, {"twice_dealing", {1510, 1016}, 2.0, false},
    {"smaller_than_laid_out", {600, 400}, 1.0, true}};
const QList<QPair<QString, QSize>> kPictures = {{"table", {757, 527}}, {"table_winner", {758, 517}}, {"arrow_right", {34, 16}},
    {"arrow_left", {34, 16}}, {"dealer", {34, 34}}, {"card_back", {73, 97}}, {"logo", {109, 108}}, {"icon", {48, 48}},
    {"tip", {32, 32}}, {"help1", {401, 478}}, {"help2", {397, 425}}, {"rules1", {406, 365}}, {"rules2", {402, 407}}};
const std::tuple<const char*, int, double> kSounds[] = {  // name, rate, seconds
    {"BUTTONCLICK", 22050, 0.049}, {"DEAL", 44100, 0.178}, {"WONHAND", 44100, 0.513}, {"LOSTHAND", 44100, 0.198},
    {"MOVED", 44100, 1.683}, {"TWOMOVED", 44100, 2.981}, {"THREEMOVED", 44100, 2.542}, {"FOURMOVED", 44100, 2.586},
    {"FIVEMOVED", 44100, 2.728}, {"SIXMOVED", 44100, 2.299}, {"GAMEOVER", 44100, 3.483}, {"WIN", 44100, 4.621}};
// clang-format on
// Seat 2 has the button and a straight flush over seat 1's on the all-zero shuffle; it checks, checks, calls.
void SetUpHeadsUp(frmMain& w) {
    Game& g = w.game;
    for (int s = 1; s <= kSeats; ++s)
        std::tie(g.RosterName[s], g.RosterNumber[s], g.RosterBank[s], g.RosterPlace[s]) =
            std::tuple(s == 1 ? "Ann Player" : "Bob Bluff", s, s > 2 ? 0 : 10000, s > 2 ? s : 0);
    std::tie(g.TournamentSize, g.PlayersLeft, g.NextFinishPlace, g.HandsPlayed, g.ButtonSeat, g.SmallBlind) =
        std::tuple(8, 2, 2, 1, 1, 100);
    g.view.mnuSave.enabled = g.view.cmdDeal.visible = g.view.cmdStandings.visible = g.view.cmdFloor.visible =
        true;
    std::vector<float> draws(56, 0.0f);
    std::fill(draws.begin() + 52, draws.end(), 0.99f);
    g.rnd.Script(draws);
    w.Redraw(), w.show();
}
// The one QTimer running, kTimerCount unless exactly one runs.
TimerId RunningTimer(const frmMain& w) {
    int found = kTimerCount, count = 0;
    for (int id = 0; id < kTimerCount; ++id)
        if (w.timers[id]->isActive()) found = id, ++count;
    return static_cast<TimerId>(count == 1 ? found : kTimerCount);
}
bool Shows(QWidget* w) { return w->isVisibleTo(w->window()); }
void Activate(QWidget& w) {
    w.show(), w.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&w));
}
// Shown, active, and saved beside the test program, to be looked at; no visible label cuts its text.
void Shot(QWidget& form, const QString& name) {
    Activate(form);
    QVERIFY(form.grab().save(QCoreApplication::applicationDirPath() + "/" + name + ".png"));
    for (QLabel* l : form.findChildren<QLabel*>())
        QVERIFY2(!l->isVisible() || l->fontMetrics().horizontalAdvance(l->text()) <= l->width(),
                 qPrintable(name + ": " + l->text()));
}
QByteArray Read(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
// Opens the real forms; while each one's event loop runs, the due hand timer fires, then Escape.
class FormsPlatform : public test::ScriptedPlatform {
public:
    frmMain* w = nullptr;
    void ShowPotBreakdown(const PotBreakdown& b) override { Open(new frmPotBreakdown(b, w)); }
    void ShowStandings(const std::string& path) override { Open(new frmRankings(path, w)); }
    void ShowFloor(const std::string& path) override { Open(new frmCasinoFloor(path, w)); }
    void ShowInfo(InfoForm f) override {
        const std::string& at = w->game.AppFolder;
        if (f == InfoForm::Help) return Open(new frmHelp(at, w));
        Open(f == InfoForm::Rules ? static_cast<QDialog*>(new frmRules(at, w)) : new frmAbout(at, w));
    }
    void Open(QDialog* form) {
        QTimer::singleShot(0, form, [this, form] {
            if (TimerId due = RunningTimer(*w); due != kTimerCount) w->TimerTick(due);
            QTest::keyClick(form, Qt::Key_Escape);
        });
        std::unique_ptr<QDialog>(form)->exec();
    }
};
std::string Here() { return QCoreApplication::applicationDirPath().toStdString() + "/"; }
bool FocusOnAButton() { return qobject_cast<QPushButton*>(QApplication::focusWidget()); }
QString MenuTitles(frmMain& w) { return w.mnuSettings->title() + w.mnuFile->title() + w.mnuHelp->title(); }
void Tick(frmMain& w, TimerId id, int times = 1) {
    for (int k = 0; k < times; ++k)
        QVERIFY2(RunningTimer(w) == id && (w.TimerTick(id), true), qPrintable(QString::number(id)));
}
void RunToTurn(frmMain& w) {
    for (TimerId t; (t = RunningTimer(w)) != kTimerCount;) w.TimerTick(t);
}
// Where a label's text is inked, in the scene's stage.
QRect TextRect(QLabel* label) {
    const QFontMetrics m = label->fontMetrics();
    QSize box(m.horizontalAdvance(label->text()), m.height());
    QRect at = QStyle::alignedRect(Qt::LeftToRight, label->alignment(), box, label->contentsRect());
    return m.tightBoundingRect(label->text()).translated(at.topLeft() + label->pos() + QPoint(0, m.ascent()));
}
// Every seat full with the longest words a seat can show; the disc at every seat.
void FillTable(frmMain& w, bool showdown) {
    View& v = w.game.view;
    for (int s = 1; s <= kSeats; ++s) {
        v.lblName[s] = {"Maximilian Fitzgerald", true};
        v.lblBank[s] = {"1,000,000", true};  // "Chips: $" stays hidden: it abuts the amount
        v.lblBet[s] = {showdown ? "Straight Flush" : "Called $99,900 All In", true};
        v.lblPaid[s] = {"Paid $1,000,000", showdown};
        v.iButton[s].visible = true;
        v.icard[s] = v.icard[s + 8] = {"", true, true, false, int16_t(showdown ? s : 0)};
    }
    for (int k = 17; k <= 21; ++k) v.icard[k] = {"", showdown, true, false, int16_t(k)};
    v.lblPot = {"1,000,000", true};
    v.lblPotLabel = {"Pot: $", true};
    v.lblBlind = {"Blinds: $35,000 - $70,000", !showdown};
    v.lblGoodLuck = {"Final Table!", !showdown};
    w.Redraw();
}
}  // namespace

class WindowTest : public QObject {
    Q_OBJECT
    QTemporaryDir dir_;

private slots:
    void aHeadsUpHandByClicks() {
        test::ScriptedPlatform platform;
        frmMain w(Here(), &platform);
        SetUpHeadsUp(w);
        platform.betAmounts.push_back(500);
        QTest::mouseClick(w.cmdDeal, Qt::LeftButton);
        QVERIFY(!Shows(w.cmdDeal) && !w.mnuSave->isEnabled() && !w.mnuSaveAs->isEnabled() &&
                Shows(w.lblBlind) && Shows(w.iButton[2]));
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
        QTest::mouseClick(w.lblPot, Qt::LeftButton);  // the breakdown as it stands now
        QTest::mouseClick(w.cmdPlay[2], Qt::LeftButton);
        QCOMPARE(w.lblBet[1]->text() + "|" + w.lblPot->text(), QString("Called $100|400"));
        Tick(w, TimerDealFlop, 3);
        for (TimerId bet : {TimerBetFlop, TimerBetTurn}) {
            Tick(w, bet);
            QTest::mouseClick(w.cmdPlay[1], Qt::LeftButton);
            QCOMPARE(w.lblBet[1]->text(), QString("Checked"));
            for (TimerId t : {bet, bet == TimerBetFlop ? TimerDealTurn : TimerDealRiver}) Tick(w, t);
        }
        Tick(w, TimerBetRiver);
        QTest::mouseClick(w.cmdPlay[3], Qt::LeftButton);  // Bet: the platform answers 500
        for (TimerId t : {TimerBetRiver, TimerHandOver}) Tick(w, t);
        QCOMPARE(w.lblPaid[2]->text() + "|" + w.lblBank[1]->text() + "|" + w.lblBank[2]->text(),
                 QString("Paid $1,400|9,300|10,700"));
        QVERIFY(Shows(w.lblPaid[2]) && !Shows(w.lblPaid[1]) && Shows(w.cmdFloor) && w.mnuSaveAs->isEnabled());
        QCOMPARE(std::make_tuple(platform.sounds.back(),
                                 std::count(platform.sounds.begin(), platform.sounds.end(), "DEAL"),
                                 platform.betRequests.at(0).MaxBetAmount, w.game.rnd.Remaining(),
                                 platform.breakdowns.at(0).bet[1], platform.breakdowns[0].total),
                 std::make_tuple(std::string("LOSTHAND"), std::ptrdiff_t(9), 9800, std::size_t(0), 100, 300));
        Shot(w, "window_showdown");
    }
    void accessKeysBetweenHandsAndDuringTheTurn() {
        for (const auto& [key, onTheFlop, words] : kKeys) {
            test::ScriptedPlatform platform;
            frmMain w(Here(), &platform);
            SetUpHeadsUp(w);
            w.mnuSlowSpeed->trigger();  // no QTimer runs out while keys are pressed
            Activate(w);
            // Between hands the buttons take S and V; File and Help keep their letters.
            QCOMPARE(MenuTitles(w), QString("Settings&File&Help"));
            for (Qt::Key k : {Qt::Key_S, Qt::Key_V, Qt::Key_D}) QTest::keyClick(&w, k, Qt::AltModifier);
            QVERIFY(QTest::qWaitFor([&] {
                return platform.standings.size() == 1 && platform.floors.size() == 1 && !Shows(w.cmdDeal);
            }));
            RunToTurn(w);
            if (onTheFlop) QTest::mouseClick(w.cmdPlay[2], Qt::LeftButton), RunToTurn(w);
            QCOMPARE(MenuTitles(w), QString("&SettingsFileHelp"));
            // A new turn: no button holds the keyboard, and Space presses none.
            QVERIFY(!FocusOnAButton());
            const QString before = w.lblBet[1]->text();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
            QTest::keyClick(&w, Qt::Key_Return);
            QCOMPARE(w.lblBet[1]->text(), before);
            if (key == Qt::Key_Space) w.cmdPlay[4]->setFocus(Qt::TabFocusReason);  // moved there this turn
            QTest::keyClick(QApplication::focusWidget(), key,
                            key == Qt::Key_Space ? Qt::NoModifier : Qt::AltModifier);
            QTRY_COMPARE(platform.betRequests.size(), size_t(key == Qt::Key_B));
            QTRY_COMPARE(w.lblBet[1]->text(), words);
            QTRY_VERIFY(!FocusOnAButton());
        }
    }
    // The same seeded hands, undisturbed and with every form of the table opened and closed at every step.
    void openingFormsNeverChangesAHand() {
        QStringList record[2];
        for (int disturbed = 0; disturbed < 2; ++disturbed) {
            FormsPlatform platform;
            frmMain w(Here(), &platform);
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
                if (TimerId t = RunningTimer(w); t != kTimerCount)
                    w.TimerTick(t);
                else  // deal, or call or check
                    (Shows(w.cmdDeal) ? w.cmdDeal : w.cmdPlay[w.cmdPlay[2]->isEnabled() ? 2 : 1])->click();
            }
            record[disturbed] << QString::number(w.game.rnd.Draws());
        }
        QVERIFY(record[0].size() > 50);  // four whole hands
        QCOMPARE(record[1], record[0]);
    }
    // Which exits ask, by the way out and the state of the game, and what each answer does.
    void theExitQuestion() {
        for (const auto& [closeBox, userBank, hands, unsaved, ended, left, answer, asks] : kExits) {
            for (const char* file : {"settings.dft", "mine.sgf"}) QFile::remove(dir_.filePath(file));
            test::ScriptedPlatform platform;
            frmMain w(dir_.path().toStdString() + "/", &platform);
            int quits = 0;
            w.onQuit = [&] { ++quits; };
            w.Start();  // the splash, then the tip, over the shown window
            QVERIFY((platform.infos == std::vector{InfoForm::Splash, InfoForm::Tip}) &&
                    w.cmdDeal->isHidden());
            Game& g = w.game;
            for (int s = 1; s <= kSeats; ++s)
                g.RosterNumber[s] = s, g.RosterBank[s] = s == 1 ? userBank : 10000;
            std::tie(g.TournamentSize, g.HandsPlayed, g.GameUnsaved, g.GameEnded, g.PlayersLeft,
                     g.ButtonSeat) = std::make_tuple(8, hands, unsaved, ended, left, 3);
            w.mnuSlowSpeed->trigger();  // the settings of the run are written on the way out
            platform.answers.push_back(MsgAnswer(answer));
            platform.savePaths.push_back(dir_.filePath("mine.sgf").toStdString());
            const bool leaves = !(asks && answer == cancel), saves = asks && answer == yes;
            QVERIFY(closeBox ? w.close() == leaves : w.mnuExit_Click() == leaves);
            for (const test::MessageCall& m : platform.messages)
                QVERIFY(m.text == "Do you want to save the current game?" && m.title == "Exit" &&
                        m.icon == MsgIcon::Information && m.buttons == MsgButtons::YesNoCancel);
            QCOMPARE(
                std::make_tuple(
                    platform.messages.size(), quits, w.isVisible(), g.GameUnsaved,
                    Read(dir_.filePath("mine.sgf")).startsWith("8," + QByteArray::number(hands) + ",3,"),
                    Read(dir_.filePath("settings.dft")) == "3,#TRUE#,#TRUE#\r\n"),
                std::make_tuple(std::size_t(asks), int(leaves), !leaves, unsaved && !saves, saves, leaves));
        }
    }
    // The bet dialog takes digits only; OK or Enter refuses, or closes with the amount and $1,200 to call.
    void theForms() {
        for (const auto& [pasted, typed, out, left, message, amount] : kBetKeys) {
            test::ScriptedPlatform platform;
            frmBetAmount form(BetAmountRequest{2, 1400, 1200, 9900}, platform);
            Shot(form, "form_bet_amount");
            QApplication::clipboard()->setText(pasted);
            QTest::keyClick(form.txtBetAmount, Qt::Key_V, Qt::ControlModifier);
            QTest::keyClicks(form.txtBetAmount, typed);
            QTest::keyClick(form.txtBetAmount, Qt::Key_A, Qt::ControlModifier);
            QCOMPARE(form.txtBetAmount->selectedText(), form.txtBetAmount->text());
            out == OK ? QTest::mouseClick(form.cmdOK, Qt::LeftButton)
                      : QTest::keyClick(form.txtBetAmount, out == Enter ? Qt::Key_Return : Qt::Key_Escape);
            QCOMPARE(std::make_tuple(form.txtBetAmount->text(),
                                     platform.messages.empty() ? "" : platform.messages[0].text,
                                     form.isVisible(), form.BetAmount),
                     std::make_tuple(QString(left), std::string(message), amount < 0, std::max(amount, 0)));
        }
        // New game: the focus on its first box, closed by OK or Enter; the other forms; standings by keys.
        for (bool byEnter : {false, true}) {
            frmNewGame newGame(3);
            Shot(newGame, "form_new_game");
            QVERIFY(newGame.focusWidget() == newGame.cbGameType && newGame.cbSpeed->currentText() == "Slow" &&
                    !newGame.cbPlayers->isEnabled());
            newGame.cbGameType->setCurrentText("Tournament");
            newGame.cbPlayers->setCurrentText("1,000");
            byEnter ? QTest::keyClick(&newGame, Qt::Key_Return)
                    : QTest::mouseClick(newGame.lblOK, Qt::LeftButton);
            QCOMPARE(std::make_tuple(newGame.isVisible(), newGame.Choices().cancelled,
                                     newGame.Choices().gameType + newGame.Choices().players),
                     std::make_tuple(false, false, std::string("Tournament1,000")));
        }
        frmPlayerName name;
        Shot(name, "form_player_name");
        QTest::keyClicks(name.txtPlayerName, "Ann \"Ace\" Lee");
        QTest::keyClick(name.txtPlayerName, Qt::Key_Return);
        QCOMPARE(std::make_pair(name.isVisible(), name.Entry()),
                 std::make_pair(false, std::string("Ann Ace Lee")));
        frmSplash splash(Here());
        Shot(splash, "form_splash");
        splash.timerSplash_Timer();
        QVERIFY(splash.isVisible() && splash.lblVersion->text() == "Version 1.1");
        QTest::keyClick(&splash, Qt::Key_Space);
        QVERIFY(!splash.isVisible() && !splash.timerSplash->isActive());
        // A field of 1,000 by line: the user "You" first and out last, "P5" far ahead, the rest on 10,000.
        const std::string stnd = dir_.filePath("stnd.dat").toStdString();
        std::ofstream out(stnd, std::ios::binary);
        out << "1000,12,3,200\r\n";
        for (int p = 1; p <= 1000; ++p)
            out << p % 7 << ",\"" << (p == 1 ? "You" : "P" + std::to_string(p)) << "\","
                << (p == 5 ? 1234567 : 10000 * (p > 1)) << "," << (p == 1 ? 1000 : 0) << "," << p << "\r\n";
        out.close();
        frmRankings standings(stnd);
        Shot(standings, "form_standings");
        QCOMPARE(standings.lblName[1]->text() + standings.lblBank[1]->text() + "|" +
                     standings.lblRank[26]->text() + standings.lblBank[26]->text(),
                 QString("P51,234,567|10000"));
        QTest::mouseClick(standings.lblNext, Qt::LeftButton);
        const std::pair<Qt::Key, int> keys[] = {{Qt::Key_PageDown, 3}, {Qt::Key_End, 40},
                                                {Qt::Key_PageUp, 39},  {Qt::Key_Home, 1},
                                                {Qt::Key_PageUp, 1},   {Qt::Key_End, 40}};
        for (auto [key, page] : keys) {
            QTest::keyClick(&standings, key);
            QCOMPARE(standings.lblPage->text(), QString("Page %1").arg(page));
        }
        QVERIFY(!standings.lblRank[26]->isVisible() && !standings.lblNext->isEnabled());
        QCOMPARE(standings.lblName[25]->text() + standings.lblBank[25]->text(), QString("You--"));
        QTest::keyClick(&standings, Qt::Key_Return);
        QVERIFY(!standings.isVisible());
        frmCasinoFloor floor(stnd);
        Shot(floor, "form_floor");
        QTest::mouseClick(floor.sSeat[1], Qt::LeftButton);  // out: takes no click
        QTest::mouseClick(floor.sSeat[5], Qt::LeftButton);
        QCOMPARE(std::make_tuple(floor.lblSeatData->text(), floor.sSeat[5]->colour(),
                                 floor.sSeat[1]->colour(), floor.lblPlayers->text()),
                 std::make_tuple(QString("#5 P5   $1,234,567"), QColor(255, 255, 255), QColor(64, 0, 0),
                                 QString("Players Remaining: 999")));
        std::ofstream(dir_.filePath("TIPOFDAY.TXT").toStdString(), std::ios::binary)
            << "Alpha\r\n\r\nGamma\r\n";
        test::ScriptedPlatform platform;
        Game game(platform);
        game.AppFolder = dir_.path().toStdString() + "/";
        game.rnd.Script({0.7f, 0.3f});  // tip 3, then tip 1
        frmTip tip(game);
        Shot(tip, "form_tip");
        QTest::mouseClick(tip.cmdNextTip, Qt::LeftButton);
        QTest::mouseClick(tip.chkLoadTipsAtStartup, Qt::LeftButton);
        QCOMPARE(std::make_tuple(tip.lblTipText->text(), game.TipsAtStartup, game.view.mnuTips.checked),
                 std::make_tuple(QString("Alpha"), false, false));
        frmHelp help(Here());
        Shot(help, "form_help");
        QTest::mouseClick(help.cmdNext, Qt::LeftButton);
        QVERIFY(help.Page() == 2 && help.cmdPrevious->isEnabled() && !help.cmdNext->isEnabled());
    }
    void theSceneScalesAndNoTextCoversAnother() {
        for (const auto& [name, client, scale, showdown] : kScenes) {
            test::ScriptedPlatform platform;
            frmMain w(Here(), &platform);
            w.show();
            w.resize(w.size() + client - w.centralWidget()->size());
            QTRY_COMPARE(w.centralWidget()->size(), client.expandedTo(TableScene::kBaseSize));
            FillTable(w, showdown);
            TableScene* scene = w.scene();
            QCOMPARE(std::make_tuple(scene->Scale(), w.icard[17]->geometry(), w.cmdPlay[4]->geometry(),
                                     w.lblPot->font().pixelSize()),
                     std::make_tuple(scale, scene->Map(kit::ToPixels({3000, 3120, 1065, 1440})),
                                     scene->Map(kit::ToPixels({6600, 6600, 975, 375})), qRound(18 * scale)));
            const QList<QWidget*> all = scene->Stage()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
            for (QWidget* a : all)
                for (QWidget* b : all) {
                    auto *la = qobject_cast<QLabel*>(a), *lb = qobject_cast<QLabel*>(b);
                    const bool thing = b->objectName().startsWith('i');
                    if (!la || la->text().isEmpty() || !a->isVisibleTo(scene) || !b->isVisibleTo(scene) ||
                        !(thing || (lb && a < b && !lb->text().isEmpty())))
                        continue;
                    QVERIFY2(!TextRect(la).intersects(thing ? b->geometry() : TextRect(lb)),
                             qPrintable(name + (": " + la->text()) + " over " +
                                        (thing ? b->objectName() : lb->text())));
                }
            Shot(w, QString("scale_") + name);
        }
    }
    // Pictures drawn at twice the listed size; hearts 1-13 and diamonds 27-39 red; each arrow points its way.
    void picturesAndSounds() {
        QList<QPair<QString, QSize>> pictures = kPictures;
        for (int card = 1; card <= 52; ++card)
            pictures.append({QString("card_%1").arg(card, 2, 10, QChar('0')), {69, 94}});
        for (const auto& [name, size] : pictures) {
            const QImage image(QString::fromStdString(Here()) + "pictures/" + name + ".png");
            QVERIFY2(image.size() == size * 2, qPrintable(name));
            std::vector<int> white(image.width());  // white pixels by column
            int reds = 0, card = name.mid(5).toInt();
            for (int x = 0; x < image.width(); ++x)
                for (int y = 0; y < image.height(); ++y) {
                    const QColor c = image.pixelColor(x, y);
                    reds += c.alpha() > 200 && c.red() > 150 && c.green() < 80 && c.blue() < 80;
                    white[x] += c.alpha() > 200 && c.red() > 230 && c.green() > 230 && c.blue() > 230;
                }
            const bool rightHeavy =
                std::max_element(white.begin(), white.end()) - white.begin() > image.width() / 2;
            if (name.startsWith("card_") && card > 0)
                QVERIFY2((card - 1) / 13 % 2 == 0 ? reds > 200 : reds == 0, qPrintable(name));
            if (name.startsWith("arrow")) QVERIFY2(rightHeavy == name.endsWith("right"), qPrintable(name));
        }
        // Sounds: plain 16-bit mono PCM at its rate, of about its length, and not next to silent.
        for (const auto& [name, rate, length] : kSounds) {
            const QByteArray bytes = Read(QString::fromStdString(Here()) + "sounds/" + name + ".wav"),
                             fmt = bytes.mid(bytes.indexOf("fmt ") + 8, 16);
            const QByteArray samples = bytes.mid(bytes.indexOf("data") + 8);
            const auto u16 = [&](int at) { return qFromLittleEndian<quint16>(fmt.constData() + at); };
            QCOMPARE(
                std::make_tuple(bytes.left(4) + bytes.mid(8, 4), u16(0), u16(2),
                                qFromLittleEndian<quint32>(fmt.constData() + 4), u16(14)),
                std::make_tuple(QByteArray("RIFFWAVE"), quint16(1), quint16(1), quint32(rate), quint16(16)));
            const double seconds = samples.size() / 2.0 / rate;
            int peak = 0;
            for (qsizetype i = 0; i + 1 < samples.size(); i += 2)
                peak = std::max(peak, std::abs(int(qFromLittleEndian<qint16>(samples.constData() + i))));
            QVERIFY2(seconds > length * 0.6 && seconds < length * 1.6 && peak > 8000, name);
        }
    }
};

int main(int argc, char* argv[]) {
    if (!qEnvironmentVariableIsSet("QT_SCALE_FACTOR")) qputenv("QT_SCALE_FACTOR", "2");
    QApplication app(argc, argv);
    QLocale::setDefault(QLocale::c());
    WindowTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "window_test.moc"
