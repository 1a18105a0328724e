// The state of every element the game logic names. The logic writes it and
// never draws; the Qt window and the tests read it.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "engine/hand_log.h"

namespace holdem {

// One label, image, button or menu entry.
struct Element {
    std::string text;
    bool visible = false;
    bool enabled = true;
    bool checked = false;
    // Card images: 0 is the back of a card, 1..52 the face of that card.
    int16_t picture = 0;
};

// The nine timers of a hand, in the order of the chain.
enum TimerId : int {
    TimerDealHole,
    TimerBetHole,
    TimerDealFlop,
    TimerBetFlop,
    TimerDealTurn,
    TimerBetTurn,
    TimerDealRiver,
    TimerBetRiver,
    TimerHandOver,
    kTimerCount
};

struct TimerState {
    bool enabled = false;
    int32_t interval = 0;
};

struct View {
    // Per seat, index 1..8; element 0 unused.
    std::array<Element, 9> lblName{}, lblBankDollarSign{}, lblBank{}, lblBet{}, lblPaid{};
    std::array<Element, 9> iArrow{}, iButton{}, lblPCardIndex{}, lblPCardValue{};
    // icard(s) first hole card of seat s, icard(s + 8) its second, 17..21 the board.
    std::array<Element, 22> icard{};
    Element lblPot, lblPotLabel, lblBlind, lblGoodLuck;
    Element lblHBI, lblHBV, lblPrevious;  // hidden mirrors of the betting state
    // cmdPlay(1..4): Check, Call, Bet/Raise, Fold.
    std::array<Element, 5> cmdPlay{};
    Element cmdDeal, cmdStandings, cmdFloor;
    Element picTableMoney;  // the winner's panel

    // Menu entries.
    Element mnuNew, mnuOpen, mnuSave, mnuSaveAs, mnuExit;
    Element mnuStandings, mnuFloor;
    Element mnuSound, mnuFastSpeed, mnuMediumSpeed, mnuSlowSpeed, mnuTips;
    Element mnuHelpIndex, mnuRules, mnuAbout;

    std::array<TimerState, kTimerCount> timer{};

    // Events of the user's table and the field, oldest first; readers take
    // them away. With logging off nothing is written.
    std::vector<LogLine> log;
    bool logging = true;
};

}  // namespace holdem
