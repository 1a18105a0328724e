#include "tests/support/hand_builder.h"

namespace holdem::test {

int16_t CardOf(const std::string& name) {
    static const std::string kRanks = "23456789TJQKA";
    static const std::string kSuits = "hsdc";
    if (name.size() != 2) return 0;
    auto rank = kRanks.find(name[0]);
    auto suit = kSuits.find(name[1]);
    if (rank == std::string::npos || suit == std::string::npos) return 0;
    return static_cast<int16_t>(suit * 13 + rank + 1);
}

void SetBoard(Game& g, std::initializer_list<const char*> cards) {
    int k = 0;
    for (const char* c : cards) {
        int16_t card = CardOf(c);
        g.Deck[kBoardFirst + k] = card;
        for (int s = 1; s <= kSeats; ++s) g.SeatCards[s][3 + k] = card;
        g.view.icard[17 + k].picture = card;
        ++k;
    }
}

void SetHole(Game& g, int seat, const char* first, const char* second) {
    g.SeatCards[seat][1] = CardOf(first);
    g.SeatCards[seat][2] = CardOf(second);
}

void SeatPlayer(Game& g, int seat, const std::string& name, float bankLeft, int32_t totalBet, int32_t bet,
                bool inHand) {
    g.RosterName[seat] = name;
    g.SeatName[seat] = name;
    g.RosterBank[seat] = static_cast<int32_t>(bankLeft) + totalBet + bet;
    g.SeatBank[seat] = bankLeft;
    if (g.SeatInHand[seat]) --g.PlayersInHand;
    g.Pot -= g.SeatTotalBet[seat] + g.SeatBet[seat];
    g.SeatTotalBet[seat] = totalBet;
    g.SeatBet[seat] = bet;
    g.Pot += totalBet + bet;
    g.SeatInHand[seat] = inHand;
    if (inHand) ++g.PlayersInHand;
    g.view.lblName[seat].text = name;
    g.view.lblBank[seat].text = Money(static_cast<int64_t>(bankLeft));
    g.view.icard[seat].visible = g.view.icard[seat + 8].visible = inHand;
    g.view.icard[seat].picture = g.view.icard[seat + 8].picture = 0;
}

void EmptyTable(Game& g, int16_t tournamentSize) {
    g.TournamentSize = tournamentSize;
    g.PlayersLeft = tournamentSize;
    g.NextFinishPlace = tournamentSize;
    g.TablesInPlay = static_cast<int16_t>((tournamentSize + kSeats - 1) / kSeats);
    g.SmallBlind = 100;
    g.Street = 4;
    g.view.mnuSound.checked = true;
    for (int s = 1; s <= kSeats; ++s) g.SeatHandCode[s] = kNoHand;
    for (int i = 1; i <= tournamentSize && i <= kRoster; ++i) g.RosterNumber[i] = static_cast<int16_t>(i);
    g.view.timer[TimerHandOver].enabled = true;
}

void RankRiver(Game& g) {
    g.CardsKnown = 7;
    g.RankHands();
}

}  // namespace holdem::test
