#include "views/frm_help.h"

namespace holdem {

namespace {
constexpr PictureBookLayout kHelpLayout{
    "Help", 6285, 7875, 120, 120, 6015, 7095, 7440, 2640, 3720, 4800, "pictures/help1.png", "pictures/help2.png",
};
}

frmHelp::frmHelp(const std::string& appFolder, QWidget* parent) : PictureBook(appFolder, kHelpLayout, parent) {
    picHelp = display_;
}

}  // namespace holdem
