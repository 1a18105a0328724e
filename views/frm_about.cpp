#include "views/frm_about.h"

#include <QFontMetrics>
#include <QLabel>

#include "views/view_kit.h"

namespace holdem {

using namespace kit;

namespace {

const QColor kGround(0, 0, 128);
const QColor kText(255, 255, 255);
const QColor kSoftText(208, 208, 224);
constexpr int kLogoPixels = 72;

QLabel* MakeText(QWidget* parent, const QString& text, QRect box, const QFont& font, const QColor& colour) {
    auto* label = new QLabel(text, parent);
    label->setGeometry(box);
    label->setFont(font);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    SetTextColour(label, colour);
    return label;
}

}  // namespace

frmAbout::frmAbout(const std::string& appFolder, QWidget* parent) : QDialog(parent) {
    setWindowTitle("About Texas Hold'em");
    setFixedSize(Px(5730), Px(3555));
    SetBackground(this, kGround);

    Picture1 = new QLabel(this);
    Picture1->setGeometry(Px(240), Px(240), kLogoPixels, kLogoPixels);
    Picture1->setPixmap(LoadPicture(appFolder, "logo.png", QSize(kLogoPixels, kLogoPixels)));

    lblTitle =
        MakeText(this, "CORVANE TEXAS HOLD'EM", TwipsRect(1560, 270, 3600, 300), Sans(11, true), kText);
    lblTitle->setWordWrap(false);
    lblTitle->adjustSize();
    // The trade mark sits small and raised just after the title.
    Label2 = MakeText(this, "TM", QRect(lblTitle->geometry().right() + 2, lblTitle->y() - 1, 20, 12),
                      Sans(6, true), kText);

    lblVersion = MakeText(this, "Version 1.0 for Windows", TwipsRect(1560, 600, 3900, 255), Sans(8), kText);
    Label1 = MakeText(this,
                      "Note: For entertainment purposes only. The software maker accepts no responsibility "
                      "for information or strategy presented in this program.",
                      TwipsRect(1560, 960, 3930, 720), Sans(8), kText);
    lblDescription = MakeText(this, QString::fromUtf8("Copyright \u00A9 Corvane. All rights reserved."),
                              TwipsRect(240, 1920, 5250, 255), Sans(8), kSoftText);
    lblDisclaimer = MakeText(this,
                             "This program is protected by copyright law. Copying or passing it on "
                             "without the maker's leave is not allowed.",
                             TwipsRect(240, 2220, 5250, 480), Sans(8), kSoftText);

    lblOK = MakeClickLabel(this, "[CLOSE]", TwipsRect(4920, 3120, 615, 240), Sans(8), kText);
    connect(lblOK, &ClickLabel::clicked, this, &QDialog::hide);
    kit::OnKey(this, Qt::Key_Return, [this] { hide(); });
}

}  // namespace holdem
