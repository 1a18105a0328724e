#include "views/frm_game_over.h"

#include "engine/end_of_hand.h"

namespace holdem {

namespace {
constexpr QSize kClient(4680 / kit::kTwipsPerPixel, 1995 / kit::kTwipsPerPixel);
const QColor kGround(64, 64, 64);
const QColor kLightGrey(192, 192, 192);
}  // namespace

frmGameOver::frmGameOver(int16_t userFinishPlace, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint) {
    setFixedSize(kClient);
    kit::SetBackground(this, kGround);

    Label1 = new QLabel(QStringLiteral("Game Over"), this);
    kit::StyleLabel(Label1, kit::Sans(27.75, true, true), Qt::red, Qt::AlignCenter);
    kit::Place(Label1, {120, 360, 4215, 615});

    lblFinished = new QLabel(kit::Q(FinishText(userFinishPlace)), this);
    kit::StyleLabel(lblFinished, kit::Sans(12, true), kLightGrey, Qt::AlignCenter);
    kit::Place(lblFinished, {480, 1080, 3540, 285});

    lblClose = kit::MakeClickLabel(this, QStringLiteral("[CLOSE]"), kit::TwipsRect(3960, 1680, 615, 195),
                                   kit::Sans(8.25), kLightGrey, Qt::AlignRight);
    connect(lblClose, &kit::ClickLabel::clicked, this, &QDialog::accept);
    kit::OnKey(this, Qt::Key_Return, [this] { accept(); });
}

}  // namespace holdem
