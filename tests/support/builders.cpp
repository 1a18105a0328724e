#include "tests/support/builders.h"

#include <stdexcept>

namespace holdem::test {

std::vector<int16_t> CardsOf(const std::string& names) {
    static const std::string kRanks = "23456789TJQKA", kSuits = "hsdc";
    std::string packed = names;
    std::erase(packed, ' ');
    std::vector<int16_t> cards;
    for (std::size_t i = 0; i + 1 < packed.size(); i += 2) {
        auto rank = kRanks.find(packed[i]), suit = kSuits.find(packed[i + 1]);
        bool known = rank != std::string::npos && suit != std::string::npos;
        cards.push_back(static_cast<int16_t>(known ? suit * 13 + rank + 1 : 0));
    }
    return cards;
}

void SetBoard(Game& g, const std::string& cards) {
    std::vector<int16_t> board = CardsOf(cards);
    for (std::size_t k = 0; k < board.size(); ++k) {
        g.Deck[kBoardFirst + k] = board[k];
        for (int s = 1; s <= kSeats; ++s) g.SeatCards[s][3 + k] = board[k];
    }
}

void SetHole(Game& g, int seat, const std::string& cards) {
    std::vector<int16_t> hole = CardsOf(cards);
    g.SeatCards[seat][1] = hole[0], g.SeatCards[seat][2] = hole[1];
}

void SeatPlayer(Game& g, int seat, float bankLeft, int32_t totalBet, int32_t bet, bool inHand) {
    g.RosterBank[seat] = static_cast<int32_t>(bankLeft) + totalBet + bet;
    g.SeatBank[seat] = bankLeft;
    g.PlayersInHand = static_cast<int16_t>(g.PlayersInHand - g.SeatInHand[seat] + inHand);
    g.Pot += totalBet + bet - g.SeatTotalBet[seat] - g.SeatBet[seat];
    std::tie(g.SeatTotalBet[seat], g.SeatBet[seat], g.SeatInHand[seat]) =
        std::make_tuple(totalBet, bet, inHand);
    g.view.icard[seat].visible = g.view.icard[seat + 8].visible = inHand;
}

void EmptyTable(Game& g, int16_t size) {
    g.TournamentSize = g.PlayersLeft = g.NextFinishPlace = size;
    std::tie(g.TablesInPlay, g.SmallBlind, g.Street, g.view.mnuSound.checked) =
        std::make_tuple(int16_t((size + kSeats - 1) / kSeats), 100, int16_t(4), true);
    for (int s = 1; s <= kSeats; ++s) g.SeatHandCode[s] = kNoHand;
    for (int i = 1; i <= size; ++i) g.RosterNumber[i] = static_cast<int16_t>(i);
    g.view.timer[TimerHandOver].enabled = true;
}

void RankRiver(Game& g) { g.CardsKnown = 7, g.RankHands(); }

void SeatTable(Game& g, const std::vector<int32_t>& banks, int button, int32_t smallBlind) {
    int players = 0;
    for (int s = 1; s <= static_cast<int>(banks.size()); ++s) {
        g.RosterNumber[s] = static_cast<int16_t>(s), g.RosterBank[s] = banks[s - 1];
        g.RosterName[s] = g.SeatName[s] = s == 1 ? "You" : "Player " + std::to_string(s);
        players += banks[s - 1] > 0;
    }
    std::tie(g.ButtonSeat, g.SmallBlind, g.TournamentSize, g.PlayersLeft, g.TablesInPlay,
             g.view.mnuSound.checked) =
        std::make_tuple(int16_t(button), smallBlind, int16_t(kSeats), int16_t(players), int16_t(1), true);
}

std::vector<float> ShuffleDrawsFor(const std::vector<int>& front) {
    std::array<int, kDeckSize> pool{};
    for (int i = 0; i < kDeckSize; ++i) pool[i] = i + 1;
    std::vector<float> draws;
    for (int i = 0; i < kDeckSize; ++i) {
        int k = kDeckSize - 1 - i, j = 0;
        if (i < static_cast<int>(front.size())) {
            auto at = std::find(pool.begin(), pool.begin() + k + 1, front[i]);
            if (at == pool.begin() + k + 1) throw std::invalid_argument("card twice in the deck");
            j = static_cast<int>(at - pool.begin());
        }
        // A little below j where possible: truncating instead of rounding would deal another card.
        float draw = k == 0 ? 0.0f : (static_cast<float>(j) + (j > 0 ? -0.3f : 0.3f)) / static_cast<float>(k);
        if (static_cast<int>(RoundHalfEven(static_cast<float>(k) * draw)) != j)
            throw std::logic_error("no draw for the wanted card");
        draws.push_back(draw);
        pool[j] = pool[k];
    }
    return draws;
}

std::vector<int> DeckFor(int button, const std::array<std::string, 9>& holes, const std::string& board) {
    std::vector<int> deck(21, 0);
    std::array<bool, kDeckSize + 1> used{};
    auto take = [&used](int card) {
        if (card < 1 || card > kDeckSize || used[card]) throw std::invalid_argument("bad or repeated card");
        used[card] = true;
        return card;
    };
    for (int p = 1; p <= kSeats; ++p) {
        int seat = (button + p - 1) % kSeats + 1;
        if (holes[seat].empty()) continue;
        std::vector<int16_t> hole = CardsOf(holes[seat]);
        deck[p - 1] = take(hole[0]);
        deck[p + 7] = take(hole[1]);
    }
    std::vector<int16_t> middle = CardsOf(board);
    for (int k = 0; k < 5; ++k) deck[kBoardFirst + k] = take(middle[k]);
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

std::string StateText(const Game& g) {
    std::ostringstream out;
    out << g.TournamentSize << ',' << g.HandsPlayed << ',' << g.ButtonSeat << ',' << g.SmallBlind << ','
        << g.PlayersLeft << ',' << g.TablesInPlay << g.GameUnsaved << g.GameEnded << g.SavedGamePath << '\n';
    for (int p = 1; p <= kRoster; ++p)
        out << g.RosterName[p] << g.RosterBank[p] << ',' << g.RosterPlace[p] << ',' << g.RosterNumber[p]
            << '\n';
    for (int s = 1; s <= kSeats; ++s)
        out << g.SeatName[s] << g.SeatBank[s] << g.SeatBet[s] << g.SeatInHand[s];
    const View& v = g.view;
    std::vector<const Element*> all = {&v.mnuSave,  &v.mnuSaveAs,   &v.mnuMediumSpeed, &v.cmdDeal,
                                       &v.lblBlind, &v.lblGoodLuck, &v.lblPot,         &v.picTableMoney};
    for (const auto* group : {&v.lblName, &v.lblBank, &v.lblBet, &v.lblPaid, &v.iArrow, &v.iButton})
        for (const Element& e : *group) all.push_back(&e);
    for (const Element& e : v.icard) all.push_back(&e);
    for (const Element& e : v.cmdPlay) all.push_back(&e);
    for (const Element* e : all)
        out << e->text << '|' << e->visible << e->enabled << e->checked << e->picture << '\n';
    for (const TimerState& t : v.timer) out << t.enabled << t.interval;
    for (const LogLine& line : v.log) out << '\n' << FormatLogLine(line);
    return out.str();
}

void ExpectSettled(const Game& g) {
    EXPECT_EQ(g.rnd.Remaining(), 0u) << "draws left unused";
    EXPECT_EQ(g.rnd.Overdrawn(), 0) << "draws beyond the script";
    std::string why;
    EXPECT_TRUE(g.state_is_ok(&why)) << why;
}

void RunTimers(Game& g) {
    while (g.RunningTimer() != kTimerCount) g.FireTimer(g.RunningTimer());
}

HandCategory CategoryOfCode(int code) {
    static const int kLast[] = {10, 23, 36, 37, 47, 60, 138, 151};  // of each class, straight flushes first
    int i = 0;
    while (i < 8 && code > kLast[i]) ++i;
    return static_cast<HandCategory>(StraightFlush - i);
}

}  // namespace holdem::test
