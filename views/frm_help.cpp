#include "views/frm_help.h"

namespace holdem {

namespace {
// clang-format off
constexpr PictureBookLayout kHelpLayout{
    .title = "Help",
    .width = 6285, .height = 7875,
    .pageLeft = 120, .pageTop = 120, .pageWidth = 6015, .pageHeight = 7095,
    .buttonTop = 7440, .previousLeft = 2640, .nextLeft = 3720, .closeLeft = 4800,
    .firstPicture = "help1.png",
    .secondPicture = "help2.png",
};
// clang-format on
}  // namespace

frmHelp::frmHelp(const std::string& appFolder, QWidget* parent)
    : PictureBook(appFolder, kHelpLayout, parent) {
    picHelp = display_;
}

}  // namespace holdem
