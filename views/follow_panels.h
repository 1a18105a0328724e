// What lets the user follow the game beyond the table itself: the hand log
// and tournament docks, the "Finish Hand" button, playing out the field after
// the user is out, and the statistics. It reads Game::view after each redraw
// and calls the game only through the window, like every other control.
#pragma once

#include <QObject>
#include <QStringList>
#include <string>

#include "files/statistics.h"

class QAction;
class QDockWidget;
class QMenu;
class QPushButton;

namespace holdem {

class frmMain;
class HandLogPanel;
class TourneyPanel;

class FollowPanels : public QObject {
    Q_OBJECT
public:
    // Builds the docks, the menu and the button on the window.
    explicit FollowPanels(frmMain& window);
    // Reads the statistics and the panel choices from the per-user folder.
    void Load(const std::string& userDataFolder);
    // Called after every redraw of the window.
    void AfterRedraw();
    // Finish Hand shows only while the user has no decision left in the hand.
    void ShowFinishHand();

    HandLogPanel* handLog = nullptr;
    TourneyPanel* tourney = nullptr;
    QDockWidget* dockHandLog = nullptr;
    QDockWidget* dockTourney = nullptr;
    QPushButton* cmdFinishHand = nullptr;
    QMenu* mnuGame = nullptr;
    QAction *mnuHandLog = nullptr, *mnuTourneyFigures = nullptr, *mnuSaveLog = nullptr, *mnuPlayOut = nullptr,
            *mnuStatistics = nullptr;

    const Statistics& stats() const { return stats_; }
    // Fires the rest of the hand's ticks at once; the button's action.
    void cmdFinishHand_Click();
    void mnuPlayOut_Click();
    void mnuSaveLog_Click();
    void mnuStatistics_Click();

private:
    void BuildMenu();
    void BuildDocks();
    void TakeEvents();
    void ShowDocks();
    void Save();

    frmMain& window_;
    Statistics stats_;
    StatisticsWatcher watcher_;
    std::string statsPath_;
    bool saveFailureShown_ = false;
    QStringList joined_;
};

}  // namespace holdem
