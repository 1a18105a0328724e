// The standings: every player of the game in order of standing, 25 to a
// page, with the user's own line always in sight.
#pragma once

#include <QDialog>
#include <array>
#include <string>

#include "views/standings_model.h"
#include "views/view_kit.h"

class QLabel;

namespace holdem {

class frmRankings : public QDialog {
    Q_OBJECT
public:
    explicit frmRankings(const std::string& standingsPath, QWidget* parent = nullptr);

    const Standings& state() const { return s_; }

    QLabel* Label2 = nullptr;
    std::array<QLabel*, kUserRow + 1> lblRank{}, lblName{}, lblBank{};
    QLabel* lblPage = nullptr;
    kit::ClickLabel* lblPrevious = nullptr;
    kit::ClickLabel* lblNext = nullptr;
    kit::ClickLabel* lblClose = nullptr;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void BuildRows();
    void Draw();

    Standings s_;
};

}  // namespace holdem
