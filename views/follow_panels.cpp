#include "views/follow_panels.h"

#include <QAction>
#include <QCoreApplication>
#include <QDockWidget>
#include <QFileDialog>
#include <QMenuBar>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QSaveFile>

#include "engine/end_of_hand.h"
#include "engine/play_out.h"
#include "views/frm_main.h"
#include "views/frm_statistics.h"
#include "views/hand_log_panel.h"
#include "views/table_scene.h"
#include "views/tourney_panel.h"

namespace holdem {

namespace {

// Where the play buttons stand; they are hidden whenever this one shows.
const kit::Twips kFinishHandButton{6600, 5520, 975, 375};

}  // namespace

FollowPanels::FollowPanels(frmMain& window) : QObject(&window), window_(window) {
    cmdFinishHand = new QPushButton(QStringLiteral("Fi&nish Hand"), window.scene()->Stage());
    cmdFinishHand->setObjectName(QStringLiteral("cmdFinishHand"));
    cmdFinishHand->setFont(kit::Sans(8.25));
    cmdFinishHand->setAutoDefault(false);
    cmdFinishHand->setToolTip(QStringLiteral("Play the rest of this hand at once (Alt+N)"));
    window.scene()->Place(cmdFinishHand, kFinishHandButton);
    cmdFinishHand->hide();
    connect(cmdFinishHand, &QPushButton::clicked, this, [this] { cmdFinishHand_Click(); });
    BuildDocks();
    BuildMenu();
}

void FollowPanels::BuildDocks() {
    auto dock = [this](const QString& title, const QString& name, QWidget* panel) {
        auto* d = new QDockWidget(title, &window_);
        d->setObjectName(name);
        d->setFeatures(QDockWidget::DockWidgetClosable);
        d->setWidget(panel);
        window_.addDockWidget(Qt::RightDockWidgetArea, d);
        return d;
    };
    tourney = new TourneyPanel;
    handLog = new HandLogPanel;
    dockTourney = dock(QStringLiteral("Tournament"), QStringLiteral("dockTourney"), tourney);
    dockHandLog = dock(QStringLiteral("Hand Log"), QStringLiteral("dockHandLog"), handLog);
    dockTourney->hide();
}

void FollowPanels::BuildMenu() {
    mnuGame = new QMenu(QStringLiteral("&Game"), &window_);
    window_.menuBar()->insertMenu(window_.mnuHelp->menuAction(), mnuGame);
    mnuHandLog = mnuGame->addAction(QStringLiteral("Hand &Log"));
    mnuHandLog->setCheckable(true);
    mnuHandLog->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_L));
    mnuTourneyFigures = mnuGame->addAction(QStringLiteral("&Tournament Figures"));
    mnuTourneyFigures->setCheckable(true);
    mnuSaveLog = mnuGame->addAction(QStringLiteral("Save Hand Log &As..."));
    mnuGame->addSeparator();
    mnuPlayOut = mnuGame->addAction(QStringLiteral("&Play Out the Field"));
    mnuGame->addSeparator();
    mnuStatistics = mnuGame->addAction(QStringLiteral("St&atistics..."));
    connect(mnuHandLog, &QAction::triggered, this, [this](bool on) {
        stats_.showHandLog = on;
        ShowDocks();
        Save();
    });
    connect(mnuTourneyFigures, &QAction::triggered, this, [this](bool on) {
        stats_.showTourney = on;
        ShowDocks();
        Save();
    });
    connect(dockHandLog, &QDockWidget::visibilityChanged, this, [this](bool visible) {
        // The dock's own close button: the same choice as the menu's.
        if (!visible && dockHandLog->isHidden() && window_.isVisible() && stats_.showHandLog) {
            stats_.showHandLog = false;
            ShowDocks();
            Save();
        }
    });
    connect(dockTourney, &QDockWidget::visibilityChanged, this, [this](bool visible) {
        bool atTourney = window_.game.TournamentSize > kSeats;
        if (!visible && dockTourney->isHidden() && window_.isVisible() && stats_.showTourney && atTourney) {
            stats_.showTourney = false;
            ShowDocks();
            Save();
        }
    });
    connect(mnuSaveLog, &QAction::triggered, this, [this] { mnuSaveLog_Click(); });
    connect(mnuPlayOut, &QAction::triggered, this, [this] { mnuPlayOut_Click(); });
    connect(mnuStatistics, &QAction::triggered, this, [this] { mnuStatistics_Click(); });
}

void FollowPanels::Load(const std::string& userDataFolder) {
    statsPath_ = userDataFolder.empty() ? std::string() : userDataFolder + kStatisticsFile;
    if (!statsPath_.empty()) stats_ = ReadStatistics(statsPath_);
    ShowDocks();
}

void FollowPanels::Save() {
    if (statsPath_.empty() || WriteStatistics(statsPath_, stats_) || saveFailureShown_) return;
    saveFailureShown_ = true;
    QMessageBox::warning(&window_, QStringLiteral("Statistics"),
                         QStringLiteral("Your statistics could not be saved to\n%1\n\nThe game goes on; "
                                        "they are kept until the program ends.")
                             .arg(QString::fromStdString(statsPath_)));
}

// Shows the docks the user chose, the figures only at a tournament table, and
// fits the window around the table and them.
void FollowPanels::ShowDocks() {
    const bool atTourney = window_.game.TournamentSize > kSeats;
    mnuHandLog->setChecked(stats_.showHandLog);
    mnuTourneyFigures->setChecked(stats_.showTourney);
    mnuTourneyFigures->setEnabled(atTourney);
    bool changed = dockHandLog->isHidden() == stats_.showHandLog ||
                   dockTourney->isHidden() == (stats_.showTourney && atTourney);
    dockHandLog->setVisible(stats_.showHandLog);
    dockTourney->setVisible(stats_.showTourney && atTourney);
    if (!changed) return;
    // A shown dock widens the window rather than shrink the table; a
    // maximized window keeps its size and the table scales to what is left.
    if (!(window_.windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen)))
        window_.resize(window_.size().expandedTo(window_.sizeHint()));
}

void FollowPanels::TakeEvents() {
    std::vector<LogLine>& log = window_.game.view.log;
    bool save = false;
    for (const LogLine& line : log) {
        handLog->Add(line);
        save = watcher_.Observe(stats_, line) || save;
        // Players who joined stay marked through the next hand.
        if (line.kind == LogKind::HandResult || line.kind == LogKind::GameStart) joined_.clear();
        if (line.kind == LogKind::Joined) joined_ << QString::fromStdString(line.name);
    }
    log.clear();
    if (save) Save();
}

void FollowPanels::AfterRedraw() {
    const Game& g = window_.game;
    if (!g.view.log.empty()) TakeEvents();
    ShowDocks();
    mnuPlayOut->setEnabled(CanPlayOutField(g));
    mnuSaveLog->setEnabled(!handLog->Empty());
    if (g.TournamentSize > kSeats && dockTourney->isVisible())
        tourney->Show(ComputeTourneyFigures(g), joined_);
}

void FollowPanels::ShowFinishHand() {
    cmdFinishHand->setVisible(CanFinishHand(window_.game));
    cmdFinishHand->raise();
}

void FollowPanels::cmdFinishHand_Click() {
    if (!CanFinishHand(window_.game)) return;
    // The one-second pause shows nothing while no tick is drawn, and nothing
    // in the game waits on it.
    window_.skipPause = true;
    window_.Call([this] { FinishHand(window_.game); });
    window_.skipPause = false;
}

void FollowPanels::mnuPlayOut_Click() {
    Game& g = window_.game;
    if (!CanPlayOutField(g)) return;
    const int startLeft = g.PlayersLeft;
    QProgressDialog progress(QStringLiteral("Playing out the field..."), QStringLiteral("&Stop"), 0,
                             std::max(startLeft - 1, 1), &window_);
    progress.setWindowTitle(QStringLiteral("Play Out the Field"));
    progress.setWindowModality(Qt::WindowModal);
    progress.setMinimumDuration(0);
    progress.setValue(0);
    PlayOutReport report;
    window_.Call([&] {
        report = PlayOutField(g, [&](int left) {
            progress.setValue(startLeft - left);
            progress.setLabelText(QStringLiteral("Playing out the field: %1 players left").arg(left));
            QCoreApplication::processEvents();
            return !progress.wasCanceled();
        });
    });
    progress.reset();
    if (!report.finished) return;
    const std::string winner = g.RosterName[report.winnerPosition];
    QMessageBox::information(
        &window_, QStringLiteral("Play Out the Field"),
        QString::fromStdString(winner) + QStringLiteral(" wins after %1 more rounds. You finished %2.")
                                             .arg(report.rounds)
                                             .arg(QString::fromStdString(Ordinal(g.UserFinishPlace))));
    window_.Call([&g] { g.mnuStandings_Click(); });
}

void FollowPanels::mnuSaveLog_Click() {
    QString path = QFileDialog::getSaveFileName(&window_, QStringLiteral("Save Hand Log"), QString(),
                                                QStringLiteral("Text Files (*.txt);;All Files (*)"));
    if (path.isEmpty()) return;
    if (!path.contains(QChar('.'))) path += QStringLiteral(".txt");
    QSaveFile file(path);
    QByteArray text = handLog->Text().toUtf8();
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.commit())
        QMessageBox::warning(
            &window_, QStringLiteral("Save Hand Log"),
            QStringLiteral("The hand log could not be saved to\n%1\n\n%2").arg(path, file.errorString()));
}

void FollowPanels::mnuStatistics_Click() {
    frmStatistics form(stats_, &window_);
    form.exec();
    if (!form.resetDone()) return;
    stats_ = form.stats();
    Save();
}

}  // namespace holdem
