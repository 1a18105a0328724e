// frmTip without its widgets: the list of tips, the one on show and the
// setting behind the check box.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace holdem {

class Game;
class Random;

inline constexpr const char* kTipsFileName = "TIPOFDAY.TXT";

struct TipBox {
    std::vector<std::string> Tips;  // tip n is Tips[n - 1]
    int32_t CurrentTip = 0;
    std::string lblTipText;
};

// The form at load: ticks nothing itself (the form does), seeds the random
// source and reads the program's tips, or puts up the note that they are missing.
void LoadTipForm(TipBox& box, Game& game);
// Reads one tip per line, a blank line too, then picks one. False when the
// path is empty or names no file.
bool LoadTips(TipBox& box, Random& rnd, const std::string& path);
// One draw: every tip has the same chance, the one on show included.
void PickNextTip(TipBox& box, Random& rnd);
void DisplayCurrentTip(TipBox& box);
std::string MissingTipsMessage(const std::string& fileName);
// The check box "Show Tips at Startup".
void chkLoadTipsAtStartup_Click(Game& game, bool ticked);

}  // namespace holdem
