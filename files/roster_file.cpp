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

// Chips, bets and blinds move in hundreds; the game never writes another amount.
constexpr int32_t kChipUnit = 100;

bool IsGameSize(int size) { return size == 8 || size == 80 || size == 200 || size == 1000; }

void Require(const SeqReader& in, bool ok, const char* what) {
    if (!ok) in.Refuse(what);
}

// Step 3: the header. A new game keeps the size chosen in the dialog.
void ReadHeader(RosterFile& f, SeqReader& in, bool newGame, int16_t newGameSize) {
    int16_t size = in.ReadInt16();
    f.TournamentSize = newGame ? newGameSize : size;
    f.HandsPlayed = in.ReadInt16();
    f.ButtonSeat = in.ReadInt16();
    f.SmallBlind = in.ReadInt32();
    Require(in, IsGameSize(f.TournamentSize), "the size of the game is not 8, 80, 200 or 1000");
    Require(in, f.HandsPlayed >= 0 && f.HandsPlayed <= kMaxHandsPlayed, "the count of hands is out of range");
    // With no hand played yet both are drawn anew in step 9.
    if (f.HandsPlayed != 0) {
        Require(in, f.ButtonSeat >= 1 && f.ButtonSeat <= kSeats, "the button is not at a seat from 1 to 8");
        Require(in, f.SmallBlind >= kChipUnit && f.SmallBlind <= kMaxChips,
                "the small blind is out of range");
        Require(in, f.SmallBlind % kChipUnit == 0, "the small blind is not a whole number of hundreds");
    }
}

// Step 4: one player line, checked so that no routine of the game meets a
// value it cannot handle. The field's chips need not add up to its size
// times the starting stack: a settlement that reports a shortfall leaves a
// game that must still open.
RosterRecord ReadPlayer(const RosterFile& f, SeqReader& in, int64_t& chips) {
    RosterRecord r;
    r.Tag = in.ReadInt16();
    r.Name = in.ReadString();
    r.Bank = in.ReadInt32();
    r.Place = in.ReadInt16();
    r.Number = in.ReadInt16();
    Require(in, r.Bank >= 0, "a player's chips are below zero");
    Require(in, r.Bank % kChipUnit == 0, "a player's chips are not a whole number of hundreds");
    chips += r.Bank;
    Require(in, chips <= kMaxChips, "the chips of the game add up to more than it can hold");
    Require(in, r.Place >= 0 && r.Place <= f.TournamentSize, "a place is beyond the size of the game");
    return r;
}

bool IsFinished(const Game& g) {
    int withChips = 0;
    for (int p = 1; p <= g.TournamentSize; ++p)
        if (g.RosterBank[p] > 0) ++withChips;
    bool userOut = g.RosterBank[1] <= 0 && g.RosterPlace[1] >= 1;
    return userOut || withChips <= 1;
}

bool IsFinished(const RosterFile& f) {
    int withChips = 0;
    for (const RosterRecord& r : f.Records)
        if (r.Bank > 0) ++withChips;
    const RosterRecord& user = f.Records.front();
    return (user.Bank <= 0 && user.Place >= 1) || withChips <= 1;
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

// The first line is the game's own; the reason, when there is one, follows.
std::string WithReason(const char* text, const std::string& reason) {
    return reason.empty() ? std::string(text) : std::string(text) + "\n" + reason;
}

void TellNotSaved(Game& g, const std::string& reason = {}) {
    g.platform->MessageBox(WithReason(kNotSaved, reason), kFailTitle, MsgIcon::Exclamation, MsgButtons::OK);
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

RosterFile ReadRosterFile(const std::string& path, bool newGame, int16_t newGameSize) {
    SeqReader in(path);
    RosterFile f;
    ReadHeader(f, in, newGame, newGameSize);
    f.Records.reserve(static_cast<std::size_t>(f.TournamentSize));
    int64_t chips = 0;
    for (int p = 1; p <= f.TournamentSize; ++p) f.Records.push_back(ReadPlayer(f, in, chips));
    if (newGame && IsFinished(f)) throw FileError("It holds no field to play.");
    return f;
}

void LoadRosterFrom(Game& g, const RosterFile& f) {
    // A new or opened game can arrive in mid-hand: the old hand's chain ends here.
    g.StopHandTimers();
    ClearTable(g.view);

    g.view.picTableMoney.visible = false;
    g.PlayersLeft = 0;
    for (int p = 1; p <= kRoster; ++p) {
        g.RosterNumber[p] = 0;
        g.RosterPlace[p] = 0;
        g.RosterBank[p] = 0;
        g.RosterName[p].clear();
    }
    const bool newGame = g.SavedGamePath.empty();
    g.TournamentSize = f.TournamentSize;  // a new game's as the dialog chose it
    g.HandsPlayed = f.HandsPlayed;
    g.ButtonSeat = f.ButtonSeat;
    g.SmallBlind = f.SmallBlind;
    for (int p = 1; p <= g.TournamentSize; ++p) {
        const RosterRecord& r = f.Records[static_cast<std::size_t>(p - 1)];
        g.RosterTag[p] = r.Tag;
        g.RosterName[p] = r.Name;
        g.RosterBank[p] = r.Bank;
        g.RosterPlace[p] = r.Place;
        g.RosterNumber[p] = r.Number;
        if (g.RosterNumber[p] == 1) g.UserFinishPlace = g.RosterPlace[p];
        if (g.RosterPlace[p] == 0) ++g.PlayersLeft;
    }

    g.NextFinishPlace = g.PlayersLeft;
    if (newGame) g.RosterName[1] = g.SeatName[1];
    for (int s = 1; s <= kSeats; ++s) {
        g.SeatName[s] = g.RosterName[s];
        g.SeatBank[s] = static_cast<float>(g.RosterBank[s]);
    }
    if (g.HandsPlayed == 0) {
        g.rnd.Randomize();
        for (int draw = 0; draw < 3; ++draw)
            g.ButtonSeat = static_cast<int16_t>(RoundHalfEven(g.rnd.Rnd() * 7.0f) + 1.0f);
        g.SmallBlind = 100;
    }
    for (int s = 1; s <= kSeats; ++s) {
        g.view.lblBank[s].text = Money(g.RosterBank[s]);
        g.view.lblName[s].text = g.SeatName[s];
        g.view.lblName[s].visible = g.view.lblBankDollarSign[s].visible = g.view.lblBank[s].visible = true;
    }
    g.view.lblBlind.text =
        "Blinds: $" + Money(g.SmallBlind) + " - $" + Money(2 * static_cast<int64_t>(g.SmallBlind));
    g.view.lblGoodLuck.text = g.TournamentSize > 8 && g.PlayersLeft < 9 ? "Final Table!" : "Good Luck!";
    g.view.lblGoodLuck.visible = true;

    if (IsFinished(g)) {
        OpenFinishedGame(g);
        return;
    }
    g.GameUnsaved = false;
    LogEvent(g, MakeLine(LogKind::GameStart, {}, g.TournamentSize, newGame));
    g.BalanceTables();
    g.CardsDealt = 0;
    g.StartHand();
}

void Game::LoadRoster() {
    const bool newGame = SavedGamePath.empty();
    LoadRosterFrom(*this,
                   ReadRosterFile(newGame ? AppFolder + kGameData : SavedGamePath, newGame, TournamentSize));
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
    } catch (const FileError& e) {
        TellNotSaved(*this, e.what());
    }
}

void Game::mnuOpen_Click() {
    auto path = platform->OpenFileDialog(DialogRequest(*this, kOpenTitle));
    if (!path || path->empty()) {
        platform->MessageBox(kNotOpened, kFailTitle, MsgIcon::Exclamation, MsgButtons::OK);
        return;
    }
    // The whole file is read and checked before the game in play is touched:
    // a file that fails leaves that game, its path and its menus as they were.
    RosterFile file;
    try {
        file = ReadRosterFile(*path, false, 0);
    } catch (const FileError& e) {
        platform->MessageBox(WithReason(kNotOpened, e.what()), kFailTitle, MsgIcon::Exclamation,
                             MsgButtons::OK);
        return;
    }
    SavedGamePath = *path;
    LoadRosterFrom(*this, file);
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
