// The end of the game for a busted user: "Game Over" and the finishing place.
#pragma once

#include <QDialog>
#include <cstdint>

#include "views/view_kit.h"

namespace holdem {

class frmGameOver : public QDialog {
    Q_OBJECT
public:
    frmGameOver(int16_t userFinishPlace, QWidget* parent = nullptr);

    QLabel* Label1;
    QLabel* lblFinished;
    kit::ClickLabel* lblClose;
};

}  // namespace holdem
