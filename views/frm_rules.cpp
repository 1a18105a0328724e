#include "views/frm_rules.h"

namespace holdem {

namespace {
// clang-format off
constexpr PictureBookLayout kRulesLayout{
    .title = "Rules of the Game - Texas Hold'em",
    .width = 6510, .height = 6975,
    .pageLeft = 120, .pageTop = 120, .pageWidth = 6255, .pageHeight = 6255,
    .buttonTop = 6480, .previousLeft = 2760, .nextLeft = 3840, .closeLeft = 4920,
    .firstPicture = "rules1.png",
    .secondPicture = "rules2.png",
};
// clang-format on
}  // namespace

frmRules::frmRules(const std::string& appFolder, QWidget* parent)
    : PictureBook(appFolder, kRulesLayout, parent) {
    PicRules = display_;
}

}  // namespace holdem
