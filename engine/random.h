// The random source. Rnd() is a single-precision draw in [0, 1); Randomize()
// reseeds. Production seeds from the clock, the simulator from its --seed,
// and tests script the exact draws.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace holdem {

class Random {
public:
    Random();

    float Rnd();
    void Randomize();

    // From now on Randomize() reseeds from a sequence fixed by this seed, so
    // that a whole game repeats exactly.
    void SeedDeterministic(uint64_t seed);
    // From now on Rnd() returns these draws in order and Randomize() does nothing.
    void Script(std::vector<float> draws);
    // Draws of the script not yet taken, and draws asked for beyond its end.
    std::size_t Remaining() const { return script_.size() - next_; }
    int Overdrawn() const { return overdrawn_; }
    bool Scripted() const { return scripted_; }
    // Draws taken since construction; the simulator reports it.
    uint64_t Draws() const { return draws_; }

private:
    uint64_t Next();

    uint64_t state_ = 0;
    uint64_t reseeds_ = 0;
    uint64_t base_ = 0;
    bool deterministic_ = false;
    bool scripted_ = false;
    std::vector<float> script_;
    std::size_t next_ = 0;
    int overdrawn_ = 0;
    uint64_t draws_ = 0;
};

}  // namespace holdem
