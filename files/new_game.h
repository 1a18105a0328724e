// The choices of the new-game form mapped to the game's fields, free of any
// widget: the Qt forms and the tests call the same functions.
#pragma once

#include <cstdint>
#include <string>

namespace holdem {

// 8 for "Single Table"; otherwise 80 for "80", 200 for "200", else 1000.
int16_t TournamentSizeFor(const std::string& gameType, const std::string& players);
// 1 for "Fast", 2 for "Medium", else 3.
int16_t GameSpeedFor(const std::string& speed);
// The list entry frmNewGame opens on: "Fast" for 1, "Slow" for 3, else "Medium".
std::string SpeedItemFor(int16_t gameSpeed);
// The name of seat 1: the entry, or "Player 1" when it is empty.
std::string PlayerNameFor(const std::string& entry);

}  // namespace holdem
