#include "views/frm_pot_breakdown.h"

#include <QPainter>

#include "engine/common.h"

namespace holdem {

using kit::Place;
using kit::Q;

namespace {
constexpr QSize kClient(3840 / kit::kTwipsPerPixel, 3345 / kit::kTwipsPerPixel);
const QColor kGround(64, 64, 64);
constexpr int kRowHeight = 240;
constexpr int kFirstRow = 480;
// The two rules, in twips: under the heading and over the total.
constexpr int kRuleLeft = 840, kRuleRight = 3000, kTopRule = 440, kBottomRule = 2440;

QString Dollars(int64_t amount) { return QStringLiteral("$") + Q(Money(amount)); }
}  // namespace

frmPotBreakdown::frmPotBreakdown(const PotBreakdown& breakdown, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint) {
    setFixedSize(kClient);
    kit::SetBackground(this, kGround);
    auto label = [this](const QString& text, const kit::Twips& place, Qt::Alignment align,
                        bool bold = false) {
        auto* l = new QLabel(text, this);
        kit::StyleLabel(l, kit::Sans(8.25, bold), Qt::white, align | Qt::AlignVCenter);
        Place(l, place);
        return l;
    };
    lblName[10] = label(QStringLiteral("Pot Breakdown"), {1095, 120, 1605, 240}, Qt::AlignHCenter, true);
    for (int s = 1; s <= kSeats; ++s) {
        int top = kFirstRow + kRowHeight * (s - 1);
        // Long names run to the left of their box, and a name longer still
        // takes a smaller font rather than being cut.
        lblName[s] = label(Q(breakdown.name[s]), {120, top, 1080 + 780 - 120, kRowHeight}, Qt::AlignRight);
        kit::FitFontToWidth(lblName[s], lblName[s]->font());
        lblInPot[s] = label(Dollars(breakdown.bet[s]), {2040, top, 780 + 900, kRowHeight}, Qt::AlignLeft);
    }
    lblName[9] = label(QStringLiteral("Total:"), {1350, 2520, 510, 240}, Qt::AlignRight);
    lblInPot[9] = label(Dollars(breakdown.total), {2040, 2520, 780 + 900, 240}, Qt::AlignLeft);

    lblClose = kit::MakeClickLabel(this, QStringLiteral("[Close]"), kit::TwipsRect(3030, 3000, 645, 240),
                                   kit::Sans(8.25), Qt::white, Qt::AlignRight);
    connect(lblClose, &kit::ClickLabel::clicked, this, &QDialog::accept);
    kit::OnKey(this, Qt::Key_Return, [this] { accept(); });
}

void frmPotBreakdown::paintEvent(QPaintEvent* event) {
    QDialog::paintEvent(event);
    QPainter p(this);
    p.setPen(Qt::white);
    const int t = kit::kTwipsPerPixel;
    p.drawLine(kRuleLeft / t, kTopRule / t, kRuleRight / t, kTopRule / t);
    p.drawLine(kRuleLeft / t, kBottomRule / t, kRuleRight / t, kBottomRule / t);
}

}  // namespace holdem
