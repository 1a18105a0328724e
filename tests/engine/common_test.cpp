#include <gtest/gtest.h>

#include "engine/common.h"
#include "engine/random.h"

namespace holdem {

TEST(Common, MoneyGroupsThousands) {
    EXPECT_EQ(Money(0), "0");
    EXPECT_EQ(Money(100), "100");
    EXPECT_EQ(Money(1000), "1,000");
    EXPECT_EQ(Money(10000000), "10,000,000");
    EXPECT_EQ(Money(123456789), "123,456,789");
    EXPECT_EQ(Money(-2500), "-2,500");
}

TEST(Common, RoundHalfEvenInBothPrecisions) {
    EXPECT_EQ(RoundHalfEven(0.5f), 0.0f);
    EXPECT_EQ(RoundHalfEven(1.5f), 2.0f);
    EXPECT_EQ(RoundHalfEven(2.5f), 2.0f);
    EXPECT_EQ(RoundHalfEven(-0.5), 0.0);
    EXPECT_EQ(RoundHalfEven(3.5), 4.0);
}

TEST(Common, CardsAndSeats) {
    EXPECT_EQ(RankOf(13), 13);  // Ace of the first block
    EXPECT_EQ(RankOf(14), 1);   // Two of the next
    EXPECT_EQ(RankOf(52), 13);
    EXPECT_EQ(SuitOf(13), 0);
    EXPECT_EQ(SuitOf(14), 1);
    EXPECT_EQ(NextSeat(8), 1);
    EXPECT_EQ(TableOf(8), 1);
    EXPECT_EQ(TableOf(9), 2);
    EXPECT_EQ(RosterPosition(125, 8), 1000);
}

TEST(Random, ScriptCountsOverdraws) {
    Random r;
    r.Script({0.25f, 0.5f});
    r.Randomize();  // scripted: no effect on the draws
    EXPECT_EQ(r.Rnd(), 0.25f);
    EXPECT_EQ(r.Remaining(), 1u);
    EXPECT_EQ(r.Rnd(), 0.5f);
    EXPECT_EQ(r.Overdrawn(), 0);
    r.Rnd();
    EXPECT_EQ(r.Overdrawn(), 1);
}

TEST(Random, DeterministicSeedRepeatsAndStaysInRange) {
    Random a, b;
    a.SeedDeterministic(7);
    b.SeedDeterministic(7);
    for (int i = 0; i < 1000; ++i) {
        if (i % 50 == 0) {
            a.Randomize();
            b.Randomize();
        }
        float x = a.Rnd();
        ASSERT_EQ(x, b.Rnd());
        ASSERT_GE(x, 0.0f);
        ASSERT_LT(x, 1.0f);
    }
}

}  // namespace holdem
