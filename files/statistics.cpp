#include "files/statistics.h"

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <system_error>
#include <vector>

namespace holdem {

namespace {

constexpr const char* kHeader = "holdem statistics 1";
// A record is a few hundred bytes; anything far larger is not ours.
constexpr std::uintmax_t kMaxFileBytes = 16 * 1024;
constexpr int kPreFlop = 1;

std::filesystem::path PathOf(const std::string& path) { return std::u8string(path.begin(), path.end()); }

// The counters by their names in the file.
struct Counter {
    const char* key;
    int32_t Statistics::*field;
};
constexpr Counter kCounters[] = {
    {"games", &Statistics::gamesPlayed},        {"tournaments", &Statistics::tournamentsPlayed},
    {"hands", &Statistics::handsPlayed},        {"won", &Statistics::handsWon},
    {"showdowns", &Statistics::showdownsWon},   {"biggest-pot", &Statistics::biggestPotWon},
    {"voluntary", &Statistics::handsVoluntary},
};

bool ParseCount(const std::string& text, int32_t& out) {
    const char* end = text.data() + text.size();
    auto [ptr, ec] = std::from_chars(text.data(), end, out);
    return ec == std::errc() && ptr == end && out >= 0;
}

// One "key value" line into the record; false for anything it cannot read.
bool ReadLine(Statistics& s, const std::string& line) {
    std::istringstream words(line);
    std::string key, value, extra;
    if (!(words >> key >> value) || (words >> extra)) return false;
    int32_t n = 0;
    if (!ParseCount(value, n)) return false;
    for (const Counter& c : kCounters) {
        if (key == c.key) {
            s.*c.field = n;
            return true;
        }
    }
    for (std::size_t i = 0; i < kFieldSizes.size(); ++i) {
        if (key == "best-" + std::to_string(kFieldSizes[i])) {
            if (n > kFieldSizes[i]) return false;
            s.bestFinish[i] = n;
            return true;
        }
    }
    if ((key == "show-hand-log" || key == "show-tourney") && n <= 1) {
        (key == "show-hand-log" ? s.showHandLog : s.showTourney) = n == 1;
        return true;
    }
    return false;
}

int FieldIndex(int size) {
    for (std::size_t i = 0; i < kFieldSizes.size(); ++i)
        if (kFieldSizes[i] == size) return static_cast<int>(i);
    return -1;
}

}  // namespace

Statistics ReadStatistics(const std::string& path) {
    std::error_code ec;
    auto size = std::filesystem::file_size(PathOf(path), ec);
    if (ec || size > kMaxFileBytes) return {};
    std::ifstream in(PathOf(path), std::ios::binary);
    std::string line;
    if (!in || !std::getline(in, line) || line != kHeader) return {};
    Statistics s;
    while (std::getline(in, line)) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        if (line.empty()) continue;
        if (!ReadLine(s, line)) return {};
    }
    if (s.handsWon > s.handsPlayed || s.handsVoluntary > s.handsPlayed || s.showdownsWon > s.handsWon)
        return {};
    return s;
}

bool WriteStatistics(const std::string& path, const Statistics& s) {
    std::ostringstream out;
    out << kHeader << '\n';
    for (const Counter& c : kCounters) out << c.key << ' ' << s.*c.field << '\n';
    for (std::size_t i = 0; i < kFieldSizes.size(); ++i)
        out << "best-" << kFieldSizes[i] << ' ' << s.bestFinish[i] << '\n';
    out << "show-hand-log " << (s.showHandLog ? 1 : 0) << '\n';
    out << "show-tourney " << (s.showTourney ? 1 : 0) << '\n';

    std::error_code ec;
    const std::filesystem::path target = PathOf(path);
    if (target.has_parent_path()) std::filesystem::create_directories(target.parent_path(), ec);
    std::filesystem::path temp = target;
    temp += ".tmp";
    {
        std::ofstream file(temp, std::ios::binary | std::ios::trunc);
        if (!file) return false;
        file << out.str();
        file.flush();
        if (!file) {
            file.close();
            std::filesystem::remove(temp, ec);
            return false;
        }
    }
    std::filesystem::rename(temp, target, ec);
    if (ec) std::filesystem::remove(temp, ec);
    return !ec;
}

void ResetRecord(Statistics& stats) {
    Statistics fresh;
    fresh.showHandLog = stats.showHandLog;
    fresh.showTourney = stats.showTourney;
    stats = fresh;
}

bool StatisticsWatcher::Observe(Statistics& s, const LogLine& line) {
    switch (line.kind) {
        case LogKind::GameStart:
            fieldSize_ = line.number;
            dealtIn_ = false;
            if (!line.flag) return false;
            ++s.gamesPlayed;
            if (line.number > kFieldSizes[0]) ++s.tournamentsPlayed;
            return true;
        case LogKind::HoleCards:
            dealtIn_ = true;
            voluntary_ = false;
            ++s.handsPlayed;
            return false;
        case LogKind::Call:
        case LogKind::Bet:
        case LogKind::Raise:
            if (!line.flag || !dealtIn_ || voluntary_ || line.street != kPreFlop) return false;
            voluntary_ = true;
            ++s.handsVoluntary;
            return false;
        case LogKind::HandResult:
            if (!dealtIn_) return false;
            dealtIn_ = false;
            if (line.flag) {
                ++s.handsWon;
                if (line.number > 1) ++s.showdownsWon;
                s.biggestPotWon = std::max(s.biggestPotWon, line.total);
            }
            return true;
        case LogKind::UserOut:
        case LogKind::Winner: {
            if (line.kind == LogKind::Winner && !line.flag) return false;
            int i = FieldIndex(fieldSize_);
            int place = line.kind == LogKind::Winner ? 1 : line.number;
            if (i < 0 || place < 1) return false;
            if (s.bestFinish[i] == 0 || place < s.bestFinish[i]) s.bestFinish[i] = place;
            return true;
        }
        default:
            return false;
    }
}

}  // namespace holdem
