// frmCasinoFloor without its widgets: the copy of the field, the leader, the
// colours of the room on show and the seat last clicked.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "engine/view.h"
#include "views/field_copy.h"

namespace holdem {

constexpr int kRooms = 5;
constexpr int kRoomTables = 25;
constexpr int kRoomSeats = 200;
constexpr int kRoomColumns = 5;

struct Rgb {
    uint8_t r = 0, g = 0, b = 0;
    bool operator==(const Rgb&) const = default;
};

namespace floor_colour {
constexpr Rgb kInactive{64, 0, 0};
constexpr Rgb kUser{255, 255, 0};
constexpr Rgb kComputer{255, 0, 0};
constexpr Rgb kLeader{0, 0, 255};
constexpr Rgb kSelected{255, 255, 255};
constexpr Rgb kTableInPlay{0, 128, 0};
constexpr Rgb kTableEmpty{0, 64, 0};
constexpr Rgb kLegendInactive{128, 0, 0};
constexpr Rgb kGround{64, 64, 64};
}  // namespace floor_colour

struct TwipsBox {
    int left = 0, top = 0, width = 0, height = 0;
};

// Where table control t (1..25) and seat control s (1..200) stand.
TwipsBox TableBox(int t);
TwipsBox SeatBox(int s);
inline int TableControlOf(int seatControl) { return (seatControl + 7) / 8; }

struct Floor {
    FieldCopy copy;
    std::array<int16_t, kTables + 1> TablePlayers{};
    int16_t ChipLeader = 1;
    int16_t ChipLeaderTies = 0;
    int16_t PlayersRemaining = 0;
    int16_t CurrentRoom = 1;
    int16_t SelectedSeat = 0;
    int16_t SelectedTable = 0;
    Rgb SelectedSeatColour{};

    // The controls of the room on show; element 0 unused.
    std::array<Rgb, kRoomSeats + 1> sSeatColour{};
    std::array<bool, kRoomSeats + 1> sSeatEnabled{};
    std::array<Rgb, kRoomTables + 1> sTableColour{};
    std::array<Element, kRoomTables + 1> lblTable{};
    std::array<Element, 5> Legend{};  // Legend(1..4)
    Element lblPlayers, lblRoom, lblSeatData, lblPrevious, lblNext;
    int lblSeatDataLeft = 0, lblSeatDataTop = 0;  // twips
};

// The opening of the view: room 1, LoadFloor, ShowRoom.
void OpenFloor(Floor& f, const std::string& standingsPath);
void LoadFloor(Floor& f, const std::string& standingsPath);
void ShowRoom(Floor& f);
void sSeat_Click(Floor& f, int index);
void lblNext_Click(Floor& f);
void lblPrevious_Click(Floor& f);

}  // namespace holdem
