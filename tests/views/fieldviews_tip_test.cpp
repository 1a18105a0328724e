// The tip of the day: reading the tips, the draw that picks one, the note
// about a missing file, the setting behind the check box, and the form.
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>
#include <fstream>

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

    std::string Folder(const QString& name) {
        QDir(dir_.path()).mkpath(name);
        return dir_.filePath(name).toStdString() + "/";
    }
    std::string WriteTips(const QString& name, const std::string& content) {
        std::string folder = Folder(name);
        std::ofstream(folder + kTipsFileName, std::ios::binary) << content;
        return folder;
    }

private slots:
    void missingFileLeavesTheNote() {
        test::ScriptedPlatform platform;
        Game game(platform);
        game.AppFolder = Folder("none");
        game.rnd.Script({});
        TipBox box;
        LoadTipForm(box, game);
        QCOMPARE(box.lblTipText, kMissingNote);
        QVERIFY(box.Tips.empty());
        QCOMPARE(game.rnd.Remaining(), std::size_t(0));
        QCOMPARE(game.rnd.Overdrawn(), 0);

        // Next Tip draws but has nothing to show: the note stays.
        game.rnd.Script({0.7f});
        PickNextTip(box, game.rnd);
        QCOMPARE(box.lblTipText, kMissingNote);
        QCOMPARE(game.rnd.Remaining(), std::size_t(0));
        QCOMPARE(game.rnd.Overdrawn(), 0);

        QCOMPARE(MissingTipsMessage("X.TXT").substr(0, 24), std::string("That the X.TXT file was "));
        Random rnd;
        rnd.Script({});
        QVERIFY(!LoadTips(box, rnd, ""));
        QCOMPARE(rnd.Overdrawn(), 0);
    }

    void emptyFileIsFoundAndShowsNothing() {
        test::ScriptedPlatform platform;
        Game game(platform);
        game.AppFolder = WriteTips("empty", "");
        game.rnd.Script({0.4f});
        TipBox box;
        LoadTipForm(box, game);
        QVERIFY(box.Tips.empty());
        QVERIFY(box.lblTipText.empty());
        QCOMPARE(box.CurrentTip, 1);
        QCOMPARE(game.rnd.Remaining(), std::size_t(0));
        QCOMPARE(game.rnd.Overdrawn(), 0);
    }

    void oneLineFileAlwaysGivesThatTip() {
        Random rnd;
        rnd.Script({0.0f, 0.99999994f});
        TipBox box;
        QVERIFY(LoadTips(box, rnd, WriteTips("one", "Fold more often than you think.") + kTipsFileName));
        QCOMPARE(box.Tips.size(), std::size_t(1));
        QCOMPARE(box.CurrentTip, 1);
        QCOMPARE(box.lblTipText, std::string("Fold more often than you think."));
        PickNextTip(box, rnd);
        QCOMPARE(box.CurrentTip, 1);
        QCOMPARE(rnd.Remaining(), std::size_t(0));
        QCOMPARE(rnd.Overdrawn(), 0);
    }

    void eachLineIsATipBlankOnesToo_data() {
        QTest::addColumn<float>("draw");
        QTest::addColumn<int>("tip");
        QTest::addColumn<QString>("text");
        QTest::newRow("zero") << 0.0f << 1 << "Alpha";
        QTest::newRow("just under a third") << 0.33f << 1 << "Alpha";
        QTest::newRow("a third") << 0.34f << 2 << "";
        QTest::newRow("two thirds") << 0.6666667f << 3 << "Gamma, with a comma";
        QTest::newRow("top") << 0.99999994f << 3 << "Gamma, with a comma";
    }
    void eachLineIsATipBlankOnesToo() {
        QFETCH(float, draw);
        QFETCH(int, tip);
        QFETCH(QString, text);
        Random rnd;
        rnd.Script({draw});
        TipBox box;
        box.lblTipText = "before";
        std::string folder = WriteTips("three", "Alpha\r\n\r\nGamma, with a comma\r\n");
        QVERIFY(LoadTips(box, rnd, folder + kTipsFileName));
        QCOMPARE(box.Tips.size(), std::size_t(3));
        QCOMPARE(box.CurrentTip, tip);
        QCOMPARE(QString::fromStdString(box.lblTipText), text);
        QCOMPARE(rnd.Remaining(), std::size_t(0));
        QCOMPARE(rnd.Overdrawn(), 0);
    }

    void checkBoxDrivesTheSetting() {
        test::ScriptedPlatform platform;
        Game game(platform);
        chkLoadTipsAtStartup_Click(game, false);
        QVERIFY(!game.TipsAtStartup);
        QVERIFY(!game.view.mnuTips.checked);
        chkLoadTipsAtStartup_Click(game, true);
        QVERIFY(game.TipsAtStartup);
        QVERIFY(game.view.mnuTips.checked);
    }

    void formShowsATipAndPicksAnother() {
        test::ScriptedPlatform platform;
        Game game(platform);
        game.AppFolder = WriteTips("form",
                                   "The button moves one seat to the left after every hand.\r\n"
                                   "When every player left in the hand is all in, the remaining cards are "
                                   "dealt without any more betting, and the best hand takes the pot.\r\n");
        game.rnd.Script({0.9f, 0.1f});
        frmTip form(game);
        form.show();
        QCOMPARE(form.windowTitle(), QString("Tip of the Day"));
        QCOMPARE(form.size(), QSize(361, 180));
        QCOMPARE(form.Label1->text(), QString("Did you know..."));
        QVERIFY(form.lblTipText->text().startsWith("When every player"));
        QVERIFY(form.chkLoadTipsAtStartup->isChecked());
        QVERIFY(form.cmdOK->isDefault());
        QCOMPARE(form.cmdNextTip->text(), QString("&Next Tip"));
        QCOMPARE(form.chkLoadTipsAtStartup->text(), QString("&Show Tips at Startup"));
        QVERIFY(form.picSymbol->pixmap().width() == 32);
        QVERIFY(holdem::test::SaveScreenshot(form, "fieldviews_tip"));

        QTest::mouseClick(form.cmdNextTip, Qt::LeftButton);
        QCOMPARE(form.lblTipText->text(), QString("The button moves one seat to the left after every hand."));
        QCOMPARE(game.rnd.Remaining(), std::size_t(0));
        QCOMPARE(game.rnd.Overdrawn(), 0);

        QTest::mouseClick(form.chkLoadTipsAtStartup, Qt::LeftButton);
        QVERIFY(!game.TipsAtStartup);
        QVERIFY(!game.view.mnuTips.checked);

        QTest::keyClick(&form, Qt::Key_Escape);  // cmdOK is the cancel button as well
        QVERIFY(!form.isVisible());
    }

    void formWithoutTheFile() {
        test::ScriptedPlatform platform;
        Game game(platform);
        game.AppFolder = Folder("formnone");
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
