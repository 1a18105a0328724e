// The standings: the two selection passes, paging, the user's line, and the form.
#include <QLabel>
#include <QtTest>

#include "fieldviews_support.h"
#include "views/frm_rankings.h"
#include "views/standings_model.h"

using namespace holdem;
using holdem::test::EvenField;
using holdem::test::StndRecord;
using holdem::test::WriteStnd;

namespace {
std::vector<std::string> Names(const Standings& s) {
    return {s.copy.Name.begin() + 1, s.copy.Name.begin() + 1 + s.PlayerCount};
}
// The three labels of a row, joined by '|'.
std::string Row(const Standings& s, int row) {
    return s.lblRank[row].text + "|" + s.lblName[row].text + "|" + s.lblBank[row].text;
}
}  // namespace

class StandingsTest : public QObject {
    Q_OBJECT
    QTemporaryDir dir_;

private slots:
    void sortsByChipsThenPlaceWithTheSelectionPasses() {
        // Equal banks of 3,000 at positions 1 (the user), 3 and 5.
        const std::vector<StndRecord> field = {
            {11, "You", 3000, 0, 1}, {12, "A", 5000, 0, 2}, {13, "B", 3000, 0, 3}, {14, "C", 0, 9, 4},
            {15, "D", 3000, 0, 5},   {16, "E", 0, 10, 6},   {17, "F", 8000, 0, 7}, {18, "G", 0, 8, 8},
            {19, "H", 1000, 0, 9},   {20, "I", 0, 7, 10}};
        Standings s;
        OpenStandings(s, WriteStnd(dir_, field));
        // The exchanges carry the user behind B and D; the first one out stands last.
        QCOMPARE(Names(s), (std::vector<std::string>{"F", "A", "B", "D", "You", "H", "I", "G", "C", "E"}));
        QCOMPARE(s.UserRank, int16_t(5));
        QCOMPARE(std::make_tuple(s.copy.Tag[1], s.copy.Number[1], s.copy.Place[10], s.copy.Tag[10]),
                 (std::make_tuple<int16_t, int16_t, int16_t, int16_t>(17, 7, 10, 16)));
        QCOMPARE(Row(s, 1), std::string("1|F|8,000"));
        QCOMPARE(Row(s, 7), std::string("7|I|--"));
        QCOMPARE(Row(s, 11), std::string("||"));
        QVERIFY(s.yellow[5] && !s.yellow[4] && !s.yellow[6]);
        QVERIFY(!s.lblRank[kUserRow].visible);  // the user is on this page
        QCOMPARE(s.lblPage.text, std::string("Page 1"));

        // Three equal stacks behind a bigger one: the first exchange sends P1 back.
        OpenStandings(s, WriteStnd(dir_, {{0, "P1", 500, 0, 2},
                                          {0, "P2", 500, 0, 3},
                                          {0, "P3", 500, 0, 4},
                                          {0, "Big", 900, 0, 1}}));
        QCOMPARE(Names(s), (std::vector<std::string>{"Big", "P2", "P3", "P1"}));
        QCOMPARE(s.UserRank, int16_t(1));
    }

    void pagingLimits_data() {
        QTest::addColumn<int>("players");
        QTest::addColumn<int>("pages");
        QTest::newRow("8") << 8 << 1;
        QTest::newRow("25") << 25 << 1;
        QTest::newRow("26") << 26 << 2;
        QTest::newRow("1000") << 1000 << 40;
    }
    void pagingLimits() {
        QFETCH(int, players);
        QFETCH(int, pages);
        Standings s;
        OpenStandings(s, WriteStnd(dir_, EvenField(players)));
        QVERIFY(!s.lblPrevious.enabled);
        for (int page = 1; page < pages; ++page, lblNext_Click(s)) QVERIFY(s.lblNext.enabled);
        lblNext_Click(s);  // disabled: no change
        QCOMPARE(s.CurrentPage, int16_t(pages));
        QCOMPARE(s.lblPage.text, "Page " + std::to_string(pages));
        QVERIFY(!s.lblNext.enabled);
        QCOMPARE(s.lblPrevious.enabled, pages > 1);
        const int onLast = players - (pages - 1) * kRowsPerPage;
        QCOMPARE(s.lblRank[1].text, std::to_string((pages - 1) * kRowsPerPage + 1));
        QCOMPARE(s.lblRank[onLast].text, std::to_string(players));
        if (onLast < kRowsPerPage) QCOMPARE(Row(s, onLast + 1), std::string("||"));
        for (int page = pages; page >= 1; --page) lblPrevious_Click(s);
        QCOMPARE(std::make_tuple(s.CurrentPage, s.lblPrevious.enabled, s.lblNext.enabled, s.lblPage.text),
                 std::make_tuple(int16_t(1), false, pages > 1, std::string("Page 1")));
    }

    // Row 26 holds the user when the user's line is on another page.
    void userLineBelowThePage() {
        auto busted = EvenField(30);
        busted[0].bank = 0;
        busted[0].place = 30;
        auto leading = EvenField(60);
        leading[0].bank = 1234567;
        for (int i = 1; i <= 40; ++i) leading[i].bank = 2000000 + i;
        const struct {
            std::vector<StndRecord> field;
            const char *row26, *onPage;
            int page, row;
        } cases[] = {{busted, "30|You|0", "You|--", 2, 5},
                     {leading, "41|You|1,234,567", "You|1,234,567", 2, 16}};
        for (const auto& c : cases) {
            Standings s;
            OpenStandings(s, WriteStnd(dir_, c.field));
            QVERIFY(s.lblRank[kUserRow].visible && s.yellow[kUserRow] && !s.yellow[1]);
            QCOMPARE(Row(s, kUserRow), std::string(c.row26));
            while (s.CurrentPage < c.page) lblNext_Click(s);
            QVERIFY(!s.lblRank[kUserRow].visible && s.lblRank[kUserRow].text.empty());
            QCOMPARE(s.lblName[c.row].text + "|" + s.lblBank[c.row].text, std::string(c.onPage));
            QVERIFY(s.yellow[c.row]);
            lblPrevious_Click(s);
            QVERIFY(s.lblRank[kUserRow].visible);
        }
    }

    void emptyMissingAndBrokenFiles() {
        Standings empty;
        OpenStandings(empty, WriteStnd(dir_, {}, 0));  // the header of zeros before any game
        QCOMPARE(std::make_tuple(empty.PlayerCount, empty.UserRank, empty.lblPage.text),
                 std::make_tuple(int16_t(0), int16_t(0), std::string("Page 1")));
        QVERIFY(!empty.lblRank[kUserRow].visible && !empty.lblNext.enabled && !empty.lblPrevious.enabled);
        QCOMPARE(Row(empty, 1), std::string("||"));
        Standings missing;
        OpenStandings(missing, dir_.filePath("no-such-file.dat").toStdString());
        QCOMPARE(missing.PlayerCount, int16_t(0));
        QVERIFY(!missing.lblRank[kUserRow].visible);
        // A header that promises more than the file holds, ending in a cut-off line.
        const std::string path = WriteStnd(dir_, EvenField(3), 10, "short.dat");
        std::ofstream(path, std::ios::app | std::ios::binary) << "4,\"Cut";
        Standings cut;
        OpenStandings(cut, path);
        QCOMPARE(cut.PlayerCount, int16_t(3));
        Standings huge;  // a count beyond the roster is held to it
        OpenStandings(huge, WriteStnd(dir_, EvenField(2), 30000, "huge.dat"));
        QCOMPARE(huge.PlayerCount, int16_t(2));
    }

    void formShowsThePageAndPages() {
        frmRankings none(WriteStnd(dir_, {}, 0, "none.dat"));
        none.show();
        QVERIFY(!none.lblRank[kUserRow]->isVisible());
        QVERIFY(holdem::test::SaveScreenshot(none, "fieldviews_standings_empty"));

        auto field = EvenField(30);
        field[0].bank = 0;
        field[0].place = 30;
        field[4] = {0, "Angelica Montgomery-Smythe", 12345678, 0, 5};
        frmRankings form(WriteStnd(dir_, field));
        form.show();
        QCOMPARE(form.size(), QSize(355, 513));
        QVERIFY(form.windowTitle().trimmed().isEmpty());
        QCOMPARE(form.lblBank[1]->text(), QString("12,345,678"));
        QVERIFY(form.lblBank[1]->alignment() & Qt::AlignRight);
        QCOMPARE(form.lblRank[2]->geometry(), QRect(16, 56, 28, 16));
        QCOMPARE(form.lblRank[kUserRow]->geometry().top(), 456);
        QVERIFY(form.lblRank[kUserRow]->isVisible() && !form.lblPrevious->isEnabled());
        QCOMPARE(holdem::test::TextColour(form.lblName[kUserRow]), QColor(255, 255, 0));
        QCOMPARE(holdem::test::TextColour(form.lblName[1]), QColor(224, 224, 224));
        QVERIFY(holdem::test::SaveScreenshot(form, "fieldviews_standings_page1"));
        QTest::mouseClick(form.lblNext, Qt::LeftButton);
        QCOMPARE(form.lblPage->text(), QString("Page 2"));
        QVERIFY(!form.lblNext->isEnabled() && form.lblPrevious->isEnabled());
        QVERIFY(!form.lblRank[kUserRow]->isVisible());
        QCOMPARE(holdem::test::TextColour(form.lblName[5]), QColor(255, 255, 0));
        QVERIFY(holdem::test::SaveScreenshot(form, "fieldviews_standings_page2"));
        QTest::mouseClick(form.lblPrevious, Qt::LeftButton);
        QCOMPARE(form.lblPage->text(), QString("Page 1"));
        QTest::mouseClick(form.lblClose, Qt::LeftButton);
        QVERIFY(!form.isVisible());
    }
};

QTEST_MAIN(StandingsTest)
#include "fieldviews_standings_test.moc"
