// Builders of the file tests: a private folder, whole files, roster files as text, a game on a script.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <tuple>

#include "tests/support/builders.h"

namespace holdem::test {

class TempFolder {
    std::string pattern_ = (std::filesystem::temp_directory_path() / "holdem_files_XXXXXX").string();
    std::filesystem::path path_ = mkdtemp(pattern_.data());

public:
    ~TempFolder() {
        std::error_code ec;  // a destructor must not throw
        std::filesystem::remove_all(path_, ec);
    }
    std::string Folder() const { return (path_ / "").string(); }  // as AppFolder is held
    std::string File(const std::string& name) const { return (path_ / name).string(); }
};

inline std::string ReadAll(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}
inline void WriteAll(const std::string& path, const std::string& text) {
    std::ofstream(path, std::ios::binary | std::ios::trunc) << text;
}
inline std::string ShippedFile(const std::string& name) { return std::string(HOLDEM_ASSETS) + name; }

inline std::string PlayerLine(int tag, const std::string& name, int bank, int place, int number) {
    return std::to_string(tag) + ",\"" + name + "\"," + std::to_string(bank) + "," + std::to_string(place) +
           "," + std::to_string(number);
}
inline std::string RosterText(int size, int hands, int button, int blind,
                              const std::vector<std::string>& lines) {
    std::string text = std::to_string(size) + "," + std::to_string(hands) + "," + std::to_string(button) +
                       "," + std::to_string(blind) + "\r\n";
    for (const auto& line : lines) text += line + "\r\n";
    return text;
}
inline std::string PlayerName(int p) { return p == 1 ? "The User" : "Player No. " + std::to_string(p); }
inline std::vector<std::string> FieldLines(int size, int bank = 10000) {
    std::vector<std::string> lines;
    for (int p = 1; p <= size; ++p) lines.push_back(PlayerLine(p, PlayerName(p), bank, 0, p));
    return lines;
}
// Eight players of `bank` under the header "size,hands,button,blind"; the last player's line as given.
inline std::string EightPlayers(const std::string& header, int bank = 10000,
                                const std::string& last = "8,\"P8\",10000,0,8") {
    auto lines = FieldLines(8, bank);
    lines[7] = last;
    return header + "\r\n" + RosterText(8, 0, 0, 0, lines).substr(9);
}
// 16,777,200 chips in all; 2^24 is the most a Single holds exactly.
inline const std::string kMostChips = EightPlayers("8,5,2,100", 2097200, "8,\"P8\",2096800,0,8");
inline void FillRoster(Game& g, int size) {
    g.TournamentSize = static_cast<int16_t>(size);
    for (int p = 1; p <= size; ++p)
        std::tie(g.RosterTag[p], g.RosterNumber[p], g.RosterName[p], g.RosterBank[p], g.RosterPlace[p]) =
            std::make_tuple(p, p, PlayerName(p), 10000, 0);
}
// The given draws, then the 52 of the first hand's shuffle.
inline std::vector<float> LoadDraws(std::vector<float> first = {}) {
    first.insert(first.end(), 52, 0.5f);
    return first;
}

class FileTest : public ::testing::Test {
protected:
    TempFolder dir;
    ScriptedPlatform p;
    Game g{p};
    void SetUp() override { g.AppFolder = dir.Folder(); }
    void Open(const std::string& text, std::vector<float> draws) {
        WriteAll(dir.File("game.sgf"), text);
        p.openPaths.push_back(dir.File("game.sgf"));
        g.rnd.Script(std::move(draws));
        g.mnuOpen_Click();
    }
    // Exactly one message box, its whole text; then the record is cleared.
    void ExpectMessage(const std::string& text, const std::string& title,
                       MsgIcon icon = MsgIcon::Exclamation) {
        ASSERT_EQ(p.messages.size(), 1u);
        const MessageCall& m = p.messages[0];
        EXPECT_EQ(std::tie(m.text, m.title, m.icon, m.buttons),
                  std::make_tuple(text, title, icon, MsgButtons::OK));
        p.messages.clear();
    }
};

}  // namespace holdem::test
