#include "views/standings_model.h"

namespace holdem {

namespace {

void SetPageLabel(Standings& s) { s.lblPage.text = "Page " + std::to_string(s.CurrentPage); }

void ShowRow(Standings& s, int row, int entry) {
    s.yellow[row] = entry <= kRoster && s.copy.Number[entry] == 1;
    if (entry <= s.PlayerCount) {
        s.lblRank[row].text = std::to_string(entry);
        s.lblName[row].text = s.copy.Name[entry];
        s.lblBank[row].text = s.copy.Bank[entry] < 1 ? "--" : Money(s.copy.Bank[entry]);
    } else {
        s.lblRank[row].text.clear();
        s.lblName[row].text.clear();
        s.lblBank[row].text.clear();
    }
}

void ShowUserRow(Standings& s) {
    int first = (s.CurrentPage - 1) * kRowsPerPage + 1;
    int last = s.CurrentPage * kRowsPerPage;
    bool hidden = s.UserRank == 0 || (s.UserRank >= first && s.UserRank <= last);
    for (auto* label : {&s.lblRank[kUserRow], &s.lblName[kUserRow], &s.lblBank[kUserRow]}) {
        label->visible = !hidden;
        if (hidden) label->text.clear();
    }
    s.yellow[kUserRow] = true;
    if (hidden) return;
    // No "--" here: a busted user reads "0".
    s.lblRank[kUserRow].text = std::to_string(s.UserRank);
    s.lblName[kUserRow].text = s.copy.Name[s.UserRank];
    s.lblBank[kUserRow].text = Money(s.copy.Bank[s.UserRank]);
}

}  // namespace

void OpenStandings(Standings& s, const std::string& standingsPath) {
    for (int row = 1; row <= kRowsPerPage; ++row)
        s.lblRank[row].visible = s.lblName[row].visible = s.lblBank[row].visible = true;
    s.lblPage.visible = s.lblPrevious.visible = s.lblNext.visible = true;
    s.lblPrevious.text = "[PREVIOUS]";
    s.lblNext.text = "[NEXT]";
    s.lblNext.enabled = true;

    s.CurrentPage = 1;
    SetPageLabel(s);
    s.lblPrevious.enabled = false;
    LoadStandings(s, standingsPath);
    ShowStandingsPage(s);
}

void LoadStandings(Standings& s, const std::string& standingsPath) {
    s.PlayerCount = ReadFieldCopy(standingsPath, s.copy);
    if (s.PlayerCount < kRowsPerPage + 1) s.lblNext.enabled = false;
    SortStandings(s);
}

void SortStandings(Standings& s) {
    FieldCopy& c = s.copy;
    const int n = s.PlayerCount;
    // By chips. Only a strictly greater bank takes over, and the exchange
    // moves the entry at i to where the best stood: that fixes the order of
    // equal banks.
    for (int i = 1; i <= n; ++i) {
        int best = i;
        int32_t top = 0;
        for (int j = i; j <= n; ++j)
            if (c.Bank[j] > top) best = j, top = c.Bank[j];
        if (best != i) c.Exchange(i, best);
    }
    // By finishing place: those still in (place 0) stay first in chip order,
    // then the best finish first.
    for (int i = 1; i <= n; ++i) {
        int best = i;
        int32_t low = n;
        for (int j = i; j <= n; ++j)
            if (c.Place[j] < low) best = j, low = c.Place[j];
        if (best != i) c.Exchange(i, best);
    }
    s.UserRank = 0;
    for (int i = 1; i <= n; ++i)
        if (c.Number[i] == 1) s.UserRank = static_cast<int16_t>(i);
}

void ShowStandingsPage(Standings& s) {
    for (int row = 1; row <= kRowsPerPage; ++row) ShowRow(s, row, (s.CurrentPage - 1) * kRowsPerPage + row);
    ShowUserRow(s);
}

void lblNext_Click(Standings& s) {
    if (!s.lblNext.enabled) return;
    ++s.CurrentPage;
    s.lblPrevious.enabled = true;
    if (s.CurrentPage * kRowsPerPage >= s.PlayerCount) s.lblNext.enabled = false;
    ShowStandingsPage(s);
    SetPageLabel(s);
}

void lblPrevious_Click(Standings& s) {
    if (!s.lblPrevious.enabled) return;
    --s.CurrentPage;
    s.lblNext.enabled = true;
    if (s.CurrentPage == 1) s.lblPrevious.enabled = false;
    ShowStandingsPage(s);
    SetPageLabel(s);
}

}  // namespace holdem
