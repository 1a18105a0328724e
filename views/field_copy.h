// The standings and the floor read their own copy of the roster from the
// scratch file stnd.dat, written by the main form just before they open.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "engine/common.h"

namespace holdem {

// The five roster fields by position 1..1000; element 0 unused.
struct FieldCopy {
    std::array<int16_t, kRoster + 1> Tag{};
    std::array<std::string, kRoster + 1> Name{};
    std::array<int32_t, kRoster + 1> Bank{};
    std::array<int16_t, kRoster + 1> Place{};
    std::array<int16_t, kRoster + 1> Number{};

    void Clear();
    // Swaps all five fields of two entries.
    void Exchange(int a, int b);
};

// Clears the copy and reads the file's records into entries 1 and up; returns
// how many it read. That is the header's first item, kept within 0..1000; a
// file that is missing, unreadable or ends early gives the records read so far.
int16_t ReadFieldCopy(const std::string& path, FieldCopy& copy);

}  // namespace holdem
