// The random source. Rnd() is a single-precision draw in [0, 1); Randomize()
// reseeds. Production seeds from the clock, the simulator from its --seed,
// and tests script the exact draws.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace holdem {

// One step of SplitMix64: advances x and returns the next 64 random bits.
inline uint64_t SplitMix(uint64_t& x) {
    uint64_t z = (x += 0x9E3779B97F4A7C15ULL);
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
    return z ^ (z >> 31);
}

class Random {
public:
    Random();

    // Inline: the background tables draw some ten thousand times a round.
    float Rnd() {
        ++draws_;
        if (scripted_) return ScriptedDraw();
        return ToDraw(Next());
    }
    // As many draws as `out` holds, the same as that many calls of Rnd().
    template <std::size_t N>
    void Rnd(float (&out)[N]) {
        draws_ += N;
        if (scripted_) {
            for (float& d : out) d = ScriptedDraw();
            return;
        }
        uint64_t x = state_;
        for (float& d : out) d = ToDraw(SplitMix(x));
        state_ = x;
    }
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
    // 24 random bits fill a float's mantissa exactly: uniform on [0, 1).
    static float ToDraw(uint64_t bits) { return static_cast<float>(bits >> 40) * (1.0f / 16777216.0f); }
    float ScriptedDraw();
    uint64_t Next() { return SplitMix(state_); }

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
