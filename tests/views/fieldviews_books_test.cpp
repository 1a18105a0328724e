// The help and the rules as two-page picture books, and the about box.
#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QtTest>

#include "fieldviews_support.h"
#include "views/frm_about.h"
#include "views/frm_help.h"
#include "views/frm_rules.h"

using namespace holdem;

namespace {
// The colour near the top middle of the picture on show: each test page has its own.
QColor PageColour(const QLabel* label) {
    const QImage shown = label->pixmap().toImage();
    return shown.pixelColor(shown.width() / 2, 4);
}
}  // namespace

class BooksTest : public QObject {
    Q_OBJECT
    QTemporaryDir dir_;
    std::string full_, empty_;

private slots:
    void initTestCase() {
        QVERIFY(QDir(dir_.path()).mkpath("full/pictures"));
        const std::pair<const char*, QColor> pages[] = {{"help1", QColor(200, 230, 200)},
                                                        {"help2", QColor(200, 200, 240)},
                                                        {"rules1", QColor(240, 220, 180)},
                                                        {"rules2", QColor(230, 190, 230)},
                                                        {"logo", QColor(0, 128, 0)}};
        for (const auto& [name, colour] : pages) {
            QImage image(400, 400, QImage::Format_RGB32);
            image.fill(colour);
            QVERIFY(image.save(dir_.filePath("full/pictures/") + name + ".png"));
        }
        full_ = dir_.filePath("full").toStdString() + "/";
        empty_ = dir_.filePath("empty").toStdString() + "/";
    }

    void helpTurnsItsPagesAndReopensWhereLeft() {
        frmHelp help(full_);
        help.show();
        QCOMPARE(help.windowTitle(), QString("Help"));
        QCOMPARE(help.size(), QSize(419, 525));
        QCOMPARE(help.picHelp->geometry(), QRect(8, 8, 401, 473));
        QCOMPARE(help.cmdPrevious->geometry(), QRect(176, 496, 57, 25));
        QCOMPARE(help.cmdPrevious->text() + help.cmdNext->text() + help.cmdClose->text(),
                 QString("&Previous&Next&Close"));
        QVERIFY(!help.cmdPrevious->isEnabled() && help.cmdNext->isEnabled());
        QCOMPARE(PageColour(help.picHelp), QColor(200, 230, 200));
        QVERIFY(holdem::test::SaveScreenshot(help, "fieldviews_help1"));
        QTest::mouseClick(help.cmdNext, Qt::LeftButton);
        QVERIFY(help.Page() == 2 && help.cmdPrevious->isEnabled() && !help.cmdNext->isEnabled());
        QCOMPARE(PageColour(help.picHelp), QColor(200, 200, 240));
        QVERIFY(holdem::test::SaveScreenshot(help, "fieldviews_help2"));
        QTest::mouseClick(help.cmdClose, Qt::LeftButton);
        QVERIFY(help.isHidden());
        help.show();
        QCOMPARE(PageColour(help.picHelp), QColor(200, 200, 240));
        QTest::mouseClick(help.cmdPrevious, Qt::LeftButton);
        QVERIFY(help.Page() == 1 && !help.cmdPrevious->isEnabled());
        QCOMPARE(PageColour(help.picHelp), QColor(200, 230, 200));
    }

    void rulesHaveTheirOwnShape() {
        frmRules rules(full_);
        rules.show();
        QCOMPARE(rules.windowTitle(), QString("Rules of the Game - Texas Hold'em"));
        QCOMPARE(rules.size(), QSize(434, 465));
        QCOMPARE(rules.PicRules->geometry(), QRect(8, 8, 417, 417));
        QCOMPARE(rules.cmdClose->geometry(), QRect(328, 432, 57, 25));
        QCOMPARE(PageColour(rules.PicRules), QColor(240, 220, 180));
        QVERIFY(holdem::test::SaveScreenshot(rules, "fieldviews_rules1"));
        QTest::mouseClick(rules.cmdNext, Qt::LeftButton);
        QCOMPARE(PageColour(rules.PicRules), QColor(230, 190, 230));
        QVERIFY(holdem::test::SaveScreenshot(rules, "fieldviews_rules2"));
    }

    void missingPicturesDrawPlaceholders() {
        frmHelp help(empty_);
        frmRules rules(empty_);
        frmAbout about(empty_);
        help.show();
        QVERIFY(!help.picHelp1().isNull() && !help.picHelp2().isNull() && !rules.picRules2().isNull());
        QTest::mouseClick(help.cmdNext, Qt::LeftButton);
        QVERIFY(!help.picHelp->pixmap().isNull());
        QCOMPARE(about.Picture1->pixmap().size(), QSize(72, 72));
        QVERIFY(holdem::test::SaveScreenshot(help, "fieldviews_help_missing"));
    }

    void aboutShowsItsTextsAndHides() {
        frmAbout about(full_);
        about.show();
        QCOMPARE(about.windowTitle(), QString("About Texas Hold'em"));
        QCOMPARE(about.size(), QSize(382, 237));
        QCOMPARE(QStringList({about.lblTitle->text(), about.Label2->text(), about.lblVersion->text(),
                              about.lblOK->text()}),
                 QStringList({"CORVANE TEXAS HOLD'EM", "TM", "Version 1.0 for Windows", "[CLOSE]"}));
        QCOMPARE(
            about.Label1->text(),
            QString("Note: For entertainment purposes only. The software maker accepts no responsibility "
                    "for information or strategy presented in this program."));
        QVERIFY(about.lblTitle->font().bold() &&
                about.Label2->font().pixelSize() < about.lblTitle->font().pixelSize());
        QVERIFY(about.Label2->x() >= about.lblTitle->geometry().right());
        QVERIFY(!about.lblDescription->text().isEmpty() && !about.lblDisclaimer->text().isEmpty());
        QCOMPARE(about.Picture1->pixmap().toImage().pixelColor(36, 36), QColor(0, 128, 0));
        for (QLabel* label : about.findChildren<QLabel*>())
            QVERIFY2(about.rect().contains(label->geometry()), qPrintable(label->text()));
        QVERIFY(holdem::test::SaveScreenshot(about, "fieldviews_about"));
        QTest::mouseClick(about.lblOK, Qt::LeftButton);
        QVERIFY(about.isHidden());
    }
};

QTEST_MAIN(BooksTest)
#include "fieldviews_books_test.moc"
