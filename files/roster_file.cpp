#include "files/roster_file.h"

#include <algorithm>
#include <filesystem>

#include "engine/end_of_hand.h"
#include "engine/log_events.h"
#include "files/seq_text.h"

namespace holdem {

namespace {

const char* const kOpenTitle = "Open Saved Game";
const char* const kSaveAsTitle = "Save Game As";
const char* const kFilter = "Saved Game Files (*.sgf)|*.sgf";
const char* const kNotOpened = "Saved game not opened.";
const char* const kNotSaved = "There was an error saving the game.";
const char* const kFailTitle = "Game Not Saved";
const char* const kGameData = "gamedata.dat";

// Every chip of a game has to stay exact in a Single (SeatBank): 2^24. The
// largest field starts with 10,000,000.
constexpr int64_t kMaxChips = 16777216;
// StartHand adds 1 to HandsPlayed, an Integer.
constexpr int16_t kMaxHandsPlayed = 32766;

bool IsGameSize(int size) { return size == 8 || size == 80 || size == 200 || size == 1000; }

void Require(bool ok, const char* what) {
    if (!ok) throw FileError(what);
}

// Step 3: the header. A new game keeps the size chosen in the dialog.
void ReadHeader(Game& g, SeqReader& in, bool newGame) {
    if (newGame) {
        in.ReadInt16();
    } else {
        g.TournamentSize = in.ReadInt16();
    }
    g.HandsPlayed = in.ReadInt16();
    g.ButtonSeat = in.ReadInt16();
    g.SmallBlind = in.ReadInt32();
    Require(IsGameSize(g.TournamentSize), "the size of the game is not 8, 80, 200 or 1000");
    Require(g.HandsPlayed >= 0 && g.HandsPlayed <= kMaxHandsPlayed, "the count of hands is out of range");
    // With no hand played yet both are drawn anew in step 9.
    if (g.HandsPlayed != 0) {
        Require(g.ButtonSeat >= 1 && g.ButtonSeat <= kSeats, "the button is not at a seat");
        Require(g.SmallBlind >= 1 && g.SmallBlind <= kMaxChips, "the small blind is out of range");
    }
}

// Step 4: one player line into position p, checked so that no routine of the
// game meets a value it cannot handle.
void ReadPlayer(Game& g, SeqReader& in, int p, int64_t& chips) {
    g.RosterTag[p] = in.ReadInt16();
    g.RosterName[p] = in.ReadString();
    g.RosterBank[p] = in.ReadInt32();
    g.RosterPlace[p] = in.ReadInt16();
    g.RosterNumber[p] = in.ReadInt16();
    Require(g.RosterBank[p] >= 0, "a player's chips are negative");
    chips += g.RosterBank[p];
    Require(chips <= kMaxChips, "the chips of the game are out of range");
    Require(g.RosterPlace[p] >= 0 && g.RosterPlace[p] <= g.TournamentSize, "a place is out of range");
}

int PlayersWithChips(const Game& g) {
    int count = 0;
    for (int p = 1; p <= g.TournamentSize; ++p)
        if (g.RosterBank[p] > 0) ++count;
    return count;
}

bool IsFinished(const Game& g) {
    bool userOut = g.RosterBank[1] <= 0 && g.RosterPlace[1] >= 1;
    return userOut || PlayersWithChips(g) <= 1;
}

// A file that holds a finished game opens to its final state and deals
// nothing: StartHand is not made for a table with a single player.
void OpenFinishedGame(Game& g) {
    View& v = g.view;
    v.lblBlind.visible = false;
    v.lblGoodLuck.visible = false;
    g.GameEnded = true;
    g.GameUnsaved = false;
    v.mnuSave.enabled = v.mnuSaveAs.enabled = true;

    std::string detail;
    if (g.RosterBank[1] > 0) {
        v.picTableMoney.visible = true;
        detail = "You won it.";
    } else if (g.RosterPlace[1] >= 1) {
        detail = FinishText(g.RosterPlace[1]) + ".";
    } else {
        detail = "No hand can be dealt from it.";
    }
    g.platform->MessageBox(
        "This saved game is already over. " + detail + "\n\nChoose New or Open in the File menu to play on.",
        "Game Over", MsgIcon::Information, MsgButtons::OK);
}

FileDialogRequest DialogRequest(const Game& g, const char* title) { return {title, kFilter, g.AppFolder}; }

// A name typed without an extension gets the one the dialog filters on.
std::string WithExtension(const std::string& path) {
    std::filesystem::path p(std::u8string(path.begin(), path.end()));
    return p.has_extension() ? path : path + ".sgf";
}

void TellNotSaved(Game& g) {
    g.platform->MessageBox(kNotSaved, kFailTitle, MsgIcon::Exclamation, MsgButtons::OK);
}

}  // namespace

void ClearTable(View& v) {
    for (int s = 1; s <= kSeats; ++s) {
        for (Element* e : {&v.lblName[s], &v.lblBankDollarSign[s], &v.lblBank[s], &v.lblBet[s], &v.lblPaid[s],
                           &v.iArrow[s], &v.iButton[s], &v.lblPCardIndex[s], &v.lblPCardValue[s]})
            e->visible = false;
    }
    for (int c = 1; c <= 21; ++c) v.icard[c].visible = false;
    for (int i = 1; i <= 4; ++i) v.cmdPlay[i].visible = false;
    for (Element* e : {&v.cmdDeal, &v.cmdStandings, &v.cmdFloor, &v.lblPot, &v.lblPotLabel, &v.lblBlind,
                       &v.lblGoodLuck, &v.picTableMoney})
        e->visible = false;
    v.mnuSave.enabled = v.mnuSaveAs.enabled = false;
}

// A failed load leaves a roster read only part of the way. Rather than deal
// on it, the game returns to the state of a program that has just started:
// an empty table, no hand, nothing to save, and no question at New or Exit.
// SavedGamePath keeps the chosen path; Save is disabled, so nothing can
// overwrite that file with the partial roster.
void AbandonGame(Game& g) {
    g.StopHandTimers();
    ClearTable(g.view);
    g.TournamentSize = 0;
    g.HandsPlayed = 0;
    g.PlayersLeft = 0;
    g.GameUnsaved = false;
}

void WriteRosterFile(const Game& g, const std::string& path) {
    int size = std::clamp<int>(g.TournamentSize, 0, kRoster);
    SeqWriter out(path);
    out.Int(g.TournamentSize).Int(g.HandsPlayed).Int(g.ButtonSeat).Int(g.SmallBlind).EndLine();
    for (int p = 1; p <= size; ++p) {
        out.Int(g.RosterTag[p]).Str(QuoteSafe(g.RosterName[p])).Int(g.RosterBank[p]);
        out.Int(g.RosterPlace[p]).Int(g.RosterNumber[p]).EndLine();
    }
    out.Commit();
}

void Game::LoadRoster() {
    // A new or opened game can arrive in mid-hand: the old hand's chain ends
    // here, before anything of the new game is read.
    StopHandTimers();
    ClearTable(view);

    view.picTableMoney.visible = false;
    PlayersLeft = 0;
    for (int p = 1; p <= kRoster; ++p) {
        RosterNumber[p] = 0;
        RosterPlace[p] = 0;
        RosterBank[p] = 0;
        RosterName[p].clear();
    }

    const bool newGame = SavedGamePath.empty();
    SeqReader in(newGame ? AppFolder + kGameData : SavedGamePath);
    ReadHeader(*this, in, newGame);
    int64_t chips = 0;
    for (int p = 1; p <= TournamentSize; ++p) {
        ReadPlayer(*this, in, p, chips);
        if (RosterNumber[p] == 1) UserFinishPlace = RosterPlace[p];
        if (RosterPlace[p] == 0) ++PlayersLeft;
    }
    if (newGame) Require(!IsFinished(*this), "gamedata.dat holds no field to play");

    NextFinishPlace = PlayersLeft;
    if (newGame) RosterName[1] = SeatName[1];
    for (int s = 1; s <= kSeats; ++s) {
        SeatName[s] = RosterName[s];
        SeatBank[s] = static_cast<float>(RosterBank[s]);
    }
    if (HandsPlayed == 0) {
        rnd.Randomize();
        for (int draw = 0; draw < 3; ++draw)
            ButtonSeat = static_cast<int16_t>(RoundHalfEven(rnd.Rnd() * 7.0f) + 1.0f);
        SmallBlind = 100;
    }
    for (int s = 1; s <= kSeats; ++s) {
        view.lblBank[s].text = Money(RosterBank[s]);
        view.lblName[s].text = SeatName[s];
        view.lblName[s].visible = view.lblBankDollarSign[s].visible = view.lblBank[s].visible = true;
    }
    view.lblBlind.text =
        "Blinds: $" + Money(SmallBlind) + " - $" + Money(2 * static_cast<int64_t>(SmallBlind));
    view.lblGoodLuck.text = TournamentSize > 8 && PlayersLeft < 9 ? "Final Table!" : "Good Luck!";
    view.lblGoodLuck.visible = true;

    if (IsFinished(*this)) {
        OpenFinishedGame(*this);
        return;
    }
    GameUnsaved = false;
    LogEvent(*this, MakeLine(LogKind::GameStart, {}, TournamentSize, newGame));
    BalanceTables();
    CardsDealt = 0;
    StartHand();
}

void Game::SaveGame() {
    if (SavedGamePath.empty()) {
        auto path = platform->SaveFileDialog(DialogRequest(*this, kSaveAsTitle));
        if (!path || path->empty()) {
            TellNotSaved(*this);
            return;
        }
        SavedGamePath = WithExtension(*path);
    }
    try {
        WriteRosterFile(*this, SavedGamePath);
        GameUnsaved = false;
    } catch (const FileError&) {
        TellNotSaved(*this);
    }
}

void Game::mnuOpen_Click() {
    auto path = platform->OpenFileDialog(DialogRequest(*this, kOpenTitle));
    if (!path || path->empty()) {
        platform->MessageBox(kNotOpened, kFailTitle, MsgIcon::Exclamation, MsgButtons::OK);
        return;
    }
    SavedGamePath = *path;
    try {
        LoadRoster();
    } catch (const FileError&) {
        AbandonGame(*this);
        platform->MessageBox(kNotOpened, kFailTitle, MsgIcon::Exclamation, MsgButtons::OK);
    }
}

void Game::mnuSave_Click() { SaveGame(); }

void Game::mnuSaveAs_Click() {
    auto path = platform->SaveFileDialog(DialogRequest(*this, kSaveAsTitle));
    if (!path || path->empty()) {
        TellNotSaved(*this);
        return;
    }
    SavedGamePath = WithExtension(*path);
    SaveGame();
}

}  // namespace holdem
