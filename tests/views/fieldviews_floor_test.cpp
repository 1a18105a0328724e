// The casino floor: the leader and its ties, the colours of a room, seat
// clicks, room paging, and the form drawn from them.
#include <QLabel>
#include <QTemporaryDir>
#include <QtTest>

#include "fieldviews_support.h"
#include "views/floor_model.h"
#include "views/frm_casino_floor.h"

using namespace holdem;
using holdem::test::EvenField;
using holdem::test::StndRecord;
using holdem::test::WriteStnd;
namespace colour = holdem::floor_colour;

namespace {

int CountSeats(const Floor& f, Rgb c) {
    int n = 0;
    for (int s = 1; s <= kRoomSeats; ++s) n += f.sSeatColour[s] == c;
    return n;
}

}  // namespace

class FloorTest : public QObject {
    Q_OBJECT
    QTemporaryDir dir_;

private slots:
    void geometryOfTablesAndSeats() {
        // Tables run down the first column first; seat 1 of a table sits at
        // the bottom middle and the others follow clockwise.
        QCOMPARE(TableBox(5).top, 1080 + 4 * 960);
        QCOMPARE(TableBox(6).left, 240 + 1440);
        QCOMPARE(TableBox(6).top, 1080);
        QCOMPARE(SeatBox(3).left, 240);
        QCOMPARE(SeatBox(3).top, 1080 + 240);
        QCOMPARE(SeatBox(15).left, 240 + 960);  // seat 7 of table 2
        QCOMPARE(SeatBox(15).top, 1080 + 960 + 240);
        QCOMPARE(SeatBox(200).left, TableBox(25).left + 840);
        QCOMPARE(TableControlOf(9), 2);
    }

    void startOfAnEightyPlayerGame() {
        Floor f;
        OpenFloor(f, WriteStnd(dir_, EvenField(80)));
        // All banks equal: every record ties with record 1, so no leader shows.
        QCOMPARE(f.ChipLeader, int16_t(1));
        QCOMPARE(f.ChipLeaderTies, int16_t(80));
        QCOMPARE(CountSeats(f, colour::kLeader), 0);
        QCOMPARE(f.PlayersRemaining, int16_t(80));
        QCOMPARE(f.lblPlayers.text, std::string("Players Remaining: 80"));
        QCOMPARE(f.lblRoom.text, std::string("Room: 1"));
        QCOMPARE(f.Legend[1].text, std::string("You"));
        QCOMPARE(f.sSeatColour[1], colour::kUser);
        QCOMPARE(CountSeats(f, colour::kComputer), 79);
        QCOMPARE(CountSeats(f, colour::kInactive), 120);
        QVERIFY(f.sSeatEnabled[80] && !f.sSeatEnabled[81]);
        for (int t = 1; t <= kRoomTables; ++t) {
            QCOMPARE(f.sTableColour[t], t <= 10 ? colour::kTableInPlay : colour::kTableEmpty);
            QCOMPARE(f.lblTable[t].text, std::to_string(t));
            QCOMPARE(f.TablePlayers[t], int16_t(t <= 10 ? 8 : 0));
        }
        QVERIFY(!f.lblSeatData.visible);
        QVERIFY(!f.lblPrevious.enabled && f.lblNext.enabled);
    }

    void theOneLeaderShowsBlue() {
        auto field = EvenField(200);
        field[36].bank = 25000;  // position 37, room 1
        field[5].bank = 0;       // position 6 is out
        field[5].place = 200;
        Floor f;
        OpenFloor(f, WriteStnd(dir_, field));
        QCOMPARE(f.ChipLeader, int16_t(37));
        QCOMPARE(f.ChipLeaderTies, int16_t(1));
        QCOMPARE(f.sSeatColour[37], colour::kLeader);
        QCOMPARE(CountSeats(f, colour::kLeader), 1);
        QCOMPARE(f.sSeatColour[6], colour::kInactive);
        QVERIFY(!f.sSeatEnabled[6]);
        QCOMPARE(f.PlayersRemaining, int16_t(199));
        QCOMPARE(f.TablePlayers[1], int16_t(7));
    }

    void leadersThatShowNoBlue() {
        // A tie for the lead, reached after a bigger bank took over.
        auto tied = EvenField(80);
        tied[10].bank = 30000;
        tied[50].bank = 30000;
        Floor f;
        OpenFloor(f, WriteStnd(dir_, tied));
        QCOMPARE(f.ChipLeader, int16_t(11));
        QCOMPARE(f.ChipLeaderTies, int16_t(2));
        QCOMPARE(CountSeats(f, colour::kLeader), 0);

        // Record 1 alone at the top counts as one: the user shows blue, not yellow.
        auto userLeads = EvenField(80);
        userLeads[0].bank = 40000;
        Floor u;
        OpenFloor(u, WriteStnd(dir_, userLeads));
        QCOMPARE(u.ChipLeader, int16_t(1));
        QCOMPARE(u.ChipLeaderTies, int16_t(1));
        QCOMPARE(u.sSeatColour[1], colour::kLeader);

        // A leader in room 3 shows only there.
        auto far = EvenField(1000);
        far[449].bank = 50000;  // position 450: room 3, seat control 50
        Floor r;
        OpenFloor(r, WriteStnd(dir_, far));
        QCOMPARE(CountSeats(r, colour::kLeader), 0);
        lblNext_Click(r);
        QCOMPARE(CountSeats(r, colour::kLeader), 0);
        lblNext_Click(r);
        QCOMPARE(r.CurrentRoom, int16_t(3));
        QCOMPARE(r.sSeatColour[50], colour::kLeader);
        QCOMPARE(CountSeats(r, colour::kLeader), 1);
    }

    void clicksOnSeats() {
        auto field = EvenField(80);
        field[0].bank = 40000;  // the user leads
        field[20].bank = 0;     // position 21 is out
        field[20].place = 80;
        Floor f;
        OpenFloor(f, WriteStnd(dir_, field));

        sSeat_Click(f, 10);
        QCOMPARE(f.SelectedSeat, int16_t(10));
        QCOMPARE(f.SelectedTable, int16_t(2));
        QCOMPARE(f.SelectedSeatColour, colour::kComputer);
        QCOMPARE(f.sSeatColour[10], colour::kSelected);
        QVERIFY(f.lblSeatData.visible);
        QCOMPARE(f.lblSeatData.text, std::string("#10 Player 10   $10,000"));
        QCOMPARE(f.lblSeatDataTop, 1080 + 960 - 250);
        QCOMPARE(f.lblSeatDataLeft, 240 + 25);

        // A second seat: the first gets its colour back, the label moves.
        sSeat_Click(f, 57);
        QCOMPARE(f.sSeatColour[10], colour::kComputer);
        QCOMPARE(f.sSeatColour[57], colour::kSelected);
        QCOMPARE(f.SelectedTable, int16_t(8));
        QCOMPARE(f.lblSeatDataTop, 1080 + 2 * 960 - 250);
        QCOMPARE(f.lblSeatDataLeft, 240 + 1440 + 25);

        // The same seat again stays white and keeps its true colour in store.
        sSeat_Click(f, 57);
        QCOMPARE(f.sSeatColour[57], colour::kSelected);
        QCOMPARE(f.SelectedSeatColour, colour::kComputer);
        QCOMPARE(f.lblSeatDataTop, 1080 + 2 * 960 - 250);

        // An inactive seat takes no click.
        sSeat_Click(f, 21);
        QCOMPARE(f.SelectedSeat, int16_t(57));
        QCOMPARE(f.sSeatColour[21], colour::kInactive);

        // The user, who leads: "#1" and the name, and blue comes back.
        sSeat_Click(f, 1);
        QCOMPARE(f.lblSeatData.text, std::string("#1 You   $40,000"));
        QCOMPARE(f.sSeatColour[57], colour::kComputer);
        sSeat_Click(f, 2);
        QCOMPARE(f.sSeatColour[1], colour::kLeader);
    }

    void roomsAndTheirEdges() {
        Floor f;
        OpenFloor(f, WriteStnd(dir_, EvenField(1000)));
        lblPrevious_Click(f);  // nothing before room 1
        QCOMPARE(f.CurrentRoom, int16_t(1));

        sSeat_Click(f, 3);
        lblNext_Click(f);
        QCOMPARE(f.CurrentRoom, int16_t(2));
        QCOMPARE(f.lblRoom.text, std::string("Room: 2"));
        QVERIFY(!f.lblSeatData.visible);
        QCOMPARE(f.SelectedSeat, int16_t(0));
        QVERIFY(f.lblPrevious.enabled);
        QCOMPARE(f.lblTable[1].text, std::string("26"));
        QCOMPARE(f.sSeatColour[1], colour::kComputer);  // position 201 is not the user

        for (int i = 0; i < 3; ++i) lblNext_Click(f);
        QCOMPARE(f.CurrentRoom, int16_t(5));
        QVERIFY(!f.lblNext.enabled);
        QCOMPARE(f.lblTable[25].text, std::string("125"));
        sSeat_Click(f, 200);
        QCOMPARE(f.lblSeatData.text, std::string("#1000 Player 1000   $10,000"));
        lblNext_Click(f);  // nothing after room 5
        QCOMPARE(f.CurrentRoom, int16_t(5));
        QVERIFY(f.lblSeatData.visible);

        for (int i = 0; i < 4; ++i) lblPrevious_Click(f);
        QCOMPARE(f.CurrentRoom, int16_t(1));
        QVERIFY(!f.lblPrevious.enabled && f.lblNext.enabled);
        QCOMPARE(f.sSeatColour[1], colour::kUser);
        QCOMPARE(CountSeats(f, colour::kSelected), 0);
    }

    void singleTableAndNoGame() {
        Floor one;
        OpenFloor(one, WriteStnd(dir_, EvenField(8)));
        QCOMPARE(one.sTableColour[1], colour::kTableInPlay);
        QCOMPARE(one.sTableColour[2], colour::kTableEmpty);
        QCOMPARE(CountSeats(one, colour::kInactive), 192);
        for (int room = 2; room <= kRooms; ++room) {
            lblNext_Click(one);
            QCOMPARE(one.CurrentRoom, int16_t(room));
            QCOMPARE(CountSeats(one, colour::kInactive), kRoomSeats);
            for (int t = 1; t <= kRoomTables; ++t) QCOMPARE(one.sTableColour[t], colour::kTableEmpty);
        }

        Floor none;
        OpenFloor(none, WriteStnd(dir_, {}, 0));
        QCOMPARE(none.lblPlayers.text, std::string("Players Remaining: 0"));
        QCOMPARE(none.ChipLeaderTies, int16_t(0));
        QCOMPARE(none.Legend[1].text, std::string("Player 1"));
        QCOMPARE(CountSeats(none, colour::kInactive), kRoomSeats);
        QCOMPARE(none.sTableColour[1], colour::kTableEmpty);

        Floor missing;
        OpenFloor(missing, dir_.filePath("absent.dat").toStdString());
        QCOMPARE(missing.PlayersRemaining, int16_t(0));
    }

    void formDrawsTheRoomAndTheClick() {
        auto field = EvenField(80);
        field[36].bank = 25000;
        field[4].bank = 0;
        field[4].place = 80;
        field[65].name = "Maximiliano Fitzgerald";
        frmCasinoFloor form(WriteStnd(dir_, field));
        form.show();
        QCOMPARE(form.size(), QSize(494, 459));
        QVERIFY(form.windowTitle().isEmpty());
        QCOMPARE(form.lblPlayers->text(), QString("Players Remaining: 79"));
        QCOMPARE(form.sTable[6]->geometry(), QRect(112, 72, 73, 41));
        QCOMPARE(form.sSeat[1]->geometry(), QRect(48, 104, 8, 8));
        QCOMPARE(form.sSeat[1]->colour(), QColor(255, 255, 0));
        QCOMPARE(form.sSeat[37]->colour(), QColor(0, 0, 255));
        QCOMPARE(form.sSeat[5]->colour(), QColor(64, 0, 0));
        QVERIFY(!form.sSeat[5]->isEnabled());
        QCOMPARE(form.sTable[11]->colour(), QColor(0, 64, 0));
        QCOMPARE(form.sSeatLegend[1]->colour(), QColor(128, 0, 0));
        QVERIFY(!form.lblSeatData->isVisible());
        QVERIFY(holdem::test::SaveScreenshot(form, "fieldviews_floor_room1"));

        QTest::mouseClick(form.sSeat[5], Qt::LeftButton);  // inactive
        QVERIFY(!form.lblSeatData->isVisible());
        QTest::mouseClick(form.sSeat[66], Qt::LeftButton);  // table 9, column 1 row 3
        QVERIFY(form.lblSeatData->isVisible());
        QCOMPARE(form.lblSeatData->text(), QString("#66 Maximiliano Fitzgerald   $10,000"));
        QCOMPARE(form.sSeat[66]->colour(), QColor(255, 255, 255));
        QCOMPARE(form.lblSeatData->geometry().topLeft(), QPoint(kit::Px(1680 + 25), kit::Px(3960 - 250)));
        QVERIFY(form.lblSeatData->width() >
                QFontMetrics(form.lblSeatData->font()).horizontalAdvance(form.lblSeatData->text()));
        QVERIFY(holdem::test::SaveScreenshot(form, "fieldviews_floor_click"));

        // An empty seat takes no click: the label still names the last one.
        QTest::mouseClick(form.sSeat[161], Qt::LeftButton);
        QVERIFY(form.lblSeatData->isVisible());
        QCOMPARE(form.lblSeatData->text(), QString("#66 Maximiliano Fitzgerald   $10,000"));
        QTest::mouseClick(form.lblNext, Qt::LeftButton);
        QCOMPARE(form.lblRoom->text(), QString("Room: 2"));
        QCOMPARE(form.sSeat[66]->colour(), QColor(64, 0, 0));
        QVERIFY(form.lblPrevious->isEnabled());
        QVERIFY(!form.lblSeatData->isVisible());
        QTest::mouseClick(form.lblClose, Qt::LeftButton);
        QVERIFY(!form.isVisible());
    }

    void formKeepsTheNameOnTheFloorAtTheRightEdge() {
        auto field = EvenField(1000);
        field[199].name = "Bartholomew Worthington-Smythe";
        frmCasinoFloor form(WriteStnd(dir_, field));
        form.show();
        QTest::mouseClick(form.sSeat[200], Qt::LeftButton);
        QVERIFY(form.lblSeatData->isVisible());
        QVERIFY(form.lblSeatData->geometry().right() < form.width());
        QCOMPARE(form.lblSeatData->y(), kit::Px(1080 + 4 * 960 - 250));
        QVERIFY(holdem::test::SaveScreenshot(form, "fieldviews_floor_edge"));
    }
};

QTEST_MAIN(FloorTest)
#include "fieldviews_floor_test.moc"
