#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <map>
#include <utility>
#include <vector>

#include "engine/game_state.h"
#include "tests/support/scripted_platform.h"

namespace holdem {
namespace {

using test::ScriptedPlatform;

// Card of a rank (1 Two .. 13 Ace) in a suit block 0..3.
constexpr int C(int rank, int suit) { return suit * 13 + rank; }

constexpr float kStay = 0.0f;      // a percentage draw of 0: stays, and raises whenever it may
constexpr float kNo = 0.99f;       // 99: folds to a bet, never raises, checks with nothing to call
constexpr float kSmallest = 0.0f;  // a size draw that gives x = 1

// The 52 draws that make the shuffle produce `deck`: card i is found in the
// pool at j and drawn with j / k, a little under so that the single-precision
// product still rounds to j.
std::vector<float> ShuffleDraws(const std::array<int, 52>& deck) {
    std::array<int, 52> pool{};
    for (int i = 0; i < 52; ++i) pool[i] = i + 1;
    std::vector<float> draws;
    for (int i = 0; i < 52; ++i) {
        int k = 51 - i;
        int j = 0;
        while (pool[j] != deck[i]) ++j;
        draws.push_back(j == 0 ? 0.0f : (static_cast<float>(j) - 0.1f) / static_cast<float>(k));
        pool[j] = pool[k];
    }
    return draws;
}

// A deck that deals `hole` (seat -> first, second) and `board` with the button
// at `button`; every other card in rising order.
std::array<int, 52> DeckFor(int button, const std::map<int, std::pair<int, int>>& hole,
                            const std::array<int, 5>& board) {
    std::array<int, 52> deck{};
    std::array<bool, 53> used{};
    for (const auto& [seat, cards] : hole) {
        int p = (seat - button + 7) % 8 + 1;  // seat(p) is the p-th seat after the button
        deck[p - 1] = cards.first;
        deck[p + 7] = cards.second;
        used[cards.first] = used[cards.second] = true;
    }
    for (int b = 0; b < 5; ++b) {
        deck[16 + b] = board[b];
        used[board[b]] = true;
    }
    int next = 1;
    for (int i = 0; i < 52; ++i) {
        if (deck[i] != 0) continue;
        while (used[next]) ++next;
        deck[i] = next;
        used[next] = true;
    }
    return deck;
}

// Nothing pairs, nothing runs, no suit gathers five with the holes below.
constexpr std::array<int, 5> kBlankBoard = {C(12, 3), C(8, 2), C(4, 1), C(2, 0), C(10, 2)};  // K 9 5 3 J

using Stacks = std::map<int, int32_t>;

struct Table {
    ScriptedPlatform p;
    Game g{p};
    int t = 2;

    // Stacks by seat of table t; a seat left out is empty.
    explicit Table(const std::map<int, int32_t>& stacks, int table = 2) : t(table) {
        g.TournamentSize = 80;
        g.SmallBlind = 100;
        for (auto& [seat, bank] : stacks) g.RosterBank[RosterPosition(t, seat)] = bank;
    }
    void Script(int button, const std::map<int, std::pair<int, int>>& hole, const std::vector<float>& moves,
                const std::array<int, 5>& board = kBlankBoard) {
        std::vector<float> draws = ShuffleDraws(DeckFor(button, hole, board));
        draws.insert(draws.end(), moves.begin(), moves.end());
        g.rnd.Script(draws);
    }
    int32_t Bank(int seat) const { return g.RosterBank[RosterPosition(t, seat)]; }
    int32_t Chips() const {
        int32_t sum = 0;
        for (int s = 1; s <= kSeats; ++s) sum += Bank(s);
        return sum;
    }
    void ExpectAllDrawsUsed() const {
        EXPECT_EQ(g.rnd.Remaining(), 0u);
        EXPECT_EQ(g.rnd.Overdrawn(), 0);
        EXPECT_TRUE(p.messages.empty());
    }
};

std::map<int, int32_t> FullTable() {
    std::map<int, int32_t> m;
    for (int s = 1; s <= kSeats; ++s) m[s] = 10000;
    return m;
}

TEST(BackgroundHand, FirstHandOfAFullTableButtonOneBlindsTwoThreeSeatFourFirst) {
    Table tb(FullTable(), 7);
    // Seat 4 calls first; if anyone else were first, the stay would be theirs.
    tb.Script(1, {{4, {C(13, 0), C(13, 1)}}, {3, {C(6, 2), C(1, 3)}}},
              {kStay, kNo,                      // seat 4 calls 200
               kNo, kNo, kNo, kNo, kNo,         // seats 5, 6, 7, 8, 1 fold
               kNo,                             // seat 2, the small blind, folds
               kNo, kNo, kNo, kNo, kNo, kNo});  // three streets: seat 3 then 4 check
    tb.g.PlayTableHand(7);
    EXPECT_EQ(tb.g.TableButton[7], 1);
    EXPECT_EQ(tb.g.SmallBlindSeat, 2);
    EXPECT_EQ(tb.g.BigBlindSeat, 3);
    EXPECT_EQ(tb.Bank(2), 9900);
    EXPECT_EQ(tb.Bank(3), 9800);
    EXPECT_EQ(tb.Bank(4), 10300);
    for (int s : {1, 5, 6, 7, 8}) EXPECT_EQ(tb.Bank(s), 10000);
    EXPECT_EQ(tb.g.CardsKnown, 7);
    tb.ExpectAllDrawsUsed();
}

TEST(BackgroundHand, ButtonFindsTheFirstSeatWithChipsAndEmptySeatsStillTakeCards) {
    std::map<int, int32_t> stacks;
    for (int s = 3; s <= 8; ++s) stacks[s] = 10000;
    Table tb(stacks);
    // Button 3, blinds 4 and 5, seat 6 first; everyone folds to the large blind.
    tb.Script(3, {}, {kNo, kNo, kNo, kNo, kNo});
    tb.g.PlayTableHand(2);
    EXPECT_EQ(tb.g.TableButton[2], 3);
    EXPECT_EQ(tb.Bank(4), 9900);
    EXPECT_EQ(tb.Bank(5), 10100);
    // No street was dealt and nothing was ranked.
    EXPECT_EQ(tb.g.CardsKnown, 2);
    for (int s = 1; s <= kSeats; ++s) EXPECT_EQ(tb.g.SeatHandCode[s], kNoHand);
    // Deck[0] went to the seat after the button and round to the button;
    // seats 1 and 2 hold cards though nobody sits there.
    const int order[] = {4, 5, 6, 7, 8, 1, 2, 3};
    for (int p = 0; p < 8; ++p) {
        EXPECT_EQ(tb.g.SeatCards[order[p]][1], tb.g.Deck[p]);
        EXPECT_EQ(tb.g.SeatCards[order[p]][2], tb.g.Deck[p + 8]);
        for (int b = 0; b < 5; ++b) EXPECT_EQ(tb.g.SeatCards[order[p]][3 + b], tb.g.Deck[16 + b]);
    }
    EXPECT_EQ(tb.Chips(), 60000);
    tb.ExpectAllDrawsUsed();
}

TEST(BackgroundHand, TheShuffleRoundsItsDrawsHalfToEven) {
    Table tb(Stacks{{1, 10000}, {2, 10000}});
    // Every draw 0.5: j = round(k / 2). k = 51 gives 25.5 -> 26, k = 1 gives 0.5 -> 0.
    std::vector<float> draws(52, 0.5f);
    draws.push_back(kNo);  // the first to act before the flop has nothing to do; the flop checks
    draws.push_back(kNo);
    draws.push_back(kNo);
    draws.push_back(kNo);
    draws.push_back(kNo);
    draws.push_back(kNo);
    tb.g.rnd.Script(draws);
    tb.g.PlayTableHand(2);
    std::array<int, 52> pool{};
    for (int i = 0; i < 52; ++i) pool[i] = i + 1;
    for (int i = 0; i < 52; ++i) {
        int k = 51 - i;
        int j = static_cast<int>(std::nearbyint(k * 0.5));
        ASSERT_EQ(tb.g.Deck[i], pool[j]) << "card " << i;
        pool[j] = pool[k];
    }
    EXPECT_EQ(tb.g.Deck[0], 27);
    EXPECT_EQ(tb.Chips(), 20000);
    tb.ExpectAllDrawsUsed();
}

TEST(BackgroundHand, TwoPlayersNoBettingBeforeTheFlopAndTheSmallBlindActsFirstAfter) {
    Table tb(Stacks{{3, 10000}, {6, 10000}});
    tb.g.TableButton[2] = 6;  // moves on to seat 3
    tb.Script(3, {{6, {C(13, 0), C(13, 1)}}, {3, {C(6, 2), C(1, 3)}}},
              {kNo, kNo, kNo, kNo, kNo, kNo});  // three streets: seat 6 then 3 check
    tb.g.PlayTableHand(2);
    EXPECT_EQ(tb.g.TableButton[2], 3);
    EXPECT_EQ(tb.g.SmallBlindSeat, 6);
    EXPECT_EQ(tb.g.BigBlindSeat, 3);
    EXPECT_EQ(tb.g.SeatTotalBet[6], 100);  // never made up to the large blind
    EXPECT_EQ(tb.g.SeatTotalBet[3], 200);
    // The small blind wins the check-down: it gets its 100 matched and 100 back to 3.
    EXPECT_EQ(tb.Bank(6), 10100);
    EXPECT_EQ(tb.Bank(3), 9900);
    tb.ExpectAllDrawsUsed();
}

TEST(BackgroundHand, TwoPlayersTheSeatAfterTheButtonOpensTheFlop) {
    Table tb(Stacks{{3, 10000}, {6, 10000}});
    tb.g.TableButton[2] = 6;
    tb.Script(3, {{6, {C(6, 2), C(1, 3)}}, {3, {C(7, 2), C(1, 1)}}},
              {kStay, kSmallest,  // seat 6 bets 5% of 9,900: 495 -> 500
               kNo});             // seat 3 folds
    tb.g.PlayTableHand(2);
    EXPECT_EQ(tb.Bank(6), 10200);
    EXPECT_EQ(tb.Bank(3), 9800);
    EXPECT_EQ(tb.g.CardsKnown, 5);
    tb.ExpectAllDrawsUsed();
}

TEST(BackgroundHand, LonePlayerPlaysNothing) {
    Table tb(Stacks{{5, 12300}});
    tb.g.TableButton[2] = 4;
    tb.g.rnd.Script({});
    tb.g.PlayTableHand(2);
    EXPECT_EQ(tb.g.TableButton[2], 4);
    EXPECT_EQ(tb.Bank(5), 12300);
    EXPECT_EQ(tb.Chips(), 12300);
    tb.ExpectAllDrawsUsed();
}

TEST(BackgroundHand, BlindsAllInStillRunEveryStreet) {
    // Stacks of exactly the blinds: both all in, no betting before the flop,
    // then one check per street by the first seat, which has no chips.
    Table tb(Stacks{{3, 200}, {6, 100}});
    tb.g.TableButton[2] = 6;
    tb.Script(3, {{6, {C(13, 0), C(13, 1)}}, {3, {C(6, 2), C(1, 3)}}}, {kNo, kNo, kNo});
    tb.g.PlayTableHand(2);
    EXPECT_EQ(tb.g.CardsKnown, 7);
    // Seat 6 covered 100 of 200: it takes 200, seat 3 gets 100 back.
    EXPECT_EQ(tb.Bank(6), 200);
    EXPECT_EQ(tb.Bank(3), 100);
    tb.ExpectAllDrawsUsed();
}

TEST(BackgroundHand, ThreeWayAllInShortestStackWinsTheMainPotOnly) {
    Table tb(Stacks{{1, 100}, {2, 100}, {3, 200}});
    // Button 1 (first hand), blinds 2 and 3 all in; the button calls for its last 100.
    tb.Script(1, {{1, {C(13, 0), C(13, 1)}}, {2, {C(6, 2), C(1, 3)}}, {3, {C(7, 0), C(1, 1)}}},
              {kStay, kNo,       // seat 1 calls, short
               kNo, kNo, kNo});  // seat 2, first after the button, checks each street
    tb.g.PlayTableHand(2);
    EXPECT_EQ(tb.Bank(1), 300);
    EXPECT_EQ(tb.Bank(2), 0);
    EXPECT_EQ(tb.Bank(3), 100);
    EXPECT_EQ(tb.g.CardsKnown, 7);
    tb.ExpectAllDrawsUsed();
}

TEST(BackgroundHand, ShortLargeBlindStillMakesCallersPayTheFullBlind) {
    Table tb(Stacks{{1, 10000}, {2, 10000}, {3, 150}});
    tb.Script(1, {{3, {C(13, 0), C(13, 1)}}, {1, {C(6, 2), C(1, 3)}}, {2, {C(7, 0), C(1, 1)}}},
              {kStay, kNo,                      // the button calls 200
               kStay, kNo,                      // the small blind makes it 200
               kNo, kNo, kNo, kNo, kNo, kNo});  // three streets: seats 2 and 1 check
    tb.g.PlayTableHand(2);
    EXPECT_EQ(tb.g.SeatTotalBet[1], 200);
    EXPECT_EQ(tb.g.SeatTotalBet[2], 200);
    EXPECT_EQ(tb.g.SeatTotalBet[3], 150);
    // The all-in blind wins what it covered; 50 goes back to each caller.
    EXPECT_EQ(tb.Bank(3), 450);
    EXPECT_EQ(tb.Bank(1), 9850);
    EXPECT_EQ(tb.Bank(2), 9850);
    tb.ExpectAllDrawsUsed();
}

TEST(BackgroundHand, RaisesAreUnlimitedInTheBackground) {
    Table tb(Stacks{{1, 10000}, {2, 10000}, {3, 10000}, {4, 10000}});
    tb.Script(1,
              {{4, {C(13, 0), C(13, 1)}},
               {3, {C(11, 0), C(11, 1)}},
               {1, {C(6, 2), C(1, 3)}},
               {2, {C(7, 0), C(1, 1)}}},
              {kStay, kStay, kSmallest,         // seat 4 raises to 400
               kNo,                             // seat 1 folds
               kNo,                             // seat 2 folds
               kStay, kStay, kSmallest,         // seat 3 raises to 800
               kStay, kStay, kSmallest,         // seat 4 raises again, to 1,600
               kStay, kNo,                      // seat 3 calls
               kNo, kNo, kNo, kNo, kNo, kNo});  // three streets: 3 then 4 check
    tb.g.PlayTableHand(2);
    EXPECT_EQ(tb.g.SeatTotalBet[4], 1600);
    EXPECT_EQ(tb.g.SeatTotalBet[3], 1600);
    EXPECT_EQ(tb.Bank(4), 11700);
    EXPECT_EQ(tb.Bank(3), 8400);
    EXPECT_EQ(tb.Bank(2), 9900);
    EXPECT_EQ(tb.Bank(1), 10000);
    tb.ExpectAllDrawsUsed();
}

TEST(BackgroundHand, ButtonMovesOnFromHandToHand) {
    Table tb(Stacks{{2, 10000}, {5, 10000}, {7, 10000}});
    tb.g.TableButton[2] = 5;
    // Button 7, blinds 2 and 5; the button acts first and folds, so does seat 2.
    tb.Script(7, {}, {kNo, kNo});
    tb.g.PlayTableHand(2);
    EXPECT_EQ(tb.g.TableButton[2], 7);
    EXPECT_EQ(tb.Bank(2), 9900);
    EXPECT_EQ(tb.Bank(5), 10100);
    EXPECT_EQ(tb.Bank(7), 10000);
    tb.ExpectAllDrawsUsed();
}

TEST(BackgroundRound, AllInSeatHoldingTheHighBetClosesTheRound) {
    ScriptedPlatform p;
    Game g(p);
    // Flop, seats 2 and 5 in; seat 5 all in holds the bet, seat 2 calls and
    // the search runs round to seat 5, which ends the round without a move.
    g.CardsKnown = 5;
    g.SeatInHand[2] = g.SeatInHand[5] = true;
    g.PlayersInHand = 2;
    g.TableBank[2] = 5000;
    g.TableBank[5] = 0;
    g.SeatBet[5] = 700;
    g.Pot = 700;
    g.HighBetValue = 700;
    g.HighBetIndex = 5;
    g.CurrentSeat = 2;
    g.PreviousSeat = 1;
    g.SeatHandCode[2] = 199;
    g.rnd.Script({kStay, kNo});
    g.PlayTableRound(false);
    EXPECT_EQ(g.SeatBet[2], 700);
    EXPECT_EQ(g.TableBank[2], 4300);
    EXPECT_EQ(g.Pot, 1400);
    EXPECT_EQ(g.CurrentSeat, 5);
    EXPECT_EQ(g.PreviousSeat, 2);
    EXPECT_EQ(g.rnd.Remaining(), 0u);
    EXPECT_EQ(g.rnd.Overdrawn(), 0);
}

TEST(BackgroundRound, FoldThatLeavesOneEndsTheRoundOnTheFolder) {
    ScriptedPlatform p;
    Game g(p);
    g.CardsKnown = 2;
    g.SmallBlind = 100;
    for (int s : {4, 8}) {
        g.SeatInHand[s] = true;
        g.TableBank[s] = 5000;
    }
    g.PlayersInHand = 2;
    g.SeatBet[8] = 400;
    g.Pot = 400;
    g.HighBetValue = 400;
    g.HighBetIndex = 8;
    g.CurrentSeat = 4;
    g.StartingHandClass[4] = 8;
    g.rnd.Script({kNo});
    g.PlayTableRound(true);
    EXPECT_FALSE(g.SeatInHand[4]);
    EXPECT_EQ(g.PlayersInHand, 1);
    EXPECT_EQ(g.CurrentSeat, 4);
    EXPECT_EQ(g.rnd.Remaining(), 0u);
}

TEST(BackgroundRound, RunawayRoundStopsAfterAThousandTurns) {
    ScriptedPlatform p;
    Game g(p);
    // A state the game never reaches: nobody holds the high bet and every
    // seat checks, so only the bound of 1,000 turns ends the round.
    g.CardsKnown = 5;
    g.SeatInHand[1] = g.SeatInHand[2] = true;
    g.PlayersInHand = 2;
    g.TableBank[1] = g.TableBank[2] = 1000;
    g.SeatHandCode[1] = g.SeatHandCode[2] = 199;
    g.HighBetIndex = 7;
    g.CurrentSeat = 1;
    g.rnd.Script(std::vector<float>(1000, kNo));
    g.PlayTableRound(false);
    EXPECT_EQ(g.rnd.Remaining(), 0u);
    EXPECT_EQ(g.rnd.Overdrawn(), 0);
}

TEST(BackgroundTables, EveryTableFromTwoUpPlaysOnce) {
    ScriptedPlatform p;
    Game g(p);
    g.TournamentSize = 80;
    g.SmallBlind = 100;
    // Tables 2 and 3 hold one player each: they sit out and draw nothing.
    // Table 4 holds two; only its hand draws.
    g.RosterBank[1] = 10000;
    g.RosterBank[RosterPosition(2, 5)] = 10000;
    g.RosterBank[RosterPosition(3, 1)] = 10000;
    g.RosterBank[RosterPosition(4, 1)] = 10000;
    g.RosterBank[RosterPosition(4, 2)] = 10000;
    g.TablesInPlay = 4;
    std::vector<float> draws(52, 0.0f);
    for (int i = 0; i < 6; ++i) draws.push_back(kNo);
    g.rnd.Script(draws);
    g.PlayOtherTables();
    EXPECT_EQ(g.TableButton[2], 0);
    EXPECT_EQ(g.TableButton[3], 0);
    EXPECT_EQ(g.TableButton[4], 1);
    EXPECT_EQ(g.RosterBank[RosterPosition(4, 1)] + g.RosterBank[RosterPosition(4, 2)], 20000);
    EXPECT_EQ(g.rnd.Remaining(), 0u);
    EXPECT_EQ(g.rnd.Overdrawn(), 0);

    g.TablesInPlay = 1;
    g.rnd.Script({});
    g.PlayOtherTables();
    EXPECT_EQ(g.TableButton[4], 1);
    EXPECT_EQ(g.rnd.Overdrawn(), 0);
}

}  // namespace
}  // namespace holdem
