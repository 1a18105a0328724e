// The main window: the table, its labels, cards and buttons, the menu bar and
// the nine hand timers. It owns the game and draws Game::view after every call
// into it; the game never touches a widget.
#pragma once

#include <QMainWindow>
#include <array>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "engine/game_state.h"
#include "views/view_kit.h"

class QAction;
class QMenu;
class QPushButton;
class QTimer;

namespace holdem {

class QtPlatform;
class FollowPanels;
class TableScene;

class frmMain : public QMainWindow {
    Q_OBJECT

    // Declared before the game, which keeps a reference to it.
    std::unique_ptr<QtPlatform> ownPlatform_;

public:
    // AppFolder is the executable's folder. A null platform means the Qt one,
    // owned by the window; tests pass a scripted one.
    explicit frmMain(const std::string& appFolder, Platform* platform = nullptr, QWidget* parent = nullptr);
    ~frmMain() override;

    Game game;

    // The start of the program after the window is built, in its order: the
    // settings, the standings path, the window shown, the splash, the tip.
    void Start();
    // Both ways out; false when the user cancelled the question.
    bool mnuExit_Click();

    // Draws every widget from game.view and keeps the QTimers in step.
    void Redraw();
    void RedrawWidgets();
    // Stands still for just over 1,000 ms with the table painted: no click,
    // key or tick is handled meanwhile.
    void PauseTable();
    // What a hand timer's tick does: one call into the game, skipped while
    // another call runs.
    void TimerTick(TimerId id);
    // What ends the program; tests replace it.
    std::function<void()> onQuit;
    // Set while a hand is hurried: the pause of the hand's end is skipped.
    bool skipPause = false;
    // The hand log, the tournament figures, Finish Hand, play-out, statistics.
    FollowPanels* follow = nullptr;

    // The table's elements, named as the game names them.
    std::array<QLabel*, 9> lblName{}, lblBankDollarSign{}, lblBank{}, lblBet{}, lblPaid{};
    std::array<kit::PictureBox*, 9> iArrow{}, iButton{};
    std::array<kit::PictureBox*, 22> icard{};
    kit::ClickLabel* lblPot = nullptr;
    kit::ClickLabel* lblPotLabel = nullptr;
    QLabel* lblBlind = nullptr;
    QLabel* lblGoodLuck = nullptr;
    std::array<QPushButton*, 5> cmdPlay{};
    QPushButton* cmdDeal = nullptr;
    QPushButton* cmdStandings = nullptr;
    QPushButton* cmdFloor = nullptr;
    kit::PictureBox* picTableMoney = nullptr;
    QLabel* lblYouWon = nullptr;
    kit::PictureBox* table = nullptr;
    // The central widget: the table scaled to the room the window gives it.
    // A widget added to the table is placed with scene()->Place(widget, twips).
    TableScene* scene() const { return scene_; }

    QMenu *mnuFile = nullptr, *mnuTourney = nullptr, *mnuSettings = nullptr, *mnuSpeed = nullptr,
          *mnuHelp = nullptr;
    QAction *mnuNew = nullptr, *mnuOpen = nullptr, *mnuSave = nullptr, *mnuSaveAs = nullptr,
            *mnuExit = nullptr;
    QAction *mnuStandings = nullptr, *mnuFloor = nullptr;
    QAction *mnuSound = nullptr, *mnuFastSpeed = nullptr, *mnuMediumSpeed = nullptr, *mnuSlowSpeed = nullptr,
            *mnuTips = nullptr;
    QAction *mnuHelpIndex = nullptr, *mnuRules = nullptr, *mnuAbout = nullptr;

    std::array<QTimer*, kTimerCount> timers{};

    // The card pictures the window draws with (0 the back, 1..52 the faces).
    const kit::CardPictures& Cards() const { return *cards_; }

    // True while a call into the game runs; ticks and clicks wait it out.
    bool Busy() const { return busy_; }

protected:
    friend class FollowPanels;
    void closeEvent(QCloseEvent* event) override;

private:
    struct AutoSized {
        QLabel* label;
        QRect box;  // the place in the layout, unscaled; the label grows around it
    };

    void BuildTable();
    void BuildSeat(int seat, QWidget* client);
    void BuildMiddle(QWidget* client);
    void BuildButtons(QWidget* client);
    void BuildWinnerPanel(QWidget* client);
    void BuildMenus();
    void BuildTimers();

    // Runs one call into the game, then redraws; never re-enters.
    void Call(const std::function<void()>& routine);
    void SyncTimers();
    bool ExitQuestionNeeded(bool closeBox) const;
    bool Exit(bool closeBox);
    void AutoSize(QLabel* label, const QRect& layoutBox);
    void SizeToText(const AutoSized& item);
    // Every button on the table, those beside the game's own included.
    std::vector<QPushButton*> TableButtons() const;
    void UpdateMenuKeys();
    static QChar AccessKey(const QString& caption);
    // Puts the keyboard on the felt, where no key presses a button.
    void FocusTable();
    void ShowInfo(InfoForm form);

    TableScene* scene_ = nullptr;
    std::vector<AutoSized> autoSized_;
    std::vector<std::pair<QMenu*, QString>> menuCaptions_;
    int buttonsShown_ = -1;
    std::unique_ptr<kit::CardPictures> cards_;
    bool busy_ = false;
    bool quitting_ = false;
};

}  // namespace holdem
