#include <gtest/gtest.h>

#include "tests/support/table_builder.h"

namespace holdem {
namespace {

using test::Join;
using test::TableBuilder;
using test::TableGame;

struct StartCase {
    const char* name;
    std::array<int32_t, 8> banks;
    int button;
    int32_t blind;
    const char*
        positions;       // button, small and large blind, previous and current seat, players, pot, high bet
    const char* bets;    // lblBet(1..8)
    const char* stacks;  // lblBank(1..8), "-" when hidden
    const char* firstCards;  // the all-zero shuffle deals 1, 52, 51, ... from the seat after the button on
};

// clang-format off
const StartCase kStarts[] = {
    {"eight", {10000, 10000, 10000, 10000, 10000, 10000, 10000, 10000}, 8, 100, "B1 S2 L3 P3 C4 N8 pot 300 H3/200",
     "|Small Blind: $100|Large Blind: $200|||||", "10,000 9,900 9,800 10,000 10,000 10,000 10,000 10,000", "46 1 52 51 50 49 48 47"},
    {"two: the button is the large blind, the small blind acts", {5000, 0, 0, 0, 3000, 0, 0, 0}, 1, 100,
     "B5 S1 L5 P5 C1 N2 pot 300 H5/200", "Small Blind: $100||||Large Blind: $200|||", "4,900 - - - 2,800 - - -", "50 49 48 47 46 1 52 51"},
    {"three: the button acts", {0, 4000, 0, 4000, 0, 0, 4000, 0}, 8, 100, "B2 S4 L7 P7 C2 N3 pot 300 H7/200",
     "|||Small Blind: $100|||Large Blind: $200|", "- 4,000 - 3,900 - - 3,800 -", "47 46 1 52 51 50 49 48"},
    {"four, across the wrap", {4000, 0, 4000, 0, 0, 4000, 0, 4000}, 3, 100, "B6 S8 L1 P1 C3 N4 pot 300 H1/200",
     "Large Blind: $200|||||||Small Blind: $100", "3,800 - 4,000 - - 4,000 - 3,900", "51 50 49 48 47 46 1 52"},
    {"empty seats hold no button or blind", {10000, 0, 0, 10000, 0, 10000, 10000, 10000}, 1, 100, "B4 S6 L7 P7 C8 N5 pot 300 H7/200",
     "|||||Small Blind: $100|Large Blind: $200|", "10,000 - - 10,000 - 9,900 9,800 10,000", "49 48 47 46 1 52 51 50"},
    {"short blinds all in, the full blind stands", {10000, 60, 150, 10000, 10000, 10000, 10000, 10000}, 8, 100,
     "B1 S2 L3 P3 C4 N8 pot 210 H3/200", "|Small Blind: $60 All In|Large Blind: $150 All In|||||",
     "10,000 0 0 10,000 10,000 10,000 10,000 10,000", "46 1 52 51 50 49 48 47"},
    {"stacks of exactly the blind", {10000, 250, 500, 10000, 10000, 10000, 10000, 10000}, 8, 250, "B1 S2 L3 P3 C4 N8 pot 750 H3/500",
     "|Small Blind: $250|Large Blind: $500|||||", "10,000 0 0 10,000 10,000 10,000 10,000 10,000", "46 1 52 51 50 49 48 47"},
    {"money format", {10000, 2000000, 2000000, 10000, 10000, 10000, 10000, 10000}, 8, 25000, "B1 S2 L3 P3 C4 N8 pot 75,000 H3/50000",
     "|Small Blind: $25,000|Large Blind: $50,000|||||", "10,000 1,975,000 1,950,000 10,000 10,000 10,000 10,000 10,000",
     "46 1 52 51 50 49 48 47"},
};
// clang-format on

// What the last hand left on the table.
void LeaveALastHand(Game& g) {
    View& v = g.view;
    g.HandsPlayed = 4;
    for (int s = 1; s <= kSeats; ++s) {
        g.SeatRaised[s] = g.HandIsOver = v.lblPaid[s].visible = v.iArrow[s].visible = v.iButton[s].visible =
            true;
        g.SeatTotalBet[s] = g.WinnerSeats[s] = g.SeatCards[s][0] = g.SeatHandCode[s] =
            g.StartingHandClass[s] = 7;
        g.SeatHandName[s] = "Two Pair";
        v.lblBet[s].visible = false;
    }
    for (int i = 1; i <= 21; ++i) v.icard[i].visible = true;
    for (int i = 1; i <= 4; ++i) v.cmdPlay[i].visible = true;
    v.cmdDeal.visible = v.cmdStandings.visible = v.cmdFloor.visible = v.mnuSave.enabled =
        v.mnuSaveAs.enabled = true;
}

TEST(StartHand, TheDealButtonSeatsResetsAndPostsTheBlinds) {
    for (const StartCase& c : kStarts) {
        SCOPED_TRACE(c.name);
        TableGame t;
        Game& g = t.g;
        const View& v = g.view;
        TableBuilder table;
        for (int s = 1; s <= kSeats; ++s) table.Bank(s, c.banks[s - 1]);
        table.Button(c.button).SmallBlind(c.blind).ApplyTo(g);
        LeaveALastHand(g);
        g.rnd.Script(std::vector<float>(52, 0.0f));
        g.cmdDeal_Click();

        auto n = [](int x) { return std::to_string(x); };
        EXPECT_EQ("B" + n(g.ButtonSeat) + " S" + n(g.SmallBlindSeat) + " L" + n(g.BigBlindSeat) + " P" +
                      n(g.PreviousSeat) + " C" + n(g.CurrentSeat) + " N" + n(g.PlayersInHand) + " pot " +
                      v.lblPot.text + " H" + n(g.HighBetIndex) + "/" + n(g.HighBetValue),
                  c.positions);
        EXPECT_EQ(test::Bets(g), c.bets);
        EXPECT_EQ(Join([&](int s) { return v.lblBank[s].visible ? v.lblBank[s].text : "-"; }), c.stacks);
        EXPECT_EQ(Join([&](int s) { return n(g.SeatCards[s][1]); }), c.firstCards);
        for (int s = 1; s <= kSeats; ++s) {
            SCOPED_TRACE(s);
            EXPECT_EQ(g.SeatInHand[s], c.banks[s - 1] > 0);
            EXPECT_EQ(v.lblName[s].visible && v.lblBankDollarSign[s].visible, g.SeatInHand[s]);
            EXPECT_EQ(v.lblName[s].text, s == 1 ? "You" : "Player " + n(s));
            EXPECT_EQ(v.iButton[s].visible, s == g.ButtonSeat);
            EXPECT_EQ(g.RosterBank[s], c.banks[s - 1]);  // the roster waits for the end of the hand
            EXPECT_FALSE(g.SeatRaised[s] || g.SeatTotalBet[s] || g.WinnerSeats[s] || g.SeatCards[s][0] ||
                         v.lblPaid[s].visible || v.iArrow[s].visible);
            EXPECT_EQ(
                std::tuple(g.StartingHandClass[s], g.SeatHandCode[s], g.SeatHandName[s], v.lblBet[s].visible),
                std::tuple(9, 200, "", true));
        }
        // The all-zero deck: second cards eight on from the first, the board 37..33;
        // faces only for the user's cards and the board.
        for (int i = 0; i < 52; ++i) EXPECT_EQ(g.Deck[i], i == 0 ? 1 : 53 - i) << i;
        for (int s = 1; s <= kSeats; ++s)
            EXPECT_EQ(Join([&](int k) { return n(g.SeatCards[s][k]); }, " ", 2, 7),
                      (g.SeatCards[s][1] == 1 ? "45" : n(g.SeatCards[s][1] - 8)) + " 37 36 35 34 33");
        for (int i = 1; i <= 21; ++i)
            EXPECT_EQ(g.view.icard[i].picture, i == 1   ? g.SeatCards[1][1]
                                               : i == 9 ? g.SeatCards[1][2]
                                               : i > 16 ? 54 - i
                                                        : 0)
                << i;
        EXPECT_EQ(test::Cards(g, 1, 21), "");
        EXPECT_FALSE(v.mnuSave.enabled || v.mnuSaveAs.enabled || v.cmdDeal.visible ||
                     v.cmdStandings.visible || v.cmdFloor.visible || g.HandIsOver || v.lblHBI.visible);
        EXPECT_TRUE(v.lblBlind.visible && v.lblGoodLuck.visible && v.lblPot.visible && v.lblPotLabel.visible);
        EXPECT_EQ(std::tuple(g.HandsPlayed, g.Street, test::Buttons(g)), std::tuple(5, 1, "----"));
        EXPECT_EQ(v.lblHBI.text + " " + v.lblHBV.text + " " + v.lblPrevious.text,
                  n(g.HighBetIndex) + " " + n(g.HighBetValue) + " " + n(g.PreviousSeat));
        std::string why;
        EXPECT_TRUE(g.state_is_ok(&why)) << why;
        EXPECT_TRUE(t.DrawsUsedUp());
        EXPECT_EQ(g.RunningTimer(), TimerDealHole);
    }
}

// 51 * 0.5 = 25.5 rounds to 26, not 25; 50 * 0.25 = 12.5 to the even 12; 5 * 0.7f
// is 3.5 exactly in single precision (3.49999994 in double) and rounds to 4.
TEST(StartHand, ShuffleRoundsTheSinglePrecisionProductHalfToEven) {
    TableGame t;
    std::vector<float> draws(52, 0.0f);
    draws[0] = 0.5f;
    draws[1] = 0.25f;
    draws[46] = 0.7f;
    TableBuilder().ApplyTo(t.g);
    t.g.rnd.Script(draws);
    t.g.StartHand();
    std::vector<int> expected = {27, 13, 1};
    for (int c = 50; c >= 28; --c) expected.push_back(c);
    expected.push_back(52);
    for (int c = 26; c >= 14; --c) expected.push_back(c);
    for (int c : {51, 12, 11, 10, 9, 8, 5, 7, 6, 4, 3, 2}) expected.push_back(c);
    EXPECT_EQ(std::vector<int>(t.g.Deck.begin(), t.g.Deck.end()), expected);
    EXPECT_TRUE(t.DrawsUsedUp());
}

TEST(TableBuilder, ShuffleDrawsDealTheChosenCards) {
    TableGame t;
    std::array<std::pair<int, int>, 9> holes{};
    holes[1] = {13, 26};
    holes[4] = {2, 15};
    TableBuilder().Button(5).ApplyTo(t.g);
    t.g.rnd.Script(test::ShuffleDrawsFor(test::DeckFor(6, holes, {40, 41, 42, 43, 44})));
    t.g.StartHand();
    const auto& c = t.g.SeatCards;
    EXPECT_EQ(std::vector<int>({c[1][1], c[1][2], c[4][1], c[4][2], c[7][3], c[7][7]}),
              std::vector<int>({13, 26, 2, 15, 40, 44}));
    EXPECT_TRUE(t.DrawsUsedUp());
}

}  // namespace
}  // namespace holdem
