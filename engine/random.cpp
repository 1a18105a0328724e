#include "engine/random.h"

#include <chrono>

namespace holdem {

namespace {

uint64_t SplitMix(uint64_t& x) {
    uint64_t z = (x += 0x9E3779B97F4A7C15ULL);
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
    return z ^ (z >> 31);
}

}  // namespace

Random::Random() { Randomize(); }

uint64_t Random::Next() { return SplitMix(state_); }

float Random::Rnd() {
    ++draws_;
    if (scripted_) {
        if (next_ < script_.size()) return script_[next_++];
        ++overdrawn_;
        return 0.0f;
    }
    // 24 random bits fill a float's mantissa exactly: uniform on [0, 1).
    return static_cast<float>(Next() >> 40) * (1.0f / 16777216.0f);
}

void Random::Randomize() {
    if (scripted_) return;
    ++reseeds_;
    if (deterministic_) {
        uint64_t x = base_ + reseeds_ * 0xD1B54A32D192ED03ULL;
        state_ = SplitMix(x);
        return;
    }
    auto now = static_cast<uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count());
    uint64_t x = now ^ (reseeds_ << 32) ^ state_;
    state_ = SplitMix(x);
}

void Random::SeedDeterministic(uint64_t seed) {
    deterministic_ = true;
    scripted_ = false;
    base_ = seed;
    reseeds_ = 0;
    Randomize();
}

void Random::Script(std::vector<float> draws) {
    scripted_ = true;
    script_ = std::move(draws);
    next_ = 0;
    overdrawn_ = 0;
}

}  // namespace holdem
