#include "engine/play_out.h"

#include <algorithm>
#include <utility>

#include "engine/end_of_hand.h"
#include "engine/log_events.h"

namespace holdem {

namespace {

constexpr int kUser = 1;
// A bound no field comes near: blinds that rise as players go end every field.
constexpr int kMaxRounds = 1000000;
// A hand has far fewer ticks than this; it guards a chain that would not end.
constexpr int kMaxTicks = 100000;

int CountPlayersLeft(const Game& g) {
    int n = 0;
    for (int p = 1; p <= std::min<int>(g.TournamentSize, kRoster); ++p) n += g.RosterBank[p] > 0 ? 1 : 0;
    return n;
}

bool UserTurnOpen(const Game& g) { return g.view.cmdPlay[1].visible && g.RunningTimer() == kTimerCount; }

// Balancing keeps position 1 for the user and never seats anybody there.
// With the user out, a dead seat 1 would leave table 1 a seat short and the
// tables could end up out of their order; so a player of table 1 takes the
// seat, by the same exchange of roster positions that balancing makes.
void KeepSeatOneTaken(Game& g) {
    if (g.RosterBank[kUser] > 0) return;
    for (int p = kUser + 1; p <= kSeats; ++p) {
        if (g.RosterBank[p] <= 0) continue;
        std::swap(g.RosterName[p], g.RosterName[kUser]);
        std::swap(g.RosterBank[p], g.RosterBank[kUser]);
        std::swap(g.RosterNumber[p], g.RosterNumber[kUser]);
        std::swap(g.RosterPlace[p], g.RosterPlace[kUser]);
        return;
    }
}

// One round: each table a hand, then what a shown hand's end runs after the
// other tables, in its order.
void PlayOneRound(Game& g) {
    const int tables = g.TournamentSize <= kSeats ? 1 : std::max<int>(g.TablesInPlay, 1);
    for (int t = 1; t <= tables; ++t) g.PlayTableHand(t);
    g.ButtonSeat = g.TableButton[1];
    g.SetBlinds();
    CountAndPlace(g);
    KeepSeatOneTaken(g);
    if (g.PlayersLeft > 1) g.BalanceTables();
}

void LogWinner(Game& g, int position) {
    LogEvent(g, MakeLine(LogKind::Winner, g.RosterName[position], g.TournamentSize));
}

}  // namespace

bool CanPlayOutField(const Game& g) {
    return g.GameEnded && g.UserFinishPlace > 0 && CountPlayersLeft(g) > 1;
}

PlayOutReport PlayOutField(Game& g, const std::function<bool(int)>& onRound) {
    PlayOutReport report;
    if (!CanPlayOutField(g)) return report;
    const bool sound = g.view.mnuSound.checked;
    g.view.mnuSound.checked = false;
    // Table 1 has no button of its own among the background tables'.
    g.TableButton[1] = g.ButtonSeat;
    KeepSeatOneTaken(g);
    while (report.rounds < kMaxRounds && g.PlayersLeft > 1) {
        PlayOneRound(g);
        ++report.rounds;
        if (g.PlayersLeft > 1 && onRound && !onRound(g.PlayersLeft)) break;
    }
    g.view.mnuSound.checked = sound;
    if (g.PlayersLeft != 1) return report;
    for (int p = 1; p <= g.TournamentSize; ++p)
        if (g.RosterBank[p] > 0) report.winnerPosition = p;
    report.finished = true;
    LogWinner(g, report.winnerPosition);
    return report;
}

std::vector<Standing> FinalStandings(const Game& g) {
    std::vector<Standing> out;
    if (CountPlayersLeft(g) != 1) return out;
    for (int p = 1; p <= std::min<int>(g.TournamentSize, kRoster); ++p) {
        int place = g.RosterBank[p] > 0 ? 1 : g.RosterPlace[p];
        out.push_back({place, g.RosterName[p], g.RosterNumber[p]});
    }
    std::sort(out.begin(), out.end(), [](const Standing& a, const Standing& b) { return a.place < b.place; });
    return out;
}

TourneyFigures ComputeTourneyFigures(const Game& g) {
    TourneyFigures f;
    f.fieldSize = g.TournamentSize;
    f.tablesInPlay = g.TablesInPlay;
    f.smallBlind = g.SmallBlind;
    int64_t chips = 0;
    int above = 0;
    for (int p = 1; p <= std::min<int>(g.TournamentSize, kRoster); ++p) {
        if (g.RosterBank[p] <= 0) continue;
        ++f.playersLeft;
        chips += g.RosterBank[p];
        if (g.RosterBank[p] > g.RosterBank[kUser]) ++above;
    }
    if (f.playersLeft > 0) f.averageStack = (chips + f.playersLeft / 2) / f.playersLeft;
    if (g.RosterBank[kUser] > 0 && g.UserFinishPlace == 0) f.userPlace = above + 1;
    BlindRise rise = NextBlindRise(g.TournamentSize, g.SmallBlind);
    f.nextRiseAt = rise.playersLeft;
    f.nextSmallBlind = rise.smallBlind;
    return f;
}

bool CanFinishHand(const Game& g) {
    if (g.GameEnded) return false;
    if (g.RunningTimer() == kTimerCount && !UserTurnOpen(g)) return false;
    return !g.SeatInHand[kUser] || g.SeatBank[kUser] <= 0;
}

int FinishHand(Game& g) {
    int ticks = 0;
    while (ticks < kMaxTicks && CanFinishHand(g)) {
        TimerId id = g.RunningTimer();
        if (id != kTimerCount) {
            g.FireTimer(id);
        } else {
            g.cmdPlay_Click(1);
            if (UserTurnOpen(g)) break;
        }
        ++ticks;
    }
    return ticks;
}

}  // namespace holdem
