// The user's name for a new game. Hidden, never destroyed, so the box keeps
// the last name for the next game of the run.
#pragma once

#include <QDialog>
#include <string>

#include "views/view_kit.h"

class QLineEdit;

namespace holdem {

class frmPlayerName : public QDialog {
    Q_OBJECT
public:
    explicit frmPlayerName(QWidget* parent = nullptr);

    // The text of the box when the form was last closed.
    std::string Entry() const { return entry_; }

    QLabel* lblPlayer;
    QLineEdit* txtPlayerName;
    kit::ClickLabel* lblOK;

public slots:
    // There is no cancel: Escape does nothing.
    void reject() override {}

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void lblOK_Click();
    std::string entry_;
};

}  // namespace holdem
