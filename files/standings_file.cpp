#include <filesystem>
#include <system_error>

#include "engine/game_state.h"
#include "files/roster_file.h"
#include "files/seq_text.h"

namespace holdem {

namespace {

const char* const kStandingsFile = "stnd.dat";

std::string UserStandingsPath(const Game& g) {
    return g.UserDataFolder.empty() ? std::string() : g.UserDataFolder + kStandingsFile;
}

// Writes stnd.dat in full at path, which becomes StandingsPath; the per-user
// folder is made first.
bool TryWriteStandings(Game& g, const std::string& path) {
    if (path.empty()) return false;
    try {
        if (path == UserStandingsPath(g)) {
            std::error_code ec;
            std::filesystem::create_directories(
                std::u8string(g.UserDataFolder.begin(), g.UserDataFolder.end()), ec);
        }
        WriteRosterFile(g, path);
        g.StandingsPath = path;
        return true;
    } catch (const FileError&) {
        return false;
    }
}

// Where AppFolder cannot or may not be written, stnd.dat goes to the per-user
// folder and StandingsPath follows it there. False when neither works.
bool WriteStandings(Game& g) {
    const std::string userPath = UserStandingsPath(g);
    if (g.InstalledCopy) g.StandingsPath = userPath;
    if (g.StandingsPath.empty() && !g.InstalledCopy) g.StandingsPath = g.AppFolder + kStandingsFile;
    return TryWriteStandings(g, g.StandingsPath) ||
           (userPath != g.StandingsPath && TryWriteStandings(g, userPath));
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
