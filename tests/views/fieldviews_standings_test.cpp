// The standings: the two selection passes, paging, the user's line, and the
// form drawn from them.
#include <QLabel>
#include <QTemporaryDir>
#include <QtTest>

#include "fieldviews_support.h"
#include "views/frm_rankings.h"
#include "views/standings_model.h"

using namespace holdem;
using holdem::test::StndRecord;
using holdem::test::WriteStnd;

namespace {

std::vector<std::string> Names(const Standings& s) {
    std::vector<std::string> names;
    for (int i = 1; i <= s.PlayerCount; ++i) names.push_back(s.copy.Name[i]);
    return names;
}

// n players; the user, if userPlace is given, is out in that place at position 1.
std::vector<StndRecord> FieldWithBustedUser(int n, int userPlace) {
    auto field = holdem::test::EvenField(n);
    field[0].bank = 0;
    field[0].place = userPlace;
    return field;
}

}  // namespace

class StandingsTest : public QObject {
    Q_OBJECT
    QTemporaryDir dir_;

private slots:
    void sortsByChipsThenPlaceWithTheSelectionPasses() {
        // File order: equal banks of 3,000 at positions 1 (the user), 3 and 5.
        std::vector<StndRecord> field = {
            {11, "You", 3000, 0, 1}, {12, "A", 5000, 0, 2}, {13, "B", 3000, 0, 3}, {14, "C", 0, 9, 4},
            {15, "D", 3000, 0, 5},   {16, "E", 0, 10, 6},   {17, "F", 8000, 0, 7}, {18, "G", 0, 8, 8},
            {19, "H", 1000, 0, 9},   {20, "I", 0, 7, 10},
        };
        Standings s;
        OpenStandings(s, WriteStnd(dir_, field));
        QCOMPARE(s.PlayerCount, int16_t(10));
        // The exchanges carry the user behind B and D although the user came
        // first in the file; the first one out (place 10) stands last.
        std::vector<std::string> expected = {"F", "A", "B", "D", "You", "H", "I", "G", "C", "E"};
        QCOMPARE(Names(s), expected);
        QCOMPARE(s.UserRank, int16_t(5));
        // All five fields travel together.
        QCOMPARE(s.copy.Tag[1], int16_t(17));
        QCOMPARE(s.copy.Number[1], int16_t(7));
        QCOMPARE(s.copy.Bank[5], 3000);
        QCOMPARE(s.copy.Place[10], int16_t(10));
        QCOMPARE(s.copy.Tag[10], int16_t(16));

        QCOMPARE(s.lblRank[1].text, std::string("1"));
        QCOMPARE(s.lblName[1].text, std::string("F"));
        QCOMPARE(s.lblBank[1].text, std::string("8,000"));
        QCOMPARE(s.lblBank[7].text, std::string("--"));
        QVERIFY(s.yellow[5]);
        QVERIFY(!s.yellow[4] && !s.yellow[6]);
        QVERIFY(s.lblRank[11].text.empty() && s.lblName[11].text.empty() && s.lblBank[11].text.empty());
        QVERIFY(!s.lblRank[kUserRow].visible);  // the user is on this page
        QCOMPARE(s.lblPage.text, std::string("Page 1"));
    }

    void equalBanksKeepTheOrderTheExchangesLeave() {
        // Three equal stacks behind a bigger one at the end: the first
        // exchange sends "P1" to the back of the tie.
        std::vector<StndRecord> field = {
            {0, "P1", 500, 0, 2}, {0, "P2", 500, 0, 3}, {0, "P3", 500, 0, 4}, {0, "Big", 900, 0, 1}};
        Standings s;
        OpenStandings(s, WriteStnd(dir_, field));
        std::vector<std::string> expected = {"Big", "P2", "P3", "P1"};
        QCOMPARE(Names(s), expected);
        QCOMPARE(s.UserRank, int16_t(1));
    }

    void pagingLimits_data() {
        QTest::addColumn<int>("players");
        QTest::addColumn<int>("pages");
        QTest::newRow("single table") << 8 << 1;
        QTest::newRow("one full page") << 25 << 1;
        QTest::newRow("one over") << 26 << 2;
        QTest::newRow("largest") << 1000 << 40;
    }
    void pagingLimits() {
        QFETCH(int, players);
        QFETCH(int, pages);
        Standings s;
        OpenStandings(s, WriteStnd(dir_, holdem::test::EvenField(players)));
        QVERIFY(!s.lblPrevious.enabled);
        for (int page = 1; page < pages; ++page) {
            QVERIFY2(s.lblNext.enabled, qPrintable(QString("page %1").arg(page)));
            lblNext_Click(s);
        }
        QCOMPARE(s.CurrentPage, int16_t(pages));
        QCOMPARE(s.lblPage.text, "Page " + std::to_string(pages));
        QVERIFY(!s.lblNext.enabled);
        QCOMPARE(s.lblPrevious.enabled, pages > 1);
        // The last page holds what is left; the rest of it is blank.
        int onLast = players - (pages - 1) * kRowsPerPage;
        QCOMPARE(s.lblRank[1].text, std::to_string((pages - 1) * kRowsPerPage + 1));
        QCOMPARE(s.lblRank[onLast].text, std::to_string(players));
        if (onLast < kRowsPerPage) QVERIFY(s.lblName[onLast + 1].text.empty());

        // A disabled label takes no click.
        lblNext_Click(s);
        QCOMPARE(s.CurrentPage, int16_t(pages));
        for (int page = pages; page > 1; --page) lblPrevious_Click(s);
        QCOMPARE(s.CurrentPage, int16_t(1));
        QVERIFY(!s.lblPrevious.enabled);
        QCOMPARE(s.lblNext.enabled, pages > 1);
        QCOMPARE(s.lblPage.text, std::string("Page 1"));
        lblPrevious_Click(s);
        QCOMPARE(s.CurrentPage, int16_t(1));
    }

    void userLineBelowThePage() {
        // 30 players, the user the first one out: last line, on page 2.
        Standings s;
        OpenStandings(s, WriteStnd(dir_, FieldWithBustedUser(30, 30)));
        QCOMPARE(s.UserRank, int16_t(30));
        QVERIFY(s.lblRank[kUserRow].visible);
        QCOMPARE(s.lblRank[kUserRow].text, std::string("30"));
        QCOMPARE(s.lblName[kUserRow].text, std::string("You"));
        QCOMPARE(s.lblBank[kUserRow].text, std::string("0"));  // no "--" in row 26
        QVERIFY(s.yellow[kUserRow]);
        QVERIFY(!s.yellow[1]);

        lblNext_Click(s);
        QVERIFY(!s.lblRank[kUserRow].visible);
        QVERIFY(s.lblRank[kUserRow].text.empty());
        QCOMPARE(s.lblName[5].text, std::string("You"));
        QCOMPARE(s.lblBank[5].text, std::string("--"));
        QVERIFY(s.yellow[5]);

        lblPrevious_Click(s);
        QVERIFY(s.lblRank[kUserRow].visible);
        QCOMPARE(s.lblBank[kUserRow].text, std::string("0"));
    }

    void userStillInShowsChipsInRow26() {
        auto field = holdem::test::EvenField(60);
        field[0].bank = 1234567;  // the leader: rank 1
        for (int i = 1; i <= 40; ++i) field[i].bank = 2000000 + i;
        Standings s;
        OpenStandings(s, WriteStnd(dir_, field));
        QCOMPARE(s.UserRank, int16_t(41));
        QCOMPARE(s.lblBank[kUserRow].text, std::string("1,234,567"));
        lblNext_Click(s);  // page 2 holds 26..50
        QVERIFY(!s.lblRank[kUserRow].visible);
        QVERIFY(s.yellow[16]);
        lblNext_Click(s);
        QVERIFY(s.lblRank[kUserRow].visible);
        QCOMPARE(s.lblRank[kUserRow].text, std::string("41"));
    }

    void emptyMissingAndBrokenFiles() {
        Standings empty;
        OpenStandings(empty, WriteStnd(dir_, {}, 0));  // the header of zeros before any game
        QCOMPARE(empty.PlayerCount, int16_t(0));
        QCOMPARE(empty.UserRank, int16_t(0));
        QCOMPARE(empty.lblPage.text, std::string("Page 1"));
        QVERIFY(!empty.lblRank[kUserRow].visible);
        QVERIFY(!empty.lblNext.enabled && !empty.lblPrevious.enabled);
        for (int row = 1; row <= kRowsPerPage; ++row) QVERIFY(empty.lblName[row].text.empty());

        Standings missing;
        OpenStandings(missing, dir_.filePath("no-such-file.dat").toStdString());
        QCOMPARE(missing.PlayerCount, int16_t(0));
        QVERIFY(!missing.lblRank[kUserRow].visible);

        // A header that promises more than the file holds, and a cut-off line.
        std::string path = WriteStnd(dir_, holdem::test::EvenField(3), 10, "short.dat");
        { std::ofstream(path, std::ios::app | std::ios::binary) << "4,\"Cut"; }
        Standings shortFile;
        OpenStandings(shortFile, path);
        QCOMPARE(shortFile.PlayerCount, int16_t(3));
        QVERIFY(shortFile.lblName[4].text.empty());

        // A count beyond the roster is held to it.
        Standings huge;
        OpenStandings(huge, WriteStnd(dir_, holdem::test::EvenField(2), 30000, "huge.dat"));
        QCOMPARE(huge.PlayerCount, int16_t(2));
    }

    void formShowsThePageAndPages() {
        auto field = FieldWithBustedUser(30, 30);
        field[4].name = "Angelica Montgomery-Smythe";
        field[4].bank = 12345678;
        frmRankings form(WriteStnd(dir_, field));
        form.show();
        QCOMPARE(form.size(), QSize(355, 513));
        QVERIFY(form.windowTitle().isEmpty());
        QCOMPARE(form.lblBank[1]->text(), QString("12,345,678"));
        QCOMPARE(form.lblBank[1]->alignment() & Qt::AlignRight, Qt::AlignRight);
        QCOMPARE(form.lblRank[2]->geometry(), QRect(16, 56, 28, 16));
        QCOMPARE(form.lblRank[kUserRow]->geometry().top(), 456);
        QVERIFY(form.lblRank[kUserRow]->isVisible());
        QCOMPARE(holdem::test::TextColour(form.lblName[kUserRow]), QColor(255, 255, 0));
        QCOMPARE(holdem::test::TextColour(form.lblName[1]), QColor(224, 224, 224));
        QVERIFY(!form.lblPrevious->isEnabled());
        QVERIFY(holdem::test::SaveScreenshot(form, "fieldviews_standings_page1"));

        QTest::mouseClick(form.lblNext, Qt::LeftButton);
        QCOMPARE(form.lblPage->text(), QString("Page 2"));
        QVERIFY(!form.lblNext->isEnabled());
        QVERIFY(form.lblPrevious->isEnabled());
        QVERIFY(!form.lblRank[kUserRow]->isVisible());
        QCOMPARE(holdem::test::TextColour(form.lblName[5]), QColor(255, 255, 0));
        QVERIFY(holdem::test::SaveScreenshot(form, "fieldviews_standings_page2"));

        QTest::mouseClick(form.lblNext, Qt::LeftButton);  // disabled: no change
        QCOMPARE(form.state().CurrentPage, int16_t(2));
        QTest::mouseClick(form.lblPrevious, Qt::LeftButton);
        QCOMPARE(form.lblPage->text(), QString("Page 1"));

        QTest::mouseClick(form.lblClose, Qt::LeftButton);
        QVERIFY(!form.isVisible());
    }

    void formOpensEmptyBeforeAnyGame() {
        frmRankings form(WriteStnd(dir_, {}, 0));
        form.show();
        QVERIFY(!form.lblRank[kUserRow]->isVisible());
        QVERIFY(holdem::test::SaveScreenshot(form, "fieldviews_standings_empty"));
    }
};

QTEST_MAIN(StandingsTest)
#include "fieldviews_standings_test.moc"
