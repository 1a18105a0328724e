#include "tests/support/table_builder.h"

#include <algorithm>
#include <functional>
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
        game.RosterName[s] = game.SeatName[s] = names_[s];
        game.RosterBank[s] = banks_[s];
        game.RosterPlace[s] = 0;
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
        // j / k rounds back to j; k itself needs a draw just below 1.
        float draw = k == 0 ? 0.0f : static_cast<float>(j < k ? j : k - 0.25f) / static_cast<float>(k);
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

void TableGame::Start(const TableBuilder& table, const std::vector<float>& then) {
    table.ApplyTo(g);
    g.rnd.Script(Draws({std::vector<float>(kDeckSize, 0.0f), then}));
    g.StartHand();
}

namespace {

int Run(TableGame& t, const std::function<bool(TimerId)>& more) {
    int ticks = 0;
    for (TimerId id = t.g.RunningTimer(); more(id) && id != kTimerCount && ticks < 500;
         id = t.g.RunningTimer()) {
        t.g.FireTimer(id);
        ++ticks;
        std::string why;
        if (t.broken.empty() && !t.g.state_is_ok(&why)) t.broken = why;
    }
    return ticks;
}

}  // namespace

int TableGame::RunUntil(TimerId until) {
    return Run(*this, [until](TimerId id) { return id != until; });
}

int TableGame::RunWhile(TimerId id) {
    return Run(*this, [id](TimerId running) { return running == id; });
}

std::string Bets(const Game& g) {
    std::string all = g.view.lblBet[1].text;
    for (int s = 2; s <= kSeats; ++s) all += "|" + g.view.lblBet[s].text;
    return all;
}

namespace {

template <std::size_t N>
std::string VisibleIn(const std::array<Element, N>& family, int from, int to) {
    std::string all;
    for (int i = from; i <= to; ++i)
        if (family[i].visible) all += (all.empty() ? "" : " ") + std::to_string(i);
    return all;
}

}  // namespace

std::string Visible(const std::array<Element, 9>& family) { return VisibleIn(family, 1, kSeats); }
std::string Visible(const std::array<Element, 22>& family, int from, int to) {
    return VisibleIn(family, from, to);
}

std::string Buttons(const Game& g) {
    std::string all;
    for (int i = 1; i <= 4; ++i) {
        const Element& b = g.view.cmdPlay[i];
        all += !b.visible ? '-' : b.enabled ? static_cast<char>('0' + i) : '.';
    }
    return all;
}

std::string Running(const Game& g) {
    static const char* const kNames[] = {"DealHole", "BetHole",   "DealFlop", "BetFlop",  "DealTurn",
                                         "BetTurn",  "DealRiver", "BetRiver", "HandOver", "none"};
    return kNames[g.RunningTimer()];
}

}  // namespace holdem::test
