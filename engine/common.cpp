#include "engine/common.h"

namespace holdem {

std::string Money(int64_t amount) {
    bool negative = amount < 0;
    uint64_t magnitude = negative ? 0 - static_cast<uint64_t>(amount) : static_cast<uint64_t>(amount);
    std::string digits = std::to_string(magnitude);
    std::string out;
    int lead = static_cast<int>(digits.size() % 3);
    for (std::size_t i = 0; i < digits.size(); ++i) {
        if (i != 0 && (static_cast<int>(i) - lead) % 3 == 0) out += ',';
        out += digits[i];
    }
    return negative ? "-" + out : out;
}

}  // namespace holdem
