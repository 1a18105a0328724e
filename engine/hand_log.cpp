#include "engine/hand_log.h"

#include <utility>

#include "engine/common.h"
#include "engine/end_of_hand.h"
#include "engine/log_events.h"
#include "engine/table_play.h"

namespace holdem {

namespace {

const char* const kRankText[14] = {"", "2", "3", "4", "5", "6", "7", "8", "9", "10", "J", "Q", "K", "A"};
// Suit blocks in card order: hearts, spades, diamonds, clubs.
const char* const kSuitText[4] = {"\u2665", "\u2660", "\u2666", "\u2663"};
const char* const kStreetName[5] = {"", "", "Flop", "Turn", "River"};

std::string Dollars(int64_t amount) { return "$" + Money(amount); }

std::string Cards(const LogLine& line) {
    std::string out;
    for (int i = 0; i < line.cardCount && i < 5; ++i) out += (i ? " " : "") + CardText(line.cards[i]);
    return out;
}

std::string AllIn(const LogLine& line) { return line.allIn ? ", all in" : ""; }

std::string FieldWords(int players) {
    return players > kSeats ? "a tournament of " + Money(players) + " players"
                            : "a single table of " + Plain(players) + " players";
}

}  // namespace

std::string CardText(int card) {
    if (card < 1 || card > kDeckSize) return "--";
    return std::string(kRankText[RankOf(card)]) + kSuitText[SuitOf(card)];
}

std::string FormatLogLine(const LogLine& l) {
    switch (l.kind) {
        case LogKind::GameStart:
            return (l.flag ? "New game: " : "Game opened: ") + FieldWords(l.number);
        case LogKind::HandStart:
            return "Hand " + Plain(l.number) + ": " + l.name + " has the button, blinds " +
                   Dollars(l.amount) + " - " + Dollars(2LL * l.amount);
        case LogKind::HoleCards:
            return l.name + " (you) holds " + Cards(l);
        case LogKind::Blind:
            return l.name + " posts the " + (l.flag ? "large" : "small") + " blind " + Dollars(l.amount) +
                   AllIn(l);
        case LogKind::Check:
            return l.name + " checks";
        case LogKind::Call:
            return l.name + " calls " + Dollars(l.amount) + AllIn(l);
        case LogKind::Bet:
            return l.name + " bets " + Dollars(l.amount) + AllIn(l);
        case LogKind::Raise:
            return l.name + " raises " + Dollars(l.amount) + " to " + Dollars(l.total) + AllIn(l);
        case LogKind::Fold:
            return l.name + " folds";
        case LogKind::Board:
            return std::string("*** ") + kStreetName[l.number >= 2 && l.number <= 4 ? l.number : 0] + ": " +
                   Cards(l) + " ***";
        case LogKind::Shows:
            return l.name + " shows " + Cards(l) + ": " + (l.hand.empty() ? "high card" : l.hand);
        case LogKind::Paid:
            return l.name + " is paid " + Dollars(l.amount) + ", stack " + Dollars(l.total);
        case LogKind::HandResult:
            return "Pot " + Dollars(l.amount) + (l.flag ? ", you won " + Dollars(l.total) : "");
        case LogKind::Joined:
            return l.name + " joins your table from table " + Plain(l.number);
        case LogKind::Left:
            return l.name + " leaves your table for table " + Plain(l.number);
        case LogKind::Busted:
            return l.name + " is out in " + Ordinal(l.number) + " place";
        case LogKind::Field:
            return Money(l.number) + " players left on " + Plain(l.total) +
                   (l.total == 1 ? " table" : " tables") + ", blinds " + Dollars(l.amount) + " - " +
                   Dollars(2LL * l.amount);
        case LogKind::UserOut:
            return "You are out in " + Ordinal(l.number) + " place";
        case LogKind::Winner:
            return (l.flag ? "You win" : l.name + " wins") +
                   (l.number > kSeats ? " the tournament" : " the game");
    }
    return {};
}

void LogEvent(Game& g, LogLine line) {
    if (!g.view.logging) return;
    line.street = g.Street;
    g.view.log.push_back(std::move(line));
}

void LogSeat(Game& g, LogKind kind, int seat, int32_t amount, int32_t total) {
    if (!g.view.logging) return;
    LogLine line;
    line.kind = kind;
    line.name = g.RosterName[seat];
    line.amount = amount;
    line.total = total;
    line.allIn = g.SeatBank[seat] <= 0 && kind != LogKind::Fold && kind != LogKind::Check;
    line.flag = seat == 1;
    LogEvent(g, std::move(line));
}

void LogHandStart(Game& g) {
    if (!g.view.logging) return;
    LogLine start;
    start.kind = LogKind::HandStart;
    start.number = g.HandsPlayed;
    start.name = g.RosterName[g.ButtonSeat];
    start.amount = g.SmallBlind;
    LogEvent(g, std::move(start));
    if (!g.SeatInHand[1]) return;
    LogLine hole;
    hole.kind = LogKind::HoleCards;
    hole.name = g.RosterName[1];
    hole.cards = {g.SeatCards[1][1], g.SeatCards[1][2]};
    hole.cardCount = 2;
    LogEvent(g, std::move(hole));
}

void LogBlinds(Game& g) {
    if (!g.view.logging) return;
    for (int seat : {g.SmallBlindSeat, g.BigBlindSeat}) {
        LogLine line;
        line.kind = LogKind::Blind;
        line.name = g.RosterName[seat];
        line.amount = g.SeatBet[seat];
        line.flag = seat == g.BigBlindSeat;
        line.allIn = g.SeatBank[seat] <= 0;
        LogEvent(g, std::move(line));
    }
}

void LogUserTableChanges(Game& g, const RosterNumbers& before) {
    // Once the user is out, table 1 is nobody's table to follow.
    if (!g.view.logging || g.RosterBank[1] <= 0 || g.UserFinishPlace > 0) return;
    auto positionOf = [](const RosterNumbers& numbers, int16_t number) {
        for (int p = 1; p <= kRoster; ++p)
            if (numbers[p] == number) return p;
        return 0;
    };
    for (int p = 2; p <= kSeats; ++p) {
        int now = positionOf(g.RosterNumber, before[p]);
        if (before[p] != 0 && TableOf(now) != 1 && g.RosterBank[now] > 0)
            LogEvent(g, MakeLine(LogKind::Left, g.RosterName[now], TableOf(now)));
    }
    for (int p = 2; p <= kSeats; ++p) {
        int then = positionOf(before, g.RosterNumber[p]);
        if (g.RosterBank[p] > 0 && TableOf(then) != 1)
            LogEvent(g, MakeLine(LogKind::Joined, g.RosterName[p], TableOf(then)));
    }
}

void LogBoard(Game& g, int street, int cards) {
    if (!g.view.logging) return;
    LogLine line;
    line.kind = LogKind::Board;
    line.number = street;
    for (int k = 0; k < cards; ++k) line.cards[k] = g.Deck[kBoardFirst + k];
    line.cardCount = static_cast<int16_t>(cards);
    LogEvent(g, std::move(line));
}

void LogShownHands(Game& g) {
    if (!g.view.logging || g.PlayersInHand <= 1) return;
    for (int s = 1; s <= kSeats; ++s) {
        if (!g.SeatInHand[s]) continue;
        LogLine line;
        line.kind = LogKind::Shows;
        line.name = g.RosterName[s];
        line.cards = {g.SeatCards[s][1], g.SeatCards[s][2]};
        line.cardCount = 2;
        line.hand = g.SeatHandName[s];
        LogEvent(g, std::move(line));
    }
}

}  // namespace holdem
