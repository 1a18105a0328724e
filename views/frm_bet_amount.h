// The amount of a bet or a raise. The checks live in engine/bet_amount.h;
// this form shows them and reports through the platform's message box.
#pragma once

#include <QDialog>

#include "engine/bet_amount.h"
#include "engine/platform.h"

class QLabel;
class QLineEdit;
class QPushButton;

namespace holdem {

class frmBetAmount : public QDialog {
    Q_OBJECT
public:
    frmBetAmount(const BetAmountRequest& request, Platform& messages, QWidget* parent = nullptr);

    // What goes from the stack into the pot; 0 when nothing was entered.
    int32_t BetAmount = 0;

    QLabel *lblToCall, *lblToCallAmount, *lblMaxRaise, *lblMaxRaiseAmount, *lblBetAmount, *lblDollarSign;
    QLineEdit* txtBetAmount;
    QPushButton *cmdOK, *cmdCancel, *cmdBetMax;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void cmdOK_Click();
    void cmdCancel_Click();
    void cmdBetMax_Click();
    void Apply(const BetAmountOutcome& outcome);

    BetAmountRequest request_;
    Platform& messages_;
};

}  // namespace holdem
