// TimerHandOver, second half: the hand is paid, now the game moves on. The
// other tables play their hand, the blinds follow the players left, busted
// players get their places, and the game goes on or ends. Also the blinds
// themselves, the two ends of a game, and the pot breakdown.
#include "engine/end_of_hand.h"

#include <algorithm>
#include <climits>
#include <span>
#include <string>

#include "engine/game_state.h"
#include "engine/log_events.h"

namespace holdem {

namespace {

// Blinds by players left: the first line with n above `above` gives the small
// blind; the last line of each table takes everything else.
struct BlindStep {
    int above;
    int32_t smallBlind;
};

constexpr int kOtherwise = INT_MIN;

constexpr BlindStep kBlinds8[] = {{6, 100}, {4, 200}, {3, 400}, {2, 600}, {kOtherwise, 1000}};

constexpr BlindStep kBlinds80[] = {{60, 100},  {50, 200}, {40, 400}, {30, 600},         {20, 800},
                                   {10, 1000}, {5, 2000}, {3, 4000}, {kOtherwise, 8000}};

constexpr BlindStep kBlinds200[] = {{160, 100}, {120, 200}, {80, 400},  {60, 600},
                                    {50, 800},  {40, 1000}, {30, 1500}, {20, 2000},
                                    {10, 4000}, {5, 7000},  {3, 10000}, {kOtherwise, 15000}};

constexpr BlindStep kBlinds1000[] = {{900, 100},  {800, 200},  {700, 400},  {600, 600},  {500, 800},
                                     {400, 1000}, {300, 1500}, {200, 2000}, {100, 4000}, {50, 7000},
                                     {30, 10000}, {15, 15000}, {7, 20000},  {3, 25000},  {kOtherwise, 35000}};

struct BlindTable {
    int16_t tournamentSize;
    std::span<const BlindStep> steps;
};

constexpr BlindTable kBlindTables[] = {
    {8, kBlinds8}, {80, kBlinds80}, {200, kBlinds200}, {1000, kBlinds1000}};

// The user is roster entry 1 and sits in seat 1.
constexpr int kUser = 1;

}  // namespace

// Players who bust in the same count take consecutive places in rising roster
// order, the lowest entry the highest number.
void CountAndPlace(Game& g) {
    g.GameUnsaved = true;
    g.PlayersLeft = 0;
    int last = std::min<int>(g.TournamentSize, kRoster);
    for (int i = 1; i <= last; ++i) {
        if (g.RosterBank[i] > 0) {
            ++g.PlayersLeft;
        } else if (g.RosterPlace[i] == 0) {
            g.RosterPlace[i] = g.NextFinishPlace;
            if (g.RosterNumber[i] == kUser) g.UserFinishPlace = g.NextFinishPlace;
            LogEvent(g, MakeLine(g.RosterNumber[i] == kUser ? LogKind::UserOut : LogKind::Busted,
                                 g.RosterName[i], g.NextFinishPlace));
            --g.NextFinishPlace;
        }
    }
}

void LogFieldSummary(Game& g) {
    if (g.TournamentSize <= kSeats) return;
    LogLine line = MakeLine(LogKind::Field, {}, g.PlayersLeft);
    line.amount = g.SmallBlind;
    line.total = g.TablesInPlay;
    LogEvent(g, std::move(line));
}

std::string Ordinal(int place) {
    int lastTwo = place % 100;
    int last = place % 10;
    const char* ending = "th";
    if (lastTwo < 11 || lastTwo > 13) {
        if (last == 1) ending = "st";
        if (last == 2) ending = "nd";
        if (last == 3) ending = "rd";
    }
    return Plain(place) + ending;
}

std::string FinishText(int16_t place) { return "You Finished " + Ordinal(place); }

void Game::CloseHand() {
    for (int s = 1; s <= kSeats; ++s) BreakdownName[s] = RosterName[s];
    PlayOtherTables();
    SetBlinds();
    view.lblBlind.text =
        "Blinds: $" + Money(SmallBlind) + " - $" + Money(2 * static_cast<int64_t>(SmallBlind));
    CountAndPlace(*this);
    view.mnuSave.enabled = true;
    view.mnuSaveAs.enabled = true;

    // A busted user ends the game, however many players are left elsewhere.
    if (RosterBank[kUser] <= 0 && RosterPlace[kUser] >= 1) {
        EndGameForUser();
    } else if (PlayersLeft != 1) {
        BalanceTables();
        LogFieldSummary(*this);
        view.cmdDeal.visible = true;
        view.cmdStandings.visible = true;
        view.cmdFloor.visible = true;
    } else {
        DeclareTournamentWon();
    }
}

void Game::SetBlinds() {
    for (const BlindTable& table : kBlindTables) {
        if (table.tournamentSize != TournamentSize) continue;
        for (const BlindStep& step : table.steps) {
            if (PlayersLeft > step.above) {
                SmallBlind = step.smallBlind;
                return;
            }
        }
    }
}

BlindRise NextBlindRise(int16_t tournamentSize, int32_t smallBlind) {
    for (const BlindTable& table : kBlindTables) {
        if (table.tournamentSize != tournamentSize) continue;
        for (std::size_t i = 0; i + 1 < table.steps.size(); ++i)
            if (table.steps[i].smallBlind == smallBlind)
                return {table.steps[i].above, table.steps[i + 1].smallBlind};
    }
    return {};
}

void Game::EndGameForUser() {
    platform->PlaySound("GAMEOVER");
    GameEnded = true;
    platform->ShowGameOver(UserFinishPlace);
    // Closing the game-over form leaves the table without a deal button.
    view.cmdDeal.visible = false;
}

void Game::DeclareTournamentWon() {
    LogEvent(*this, MakeLine(LogKind::Winner, RosterName[kUser], TournamentSize, true));
    view.picTableMoney.visible = true;
    platform->PlaySound("WIN");
    GameEnded = true;
    platform->Pause();
}

void Game::lblPot_Click() {
    if (!HandIsOver) {
        for (int s = 1; s <= kSeats; ++s) {
            BreakdownBet[s] = SeatTotalBet[s] + SeatBet[s];
            BreakdownName[s] = RosterName[s];
        }
    }
    BreakdownTotal = 0;
    for (int s = 1; s <= kSeats; ++s) BreakdownTotal += BreakdownBet[s];

    PotBreakdown breakdown;
    for (int s = 1; s <= kSeats; ++s) {
        breakdown.name[s] = BreakdownName[s];
        breakdown.bet[s] = BreakdownBet[s];
    }
    breakdown.total = BreakdownTotal;
    platform->ShowPotBreakdown(breakdown);
}

void Game::lblPotLabel_Click() { lblPot_Click(); }

}  // namespace holdem
