// holdem-sim: the whole engine without a window. Plays complete games with
// seat 1 driven by a chosen policy, fires each enabled timer at once, and
// checks after every hand that chips are conserved, that at most one hand
// timer ran and that no closing check fired. Exits non-zero on any violation.
//
//   holdem-sim --players 8|80|200|1000 --games N --seed S
//              --policy caller|folder|raiser|rule [--log] [--play-out]
//   holdem-sim --bench
//
// --play-out: once the user is out, the rest of the field plays on to its
// winner by the game's own routines, and the final standings are printed.
#include <algorithm>
#include <array>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <deque>
#include <filesystem>
#include <string>
#include <vector>

#include "engine/autoplay.h"
#include "engine/end_of_hand.h"
#include "engine/game_state.h"
#include "engine/hand_rank.h"
#include "engine/play_out.h"

using namespace holdem;
using namespace holdem::sim;

namespace {

struct Options {
    int players = 8;
    int games = 1;
    uint64_t seed = 1;
    Policy policy = Policy::Rule;
    bool log = false;
    bool bench = false;
    bool playOut = false;
};

[[noreturn]] void Usage(const char* why) {
    std::fprintf(stderr,
                 "holdem-sim: %s\n"
                 "usage: holdem-sim [--players 8|80|200|1000] [--games N] [--seed S]\n"
                 "                  [--policy caller|folder|raiser|rule] [--log] [--play-out] | --bench\n",
                 why);
    std::exit(2);
}

Options Parse(int argc, char** argv) {
    Options o;
    for (int i = 1; i < argc; ++i) {
        std::string a = argv[i];
        auto value = [&](const char* name) -> std::string {
            if (i + 1 >= argc) {
                std::string why = name;
                why += " needs a value";
                Usage(why.c_str());
            }
            return argv[++i];
        };
        if (a == "--players") {
            o.players = std::atoi(value("--players").c_str());
            if (o.players != 8 && o.players != 80 && o.players != 200 && o.players != 1000)
                Usage("--players must be 8, 80, 200 or 1000");
        } else if (a == "--games") {
            o.games = std::atoi(value("--games").c_str());
            if (o.games < 1) Usage("--games must be at least 1");
        } else if (a == "--seed") {
            o.seed = std::strtoull(value("--seed").c_str(), nullptr, 10);
        } else if (a == "--policy") {
            if (!ParsePolicy(value("--policy"), o.policy)) Usage("unknown policy");
        } else if (a == "--log") {
            o.log = true;
        } else if (a == "--play-out") {
            o.playOut = true;
        } else if (a == "--bench") {
            o.bench = true;
        } else {
            std::string why = "unknown option ";
            why += a;
            Usage(why.c_str());
        }
    }
    return o;
}

std::string AppFolderOf(const char* argv0) {
    std::error_code ec;
    auto exe = std::filesystem::canonical("/proc/self/exe", ec);
    std::filesystem::path dir = ec ? std::filesystem::path(argv0).parent_path() : exe.parent_path();
    if (dir.empty()) dir = ".";
    return (dir / "").string();
}

// ---- The benchmark: fixed seeds, a signature of the results, the figures ----

double Seconds(std::chrono::steady_clock::time_point a, std::chrono::steady_clock::time_point b) {
    return std::chrono::duration<double>(b - a).count();
}

// ---- RankHands: the table path against the reference, on fixed random deals --

using Deal = std::array<int16_t, 21>;
using RankRoutine = void (*)(Game&);

void RankByTables(Game& g) { g.RankHands(); }

std::vector<Deal> RankDeals() {
    SilentPlatform plat;
    Game g(plat);
    g.rnd.SeedDeterministic(12345);
    constexpr int kDeals = 4096;
    std::vector<Deal> deals(kDeals);
    for (auto& d : deals) {
        std::array<int16_t, 52> pool;
        for (int i = 0; i < 52; ++i) pool[i] = static_cast<int16_t>(i + 1);
        for (int i = 0; i < 21; ++i) {
            int j = i + static_cast<int>(g.rnd.Rnd() * static_cast<float>(52 - i));
            if (j > 51) j = 51;
            std::swap(pool[i], pool[j]);
            d[i] = pool[i];
        }
    }
    return deals;
}

void LayOut(Game& g, const Deal& d) {
    for (int s = 1; s <= kSeats; ++s) {
        g.SeatCards[s][1] = d[2 * s - 2];
        g.SeatCards[s][2] = d[2 * s - 1];
    }
    for (int k = 0; k < 5; ++k) {
        g.Deck[16 + k] = d[16 + k];
        for (int s = 1; s <= kSeats; ++s) g.SeatCards[s][3 + k] = d[16 + k];
    }
}

// Median seat evaluations per second over slices of 256 deals, short enough
// that most run unpreempted on a busy machine. The river codes of the table
// path's first pass go into the signature.
double RankRate(const std::vector<Deal>& deals, int16_t cardsKnown, RankRoutine rank, int passes,
                Signature* sig) {
    constexpr std::size_t kSlice = 256;
    SilentPlatform plat;
    Game g(plat);
    for (int s = 1; s <= kSeats; ++s) g.SeatInHand[s] = true;
    g.CardsKnown = cardsKnown;
    std::vector<double> rates;
    for (int pass = 0; pass < passes; ++pass) {
        for (std::size_t first = 0; first < deals.size(); first += kSlice) {
            std::size_t last = std::min(first + kSlice, deals.size());
            auto t0 = std::chrono::steady_clock::now();
            for (std::size_t i = first; i < last; ++i) {
                LayOut(g, deals[i]);
                rank(g);
                if (pass == 0 && sig != nullptr)
                    for (int s = 1; s <= kSeats; ++s) sig->Mix(static_cast<uint64_t>(g.SeatHandCode[s]));
            }
            auto t1 = std::chrono::steady_clock::now();
            rates.push_back(static_cast<double>(last - first) * kSeats / Seconds(t0, t1));
        }
    }
    std::sort(rates.begin(), rates.end());
    return rates[rates.size() / 2];
}

// Seats where the two paths differ in any field RankHands writes.
int RankMismatches(const std::vector<Deal>& deals, int16_t cardsKnown) {
    SilentPlatform plat;
    Game a(plat), b(plat);
    int mismatches = 0;
    for (Game* g : {&a, &b}) {
        for (int s = 1; s <= kSeats; ++s) g->SeatInHand[s] = true;
        g->CardsKnown = cardsKnown;
    }
    for (const Deal& d : deals) {
        LayOut(a, d);
        LayOut(b, d);
        a.RankHands();
        RankHandsReference(b);
        for (int s = 1; s <= kSeats; ++s)
            if (a.SeatHandCode[s] != b.SeatHandCode[s] || a.SeatHandName[s] != b.SeatHandName[s] ||
                !std::equal(a.SeatBestRanks[s], a.SeatBestRanks[s] + 8, b.SeatBestRanks[s]))
                ++mismatches;
    }
    return mismatches;
}

struct RankFigures {
    double tables[3] = {}, reference[3] = {};  // flop, turn, river
    int mismatches = 0;
};

RankFigures BenchRankHands(Signature& sig) {
    RankFigures f;
    const std::vector<Deal> deals = RankDeals();
    for (int street = 0; street < 3; ++street) {
        auto known = static_cast<int16_t>(5 + street);
        f.tables[street] = RankRate(deals, known, RankByTables, 60, known == 7 ? &sig : nullptr);
        f.reference[street] = RankRate(deals, known, RankHandsReference, 10, nullptr);
        f.mismatches += RankMismatches(deals, known);
    }
    return f;
}

void PrintRankFigures(const RankFigures& f) {
    std::printf("RankHands seat evaluations/s      %.0f\n", f.tables[2]);
    std::printf("  flop, turn                      %.0f, %.0f\n", f.tables[0], f.tables[1]);
    std::printf("  reference river, flop, turn     %.0f, %.0f, %.0f\n", f.reference[2], f.reference[0],
                f.reference[1]);
    std::printf("  tables / reference              river %.1fx, flop %.1fx, turn %.1fx; %d seats differ\n",
                f.tables[2] / f.reference[2], f.tables[0] / f.reference[0], f.tables[1] / f.reference[1],
                f.mismatches);
    const RankPatternTable* street[3] = {&RankPatterns(5), &RankPatterns(6), &RankPatterns(7)};
    const FlushTable& flushes = FlushCodes();
    std::size_t bytes = flushes.bytes;
    for (const RankPatternTable* t : street) bytes += t->bytes;
    std::printf(
        "  tables                          %zu KB, each built at its first use: flop %.1f ms, turn %.1f ms, "
        "river %.1f ms, flushes %.1f ms\n",
        bytes / 1024, street[0]->buildMilliseconds, street[1]->buildMilliseconds,
        street[2]->buildMilliseconds, flushes.buildMilliseconds);
}

// A whole seeded 1,000-player tournament to its winner: the user's game on
// the opponents' rule, then the rest of the field played out.
void BenchPlayOut(const std::string& appFolder) {
    constexpr uint64_t kSeed = 7;
    PlayOutReport report;
    auto a = std::chrono::steady_clock::now();
    GameResult r = PlayOneGame(appFolder, 1000, kSeed, Policy::Rule, nullptr,
                               [&](Game& g) { report = PlayOutField(g); });
    double seconds = Seconds(a, std::chrono::steady_clock::now());
    std::printf(
        "1,000-player tournament to winner %.3f s  (seed %llu, %d shown hands, %d rounds played out)\n",
        seconds, static_cast<unsigned long long>(kSeed), r.hands, report.rounds);
}

int RunBench(const std::string& appFolder) {
    Signature sig;
    int violations = 0;
    RankFigures rank = BenchRankHands(sig);
    violations += rank.mismatches;

    // Whole single-table hands, seat 1 on the opponents' rule.
    long long hands = 0;
    auto t0 = std::chrono::steady_clock::now();
    for (uint64_t seed = 1; seed <= 200; ++seed) {
        GameResult r = PlayOneGame(appFolder, 8, seed, Policy::Rule, nullptr);
        hands += r.hands;
        violations += static_cast<int>(r.violations.size());
        sig.Add(r);
    }
    double singleSeconds = Seconds(t0, std::chrono::steady_clock::now());

    // One round of background hands at a full 1,000-player field (124 tables).
    std::vector<double> rounds;
    {
        SilentPlatform plat;
        Game g(plat);
        g.AppFolder = appFolder;
        g.rnd.SeedDeterministic(99);
        SetUpGame(g, 1000);
        g.StopHandTimers();
        auto bank = g.RosterBank;
        auto number = g.RosterNumber;
        for (int i = 0; i < 400; ++i) {
            g.RosterBank = bank;
            g.RosterNumber = number;
            g.TablesInPlay = 125;
            auto a = std::chrono::steady_clock::now();
            g.PlayOtherTables();
            rounds.push_back(Seconds(a, std::chrono::steady_clock::now()));
            if (i < 4)
                for (int p = 9; p <= 1000; p += 37) sig.Mix(static_cast<uint64_t>(g.RosterBank[p]));
        }
    }
    std::sort(rounds.begin(), rounds.end());

    // Whole 1,000-player tournaments to their end.
    std::vector<double> tournaments;
    long long tournamentHands = 0;
    for (uint64_t seed = 7; seed < 12; ++seed) {
        auto a = std::chrono::steady_clock::now();
        GameResult r = PlayOneGame(appFolder, 1000, seed, Policy::Rule, nullptr);
        tournaments.push_back(Seconds(a, std::chrono::steady_clock::now()));
        tournamentHands += r.hands;
        violations += static_cast<int>(r.violations.size());
        sig.Add(r);
    }

    std::printf("signature                         %016llx\n", static_cast<unsigned long long>(sig.value));
    PrintRankFigures(rank);
    std::printf("single-table hands/s              %.0f  (%lld hands)\n", hands / singleSeconds, hands);
    std::printf("background round, 124 tables      median %.3f ms, slowest %.3f ms\n",
                rounds[rounds.size() / 2] * 1e3, rounds.back() * 1e3);
    std::printf("1,000-player tournament to end    median %.3f s, slowest %.3f s  (%lld shown hands in 5)\n",
                tournaments[tournaments.size() / 2],
                *std::max_element(tournaments.begin(), tournaments.end()), tournamentHands);
    BenchPlayOut(appFolder);
    std::printf("violations                        %d\n", violations);
    return violations == 0 ? 0 : 1;
}

// After the user's game: the field to its winner, then the standings. A
// field that does not end with places 1..N, each once, is a violation.
int PlayOutAndReport(Game& g, std::FILE* log) {
    if (!CanPlayOutField(g)) return 0;
    PlayOutReport report = PlayOutField(g);
    std::vector<Standing> standings = FinalStandings(g);
    int wrong = report.finished ? 0 : 1;
    for (std::size_t i = 0; i < standings.size(); ++i)
        if (standings[i].place != static_cast<int>(i) + 1) ++wrong;
    if (standings.size() != static_cast<std::size_t>(g.TournamentSize)) ++wrong;
    if (log) {
        for (const LogLine& line : g.view.log) std::fprintf(log, "%s\n", FormatLogLine(line).c_str());
        g.view.log.clear();
    }
    std::printf("played out in %d rounds; winner %s\n", report.rounds,
                standings.empty() ? "none" : standings.front().name.c_str());
    for (std::size_t i = 0; i < standings.size() && i < 10; ++i)
        std::printf("  %s  %s\n", Ordinal(standings[i].place).c_str(), standings[i].name.c_str());
    if (wrong)
        std::printf("VIOLATION: the played-out field has no complete places 1..%d\n", g.TournamentSize);
    return wrong;
}

int PlayGames(const Options& o, const std::string& appFolder) {
    Signature sig;
    Totals totals;
    for (int g = 0; g < o.games; ++g) {
        int playOutFaults = 0;
        auto atEnd = [&](Game& game) {
            if (o.playOut) playOutFaults = PlayOutAndReport(game, o.log ? stdout : nullptr);
        };
        GameResult r = PlayOneGame(appFolder, o.players, o.seed + static_cast<uint64_t>(g), o.policy,
                                   o.log ? stdout : nullptr, atEnd);
        totals.Add(r);
        totals.violations += playOutFaults;
        sig.Add(r);
        if (!r.violations.empty()) {
            for (const auto& v : r.violations)
                std::printf("VIOLATION game %d (seed %llu): %s\n", g + 1,
                            static_cast<unsigned long long>(o.seed + g), v.c_str());
        }
        if (o.games <= 20 || o.log)
            std::printf("game %d: %s after %d hands, user place %d\n", g + 1,
                        r.userWon ? "user won" : "user out", r.hands, r.userPlace);
    }
    std::printf("games %d, hands %lld, user won %d, violations %d\n", o.games,
                static_cast<long long>(totals.hands), totals.userWins, totals.violations);
    std::printf("signature %016llx\n", static_cast<unsigned long long>(sig.value));
    return totals.violations == 0 ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
    Options o = Parse(argc, argv);
    std::string appFolder = AppFolderOf(argv[0]);
    if (o.bench) return RunBench(appFolder);
    return PlayGames(o, appFolder);
}
