// The tip of the day, shown at start when the setting asks for it.
#pragma once

#include <QDialog>

#include "views/tip_model.h"

class QCheckBox;
class QLabel;
class QPushButton;
class QWidget;

namespace holdem {

class Game;

class frmTip : public QDialog {
    Q_OBJECT
public:
    explicit frmTip(Game& game, QWidget* parent = nullptr);

    const TipBox& state() const { return box_; }

    QWidget* Picture1 = nullptr;
    QLabel* picSymbol = nullptr;
    QLabel* Label1 = nullptr;
    QLabel* lblTipText = nullptr;
    QPushButton* cmdOK = nullptr;
    QPushButton* cmdNextTip = nullptr;
    QCheckBox* chkLoadTipsAtStartup = nullptr;

private:
    void Draw();

    Game& game_;
    TipBox box_;
};

}  // namespace holdem
