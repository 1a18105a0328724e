// Everything the game must ask of or do through the outside world. The Qt
// window implements it; tests use a scripted one; the simulator a silent one.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace holdem {

enum class MsgIcon { None, Question, Information, Exclamation };
enum class MsgButtons { OK, YesNo, YesNoCancel };
enum class MsgAnswer { OK, Yes, No, Cancel };

// What frmBetAmount reads when it opens.
struct BetAmountRequest {
    int16_t HighBetIndex = 0;
    int32_t HighBetValue = 0;
    int32_t ToCallAmount = 0;
    int32_t MaxBetAmount = 0;
};

// The three lists of frmNewGame as the user left them; cancelled for [CANCEL].
struct NewGameChoices {
    bool cancelled = true;
    std::string gameType;  // "Single Table" or "Tournament"
    std::string players;   // "80", "200" or "1,000"
    std::string speed;     // "Fast", "Medium" or "Slow"
};

// The figures frmPotBreakdown shows, seats 1..8.
struct PotBreakdown {
    std::string name[9];
    int32_t bet[9] = {};
    int32_t total = 0;
};

// Forms that only show something and report nothing back to the game.
enum class InfoForm { Splash, Tip, Help, Rules, About };

struct FileDialogRequest {
    std::string title;   // "Open Saved Game" or "Save Game As"
    std::string filter;  // "Saved Game Files (*.sgf)|*.sgf"
    std::string folder;  // AppFolder
};

class Platform {
public:
    virtual ~Platform() = default;

    virtual MsgAnswer MessageBox(const std::string& text, const std::string& title, MsgIcon icon,
                                 MsgButtons buttons) = 0;
    // Returns the chosen path, or nothing when the dialog was cancelled.
    virtual std::optional<std::string> OpenFileDialog(const FileDialogRequest& request) = 0;
    virtual std::optional<std::string> SaveFileDialog(const FileDialogRequest& request) = 0;
    // Plays a named sound without waiting; silence when it cannot.
    virtual void PlaySound(const std::string& name) = 0;
    // Stands still for just over 1,000 ms: no tick and no click is handled.
    virtual void Pause() = 0;

    // Modal forms. ShowBetAmount returns BetAmount, 0 when nothing was entered.
    virtual int32_t ShowBetAmount(const BetAmountRequest& request) = 0;
    virtual NewGameChoices ShowNewGame(int16_t gameSpeed) = 0;
    virtual std::string ShowPlayerName() = 0;
    virtual void ShowGameOver(int16_t userFinishPlace) = 0;
    virtual void ShowPotBreakdown(const PotBreakdown& breakdown) = 0;
    virtual void ShowStandings(const std::string& standingsPath) = 0;
    virtual void ShowFloor(const std::string& standingsPath) = 0;
    virtual void ShowInfo(InfoForm form) = 0;
};

// Answers nothing and shows nothing: for the simulator and the benchmark.
class SilentPlatform : public Platform {
public:
    MsgAnswer MessageBox(const std::string&, const std::string&, MsgIcon, MsgButtons) override {
        ++messages;
        return MsgAnswer::OK;
    }
    std::optional<std::string> OpenFileDialog(const FileDialogRequest&) override { return {}; }
    std::optional<std::string> SaveFileDialog(const FileDialogRequest&) override { return {}; }
    void PlaySound(const std::string&) override {}
    void Pause() override {}
    int32_t ShowBetAmount(const BetAmountRequest&) override { return 0; }
    NewGameChoices ShowNewGame(int16_t) override { return {}; }
    std::string ShowPlayerName() override { return {}; }
    void ShowGameOver(int16_t) override {}
    void ShowPotBreakdown(const PotBreakdown&) override {}
    void ShowStandings(const std::string&) override {}
    void ShowFloor(const std::string&) override {}
    void ShowInfo(InfoForm) override {}

    int messages = 0;  // message boxes seen; the closing checks must never raise one
};

}  // namespace holdem
