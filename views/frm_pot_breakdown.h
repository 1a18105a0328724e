// What each seat has put into the hand, with the total.
#pragma once

#include <QDialog>
#include <array>

#include "engine/platform.h"
#include "views/view_kit.h"

namespace holdem {

class frmPotBreakdown : public QDialog {
    Q_OBJECT
public:
    frmPotBreakdown(const PotBreakdown& breakdown, QWidget* parent = nullptr);

    // lblName(1..8) the names, (9) "Total:", (10) the heading; lblInPot(1..9).
    std::array<QLabel*, 11> lblName{};
    std::array<QLabel*, 10> lblInPot{};
    kit::ClickLabel* lblClose;

protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace holdem
