// Keeping the tables of a tournament together: single moves from the fullest
// table to the thinnest, the highest table broken up when the field fits on
// one table fewer, and in the end one final table. A move is an exchange of
// two roster positions; position 1, the user, never moves.
#include <array>
#include <utility>

#include "engine/game_state.h"
#include "engine/log_events.h"

namespace holdem {

namespace {

constexpr int kMaxPasses = 100;
constexpr int kSingleTableSize = 8;
constexpr int kUserPosition = 1;
constexpr int kSettledTable = 5;  // a table of more than this is left alone
constexpr int kSettledLeast = 4;  // ... and one of more than this, within one of the fullest

// Sounds by the net number of players who joined the user's table.
constexpr const char* kMovedSound[] = {nullptr,     "MOVED",     "TWOMOVED", "THREEMOVED",
                                       "FOURMOVED", "FIVEMOVED", "SIXMOVED"};
constexpr int kMovedSounds = 6;

using TableCounts = std::array<int16_t, kTables + 1>;

void ExchangePositions(Game& g, int p, int q) {
    std::swap(g.RosterName[p], g.RosterName[q]);
    std::swap(g.RosterBank[p], g.RosterBank[q]);
    std::swap(g.RosterNumber[p], g.RosterNumber[q]);
    std::swap(g.RosterPlace[p], g.RosterPlace[q]);
}

// The player in the lowest seat of the fullest table takes the lowest free
// seat of the thinnest; a thinnest table with no free seat means no move.
void MoveOnePlayer(Game& g, int fullest, int emptiest) {
    int from = 0;
    for (int s = 1; s <= kSeats && from == 0; ++s) {
        int p = RosterPosition(fullest, s);
        if (p > kUserPosition && g.RosterBank[p] > 0) from = p;
    }
    int to = 0;
    for (int s = 1; s <= kSeats && to == 0; ++s) {
        int p = RosterPosition(emptiest, s);
        if (p > kUserPosition && g.RosterBank[p] == 0) to = p;
    }
    if (from != 0 && to != 0) ExchangePositions(g, from, to);
}

// The highest table in play goes, whatever its size: its players fill the
// free seats of the lower tables, table 1 first, seat by seat.
void BreakUpHighestTable(Game& g) {
    const int b = g.TablesInPlay;
    for (int j = 1; j <= kSeats; ++j) {
        int p = RosterPosition(b, j);
        if (g.RosterBank[p] <= 0) continue;
        const int last = b == 2 ? kSeats : kRoster;
        for (int q = kUserPosition + 1; q <= last; ++q) {
            if (TableOf(q) != b && g.RosterBank[q] == 0) {
                ExchangePositions(g, p, q);
                break;
            }
        }
    }
    --g.TablesInPlay;
}

int PlayersAtUserTable(const Game& g) {
    int n = 0;
    for (int p = 1; p <= kSeats; ++p) n += g.RosterBank[p] > 0 ? 1 : 0;
    return n;
}

}  // namespace

void Game::BalanceTables() {
    if (TournamentSize == kSingleTableSize) return;
    const RosterNumbers numbersBefore = RosterNumber;

    TableCounts tableCount{};
    int userTableBefore = 0;
    for (int pass = 1; pass <= kMaxPasses; ++pass) {
        PlayersLeft = 0;
        tableCount.fill(0);
        for (int p = 1; p <= kRoster; ++p) {
            if (RosterBank[p] > 0) {
                ++PlayersLeft;
                ++tableCount[TableOf(p)];
            }
        }
        if (pass == 1) userTableBefore = tableCount[1];

        // One loop, two scans: the fullest down from table 125 (the highest
        // of equals wins), the emptiest up from table 1 (the lowest wins). A
        // step that finds a new fullest skips the emptiest test.
        TablesInPlay = 0;
        int fullest = kTables;
        int emptiest = 1;
        for (int k = 1; k <= kTables; ++k) {
            if (tableCount[k] > 0) ++TablesInPlay;
            if (tableCount[kTables + 1 - k] > tableCount[fullest])
                fullest = kTables + 1 - k;
            else if (tableCount[k] < tableCount[emptiest] && tableCount[k] > 0)
                emptiest = k;
        }

        if (TablesInPlay < 2) {
            view.lblGoodLuck.text = "Final Table!";
            break;
        }
        if (tableCount[emptiest] > kSettledTable) break;
        if (tableCount[fullest] - tableCount[emptiest] < 2 && tableCount[emptiest] > kSettledLeast) break;

        if (PlayersLeft <= (TablesInPlay - 1) * kSeats)
            BreakUpHighestTable(*this);
        else
            MoveOnePlayer(*this, fullest, emptiest);
    }

    LogUserTableChanges(*this, numbersBefore);
    if (!view.mnuSound.checked) return;
    int joined = PlayersAtUserTable(*this) - userTableBefore;
    if (joined >= 1 && joined <= kMovedSounds) platform->PlaySound(kMovedSound[joined]);
}

}  // namespace holdem
