// Seeded games through the real timer chain. The driver checks after every step and every hand: chips
// conserved at the table and in the field, one timer at a time, the roster a permutation, every busted player
// placed once within 1..N, the tables in play balanced, no closing check fired.
#include <gtest/gtest.h>

#include <cstdio>

#include "engine/autoplay.h"

namespace holdem::sim {
namespace {

// Every policy of the user, every field size, each game with the log and without. The signature mixes every
// stack of the shown table and the players left after every hand, so it moves with any change of a draw, a
// move, a payment or a place; it changes only when behaviour changes on purpose.
TEST(Property, SeededGamesPlayCleanAndRepeatExactly) {
    const std::tuple<int, Policy, uint64_t, uint64_t> runs[] = {
        {8, Policy::Rule, 1, 200},     {8, Policy::Caller, 201, 240}, {8, Policy::Folder, 241, 280},
        {8, Policy::Raiser, 281, 320}, {80, Policy::Rule, 1, 4},      {200, Policy::Raiser, 5, 6},
        {1000, Policy::Rule, 7, 7}};
    Signature sig, printed;  // printed: every line the simulator printed, byte by byte
    long hands = 0;
    for (auto [players, policy, first, last] : runs)
        for (uint64_t seed = first; seed <= last; ++seed) {
            SCOPED_TRACE(::testing::Message() << players << " players, seed " << seed);
            // Played again without the log: it watches, so draws and payments stay the same.
            std::FILE* sink = std::tmpfile();
            uint64_t draws[2] = {};
            GameResult r = PlayOneGame(HOLDEM_ASSETS, players, seed, policy, sink,
                                       [&](Game& g) { draws[0] = g.rnd.Draws(); });
            const long logged = std::ftell(sink);
            std::rewind(sink);
            for (int c; (c = std::fgetc(sink)) != EOF;) printed.Mix(static_cast<uint64_t>(c));
            std::fclose(sink);
            ASSERT_TRUE(r.violations.empty()) << r.violations.front();
            ASSERT_TRUE(r.hands > 0 &&
                        (r.userWon ? r.userPlace <= 1 : r.userPlace >= 2 && r.userPlace <= players));
            GameResult again = PlayOneGame(HOLDEM_ASSETS, players, seed, policy, nullptr, [&](Game& g) {
                draws[1] = g.rnd.Draws();
                ASSERT_TRUE(g.view.log.empty());
            });
            ASSERT_GT(logged, 0);
            ASSERT_EQ(std::make_tuple(r.hands, r.userPlace, r.hash, draws[0]),
                      std::make_tuple(again.hands, again.userPlace, again.hash, draws[1]));
            sig.Add(r);
            hands += r.hands;
        }
    EXPECT_EQ(hands, 7941);
    EXPECT_EQ(sig.value, 0x16f39027739eb4b7ull);
    EXPECT_EQ(printed.value, 0xb9e09ca144314842ull);
}

}  // namespace
}  // namespace holdem::sim
