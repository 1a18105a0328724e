#include "views/frm_bet_amount.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>

#include "views/view_kit.h"

namespace holdem {

using kit::Place;
using kit::Q;
using kit::Twips;

namespace {
constexpr QSize kClient(4200 / kit::kTwipsPerPixel, 2535 / kit::kTwipsPerPixel);
// Nine digits stay inside a 32-bit amount.
constexpr int kMaxDigits = 9;
}  // namespace

frmBetAmount::frmBetAmount(const BetAmountRequest& request, Platform& messages, QWidget* parent)
    : QDialog(parent), request_(request), messages_(messages) {
    setFixedSize(kClient);
    setFont(kit::Sans(8.25));
    BetAmountLayout layout = BetAmountOpen(request);
    setWindowTitle(Q(layout.title));

    auto label = [this](const QString& text, const Twips& place, Qt::Alignment align = Qt::AlignLeft) {
        auto* l = new QLabel(text, this);
        l->setAlignment(align | Qt::AlignVCenter);
        Place(l, place);
        return l;
    };
    lblToCall = label(QStringLiteral("Amount to Call:"), {285, 120, 1380, 240});
    lblToCallAmount = label(Q(layout.lblToCallAmount), {2040, 120, 120, 240});
    lblMaxRaise = label(Q(layout.lblMaxRaise), {285, 600, 1650, 240});
    lblMaxRaiseAmount = label(Q(layout.lblMaxRaiseAmount), {2040, 600, 120, 240});
    lblBetAmount = label(Q(layout.lblBetAmount), {240, 1080, 3480, 240});
    lblDollarSign = label(QStringLiteral("$"), {1440, 1440, 105, 240}, Qt::AlignRight);
    // The amounts may be longer than their boxes: let them run to the right.
    for (QLabel* amount : {lblToCallAmount, lblMaxRaiseAmount})
        amount->resize(kClient.width() - amount->x() - 8, amount->height());
    lblToCall->setVisible(layout.toCallVisible);
    lblToCallAmount->setVisible(layout.toCallVisible);

    txtBetAmount = new QLineEdit(this);
    Place(txtBetAmount, {1560, 1440, 975, 285});
    txtBetAmount->setMaxLength(kMaxDigits);
    txtBetAmount->setContextMenuPolicy(Qt::NoContextMenu);
    // Text that arrives without a key press (a middle-click paste) is held to
    // digits as well.
    txtBetAmount->setValidator(
        new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*")), txtBetAmount));
    txtBetAmount->installEventFilter(this);

    auto button = [this](const QString& caption, const Twips& place) {
        // Enter presses the button that has the keyboard, OK elsewhere.
        auto* b = new QPushButton(caption, this);
        b->setAutoDefault(true);
        Place(b, place);
        return b;
    };
    cmdBetMax = button(QStringLiteral("&Bet Max"), {2760, 1440, 855, 375});
    cmdOK = button(QStringLiteral("&OK"), {1320, 2040, 855, 375});
    cmdCancel = button(QStringLiteral("&Cancel"), {2400, 2040, 855, 375});
    cmdOK->setDefault(true);
    connect(cmdOK, &QPushButton::clicked, this, [this] { cmdOK_Click(); });
    connect(cmdCancel, &QPushButton::clicked, this, [this] { cmdCancel_Click(); });
    connect(cmdBetMax, &QPushButton::clicked, this, [this] { cmdBetMax_Click(); });
    txtBetAmount->setFocus();
}

bool frmBetAmount::eventFilter(QObject* watched, QEvent* event) {
    if (watched != txtBetAmount || event->type() != QEvent::KeyPress)
        return QDialog::eventFilter(watched, event);
    auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
        Apply(BetAmountEnter(request_, txtBetAmount->text().toStdString()));
        return true;
    }
    // Keys that type a character get through only as digits; editing keys
    // and shortcuts (select all, copy, paste, undo, Escape) work as in any
    // text box, and the validator holds pasted text to digits.
    QString text = key->text();
    if (text.isEmpty() || !text[0].isPrint() || (key->modifiers() & (Qt::ControlModifier | Qt::MetaModifier)))
        return false;
    if (text.size() != 1 || text[0].unicode() > 0x7f) return true;
    return !BetAmountKeyAllowed(static_cast<char>(text[0].unicode()));
}

void frmBetAmount::Apply(const BetAmountOutcome& outcome) {
    if (outcome.message)
        messages_.MessageBox(outcome.message->text, outcome.message->title, outcome.message->icon,
                             MsgButtons::OK);
    if (outcome.clearText) txtBetAmount->clear();
    if (outcome.close) {
        BetAmount = outcome.betAmount;
        accept();
    } else {
        txtBetAmount->setFocus();
    }
}

void frmBetAmount::cmdOK_Click() { Apply(BetAmountOk(request_, txtBetAmount->text().toStdString())); }

void frmBetAmount::cmdCancel_Click() {
    BetAmount = 0;
    reject();
}

void frmBetAmount::cmdBetMax_Click() { txtBetAmount->setText(Q(BetAmountMaxText(request_))); }

}  // namespace holdem
