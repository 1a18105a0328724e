#include <exception>
#include <filesystem>
#include <system_error>

#include "engine/game_state.h"
#include "files/seq_text.h"

namespace holdem {

namespace {

const char* const kSettingsFile = "settings.dft";

// Intervals in milliseconds by GameSpeed; row 0 is not a speed.
struct SpeedIntervals {
    int32_t deal;      // TimerDealHole, TimerDealFlop, TimerDealTurn, TimerDealRiver
    int32_t bet;       // TimerBetHole, TimerBetFlop, TimerBetTurn, TimerBetRiver
    int32_t handOver;  // TimerHandOver
};
constexpr SpeedIntervals kSpeedTable[4] = {
    {0, 0, 0},
    {350, 800, 1000},   // 1 fast
    {450, 1200, 1200},  // 2 medium
    {550, 1600, 1600},  // 3 slow
};

constexpr TimerId kDealTimers[] = {TimerDealHole, TimerDealFlop, TimerDealTurn, TimerDealRiver};
constexpr TimerId kBetTimers[] = {TimerBetHole, TimerBetFlop, TimerBetTurn, TimerBetRiver};

// What the menus show before any file is read.
constexpr int16_t kDefaultSpeed = 2;

bool FileExists(const std::string& path) {
    std::error_code ec;
    return !path.empty() && std::filesystem::is_regular_file(std::u8string(path.begin(), path.end()), ec);
}

std::string UserSettingsPath(const Game& g) {
    return g.UserDataFolder.empty() ? std::string() : g.UserDataFolder + kSettingsFile;
}

void WriteSettingsTo(const Game& g, const std::string& path) {
    if (path.empty()) throw FileError("no folder for the settings");
    SeqWriter out(path);
    out.Int(g.GameSpeed).Bool(g.SoundOn).Bool(g.TipsAtStartup).EndLine();
    out.Commit();
}

// False when the file could not be written; the per-user folder is made first.
bool TryWriteSettings(const Game& g, const std::string& path) {
    if (path.empty()) return false;
    try {
        if (path == UserSettingsPath(g)) {
            std::error_code ec;
            std::filesystem::create_directories(
                std::u8string(g.UserDataFolder.begin(), g.UserDataFolder.end()), ec);
        }
        WriteSettingsTo(g, path);
        return true;
    } catch (const std::exception&) {
        // Settings are a convenience: an exit is never held up by them.
        return false;
    }
}

}  // namespace

void Game::SetGameSpeed() {
    if (GameSpeed < 1 || GameSpeed > 3) return;
    view.mnuFastSpeed.checked = GameSpeed == 1;
    view.mnuMediumSpeed.checked = GameSpeed == 2;
    view.mnuSlowSpeed.checked = GameSpeed == 3;
    const SpeedIntervals& speed = kSpeedTable[GameSpeed];
    for (TimerId id : kDealTimers) view.timer[id].interval = speed.deal;
    for (TimerId id : kBetTimers) view.timer[id].interval = speed.bet;
    view.timer[TimerHandOver].interval = speed.handOver;
}

// A settings file in the per-user folder exists only because AppFolder could
// not or may not be written, so it is the newer one. A missing or unreadable file gives
// the values the menus show before any file is read: nothing here may keep
// the program from starting.
void Game::ReadSettings() {
    int16_t speed = kDefaultSpeed;
    bool sound = true;
    bool tips = true;
    std::string path;
    try {
        const std::string userPath = UserSettingsPath(*this);
        path = FileExists(userPath) ? userPath : AppFolder + kSettingsFile;
        SeqReader in(path, kMaxSettingsFileBytes);
        int16_t fileSpeed = in.ReadInt16();
        bool fileSound = in.ReadBool();
        bool fileTips = in.ReadBool();
        speed = fileSpeed;
        sound = fileSound;
        tips = fileTips;
    } catch (const FileError& e) {
        // Damage is mended by the next exit, which writes the file anew; a file
        // too large to be ours was put there by something else, so say so.
        std::error_code ec;
        if (std::filesystem::file_size(path, ec) > kMaxSettingsFileBytes && !ec)
            platform->MessageBox(
                std::string("The settings were not read; the game starts with its usual ones.\n") + e.what(),
                "Texas Hold'em", MsgIcon::Exclamation, MsgButtons::OK);
    } catch (const std::exception&) {
    }
    GameSpeed = speed;
    SoundOn = sound;
    TipsAtStartup = tips;
    SetGameSpeed();
    view.mnuSound.checked = SoundOn;
    view.mnuTips.checked = TipsAtStartup;
}

// Once the settings live in the per-user folder they stay there; otherwise
// they go to AppFolder, and to the per-user folder when AppFolder refuses.
void Game::WriteSettings() {
    const std::string userPath = UserSettingsPath(*this);
    const std::string appPath = InstalledCopy ? std::string() : AppFolder + kSettingsFile;
    const bool userFirst = InstalledCopy || FileExists(userPath);
    if (!TryWriteSettings(*this, userFirst ? userPath : appPath))
        TryWriteSettings(*this, userFirst ? appPath : userPath);
}

void Game::mnuFastSpeed_Click() {
    GameSpeed = 1;
    SetGameSpeed();
}

void Game::mnuMediumSpeed_Click() {
    GameSpeed = 2;
    SetGameSpeed();
}

void Game::mnuSlowSpeed_Click() {
    GameSpeed = 3;
    SetGameSpeed();
}

void Game::mnuSound_Click() {
    view.mnuSound.checked = !view.mnuSound.checked;
    SoundOn = view.mnuSound.checked;
}

void Game::mnuTips_Click() {
    view.mnuTips.checked = !view.mnuTips.checked;
    TipsAtStartup = view.mnuTips.checked;
}

}  // namespace holdem
