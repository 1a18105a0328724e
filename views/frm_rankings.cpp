#include "views/frm_rankings.h"

#include <QPainter>

namespace holdem {

using namespace kit;

namespace {

const QColor kText(224, 224, 224);
const QColor kUserText(255, 255, 0);

constexpr int kRowTop = 600, kRowStep = 240, kRowHeight = 240;
constexpr int kUserRowTop = 6840;
constexpr int kRuleLeft = 240, kRuleRight = 5040, kRule1Y = 480, kRule2Y = 6720;

QLabel* MakeLabel(QWidget* parent, QRect box, Qt::Alignment align) {
    auto* label = new QLabel(parent);
    label->setGeometry(box);
    label->setAlignment(align | Qt::AlignVCenter);
    label->setFont(Sans(8));
    SetTextColour(label, kText);
    return label;
}

void Apply(QLabel* label, const Element& e) {
    label->setText(QString::fromStdString(e.text));
    label->setVisible(e.visible);
    label->setEnabled(e.enabled);
}

}  // namespace

frmRankings::frmRankings(const std::string& standingsPath, QWidget* parent) : QDialog(parent) {
    SetBlankTitle(this);
    setFixedSize(Px(5325), Px(7695));
    SetBackground(this, Qt::black);

    Label2 = new QLabel("Standings", this);
    Label2->setGeometry(TwipsRect(2040, 120, 975, 285));
    Label2->setAlignment(Qt::AlignCenter);
    Label2->setFont(Serif(12, true));
    SetTextColour(Label2, kText);
    GrowToText(Label2);

    BuildRows();
    lblPage = MakeLabel(this, TwipsRect(840, 7320, 525, 195), Qt::AlignHCenter);
    GrowToText(lblPage, "Page 40");
    lblPrevious = MakeClickLabel(this, "[PREVIOUS]", TwipsRect(2160, 7320, 945, 195), Sans(8), kText);
    lblNext = MakeClickLabel(this, "[NEXT]", TwipsRect(3240, 7320, 555, 195), Sans(8), kText);
    lblClose = MakeClickLabel(this, "[CLOSE]", TwipsRect(4440, 7320, 615, 195), Sans(8), kText);

    connect(lblNext, &ClickLabel::clicked, this, [this] {
        lblNext_Click(s_);
        Draw();
    });
    connect(lblPrevious, &ClickLabel::clicked, this, [this] {
        lblPrevious_Click(s_);
        Draw();
    });
    connect(lblClose, &ClickLabel::clicked, this, &QDialog::accept);
    PagingKeys(this, lblNext, lblPrevious);

    OpenStandings(s_, standingsPath);
    Draw();
}

void frmRankings::BuildRows() {
    for (int row = 1; row <= kUserRow; ++row) {
        int top = row == kUserRow ? kUserRowTop : kRowTop + kRowStep * (row - 1);
        lblRank[row] = MakeLabel(this, TwipsRect(240, top, 420, kRowHeight), Qt::AlignLeft);
        lblName[row] = MakeLabel(this, TwipsRect(840, top, 2580, kRowHeight), Qt::AlignLeft);
        lblBank[row] = MakeLabel(this, TwipsRect(3960, top, 1035, kRowHeight), Qt::AlignRight);
    }
}

void frmRankings::Draw() {
    for (int row = 1; row <= kUserRow; ++row) {
        const QColor& colour = s_.yellow[row] ? kUserText : kText;
        for (auto [label, element] :
             {std::pair{lblRank[row], &s_.lblRank[row]}, std::pair{lblName[row], &s_.lblName[row]},
              std::pair{lblBank[row], &s_.lblBank[row]}}) {
            Apply(label, *element);
            SetTextColour(label, colour);
        }
    }
    Apply(lblPage, s_.lblPage);
    Apply(lblPrevious, s_.lblPrevious);
    Apply(lblNext, s_.lblNext);
}

void frmRankings::paintEvent(QPaintEvent* event) {
    QDialog::paintEvent(event);
    QPainter painter(this);
    painter.setPen(kText);
    for (int y : {kRule1Y, kRule2Y}) painter.drawLine(Px(kRuleLeft), Px(y), Px(kRuleRight), Px(y));
}

}  // namespace holdem
