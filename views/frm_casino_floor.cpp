#include "views/frm_casino_floor.h"

#include <QFontMetrics>
#include <QLabel>
#include <algorithm>

namespace holdem {

using namespace kit;

namespace {

QColor ToQColor(Rgb c) { return QColor(c.r, c.g, c.b); }

QLabel* MakeText(QWidget* parent, const QString& text, QRect box, bool bold, Qt::Alignment align) {
    auto* label = new QLabel(text, parent);
    label->setGeometry(box);
    label->setFont(Sans(8, bold));
    label->setAlignment(align | Qt::AlignVCenter);
    SetTextColour(label, Qt::white);
    return label;
}

QRect BoxRect(const TwipsBox& b) { return TwipsRect(b.left, b.top, b.width, b.height); }

// Legend rows: swatch index, label index, swatch colour, top of the swatch.
struct LegendRow {
    int swatch, legend;
    Rgb colour;
    int top;
};
constexpr LegendRow kLegend[] = {
    {2, 1, floor_colour::kUser, 5805},
    {0, 2, floor_colour::kComputer, 6045},
    {1, 3, floor_colour::kLegendInactive, 6285},
    {3, 4, floor_colour::kLeader, 6525},
};
constexpr int kLegendLeft = 240, kLegendTextLeft = 435, kLegendTextRise = 45;
constexpr int kSwatch = 125;
// lblSeatData: space round its text inside the border.
constexpr int kSeatDataPadX = 4, kSeatDataPadY = 1;

}  // namespace

frmCasinoFloor::frmCasinoFloor(const std::string& standingsPath, QWidget* parent) : QDialog(parent) {
    SetBlankTitle(this);
    setFixedSize(Px(7410), Px(6885));
    SetBackground(this, ToQColor(floor_colour::kGround));

    lblPlayers =
        MakeText(this, "Players Remaining: ", TwipsRect(2400, 240, 2580, 240), true, Qt::AlignHCenter);
    lblRoom = MakeText(this, "Room: ", TwipsRect(3240, 720, 870, 240), true, Qt::AlignHCenter);
    BuildRoom();
    BuildLegend();
    lblPrevious = MakeClickLabel(this, "[PREVIOUS]", TwipsRect(4440, 6120, 945, 195), Sans(8), Qt::white);
    lblNext = MakeClickLabel(this, "[NEXT]", TwipsRect(5520, 6120, 555, 195), Sans(8), Qt::white);
    lblClose = MakeClickLabel(this, "[CLOSE]", TwipsRect(6600, 6120, 645, 195), Sans(8), Qt::white);

    lblSeatData = new QLabel(this);
    lblSeatData->setFont(Sans(8));
    lblSeatData->setAlignment(Qt::AlignCenter);
    lblSeatData->setFrameStyle(QFrame::Box | QFrame::Plain);
    lblSeatData->setLineWidth(1);
    SetTextColour(lblSeatData, Qt::black);
    SetBackground(lblSeatData, Qt::white);
    lblSeatData->hide();

    connect(lblNext, &ClickLabel::clicked, this, [this] {
        lblNext_Click(f_);
        Draw();
    });
    connect(lblPrevious, &ClickLabel::clicked, this, [this] {
        lblPrevious_Click(f_);
        Draw();
    });
    connect(lblClose, &ClickLabel::clicked, this, &QDialog::accept);
    PagingKeys(this, lblNext, lblPrevious);

    OpenFloor(f_, standingsPath);
    Draw();
}

void frmCasinoFloor::BuildRoom() {
    for (int t = 1; t <= kRoomTables; ++t) {
        TwipsBox table = TableBox(t);
        sTable[t] = new ColourShape(true, this);
        sTable[t]->setGeometry(BoxRect(table));
        lblTable[t] = MakeText(this, QString(), TwipsRect(table.left + 465, table.top + 165, 165, 240), true,
                               Qt::AlignHCenter);
        GrowToText(lblTable[t], "125");
    }
    for (int s = 1; s <= kRoomSeats; ++s) {
        sSeat[s] = new ColourShape(false, this);
        sSeat[s]->setGeometry(BoxRect(SeatBox(s)));
        sSeat[s]->setCursor(Qt::PointingHandCursor);
        connect(sSeat[s], &ColourShape::clicked, this, [this, s] {
            sSeat_Click(f_, s);
            Draw();
        });
    }
}

void frmCasinoFloor::BuildLegend() {
    for (const LegendRow& row : kLegend) {
        auto* swatch = new ColourShape(false, this);
        swatch->setGeometry(TwipsRect(kLegendLeft, row.top, kSwatch, kSwatch));
        swatch->setColour(ToQColor(row.colour));
        sSeatLegend[row.swatch] = swatch;
        Legend[row.legend] =
            MakeText(this, QString(), TwipsRect(kLegendTextLeft, row.top - kLegendTextRise, 2400, 240), false,
                     Qt::AlignLeft);
    }
}

void frmCasinoFloor::Draw() {
    lblPlayers->setText(QString::fromStdString(f_.lblPlayers.text));
    lblRoom->setText(QString::fromStdString(f_.lblRoom.text));
    for (int i = 1; i <= 4; ++i) Legend[i]->setText(QString::fromStdString(f_.Legend[i].text));
    for (int t = 1; t <= kRoomTables; ++t) {
        sTable[t]->setColour(ToQColor(f_.sTableColour[t]));
        lblTable[t]->setText(QString::fromStdString(f_.lblTable[t].text));
    }
    for (int s = 1; s <= kRoomSeats; ++s) {
        sSeat[s]->setColour(ToQColor(f_.sSeatColour[s]));
        sSeat[s]->setEnabled(f_.sSeatEnabled[s]);
        sSeat[s]->setCursor(f_.sSeatEnabled[s] ? Qt::PointingHandCursor : Qt::ArrowCursor);
    }
    lblPrevious->setEnabled(f_.lblPrevious.enabled);
    lblNext->setEnabled(f_.lblNext.enabled);
    PlaceSeatData();
}

void frmCasinoFloor::PlaceSeatData() {
    if (!f_.lblSeatData.visible) {
        lblSeatData->hide();
        return;
    }
    lblSeatData->setText(QString::fromStdString(f_.lblSeatData.text));
    QSize text = QFontMetrics(lblSeatData->font()).size(Qt::TextSingleLine, lblSeatData->text());
    QSize size(text.width() + 2 * (kSeatDataPadX + 1), text.height() + 2 * (kSeatDataPadY + 1));
    QPoint at(Px(f_.lblSeatDataLeft), Px(f_.lblSeatDataTop));
    // A long name at a table of the last column would run off the floor.
    at.setX(std::max(0, std::min(at.x(), width() - size.width())));
    lblSeatData->setGeometry(QRect(at, size));
    lblSeatData->show();
    lblSeatData->raise();
}

}  // namespace holdem
