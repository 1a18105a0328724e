#include "views/field_copy.h"

#include <algorithm>
#include <utility>

#include "files/seq_text.h"

namespace holdem {

void FieldCopy::Clear() {
    Tag.fill(0);
    Name.fill(std::string());
    Bank.fill(0);
    Place.fill(0);
    Number.fill(0);
}

void FieldCopy::Exchange(int a, int b) {
    std::swap(Tag[a], Tag[b]);
    std::swap(Name[a], Name[b]);
    std::swap(Bank[a], Bank[b]);
    std::swap(Place[a], Place[b]);
    std::swap(Number[a], Number[b]);
}

int16_t ReadFieldCopy(const std::string& path, FieldCopy& copy) {
    copy.Clear();
    int16_t read = 0;
    try {
        SeqReader in(path);
        int32_t count = std::clamp<int32_t>(in.ReadInt32(), 0, kRoster);
        for (int skip = 0; skip < 3; ++skip) in.ReadInt32();  // the views have no use for these
        for (int i = 1; i <= count; ++i) {
            // A record is taken whole or not at all.
            int16_t tag = in.ReadInt16();
            std::string name = in.ReadString();
            int32_t bank = in.ReadInt32();
            int16_t place = in.ReadInt16();
            int16_t number = in.ReadInt16();
            copy.Tag[i] = tag;
            copy.Name[i] = std::move(name);
            copy.Bank[i] = bank;
            copy.Place[i] = place;
            copy.Number[i] = number;
            read = static_cast<int16_t>(i);
        }
    } catch (const FileError&) {
        // A missing or broken scratch file shows the field as far as it was read.
    }
    return read;
}

}  // namespace holdem
