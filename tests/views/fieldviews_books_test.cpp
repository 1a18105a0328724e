// The help and the rules as two-page picture books, and the about box.
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

#include "fieldviews_support.h"
#include "views/frm_about.h"
#include "views/frm_help.h"
#include "views/frm_rules.h"

using namespace holdem;

namespace {

// A page drawn at twice its size, in one colour, so the test can tell pages apart.
void WritePage(const QString& folder, const QString& name, QSize size, QColor colour) {
    QImage image(size * 2, QImage::Format_RGB32);
    image.fill(colour);
    QPainter painter(&image);
    painter.setPen(Qt::black);
    painter.setFont(QFont("Liberation Sans", 40));
    painter.drawText(image.rect(), Qt::AlignCenter, name);
    painter.end();
    QVERIFY(image.save(folder + "/pictures/" + name + ".png"));
}

QColor CentreColour(const QLabel* label) {
    QImage shown = label->pixmap().toImage();
    return shown.pixelColor(shown.width() / 2, 4);
}

}  // namespace

class BooksTest : public QObject {
    Q_OBJECT
    QTemporaryDir dir_;
    std::string withPictures_;
    std::string withoutPictures_;

private slots:
    void initTestCase() {
        QVERIFY(QDir(dir_.path()).mkpath("full/pictures"));
        QString full = dir_.filePath("full");
        WritePage(full, "help1", {401, 478}, QColor(200, 230, 200));
        WritePage(full, "help2", {397, 425}, QColor(200, 200, 240));
        WritePage(full, "rules1", {406, 365}, QColor(240, 220, 180));
        WritePage(full, "rules2", {402, 407}, QColor(230, 190, 230));
        QImage logo(144, 144, QImage::Format_RGB32);
        logo.fill(QColor(0, 128, 0));
        QVERIFY(logo.save(full + "/pictures/logo.png"));
        withPictures_ = full.toStdString() + "/";
        withoutPictures_ = dir_.filePath("empty").toStdString() + "/";
    }

    void helpTurnsItsPagesAndReopensWhereLeft() {
        frmHelp help(withPictures_);
        help.show();
        QCOMPARE(help.windowTitle(), QString("Help"));
        QCOMPARE(help.size(), QSize(419, 525));
        QCOMPARE(help.picHelp->geometry(), QRect(8, 8, 401, 473));
        QCOMPARE(help.cmdPrevious->geometry(), QRect(176, 496, 57, 25));
        QCOMPARE(help.cmdPrevious->text(), QString("&Previous"));
        QCOMPARE(help.cmdNext->text(), QString("&Next"));
        QCOMPARE(help.cmdClose->text(), QString("&Close"));
        QVERIFY(!help.cmdPrevious->isEnabled());
        QVERIFY(help.cmdNext->isEnabled());
        QCOMPARE(CentreColour(help.picHelp), QColor(200, 230, 200));
        QVERIFY(holdem::test::SaveScreenshot(help, "fieldviews_help1"));

        QTest::mouseClick(help.cmdNext, Qt::LeftButton);
        QCOMPARE(help.Page(), 2);
        QVERIFY(help.cmdPrevious->isEnabled());
        QVERIFY(!help.cmdNext->isEnabled());
        QCOMPARE(CentreColour(help.picHelp), QColor(200, 200, 240));
        QVERIFY(holdem::test::SaveScreenshot(help, "fieldviews_help2"));

        QTest::mouseClick(help.cmdClose, Qt::LeftButton);
        QVERIFY(help.isHidden());
        help.show();
        QCOMPARE(help.Page(), 2);
        QCOMPARE(CentreColour(help.picHelp), QColor(200, 200, 240));

        QTest::mouseClick(help.cmdPrevious, Qt::LeftButton);
        QCOMPARE(help.Page(), 1);
        QVERIFY(!help.cmdPrevious->isEnabled());
        QCOMPARE(CentreColour(help.picHelp), QColor(200, 230, 200));
    }

    void rulesHaveTheirOwnShape() {
        frmRules rules(withPictures_);
        rules.show();
        QCOMPARE(rules.windowTitle(), QString("Rules of the Game - Texas Hold'em"));
        QCOMPARE(rules.size(), QSize(434, 465));
        QCOMPARE(rules.PicRules->geometry(), QRect(8, 8, 417, 417));
        QCOMPARE(rules.cmdClose->geometry(), QRect(328, 432, 57, 25));
        QCOMPARE(CentreColour(rules.PicRules), QColor(240, 220, 180));
        QVERIFY(holdem::test::SaveScreenshot(rules, "fieldviews_rules1"));
        QTest::mouseClick(rules.cmdNext, Qt::LeftButton);
        QCOMPARE(CentreColour(rules.PicRules), QColor(230, 190, 230));
        QVERIFY(holdem::test::SaveScreenshot(rules, "fieldviews_rules2"));
    }

    void missingPicturesDrawPlaceholders() {
        frmHelp help(withoutPictures_);
        frmRules rules(withoutPictures_);
        frmAbout about(withoutPictures_);
        help.show();
        QVERIFY(!help.picHelp1().isNull() && !help.picHelp2().isNull());
        QTest::mouseClick(help.cmdNext, Qt::LeftButton);
        QVERIFY(!help.picHelp->pixmap().isNull());
        QVERIFY(!rules.picRules2().isNull());
        QCOMPARE(about.Picture1->pixmap().size(), QSize(72, 72));
        QVERIFY(holdem::test::SaveScreenshot(help, "fieldviews_help_missing"));
    }

    void aboutShowsItsTextsAndHides() {
        frmAbout about(withPictures_);
        about.show();
        QCOMPARE(about.windowTitle(), QString("About Texas Hold'em"));
        QCOMPARE(about.size(), QSize(382, 237));
        QCOMPARE(about.lblTitle->text(), QString("CORVANE TEXAS HOLD'EM"));
        QVERIFY(about.lblTitle->font().bold());
        QCOMPARE(about.Label2->text(), QString("TM"));
        QVERIFY(about.Label2->font().pixelSize() < about.lblTitle->font().pixelSize());
        QVERIFY(about.Label2->x() >= about.lblTitle->geometry().right());
        QCOMPARE(about.lblVersion->text(), QString("Version 1.0 for Windows"));
        QCOMPARE(
            about.Label1->text(),
            QString("Note: For entertainment purposes only. The software maker accepts no responsibility "
                    "for information or strategy presented in this program."));
        QVERIFY(!about.lblDescription->text().isEmpty());
        QVERIFY(!about.lblDisclaimer->text().isEmpty());
        QCOMPARE(about.Picture1->pixmap().toImage().pixelColor(36, 36), QColor(0, 128, 0));
        QCOMPARE(about.lblOK->text(), QString("[CLOSE]"));
        // Every text stands inside the box.
        for (QLabel* label : about.findChildren<QLabel*>())
            QVERIFY2(QRect(QPoint(0, 0), about.size()).contains(label->geometry()),
                     qPrintable(label->text()));
        QVERIFY(holdem::test::SaveScreenshot(about, "fieldviews_about"));
        QTest::mouseClick(about.lblOK, Qt::LeftButton);
        QVERIFY(about.isHidden());
    }
};

QTEST_MAIN(BooksTest)
#include "fieldviews_books_test.moc"
