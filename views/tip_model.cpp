#include "views/tip_model.h"

#include <filesystem>
#include <fstream>

#include "engine/game_state.h"

namespace holdem {

void LoadTipForm(TipBox& box, Game& game) {
    game.rnd.Randomize();
    if (!LoadTips(box, game.rnd, game.AppFolder + kTipsFileName))
        box.lblTipText = MissingTipsMessage(kTipsFileName);
}

bool LoadTips(TipBox& box, Random& rnd, const std::string& path) {
    std::error_code error;
    if (path.empty() || !std::filesystem::is_regular_file(path, error)) return false;
    std::ifstream in(path, std::ios::binary);
    if (!in) return false;
    box.Tips.clear();
    std::string line;
    while (std::getline(in, line)) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        box.Tips.push_back(line);
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
