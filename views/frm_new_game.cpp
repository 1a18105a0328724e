#include "views/frm_new_game.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QPainter>

#include "files/new_game.h"

namespace holdem {

using kit::Place;
using kit::Q;

namespace {
constexpr QSize kClient(4680 / kit::kTwipsPerPixel, 2610 / kit::kTwipsPerPixel);
const QColor kNavy(0, 0, 128);
const char* const kTournament = "Tournament";
}  // namespace

frmNewGame::frmNewGame(int16_t gameSpeed, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint) {
    setFixedSize(kClient);
    kit::SetBackground(this, kNavy);

    auto row = [this](const QString& caption, const QStringList& items, int top, QLabel*& label) {
        label = new QLabel(caption, this);
        kit::StyleLabel(label, kit::Sans(9.75, true), Qt::white, Qt::AlignRight | Qt::AlignVCenter);
        Place(label, {120, top, 2400, 315});
        // Not editable: the lists accept only their own items.
        auto* list = new QComboBox(this);
        list->addItems(items);
        list->setFont(kit::Sans(8.25));
        Place(list, {2640, top, 1560, 315});
        return list;
    };
    cbGameType = row(QStringLiteral("Game Type:"),
                     {QStringLiteral("Single Table"), QString::fromLatin1(kTournament)}, 360, lblGameType);
    cbPlayers = row(QStringLiteral("Players In Tournament:"),
                    {QStringLiteral("80"), QStringLiteral("200"), QStringLiteral("1,000")}, 840, lblPlayers);
    cbSpeed = row(QStringLiteral("Game Speed:"),
                  {QStringLiteral("Fast"), QStringLiteral("Medium"), QStringLiteral("Slow")}, 1320, lblSpeed);
    cbGameType->setCurrentIndex(0);
    cbPlayers->setCurrentIndex(0);
    cbSpeed->setCurrentText(Q(SpeedItemFor(gameSpeed)));
    cbGameType_Click();
    connect(cbGameType, &QComboBox::currentTextChanged, this, [this] { cbGameType_Click(); });

    auto button = [this](const QString& caption, const kit::Twips& place) {
        return kit::MakeClickLabel(this, caption, kit::ToPixels(place), kit::Sans(9.75, true), Qt::white);
    };
    lblOK = button(QStringLiteral("[OK]"), {1320, 2040, 855, 300});
    lblCancel = button(QStringLiteral("[CANCEL]"), {2520, 2040, 1095, 300});
    connect(lblOK, &kit::ClickLabel::clicked, this, [this] {
        ok_ = true;
        accept();
    });
    connect(lblCancel, &kit::ClickLabel::clicked, this, [this] {
        ok_ = false;
        reject();
    });
    // Enter is [OK] and Escape [CANCEL]; the keyboard starts on the first list.
    kit::OnKey(this, Qt::Key_Return, [this] {
        ok_ = true;
        accept();
    });
    cbGameType->setFocus();
    connect(qApp, &QApplication::focusChanged, this, [this] { update(); });
}

void frmNewGame::paintEvent(QPaintEvent* event) {
    QDialog::paintEvent(event);
    auto* list = qobject_cast<QComboBox*>(focusWidget());
    if (!list || !isActiveWindow()) return;
    QPainter painter(this);
    painter.setPen(QPen(Qt::yellow, 2));
    painter.drawRect(list->geometry().adjusted(-2, -2, 1, 1));
}

void frmNewGame::cbGameType_Click() { cbPlayers->setEnabled(cbGameType->currentText() == kTournament); }

NewGameChoices frmNewGame::Choices() const {
    NewGameChoices choices;
    choices.cancelled = !ok_;
    choices.gameType = cbGameType->currentText().toStdString();
    choices.players = cbPlayers->currentText().toStdString();
    choices.speed = cbSpeed->currentText().toStdString();
    return choices;
}

}  // namespace holdem
