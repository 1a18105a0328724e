// frmRankings without its widgets: the sorted copy of the field, the page on
// show and the state of every label, which the form only draws.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "engine/view.h"
#include "views/field_copy.h"

namespace holdem {

constexpr int kRowsPerPage = 25;
constexpr int kUserRow = 26;  // the user's own line below the page

struct Standings {
    FieldCopy copy;
    int16_t PlayerCount = 0;
    int16_t CurrentPage = 1;
    int16_t UserRank = 0;  // 0 when the file holds no user

    // Rows 1..25 are the page, row 26 the user's line; element 0 unused.
    std::array<Element, kUserRow + 1> lblRank{}, lblName{}, lblBank{};
    std::array<bool, kUserRow + 1> yellow{};
    Element lblPage, lblPrevious, lblNext;
};

// The opening of the view: page 1, LoadStandings, ShowStandingsPage.
void OpenStandings(Standings& s, const std::string& standingsPath);
// Reads the file, sorts it and finds the user.
void LoadStandings(Standings& s, const std::string& standingsPath);
// The two selection passes, by chips and then by finishing place, and UserRank.
void SortStandings(Standings& s);
void ShowStandingsPage(Standings& s);
void lblNext_Click(Standings& s);
void lblPrevious_Click(Standings& s);

}  // namespace holdem
