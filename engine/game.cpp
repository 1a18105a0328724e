#include "engine/game_state.h"

namespace holdem {

Game::Game(Platform& p) : platform(&p) {
    // The menus and timers as they stand before any file is read.
    view.mnuNew.visible = view.mnuOpen.visible = view.mnuExit.visible = true;
    view.mnuSave.visible = view.mnuSaveAs.visible = true;
    view.mnuSave.enabled = view.mnuSaveAs.enabled = false;
    view.mnuStandings.visible = view.mnuFloor.visible = true;
    view.mnuSound.visible = view.mnuSound.checked = true;
    view.mnuFastSpeed.visible = view.mnuMediumSpeed.visible = view.mnuSlowSpeed.visible = true;
    view.mnuMediumSpeed.checked = true;
    view.mnuTips.visible = view.mnuTips.checked = true;
    view.mnuHelpIndex.visible = view.mnuRules.visible = view.mnuAbout.visible = true;

    view.timer[TimerDealHole].interval = 400;
    for (TimerId id : {TimerDealFlop, TimerDealTurn, TimerDealRiver}) view.timer[id].interval = 450;
    for (TimerId id : {TimerBetHole, TimerBetFlop, TimerBetTurn, TimerBetRiver}) view.timer[id].interval = 1200;
    view.timer[TimerHandOver].interval = 1500;

    view.lblPotLabel.text = "Pot: $";
    for (int s = 1; s <= kSeats; ++s) view.lblBankDollarSign[s].text = "Chips: $";
    view.cmdPlay[1].text = "C&heck";
    view.cmdPlay[2].text = "&Call";
    view.cmdPlay[3].text = "&Bet/Raise ";
    view.cmdPlay[4].text = "&Fold";
    view.cmdDeal.text = "&Deal";
    view.cmdStandings.text = "&Standings";
    view.cmdFloor.text = "&View Floor";
}

TimerId Game::RunningTimer() const {
    for (int id = 0; id < kTimerCount; ++id)
        if (view.timer[id].enabled) return static_cast<TimerId>(id);
    return kTimerCount;
}

void Game::EnableTimer(TimerId id) { view.timer[id].enabled = true; }
void Game::DisableTimer(TimerId id) { view.timer[id].enabled = false; }

void Game::StopHandTimers() {
    for (auto& t : view.timer) t.enabled = false;
}

bool Game::state_is_ok(std::string* why) const {
    auto fail = [why](const std::string& msg) {
        if (why) *why = msg;
        return false;
    };
    int enabled = 0;
    for (const auto& t : view.timer) enabled += t.enabled ? 1 : 0;
    if (enabled > 1) return fail("more than one hand timer enabled");
    int inHand = 0;
    int64_t stakes = 0;
    for (int s = 1; s <= kSeats; ++s) {
        inHand += SeatInHand[s] ? 1 : 0;
        stakes += static_cast<int64_t>(SeatBet[s]) + SeatTotalBet[s];
        if (SeatBank[s] < 0) return fail("negative stack at seat " + std::to_string(s));
    }
    // During a hand the pot holds every stake; between hands the hand's fields
    // may describe the last background hand and carry no meaning.
    bool handRunning = RunningTimer() != kTimerCount || view.cmdPlay[1].visible;
    if (handRunning && !HandIsOver) {
        if (inHand != PlayersInHand) return fail("PlayersInHand does not match SeatInHand");
        if (stakes != Pot) return fail("Pot differs from the stakes");
        int64_t table = Pot;
        int64_t roster = 0;
        for (int s = 1; s <= kSeats; ++s) {
            table += static_cast<int64_t>(std::lround(SeatBank[s]));
            roster += RosterBank[s];
        }
        if (table != roster) return fail("chips at the shown table not conserved");
    }
    return true;
}

}  // namespace holdem
