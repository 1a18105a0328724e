// The kind of game, its size and its speed.
#pragma once

#include <QDialog>

#include "engine/platform.h"
#include "views/view_kit.h"

class QComboBox;

namespace holdem {

class frmNewGame : public QDialog {
    Q_OBJECT
public:
    frmNewGame(int16_t gameSpeed, QWidget *parent = nullptr);

    // The lists as the user left them; cancelled unless [OK] was pressed.
    NewGameChoices Choices() const;

    QComboBox *cbGameType, *cbPlayers, *cbSpeed;
    QLabel *lblGameType, *lblPlayers, *lblSpeed;
    kit::ClickLabel *lblOK, *lblCancel;

protected:
    // Rings the list that has the keyboard: the style's own mark is lost on navy.
    void paintEvent(QPaintEvent *event) override;

private:
    void cbGameType_Click();
    bool ok_ = false;
};

}  // namespace holdem
