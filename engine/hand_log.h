// What happened at the user's table and in the field, as plain events. The
// routines append them to View::log as they go; the window's hand log, the
// statistics and the simulator's --log read them and share one formatter.
// An event is written only for the shown table and for the round's busts and
// moves, never from a background table's own play.
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace holdem {

enum class LogKind : uint8_t {
    GameStart,  // number: field size; flag: a new game (not an opened one)
    HandStart,  // number: hand; name: the button; amount: small blind
    HoleCards,  // name: the user; cards: the two hole cards
    Blind,      // amount posted; flag: the large blind; allIn
    // The moves and payments below carry flag: the user's own.
    Check,       //
    Call,        // amount; allIn
    Bet,         // amount; allIn
    Raise,       // amount: raised by; total: to; allIn
    Fold,        //
    Board,       // number: street (2 flop, 3 turn, 4 river); cards
    Shows,       // cards: hole cards; hand: the made hand's name ("" is a high card)
    Paid,        // amount paid; total: the stack after
    HandResult,  // amount: the pot; total: paid to the user; flag: user won; number: players shown
    Joined,      // name joined the user's table from table `number`
    Left,        // name left the user's table for table `number`
    Busted,      // name is out; number: place
    Field,       // number: players left; total: tables; amount: small blind
    UserOut,     // number: the user's place
    Winner,      // name won the field; flag: it is the user
};

struct LogLine {
    LogKind kind = LogKind::HandStart;
    std::string name;
    int32_t amount = 0;
    int32_t total = 0;
    int32_t number = 0;
    bool flag = false;
    bool allIn = false;
    int16_t street = 0;  // Street when it happened, 0 between hands
    std::array<int16_t, 5> cards{};
    int16_t cardCount = 0;
    std::string hand;
};

// "Erik Nilsson raises $400 to $600": one line of plain words.
std::string FormatLogLine(const LogLine& line);
// "A♠", "10♥": a card as the log shows it.
std::string CardText(int card);

}  // namespace holdem
