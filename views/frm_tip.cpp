#include "views/frm_tip.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

#include "engine/game_state.h"
#include "views/view_kit.h"

namespace holdem {

using namespace kit;

namespace {
constexpr int kSymbolPixels = 32;
}

frmTip::frmTip(Game& game, QWidget* parent) : QDialog(parent), game_(game) {
    setWindowTitle("Tip of the Day");
    setFixedSize(Px(5415), Px(2700));
    setFont(Sans(8));

    Picture1 = new QWidget(this);
    Picture1->setGeometry(TwipsRect(120, 120, 3735, 2235));
    SetBackground(Picture1, Qt::white);

    picSymbol = new QLabel(Picture1);
    picSymbol->setGeometry(Px(120), Px(120), kSymbolPixels, kSymbolPixels);
    picSymbol->setPixmap(LoadPicture(game.AppFolder, "tip.png", QSize(kSymbolPixels, kSymbolPixels)));

    Label1 = new QLabel("Did you know...", Picture1);
    Label1->setGeometry(TwipsRect(840, 240, 2760, 360));
    Label1->setFont(Sans(12, true));
    SetTextColour(Label1, Qt::black);

    lblTipText = new QLabel(Picture1);
    lblTipText->setGeometry(TwipsRect(180, 840, 3255, 1155));
    lblTipText->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    lblTipText->setWordWrap(true);
    lblTipText->setTextFormat(Qt::PlainText);
    SetTextColour(lblTipText, Qt::black);

    cmdOK = new QPushButton("OK", this);
    cmdOK->setGeometry(TwipsRect(4080, 120, 1215, 375));
    cmdOK->setDefault(true);
    cmdNextTip = new QPushButton("&Next Tip", this);
    cmdNextTip->setGeometry(TwipsRect(4080, 600, 1215, 375));
    cmdNextTip->setAutoDefault(false);
    chkLoadTipsAtStartup = new QCheckBox("&Show Tips at Startup", this);
    chkLoadTipsAtStartup->setGeometry(TwipsRect(120, 2400, 2055, 315));

    chkLoadTipsAtStartup->setChecked(true);
    LoadTipForm(box_, game_);
    Draw();

    // Escape closes the dialog as cmdOK does: it is the cancel button too.
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
    connect(cmdNextTip, &QPushButton::clicked, this, [this] {
        PickNextTip(box_, game_.rnd);
        Draw();
    });
    connect(chkLoadTipsAtStartup, &QCheckBox::clicked, this,
            [this](bool ticked) { chkLoadTipsAtStartup_Click(game_, ticked); });
}

void frmTip::Draw() {
    // The note about a missing file is built with Windows line ends.
    lblTipText->setText(QString::fromStdString(box_.lblTipText).replace("\r\n", "\n"));
}

}  // namespace holdem
