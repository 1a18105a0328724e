// Small builders for the file tests: a private temporary folder, whole-file
// reads and writes, and a roster laid out in a Game.
#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "engine/game_state.h"

namespace holdem::test {

// A fresh folder under the system's temporary folder, removed afterwards.
class TempFolder {
public:
    TempFolder() {
        static int serial = 0;
        auto base = std::filesystem::temp_directory_path();
        const auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
        std::string name =
            "holdem_files_" + std::string(info ? info->name() : "x") + "_" +
            std::to_string(std::chrono::steady_clock::now().time_since_epoch().count() % 1000000007) + "_" +
            std::to_string(++serial);
        path_ = base / name;
        std::filesystem::remove_all(path_);
        std::filesystem::create_directories(path_);
    }
    ~TempFolder() {
        std::error_code ec;
        std::filesystem::remove_all(path_, ec);
    }
    // The folder with a trailing separator, as AppFolder is held.
    std::string Folder() const { return (path_ / "").string(); }
    std::string File(const std::string& name) const { return (path_ / name).string(); }

private:
    std::filesystem::path path_;
};

inline std::string ReadAll(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

inline void WriteAll(const std::string& path, const std::string& text) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out << text;
}

inline std::string ShippedFile(const std::string& name) { return std::string(HOLDEM_ASSETS) + name; }

// Positions 1..size: everyone in with the given chips, the user first.
inline void FillRoster(Game& g, int size, int32_t bank = 10000) {
    g.TournamentSize = static_cast<int16_t>(size);
    for (int p = 1; p <= size; ++p) {
        g.RosterTag[p] = static_cast<int16_t>(p);
        g.RosterName[p] = p == 1 ? "The User" : "Player No. " + std::to_string(p);
        g.RosterBank[p] = bank;
        g.RosterPlace[p] = 0;
        g.RosterNumber[p] = static_cast<int16_t>(p);
    }
}

// The text of a roster file, built line by line.
inline std::string RosterText(int size, int hands, int button, int blind,
                              const std::vector<std::string>& players) {
    std::string text = std::to_string(size) + "," + std::to_string(hands) + "," + std::to_string(button) +
                       "," + std::to_string(blind) + "\r\n";
    for (const auto& line : players) text += line + "\r\n";
    return text;
}

inline std::string PlayerLine(int tag, const std::string& name, int bank, int place, int number) {
    return std::to_string(tag) + ",\"" + name + "\"," + std::to_string(bank) + "," + std::to_string(place) +
           "," + std::to_string(number);
}

// A field of `size` players, all in with 10,000; player lines numbered by position.
inline std::vector<std::string> FieldLines(int size, int bank = 10000) {
    std::vector<std::string> lines;
    for (int p = 1; p <= size; ++p)
        lines.push_back(PlayerLine(p, p == 1 ? "The User" : "Player No. " + std::to_string(p), bank, 0, p));
    return lines;
}

// Enough draws for anything LoadRoster and the first deal may take.
inline std::vector<float> LoadDraws(std::vector<float> first, std::size_t shuffle = 52) {
    for (std::size_t i = 0; i < shuffle; ++i) first.push_back(0.5f);
    return first;
}

}  // namespace holdem::test
