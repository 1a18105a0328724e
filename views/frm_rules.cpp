#include "views/frm_rules.h"

namespace holdem {

namespace {
constexpr PictureBookLayout kRulesLayout{
    "Rules of the Game - Texas Hold'em",
    6510, 6975, 120, 120, 6255, 6255, 6480, 2760, 3840, 4920,
    "pictures/rules1.png", "pictures/rules2.png",
};
}

frmRules::frmRules(const std::string& appFolder, QWidget* parent) : PictureBook(appFolder, kRulesLayout, parent) {
    PicRules = display_;
}

}  // namespace holdem
