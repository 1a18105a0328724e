// The rules of the game: two pages of pictures.
#pragma once

#include <string>

#include "views/picture_book.h"

namespace holdem {

class frmRules : public PictureBook {
    Q_OBJECT
public:
    explicit frmRules(const std::string& appFolder, QWidget* parent = nullptr);

    QLabel* PicRules = nullptr;
    const QPixmap& picRules1() const { return pages_[0]; }
    const QPixmap& picRules2() const { return pages_[1]; }
};

}  // namespace holdem
