// The game object: every field of the main form, named as the game's own
// design names them, and every routine of table play, showdown, tournament,
// files, new game and settings as member functions. Plain fields and parallel
// arrays by seat and by roster position; no classes for seats, cards or hands.
//
// Widths: Integer -> int16_t, Long -> int32_t, Single -> float. Flags are bool.
// Arrays by seat have 9 elements, element 0 unused; the roster has 1,001.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "engine/common.h"
#include "engine/platform.h"
#include "engine/random.h"
#include "engine/view.h"

namespace holdem {

class Game {
public:
    // ---- Settings and dialogs ---------------------------------------------
    bool TipsAtStartup = true;
    std::string PlayerNameEntry;

    // ---- The betting of the street and the user's amounts -----------------
    int16_t HighBetIndex = 0;
    int32_t HighBetValue = 0;
    int32_t BetAmount = 0;
    int32_t ToCallAmount = 0;
    int32_t RaiseByAmount = 0;
    int32_t MaxBetAmount = 0;
    int32_t Pot = 0;

    // ---- Pot breakdown snapshot (seats 1..8) ------------------------------
    std::array<int32_t, 9> BreakdownBet{};
    std::array<std::string, 9> BreakdownName{};

    // ---- The game ---------------------------------------------------------
    int16_t CardsDealt = 0;
    int16_t HandsPlayed = 0;
    std::string SavedGamePath;
    std::string StandingsPath;
    int16_t TournamentSize = 0;
    int16_t PlayersLeft = 0;
    int16_t GameSpeed = 2;
    bool SoundOn = true;
    bool GameUnsaved = false;
    int16_t UserFinishPlace = 0;
    int16_t NextFinishPlace = 0;
    bool NewGameCancelled = false;
    int32_t BreakdownTotal = 0;
    int16_t Street = 0;

    // ---- The shown table (seats 1..8) -------------------------------------
    std::array<std::string, 9> SeatName{};
    std::array<float, 9> SeatBank{};
    int32_t SmallBlind = 0;
    int16_t SmallBlindSeat = 0;
    int16_t BigBlindSeat = 0;
    int16_t ButtonSeat = 0;
    std::array<int32_t, 9> SeatBet{};
    std::array<int32_t, 9> SeatTotalBet{};
    std::array<bool, 9> SeatInHand{};
    int16_t PlayersInHand = 0;
    int16_t CurrentSeat = 0;
    int16_t PreviousSeat = 0;
    std::array<int16_t, 52> CardPool{};
    std::array<int16_t, 52> Deck{};
    std::array<int16_t, 9> WinnerSeats{};
    // SeatCards[s][1..2] hole cards, [3..7] the board; [0] unused.
    int16_t SeatCards[9][8] = {};
    // After the river: the seat's seven ranks, the five that play first.
    int16_t SeatBestRanks[9][8] = {};
    std::array<int16_t, 9> StartingHandClass{};
    std::array<int16_t, 9> SeatHandCode{};
    std::array<std::string, 9> SeatHandName{};
    std::array<bool, 9> SeatRaised{};
    std::string AppFolder;
    // Per-user data folder with a trailing separator, for settings.dft and
    // stnd.dat where AppFolder is not writable; the window sets it.
    std::string UserDataFolder;
    // An installed AppFolder is shared by every user of the machine and never
    // written, even where it could be: settings.dft and stnd.dat then live in
    // UserDataFolder alone, and the shipped settings.dft is only the default.
    bool InstalledCopy = false;
    int16_t CallChance = 0;
    int16_t RaiseChance = 0;

    // ---- The roster (positions 1..1000) -----------------------------------
    std::array<int16_t, kRoster + 1> RosterNumber{};
    std::array<std::string, kRoster + 1> RosterName{};
    std::array<int16_t, kRoster + 1> RosterPlace{};
    std::array<int32_t, kRoster + 1> RosterBank{};
    std::array<int16_t, kRoster + 1> RosterTag{};

    // ---- Tournament -------------------------------------------------------
    int16_t TablesInPlay = 0;
    std::array<int32_t, 9> TableBank{};
    std::array<int16_t, kTables + 1> TableButton{};
    bool UserWonHand = false;
    bool GameEnded = false;
    int16_t CardsKnown = 0;
    bool HandIsOver = false;

    // ---- Outside world ----------------------------------------------------
    View view;
    Random rnd;
    Platform* platform = nullptr;

    explicit Game(Platform& p);

    // ---- Starting a hand (start_hand.cpp) ---------------------------------
    void StartHand();
    void cmdDeal_Click();
    // Three reseeds, then one draw per card into Deck; the shown table and the
    // background tables shuffle alike.
    void ShuffleDeck();

    // ---- The timer chain (streets.cpp) ------------------------------------
    void TimerDealHole_Timer();
    void TimerBetHole_Timer();
    void TimerDealFlop_Timer();
    void TimerBetFlop_Timer();
    void TimerDealTurn_Timer();
    void TimerBetTurn_Timer();
    void TimerDealRiver_Timer();
    void TimerBetRiver_Timer();
    // Fires one tick of the given timer; the window and the simulator use it.
    void FireTimer(TimerId id);
    void EnableTimer(TimerId id);
    void DisableTimer(TimerId id);
    // Switches every hand timer off: a new or opened game ends the old chain.
    void StopHandTimers();
    // The one enabled hand timer, or kTimerCount when none runs.
    TimerId RunningTimer() const;

    // ---- The user's action (user_action.cpp) ------------------------------
    void OpenUserTurn();
    void cmdPlay_Click(int index);

    // ---- Opponents (opponent.cpp) -----------------------------------------
    void ClassifyHoleCards();
    void RateHand(int seat);
    // The seat's move by the opponents' rule. On the shown table it moves
    // SeatBank and writes labels; in the background it moves TableBank, raises
    // without limit and writes nothing to the view.
    void OpponentMoveBeforeFlop(int seat, bool background);
    void OpponentMoveAfterFlop(int seat, bool background);

    // ---- Hand ranking (hand_rank.cpp) -------------------------------------
    void RankHands();
    // Showdown comparison after the river: 1 if seat a holds the better hand,
    // -1 if seat b does, 0 for a tie.
    int CompareShowdown(int a, int b) const;

    // ---- End of a shown hand (settlement.cpp, end_of_hand.cpp) ------------
    void TimerHandOver_Timer();
    // The second half of TimerHandOver: the other tables, the blinds, the
    // count of the players and the decision how the game goes on.
    void CloseHand();
    void SetBlinds();
    void EndGameForUser();
    void DeclareTournamentWon();
    void lblPot_Click();
    void lblPotLabel_Click();

    // ---- Tournament (background.cpp, balance.cpp) -------------------------
    void PlayOtherTables();
    void PlayTableHand(int table);
    void PlayTableRound(bool beforeFlop);
    void SettleTableHand(int table);
    void BalanceTables();

    // ---- Files (files/) ---------------------------------------------------
    // LoadRoster throws FileError on a file it cannot read in full; its
    // callers catch it and tell the user.
    void LoadRoster();
    void SaveGame();
    void mnuOpen_Click();
    void mnuSave_Click();
    void mnuSaveAs_Click();
    void NewGame();
    void mnuNew_Click();
    void SetGameSpeed();
    void mnuFastSpeed_Click();
    void mnuMediumSpeed_Click();
    void mnuSlowSpeed_Click();
    void mnuSound_Click();
    void mnuTips_Click();
    void ReadSettings();
    void WriteSettings();
    // Writes stnd.dat and opens the standings or the floor.
    void cmdStandings_Click();
    void mnuStandings_Click();
    void cmdFloor_Click();
    void mnuFloor_Click();

    // ---- Checks -----------------------------------------------------------
    // Chips of the shown table conserved, at most one hand timer enabled,
    // seat arrays consistent. Tests and the simulator call it after each step.
    bool state_is_ok(std::string* why = nullptr) const;
};

}  // namespace holdem
