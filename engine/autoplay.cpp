#include "engine/autoplay.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <filesystem>
#include <numeric>

namespace holdem::sim {

namespace {

constexpr int kStartingBank = 10000;
constexpr int kMaxHandsPerGame = 200000;
constexpr int kMaxStepsPerHand = 100000;

bool IsClosingCheck(const std::string& text) {
    return text.rfind("Table 1: Total Pot: ", 0) == 0 || text.rfind("Table Total: ", 0) == 0 ||
           text.rfind("Total Pot: ", 0) == 0;
}

bool UserTurnOpen(const Game& g) { return g.view.cmdPlay[1].visible && g.RunningTimer() == kTimerCount; }

int64_t FieldChips(const Game& g) {
    int64_t sum = 0;
    for (int p = 1; p <= kRoster; ++p) sum += g.RosterBank[p];
    return sum;
}

// The amount that leaves the stack for a raise to `target` in all, kept to
// what the bet dialog would accept (whole hundreds on top of the call, not
// over the stack). 0 when no such raise exists.
int32_t DialogAmount(const Game& g, int64_t total) {
    int32_t toCall = g.HighBetValue - g.SeatBet[1];
    int32_t max = static_cast<int32_t>(std::lround(g.SeatBank[1]));
    int64_t typed = total - toCall;
    typed = typed / 100 * 100;
    if (typed < 100) typed = 100;
    if (typed + toCall > max) {
        typed = (static_cast<int64_t>(max) - toCall) / 100 * 100;
        if (typed < 100) return 0;
    }
    return static_cast<int32_t>(typed + toCall);
}

// Seat 1 played by the opponents' own rule: the same chances, draws and sizes.
int RuleChoice(Game& g, SimPlatform& plat, bool raisedThisStreet) {
    g.RateHand(1);
    int32_t h = g.HighBetValue;
    int32_t c = h - g.SeatBet[1];
    float bank = g.SeatBank[1];
    if (g.CardsKnown == 2) {
        if (c <= 0) return 1;
        float a = 100.0f * g.rnd.Rnd();
        if (a > g.CallChance) return 4;
        float b = 100.0f * g.rnd.Rnd();
        if (b < g.RaiseChance && !raisedThisStreet) {
            float x = RoundHalfEven(9.0f * g.rnd.Rnd() + 1.0f);
            if (x > 8) x = 10;
            double amount = 100.0 * RoundHalfEven((x * h + h - g.SeatBet[1]) / 100.0);
            plat.nextBetAmount = DialogAmount(g, static_cast<int64_t>(amount));
            return 3;
        }
        return 2;
    }
    auto sizeShare = [&g]() {
        float x = RoundHalfEven(19.0f * g.rnd.Rnd() + 1.0f);
        if (x > 16) x = 20;
        return x * 5 / 100.0;
    };
    if (c <= 0) {
        float a = 100.0f * g.rnd.Rnd();
        if (a <= g.RaiseChance && bank > 0 && !raisedThisStreet) {
            double amount = 100.0 * RoundHalfEven(sizeShare() * bank / 100.0);
            plat.nextBetAmount = DialogAmount(g, static_cast<int64_t>(amount));
            return 3;
        }
        return 1;
    }
    float a = 100.0f * g.rnd.Rnd();
    if (a > g.CallChance) return 4;
    float b = 100.0f * g.rnd.Rnd();
    if (b < g.RaiseChance && !raisedThisStreet) {
        double amount = 100.0 * RoundHalfEven(((bank - c) * sizeShare() + c) / 100.0);
        plat.nextBetAmount = DialogAmount(g, static_cast<int64_t>(amount));
        return 3;
    }
    return 2;
}

int Choose(Game& g, SimPlatform& plat, Policy policy, bool raisedThisStreet) {
    const auto& b = g.view.cmdPlay;
    plat.nextBetAmount = 0;
    switch (policy) {
        case Policy::Caller:
            return b[2].enabled ? 2 : 1;
        case Policy::Folder:
            return b[1].enabled ? 1 : 4;
        case Policy::Raiser:
            if (b[3].enabled && !raisedThisStreet) {
                plat.nextBetAmount = DialogAmount(g, g.HighBetValue + 2LL * g.SmallBlind);
                if (plat.nextBetAmount > 0) return 3;
            }
            return b[2].enabled ? 2 : 1;
        case Policy::Rule:
            return RuleChoice(g, plat, raisedThisStreet);
    }
    return 1;
}

// Prints the engine's own events as the window's hand log shows them.
class HandLog {
public:
    explicit HandLog(std::FILE* out) : out_(out) {}

    // Prints what the game has logged since the last call, and takes it away.
    void Print(Game& g) {
        if (!out_) return;
        for (const LogLine& line : g.view.log) {
            if (line.kind == LogKind::HandStart) std::fputc('\n', out_);
            std::fprintf(out_, "%s\n", FormatLogLine(line).c_str());
        }
        g.view.log.clear();
    }

private:
    std::FILE* out_;
};

}  // namespace

bool ParsePolicy(const std::string& name, Policy& out) {
    if (name == "caller")
        out = Policy::Caller;
    else if (name == "folder")
        out = Policy::Folder;
    else if (name == "raiser")
        out = Policy::Raiser;
    else if (name == "rule")
        out = Policy::Rule;
    else
        return false;
    return true;
}

MsgAnswer SimPlatform::MessageBox(const std::string& text, const std::string& title, MsgIcon icon,
                                  MsgButtons buttons) {
    SilentPlatform::MessageBox(text, title, icon, buttons);
    if (IsClosingCheck(text))
        closingChecks.push_back(text);
    else
        ++refusals;
    return buttons == MsgButtons::OK ? MsgAnswer::OK : MsgAnswer::No;
}

int32_t SimPlatform::ShowBetAmount(const BetAmountRequest&) { return nextBetAmount; }

void SetUpGame(Game& game, int players) {
    game.TournamentSize = static_cast<int16_t>(players);
    game.SavedGamePath.clear();
    game.HandsPlayed = 0;
    game.GameEnded = false;
    game.SeatName[1] = "Player 1";
    // The shipped roster when there is one, as a new game in the window reads it.
    if (std::filesystem::exists(game.AppFolder + "gamedata.dat")) {
        game.LoadRoster();
        return;
    }
    for (int p = 1; p <= kRoster; ++p) {
        game.RosterName[p].clear();
        game.RosterBank[p] = 0;
        game.RosterPlace[p] = 0;
        game.RosterNumber[p] = 0;
    }
    for (int p = 1; p <= players; ++p) {
        game.RosterName[p] = p == 1 ? game.SeatName[1] : "Player " + std::to_string(p);
        game.RosterBank[p] = kStartingBank;
        game.RosterNumber[p] = static_cast<int16_t>(p);
    }
    game.PlayersLeft = static_cast<int16_t>(players);
    game.NextFinishPlace = game.PlayersLeft;
    game.UserFinishPlace = 0;
    for (int s = 1; s <= kSeats; ++s) {
        game.SeatName[s] = game.RosterName[s];
        game.SeatBank[s] = static_cast<float>(game.RosterBank[s]);
    }
    game.rnd.Randomize();
    for (int i = 0; i < 3; ++i)
        game.ButtonSeat = static_cast<int16_t>(RoundHalfEven(game.rnd.Rnd() * 7.0f) + 1);
    game.SmallBlind = 100;
    game.GameUnsaved = false;
    game.StopHandTimers();
    game.BalanceTables();
    game.CardsDealt = 0;
    game.StartHand();
}

namespace {

// The tables as BalanceTables leaves them. Every table from 1 to TablesInPlay
// holds a player and none above it does. A thin table may stand where the
// balancing's own scan passes it by, so the field is checked against that
// scan: its stop tests must hold, unless the field is one the routine cannot
// settle (nine players shuttling between two tables, or a thinnest table
// with no seat to move to).
constexpr int kSettledTable = 5;  // the balancing leaves a table of more alone
constexpr int kSettledLeast = 4;  // ... and one of more, within one of the fullest
constexpr int kShuttle = 9;       // players that two tables pass back and forth

template <typename Fail>
void CheckTables(const Game& g, Fail fail) {
    std::array<int, kTables + 1> count{};
    int left = 0;
    for (int p = 1; p <= kRoster; ++p) {
        if (g.RosterBank[p] > 0) {
            ++count[TableOf(p)];
            ++left;
        }
    }
    for (int t = 1; t <= kTables; ++t) {
        if (t <= g.TablesInPlay && count[t] == 0)
            fail("table " + std::to_string(t) + " is in play with no player");
        if (t > g.TablesInPlay && count[t] != 0) fail("players beyond the tables in play");
    }
    if (g.TablesInPlay < 2) return;
    int fullest = kTables, emptiest = 1;
    for (int k = 1; k <= kTables; ++k) {
        if (count[kTables + 1 - k] > count[fullest])
            fullest = kTables + 1 - k;
        else if (count[k] < count[emptiest] && count[k] > 0)
            emptiest = k;
    }
    const int thin = count[emptiest];
    if (thin > kSettledTable || (count[fullest] - thin < 2 && thin > kSettledLeast)) return;
    const bool shuttle = g.TablesInPlay == 2 && left == kShuttle;
    bool seatFree = false;
    for (int s = 1; s <= kSeats; ++s) {
        int p = RosterPosition(emptiest, s);
        seatFree |= p > 1 && g.RosterBank[p] == 0;
    }
    const bool noMove = left > (g.TablesInPlay - 1) * kSeats && !seatFree;
    if (!shuttle && !noMove)
        fail("table " + std::to_string(emptiest) + " holds only " + std::to_string(thin) +
             ", and the balancing would go on");
}

}  // namespace

void CheckField(const Game& g, int64_t fieldChips, std::vector<std::string>& violations) {
    auto fail = [&](const std::string& what) {
        violations.push_back("hand " + std::to_string(g.HandsPlayed) + ": " + what);
    };
    if (FieldChips(g) != fieldChips)
        fail("field chips " + std::to_string(FieldChips(g)) + " instead of " + std::to_string(fieldChips));
    int n = g.TournamentSize;
    std::vector<int> seenNumber(n + 1, 0), seenPlace(n + 1, 0);
    for (int p = 1; p <= n; ++p) {
        int num = g.RosterNumber[p];
        if (num < 1 || num > n || seenNumber[num]++) fail("roster is not a permutation of the field");
        int place = g.RosterPlace[p];
        if (g.RosterBank[p] < 0) fail("negative bank");
        if (place != 0) {
            if (place < 1 || place > n || seenPlace[place]++)
                fail("finishing place given twice or out of range");
            if (g.RosterBank[p] != 0) fail("a placed player holds chips");
        } else if (g.RosterBank[p] == 0) {
            fail("a busted player has no place");
        }
    }
    for (int p = n + 1; p <= kRoster; ++p)
        if (g.RosterBank[p] != 0) fail("chips beyond the field");
    if (g.RosterNumber[1] != 1) fail("the user left position 1");
    if (n > 8 && !g.GameEnded) CheckTables(g, fail);
}

GameResult PlayOneGame(const std::string& appFolder, int players, uint64_t seed, Policy policy,
                       std::FILE* log, const std::function<void(Game&)>& atEnd) {
    SimPlatform plat;
    Game g(plat);
    g.AppFolder = appFolder;
    g.view.logging = log != nullptr;
    g.view.mnuSound.checked = true;  // sounds are silent here, but take every path
    g.rnd.SeedDeterministic(seed);
    GameResult r;
    r.players = players;
    HandLog hlog(log);
    Signature sig;

    SetUpGame(g, players);
    const int64_t fieldChips = static_cast<int64_t>(players) * kStartingBank;
    auto violate = [&](const std::string& what) {
        r.violations.push_back("hand " + std::to_string(g.HandsPlayed) + ": " + what);
    };

    while (r.hands < kMaxHandsPerGame) {
        ++r.hands;
        hlog.Print(g);
        int street = 0;
        bool raised = false;
        int steps = 0;
        for (; steps < kMaxStepsPerHand; ++steps) {
            TimerId id = g.RunningTimer();
            if (id != kTimerCount) {
                g.FireTimer(id);
            } else if (UserTurnOpen(g)) {
                if (g.Street != street) {
                    street = g.Street;
                    raised = false;
                }
                int choice = Choose(g, plat, policy, raised);
                g.cmdPlay_Click(choice);
                if (UserTurnOpen(g)) {  // refused or void: take the plainest move left
                    const auto& b = g.view.cmdPlay;
                    g.cmdPlay_Click(b[2].enabled ? 2 : b[1].enabled ? 1 : 4);
                } else if (choice == 3) {
                    raised = true;
                }
                if (UserTurnOpen(g)) {
                    violate("the user's turn cannot be closed");
                    break;
                }
            } else {
                break;  // between hands or the game is over
            }
            std::string why;
            if (!g.state_is_ok(&why)) violate(why);
            hlog.Print(g);
        }
        if (steps == kMaxStepsPerHand) violate("the hand never ended");
        for (const auto& text : plat.closingChecks) violate("closing check fired: " + text);
        plat.closingChecks.clear();
        hlog.Print(g);
        CheckField(g, fieldChips, r.violations);
        for (int s = 1; s <= kSeats; ++s) sig.Mix(static_cast<uint64_t>(g.RosterBank[s]));
        sig.Mix(static_cast<uint64_t>(g.PlayersLeft));
        if (!r.violations.empty() && r.violations.size() > 20) break;
        if (g.GameEnded) break;
        if (!g.view.cmdDeal.visible) {
            violate("the hand ended with no way to deal the next");
            break;
        }
        g.cmdDeal_Click();
    }
    if (!g.GameEnded) violate("the game did not end");
    r.userWon = g.RosterBank[1] == fieldChips;
    if (!r.userWon && g.RosterBank[1] != 0)
        violate("the game ended with the user neither out nor holding every chip");
    r.userPlace = r.userWon ? 1 : g.UserFinishPlace;
    // Every busted player holds one of the places from the bottom up.
    std::vector<int> places;
    for (int p = 1; p <= players; ++p)
        if (g.RosterPlace[p] != 0) places.push_back(g.RosterPlace[p]);
    std::sort(places.begin(), places.end());
    for (std::size_t i = 0; i < places.size(); ++i)
        if (places[i] != g.NextFinishPlace + 1 + static_cast<int>(i)) {
            violate("finishing places are not consecutive from the bottom");
            break;
        }
    if (r.userWon && static_cast<int>(places.size()) != players - 1) violate("places incomplete at the end");
    r.hash = sig.value;
    if (atEnd) atEnd(g);
    hlog.Print(g);
    return r;
}

}  // namespace holdem::sim
