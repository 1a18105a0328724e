// The casino floor: the leader and its ties, the colours of a room, seat
// clicks, room paging, and the form.
#include <QLabel>
#include <QtTest>

#include "fieldviews_support.h"
#include "views/floor_model.h"
#include "views/frm_casino_floor.h"

using namespace holdem;
using holdem::test::EvenField;
using holdem::test::WriteStnd;
namespace colour = holdem::floor_colour;

namespace {
int CountSeats(const Floor& f, Rgb c) {
    return static_cast<int>(std::count(f.sSeatColour.begin() + 1, f.sSeatColour.end(), c));
}
int CountTables(const Floor& f, Rgb c) {
    return static_cast<int>(std::count(f.sTableColour.begin() + 1, f.sTableColour.end(), c));
}
}  // namespace

class FloorTest : public QObject {
    Q_OBJECT
    QTemporaryDir dir_;

private slots:
    void startOfAnEightyPlayerGame() {
        Floor f;
        OpenFloor(f, WriteStnd(dir_, EvenField(80)));
        // All banks equal: every record ties with record 1, so no leader shows.
        QCOMPARE(std::make_tuple(f.ChipLeader, f.ChipLeaderTies, f.PlayersRemaining),
                 (std::make_tuple<int16_t, int16_t, int16_t>(1, 80, 80)));
        QCOMPARE(f.lblPlayers.text + "|" + f.lblRoom.text + "|" + f.Legend[1].text,
                 std::string("Players Remaining: 80|Room: 1|You"));
        QCOMPARE(f.sSeatColour[1], colour::kUser);
        QCOMPARE(std::make_tuple(CountSeats(f, colour::kLeader), CountSeats(f, colour::kComputer),
                                 CountSeats(f, colour::kInactive)),
                 std::make_tuple(0, 79, 120));
        QVERIFY(f.sSeatEnabled[80] && !f.sSeatEnabled[81]);
        for (int t = 1; t <= kRoomTables; ++t) {
            QCOMPARE(f.sTableColour[t], t <= 10 ? colour::kTableInPlay : colour::kTableEmpty);
            QCOMPARE(f.lblTable[t].text, std::to_string(t));
            QCOMPARE(f.TablePlayers[t], int16_t(t <= 10 ? 8 : 0));
        }
        QVERIFY(!f.lblSeatData.visible && !f.lblPrevious.enabled && f.lblNext.enabled);
    }

    // Blue only for a leader without a tie, in its own room, over the user's yellow.
    void theLeaderAndItsTies() {
        const struct {
            int size;
            std::vector<std::pair<int, int>> banks;  // position, bank
            int leader, ties, room, blueSeat;
        } cases[] = {
            {200, {{37, 25000}, {6, 0}}, 37, 1, 1, 37},
            {80, {{11, 30000}, {51, 30000}}, 11, 2, 1, 0},
            {80, {{1, 40000}}, 1, 1, 1, 1},
            {1000, {{450, 50000}}, 450, 1, 3, 50},
        };
        for (const auto& c : cases) {
            auto field = EvenField(c.size);
            for (auto [pos, bank] : c.banks) field[pos - 1].bank = bank;
            Floor f;
            OpenFloor(f, WriteStnd(dir_, field));
            QCOMPARE(std::make_tuple(int{f.ChipLeader}, int{f.ChipLeaderTies}),
                     std::make_tuple(c.leader, c.ties));
            while (f.CurrentRoom < c.room) {
                QCOMPARE(CountSeats(f, colour::kLeader), 0);
                lblNext_Click(f);
            }
            QCOMPARE(CountSeats(f, colour::kLeader), c.blueSeat ? 1 : 0);
            if (c.blueSeat) QCOMPARE(f.sSeatColour[c.blueSeat], colour::kLeader);
        }
        Floor f;  // position 6 out of the first case
        auto field = EvenField(200);
        field[5].bank = 0;
        OpenFloor(f, WriteStnd(dir_, field));
        QCOMPARE(std::make_tuple(f.sSeatColour[6], f.sSeatEnabled[6], int{f.PlayersRemaining},
                                 int{f.TablePlayers[1]}),
                 std::make_tuple(colour::kInactive, false, 199, 7));
    }

    void clicksOnSeats() {
        auto field = EvenField(80);
        field[0].bank = 40000;  // the user leads
        field[20].bank = 0;
        Floor f;
        OpenFloor(f, WriteStnd(dir_, field));
        sSeat_Click(f, 10);
        QCOMPARE(std::make_tuple(int{f.SelectedSeat}, int{f.SelectedTable}, f.SelectedSeatColour,
                                 f.sSeatColour[10]),
                 std::make_tuple(10, 2, colour::kComputer, colour::kSelected));
        QVERIFY(f.lblSeatData.visible);
        QCOMPARE(f.lblSeatData.text, std::string("#10 Player 10   $10,000"));
        QCOMPARE(std::make_pair(f.lblSeatDataLeft, f.lblSeatDataTop),
                 std::make_pair(240 + 25, 1080 + 960 - 250));
        // A second seat: the first gets its colour back and the label moves.
        sSeat_Click(f, 57);
        QCOMPARE(std::make_tuple(f.sSeatColour[10], f.sSeatColour[57], int{f.SelectedTable}),
                 std::make_tuple(colour::kComputer, colour::kSelected, 8));
        QCOMPARE(std::make_pair(f.lblSeatDataLeft, f.lblSeatDataTop),
                 std::make_pair(240 + 1440 + 25, 1080 + 2 * 960 - 250));
        // The same seat again stays white and keeps its true colour in store.
        sSeat_Click(f, 57);
        QCOMPARE(std::make_pair(f.sSeatColour[57], f.SelectedSeatColour),
                 std::make_pair(colour::kSelected, colour::kComputer));
        sSeat_Click(f, 21);  // inactive: no click
        QCOMPARE(std::make_pair(int{f.SelectedSeat}, f.sSeatColour[21]),
                 std::make_pair(57, colour::kInactive));
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
        QCOMPARE(f.lblRoom.text + "|" + f.lblTable[1].text, std::string("Room: 2|26"));
        QVERIFY(!f.lblSeatData.visible && f.SelectedSeat == 0 && f.lblPrevious.enabled);
        QCOMPARE(f.sSeatColour[1], colour::kComputer);  // position 201 is not the user
        for (int i = 0; i < 4; ++i) lblNext_Click(f);   // the last one finds room 5 and does nothing
        QCOMPARE(f.CurrentRoom, int16_t(5));
        QVERIFY(!f.lblNext.enabled);
        QCOMPARE(f.lblTable[25].text, std::string("125"));
        sSeat_Click(f, 200);
        QCOMPARE(f.lblSeatData.text, std::string("#1000 Player 1000   $10,000"));
        for (int i = 0; i < 4; ++i) lblPrevious_Click(f);
        QVERIFY(f.CurrentRoom == 1 && !f.lblPrevious.enabled && f.lblNext.enabled);
        QCOMPARE(std::make_pair(f.sSeatColour[1], CountSeats(f, colour::kSelected)),
                 std::make_pair(colour::kUser, 0));
    }

    void singleTableAndNoGame() {
        Floor one;
        OpenFloor(one, WriteStnd(dir_, EvenField(8)));
        QCOMPARE(std::make_pair(CountTables(one, colour::kTableInPlay), CountSeats(one, colour::kInactive)),
                 std::make_pair(1, 192));
        for (int room = 2; room <= kRooms; ++room) {
            lblNext_Click(one);
            QCOMPARE(std::make_tuple(int{one.CurrentRoom}, CountSeats(one, colour::kInactive),
                                     CountTables(one, colour::kTableEmpty)),
                     std::make_tuple(room, kRoomSeats, kRoomTables));
        }
        for (const std::string& path : {WriteStnd(dir_, {}, 0), dir_.filePath("absent.dat").toStdString()}) {
            Floor none;
            OpenFloor(none, path);
            QCOMPARE(none.lblPlayers.text + "|" + none.Legend[1].text,
                     std::string("Players Remaining: 0|Player 1"));
            QCOMPARE(std::make_tuple(int{none.ChipLeaderTies}, CountSeats(none, colour::kInactive),
                                     CountTables(none, colour::kTableEmpty)),
                     std::make_tuple(0, kRoomSeats, kRoomTables));
        }
    }

    void formDrawsTheRoomAndTheClick() {
        auto field = EvenField(80);
        field[36].bank = 25000;
        field[4].bank = 0;
        field[65].name = "Maximiliano Fitzgerald";
        frmCasinoFloor form(WriteStnd(dir_, field));
        form.show();
        QCOMPARE(form.size(), QSize(494, 459));
        QVERIFY(form.windowTitle().trimmed().isEmpty());
        QCOMPARE(form.lblPlayers->text(), QString("Players Remaining: 79"));
        QCOMPARE(form.sTable[6]->geometry(), QRect(112, 72, 73, 41));  // top of the second column
        QCOMPARE(form.sSeat[1]->geometry(), QRect(48, 104, 8, 8));     // bottom middle of table 1
        QCOMPARE(form.sSeat[15]->geometry().topLeft(), QPoint(kit::Px(240 + 960), kit::Px(1080 + 960 + 240)));
        const std::pair<QColor, QColor> colours[] = {{form.sSeat[1]->colour(), QColor(255, 255, 0)},
                                                     {form.sSeat[37]->colour(), QColor(0, 0, 255)},
                                                     {form.sSeat[5]->colour(), QColor(64, 0, 0)},
                                                     {form.sTable[11]->colour(), QColor(0, 64, 0)},
                                                     {form.sSeatLegend[1]->colour(), QColor(128, 0, 0)}};
        for (const auto& [shown, expected] : colours) QCOMPARE(shown, expected);
        QVERIFY(!form.sSeat[5]->isEnabled() && !form.lblSeatData->isVisible());
        QVERIFY(holdem::test::SaveScreenshot(form, "fieldviews_floor_room1"));
        QTest::mouseClick(form.sSeat[5], Qt::LeftButton);  // inactive
        QVERIFY(!form.lblSeatData->isVisible());
        QTest::mouseClick(form.sSeat[66], Qt::LeftButton);  // table 9, column 1 row 3
        QCOMPARE(form.lblSeatData->text(), QString("#66 Maximiliano Fitzgerald   $10,000"));
        QCOMPARE(form.sSeat[66]->colour(), QColor(255, 255, 255));
        QCOMPARE(form.lblSeatData->geometry().topLeft(), QPoint(kit::Px(1680 + 25), kit::Px(3960 - 250)));
        QVERIFY(form.lblSeatData->isVisible() &&
                form.lblSeatData->width() >
                    QFontMetrics(form.lblSeatData->font()).horizontalAdvance(form.lblSeatData->text()));
        QVERIFY(holdem::test::SaveScreenshot(form, "fieldviews_floor_click"));
        QTest::mouseClick(form.lblNext, Qt::LeftButton);
        QCOMPARE(form.lblRoom->text(), QString("Room: 2"));
        QCOMPARE(form.sSeat[66]->colour(), QColor(64, 0, 0));
        QVERIFY(form.lblPrevious->isEnabled() && !form.lblSeatData->isVisible());
        QTest::mouseClick(form.lblClose, Qt::LeftButton);
        QVERIFY(!form.isVisible());
    }

    void formKeepsTheNameOnTheFloorAtTheRightEdge() {
        auto field = EvenField(1000);
        field[199].name = "Bartholomew Worthington-Smythe";
        frmCasinoFloor form(WriteStnd(dir_, field));
        form.show();
        QTest::mouseClick(form.sSeat[200], Qt::LeftButton);
        QVERIFY(form.lblSeatData->isVisible() && form.lblSeatData->geometry().right() < form.width());
        QCOMPARE(form.lblSeatData->y(), kit::Px(1080 + 4 * 960 - 250));
        QVERIFY(holdem::test::SaveScreenshot(form, "fieldviews_floor_edge"));
    }
};

QTEST_MAIN(FloorTest)
#include "fieldviews_floor_test.moc"
