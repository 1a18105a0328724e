// The start of the program in its order, and the two ways out with their
// question about saving.
#include <QAction>
#include <QFile>
#include <QMenu>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

#include "tests/support/scripted_platform.h"
#include "views/frm_main.h"

using namespace holdem;

namespace {

// Notes what the window shows at the moment each form opens.
class StartPlatform : public test::ScriptedPlatform {
public:
    struct Seen {
        InfoForm form;
        bool windowVisible, tipsChecked;
        std::string standingsPath;
    };
    void ShowInfo(InfoForm form) override {
        ScriptedPlatform::ShowInfo(form);
        seen.push_back({form, window->isVisible(), window->mnuTips->isChecked(), window->game.StandingsPath});
    }
    frmMain* window = nullptr;
    std::vector<Seen> seen;
};

QByteArray ReadAll(const QString& path) {
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly)) return {};
    return f.readAll();
}

void WriteAll(const QString& path, const QByteArray& bytes) {
    QFile f(path);
    QVERIFY(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
    f.write(bytes);
}

// A game in play that has something unsaved: the exit question applies.
void GameInPlay(Game& game) {
    game.TournamentSize = 8;
    for (int s = 1; s <= kSeats; ++s) {
        game.RosterName[s] = "P" + std::to_string(s);
        game.RosterNumber[s] = static_cast<int16_t>(s);
        game.RosterBank[s] = 10000;
    }
    game.RosterBank[1] = 5000;
    game.HandsPlayed = 2;
    game.GameUnsaved = true;
    game.GameEnded = false;
    game.PlayersLeft = 8;
    game.ButtonSeat = 3;
    game.SmallBlind = 100;
}

}  // namespace

class WindowStartExitTest : public QObject {
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> dir_;
    QString Settings() { return dir_->filePath("settings.dft"); }
    std::string Folder() { return dir_->path().toStdString() + "/"; }

private slots:
    void init() {
        dir_ = std::make_unique<QTemporaryDir>();
        QVERIFY(dir_->isValid());
    }

    void startsInItsOrderWithSplashThenTip() {
        WriteAll(Settings(), "1,#FALSE#,#TRUE#\r\n");
        StartPlatform platform;
        frmMain w(Folder(), &platform);
        platform.window = &w;
        QVERIFY(!w.isVisible());
        w.Start();

        QCOMPARE(w.game.AppFolder, Folder());
        QCOMPARE(w.game.StandingsPath, Folder() + "stnd.dat");
        QCOMPARE(w.game.GameSpeed, int16_t(1));
        QVERIFY(w.mnuFastSpeed->isChecked() && !w.mnuMediumSpeed->isChecked() &&
                !w.mnuSlowSpeed->isChecked());
        QCOMPARE(w.game.view.timer[TimerBetHole].interval, 800);
        QVERIFY(!w.mnuSound->isChecked());
        QVERIFY(w.mnuTips->isChecked());
        // The splash comes over the shown window, with the standings path and
        // the tip's mark already set; the tip follows it.
        QCOMPARE(platform.seen.size(), size_t(2));
        QCOMPARE(platform.seen[0].form, InfoForm::Splash);
        QVERIFY(platform.seen[0].windowVisible);
        QVERIFY(platform.seen[0].tipsChecked);
        QCOMPARE(platform.seen[0].standingsPath, Folder() + "stnd.dat");
        QCOMPARE(platform.seen[1].form, InfoForm::Tip);
        QCOMPARE(w.picTableMoney->size(), QSize(755, 510));
        QVERIFY(w.picTableMoney->isHidden());

        // An empty table waits: nothing runs and nothing is dealt.
        for (QTimer* t : w.timers) QVERIFY(!t->isActive());
        QVERIFY(w.cmdDeal->isHidden() && w.cmdPlay[1]->isHidden());
        QVERIFY(w.lblName[1]->isHidden());
        QVERIFY(!w.mnuSave->isEnabled() && !w.mnuSaveAs->isEnabled());
        QVERIFY(w.mnuNew->isEnabled() && w.mnuOpen->isEnabled() && w.mnuStandings->isEnabled());
        QCOMPARE(w.windowTitle(), QString("Texas Hold'em"));
        QCOMPARE(w.centralWidget()->size(), QSize(755, 508));
    }

    void noTipWhenSwitchedOff() {
        WriteAll(Settings(), "3,#TRUE#,#FALSE#\r\n");
        StartPlatform platform;
        frmMain w(Folder(), &platform);
        platform.window = &w;
        w.Start();
        QCOMPARE(platform.infos, std::vector<InfoForm>{InfoForm::Splash});
        QVERIFY(w.mnuSlowSpeed->isChecked() && w.mnuSound->isChecked() && !w.mnuTips->isChecked());
        QVERIFY(!platform.seen[0].tipsChecked);
    }

    void menuCaptionsAndShortcuts() {
        test::ScriptedPlatform platform;
        frmMain w(Folder(), &platform);
        QCOMPARE(w.mnuFile->title(), QString("&File"));
        QCOMPARE(w.mnuNew->text(), QString("&New..."));
        QCOMPARE(w.mnuNew->shortcut(), QKeySequence("Ctrl+N"));
        QCOMPARE(w.mnuOpen->shortcut(), QKeySequence("Ctrl+O"));
        QCOMPARE(w.mnuSave->shortcut(), QKeySequence("Ctrl+S"));
        QCOMPARE(w.mnuSaveAs->text(), QString("Save &As"));
        QCOMPARE(w.mnuExit->text(), QString("E&xit"));
        QCOMPARE(w.mnuTourney->title(), QString("&Tourney"));
        QCOMPARE(w.mnuFloor->text(), QString("&View Floor"));
        QCOMPARE(w.mnuSpeed->title(), QString("&Speed..."));
        QCOMPARE(w.mnuTips->text(), QString("&Tip of the Day"));
        QCOMPARE(w.mnuHelpIndex->text(), QString("Help"));
        QCOMPARE(w.mnuHelpIndex->shortcut(), QKeySequence("F1"));
        QCOMPARE(w.mnuRules->text(), QString("Hold'em &Rules"));
        QCOMPARE(w.mnuAbout->text(), QString("A&bout"));
        QCOMPARE(w.cmdPlay[3]->text(), QString("&Bet/Raise "));
        QCOMPARE(w.cmdFloor->text(), QString("&View Floor"));
        // Before any settings: medium, sound on, tips on.
        QVERIFY(w.mnuMediumSpeed->isChecked() && w.mnuSound->isChecked() && w.mnuTips->isChecked());
        w.mnuHelpIndex->trigger();
        w.mnuRules->trigger();
        w.mnuAbout->trigger();
        QCOMPARE(platform.infos, (std::vector<InfoForm>{InfoForm::Help, InfoForm::Rules, InfoForm::About}));
    }

    // Which exits ask, by the way out and the state of the game.
    void theExitQuestionAndItsTwoTests_data() {
        QTest::addColumn<bool>("closeBox");
        QTest::addColumn<int>("userBank");
        QTest::addColumn<int>("hands");
        QTest::addColumn<bool>("unsaved");
        QTest::addColumn<bool>("ended");
        QTest::addColumn<int>("left");
        QTest::addColumn<bool>("asks");
        QTest::newRow("menu, game in play") << false << 5000 << 2 << true << false << 8 << true;
        QTest::newRow("box, game in play") << true << 5000 << 2 << true << false << 8 << true;
        QTest::newRow("menu, one hand only") << false << 5000 << 1 << true << false << 8 << false;
        QTest::newRow("box, one hand only") << true << 5000 << 1 << true << false << 8 << false;
        QTest::newRow("menu, saved") << false << 5000 << 5 << false << false << 8 << false;
        QTest::newRow("box, user busted") << true << 0 << 5 << true << true << 8 << false;
        // The two ways test different fields.
        QTest::newRow("menu, ended, players left") << false << 5000 << 5 << true << true << 8 << false;
        QTest::newRow("box, ended, players left") << true << 5000 << 5 << true << true << 8 << true;
        QTest::newRow("menu, won, one left") << false << 80000 << 5 << true << false << 1 << true;
        QTest::newRow("box, won, one left") << true << 80000 << 5 << true << false << 1 << false;
    }

    void theExitQuestionAndItsTwoTests() {
        QFETCH(bool, closeBox);
        QFETCH(int, userBank);
        QFETCH(int, hands);
        QFETCH(bool, unsaved);
        QFETCH(bool, ended);
        QFETCH(int, left);
        QFETCH(bool, asks);
        WriteAll(Settings(), "2,#TRUE#,#TRUE#\r\n");
        test::ScriptedPlatform platform;
        frmMain w(Folder(), &platform);
        int quits = 0;
        w.onQuit = [&quits] { ++quits; };
        w.Start();
        GameInPlay(w.game);
        w.game.RosterBank[1] = userBank;
        w.game.HandsPlayed = static_cast<int16_t>(hands);
        w.game.GameUnsaved = unsaved;
        w.game.GameEnded = ended;
        w.game.PlayersLeft = static_cast<int16_t>(left);
        // The settings of the run are written on the way out.
        w.mnuSlowSpeed->trigger();
        platform.answers.push_back(MsgAnswer::No);

        if (closeBox)
            w.close();
        else
            QVERIFY(w.mnuExit_Click());

        QCOMPARE(platform.messages.size(), size_t(asks ? 1 : 0));
        if (asks) {
            QCOMPARE(platform.messages[0].text, std::string("Do you want to save the current game?"));
            QCOMPARE(platform.messages[0].title, std::string("Exit"));
            QCOMPARE(platform.messages[0].icon, MsgIcon::Information);
            QCOMPARE(platform.messages[0].buttons, MsgButtons::YesNoCancel);
        }
        QVERIFY(platform.saveDialogs.empty());
        QCOMPARE(quits, 1);
        QVERIFY(!w.isVisible());
        QVERIFY(ReadAll(Settings()).startsWith("3,"));
    }

    void cancelGoesBackOnBothWays() {
        const QByteArray before = "2,#TRUE#,#TRUE#\r\n";
        for (bool closeBox : {false, true}) {
            WriteAll(Settings(), before);
            test::ScriptedPlatform platform;
            frmMain w(Folder(), &platform);
            int quits = 0;
            w.onQuit = [&quits] { ++quits; };
            w.Start();
            GameInPlay(w.game);
            w.mnuFastSpeed->trigger();
            platform.answers.push_back(MsgAnswer::Cancel);
            if (closeBox)
                w.close();
            else
                QVERIFY(!w.mnuExit_Click());
            QCOMPARE(platform.messages.size(), size_t(1));
            QCOMPARE(quits, 0);
            QVERIFY(w.isVisible());
            QCOMPARE(ReadAll(Settings()), before);
            QVERIFY(w.game.GameUnsaved);
        }
    }

    void yesSavesTheGameThenLeaves() {
        WriteAll(Settings(), "2,#TRUE#,#TRUE#\r\n");
        test::ScriptedPlatform platform;
        frmMain w(Folder(), &platform);
        int quits = 0;
        w.onQuit = [&quits] { ++quits; };
        w.Start();
        GameInPlay(w.game);
        const QString saved = dir_->filePath("mine.sgf");
        platform.answers.push_back(MsgAnswer::Yes);
        platform.savePaths.push_back(saved.toStdString());
        QVERIFY(w.mnuExit_Click());
        QCOMPARE(platform.saveDialogs.size(), size_t(1));
        QCOMPARE(platform.saveDialogs[0].title, std::string("Save Game As"));
        QVERIFY(ReadAll(saved).startsWith("8,2,3,100"));
        QVERIFY(!w.game.GameUnsaved);
        QCOMPARE(quits, 1);
    }
};

QTEST_MAIN(WindowStartExitTest)
#include "window_start_exit_test.moc"
