// The start of the program in its order, and the two ways out with their
// question about saving.
#include <QAction>
#include <QFile>
#include <QMenu>
#include <QPushButton>
#include <QtTest>

#include "tests/support/scripted_platform.h"
#include "views/frm_main.h"

using namespace holdem;

namespace {

// Notes what the window shows at the moment each form opens.
class StartPlatform : public test::ScriptedPlatform {
public:
    void ShowInfo(InfoForm form) override {
        ScriptedPlatform::ShowInfo(form);
        seen.push_back({form, window->isVisible(), window->mnuTips->isChecked(), window->game.StandingsPath});
    }
    frmMain* window = nullptr;
    std::vector<std::tuple<InfoForm, bool, bool, std::string>> seen;  // form, window shown, tips mark, path
};

QByteArray ReadAll(const QString& path) {
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}
void WriteAll(const QString& path, const QByteArray& bytes) {
    QFile f(path);
    QVERIFY(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
    f.write(bytes);
}

}  // namespace

class WindowStartExitTest : public QObject {
    Q_OBJECT
    std::unique_ptr<QTemporaryDir> dir_;
    QString Settings() { return dir_->filePath("settings.dft"); }
    std::string Folder() { return dir_->path().toStdString() + "/"; }

private slots:
    void init() { dir_ = std::make_unique<QTemporaryDir>(); }

    void startsInItsOrderWithSplashThenTip() {
        WriteAll(Settings(), "1,#FALSE#,#TRUE#\r\n");
        StartPlatform platform;
        frmMain w(Folder(), &platform);
        platform.window = &w;
        QVERIFY(!w.isVisible());
        w.Start();
        QCOMPARE(std::make_tuple(w.game.AppFolder, w.game.StandingsPath, w.game.GameSpeed),
                 std::make_tuple(Folder(), Folder() + "stnd.dat", int16_t(1)));
        QVERIFY(w.mnuFastSpeed->isChecked() && !w.mnuMediumSpeed->isChecked() && !w.mnuSound->isChecked() &&
                w.mnuTips->isChecked());
        QCOMPARE(w.game.view.timer[TimerBetHole].interval, 800);
        // The splash comes over the shown window with the path and the tip's mark set; the tip follows.
        QCOMPARE(platform.seen, (std::vector<std::tuple<InfoForm, bool, bool, std::string>>{
                                    {InfoForm::Splash, true, true, Folder() + "stnd.dat"},
                                    {InfoForm::Tip, true, true, Folder() + "stnd.dat"}}));
        // An empty table waits: nothing runs and nothing is dealt.
        for (QTimer* t : w.timers) QVERIFY(!t->isActive());
        QVERIFY(w.cmdDeal->isHidden() && w.cmdPlay[1]->isHidden() && w.lblName[1]->isHidden() &&
                w.picTableMoney->isHidden());
        QVERIFY(!w.mnuSave->isEnabled() && !w.mnuSaveAs->isEnabled() && w.mnuNew->isEnabled() &&
                w.mnuOpen->isEnabled());
        QCOMPARE(w.windowTitle(), QString("Texas Hold'em"));
        QCOMPARE(w.centralWidget()->size(), QSize(755, 508));
        QCOMPARE(w.picTableMoney->size(), QSize(755, 510));

        WriteAll(Settings(), "3,#TRUE#,#FALSE#\r\n");  // no tip when switched off
        StartPlatform quiet;
        frmMain q(Folder(), &quiet);
        quiet.window = &q;
        q.Start();
        QCOMPARE(quiet.infos, std::vector<InfoForm>{InfoForm::Splash});
        QVERIFY(q.mnuSlowSpeed->isChecked() && q.mnuSound->isChecked() && !q.mnuTips->isChecked());
    }

    void menuCaptionsAndShortcuts() {
        test::ScriptedPlatform platform;
        frmMain w(Folder(), &platform);
        QStringList captions;
        for (QMenu* m : {w.mnuFile, w.mnuTourney, w.mnuSpeed}) captions << m->title();
        for (QAction* a : {w.mnuNew, w.mnuSaveAs, w.mnuExit, w.mnuFloor, w.mnuTips, w.mnuHelpIndex,
                           w.mnuRules, w.mnuAbout})
            captions << a->text();
        captions << w.cmdPlay[3]->text() << w.cmdFloor->text();
        QCOMPARE(captions, QStringList({"&File", "&Tourney", "&Speed...", "&New...", "Save &As", "E&xit",
                                        "&View Floor", "&Tip of the Day", "Help", "Hold'em &Rules", "A&bout",
                                        "&Bet/Raise ", "&View Floor"}));
        QCOMPARE((QList<QKeySequence>{w.mnuNew->shortcut(), w.mnuOpen->shortcut(), w.mnuSave->shortcut(),
                                      w.mnuHelpIndex->shortcut()}),
                 (QList<QKeySequence>{QKeySequence("Ctrl+N"), QKeySequence("Ctrl+O"), QKeySequence("Ctrl+S"),
                                      QKeySequence("F1")}));
        // Before any settings: medium, sound on, tips on.
        QVERIFY(w.mnuMediumSpeed->isChecked() && w.mnuSound->isChecked() && w.mnuTips->isChecked());
        for (QAction* a : {w.mnuHelpIndex, w.mnuRules, w.mnuAbout}) a->trigger();
        QCOMPARE(platform.infos, (std::vector<InfoForm>{InfoForm::Help, InfoForm::Rules, InfoForm::About}));
    }

    // Which exits ask, by the way out and the state of the game, and what each answer does.
    void theExitQuestion_data() {
        QTest::addColumn<bool>("closeBox");
        QTest::addColumn<int>("userBank");
        QTest::addColumn<int>("hands");
        QTest::addColumn<bool>("unsaved");
        QTest::addColumn<bool>("ended");
        QTest::addColumn<int>("left");
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("asks");
        const int no = int(MsgAnswer::No), yes = int(MsgAnswer::Yes), cancel = int(MsgAnswer::Cancel);
        QTest::newRow("menu, in play") << false << 5000 << 2 << true << false << 8 << no << true;
        QTest::newRow("box, in play") << true << 5000 << 2 << true << false << 8 << no << true;
        QTest::newRow("menu, one hand only") << false << 5000 << 1 << true << false << 8 << no << false;
        QTest::newRow("box, one hand only") << true << 5000 << 1 << true << false << 8 << no << false;
        QTest::newRow("menu, saved") << false << 5000 << 5 << false << false << 8 << no << false;
        QTest::newRow("box, user busted") << true << 0 << 5 << true << true << 8 << no << false;
        // The two ways test different fields.
        QTest::newRow("menu, ended, players left") << false << 5000 << 5 << true << true << 8 << no << false;
        QTest::newRow("box, ended, players left") << true << 5000 << 5 << true << true << 8 << no << true;
        QTest::newRow("menu, won, one left") << false << 80000 << 5 << true << false << 1 << no << true;
        QTest::newRow("box, won, one left") << true << 80000 << 5 << true << false << 1 << no << false;
        QTest::newRow("menu, cancel") << false << 5000 << 2 << true << false << 8 << cancel << true;
        QTest::newRow("box, cancel") << true << 5000 << 2 << true << false << 8 << cancel << true;
        QTest::newRow("menu, yes") << false << 5000 << 2 << true << false << 8 << yes << true;
    }
    void theExitQuestion() {
        QFETCH(bool, closeBox);
        QFETCH(int, userBank);
        QFETCH(int, hands);
        QFETCH(bool, unsaved);
        QFETCH(bool, ended);
        QFETCH(int, left);
        QFETCH(int, answer);
        QFETCH(bool, asks);
        WriteAll(Settings(), "2,#TRUE#,#TRUE#\r\n");
        test::ScriptedPlatform platform;
        frmMain w(Folder(), &platform);
        int quits = 0;
        w.onQuit = [&quits] { ++quits; };
        w.Start();
        Game& g = w.game;
        g.TournamentSize = 8;
        for (int s = 1; s <= kSeats; ++s) {
            g.RosterName[s] = "P" + std::to_string(s);
            g.RosterNumber[s] = static_cast<int16_t>(s);
            g.RosterBank[s] = s == 1 ? userBank : 10000;
        }
        g.HandsPlayed = static_cast<int16_t>(hands);
        g.GameUnsaved = unsaved;
        g.GameEnded = ended;
        g.PlayersLeft = static_cast<int16_t>(left);
        g.ButtonSeat = 3;
        g.SmallBlind = 100;
        w.mnuSlowSpeed->trigger();  // the settings of the run are written on the way out
        platform.answers.push_back(MsgAnswer(answer));
        platform.savePaths.push_back(dir_->filePath("mine.sgf").toStdString());
        const bool leaves = !(asks && answer == int(MsgAnswer::Cancel));
        if (closeBox)
            w.close();
        else
            QCOMPARE(w.mnuExit_Click(), leaves);

        QCOMPARE(platform.messages.size(), size_t(asks));
        if (asks) {
            const auto& m = platform.messages[0];
            QCOMPARE(std::make_tuple(m.text, m.title, m.icon, m.buttons),
                     std::make_tuple(std::string("Do you want to save the current game?"),
                                     std::string("Exit"), MsgIcon::Information, MsgButtons::YesNoCancel));
        }
        const bool saves = asks && answer == int(MsgAnswer::Yes);
        QCOMPARE(platform.saveDialogs.size(), size_t(saves));
        QCOMPARE(ReadAll(dir_->filePath("mine.sgf")).startsWith("8," + QByteArray::number(hands) + ",3,100"),
                 saves);
        QCOMPARE(std::make_tuple(quits, w.isVisible(), g.GameUnsaved),
                 std::make_tuple(int(leaves), !leaves, unsaved && !saves));
        QCOMPARE(ReadAll(Settings()).left(2), QByteArray(leaves ? "3," : "2,"));
    }
};

QTEST_MAIN(WindowStartExitTest)
#include "window_start_exit_test.moc"
