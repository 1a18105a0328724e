#include "engine/random.h"

#include <chrono>

namespace holdem {

Random::Random() { Randomize(); }

float Random::ScriptedDraw() {
    if (next_ < script_.size()) return script_[next_++];
    ++overdrawn_;
    return 0.0f;
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
