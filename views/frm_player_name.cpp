#include "views/frm_player_name.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QRegularExpressionValidator>

namespace holdem {

namespace {
constexpr QSize kClient(3390 / kit::kTwipsPerPixel, 1425 / kit::kTwipsPerPixel);
const QColor kGround(128, 128, 128);
const QColor kNavy(0, 0, 128);
// A name longer than this would not fit its label at the table.
constexpr int kMaxName = 24;
}  // namespace

frmPlayerName::frmPlayerName(QWidget* parent) : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint) {
    setFixedSize(kClient);
    kit::SetBackground(this, kGround);

    lblPlayer = new QLabel(QStringLiteral("Enter Player's Name"), this);
    kit::StyleLabel(lblPlayer, kit::Sans(9.75, true), Qt::white, Qt::AlignCenter);
    kit::Place(lblPlayer, {120, 120, 3150, 300});

    txtPlayerName = new QLineEdit(this);
    txtPlayerName->setFont(kit::Sans(9.75));
    txtPlayerName->setMaxLength(kMaxName);
    // A double quote would end the name early in a saved game.
    txtPlayerName->setValidator(
        new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[^\"]*")), txtPlayerName));
    QPalette pal = txtPlayerName->palette();
    pal.setColor(QPalette::Text, kNavy);
    pal.setColor(QPalette::Base, Qt::white);
    txtPlayerName->setPalette(pal);
    kit::Place(txtPlayerName, {360, 510, 2670, 345});
    txtPlayerName->installEventFilter(this);

    lblOK = kit::MakeClickLabel(this, QStringLiteral("[OK]"), kit::TwipsRect(1335, 1020, 720, 285),
                                kit::Sans(9.75, true), Qt::white);
    connect(lblOK, &kit::ClickLabel::clicked, this, [this] { lblOK_Click(); });
    txtPlayerName->setFocus();
}

bool frmPlayerName::eventFilter(QObject* watched, QEvent* event) {
    if (watched == txtPlayerName && event->type() == QEvent::KeyPress) {
        int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            lblOK_Click();
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

void frmPlayerName::lblOK_Click() {
    entry_ = txtPlayerName->text().toStdString();
    accept();
}

}  // namespace holdem
