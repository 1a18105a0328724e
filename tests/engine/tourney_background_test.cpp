// A hand at a background table: button and blinds, the deal from the shuffle,
// betting with the opponents' rule in every seat, and the settlement.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <sstream>
#include <string>
#include <vector>

#include "engine/game_state.h"
#include "tests/support/hand_builder.h"
#include "tests/support/scripted_platform.h"
#include "tests/support/table_builder.h"

namespace holdem {
namespace {

constexpr float kNo = 0.99f;  // folds to a bet, never raises, checks with nothing to call
constexpr int kTable = 7;

// The first 21 cards: the holes ("6:AhAs" by seat) dealt round from the seat
// after `button`, a blank board, the lowest cards left everywhere else.
std::vector<int> FrontOfDeck(int button, const std::string& holes) {
    std::vector<int> front(21, 0);
    const char* board[] = {"Kc", "9d", "5s", "3h", "Jd"};  // pairs nothing, runs nothing
    for (int b = 0; b < 5; ++b) front[kBoardFirst + b] = test::CardOf(board[b]);
    std::istringstream in(holes);
    for (std::string h; in >> h;) {
        int p = (h[0] - '0' - button + 7) % kSeats;
        front[p] = test::CardOf(h.substr(2, 2));
        front[p + kSeats] = test::CardOf(h.substr(4, 2));
    }
    for (int card = 1, i = 0; i < 21; ++i) {
        while (front[i] == 0 && std::count(front.begin(), front.end(), card)) ++card;
        if (front[i] == 0) front[i] = card++;
    }
    return front;
}

struct Row {
    const char* stacks;  // seats 1.. in order, 0 empty
    int buttonBefore;
    const char* holes;
    const char* moves;  // 's' a draw of 0: stays, raises when it may, by the smallest size; 'n' kNo
    const char* outcome;
};

// The whole of a background hand in one line: button, blinds, cards known,
// every seat's stack after the hand and what each seat put in.
std::string Play(const Row& r) {
    test::ScriptedPlatform p;
    Game g(p);
    g.SmallBlind = 100;
    g.TableButton[kTable] = static_cast<int16_t>(r.buttonBefore);
    std::istringstream in(r.stacks);
    int players = 0, button = 0;
    for (int s = 1; s <= kSeats; ++s) {
        int32_t& bank = g.RosterBank[RosterPosition(kTable, s)];
        in >> bank;
        players += bank > 0;
    }
    for (int s = r.buttonBefore % kSeats + 1; button == 0 && players > 1; s = s % kSeats + 1)
        if (g.RosterBank[RosterPosition(kTable, s)] > 0) button = s;
    std::vector<float> draws =
        players > 1 ? test::ShuffleDrawsFor(FrontOfDeck(button, r.holes)) : std::vector<float>{};
    for (const char* m = r.moves; *m; ++m) draws.push_back(*m == 's' ? 0.0f : kNo);
    g.rnd.Script(draws);
    g.PlayTableHand(kTable);

    std::ostringstream out;
    out << "button " << g.TableButton[kTable] << " blinds " << g.SmallBlindSeat << "/" << g.BigBlindSeat
        << " known " << g.CardsKnown << " |";
    for (int s = 1; s <= kSeats; ++s) out << " " << g.RosterBank[RosterPosition(kTable, s)];
    out << " |";
    for (int s = 1; s <= kSeats; ++s)
        if (g.SeatTotalBet[s] > 0) out << " " << s << ":" << g.SeatTotalBet[s];
    // Every seat, empty or not, takes its cards round from the seat after the button.
    for (int i = 0, seat = g.TableButton[kTable]; i < kSeats && players > 1; ++i) {
        seat = NextSeat(seat);
        EXPECT_EQ(g.SeatCards[seat][1] * 100 + g.SeatCards[seat][2], g.Deck[i] * 100 + g.Deck[i + kSeats]);
        EXPECT_EQ(g.SeatCards[seat][7], g.Deck[kBoardFirst + 4]);
    }
    bool ranked = false;
    for (int s = 1; s <= kSeats; ++s) ranked = ranked || g.SeatHandCode[s] != kNoHand;
    EXPECT_EQ(ranked, g.CardsKnown > 2) << "ranked only once a street is out";
    EXPECT_EQ(g.rnd.Remaining() + g.rnd.Overdrawn(), 0u);
    EXPECT_TRUE(p.messages.empty());
    return out.str();
}

TEST(BackgroundHand, Examples) {
    const Row rows[] = {
        // First hand of a full table: button 1, blinds 2 and 3, seat 4 first; it calls and the
        // rest fold; then 3 and 4 check down three streets.
        {"10000 10000 10000 10000 10000 10000 10000 10000", 0, "4:AhAs 3:7d2c", "snnnnnnnnnnnnn",
         "button 1 blinds 2/3 known 7 | 10000 9900 9800 10300 10000 10000 10000 10000 | 2:100 3:200 4:200"},
        // Seats 1 and 2 empty: the button lands on 3; all fold to the large blind, nothing is ranked.
        {"0 0 10000 10000 10000 10000 10000 10000", 0, "", "nnnnn",
         "button 3 blinds 4/5 known 2 | 0 0 10000 9900 10100 10000 10000 10000 | 4:100 5:200"},
        // Two players: the small blind is the seat after the button, nobody bets before the
        // flop, and the small blind wins the check-down with its 100 matched.
        {"0 0 10000 0 0 10000", 6, "6:AhAs 3:7d2c", "nnnnnn",
         "button 3 blinds 6/3 known 7 | 0 0 9900 0 0 10100 0 0 | 3:200 6:100"},
        // ... and the seat after the button opens the flop: seat 6 bets 500, seat 3 folds.
        {"0 0 10000 0 0 10000", 6, "6:7d2c 3:8d2s", "ssn",
         "button 3 blinds 6/3 known 5 | 0 0 9800 0 0 10200 0 0 | 3:200 6:600"},
        // A lone player plays nothing: no draw, the button stays.
        {"0 0 0 0 12300", 4, "", "", "button 4 blinds 0/0 known 0 | 0 0 0 0 12300 0 0 0 |"},
        // Blinds that take the whole stacks: every street is still dealt, one check each.
        {"0 0 200 0 0 100", 6, "6:AhAs 3:7d2c", "nnn",
         "button 3 blinds 6/3 known 7 | 0 0 100 0 0 200 0 0 | 3:200 6:100"},
        // Three players all in: the button acts first and calls short; the shortest wins the main pot.
        {"100 100 200", 0, "1:AhAs 2:7d2c 3:8h2s", "snnnn",
         "button 1 blinds 2/3 known 7 | 300 0 100 0 0 0 0 0 | 1:100 2:100 3:200"},
        // An all-in seat first after the button still opens each street, with a check.
        {"10000 100 10000", 0, "2:AhAs 1:7d2c 3:8h2s", "snnnnnnnnnn",
         "button 1 blinds 2/3 known 7 | 9900 300 9900 0 0 0 0 0 | 1:200 2:100 3:200"},
        // A short large blind: callers pay the full 200 and get 50 back.
        {"10000 10000 150", 0, "3:AhAs 1:7d2c 2:8h2s", "snsnnnnnnn",
         "button 1 blinds 2/3 known 7 | 9850 9850 450 0 0 0 0 0 | 1:200 2:200 3:150"},
        // Raises are unlimited: 4 raises to 400, 1 and 2 fold, 3 to 800, 4 to 1,600, 3 calls.
        {"10000 10000 10000 10000", 0, "4:AhAs 3:QhQs 1:7d2c 2:8h2s", "sssnnsssssssnnnnnnn",
         "button 1 blinds 2/3 known 7 | 10000 9900 8400 11700 0 0 0 0 | 2:100 3:1600 4:1600"},
        // The button moves on to the next seat with chips; three players, the button folds first.
        {"0 10000 0 0 10000 0 10000", 5, "", "nn",
         "button 7 blinds 2/5 known 2 | 0 9900 0 0 10100 0 10000 0 | 2:100 5:200"},
    };
    for (const Row& r : rows) EXPECT_EQ(Play(r), r.outcome);
}

TEST(BackgroundHand, TheShuffleRoundsItsDrawsHalfToEven) {
    test::ScriptedPlatform p;
    Game g(p);
    g.SmallBlind = 100;
    g.RosterBank[RosterPosition(2, 1)] = g.RosterBank[RosterPosition(2, 2)] = 10000;
    std::vector<float> draws(52, 0.5f);  // k = 51 takes 25.5 to 26, k = 1 takes 0.5 to 0
    draws.resize(58, kNo);               // nothing to do before the flop; three streets checked
    g.rnd.Script(draws);
    g.PlayTableHand(2);
    std::vector<int> pool(52);
    for (int i = 0; i < 52; ++i) pool[i] = i + 1;
    for (int i = 0, k = 51; i < 52; ++i, --k) {
        int j = static_cast<int>(std::nearbyint(k * 0.5));
        EXPECT_EQ(g.Deck[i], pool[j]) << "card " << i;
        pool[j] = pool[k];
    }
    EXPECT_EQ(g.Deck[0], 27);
    EXPECT_EQ(g.rnd.Remaining() + g.rnd.Overdrawn(), 0u);
}

TEST(BackgroundRound, StopsAfterAThousandTurns) {
    // A state play never reaches: nobody holds the high bet and both seats check.
    test::ScriptedPlatform p;
    Game g(p);
    g.CardsKnown = 5;
    g.SeatInHand[1] = g.SeatInHand[2] = true;
    g.PlayersInHand = 2;
    g.TableBank[1] = g.TableBank[2] = 1000;
    g.SeatHandCode[1] = g.SeatHandCode[2] = 199;
    g.HighBetIndex = 7;
    g.CurrentSeat = 1;
    g.rnd.Script(std::vector<float>(1000, kNo));
    g.PlayTableRound(false);
    EXPECT_EQ(g.rnd.Remaining() + g.rnd.Overdrawn(), 0u);
}

TEST(BackgroundTables, EveryTableFromTwoUpPlaysOnce) {
    test::ScriptedPlatform p;
    Game g(p);
    g.SmallBlind = 100;
    // Tables 2 and 4 hold two players each; table 3 one, who sits out and draws nothing.
    for (int pos : {1, RosterPosition(2, 1), RosterPosition(2, 5), RosterPosition(3, 1), RosterPosition(4, 1),
                    RosterPosition(4, 2)})
        g.RosterBank[pos] = 10000;
    g.TablesInPlay = 4;
    std::vector<float> hand(52, 0.0f);
    hand.resize(58, kNo);
    g.rnd.Script(test::Draws({hand, hand}));
    g.PlayOtherTables();
    EXPECT_EQ(std::vector<int>({g.TableButton[2], g.TableButton[3], g.TableButton[4]}),
              std::vector<int>({1, 0, 1}));
    EXPECT_EQ(g.RosterBank[RosterPosition(4, 1)] + g.RosterBank[RosterPosition(4, 2)], 20000);
    EXPECT_EQ(g.rnd.Remaining() + g.rnd.Overdrawn(), 0u);
    g.TablesInPlay = 1;  // a single table: nothing plays, nothing is drawn
    g.PlayOtherTables();
    EXPECT_EQ(g.rnd.Overdrawn(), 0);
}

}  // namespace
}  // namespace holdem
