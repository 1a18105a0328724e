#include <gtest/gtest.h>

#include <cctype>
#include <ostream>

#include "tests/support/hand_builder.h"
#include "tests/support/scripted_platform.h"
#include "tests/support/table_builder.h"

namespace holdem {
namespace {

using test::CardOf;
using test::ScriptedPlatform;
using Chances = std::pair<int, int>;

TEST(Opponent, ClassOfTheHoleCardsInTheirOrder) {
    struct Row {
        const char *first, *second;
        int cls;
    };
    // A Ten counts as low; "Ah" is card 13 and "2s" card 14, the edge of two blocks.
    const Row rows[] = {{"Ah", "As", 1}, {"9d", "9c", 1}, {"Td", "Tc", 1}, {"8h", "8s", 2}, {"2h", "2c", 2},
                        {"2s", "2d", 2}, {"Js", "Qs", 3}, {"Ac", "Kc", 3}, {"Kh", "Jd", 4}, {"Ah", "4s", 5},
                        {"Ah", "4h", 5}, {"Ah", "2s", 5}, {"As", "Td", 5}, {"4h", "Ah", 5}, {"Td", "Jd", 5},
                        {"4s", "Ah", 6}, {"Td", "As", 6}, {"Ts", "9s", 7}, {"7s", "2s", 7}, {"Ts", "9d", 8}};
    ScriptedPlatform p;
    Game g(p);
    int seat = 0;
    for (const Row& r : rows) {
        seat = seat % kSeats + 1;  // every seat is classified, in the hand or not
        g.SeatCards[seat][1] = CardOf(r.first);
        g.SeatCards[seat][2] = CardOf(r.second);
        g.StartingHandClass[seat] = 9;
        g.ClassifyHoleCards();
        EXPECT_EQ(g.StartingHandClass[seat], r.cls) << r.first << " " << r.second;
    }
}

struct RateHandTest : ::testing::Test {
    // Rates seat 3 holding `first` and `second` with the made hand `code` on the turn.
    Chances Rate(int code, const char* first = "2c", const char* second = "3d") {
        g.CardsKnown = 6;
        g.SeatCards[3][1] = CardOf(first);
        g.SeatCards[3][2] = CardOf(second);
        g.SeatHandCode[3] = static_cast<int16_t>(code);
        g.RateHand(3);
        return {g.CallChance, g.RaiseChance};
    }
    ScriptedPlatform p;
    Game g{p};
};

TEST_F(RateHandTest, BeforeTheFlopTheClassAloneDecides) {
    const Chances expected[9] = {{},      {90, 25}, {75, 20}, {65, 10}, {55, 5},
                                 {50, 5}, {40, 5},  {30, 0},  {10, 0}};
    g.CardsKnown = 2;
    g.SeatHandCode[6] = 1;
    for (int cls = 1; cls <= 8; ++cls) {
        g.StartingHandClass[6] = static_cast<int16_t>(cls);
        g.RateHand(6);
        EXPECT_EQ(Chances(g.CallChance, g.RaiseChance), expected[cls]) << cls;
    }
}

TEST_F(RateHandTest, MadeHandsAndTheHoleCardsInThem) {
    struct Row {
        int code;
        const char *first, *second;
        Chances chances;
    };
    // clang-format off
    const Row rows[] = {
        {1, "2c", "3d", {100, 75}}, {27, "2c", "3d", {100, 75}}, {28, "2c", "3d", {95, 60}}, {31, "2c", "3d", {95, 60}},
        {32, "2c", "3d", {90, 50}}, {36, "2c", "3d", {90, 50}}, {37, "2c", "3d", {80, 40}}, {37, "Ah", "Kh", {80, 40}},
        {38, "2c", "3d", {75, 35}}, {41, "2c", "3d", {75, 35}}, {42, "2c", "3d", {70, 30}}, {47, "2c", "3d", {70, 30}},
        {152, "2c", "3d", {70, 20}}, {153, "2c", "3d", {65, 15}}, {154, "2c", "3d", {50, 10}}, {162, "2c", "3d", {50, 10}},
        {163, "2c", "3d", {10, 0}}, {199, "2c", "3d", {10, 0}}, {200, "2c", "3d", {10, 0}},
        // Three of a kind: h of the rank's hole cards.
        {48, "Ah", "As", {90, 40}}, {48, "Ah", "9s", {80, 30}}, {48, "Kh", "9s", {60, 15}}, {52, "5h", "Ts", {80, 30}},
        {53, "9h", "9s", {85, 35}}, {55, "7d", "2s", {70, 25}}, {55, "8d", "2s", {50, 10}}, {56, "6d", "2s", {65, 25}},
        {60, "2d", "2s", {80, 30}},
        // Two pair: h summed over both ranks.
        {61, "Ah", "Ks", {80, 30}}, {61, "Kh", "9s", {65, 25}}, {61, "Qh", "9s", {50, 10}}, {138, "3h", "3s", {80, 30}},
        // One pair; one King in the hole rates below one Queen.
        {139, "Ah", "As", {95, 45}}, {139, "Ah", "2s", {85, 30}}, {139, "Kh", "2s", {50, 10}}, {140, "Kh", "2s", {80, 30}},
        {140, "Kh", "Ks", {95, 45}}, {141, "Qh", "2s", {85, 30}}, {143, "Th", "Ts", {90, 40}}, {143, "9h", "9s", {50, 10}},
        {144, "2h", "9s", {70, 20}}, {146, "Ah", "Ks", {40, 10}}, {147, "6h", "6d", {70, 30}}, {151, "2h", "Ad", {60, 20}},
        {151, "3h", "Ad", {40, 10}},
    };
    // clang-format on
    for (const Row& r : rows)
        EXPECT_EQ(Rate(r.code, r.first, r.second), r.chances) << r.code << " " << r.first << r.second;
}

TEST_F(RateHandTest, EveryTwoPairCodeCountsItsOwnTwoRanks) {
    const char* rank = "23456789TJQKA";  // rank value r is rank[r - 1]
    int code = 61;
    for (int high = 13; high >= 2; --high) {
        for (int low = high - 1; low >= 1; --low, ++code) {
            int other = low == 1 ? high - 1 : low - 1;  // a rank of neither pair
            if (other == low) other = high + 1;
            std::string h{rank[high - 1], 'h'}, l{rank[low - 1], 's'}, o{rank[other - 1], 'd'};
            std::string o2{rank[other - 1], 'c'};
            SCOPED_TRACE(code);
            EXPECT_EQ(Rate(code, l.c_str(), o.c_str()), Chances(65, 25));
            EXPECT_EQ(Rate(code, h.c_str(), o.c_str()), Chances(65, 25));
            EXPECT_EQ(Rate(code, o.c_str(), o2.c_str()), Chances(50, 10));
            EXPECT_EQ(Rate(code, h.c_str(), l.c_str()), Chances(80, 30));
        }
    }
    EXPECT_EQ(code, 139);
}

// Seat 5 moves; seat 3 holds the high bet when there is one; every other seat
// is in with $10,000. Draws are percentages 100 * r, then the size draw.
constexpr float kX1 = 0.0f, kX8 = 0.78f, kX9 = 0.89f, kX10 = 0.95f;  // x = Round(9r + 1)
constexpr float kShare5 = 0.0f, kShare15 = 0.1f, kShare20 = 0.158f,
                kShare100 = 0.9f;  // 5x%, x = Round(19r + 1)

struct Move {
    const char* name;
    int street;  // 1 before the flop, 2 flop, 3 turn, 4 river
    bool background;
    int16_t call, raise;
    int32_t bank, stake, high;  // seat 5's stack and stake, HighBetValue
    bool raised;                // SeatRaised[5] before the move
    std::vector<float> draws;
    const char* outcome;   // lblBet(5); SeatBet[5], the high bet, SeatRaised[5], SeatInHand[5], a new timer
    bool headsUp = false;  // seat 5 against the user alone
};

void PrintTo(const Move& c, std::ostream* os) { *os << c.name; }

// clang-format off
const Move kMoves[] = {
    // Before the flop, facing the large blind of $200.
    {"matched: no draw", 1, 0, 10, 0, 10000, 200, 200, 0, {}, "; 200 H3/200"},
    {"fold", 1, 0, 50, 5, 10000, 0, 200, 0, {0.51f}, "Folded; 0 H3/200 out"},
    {"stay at CallChance, no raise at RaiseChance", 1, 0, 50, 5, 10000, 0, 200, 0, {0.5f, 0.05f}, "Called $200; 200 H3/200"},
    {"x 1", 1, 0, 50, 5, 10000, 0, 200, 0, {0, 0, kX1}, "Raised to $400; 400 H5/400 raised"},
    {"x 8", 1, 0, 50, 5, 10000, 0, 200, 0, {0, 0, kX8}, "Raised to $1,800; 1800 H5/1800 raised"},
    {"x 9 is 10", 1, 0, 50, 5, 10000, 0, 200, 0, {0, 0, kX9}, "Raised to $2,200; 2200 H5/2200 raised"},
    {"2.5 hundreds round to 2", 1, 0, 50, 5, 10000, 150, 200, 0, {0, 0, kX1}, "Raised to $350; 350 H5/350 raised"},
    {"one raise a street", 1, 0, 50, 5, 10000, 0, 200, 1, {0, 0}, "Called $200; 200 H3/200 raised"},
    {"all-in raise", 1, 0, 50, 5, 300, 0, 200, 0, {0, 0, kX10}, "Raised to $300 All In; 300 H5/300 raised"},
    {"raise cut below H: short call", 1, 0, 50, 5, 150, 0, 200, 0, {0, 0, kX10}, "Called $150 All In; 150 H3/200 raised"},
    {"no chips cannot fold", 1, 0, 10, 0, 0, 0, 200, 0, {0.99f}, "Checked; 0 H3/200"},
    {"background raises without limit", 1, 1, 50, 5, 10000, 0, 200, 1, {0, 0, kX1}, "; 400 H5/400 raised"},
    {"background marks no raise", 1, 1, 50, 5, 10000, 0, 200, 0, {0, 0, kX1}, "; 400 H5/400"},
    {"background short call", 1, 1, 50, 5, 150, 0, 200, 0, {0, 0, kX10}, "; 150 H3/200"},
    {"background fold", 1, 1, 10, 0, 10000, 0, 200, 0, {0.5f}, "; 0 H3/200 out"},
    {"background no chips", 1, 1, 10, 0, 0, 0, 200, 0, {0.5f}, "; 0 H3/200"},
    // After the flop with nothing to call: only RaiseChance counts.
    {"monster checks", 2, 0, 100, 75, 10000, 0, 0, 0, {0.76f}, "Checked; 0 H5/0"},
    {"later check keeps HighBetIndex", 2, 0, 80, 40, 10000, 400, 400, 0, {0.99f}, "Checked; 400 H3/400"},
    {"bet 20%", 2, 0, 80, 40, 10000, 0, 0, 0, {0.4f, kShare20}, "Bet $2,000; 2000 H5/2000 raised"},
    {"bet 5%", 2, 0, 80, 40, 10000, 0, 0, 0, {0, kShare5}, "Bet $500; 500 H5/500 raised"},
    {"x above 16: the stack", 2, 0, 80, 40, 10000, 0, 0, 0, {0, kShare100}, "Bet $10,000 All In; 10000 H5/10000 raised"},
    {"stack rounded up, then capped", 2, 0, 80, 40, 10070, 0, 0, 0, {0, kShare100}, "Bet $10,070 All In; 10070 H5/10070 raised"},
    {"stack rounded down", 2, 0, 80, 40, 10040, 0, 0, 0, {0, kShare100}, "Bet $10,000; 10000 H5/10000 raised"},
    {"bet over a standing stake", 2, 0, 80, 40, 10000, 400, 400, 0, {0, kShare20}, "Raised to $2,400; 2400 H5/2400 raised"},
    {"flop: bet rounding to 0 is a check", 2, 0, 80, 40, 500, 0, 0, 0, {0, kShare5}, "Checked; 0 H5/0"},
    {"turn: the drawn bet marks the raise", 3, 0, 80, 40, 500, 0, 0, 0, {0, kShare5}, "Checked; 0 H5/0 raised"},
    {"river: the same", 4, 0, 80, 40, 500, 0, 0, 0, {0, kShare5}, "Checked; 0 H5/0 raised"},
    {"has bet this street", 3, 0, 80, 40, 10000, 0, 0, 1, {0}, "Checked; 0 H5/0 raised"},
    {"no chips", 3, 0, 80, 40, 0, 0, 0, 0, {0}, "Checked; 0 H5/0"},
    {"15% of $3,000 in single precision", 2, 0, 80, 40, 3000, 0, 0, 0, {0, kShare15}, "Bet $500; 500 H5/500 raised"},
    {"background: the same in double", 2, 1, 80, 40, 3000, 0, 0, 0, {0, kShare15}, "; 400 H5/400"},
    {"background ignores the raise mark", 3, 1, 80, 40, 10000, 0, 0, 1, {0, kShare20}, "; 2000 H5/2000 raised"},
    {"background no chips still draws", 3, 1, 80, 40, 0, 0, 0, 0, {0}, "; 0 H5/0"},
    {"background bet rounding to 0", 3, 1, 80, 40, 500, 0, 0, 0, {0, kShare5}, "; 0 H5/0"},
    // After the flop facing a bet of $1,000.
    {"fold to a bet", 2, 0, 80, 40, 10000, 0, 1000, 0, {0.81f}, "Folded; 0 H3/1000 out"},
    {"call", 2, 0, 80, 40, 10000, 0, 1000, 0, {0.8f, 0.4f}, "Called $1,000; 1000 H3/1000"},
    {"raise: the call and 20% of the rest", 2, 0, 80, 40, 10000, 0, 1000, 0, {0, 0, kShare20}, "Raised to $2,800; 2800 H5/2800 raised"},
    {"raise rounding back to the call", 3, 0, 80, 40, 1050, 0, 1000, 0, {0, 0, kShare5}, "Called $1,000; 1000 H3/1000 raised"},
    {"all in: checked whatever it drew", 4, 0, 80, 40, 0, 0, 1000, 0, {0, 0, kShare100}, "Checked; 0 H3/1000 raised"},
    {"one raise a street after the flop", 2, 0, 80, 40, 10000, 0, 1000, 1, {0, 0}, "Called $1,000; 1000 H3/1000 raised"},
    {"background raises again", 2, 1, 80, 40, 10000, 0, 1000, 1, {0, 0, kShare20}, "; 2800 H5/2800 raised"},
    // The last opponent's fold ends the hand at once on the shown table only.
    {"last fold before the flop", 1, 0, 10, 0, 4000, 0, 600, 0, {0.5f}, "Folded; 0 H3/600 out HandOver", true},
    {"last fold on the turn", 3, 0, 10, 0, 4000, 0, 600, 0, {0.5f}, "Folded; 0 H3/600 out HandOver", true},
    {"background last fold", 1, 1, 10, 0, 4000, 0, 600, 0, {0.5f}, "; 0 H3/600 out", true},
    {"background last fold on the turn", 3, 1, 10, 0, 4000, 0, 600, 0, {0.5f}, "; 0 H3/600 out", true},
};
// clang-format on

class MoveTest : public ::testing::TestWithParam<Move> {};

TEST_P(MoveTest, Outcome) {
    const Move& c = GetParam();
    ScriptedPlatform p;
    Game g(p);
    for (int s = 1; s <= 8; ++s) {
        g.view.icard[s].visible = g.view.icard[s + 8].visible = true;
        g.SeatInHand[s] = !c.headsUp || s == 3 || s == 5;
        g.SeatBank[s] = static_cast<float>(g.TableBank[s] = s == 5 ? c.bank : 10000);
    }
    const int16_t players = g.PlayersInHand = c.headsUp ? 2 : 8;
    g.Street = static_cast<int16_t>(c.street);
    g.CardsKnown = static_cast<int16_t>(c.street == 1 ? 2 : c.street + 3);
    g.CallChance = c.call;
    g.RaiseChance = c.raise;
    if (c.background) g.SeatBank[5] = 10000;
    g.SeatRaised[5] = c.raised;
    g.SeatBet[5] = c.stake;
    g.SeatBet[3] = g.HighBetValue = c.high;
    g.HighBetIndex = static_cast<int16_t>(c.high > 0 ? 3 : 0);
    const int32_t pot = g.Pot = c.stake + c.high;
    g.view.lblBank[5].text = "before";
    const TimerId bet = TimerId(TimerBetHole + 2 * (c.street - 1));
    g.EnableTimer(bet);
    g.rnd.Script(c.draws);
    c.street == 1 ? g.OpponentMoveBeforeFlop(5, c.background) : g.OpponentMoveAfterFlop(5, c.background);

    auto n = [](int32_t v) { return std::to_string(v); };
    EXPECT_EQ(g.view.lblBet[5].text + "; " + n(g.SeatBet[5]) + " H" + n(g.HighBetIndex) + "/" +
                  n(g.HighBetValue) + (g.SeatRaised[5] ? " raised" : "") + (g.SeatInHand[5] ? "" : " out") +
                  (g.RunningTimer() == bet ? "" : " " + test::Running(g)),
              c.outcome);
    EXPECT_TRUE(g.rnd.Remaining() == 0 && g.rnd.Overdrawn() == 0);
    const int32_t paid = g.SeatBet[5] - c.stake, bank = c.bank - paid;
    EXPECT_EQ(std::tuple(g.Pot, g.PlayersInHand), std::tuple(pot + paid, players - !g.SeatInHand[5]));
    EXPECT_EQ(test::Cards(g, 5, 13),
              c.background || g.SeatInHand[5] ? "5 6 7 8 9 10 11 12 13" : "6 7 8 9 10 11 12");
    // The shown table moves SeatBank and its labels; a seat that has matched says nothing.
    if (c.background)
        EXPECT_EQ(std::tuple(g.TableBank[5], g.SeatBank[5], g.view.lblBank[5].text,
                             g.view.lblPot.text + g.view.lblHBI.text),
                  std::tuple(bank, 10000.0f, "before", ""));
    else
        EXPECT_EQ(std::tuple(g.SeatBank[5], g.view.lblBank[5].text, g.view.lblPot.text),
                  std::tuple(static_cast<float>(bank), c.draws.empty() ? "before" : Money(bank),
                             c.draws.empty() ? "" : Money(pot + paid)));
}

INSTANTIATE_TEST_SUITE_P(Table, MoveTest, ::testing::ValuesIn(kMoves), [](const auto& info) {
    std::string name = std::to_string(info.index) + "_";
    for (const char* c = info.param.name; *c; ++c)
        name += std::isalnum(static_cast<unsigned char>(*c)) ? *c : '_';
    return name;
});

}  // namespace
}  // namespace holdem
