// The help: two pages of pictures.
#pragma once

#include <string>

#include "views/picture_book.h"

namespace holdem {

class frmHelp : public PictureBook {
    Q_OBJECT
public:
    explicit frmHelp(const std::string& appFolder, QWidget* parent = nullptr);

    QLabel* picHelp = nullptr;
    const QPixmap& picHelp1() const { return pages_[0]; }
    const QPixmap& picHelp2() const { return pages_[1]; }
};

}  // namespace holdem
