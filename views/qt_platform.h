// The Qt answers to what the game asks of the outside: message boxes, the
// modal forms, the file dialogs, sound and the pause.
#pragma once

#include <memory>

#include "engine/platform.h"

class QDialog;
class QWidget;

namespace holdem {

class frmMain;
class frmPlayerName;
class frmHelp;
class frmRules;
class SoundBank;

class QtPlatform : public Platform {
public:
    explicit QtPlatform(frmMain* window);
    ~QtPlatform() override;

    MsgAnswer MessageBox(const std::string& text, const std::string& title, MsgIcon icon,
                         MsgButtons buttons) override;
    std::optional<std::string> OpenFileDialog(const FileDialogRequest& request) override;
    std::optional<std::string> SaveFileDialog(const FileDialogRequest& request) override;
    void PlaySound(const std::string& name) override;
    void Pause() override;

    int32_t ShowBetAmount(const BetAmountRequest& request) override;
    NewGameChoices ShowNewGame(int16_t gameSpeed) override;
    std::string ShowPlayerName() override;
    void ShowGameOver(int16_t userFinishPlace) override;
    void ShowPotBreakdown(const PotBreakdown& breakdown) override;
    void ShowStandings(const std::string& standingsPath) override;
    void ShowFloor(const std::string& standingsPath) override;
    void ShowInfo(InfoForm form) override;

private:
    // The table behind a modal form shows the state the game has reached.
    QWidget* Owner();
    int Run(QDialog& form);

    frmMain* window_;
    std::unique_ptr<SoundBank> sound_;
    // Kept for the whole run: they reopen as they were left.
    frmPlayerName* playerName_ = nullptr;
    frmHelp* help_ = nullptr;
    frmRules* rules_ = nullptr;
};

// "Saved Game Files (*.sgf)|*.sgf" as a Qt file dialog filter.
std::string QtFileFilter(const std::string& filter);
// The first pattern's extension ("sgf"), added to a name typed without one.
std::string DefaultSuffix(const std::string& filter);

}  // namespace holdem
