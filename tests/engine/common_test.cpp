#include "engine/common.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "engine/random.h"

namespace holdem {
namespace {

TEST(Common, MoneyRoundingAndCards) {
    const std::pair<int64_t, const char*> money[] = {{0, "0"},
                                                     {100, "100"},
                                                     {999, "999"},
                                                     {1000, "1,000"},
                                                     {10000000, "10,000,000"},
                                                     {-2500, "-2,500"},
                                                     {123456789, "123,456,789"}};
    for (auto [amount, text] : money) EXPECT_EQ(Money(amount), text);
    const std::pair<double, double> halves[] = {{0.5, 0}, {1.5, 2}, {2.5, 2}, {-0.5, 0},
                                                {3.5, 4}, {2.4, 2}, {2.6, 3}};
    for (auto [x, want] : halves) {
        EXPECT_EQ(RoundHalfEven(x), want) << x;
        EXPECT_EQ(RoundHalfEven(static_cast<float>(x)), static_cast<float>(want)) << x;
    }
    volatile float five = 5.0f, share = 0.7f;
    EXPECT_EQ(RoundHalfEven(five * share), 4.0f);  // 3.5 in single precision, 3.4999... in double
    const std::array<int, 6> cards[] = {           // card, rank, suit, seat, next seat; position, table
                                        {13, 13, 0, 8, 1, 0},
                                        {14, 1, 1, 1, 2, 0},
                                        {52, 13, 3, 7, 8, 0}};
    for (auto [c, rank, suit, seat, next, unused] : cards) {
        EXPECT_EQ(RankOf(c) * 10 + SuitOf(c), rank * 10 + suit) << c;
        EXPECT_EQ(NextSeat(seat), next);
    }
    for (auto [pos, table] : {std::pair{1, 1}, {8, 1}, {9, 2}, {1000, 125}}) {
        EXPECT_EQ(TableOf(pos), table) << pos;
        EXPECT_EQ(RosterPosition(table, (pos - 1) % 8 + 1), pos);
    }
}

TEST(Random, ScriptedDrawsAreCountedAndRandomizeLeavesThem) {
    Random r;
    r.Script({0.25f, 0.5f});
    r.Randomize();
    EXPECT_EQ(r.Rnd(), 0.25f);
    EXPECT_EQ(r.Remaining(), 1u);
    EXPECT_EQ(r.Rnd(), 0.5f);
    EXPECT_EQ(r.Overdrawn(), 0);
    r.Rnd();
    EXPECT_EQ(r.Overdrawn(), 1);
}

// A seed repeats exactly, also across reseeds, and the draws spread evenly
// over the whole of [0, 1): each of 20 bins within 10 % of its share.
TEST(Random, SeededDrawsRepeatAndFillTheInterval) {
    Random a, b, c;
    a.SeedDeterministic(7);
    b.SeedDeterministic(7);
    c.SeedDeterministic(8);
    EXPECT_NE(a.Rnd(), c.Rnd());
    b.Rnd();
    std::array<int, 20> bins{};
    float low = 1, high = 0;
    const int n = 100000;
    for (int i = 0; i < n; ++i) {
        if (i % 500 == 0) a.Randomize(), b.Randomize();
        float x = a.Rnd();
        ASSERT_EQ(x, b.Rnd());
        ASSERT_TRUE(x >= 0.0f && x < 1.0f) << x;
        ++bins[static_cast<int>(x * 20)];
        low = std::min(low, x), high = std::max(high, x);
    }
    for (int count : bins) EXPECT_NEAR(count, n / 20, n / 200);
    EXPECT_LT(low, 0.001f);
    EXPECT_GT(high, 0.999f);
}

}  // namespace
}  // namespace holdem
