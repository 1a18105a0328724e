// The tip of the day: reading the tips, the draw that picks one, the note about
// a missing file, the setting behind the check box, and the form.
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QtTest>

#include "engine/game_state.h"
#include "fieldviews_support.h"
#include "tests/support/scripted_platform.h"
#include "views/frm_tip.h"
#include "views/tip_model.h"

using namespace holdem;

namespace {
const std::string kMissingNote =
    "That the TIPOFDAY.TXT file was not found? \r\n\r\n"
    "Create a text file named TIPOFDAY.TXT using NotePad with 1 tip per line. "
    "Then place it in the same directory as the application. ";
}  // namespace

class TipTest : public QObject {
    Q_OBJECT
    QTemporaryDir dir_;
    test::ScriptedPlatform platform_;

    // A folder holding `content` as the tips file, or no file for nullptr.
    std::string Folder(const QString& name, const char* content) {
        QDir(dir_.path()).mkpath(name);
        const std::string folder = dir_.filePath(name).toStdString() + "/";
        if (content) std::ofstream(folder + kTipsFileName, std::ios::binary) << content;
        return folder;
    }
    bool AllDrawsUsed(const Random& rnd) { return rnd.Remaining() == 0 && rnd.Overdrawn() == 0; }

private slots:
    // Missing: the note, and Next Tip draws but keeps it. Empty: found, nothing shown.
    void missingOrEmptyFile() {
        Game game(platform_);
        game.AppFolder = Folder("none", nullptr);
        game.rnd.Script({});
        TipBox box;
        LoadTipForm(box, game);
        QCOMPARE(box.lblTipText, kMissingNote);
        QVERIFY(box.Tips.empty() && AllDrawsUsed(game.rnd));
        game.rnd.Script({0.7f});
        PickNextTip(box, game.rnd);
        QCOMPARE(box.lblTipText, kMissingNote);
        QVERIFY(AllDrawsUsed(game.rnd));
        QVERIFY(!LoadTips(box, game.rnd, ""));
        QCOMPARE(MissingTipsMessage("X.TXT").substr(0, 24), std::string("That the X.TXT file was "));

        game.AppFolder = Folder("empty", "");
        game.rnd.Script({0.4f});
        TipBox empty;
        LoadTipForm(empty, game);
        QVERIFY(empty.Tips.empty() && empty.lblTipText.empty() && AllDrawsUsed(game.rnd));
        QCOMPARE(empty.CurrentTip, 1);
    }

    void eachLineIsATipBlankOnesToo_data() {
        QTest::addColumn<QString>("file");
        QTest::addColumn<float>("draw");
        QTest::addColumn<int>("tip");
        QTest::addColumn<QString>("text");
        const QString three = "Alpha\r\n\r\nGamma, with a comma\r\n";
        const QString one = "Fold more often than you think.";
        QTest::newRow("one line, bottom") << one << 0.0f << 1 << one;
        QTest::newRow("one line, top") << one << 0.99999994f << 1 << one;
        QTest::newRow("zero") << three << 0.0f << 1 << "Alpha";
        QTest::newRow("under a third") << three << 0.33f << 1 << "Alpha";
        QTest::newRow("a third") << three << 0.34f << 2 << "";
        QTest::newRow("two thirds") << three << 0.6666667f << 3 << "Gamma, with a comma";
        QTest::newRow("top") << three << 0.99999994f << 3 << "Gamma, with a comma";
    }
    void eachLineIsATipBlankOnesToo() {
        QFETCH(QString, file);
        QFETCH(float, draw);
        QFETCH(int, tip);
        QFETCH(QString, text);
        Random rnd;
        rnd.Script({0.5f, draw});
        TipBox box;
        box.lblTipText = "before";
        QVERIFY(
            LoadTips(box, rnd, Folder(QTest::currentDataTag(), file.toUtf8().constData()) + kTipsFileName));
        QCOMPARE(box.Tips.size(), std::size_t(file.count("\r\n") ? 3 : 1));
        PickNextTip(box, rnd);
        QCOMPARE(box.CurrentTip, tip);
        QCOMPARE(QString::fromStdString(box.lblTipText), text);
        QVERIFY(AllDrawsUsed(rnd));
    }

    void formShowsATipPicksAnotherAndDrivesTheSetting() {
        Game game(platform_);
        game.AppFolder = Folder("form",
                                "The button moves one seat to the left after every hand.\r\n"
                                "When every player left in the hand is all in, the remaining cards are "
                                "dealt without any more betting, and the best hand takes the pot.\r\n");
        game.rnd.Script({0.9f, 0.1f});
        frmTip form(game);
        form.show();
        QCOMPARE(form.windowTitle(), QString("Tip of the Day"));
        QCOMPARE(form.size(), QSize(361, 180));
        QCOMPARE(
            form.Label1->text() + "|" + form.cmdNextTip->text() + "|" + form.chkLoadTipsAtStartup->text(),
            QString("Did you know...|&Next Tip|&Show Tips at Startup"));
        QVERIFY(form.lblTipText->text().startsWith("When every player"));
        QVERIFY(form.chkLoadTipsAtStartup->isChecked() && form.cmdOK->isDefault());
        QCOMPARE(form.picSymbol->pixmap().width(), 32);
        QVERIFY(holdem::test::SaveScreenshot(form, "fieldviews_tip"));
        QTest::mouseClick(form.cmdNextTip, Qt::LeftButton);
        QCOMPARE(form.lblTipText->text(), QString("The button moves one seat to the left after every hand."));
        QVERIFY(AllDrawsUsed(game.rnd));
        for (bool ticked : {false, true}) {
            QTest::mouseClick(form.chkLoadTipsAtStartup, Qt::LeftButton);
            QCOMPARE(std::make_pair(game.TipsAtStartup, game.view.mnuTips.checked),
                     std::make_pair(ticked, ticked));
        }
        QTest::keyClick(&form, Qt::Key_Escape);  // cmdOK is the cancel button as well
        QVERIFY(!form.isVisible());
    }

    void formWithoutTheFile() {
        Game game(platform_);
        game.AppFolder = Folder("formnone", nullptr);
        game.rnd.Script({});
        frmTip form(game);
        form.show();
        QCOMPARE(form.lblTipText->text(), QString::fromStdString(kMissingNote).replace("\r\n", "\n"));
        QVERIFY(!form.picSymbol->pixmap().isNull());  // the placeholder stands in for the symbol
        QVERIFY(holdem::test::SaveScreenshot(form, "fieldviews_tip_missing"));
        QTest::mouseClick(form.cmdOK, Qt::LeftButton);
        QVERIFY(!form.isVisible());
    }
};

QTEST_MAIN(TipTest)
#include "fieldviews_tip_test.moc"
