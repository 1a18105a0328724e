// A Platform that records every call and answers from queues the test fills.
#pragma once

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "engine/platform.h"

namespace holdem::test {

struct MessageCall {
    std::string text, title;
    MsgIcon icon;
    MsgButtons buttons;
};

class ScriptedPlatform : public Platform {
public:
    MsgAnswer MessageBox(const std::string& text, const std::string& title, MsgIcon icon,
                         MsgButtons buttons) override {
        return messages.push_back({text, title, icon, buttons}), Take(answers, MsgAnswer::OK);
    }
    std::optional<std::string> OpenFileDialog(const FileDialogRequest& r) override {
        return openDialogs.push_back(r), Take(openPaths, {});
    }
    std::optional<std::string> SaveFileDialog(const FileDialogRequest& r) override {
        return saveDialogs.push_back(r), Take(savePaths, {});
    }
    void PlaySound(const std::string& name) override { sounds.push_back(name); }
    void Pause() override { ++pauses; }
    int32_t ShowBetAmount(const BetAmountRequest& r) override {
        return betRequests.push_back(r), Take(betAmounts, 0);
    }
    NewGameChoices ShowNewGame(int16_t speed) override {
        return newGameSpeeds.push_back(speed), Take(newGames, {});
    }
    std::string ShowPlayerName() override { return ++playerNameCalls, Take(playerNames, {}); }
    void ShowGameOver(int16_t userFinishPlace) override { gameOvers.push_back(userFinishPlace); }
    void ShowPotBreakdown(const PotBreakdown& b) override { breakdowns.push_back(b); }
    void ShowStandings(const std::string& path) override { standings.push_back(path); }
    void ShowFloor(const std::string& path) override { floors.push_back(path); }
    void ShowInfo(InfoForm form) override { infos.push_back(form); }

    // Answers, taken front first. An empty queue answers OK / cancel / 0 / "".
    std::deque<MsgAnswer> answers;
    std::deque<std::optional<std::string>> openPaths, savePaths;
    std::deque<int32_t> betAmounts;
    std::deque<NewGameChoices> newGames;
    std::deque<std::string> playerNames;

    // The record.
    std::vector<MessageCall> messages;
    std::vector<FileDialogRequest> openDialogs, saveDialogs;
    std::vector<std::string> sounds, standings, floors;
    int pauses = 0, playerNameCalls = 0;
    std::vector<BetAmountRequest> betRequests;
    std::vector<int16_t> newGameSpeeds, gameOvers;
    std::vector<PotBreakdown> breakdowns;
    std::vector<InfoForm> infos;

private:
    template <typename T>
    static T Take(std::deque<T>& queue, T fallback) {
        if (!queue.empty()) fallback = queue.front(), queue.pop_front();
        return fallback;
    }
};

}  // namespace holdem::test
