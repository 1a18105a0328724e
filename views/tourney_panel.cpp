#include "views/tourney_panel.h"

#include <QLabel>
#include <QVBoxLayout>

#include "engine/common.h"
#include "engine/end_of_hand.h"
#include "views/view_kit.h"

namespace holdem {

namespace {

constexpr int kMinimumHeightTwips = 2250;

QString Row(const QString& what, const QString& value) {
    return QStringLiteral("<tr><td>%1</td><td align=right><b>%2</b></td></tr>")
        .arg(what, value.toHtmlEscaped());
}

QString Dollars(int64_t amount) { return kit::Q("$" + Money(amount)); }
QString Blinds(int32_t small) { return Dollars(small) + " - " + Dollars(2LL * small); }

}  // namespace

TourneyPanel::TourneyPanel(QWidget* parent) : QWidget(parent), label_(new QLabel(this)) {
    setObjectName(QStringLiteral("tourneyPanel"));
    label_->setTextFormat(Qt::RichText);
    label_->setWordWrap(true);
    label_->setFont(kit::Sans(8.25));
    label_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    // Room for the six figures and a line of new players, whatever the log takes.
    label_->setMinimumHeight(kit::Px(kMinimumHeightTwips));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 4, 6, 4);
    layout->addWidget(label_);
}

void TourneyPanel::Show(const TourneyFigures& f, const QStringList& joined) {
    QString rows;
    rows += Row(QStringLiteral("Players left"),
                kit::Q(Money(f.playersLeft)) + QStringLiteral(" of ") + kit::Q(Money(f.fieldSize)));
    rows += Row(QStringLiteral("Tables in play"), QString::number(f.tablesInPlay));
    rows += Row(QStringLiteral("Blinds"), Blinds(f.smallBlind));
    // The blinds follow the count of the hand before, so a rise that the
    // field has reached comes one hand later.
    QString next = QStringLiteral("none");
    if (f.nextRiseAt > 0 && f.playersLeft <= f.nextRiseAt)
        next = Blinds(f.nextSmallBlind) + QStringLiteral(" after the next hand");
    else if (f.nextRiseAt > 0)
        next = Blinds(f.nextSmallBlind) + QStringLiteral(" at %1 left").arg(f.nextRiseAt);
    rows += Row(QStringLiteral("Next blinds"), next);
    rows += Row(QStringLiteral("Your place by chips"),
                f.userPlace > 0 ? kit::Q(Ordinal(f.userPlace)) : QStringLiteral("out"));
    rows += Row(QStringLiteral("Average stack"), Dollars(f.averageStack));
    QString html = QStringLiteral("<table width=100% cellspacing=2>%1</table>").arg(rows);
    if (!joined.isEmpty())
        html += QStringLiteral("<p><b>New at your table:</b> %1</p>")
                    .arg(joined.join(QStringLiteral(", ")).toHtmlEscaped());
    label_->setText(html);
}

QString TourneyPanel::Text() const { return label_->text(); }

}  // namespace holdem
