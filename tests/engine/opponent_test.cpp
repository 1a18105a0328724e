// The opponents' rule: hole-card classes, RateHand's chances, and the move drawn against them.
#include "tests/support/builders.h"

namespace holdem {
namespace {

using test::ScriptedPlatform;

// clang-format off
const std::pair<const char*, int> kClasses[] = {  // hole cards, class
    {"AhAs", 1}, {"9d9c", 1}, {"TdTc", 1}, {"8h8s", 2}, {"2h2c", 2}, {"JsQs", 3}, {"AcKc", 3}, {"KhJd", 4},
    {"Ah4s", 5}, {"Ah4h", 5}, {"4sAh", 6}, {"4hAh", 5}, {"TdAs", 6}, {"AsTd", 5}, {"TdJd", 5}, {"Ts9s", 7},
    {"7s2s", 7}, {"Ts9d", 8}, {"Ah2s", 5}, {"2s2d", 2}};
const int kBefore[9][2] = {{10, 0}, {90, 25}, {75, 20}, {65, 10}, {55, 5}, {50, 5}, {40, 5}, {30, 0}, {10, 0}};  // by class: call, raise
const std::tuple<int, const char*, int, int> kAfter[] = {  // code, hole cards, call, raise
    {1, "2s3d", 100, 75}, {27, "2s3d", 100, 75}, {28, "2s3d", 95, 60}, {31, "2s3d", 95, 60}, {32, "2s3d", 90, 50},
    {36, "2s3d", 90, 50}, {37, "2s3d", 80, 40}, {37, "AsKs", 80, 40}, {38, "2s3d", 75, 35}, {41, "2s3d", 75, 35},
    {42, "2s3d", 70, 30}, {47, "2s3d", 70, 30}, {48, "AhAs", 90, 40}, {48, "Ah9s", 80, 30}, {48, "Kh9s", 60, 15},
    {52, "6hTs", 80, 30}, {52, "ThTs", 90, 40}, {53, "9h9s", 85, 35}, {55, "7d2s", 70, 25}, {55, "8d2s", 50, 10},
    {56, "6d2s", 65, 25}, {60, "2d2s", 80, 30}, {60, "3d4s", 50, 10}, {61, "AhKs", 80, 30}, {61, "Kh9s", 65, 25},
    {61, "Qh9s", 50, 10}, {138, "3h3s", 80, 30}, {139, "AhAs", 95, 45}, {139, "Ah2s", 85, 30}, {139, "Kh2s", 50, 10},
    {140, "Kh2s", 80, 30}, {140, "KhKs", 95, 45}, {141, "Qh2s", 85, 30}, {143, "ThTs", 90, 40},
    {143, "9h9s", 50, 10}, {144, "2h9s", 70, 20}, {146, "AhKs", 40, 10}, {146, "7h2s", 70, 20},
    {147, "6h6d", 70, 30}, {151, "2hAd", 60, 20}, {151, "3hAd", 40, 10}, {152, "2s3d", 70, 20},
    {153, "2s3d", 65, 15}, {154, "2s3d", 50, 10}, {162, "2s3d", 50, 10}, {163, "2s3d", 10, 0}, {199, "AsAd", 10, 0},
    {200, "2s3d", 10, 0}};
// Seat 5 moves, seat 3 holds any high bet. Draws are the percentages 100 * r; x draws Round(9r + 1) before
// the flop, Round(19r + 1) after it, chosen so that a scale one off, a floor or the other rounding tells.
struct Move { int street; bool background; int16_t call, raise; int32_t bank, stake, high; bool raised; std::vector<float> draws;
              const char* words; int32_t stakeAfter, highAfter; int highIndexAfter; bool raisedAfter, inHandAfter; };

const Move kMoves[] = {
    // street, bg, call, raise, bank, stake, high, raised, draws -> words, stake, high, index, raised, in hand
    {1, false, 10, 0, 10000, 200, 200, false, {}, "", 200, 200, 3, false, true},  // matched: no draw
    {1, false, 50, 5, 10000, 0, 200, false, {0.51f}, "Folded", 0, 200, 3, false, false},
    {1, false, 50, 5, 10000, 0, 200, false, {0.5f, 0.05f}, "Called $200", 200, 200, 3, false, true},
    {1, false, 50, 5, 10000, 0, 200, false, {0.3f, 0.04f, 0.0f}, "Raised to $400", 400, 400, 5, true, true},
    {1, false, 50, 5, 10000, 0, 200, false, {0, 0, 0.29f}, "Raised to $1,000", 1000, 1000, 5, true, true},  // 3.61
    {1, false, 50, 5, 10000, 0, 200, false, {0, 0, 0.49f}, "Raised to $1,200", 1200, 1200, 5, true, true},  // 5.41
    {1, false, 50, 5, 10000, 0, 200, false, {0, 0, 0.78f}, "Raised to $1,800", 1800, 1800, 5, true, true},  // 8.02
    {1, false, 50, 5, 10000, 0, 200, false, {0, 0, 0.89f}, "Raised to $2,200", 2200, 2200, 5, true, true},  // 9 is 10
    // 9r is 4.5 in single precision and x 4, halves to even; fused with the + 1 it would be 5.
    {1, false, 50, 5, 10000, 0, 200, false, {0, 0, 0x1.8e38e4p-2f}, "Raised to $1,000", 1000, 1000, 5, true, true},
    {1, false, 50, 5, 10000, 150, 200, false, {0, 0, 0.0f}, "Raised to $350", 350, 350, 5, true, true},  // 2.5 hundreds to 2
    {1, false, 50, 5, 10000, 50, 200, false, {0, 0, 0.0f}, "Raised to $450", 450, 450, 5, true, true},  // 3.5 to 4
    {1, false, 50, 5, 10000, 0, 200, true, {0, 0}, "Called $200", 200, 200, 3, true, true},  // one raise a street
    {1, false, 50, 5, 300, 0, 200, false, {0, 0, 0.95f}, "Raised to $300 All In", 300, 300, 5, true, true},
    {1, false, 50, 5, 150, 0, 200, false, {0, 0, 0.95f}, "Called $150 All In", 150, 200, 3, true, true},
    {1, false, 50, 5, 200, 0, 200, false, {0.2f, 0.5f}, "Called $200 All In", 200, 200, 3, false, true},
    {1, false, 10, 0, 0, 0, 200, false, {0.99f}, "Checked", 0, 200, 3, false, true},  // no chips cannot fold
    {1, true, 50, 5, 10000, 0, 200, true, {0, 0, 0.53f}, "", 1400, 1400, 5, true, true},
    {1, true, 50, 5, 150, 0, 200, false, {0, 0, 0.95f}, "", 150, 200, 3, false, true},
    {1, true, 10, 0, 0, 0, 200, false, {0.5f}, "", 0, 200, 3, false, true},
    // After the flop with nothing to call: RaiseChance alone decides.
    {2, false, 100, 75, 10000, 0, 0, false, {0.76f}, "Checked", 0, 0, 5, false, true},
    {2, false, 100, 75, 10000, 0, 0, false, {0.75f, 0.3f}, "Bet $3,500", 3500, 3500, 5, true, true},  // x 6.7 -> 7
    {2, false, 80, 40, 10000, 0, 0, false, {0, 0x1.79436p-3f}, "Bet $2,000", 2000, 2000, 5, true, true},  // 19r is 3.5 (fused: 3.5000002)
    {2, false, 80, 40, 10000, 0, 0, false, {0, 0.18f}, "Bet $2,000", 2000, 2000, 5, true, true},  // x 4.42 -> 4
    {2, false, 80, 40, 10000, 400, 400, false, {0.99f}, "Checked", 400, 400, 3, false, true},
    {2, false, 80, 40, 10000, 0, 0, false, {0.4f, 0.158f}, "Bet $2,000", 2000, 2000, 5, true, true},  // x 4.002
    {2, false, 80, 40, 10000, 0, 0, false, {0, 0.0f}, "Bet $500", 500, 500, 5, true, true},
    {2, false, 80, 40, 10000, 0, 0, false, {0, 0.5f}, "Bet $5,000", 5000, 5000, 5, true, true},  // x 10.5 -> 10
    {2, false, 80, 40, 10000, 0, 0, false, {0, 0.8f}, "Bet $8,000", 8000, 8000, 5, true, true},  // x 16.2 -> 16
    {2, false, 80, 40, 10000, 0, 0, false, {0, 0.87f}, "Bet $10,000 All In", 10000, 10000, 5, true, true},  // 17.53
    {2, false, 80, 40, 10070, 0, 0, false, {0, 0.9f}, "Bet $10,070 All In", 10070, 10070, 5, true, true},
    {2, false, 80, 40, 10040, 0, 0, false, {0, 0.9f}, "Bet $10,000", 10000, 10000, 5, true, true},
    {2, false, 80, 40, 10000, 400, 400, false, {0, 0.158f}, "Raised to $2,400", 2400, 2400, 5, true, true},
    {2, false, 80, 40, 500, 0, 0, false, {0, 0.0f}, "Checked", 0, 0, 5, false, true},  // bet rounds to 0
    {3, false, 80, 40, 500, 0, 0, false, {0, 0.0f}, "Checked", 0, 0, 5, true, true},  // the draw marks the raise
    {3, false, 80, 40, 10000, 0, 0, true, {0}, "Checked", 0, 0, 5, true, true},
    {3, false, 80, 40, 0, 0, 0, false, {0}, "Checked", 0, 0, 5, false, true},
    {2, false, 80, 40, 3000, 0, 0, false, {0, 0.1f}, "Bet $500", 500, 500, 5, true, true},  // 450 in single precision
    {2, false, 80, 40, 1000, 0, 0, false, {0, 0.21f}, "Bet $200", 200, 200, 5, true, true},  // 2.5 hundreds to 2
    {2, true, 80, 40, 3000, 0, 0, false, {0, 0.1f}, "", 400, 400, 5, false, true},  // 449.99.. in double
    {3, true, 80, 40, 10000, 0, 0, true, {0, 0.158f}, "", 2000, 2000, 5, true, true},
    {3, true, 80, 40, 500, 0, 0, false, {0, 0.0f}, "", 0, 0, 5, false, true},
    // After the flop facing a bet of $1,000: the raise is the call and x * 5 % of what is left.
    {2, false, 80, 40, 10000, 0, 1000, false, {0.81f}, "Folded", 0, 1000, 3, false, false},
    {2, false, 80, 40, 10000, 0, 1000, false, {0.8f, 0.4f}, "Called $1,000", 1000, 1000, 3, false, true},
    {2, false, 80, 40, 10000, 0, 1000, false, {0, 0.39f, 0.158f}, "Raised to $2,800", 2800, 2800, 5, true, true},
    {2, false, 80, 40, 10000, 200, 1000, false, {0, 0, 0.3f}, "Raised to $4,200", 4200, 4200, 5, true, true},  // 9200 * 35 % + 800
    {2, false, 80, 40, 10000, 0, 1000, false, {0, 0, 0.21f}, "Raised to $3,200", 3200, 3200, 5, true, true},  // 32.5 hundreds
    {3, false, 80, 40, 1050, 0, 1000, false, {0, 0, 0.0f}, "Called $1,000", 1000, 1000, 3, true, true},
    {4, false, 80, 40, 0, 0, 1000, false, {0, 0, 0.9f}, "Checked", 0, 1000, 3, true, true},
    {2, false, 80, 40, 10000, 0, 1000, true, {0, 0}, "Called $1,000", 1000, 1000, 3, true, true},
    {2, true, 80, 40, 10000, 0, 1000, true, {0, 0, 0.158f}, "", 2800, 2800, 5, true, true},
};
// clang-format on

// Hole-card classes; RateHand by the class before the flop, after it by the code and the hole cards.
TEST(Opponent, HoleCardClassesAndRateHand) {
    ScriptedPlatform p;
    Game g(p);
    for (int k = 0; k < 20; k += 8) {  // eight seats a call, in the hand or not
        for (int s = 1; s <= kSeats; ++s) test::SetHole(g, s, kClasses[(k + s - 1) % 20].first);
        g.SeatInHand[3] = true;
        g.ClassifyHoleCards();
        for (int s = 1; s <= kSeats; ++s)
            EXPECT_EQ(g.StartingHandClass[s], kClasses[(k + s - 1) % 20].second)
                << kClasses[(k + s - 1) % 20].first;
    }
    g.CardsKnown = 2, g.SeatHandCode[3] = 1;  // the made hand plays no part before the flop
    for (int cls = 1; cls <= 8; ++cls) {
        g.StartingHandClass[3] = static_cast<int16_t>(cls);
        g.RateHand(3);
        EXPECT_EQ(g.CallChance * 1000 + g.RaiseChance, kBefore[cls][0] * 1000 + kBefore[cls][1]) << cls;
    }
    g.CardsKnown = 6;
    auto rate = [&g](int code, const std::string& hole) {
        test::SetHole(g, 3, hole);
        g.SeatHandCode[3] = static_cast<int16_t>(code);
        g.RateHand(3);
        return std::to_string(g.CallChance) + "/" + std::to_string(g.RaiseChance);
    };
    for (auto [code, hole, call, raise] : kAfter)
        EXPECT_EQ(rate(code, hole), std::to_string(call) + "/" + std::to_string(raise))
            << code << " " << hole;
    // Each two-pair code: a hole card of either rank gives h 1, both give 2, neither 0.
    const char* faces = "23456789TJQKA";
    int code = 61;
    for (int high = 12; high >= 1; --high)
        for (int low = high - 1; low >= 0; --low, ++code) {
            char other = faces[low == 0 ? high - 1 : low - 1];
            if (other == faces[low]) other = faces[high + 1 > 12 ? 0 : high + 1];
            std::string h(1, faces[high]), l(1, faces[low]), o(1, other);
            SCOPED_TRACE(code);
            EXPECT_EQ(rate(code, l + "h" + o + "d"), "65/25");
            EXPECT_EQ(rate(code, h + "h" + o + "d"), "65/25");
            EXPECT_EQ(rate(code, o + "h" + o + "d"), "50/10");
            EXPECT_EQ(rate(code, h + "s" + l + "c"), "80/30");
        }
}

TEST(Opponent, Moves) {
    for (const Move& c : kMoves) {
        SCOPED_TRACE(::testing::Message() << "row " << &c - kMoves << ": " << c.words);
        ScriptedPlatform p;
        Game g(p);
        for (int s = 1; s <= kSeats; ++s) {
            g.SeatInHand[s] = g.view.icard[s].visible = g.view.icard[s + 8].visible = true;
            g.SeatBank[s] = g.TableBank[s] = 10000;
        }
        g.PlayersInHand = 8, g.Street = static_cast<int16_t>(c.street);
        g.CardsKnown = static_cast<int16_t>(c.street == 1 ? 2 : c.street + 3);
        g.CallChance = c.call, g.RaiseChance = c.raise;
        g.TableBank[5] = c.background ? c.bank : 10000;
        g.SeatBank[5] = c.background ? 10000.0f : static_cast<float>(c.bank);
        g.SeatRaised[5] = c.raised, g.SeatBet[5] = c.stake;
        g.SeatBet[3] = g.HighBetValue = c.high;
        g.HighBetIndex = static_cast<int16_t>(c.high > 0 ? 3 : 0);
        g.Pot = c.stake + c.high;
        g.view.lblBank[5].text = "before";
        TimerId bet = c.street == 1 ? TimerBetHole : TimerBetFlop;
        g.EnableTimer(bet);
        g.rnd.Script(c.draws);
        c.street == 1 ? g.OpponentMoveBeforeFlop(5, c.background) : g.OpponentMoveAfterFlop(5, c.background);

        int32_t paid = c.stakeAfter - c.stake, pot = c.stake + c.high + paid;
        EXPECT_EQ(g.rnd.Remaining() + g.rnd.Overdrawn(), 0u);
        EXPECT_EQ(g.view.lblBet[5].text, c.words);
        EXPECT_EQ(std::vector<int>({g.SeatBet[5], g.Pot, g.HighBetValue, g.HighBetIndex, g.SeatRaised[5],
                                    g.SeatInHand[5], g.PlayersInHand, g.RunningTimer()}),
                  std::vector<int>({c.stakeAfter, pot, c.highAfter, c.highIndexAfter, c.raisedAfter,
                                    c.inHandAfter, c.inHandAfter ? 8 : 7, bet}));
        bool shown = !c.background && !c.draws.empty();
        EXPECT_EQ(g.SeatBank[5], c.background ? 10000.0f : static_cast<float>(c.bank - paid));
        EXPECT_EQ(g.TableBank[5], c.background ? c.bank - paid : 10000);
        EXPECT_EQ(g.view.lblBank[5].text, shown ? Money(c.bank - paid) : "before");
        EXPECT_EQ(g.view.lblPot.text, shown ? Money(pot) : "");
        EXPECT_EQ(g.view.lblHBI.text,
                  c.background || c.draws.empty() ? "" : std::to_string(c.highIndexAfter));
        EXPECT_EQ(g.view.icard[5].visible && g.view.icard[13].visible, c.background || c.inHandAfter);
    }
}

}  // namespace
}  // namespace holdem
