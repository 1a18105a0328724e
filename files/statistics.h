// The user's own record across games, kept in a small file of its own in the
// per-user data folder, with the window's panel choices beside it. It is
// built by watching the game's log events and never touches the game.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "engine/hand_log.h"

namespace holdem {

// Field sizes a best finish is kept for, in this order.
inline constexpr std::array<int16_t, 4> kFieldSizes = {8, 80, 200, 1000};

struct Statistics {
    int32_t gamesPlayed = 0;
    int32_t tournamentsPlayed = 0;
    std::array<int32_t, kFieldSizes.size()> bestFinish{};  // 0: no finish yet
    int32_t handsPlayed = 0;
    int32_t handsWon = 0;
    int32_t showdownsWon = 0;
    int32_t biggestPotWon = 0;
    int32_t handsVoluntary = 0;  // chips put in before the flop by choice, not by a blind
    bool showHandLog = true;
    bool showTourney = true;

    bool operator==(const Statistics&) const = default;
};

// The file's name in the per-user data folder.
inline constexpr const char* kStatisticsFile = "statistics.txt";

// A missing, unreadable, oversized or corrupt file gives the defaults.
Statistics ReadStatistics(const std::string& path);
// Writes beside the file and renames over it, so a failed write loses
// nothing; false when the folder cannot be written.
bool WriteStatistics(const std::string& path, const Statistics& stats);
// Zeroes the record and keeps the panel choices.
void ResetRecord(Statistics& stats);

// Turns the game's log events into the record.
class StatisticsWatcher {
public:
    // Returns true when the record changed and is worth saving.
    bool Observe(Statistics& stats, const LogLine& line);

private:
    bool dealtIn_ = false;
    bool voluntary_ = false;
    int fieldSize_ = 0;
};

}  // namespace holdem
