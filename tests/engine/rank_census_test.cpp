// Every five-card hand once: the nine classes must come out in their known
// numbers. Catches whole families of faults that single examples miss.
#include <gtest/gtest.h>

#include <array>
#include <cstdint>

#include "engine/game_state.h"
#include "tests/support/hand_builder.h"
#include "tests/support/scripted_platform.h"

namespace holdem {
namespace {

using namespace test;

TEST(RankCensus, AllFiveCardHandsFallIntoTheKnownClasses) {
    test::ScriptedPlatform p;
    Game g(p);
    g.rnd.Script({});
    g.SeatInHand[1] = true;
    g.CardsKnown = 5;
    std::array<int64_t, kCategories> count{};
    std::array<int64_t, 201> byCode{};
    int64_t hands = 0;
    for (int a = 1; a <= 52; ++a) {
        g.SeatCards[1][1] = static_cast<int16_t>(a);
        for (int b = a + 1; b <= 52; ++b) {
            g.SeatCards[1][2] = static_cast<int16_t>(b);
            for (int c = b + 1; c <= 52; ++c) {
                g.Deck[kBoardFirst] = static_cast<int16_t>(c);
                for (int d = c + 1; d <= 52; ++d) {
                    g.Deck[kBoardFirst + 1] = static_cast<int16_t>(d);
                    for (int e = d + 1; e <= 52; ++e) {
                        g.Deck[kBoardFirst + 2] = static_cast<int16_t>(e);
                        g.RankHands();
                        int code = g.SeatHandCode[1];
                        ASSERT_GE(code, 1);
                        ASSERT_LE(code, 199);
                        ++byCode[code];
                        ++count[CategoryOfCode(code)];
                        ++hands;
                    }
                }
            }
        }
    }
    EXPECT_EQ(hands, 2598960);
    EXPECT_EQ(count[HighCard], 1302540);
    EXPECT_EQ(count[Pair], 1098240);
    EXPECT_EQ(count[TwoPair], 123552);
    EXPECT_EQ(count[Trips], 54912);
    EXPECT_EQ(count[Straight], 10200);
    EXPECT_EQ(count[Flush], 5108);
    EXPECT_EQ(count[FullHouse], 3744);
    EXPECT_EQ(count[Quads], 624);
    EXPECT_EQ(count[StraightFlush], 40);

    // Finer: each straight (flush) height, quads and trips rank, and pair rank
    // is equally common; the royal flush is one per suit.
    EXPECT_EQ(byCode[1], 4);
    for (int code = 1; code <= 10; ++code) EXPECT_EQ(byCode[code], 4) << code;
    for (int code = 11; code <= 23; ++code) EXPECT_EQ(byCode[code], 48) << code;
    for (int code = 24; code <= 36; ++code) EXPECT_EQ(byCode[code], 288) << code;
    for (int code = 38; code <= 47; ++code) EXPECT_EQ(byCode[code], 1020) << code;
    for (int code = 48; code <= 60; ++code) EXPECT_EQ(byCode[code], 4224) << code;
    for (int code = 139; code <= 151; ++code) EXPECT_EQ(byCode[code], 84480) << code;
    // Two pairs: each pair of ranks 6 * 6 * 44 ways; no code is skipped or shared.
    for (int code = 61; code <= 138; ++code) EXPECT_EQ(byCode[code], 1584) << code;
    // High cards on the flop: the draws and the gapped hands are told apart,
    // and no code above 162 but 199 occurs.
    for (int code = 163; code <= 198; ++code) EXPECT_EQ(byCode[code], 0) << code;
    // Four to a suit: 1,277 unpaired non-straight rank sets, 60 ways each.
    EXPECT_EQ(byCode[152], 76620);
    EXPECT_GT(byCode[153], 0);
    EXPECT_GT(byCode[199], 0);

    EXPECT_EQ(g.rnd.Remaining(), 0u);
    EXPECT_EQ(g.rnd.Overdrawn(), 0);
}

}  // namespace
}  // namespace holdem
