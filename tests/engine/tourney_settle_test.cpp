#include <gtest/gtest.h>

#include <map>
#include <string>

#include "engine/game_state.h"
#include "tests/support/scripted_platform.h"

namespace holdem {
namespace {

using test::ScriptedPlatform;

struct Stake {
    int32_t onEarlierStreets;
    int32_t onThisStreet;
    bool in;
    int16_t code;
};

// A background table at the end of a hand: stacks emptied into the stakes,
// codes set, bets of the last street still in SeatBet. Results are what each
// seat gets, read from its roster position.
struct Settle {
    ScriptedPlatform p;
    Game g{p};
    int t = 3;

    explicit Settle(const std::map<int, Stake>& seats) {
        for (int s = 1; s <= kSeats; ++s) {
            g.TableBank[s] = 0;
            g.SeatHandCode[s] = kNoHand;
            g.RosterBank[RosterPosition(t, s)] = -1;
        }
        for (const auto& [seat, st] : seats) {
            g.SeatTotalBet[seat] = st.onEarlierStreets;
            g.SeatBet[seat] = st.onThisStreet;
            g.SeatInHand[seat] = st.in;
            g.SeatHandCode[seat] = st.code;
            g.Pot += st.onEarlierStreets + st.onThisStreet;
            if (st.in) ++g.PlayersInHand;
        }
        g.SettleTableHand(t);
    }
    int32_t Gets(int seat) const { return g.RosterBank[RosterPosition(t, seat)]; }
};

TEST(BackgroundSettle, OnePotNoSidePotForTheSecondBest) {
    // A all in with 1,000 and best, B and C 5,000 each, B second.
    Settle st({{1, {1000, 0, true, 100}}, {2, {3000, 2000, true, 120}}, {3, {3000, 2000, true, 150}}});
    EXPECT_EQ(st.Gets(1), 3000);
    EXPECT_EQ(st.Gets(2), 4000);
    EXPECT_EQ(st.Gets(3), 4000);
    EXPECT_EQ(st.g.WinnerSeats[1], 1);
    EXPECT_TRUE(st.p.messages.empty());
}

TEST(BackgroundSettle, EqualCodesShareEvenlyWhateverTheStakes) {
    Settle st({{1, {1000, 0, true, 139}}, {2, {5000, 0, true, 139}}});
    EXPECT_EQ(st.Gets(1), 3000);
    EXPECT_EQ(st.Gets(2), 3000);
    EXPECT_EQ(st.g.WinnerSeats[1], 1);
    EXPECT_EQ(st.g.WinnerSeats[2], 2);
}

TEST(BackgroundSettle, KickersAreNeverLookedAt) {
    ScriptedPlatform p;
    Game g(p);
    g.SeatTotalBet[1] = 1000;
    g.SeatTotalBet[2] = 5000;
    g.SeatInHand[1] = g.SeatInHand[2] = true;
    g.SeatHandCode[1] = g.SeatHandCode[2] = 139;        // pair of Aces each
    const int16_t a[8] = {0, 13, 13, 12, 7, 4, 3, 1};   // Aces, King, Eight, Five
    const int16_t b[8] = {0, 13, 13, 12, 11, 9, 3, 1};  // Aces, King, Queen, Ten: better
    for (int k = 0; k < 8; ++k) {
        g.SeatBestRanks[1][k] = a[k];
        g.SeatBestRanks[2][k] = b[k];
    }
    g.Pot = 6000;
    g.SettleTableHand(2);
    EXPECT_EQ(g.RosterBank[RosterPosition(2, 1)], 3000);
    EXPECT_EQ(g.RosterBank[RosterPosition(2, 2)], 3000);
}

TEST(BackgroundSettle, FoldedStakeAboveTheWinnerStaysInThePot) {
    // B bets 5,000, A calls all in with 1,000 and wins, C folded after 300.
    Settle st({{1, {0, 1000, true, 60}}, {2, {0, 5000, true, 120}}, {3, {300, 0, false, 200}}});
    EXPECT_EQ(st.Gets(1), 2300);
    EXPECT_EQ(st.Gets(2), 4000);
    EXPECT_EQ(st.Gets(3), 0);
    EXPECT_TRUE(st.p.messages.empty());
}

TEST(BackgroundSettle, FoldedSeatAboveTopStakeGetsNothingBack) {
    Settle st({{2, {0, 500, true, 140}}, {5, {1500, 0, false, 200}}, {6, {0, 500, true, 150}}});
    EXPECT_EQ(st.Gets(2), 2500);
    EXPECT_EQ(st.Gets(5), 0);
    EXPECT_EQ(st.Gets(6), 0);
}

TEST(BackgroundSettle, ThreeTiedSeatsOddHundredsToTheLowestSeats) {
    struct Case {
        int32_t stakeEach, folded;
        int32_t first, second, third;
    };
    for (const Case& c :
         {Case{200, 100, 300, 200, 200}, Case{200, 200, 300, 300, 200}, Case{300, 100, 400, 300, 300}}) {
        Settle st({{2, {c.stakeEach, 0, true, 199}},
                   {4, {c.stakeEach, 0, true, 199}},
                   {5, {c.folded, 0, false, 200}},
                   {7, {0, c.stakeEach, true, 199}}});
        EXPECT_EQ(st.Gets(2), c.first) << "pot " << 3 * c.stakeEach + c.folded;
        EXPECT_EQ(st.Gets(4), c.second);
        EXPECT_EQ(st.Gets(7), c.third);
        EXPECT_EQ(st.Gets(5), 0);
        EXPECT_TRUE(st.p.messages.empty());
    }
}

TEST(BackgroundSettle, TiedWinnersGetTheirExcessOnlyAboveTheHighestWinner) {
    // Best hand all in for the least; the two others level above it get their
    // excess back whichever of them was better.
    Settle st({{1, {0, 1000, true, 50}}, {2, {0, 4000, true, 199}}, {3, {0, 4000, true, 120}}});
    EXPECT_EQ(st.Gets(1), 3000);
    EXPECT_EQ(st.Gets(2), 3000);
    EXPECT_EQ(st.Gets(3), 3000);
    // Tied winners with unequal stakes: the smaller stake gains from the larger.
    Settle tie({{1, {0, 1000, true, 37}}, {2, {0, 3000, true, 37}}, {3, {0, 4000, true, 120}}});
    EXPECT_EQ(tie.Gets(3), 1000);
    EXPECT_EQ(tie.Gets(1), 3500);
    EXPECT_EQ(tie.Gets(2), 3500);
}

TEST(BackgroundSettle, TwoPlayerCheckDown) {
    // Small blind 100 at seat 6, large blind 200 at seat 3, nothing more.
    Settle small({{3, {200, 0, true, 199}}, {6, {100, 0, true, 150}}});
    EXPECT_EQ(small.Gets(6), 200);
    EXPECT_EQ(small.Gets(3), 100);
    Settle large({{3, {200, 0, true, 140}}, {6, {100, 0, true, 150}}});
    EXPECT_EQ(large.Gets(3), 300);
    EXPECT_EQ(large.Gets(6), 0);
}

TEST(BackgroundSettle, LastSeatStandingTakesEverythingWithItsUncalledBet) {
    Settle st({{2, {200, 0, false, 200}}, {5, {200, 1300, true, 200}}, {8, {400, 0, false, 200}}});
    EXPECT_EQ(st.Gets(5), 2100);
    EXPECT_EQ(st.g.SeatTotalBet[5], 1500);
    for (int s : {1, 2, 3, 4, 6, 7, 8}) EXPECT_EQ(st.Gets(s), 0);
    EXPECT_TRUE(st.p.messages.empty());
}

TEST(BackgroundSettle, StacksLeftAtTheTableAreWrittenBack) {
    ScriptedPlatform p;
    Game g(p);
    for (int s = 1; s <= kSeats; ++s) g.TableBank[s] = 1000 * s;
    g.SeatInHand[4] = true;
    g.SeatTotalBet[4] = 300;
    g.SeatTotalBet[7] = 300;
    g.Pot = 600;
    g.SettleTableHand(9);
    for (int s = 1; s <= kSeats; ++s)
        EXPECT_EQ(g.RosterBank[RosterPosition(9, s)], 1000 * s + (s == 4 ? 600 : 0));
    EXPECT_EQ(g.RosterBank[RosterPosition(8, 8)], 0);
    EXPECT_EQ(g.RosterBank[RosterPosition(10, 1)], 0);
}

TEST(BackgroundSettle, ClosingCheckReportsAPotThatDoesNotPayOut) {
    // A pot of 1 between two seats cannot be paid in hundreds: the message
    // tells the figures and the roster is written all the same.
    ScriptedPlatform p;
    Game g(p);
    g.SeatInHand[1] = g.SeatInHand[2] = true;
    g.SeatHandCode[1] = g.SeatHandCode[2] = 199;
    g.TableBank[3] = 700;
    g.Pot = 1;
    g.SettleTableHand(2);
    ASSERT_EQ(p.messages.size(), 1u);
    EXPECT_EQ(p.messages[0].text, "Total Pot: 1   Total Paid: 0   Paid Back: 0   Winners: 2");
    EXPECT_EQ(p.messages[0].title, "");
    EXPECT_EQ(p.messages[0].icon, MsgIcon::None);
    EXPECT_EQ(p.messages[0].buttons, MsgButtons::OK);
    EXPECT_EQ(g.RosterBank[RosterPosition(2, 3)], 700);
}

}  // namespace
}  // namespace holdem
