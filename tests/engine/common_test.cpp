#include "engine/common.h"

#include <gtest/gtest.h>

#include "engine/random.h"

namespace holdem {

TEST(Common, MoneyRoundingCardsAndSeats) {
    EXPECT_EQ(Money(0) + " " + Money(100) + " " + Money(123456789) + " " + Money(-2500),
              "0 100 123,456,789 -2,500");
    EXPECT_EQ(std::vector<double>({RoundHalfEven(0.5f), RoundHalfEven(1.5f), RoundHalfEven(2.5f),
                                   RoundHalfEven(-0.5), RoundHalfEven(3.5)}),
              std::vector<double>({0, 2, 2, 0, 4}));
    // Card 13 is the Ace of the first block, 14 the Two of the next.
    EXPECT_EQ(std::vector<int>({RankOf(13), RankOf(14), RankOf(52), SuitOf(13), SuitOf(14), NextSeat(8),
                                TableOf(8), TableOf(9), RosterPosition(125, 8)}),
              std::vector<int>({13, 1, 13, 0, 1, 1, 1, 2, 1000}));
}

TEST(Random, AScriptCountsWhatIsLeftAndWhatIsOverdrawn) {
    Random r;
    r.Script({0.25f, 0.5f});
    r.Randomize();  // no effect on a script
    EXPECT_EQ(r.Rnd(), 0.25f);
    EXPECT_EQ(r.Remaining(), 1u);
    EXPECT_EQ(r.Rnd(), 0.5f);
    r.Rnd();
    EXPECT_EQ(std::pair(r.Remaining(), r.Overdrawn()), std::pair(std::size_t{0}, 1));
}

TEST(Random, ADeterministicSeedRepeatsAndStaysInRange) {
    Random a, b;
    a.SeedDeterministic(7);
    b.SeedDeterministic(7);
    for (int i = 0; i < 1000; ++i) {
        if (i % 50 == 0) a.Randomize(), b.Randomize();
        float x = a.Rnd();
        ASSERT_EQ(x, b.Rnd());
        ASSERT_TRUE(x >= 0.0f && x < 1.0f) << x;
    }
}

}  // namespace holdem
