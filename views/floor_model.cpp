#include "views/floor_model.h"

namespace holdem {

namespace {

// Offsets of a table's seats 1..8 from its left and top: seat 1 at the
// bottom middle, then clockwise as at the real table.
constexpr int kSeatLeft[9] = {0, 480, 120, 0, 120, 480, 840, 960, 840};
constexpr int kSeatTop[9] = {0, 480, 480, 240, 0, 0, 0, 240, 480};
constexpr int kSeatSize = 125;

constexpr int kTableLeft = 240, kTableTop = 1080;
constexpr int kTableStepX = 1440, kTableStepY = 960;
constexpr int kTableWidth = 1095, kTableHeight = 615;

constexpr int kSeatDataAbove = 250, kSeatDataIn = 25;

int FirstPosition(const Floor& f) { return kRoomSeats * (f.CurrentRoom - 1); }

void ForgetSelection(Floor& f) {
    if (f.SelectedSeat > 0) f.sSeatColour[f.SelectedSeat] = f.SelectedSeatColour;
    f.lblSeatData.visible = false;
}

void FinishRoomChange(Floor& f) {
    ShowRoom(f);
    f.lblRoom.text = "Room: " + std::to_string(f.CurrentRoom);
    f.SelectedSeat = 0;
}

}  // namespace

TwipsBox TableBox(int t) {
    int column = (t - 1) / kRoomColumns, row = (t - 1) % kRoomColumns;
    return {kTableLeft + kTableStepX * column, kTableTop + kTableStepY * row, kTableWidth, kTableHeight};
}

TwipsBox SeatBox(int s) {
    TwipsBox table = TableBox(TableControlOf(s));
    int seat = (s - 1) % kSeats + 1;
    return {table.left + kSeatLeft[seat], table.top + kSeatTop[seat], kSeatSize, kSeatSize};
}

void OpenFloor(Floor& f, const std::string& standingsPath) {
    f.Legend[1].text = "Player 1";
    f.Legend[2].text = "Computer Player";
    f.Legend[3].text = "Inactive Player";
    f.Legend[4].text = "Chip Leader";
    f.lblPrevious.text = "[PREVIOUS]";
    f.lblNext.text = "[NEXT]";
    // Room 1 has no room before it.
    f.lblPrevious.enabled = false;
    f.lblNext.enabled = true;
    f.SelectedSeat = 0;

    f.lblSeatData.visible = false;
    f.CurrentRoom = 1;
    f.lblRoom.text = "Room: 1";
    LoadFloor(f, standingsPath);
    ShowRoom(f);
}

void LoadFloor(Floor& f, const std::string& standingsPath) {
    f.ChipLeaderTies = 0;
    f.ChipLeader = 1;
    int count = ReadFieldCopy(standingsPath, f.copy);
    // Record 1 meets itself as the leader and counts as the first of the ties.
    for (int i = 1; i <= count; ++i) {
        if (f.copy.Bank[i] > f.copy.Bank[f.ChipLeader]) {
            f.ChipLeader = static_cast<int16_t>(i);
            f.ChipLeaderTies = 1;
        } else if (f.copy.Bank[i] == f.copy.Bank[f.ChipLeader]) {
            ++f.ChipLeaderTies;
        }
        if (f.copy.Number[i] == 1) f.Legend[1].text = f.copy.Name[i];
    }
    f.PlayersRemaining = 0;
    f.TablePlayers.fill(0);
    for (int p = 1; p <= kRoster; ++p) {
        if (f.copy.Bank[p] <= 0) continue;
        ++f.PlayersRemaining;
        ++f.TablePlayers[TableOf(p)];
    }
    f.lblPlayers.text = "Players Remaining: " + std::to_string(f.PlayersRemaining);
}

void ShowRoom(Floor& f) {
    const int first = FirstPosition(f);
    for (int s = 1; s <= kRoomSeats; ++s) {
        int p = first + s;
        bool out = f.copy.Bank[p] < 1;
        f.sSeatEnabled[s] = !out;
        f.sSeatColour[s] = out ? floor_colour::kInactive
                               : (f.copy.Number[p] == 1 ? floor_colour::kUser : floor_colour::kComputer);
    }
    for (int t = 1; t <= kRoomTables; ++t) {
        int n = kRoomTables * (f.CurrentRoom - 1) + t;
        f.sTableColour[t] = f.TablePlayers[n] > 0 ? floor_colour::kTableInPlay : floor_colour::kTableEmpty;
        f.lblTable[t].text = std::to_string(n);
        f.lblTable[t].visible = true;
    }
    // Last, so that a user who leads shows blue.
    if (f.ChipLeaderTies == 1 && f.ChipLeader > first && f.ChipLeader <= first + kRoomSeats)
        f.sSeatColour[f.ChipLeader - first] = floor_colour::kLeader;
}

void sSeat_Click(Floor& f, int index) {
    if (index < 1 || index > kRoomSeats || !f.sSeatEnabled[index]) return;
    if (f.SelectedSeat > 0) f.sSeatColour[f.SelectedSeat] = f.SelectedSeatColour;
    f.SelectedSeat = static_cast<int16_t>(index);
    f.SelectedTable = static_cast<int16_t>(TableControlOf(index));
    f.SelectedSeatColour = f.sSeatColour[index];
    f.sSeatColour[index] = floor_colour::kSelected;

    int p = FirstPosition(f) + index;
    f.lblSeatData.text =
        "#" + std::to_string(f.copy.Number[p]) + " " + f.copy.Name[p] + "   $" + Money(f.copy.Bank[p]);
    TwipsBox table = TableBox(f.SelectedTable);
    f.lblSeatDataTop = table.top - kSeatDataAbove;
    f.lblSeatDataLeft = table.left + kSeatDataIn;
    f.lblSeatData.visible = true;
}

void lblNext_Click(Floor& f) {
    if (f.CurrentRoom >= kRooms) return;
    ForgetSelection(f);
    ++f.CurrentRoom;
    f.lblPrevious.enabled = true;
    if (f.CurrentRoom == kRooms) f.lblNext.enabled = false;
    FinishRoomChange(f);
}

void lblPrevious_Click(Floor& f) {
    if (f.CurrentRoom <= 1) return;
    ForgetSelection(f);
    --f.CurrentRoom;
    f.lblNext.enabled = true;
    if (f.CurrentRoom == 1) f.lblPrevious.enabled = false;
    FinishRoomChange(f);
}

}  // namespace holdem
