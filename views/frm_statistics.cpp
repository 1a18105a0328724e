#include "views/frm_statistics.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

#include "engine/common.h"
#include "engine/end_of_hand.h"
#include "views/view_kit.h"

namespace holdem {

namespace {

const char* const kFieldNames[kFieldSizes.size()] = {"single table", "tournament of 80", "tournament of 200",
                                                     "tournament of 1,000"};

QString Row(const QString& what, const QString& value) {
    return QStringLiteral("<tr><td>%1</td><td align=right>&nbsp;&nbsp;<b>%2</b></td></tr>").arg(what, value);
}

}  // namespace

QString CountAndShare(int32_t count, int32_t whole) {
    if (whole <= 0) return QString::number(count);
    return QStringLiteral("%1 (%2%)").arg(count).arg(100.0 * count / whole, 0, 'f', 1);
}

frmStatistics::frmStatistics(const Statistics& stats, QWidget* parent) : QDialog(parent), stats_(stats) {
    setWindowTitle(QStringLiteral("Statistics"));
    lblFigures = new QLabel(this);
    lblFigures->setTextFormat(Qt::RichText);
    lblFigures->setFont(kit::Sans(9));
    auto* buttons = new QDialogButtonBox(this);
    QPushButton* reset = buttons->addButton(QStringLiteral("&Reset..."), QDialogButtonBox::ResetRole);
    QPushButton* close = buttons->addButton(QStringLiteral("Cl&ose"), QDialogButtonBox::AcceptRole);
    close->setDefault(true);
    connect(reset, &QPushButton::clicked, this, [this] { cmdReset_Click(); });
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(lblFigures);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    Fill();
}

void frmStatistics::Fill() {
    const Statistics& s = stats_;
    QString rows;
    rows += Row(QStringLiteral("Games played"), QString::number(s.gamesPlayed));
    rows += Row(QStringLiteral("Tournaments played"), QString::number(s.tournamentsPlayed));
    for (std::size_t i = 0; i < kFieldSizes.size(); ++i) {
        QString best = s.bestFinish[i] > 0 ? kit::Q(Ordinal(s.bestFinish[i])) : QStringLiteral("-");
        rows += Row(QStringLiteral("Best finish, ") + QString::fromUtf8(kFieldNames[i]), best);
    }
    rows += Row(QStringLiteral("Hands played"), QString::number(s.handsPlayed));
    rows += Row(QStringLiteral("Hands won"), CountAndShare(s.handsWon, s.handsPlayed));
    rows += Row(QStringLiteral("Showdowns won"), QString::number(s.showdownsWon));
    rows += Row(QStringLiteral("Biggest pot won"), kit::Q("$" + Money(s.biggestPotWon)));
    rows += Row(QStringLiteral("Chips put in before the flop by choice"),
                CountAndShare(s.handsVoluntary, s.handsPlayed));
    lblFigures->setText(QStringLiteral("<table cellspacing=3>%1</table>").arg(rows));
}

void frmStatistics::cmdReset_Click() {
    auto answer = QMessageBox::question(this, QStringLiteral("Reset Statistics"),
                                        QStringLiteral("Clear all your statistics? This cannot be undone."));
    if (answer != QMessageBox::Yes) return;
    ResetRecord(stats_);
    reset_ = true;
    Fill();
}

}  // namespace holdem
