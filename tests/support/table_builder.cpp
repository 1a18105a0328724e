#include "tests/support/table_builder.h"

#include <algorithm>
#include <stdexcept>

namespace holdem::test {

TableBuilder::TableBuilder() {
    for (int s = 1; s <= kSeats; ++s) {
        banks_[s] = 10000;
        names_[s] = s == 1 ? "You" : "Player " + std::to_string(s);
    }
}

TableBuilder& TableBuilder::Banks(std::initializer_list<int32_t> banks) {
    int s = 1;
    for (int32_t b : banks)
        if (s <= kSeats) banks_[s++] = b;
    return *this;
}

TableBuilder& TableBuilder::Bank(int seat, int32_t bank) {
    banks_[seat] = bank;
    return *this;
}

TableBuilder& TableBuilder::Name(int seat, std::string name) {
    names_[seat] = std::move(name);
    return *this;
}

TableBuilder& TableBuilder::Button(int seat) {
    button_ = static_cast<int16_t>(seat);
    return *this;
}

TableBuilder& TableBuilder::SmallBlind(int32_t amount) {
    smallBlind_ = amount;
    return *this;
}

void TableBuilder::ApplyTo(Game& game) const {
    int players = 0;
    for (int s = 1; s <= kSeats; ++s) {
        game.RosterNumber[s] = static_cast<int16_t>(s);
        game.RosterName[s] = names_[s];
        game.RosterBank[s] = banks_[s];
        game.RosterPlace[s] = 0;
        game.SeatName[s] = names_[s];
        if (banks_[s] > 0) ++players;
    }
    game.ButtonSeat = button_;
    game.SmallBlind = smallBlind_;
    game.TournamentSize = kSeats;
    game.PlayersLeft = static_cast<int16_t>(players);
    game.TablesInPlay = 1;
}

std::vector<float> ShuffleDrawsFor(const std::vector<int>& front) {
    std::array<int, kDeckSize> pool{};
    for (int i = 0; i < kDeckSize; ++i) pool[i] = i + 1;
    std::vector<float> draws;
    for (int i = 0; i < kDeckSize; ++i) {
        int k = kDeckSize - 1 - i;
        int j = 0;
        if (i < static_cast<int>(front.size())) {
            auto at = std::find(pool.begin(), pool.begin() + k + 1, front[i]);
            if (at == pool.begin() + k + 1) throw std::invalid_argument("card twice in the deck");
            j = static_cast<int>(at - pool.begin());
        }
        float draw = 0.0f;
        if (k > 0)
            draw = j < k ? static_cast<float>(j) / static_cast<float>(k)
                         : (static_cast<float>(k) - 0.25f) / static_cast<float>(k);
        if (static_cast<int>(RoundHalfEven(static_cast<float>(k) * draw)) != j)
            throw std::logic_error("no draw for the wanted card");
        draws.push_back(draw);
        pool[j] = pool[k];
    }
    return draws;
}

std::vector<int> DeckFor(int button, const std::array<std::pair<int, int>, 9>& holes,
                         const std::array<int, 5>& board) {
    std::vector<int> deck(21, 0);
    std::array<bool, kDeckSize + 1> used{};
    auto take = [&used](int card) {
        if (card < 1 || card > kDeckSize || used[card]) throw std::invalid_argument("bad or repeated card");
        used[card] = true;
        return card;
    };
    for (int p = 1; p <= kSeats; ++p) {
        int seat = (button + p - 1) % kSeats + 1;
        if (holes[seat].first != 0) deck[p - 1] = take(holes[seat].first);
        if (holes[seat].second != 0) deck[p + 7] = take(holes[seat].second);
    }
    for (int k = 0; k < 5; ++k) deck[kBoardFirst + k] = take(board[k]);
    int spare = kDeckSize;
    for (int& card : deck) {
        if (card != 0) continue;
        while (used[spare]) --spare;
        card = take(spare);
    }
    return deck;
}

std::vector<float> Draws(std::initializer_list<std::vector<float>> parts) {
    std::vector<float> all;
    for (const auto& part : parts) all.insert(all.end(), part.begin(), part.end());
    return all;
}

}  // namespace holdem::test
