#include "views/tip_model.h"

#include <algorithm>
#include <filesystem>

#include "engine/game_state.h"
#include "files/safe_file.h"

namespace holdem {

void LoadTipForm(TipBox& box, Game& game) {
    game.rnd.Randomize();
    if (!LoadTips(box, game.rnd, game.AppFolder + kTipsFileName))
        box.lblTipText = MissingTipsMessage(kTipsFileName);
}

bool LoadTips(TipBox& box, Random& rnd, const std::string& path) {
    std::error_code error;
    if (path.empty() || !std::filesystem::is_regular_file(path, error)) return false;
    box.Tips.clear();
    std::string text;
    try {
        text = ReadBoundedFile(path, kMaxTipsFileBytes);
    } catch (const FileError& e) {
        // Found but not fit to show: the box says why and holds no tip.
        box.lblTipText = e.what();
        return true;
    }
    for (std::size_t start = 0; start < text.size();) {
        std::size_t end = std::min(text.find('\n', start), text.size());
        std::size_t cut = end > start && text[end - 1] == '\r' ? end - 1 : end;
        box.Tips.push_back(text.substr(start, cut - start));
        start = end + 1;
    }
    PickNextTip(box, rnd);
    return true;
}

void PickNextTip(TipBox& box, Random& rnd) {
    double draw = rnd.Rnd();
    auto count = static_cast<int32_t>(box.Tips.size());
    int32_t pick = static_cast<int32_t>(draw * count) + 1;
    // A draw just below 1 must not reach past the last tip.
    box.CurrentTip = count > 0 && pick > count ? count : pick;
    DisplayCurrentTip(box);
}

void DisplayCurrentTip(TipBox& box) {
    if (box.Tips.empty()) return;
    box.lblTipText = box.Tips[box.CurrentTip - 1];
}

std::string MissingTipsMessage(const std::string& fileName) {
    return "That the " + fileName + " file was not found? " + "\r\n\r\n" + "Create a text file named " +
           fileName + " using NotePad with 1 tip per line. " +
           "Then place it in the same directory as the application. ";
}

void chkLoadTipsAtStartup_Click(Game& game, bool ticked) {
    game.TipsAtStartup = ticked;
    game.view.mnuTips.checked = ticked;
}

}  // namespace holdem
