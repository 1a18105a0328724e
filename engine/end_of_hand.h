#pragma once

#include <cstdint>
#include <string>

namespace holdem {

// "You Finished " + place + its ordinal ending: 1st, 2nd, 3rd, 11th, 1000th.
std::string FinishText(int16_t place);

}  // namespace holdem
