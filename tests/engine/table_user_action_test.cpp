#include <gtest/gtest.h>

#include <algorithm>

#include "tests/support/table_builder.h"

namespace holdem {
namespace {

using test::TableBuilder;

// The user's turn on a street, with stakes already in, then a few presses.
struct Turn {
    const char* name;
    int street, highIndex;
    int32_t highValue, bank;                      // the user's stack before any stake
    std::vector<std::pair<int, int32_t>> stakes;  // seat, stake on this street
    std::vector<int> presses, out;                // seats out have folded
    std::vector<int32_t> answers;                 // from the bet dialog
    const char* outcome;
    const char* message = "";
    int button = 1;
    bool sound = true;
};

// clang-format off
const Turn kTurns[] = {
    // Opening the turn: what may be pressed.
    {"facing a bet", 2, 4, 600, 10000, {{4, 600}}, {}, {}, {},
     "Amount to Call: $600; H4/600; $10,000 pot 600; P8 C1 none [.234] clicks 0"},
    {"all in facing a bet", 2, 4, 600, 0, {{4, 600}}, {}, {}, {},
     "Amount to Call: $600; H4/600; $0 pot 600; P8 C1 none [1.34] clicks 0"},
    {"nothing to call after the flop", 3, 0, 0, 10000, {}, {}, {}, {},
     "Amount to Call: $0; H0/0; $10,000 pot 0; P8 C1 none [1.34] clicks 0"},
    {"the option with the button on seat 7", 1, 1, 200, 10000, {{1, 200}}, {}, {}, {},
     "Amount to Call: $0; H1/200; $9,800 pot 200; P8 C1 none [1.34] clicks 0", "", 7},
    {"the option with any other button", 1, 1, 200, 10000, {{1, 200}}, {}, {}, {},
     "Amount to Call: $0; H1/200; $9,800 pot 200; P8 C1 none [1..4] clicks 0", "", 6},
    // Check.
    {"the first check takes the high bet", 2, 0, 0, 10000, {}, {1}, {2}, {},
     "Checked; H1/0; $10,000 pot 0; P2 C3 BetFlop [----] clicks 1"},
    {"check with the high bet at seat 2", 3, 2, 0, 10000, {}, {1}, {}, {},
     "Checked; H2/0; $10,000 pot 0; P8 C1 DealRiver [----] clicks 1"},
    {"check on the river with the high bet", 4, 1, 0, 10000, {}, {1}, {}, {},
     "Checked; H1/0; $10,000 pot 0; P8 C1 HandOver [----] clicks 1"},
    {"sound off", 2, 0, 0, 10000, {}, {1}, {}, {},
     "Checked; H1/0; $10,000 pot 0; P1 C2 BetFlop [----] clicks 0", "", 1, false},
    // Call.
    {"call", 2, 5, 1500, 10000, {{5, 1500}}, {2}, {}, {},
     "Called $1,500; H5/1500; $8,500 pot 3,000; P1 C2 BetFlop [----] clicks 1"},
    {"call more than the stack", 3, 2, 1000, 700, {{2, 1000}}, {2}, {}, {},
     "Called $700 All In; H2/1000; $0 pot 1,700; P8 C1 DealRiver [----] clicks 1"},
    {"call exactly the stack", 2, 6, 1000, 1000, {{6, 1000}}, {2}, {}, {},
     "Called $1,000; H6/1000; $0 pot 2,000; P1 C2 BetFlop [----] clicks 1"},
    {"hidden or disabled buttons", 2, 4, 600, 10000, {{4, 600}}, {1, 0, 5, 2, 2}, {}, {},
     "Called $600; H4/600; $9,400 pot 1,200; P1 C2 BetFlop [----] clicks 1"},
    // Bet or raise: the refusals.
    {"all in", 2, 4, 600, 0, {{4, 600}}, {3}, {}, {},
     "Amount to Call: $600; H4/600; $0 pot 600; P8 C1 none [1.34] T0 M0 B0 clicks 1", "You're all in. You have no more chips to bet!"},
    {"again after the flop", 2, 1, 0, 10000, {}, {3}, {}, {},
     "Amount to Call: $0; H1/0; $10,000 pot 0; P8 C1 none [1.34] T0 M0 B0 clicks 1", "You cannot bet again this round."},
    {"again before the flop after a raise", 1, 1, 600, 10000, {{1, 600}}, {3}, {}, {},
     "Amount to Call: $0; H1/600; $9,400 pot 600; P8 C1 none [1.34] T0 M0 B0 clicks 1", "You cannot bet again this round.", 7},
    {"not enough to raise; Call takes the stack", 1, 5, 800, 800, {{5, 800}}, {3, 2}, {}, {},
     "Called $800; H5/800; $0 pot 1,600; P1 C2 BetHole [----] T800 M800 B0 clicks 2", "You do not have enough chips to raise!"},
    // Bet or raise through the dialog.
    {"the large blind's option may raise", 1, 1, 200, 10000, {{1, 200}}, {3}, {}, {600},
     "Raise $600 to $800; H1/800; $9,200 pot 800; P1 C2 BetHole [----] T0 M9800 B600 dialog 1/200 clicks 1", "", 7},
    {"cancelled dialog", 2, 4, 600, 10000, {{4, 600}}, {3}, {}, {},
     "Amount to Call: $600; H4/600; $10,000 pot 600; P8 C1 none [.234] T600 M10000 B0 dialog 4/600 clicks 1"},
    {"raise: the call and the raise", 1, 4, 600, 10000, {{1, 200}, {4, 600}}, {3}, {}, {1400},
     "Raise $1,000 to $1,600; H1/1600; $8,400 pot 2,200; P1 C2 BetHole [----] T400 M9800 B1400 dialog 4/600 clicks 1"},
    {"bet", 3, 5, 0, 10000, {}, {3}, {}, {500},
     "Bet $500; H1/500; $9,500 pot 500; P1 C2 BetTurn [----] T0 M10000 B500 dialog 5/0 clicks 1"},
    {"bet the whole stack", 2, 0, 0, 3000, {}, {3}, {}, {3000},
     "Bet $3,000 All In; H1/3000; $0 pot 3,000; P1 C2 BetFlop [----] T0 M3000 B3000 dialog 0/0 clicks 1"},
    {"raise the whole stack", 2, 6, 1000, 3000, {{6, 1000}}, {3}, {}, {3000},
     "Raise $2,000 to $3,000 All In; H1/3000; $0 pot 4,000; P1 C2 BetFlop [----] T1000 M3000 B3000 dialog 6/1000 clicks 1"},
    {"an amount beyond the stack is void", 2, 0, 0, 10000, {}, {3}, {}, {20000},
     "Amount to Call: $0; H0/0; $10,000 pot 0; P8 C1 none [1.34] T0 M10000 B0 dialog 0/0 clicks 1"},
    // Fold.
    {"fold to the last opponent", 2, 2, 400, 10000, {{2, 400}}, {4}, {3, 4, 5, 6, 7, 8}, {},
     "Folded; H2/400; $10,000 pot 400; P8 C1 HandOver [----] clicks 1"},
    {"fold holding the high bet: ties go to the lower seat, folded or not", 1, 1, 200, 10000, {{1, 200}, {2, 100}, {3, 200}, {4, 200}, {6, 200}}, {4}, {3}, {},
     "Folded; H3/200; $9,800 pot 900; P1 C2 BetHole [----] clicks 1"},
    {"fold with the high bet elsewhere", 3, 5, 900, 10000, {{5, 900}, {7, 1200}}, {4}, {}, {},
     "Folded; H5/900; $10,000 pot 2,100; P1 C2 BetTurn [----] clicks 1"},
    {"fold when a check was possible", 2, 0, 0, 10000, {}, {4}, {}, {},
     "Folded; H0/0; $10,000 pot 0; P1 C2 BetFlop [----] clicks 1"},
};
// clang-format on

// Seats 1..8 in the hand with $10,000 (the user `bank`), button on seat 1.
struct UserTurn : test::TableGame {
    explicit UserTurn(const Turn& c) {
        TableBuilder().Bank(1, c.bank).ApplyTo(g);
        g.PlayersInHand = 8 - static_cast<int16_t>(c.out.size());
        for (auto [seat, stake] : c.stakes) g.Pot += g.SeatBet[seat] = stake;
        for (int s = 1; s <= kSeats; ++s) {
            g.SeatInHand[s] = std::find(c.out.begin(), c.out.end(), s) == c.out.end();
            g.SeatBank[s] = static_cast<float>(g.RosterBank[s] - g.SeatBet[s]);
            g.view.lblBank[s].text = Money(g.RosterBank[s] - g.SeatBet[s]);
        }
        g.view.lblPot.text = Money(g.Pot);
        g.view.icard[1].visible = g.view.icard[9].visible = true;
        g.view.mnuSound.checked = c.sound;
        g.ButtonSeat = static_cast<int16_t>(c.button);
        g.Street = static_cast<int16_t>(c.street);
        g.HighBetIndex = static_cast<int16_t>(c.highIndex);
        g.HighBetValue = c.highValue;
        g.CurrentSeat = 1;
        g.PreviousSeat = 8;
        g.EnableTimer(TimerId(TimerBetHole + 2 * (c.street - 1)));  // the turn stops it
        g.OpenUserTurn();
        p.betAmounts.assign(c.answers.begin(), c.answers.end());
        for (int index : c.presses) g.cmdPlay_Click(index);
    }
};

TEST(UserAction, OpeningTheTurnAndEveryPress) {
    for (const Turn& c : kTurns) {
        SCOPED_TRACE(c.name);
        UserTurn t(c);
        const Game& g = t.g;
        auto n = [](int32_t v) { return std::to_string(v); };
        std::string out = g.view.lblBet[1].text + "; H" + n(g.HighBetIndex) + "/" + n(g.HighBetValue) +
                          "; $" + g.view.lblBank[1].text + " pot " + g.view.lblPot.text + "; P" +
                          n(g.PreviousSeat) + " C" + n(g.CurrentSeat) + " " + test::Running(g) + " [" +
                          test::Buttons(g) + "]";
        if (std::find(c.presses.begin(), c.presses.end(), 3) != c.presses.end())
            out += " T" + n(g.ToCallAmount) + " M" + n(g.MaxBetAmount) + " B" + n(g.BetAmount);
        for (const auto& r : t.p.betRequests) {
            out += " dialog " + n(r.HighBetIndex) + "/" + n(r.HighBetValue);
            EXPECT_EQ(std::pair(r.ToCallAmount, r.MaxBetAmount), std::pair(g.ToCallAmount, g.MaxBetAmount));
        }
        EXPECT_EQ(out + " clicks " + n(static_cast<int32_t>(t.p.sounds.size())), c.outcome);
        for (const auto& sound : t.p.sounds) EXPECT_EQ(sound, "BUTTONCLICK");
        std::string messages;
        for (const auto& m : t.p.messages) {
            messages += m.text;
            EXPECT_TRUE(m.icon == MsgIcon::Information && m.buttons == MsgButtons::OK);
        }
        EXPECT_EQ(messages, c.message);
        // A fold hides the user's cards; the hidden mirrors follow the betting.
        EXPECT_EQ(g.view.icard[1].visible || g.view.icard[9].visible, g.SeatInHand[1]);
        EXPECT_EQ(g.view.lblHBI.text + " " + g.view.lblHBV.text + " " + g.view.lblPrevious.text,
                  Plain(g.HighBetIndex) + " " + Plain(g.HighBetValue) + " " + Plain(g.PreviousSeat));
        std::string why;
        EXPECT_TRUE(g.state_is_ok(&why)) << why;
    }
}

}  // namespace
}  // namespace holdem
