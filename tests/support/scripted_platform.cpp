#include "tests/support/scripted_platform.h"

namespace holdem::test {

namespace {
template <typename T>
T Take(std::deque<T>& queue, T fallback) {
    if (queue.empty()) return fallback;
    T value = queue.front();
    queue.pop_front();
    return value;
}
}  // namespace

MsgAnswer ScriptedPlatform::MessageBox(const std::string& text, const std::string& title, MsgIcon icon,
                                       MsgButtons buttons) {
    messages.push_back({text, title, icon, buttons});
    return Take(answers, MsgAnswer::OK);
}

std::optional<std::string> ScriptedPlatform::OpenFileDialog(const FileDialogRequest& request) {
    openDialogs.push_back(request);
    return Take(openPaths, std::optional<std::string>{});
}

std::optional<std::string> ScriptedPlatform::SaveFileDialog(const FileDialogRequest& request) {
    saveDialogs.push_back(request);
    return Take(savePaths, std::optional<std::string>{});
}

int32_t ScriptedPlatform::ShowBetAmount(const BetAmountRequest& request) {
    betRequests.push_back(request);
    return Take(betAmounts, 0);
}

NewGameChoices ScriptedPlatform::ShowNewGame(int16_t gameSpeed) {
    newGameSpeeds.push_back(gameSpeed);
    return Take(newGames, NewGameChoices{});
}

std::string ScriptedPlatform::ShowPlayerName() {
    ++playerNameCalls;
    return Take(playerNames, std::string{});
}

}  // namespace holdem::test
