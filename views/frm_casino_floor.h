// The casino floor: five rooms of 25 tables of 8 seats, one coloured square
// for each roster position; a click on a seat names its player.
#pragma once

#include <QDialog>
#include <array>
#include <string>

#include "views/floor_model.h"
#include "views/view_kit.h"

class QLabel;

namespace holdem {

class frmCasinoFloor : public QDialog {
    Q_OBJECT
public:
    explicit frmCasinoFloor(const std::string& standingsPath, QWidget* parent = nullptr);

    const Floor& state() const { return f_; }

    QLabel* lblPlayers = nullptr;
    QLabel* lblRoom = nullptr;
    std::array<kit::ColourShape*, kRoomTables + 1> sTable{};
    std::array<QLabel*, kRoomTables + 1> lblTable{};
    std::array<kit::ColourShape*, kRoomSeats + 1> sSeat{};
    std::array<kit::ColourShape*, 4> sSeatLegend{};
    std::array<QLabel*, 5> Legend{};
    kit::ClickLabel* lblPrevious = nullptr;
    kit::ClickLabel* lblNext = nullptr;
    kit::ClickLabel* lblClose = nullptr;
    QLabel* lblSeatData = nullptr;

private:
    void BuildRoom();
    void BuildLegend();
    void Draw();
    void PlaceSeatData();

    Floor f_;
};

}  // namespace holdem
