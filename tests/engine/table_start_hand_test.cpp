#include <gtest/gtest.h>

#include "tests/support/table_builder.h"

namespace holdem {
namespace {

using test::TableBuilder;
using test::TableGame;

std::string Positions(const Game& g) {
    auto n = [](int v) { return std::to_string(v); };
    return "B" + n(g.ButtonSeat) + " S" + n(g.SmallBlindSeat) + " L" + n(g.BigBlindSeat) + " P" +
           n(g.PreviousSeat) + " C" + n(g.CurrentSeat) + " N" + n(g.PlayersInHand) + " pot " +
           g.view.lblPot.text + " H" + n(g.HighBetIndex) + "/" + n(g.HighBetValue);
}

// Each seat's stack as shown ("-" when hidden), and its first hole card.
std::string Stacks(const Game& g) {
    std::string all;
    for (int s = 1; s <= kSeats; ++s)
        all += (s > 1 ? " " : "") + (g.view.lblBank[s].visible ? g.view.lblBank[s].text : "-");
    return all;
}
std::string FirstCards(const Game& g) {
    std::string all;
    for (int s = 1; s <= kSeats; ++s) all += (s > 1 ? " " : "") + std::to_string(g.SeatCards[s][1]);
    return all;
}

struct StartCase {
    const char* name;
    std::array<int32_t, 8> banks;
    int button;
    int32_t blind;
    const char *positions, *bets, *stacks, *firstCards;
};

// The all-zero shuffle deals 1, 52, 51, ... from the seat after the button on,
// empty or not.
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

TEST(StartHand, ButtonBlindsFirstToActAndDeal) {
    for (const StartCase& c : kStarts) {
        SCOPED_TRACE(c.name);
        TableGame t;
        TableBuilder table;
        for (int s = 1; s <= kSeats; ++s) table.Bank(s, c.banks[s - 1]);
        t.Start(table.Button(c.button).SmallBlind(c.blind));
        const Game& g = t.g;
        EXPECT_EQ(Positions(g), c.positions);
        EXPECT_EQ(test::Bets(g), c.bets);
        EXPECT_EQ(Stacks(g), c.stacks);
        EXPECT_EQ(FirstCards(g), c.firstCards);
        for (int s = 1; s <= kSeats; ++s) {
            EXPECT_EQ(g.SeatInHand[s], c.banks[s - 1] > 0) << s;
            EXPECT_EQ(g.view.lblName[s].visible, g.SeatInHand[s]) << s;
            EXPECT_EQ(g.view.lblBankDollarSign[s].visible, g.SeatInHand[s]) << s;
            EXPECT_EQ(g.view.iButton[s].visible, s == g.ButtonSeat) << s;
            EXPECT_EQ(g.RosterBank[s], c.banks[s - 1]) << s;  // the roster waits for the end of the hand
        }
        std::string why;
        EXPECT_TRUE(g.state_is_ok(&why)) << why;
        EXPECT_TRUE(t.DrawsUsedUp());
        EXPECT_EQ(g.RunningTimer(), TimerDealHole);
    }
}

TEST(StartHand, TheDealButtonClearsWhatTheLastHandLeft) {
    TableGame t;
    Game& g = t.g;
    View& v = g.view;
    g.SeatRaised[4] = g.HandIsOver = true;
    g.SeatTotalBet[5] = 700;
    g.WinnerSeats[3] = 1;
    g.SeatHandName[2] = "Two Pair";
    g.HandsPlayed = 4;
    g.SeatCards[3][0] = 9;
    v.lblPaid[2].visible = v.iArrow[6].visible = v.icard[5].visible = v.icard[19].visible = true;
    v.cmdDeal.visible = v.cmdStandings.visible = v.cmdFloor.visible = v.mnuSave.enabled =
        v.mnuSaveAs.enabled = true;
    TableBuilder().ApplyTo(g);
    g.rnd.Script(std::vector<float>(52, 0.0f));
    g.cmdDeal_Click();

    EXPECT_EQ(g.HandsPlayed, 5);
    EXPECT_EQ(g.Street, 1);
    EXPECT_FALSE(g.HandIsOver);
    for (int s = 1; s <= 8; ++s) {
        SCOPED_TRACE(s);
        EXPECT_FALSE(g.SeatRaised[s] || g.SeatTotalBet[s] || g.WinnerSeats[s] || v.lblPaid[s].visible ||
                     v.iArrow[s].visible);
        EXPECT_EQ(g.StartingHandClass[s], 9);
        EXPECT_EQ(g.SeatHandCode[s], 200);
        EXPECT_EQ(g.SeatHandName[s], "");
        EXPECT_EQ(g.SeatCards[s][0], 0);
        EXPECT_TRUE(v.lblBet[s].visible);
        EXPECT_EQ(v.lblName[s].text, s == 1 ? "You" : "Player " + std::to_string(s));
    }
    for (int i = 1; i <= 21; ++i) EXPECT_FALSE(v.icard[i].visible) << i;
    EXPECT_FALSE(v.mnuSave.enabled || v.mnuSaveAs.enabled || v.cmdDeal.visible || v.cmdStandings.visible ||
                 v.cmdFloor.visible);
    EXPECT_TRUE(v.lblBlind.visible && v.lblGoodLuck.visible && v.lblPot.visible && v.lblPotLabel.visible);
    EXPECT_EQ(v.lblHBI.text + " " + v.lblHBV.text + " " + v.lblPrevious.text, "3 200 3");
    EXPECT_FALSE(v.lblHBI.visible);
    EXPECT_EQ(g.RunningTimer(), TimerDealHole);
}

TEST(StartHand, AllZeroShuffleLaysOutSecondCardsBoardAndPictures) {
    TableGame t;
    t.Start(TableBuilder().Button(8));
    const Game& g = t.g;
    for (int i = 0; i < 52; ++i) EXPECT_EQ(g.Deck[i], i == 0 ? 1 : 53 - i) << i;
    EXPECT_EQ(g.SeatCards[2][2], 45);
    EXPECT_EQ(g.SeatCards[1][2], 38);
    for (int s = 1; s <= 8; ++s)
        for (int k = 3; k <= 7; ++k) EXPECT_EQ(g.SeatCards[s][k], 40 - k) << s << "/" << k;
    // Faces only for the user's cards and the board.
    for (int i = 1; i <= 21; ++i)
        EXPECT_EQ(g.view.icard[i].picture, i == 1 ? 46 : i == 9 ? 38 : i > 16 ? 54 - i : 0) << i;
}

// 51 * 0.5 = 25.5 rounds to 26, not 25; 50 * 0.25 = 12.5 to the even 12; 5 * 0.7f
// is 3.5 exactly in single precision (3.49999994 in double) and rounds to 4.
TEST(StartHand, ShuffleRoundsTheSinglePrecisionProductHalfToEven) {
    TableGame t;
    TableBuilder().ApplyTo(t.g);
    std::vector<float> draws(52, 0.0f);
    draws[0] = 0.5f;
    draws[1] = 0.25f;
    draws[46] = 0.7f;
    t.g.rnd.Script(draws);
    t.g.StartHand();
    std::vector<int> expected = {27, 13, 1};
    for (int c = 50; c >= 28; --c) expected.push_back(c);
    expected.push_back(52);
    for (int c = 26; c >= 14; --c) expected.push_back(c);
    expected.push_back(51);
    for (int c : {12, 11, 10, 9, 8, 5, 7, 6, 4, 3, 2}) expected.push_back(c);
    EXPECT_EQ(std::vector<int>(t.g.Deck.begin(), t.g.Deck.end()), expected);
    EXPECT_TRUE(t.DrawsUsedUp());
}

TEST(TableBuilder, ShuffleDrawsDealTheChosenCards) {
    TableGame t;
    TableBuilder().Button(5).ApplyTo(t.g);
    std::array<std::pair<int, int>, 9> holes{};
    holes[1] = {13, 26};
    holes[4] = {2, 15};
    t.g.rnd.Script(test::ShuffleDrawsFor(test::DeckFor(6, holes, {40, 41, 42, 43, 44})));
    t.g.StartHand();
    const auto& c = t.g.SeatCards;
    EXPECT_EQ(std::vector<int>({c[1][1], c[1][2], c[4][1], c[4][2], c[7][3], c[7][7]}),
              std::vector<int>({13, 26, 2, 15, 40, 44}));
    EXPECT_TRUE(t.DrawsUsedUp());
}

}  // namespace
}  // namespace holdem
