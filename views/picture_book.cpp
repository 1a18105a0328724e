#include "views/picture_book.h"

#include <QLabel>
#include <QPushButton>

#include "views/view_kit.h"

namespace holdem {

using namespace kit;

namespace {
constexpr int kButtonWidth = 855, kButtonHeight = 375;
}

PictureBook::PictureBook(const std::string& appFolder, const PictureBookLayout& layout, QWidget* parent)
    : QDialog(parent) {
    setWindowTitle(layout.title);
    setFixedSize(Px(layout.width), Px(layout.height));
    setFont(Sans(8));

    display_ = new QLabel(this);
    display_->setGeometry(TwipsRect(layout.pageLeft, layout.pageTop, layout.pageWidth, layout.pageHeight));
    display_->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    display_->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    SetBackground(display_, Qt::white);
    QSize inside = display_->contentsRect().size();
    pages_[0] = LoadPicture(appFolder, layout.firstPicture, inside, Qt::KeepAspectRatio);
    pages_[1] = LoadPicture(appFolder, layout.secondPicture, inside, Qt::KeepAspectRatio);

    auto button = [this, &layout](const QString& text, int left) {
        auto* b = new QPushButton(text, this);
        b->setGeometry(TwipsRect(left, layout.buttonTop, kButtonWidth, kButtonHeight));
        b->setAutoDefault(false);
        return b;
    };
    cmdPrevious = button("&Previous", layout.previousLeft);
    cmdNext = button("&Next", layout.nextLeft);
    cmdClose = button("&Close", layout.closeLeft);
    // Enter closes the book; Space turns the page the keyboard is on.
    cmdClose->setDefault(true);

    connect(cmdPrevious, &QPushButton::clicked, this, [this] { ShowPage(1); });
    connect(cmdNext, &QPushButton::clicked, this, [this] { ShowPage(2); });
    connect(cmdClose, &QPushButton::clicked, this, &QDialog::hide);
    ShowPage(1);
}

void PictureBook::ShowPage(int page) {
    page_ = page;
    cmdPrevious->setEnabled(page == 2);
    cmdNext->setEnabled(page == 1);
    display_->setPixmap(pages_[page - 1]);
    // The button just pressed has gone dark; keep the keyboard on the book.
    if (page == 2)
        cmdPrevious->setFocus();
    else
        cmdNext->setFocus();
}

}  // namespace holdem
