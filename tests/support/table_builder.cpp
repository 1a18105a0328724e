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
    std::copy_n(banks.begin(), std::min<std::size_t>(banks.size(), kSeats), banks_.begin() + 1);
    return *this;
}

void TableBuilder::ApplyTo(Game& game) const {
    for (int s = 1; s <= kSeats; ++s) {
        game.RosterNumber[s] = static_cast<int16_t>(s);
        game.RosterName[s] = game.SeatName[s] = names_[s];
        game.RosterBank[s] = banks_[s];
        game.RosterPlace[s] = 0;
    }
    game.ButtonSeat = button_;
    game.SmallBlind = smallBlind_;
    game.TournamentSize = kSeats;
    game.PlayersLeft = static_cast<int16_t>(
        std::count_if(banks_.begin() + 1, banks_.end(), [](int32_t b) { return b > 0; }));
    game.TablesInPlay = 1;
}

std::vector<float> ShuffleDrawsFor(const std::vector<int>& front) {
    std::array<int, kDeckSize> pool{};
    for (int i = 0; i < kDeckSize; ++i) pool[i] = i + 1;
    std::vector<float> draws;
    for (int i = 0, k = kDeckSize - 1; i < kDeckSize; ++i, --k) {
        int j = i < static_cast<int>(front.size())
                    ? static_cast<int>(std::find(pool.begin(), pool.end(), front[i]) - pool.begin())
                    : 0;
        if (j > k) throw std::invalid_argument("card twice in the deck");
        // j / k rounds back to j; j = k needs a draw just below 1.
        draws.push_back(k == 0 ? 0.0f : static_cast<float>(j < k ? j : k - 0.25f) / static_cast<float>(k));
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
        return used[card] = true, card;
    };
    for (int p = 1; p <= kSeats; ++p) {
        const auto& [first, second] = holes[(button + p - 1) % kSeats + 1];
        if (first != 0) deck[p - 1] = take(first);
        if (second != 0) deck[p + 7] = take(second);
    }
    for (int k = 0; k < 5; ++k) deck[kBoardFirst + k] = take(board[k]);
    for (int& card : deck)
        for (int spare = kDeckSize; card == 0; --spare)
            if (!used[spare]) card = take(spare);
    return deck;
}

std::vector<float> Draws(std::initializer_list<std::vector<float>> parts) {
    std::vector<float> all;
    for (const auto& part : parts) all.insert(all.end(), part.begin(), part.end());
    return all;
}

void TableGame::Start(const TableBuilder& table, const std::vector<float>& then) {
    table.ApplyTo(g);
    g.rnd.Script(Draws({std::vector<float>(kDeckSize, 0.0f), then}));
    g.StartHand();
}

int TableGame::RunUntil(TimerId until) {
    int ticks = 0;
    for (TimerId id; (id = g.RunningTimer()) != until && id != kTimerCount && ticks < 500; ++ticks) {
        g.FireTimer(id);
        std::string why;
        if (broken.empty() && !g.state_is_ok(&why)) broken = why;
    }
    return ticks;
}

std::string Bets(const Game& g) {
    return Join([&](int s) { return g.view.lblBet[s].text; }, "|");
}

std::string Cards(const Game& g, int from, int to) {
    return Join([&](int i) { return g.view.icard[i].visible ? std::to_string(i) : ""; }, " ", from, to, true);
}

std::string Arrows(const Game& g) {
    return Join([&](int s) { return g.view.iArrow[s].visible ? std::to_string(s) : ""; }, " ", 1, kSeats,
                true);
}

std::string Buttons(const Game& g) {
    return Join(
        [&](int i) {
            const Element& b = g.view.cmdPlay[i];
            return std::string(1, !b.visible ? '-' : b.enabled ? static_cast<char>('0' + i) : '.');
        },
        "", 1, 4);
}

std::string Running(const Game& g) {
    static const char* const kNames[] = {"DealHole", "BetHole",   "DealFlop", "BetFlop",  "DealTurn",
                                         "BetTurn",  "DealRiver", "BetRiver", "HandOver", "none"};
    return kNames[g.RunningTimer()];
}

}  // namespace holdem::test
