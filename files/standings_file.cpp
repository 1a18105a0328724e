#include <filesystem>
#include <system_error>

#include "engine/game_state.h"
#include "files/roster_file.h"
#include "files/seq_text.h"

namespace holdem {

namespace {

const char* const kStandingsFile = "stnd.dat";

// Writes stnd.dat in full; where AppFolder cannot be written it goes to the
// per-user folder and StandingsPath follows it there. False when neither works.
bool WriteStandings(Game& g) {
    if (g.StandingsPath.empty()) g.StandingsPath = g.AppFolder + kStandingsFile;
    try {
        WriteRosterFile(g, g.StandingsPath);
        return true;
    } catch (const FileError&) {
    }
    std::string userPath = g.UserDataFolder.empty() ? std::string() : g.UserDataFolder + kStandingsFile;
    if (userPath.empty() || userPath == g.StandingsPath) return false;
    try {
        std::error_code ec;
        std::filesystem::create_directories(std::u8string(g.UserDataFolder.begin(), g.UserDataFolder.end()),
                                            ec);
        WriteRosterFile(g, userPath);
        g.StandingsPath = userPath;
        return true;
    } catch (const FileError&) {
        return false;
    }
}

bool PrepareView(Game& g, const char* title) {
    if (WriteStandings(g)) return true;
    g.platform->MessageBox("The list of players could not be written to " + g.StandingsPath + ".", title,
                           MsgIcon::Exclamation, MsgButtons::OK);
    return false;
}

}  // namespace

void Game::cmdStandings_Click() {
    if (PrepareView(*this, "Standings")) platform->ShowStandings(StandingsPath);
}

void Game::mnuStandings_Click() { cmdStandings_Click(); }

void Game::cmdFloor_Click() {
    if (PrepareView(*this, "View Floor")) platform->ShowFloor(StandingsPath);
}

void Game::mnuFloor_Click() { cmdFloor_Click(); }

}  // namespace holdem
