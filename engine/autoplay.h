// Plays whole games without a window: seat 1 by a chosen policy, every
// enabled timer fired at once. The simulator and the property tests share it.
#pragma once

#include <cstdint>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "engine/game_state.h"

namespace holdem::sim {

enum class Policy { Caller, Folder, Raiser, Rule };
bool ParsePolicy(const std::string& name, Policy& out);

// Answers the bet dialog with the amount the policy chose; counts the
// closing-check messages, which must never appear.
class SimPlatform : public SilentPlatform {
public:
    MsgAnswer MessageBox(const std::string& text, const std::string& title, MsgIcon icon,
                         MsgButtons buttons) override;
    int32_t ShowBetAmount(const BetAmountRequest& request) override;

    int32_t nextBetAmount = 0;
    std::vector<std::string> closingChecks;
    int refusals = 0;
};

struct GameResult {
    int players = 0;
    int hands = 0;
    bool userWon = false;
    int userPlace = 0;
    uint64_t hash = 0;
    std::vector<std::string> violations;
};

struct Totals {
    long long hands = 0;
    int userWins = 0;
    int violations = 0;
    void Add(const GameResult& r) {
        hands += r.hands;
        userWins += r.userWon ? 1 : 0;
        violations += static_cast<int>(r.violations.size());
    }
};

struct Signature {
    uint64_t value = 1469598103934665603ULL;
    void Mix(uint64_t x) {
        for (int i = 0; i < 8; ++i) {
            value ^= (x >> (8 * i)) & 0xFF;
            value *= 1099511628211ULL;
        }
    }
    void Add(const GameResult& r) {
        Mix(static_cast<uint64_t>(r.hands));
        Mix(static_cast<uint64_t>(r.userPlace));
        Mix(r.hash);
    }
};

// Sets up a new game of the given size: the shipped roster when AppFolder
// holds gamedata.dat, else eight-to-a-thousand generated players.
void SetUpGame(Game& game, int players);

// Plays one game to its end. A log, when given, gets the engine's events in
// plain words, as the window's hand log shows them. `atEnd`, when given, gets
// the game once it is over.
GameResult PlayOneGame(const std::string& appFolder, int players, uint64_t seed, Policy policy,
                       std::FILE* log, const std::function<void(Game&)>& atEnd = {});

// Checks of the whole field after a hand; appends what is wrong.
void CheckField(const Game& game, int64_t fieldChips, std::vector<std::string>& violations);

}  // namespace holdem::sim
