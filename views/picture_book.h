// A two-page picture book with Previous, Next and Close: the shape that the
// help and the rules share. Close only hides the book, so it opens again on
// the page where it was left.
#pragma once

#include <QDialog>
#include <QPixmap>
#include <string>

class QLabel;
class QPushButton;

namespace holdem {

struct PictureBookLayout {
    const char* title;
    int width, height;                             // client area, twips
    int pageLeft, pageTop, pageWidth, pageHeight;  // the page on show, twips
    int buttonTop, previousLeft, nextLeft, closeLeft;
    const char* firstPicture;  // in the pictures folder
    const char* secondPicture;
};

class PictureBook : public QDialog {
    Q_OBJECT
public:
    PictureBook(const std::string& appFolder, const PictureBookLayout& layout, QWidget* parent);

    int Page() const { return page_; }

    QPushButton* cmdPrevious = nullptr;
    QPushButton* cmdNext = nullptr;
    QPushButton* cmdClose = nullptr;

protected:
    QLabel* display_ = nullptr;
    QPixmap pages_[2];  // the hidden stores of the two pages

private:
    void ShowPage(int page);

    int page_ = 1;
};

}  // namespace holdem
