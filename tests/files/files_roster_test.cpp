// The text format and the shipped data; LoadRoster, SaveGame, New, Open, Save, Save As, new-game choices.
#include <set>

#include "files/new_game.h"
#include "files/seq_text.h"
#include "tests/files/files_test_util.h"

namespace holdem::test {
namespace {

// One item a letter (h 16-bit, l 32-bit, b flag, s string), '|' between; "!" and the reason on a FileError.
std::string Items(SeqReader& in, const std::string& kinds) {
    std::string out;
    try {
        for (char k : kinds)
            out += (out.empty() ? "" : "|") + (k == 'h'   ? std::to_string(in.ReadInt16())
                                               : k == 'l' ? std::to_string(in.ReadInt32())
                                               : k == 'b' ? std::string(in.ReadBool() ? "T" : "F")
                                                          : in.ReadString());
    } catch (const FileError& e) {
        out += (out.empty() ? "!" : "|!") + std::string(e.what());
    }
    return out;
}

TEST(SeqTextTest, ReaderTakesItemsByPosition) {
    // "!n:" is short for a failure on line 1 at item n.
    // clang-format off
    const std::tuple<std::vector<const char*>, const char*, const char*> cases[] = {
        {{"  12,\"a, b\" ,#TRUE#\r\n-7,  bare text  ,#false#\n\n\"\",+5\r3"}, "hsbhsbshh", "12|a, b|T|-7|bare text|F||5|3"},
        {{"32767,-32768,2147483647,-2147483648"}, "hhll", "32767|-32768|2147483647|-2147483648"},
        {{"1,2"}, "hhh", "1|2|!3: the file ends before this item."}, {{"1\r\n\r\n   \r\n"}, "hh", "1|!Line 4, item 1: the file ends before this item."},
        {{"32768", "-32769"}, "h", "!1: the number is outside -32768 to 32767."},
        {{"2147483648", "-2147483649", "99999999999999999999"}, "l", "!1: the number is outside -2147483648 to 2147483647."},
        {{"1\n12x"}, "hh", "1|!Line 2, item 1: a whole number is expected."}, {{"\"12\"", "1.5", "--1"}, "h", "!1: a whole number is expected."},
        {{","}, "l", "!1: a whole number is expected."}, {{"TRUE", "xTRUE#", "\"#TRUE#\""}, "b", "!1: #TRUE# or #FALSE# is expected."},
        {{"\"open", "\"open\r\n\""}, "s", "!1: a quoted text is not closed on its line."}, {{"\"a\"b,"}, "s", "!1: text follows the closing quote."},
    };
    // clang-format on
    for (const auto& [texts, kinds, expected] : cases) {
        std::string items = expected;
        if (const auto at = items.find("!"); at != std::string::npos && items[at + 2] == ':')
            items.replace(at + 1, 1, "Line 1, item " + items.substr(at + 1, 1));
        for (const char* text : texts) {
            SCOPED_TRACE(text);
            auto in = SeqReader::FromText(text);
            EXPECT_EQ(Items(in, kinds), items);
        }
    }
    auto rest = SeqReader::FromText("1 ,\r\n x \r\n \t");
    EXPECT_EQ(Items(rest, "h"), "1");
    EXPECT_FALSE(rest.AtEnd());
    EXPECT_EQ(Items(rest, "s"), "x");
    EXPECT_TRUE(rest.AtEnd());
    EXPECT_THROW(SeqReader("/no/such/folder/file.dat"), FileError);
    EXPECT_THROW(SeqReader(""), FileError);
}

TEST(SeqTextTest, WriterRoundTripsAndReplacesTheFileWholeOrNotAtAll) {
    TempFolder dir;
    const std::string path = dir.File("round.dat");
    WriteAll(path, "old\r\n");
    SeqWriter out(path);
    out.Int(-32768).Str("Smith, John").Int(2147483647).Bool(true).EndLine();
    out.Str("  padded  ").Bool(false).Str("").EndLine().Commit();
    EXPECT_EQ(ReadAll(path), "-32768,\"Smith, John\",2147483647,#TRUE#\r\n\"  padded  \",#FALSE#,\"\"\r\n");
    WriteAll(dir.File("marked.dat"), "\xEF\xBB\xBF" + ReadAll(path));
    for (const std::string& file : {path, dir.File("marked.dat")}) {
        SeqReader in(file);
        EXPECT_EQ(Items(in, "hslbsbs"), "-32768|Smith, John|2147483647|T|  padded  |F|") << file;
        EXPECT_TRUE(in.AtEnd());
    }
    EXPECT_EQ(QuoteSafe("A \"B\"\r\nC"), "A 'B'  C");

    try {  // a missing folder or a folder in the way: the failed saves
        SeqWriter("").Int(1).EndLine().Commit();
        ADD_FAILURE();
    } catch (const FileError& e) {
        EXPECT_STREQ(e.what(), "No file name was given.");
    }
    const auto entries = std::filesystem::directory_iterator(dir.Folder());
    EXPECT_EQ(std::distance(begin(entries), end(entries)), 2);  // no temporary left behind
}

// gamedata.dat: 1,000 distinct players, the user first; settings.dft: medium, sound, tips; a tip a line.
TEST(ShippedDataTest, GameDataSettingsAndTipsAreReadyForANewGame) {
    SeqReader in(ShippedFile("gamedata.dat"));
    const std::string header = Items(in, "hhhl");
    std::set<std::string> names, numbers;
    for (int p = 1; p <= kRoster; ++p) {
        const std::string line = Items(in, "hslhh"), number = line.substr(line.rfind('|') + 1);
        const std::size_t start = line.find('|') + 1, end = line.find("|10000|0|");
        EXPECT_TRUE(end - start <= 20 && line.find('"') == std::string::npos && (number == "1") == (p == 1))
            << line;
        names.insert(line.substr(start, end - start));
        numbers.insert(number);
    }
    const std::string tips = ReadAll(ShippedFile("TIPOFDAY.TXT")),
                      text = ReadAll(ShippedFile("gamedata.dat"));
    EXPECT_EQ(
        std::make_tuple(header.substr(0, 6), in.AtEnd(), names.size(), numbers.size(),
                        ReadAll(ShippedFile("settings.dft")), std::count(text.begin(), text.end(), '\r'),
                        std::count(text.begin(), text.end(), '\n'), tips.find("\r\n\r\n"),
                        tips.substr(tips.size() - 2)),
        std::make_tuple("1000|0", true, 1000u, 1000u, "2,#TRUE#,#TRUE#\r\n", 1001, 1001, std::string::npos,
                        "\r\n"));
}

const char* const kNotSaved = "There was an error saving the game.";
const float kHalf = 0x1.6db6dcp-2f, kOneAndAHalf = 0x1.b6db6ep-3f;  // times 7: exactly 2.5 and 1.5

// A letter a position, the rest `rest`: i in, z no chips, o out, p placed yet holding chips.
std::string Field(int size, std::string kinds, char rest, int hands = 30, int button = 2, int blind = 1500) {
    kinds.resize(size, rest);
    std::vector<std::string> lines;
    for (int p = 1, place = size; p <= size; ++p) {
        const char k = kinds[p - 1];
        lines.push_back(PlayerLine(p, "P" + std::to_string(p), k == 'i' || k == 'p' ? 10000 : 0,
                                   k == 'o' || k == 'p' ? place-- : 0, p));
    }
    return RosterText(size, hands, button, blind, lines);
}

// What a finished game's open hides: every element of a hand and of the table's middle.
std::vector<Element*> HandElements(View& v) {
    std::vector<Element*> all = {&v.cmdDeal,     &v.cmdStandings, &v.cmdFloor,   &v.lblPot,
                                 &v.lblPotLabel, &v.lblBlind,     &v.lblGoodLuck};
    for (int s = 1; s <= kSeats; ++s)
        all.insert(all.end(), {&v.lblBet[s], &v.lblPaid[s], &v.iArrow[s], &v.iButton[s], &v.lblPCardIndex[s],
                               &v.lblPCardValue[s]});
    for (int c = 1; c <= 21; ++c) all.push_back(&v.icard[c]);
    for (int i = 1; i <= 4; ++i) all.push_back(&v.cmdPlay[i]);
    return all;
}

using RosterTest = FileTest;

// A new game reads gamedata.dat, the button from the last of three draws; an opened game keeps seat 1's name.
TEST_F(RosterTest, LoadSetsUpTheTableAndDealsAtOnce) {
    const std::tuple<std::string, std::vector<float>, const char*> cases[] = {
        // saved game, draws, outcome
        {"", {0.99f, 0.0f, 0.7f}, "80 1 7 80 Alice, Blinds: $100 - $200, Good Luck!"},
        {"", {0.3f, 0.9f, kHalf}, "8 1 4 8 Alice, Blinds: $100 - $200, Good Luck!"},
        {"", {0.5f, 0.7f, kOneAndAHalf}, "8 1 4 8 Alice, Blinds: $100 - $200, Good Luck!"},
        {"", {0.0f, 0.0f, 0.99999994f}, "8 1 1 8 Alice, Blinds: $100 - $200, Good Luck!"},
        {Field(8, "", 'i', 0, 3, 5000), {0.1f, 0.2f, 0.7f}, "8 1 7 8 P1, Blinds: $100 - $200, Good Luck!"},
        {Field(80, "iiiiiiii", 'o'), {}, "80 31 3 8 P1, Blinds: $1,500 - $3,000, Final Table!"},
        // Balancing sends seats 2 to 5 to table 2.
        {Field(80, "iiiiiiiii", 'o'), {}, "80 31 6 9 P1, Blinds: $1,500 - $3,000, Good Luck!"},
        {Field(8, "iiiooooo", 'o', 2, 8, 250000), {}, "8 3 1 3 P1, Blinds: $250,000 - $500,000, Good Luck!"},
        // Eight left by places, eleven with chips: balancing sends seats 2 and 3 to table 2.
        {Field(200, "iiiiiiiippp", 'o'), {}, "200 31 4 8 P1, Blinds: $1,500 - $3,000, Final Table!"},
        {Field(8, "iizopiii", 'i'), {}, "8 31 5 6 P1, Blinds: $1,500 - $3,000, Good Luck!"}};
    WriteAll(dir.File("gamedata.dat"), RosterText(1000, 0, 5, 700, FieldLines(100)));
    for (const auto& [file, draws, outcome] : cases) {
        SCOPED_TRACE(outcome);
        ScriptedPlatform p2;
        Game g2(p2);
        std::tie(g2.AppFolder, g2.SeatName[1], g2.UserFinishPlace) =
            std::make_tuple(dir.Folder(), "Alice", 99);
        g2.TournamentSize = static_cast<int16_t>(file.empty() ? std::stoi(outcome) : 1000);
        g2.GameUnsaved = g2.view.picTableMoney.visible = true;
        std::tie(g2.RosterTag[201], g2.RosterName[201], g2.RosterBank[201], g2.RosterPlace[201],
                 g2.RosterNumber[201]) = std::make_tuple(77, "old", 5, 4, 201);
        if (!file.empty()) WriteAll(g2.SavedGamePath = dir.File("game.sgf"), file);
        g2.rnd.Script(LoadDraws(draws));
        g2.LoadRoster();
        ExpectSettled(g2);
        EXPECT_EQ(std::to_string(g2.TournamentSize) + " " + std::to_string(g2.HandsPlayed) + " " +
                      std::to_string(g2.ButtonSeat) + " " + std::to_string(g2.NextFinishPlace) + " " +
                      g2.SeatName[1] + ", " + g2.view.lblBlind.text + ", " + g2.view.lblGoodLuck.text,
                  outcome);
        const int size = g2.TournamentSize;
        EXPECT_EQ(
            std::make_tuple(g2.RosterName[1], g2.view.lblName[1].text, g2.SeatName[8],
                            g2.RosterName[size].empty(), g2.RosterName[size + 1], int{g2.UserFinishPlace}),
            std::make_tuple(g2.SeatName[1], g2.SeatName[1], g2.RosterName[8], false, "", 0));
        EXPECT_EQ(std::tie(g2.RosterTag[201], g2.RosterName[201], g2.RosterBank[201], g2.RosterPlace[201],
                           g2.RosterNumber[201]),
                  std::make_tuple(77, "", 0, 0, 0));
        EXPECT_TRUE(p2.messages.empty() && g2.view.lblGoodLuck.visible && !g2.view.picTableMoney.visible &&
                    !g2.GameUnsaved && g2.RunningTimer() == TimerDealHole);
    }
}

TEST_F(RosterTest, SaveWritesEveryFieldInItsPlaceAndOpensBackWhole) {
    FillRoster(g, 8);
    for (int pos = 1; pos <= 8; ++pos)
        std::tie(g.RosterTag[pos], g.RosterBank[pos], g.RosterNumber[pos]) =
            std::make_tuple(100 + pos, 9000 + 100 * pos, pos == 1 ? 1 : 20 + pos);
    std::tie(g.RosterName[2], g.RosterName[3], g.RosterName[4]) =
        std::make_tuple("Smith, John", "  Blank Ends  ", "Say \"Hi\"");
    std::tie(g.RosterTag[5], g.RosterBank[6], g.RosterPlace[6]) = std::make_tuple(-7, 0, 8);
    std::tie(g.HandsPlayed, g.ButtonSeat, g.SmallBlind, g.GameUnsaved) = std::make_tuple(14, 3, 400, true);
    p.savePaths = {dir.File("mine"), dir.File("new.sgf")};
    g.mnuSave_Click();
    EXPECT_EQ(std::make_tuple(p.messages.size(), g.SavedGamePath, g.GameUnsaved),
              std::make_tuple(0u, dir.File("mine.sgf"), false));
    const std::string text = ReadAll(dir.File("mine.sgf"));
    EXPECT_EQ(
        text,
        "8,14,3,400\r\n101,\"The User\",9100,0,1\r\n102,\"Smith, John\",9200,0,22\r\n"
        "103,\"  Blank Ends  \",9300,0,23\r\n104,\"Say 'Hi'\",9400,0,24\r\n-7,\"Player No. 5\",9500,0,25\r\n"
        "106,\"Player No. 6\",0,8,26\r\n107,\"Player No. 7\",9700,0,27\r\n108,\"Player No. "
        "8\",9800,0,28\r\n");
    g.GameUnsaved = true;
    g.mnuSave_Click();  // to the same file, without a question
    ScriptedPlatform p2;
    Game g2(p2);
    std::tie(g2.AppFolder, p2.openPaths) =
        std::make_tuple(dir.Folder(), std::deque<std::optional<std::string>>{dir.File("mine.sgf")});
    g2.rnd.Script(LoadDraws());
    g2.mnuOpen_Click();
    g.RosterName[4] = "Say 'Hi'";
    EXPECT_EQ(std::tie(g2.RosterTag, g2.RosterName, g2.RosterBank, g2.RosterPlace, g2.RosterNumber),
              std::tie(g.RosterTag, g.RosterName, g.RosterBank, g.RosterPlace, g.RosterNumber));
    EXPECT_EQ(std::make_tuple(p2.messages.size(), g2.SavedGamePath, int{g2.HandsPlayed}, int{g2.SmallBlind},
                              int{g2.PlayersLeft}),
              std::make_tuple(0u, dir.File("mine.sgf"), 15, 400, 7));
    g.mnuSaveAs_Click();  // the game moves to the new path
    EXPECT_EQ(std::make_tuple(g.SavedGamePath, ReadAll(dir.File("new.sgf")), g.GameUnsaved),
              std::make_tuple(dir.File("new.sgf"), text, false));
    for (const FileDialogRequest& asked : {p.saveDialogs.at(0), p.saveDialogs.at(1), p2.openDialogs.at(0)})
        EXPECT_EQ(std::tie(asked.filter, asked.folder),
                  std::make_tuple("Saved Game Files (*.sgf)|*.sgf", dir.Folder()));
    EXPECT_EQ(p.saveDialogs[1].title + "|" + p2.openDialogs[0].title, "Save Game As|Open Saved Game");
}

// Every file within the ranges opens and deals; those just beyond are refused in the safety tests.
TEST_F(RosterTest, OpenTakesEveryFileWithinTheRanges) {
    for (const std::string& text :
         {kMostChips, EightPlayers("8,5,2,100", 10000, "8,\"P8\",0,8,8"), Field(8, "iioooooo", 'o'),
          Field(8, "ziiiiiii", 'i'), Field(8, "iooooooi", 'o'), Field(8, "piiiiiii", 'i'),
          RosterText(1000, 5, 2, 100, FieldLines(1000)), EightPlayers("8,5,2,100"),
          EightPlayers("8,32766,1,100"), EightPlayers("8,5,8,100")}) {
        SCOPED_TRACE(text.substr(0, 60));
        Open(text, LoadDraws());
        EXPECT_EQ(std::make_pair(p.messages.size(), g.RunningTimer()),
                  std::make_pair(std::size_t{0}, TimerDealHole));
        ExpectSettled(g);
    }
}

TEST_F(RosterTest, FinishedGameOpensToItsFinalStateAndDealsNothing) {
    const std::tuple<std::string, bool, int, const char*> cases[] = {
        // file, won, user's place, message
        {Field(8, "oiiooooo", 'o', 40), false, 8, "You Finished 8th."},  // the user went out; two play on
        {Field(8, "iooooooo", 'o', 40), true, 0, "You won it."},
        {Field(8, "zzzzzzzz", 'z', 40), false, 0, "No hand can be dealt from it."}};
    for (const auto& [file, won, place, detail] : cases) {
        SCOPED_TRACE(detail);
        g.GameEnded = false;
        g.GameUnsaved = g.view.picTableMoney.visible = true;
        for (Element* e : HandElements(g.view)) e->visible = true;
        Open(file, {});
        ExpectSettled(g);
        const std::string text = "This saved game is already over. " + std::string(detail);
        ExpectMessage(text + "\n\nChoose New or Open in the File menu to play on.", "Game Over",
                      MsgIcon::Information);
        EXPECT_EQ(std::make_tuple(int{g.HandsPlayed}, int{g.UserFinishPlace}, g.view.picTableMoney.visible,
                                  g.RunningTimer()),
                  std::make_tuple(40, place, won, kTimerCount));
        EXPECT_TRUE(g.GameEnded && !g.GameUnsaved && g.view.mnuSave.enabled && g.view.mnuSaveAs.enabled);
        for (Element* e : HandElements(g.view)) EXPECT_FALSE(e->visible);
        for (int s = 1; s <= kSeats; ++s)
            EXPECT_TRUE(g.view.lblName[s].visible && g.view.lblBankDollarSign[s].visible &&
                        g.view.lblBank[s].visible);
    }
}

TEST(NewGameChoicesTest, MapTheListsToTheGame) {
    EXPECT_EQ(
        std::make_tuple(TournamentSizeFor("Single Table", "1,000"), TournamentSizeFor("Single Table", "80"),
                        TournamentSizeFor("Tournament", "80"), TournamentSizeFor("Tournament", "200"),
                        TournamentSizeFor("Tournament", "1,000")),
        std::make_tuple(8, 8, 80, 200, 1000));
    EXPECT_EQ(std::make_tuple(GameSpeedFor("Fast"), GameSpeedFor("Medium"), GameSpeedFor("Slow")),
              std::make_tuple(1, 2, 3));
    EXPECT_EQ(SpeedItemFor(0) + SpeedItemFor(1) + SpeedItemFor(2) + SpeedItemFor(3) + SpeedItemFor(4),
              "MediumFastMediumSlowMedium");
    EXPECT_EQ(PlayerNameFor("") + "|" + PlayerNameFor(" ") + "|" + PlayerNameFor("Ann"), "Player 1| |Ann");
}

// The game in play is a slow game of 8 by Ann, some hands in, its file named, a hand running; the new one a
// fast tournament of 80 with no name given.
TEST_F(RosterTest, TheQuestionsBeforeANewGameAndWhatFollows) {
    WriteAll(dir.File("gamedata.dat"), RosterText(1000, 0, 1, 100, FieldLines(200)));
    using A = MsgAnswer;
    const char *const kStart = "Start New Game?", *const kSave = "Save Existing Game?";
    // clang-format off
    const struct { int hands; bool unsaved, ended, named; std::vector<MsgAnswer> answers; bool cancelDialog; std::vector<std::string> messages; bool started, saved; } cases[] = {
        {1, true, false, true, {A::No}, false, {kStart}, false, false},
        {7, true, false, true, {A::Cancel}, false, {kStart}, false, false},
        {7, true, false, true, {A::Yes, A::No}, true, {kStart, kSave}, false, false},
        {7, true, false, true, {A::Yes, A::Yes}, false, {kStart, kSave}, true, true},
        {7, false, false, true, {A::Yes}, false, {kStart}, true, false},
        {7, true, false, false, {A::Yes, A::Yes}, false, {kStart, kSave, kNotSaved}, true, false},
        {7, true, true, true, {}, false, {}, true, false},
    };
    // clang-format on
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message()
                     << c.unsaved << c.ended << c.named << " answers " << c.answers.size());
        std::filesystem::remove(dir.File("current.sgf"));
        p.newGames.assign(1, {false, "Single Table", "80", "Slow"});
        p.playerNames.assign(1, "Ann");
        std::tie(g.GameEnded, g.SavedGamePath) = std::make_tuple(true, "");
        g.rnd.Script(LoadDraws({0.1f, 0.2f, 0.3f}));
        g.mnuNew_Click();
        std::tie(g.HandsPlayed, g.GameUnsaved, g.GameEnded) = std::make_tuple(c.hands, c.unsaved, c.ended);
        g.SavedGamePath = c.named ? dir.File("current.sgf") : "";
        g.StopHandTimers();
        g.EnableTimer(TimerBetTurn);
        const std::string header = "8,7," + std::to_string(g.ButtonSeat) + "," + std::to_string(g.SmallBlind);
        p.messages.clear();
        p.answers.assign(c.answers.begin(), c.answers.end());
        const std::size_t dialogs = p.newGameSpeeds.size();
        p.newGames.assign(1, {c.cancelDialog, "Tournament", "80", "Fast"});
        p.playerNames.assign(1, "");
        g.rnd.Script(LoadDraws({0.0f, 0.0f, 0.0f}));
        g.mnuNew_Click();
        std::vector<std::string> texts;
        for (const auto& m : p.messages) {
            texts.push_back(m.text.substr(0, m.text.find('\n')));
            if (m.text != kNotSaved) {
                EXPECT_EQ(std::tie(m.title, m.icon, m.buttons),
                          std::make_tuple(m.text == kStart ? "Start New Game" : "Save Game",
                                          MsgIcon::Question, MsgButtons::YesNo));
            }
        }
        EXPECT_EQ(std::make_tuple(texts, g.NewGameCancelled), std::make_tuple(c.messages, c.cancelDialog));
        EXPECT_EQ(std::vector<int16_t>(p.newGameSpeeds.begin() + dialogs, p.newGameSpeeds.end()),
                  std::vector<int16_t>(c.started || c.cancelDialog, 3));
        EXPECT_EQ(std::make_tuple(g.SeatName[1], g.RosterName[1], int{g.TournamentSize}, int{g.HandsPlayed},
                                  int{g.GameSpeed}, g.view.mnuSlowSpeed.checked,
                                  g.view.timer[TimerBetHole].interval, g.GameEnded),
                  c.started ? std::make_tuple("Player 1", "Player 1", 80, 1, 1, false, 800, false)
                            : std::make_tuple("Ann", "Ann", 8, c.hands, 3, true, 1600, c.ended));
        EXPECT_EQ(g.SavedGamePath, c.started || !c.named ? "" : dir.File("current.sgf"));
        EXPECT_EQ(g.RunningTimer(), c.started ? TimerDealHole : TimerBetTurn);
        if (c.started) ExpectSettled(g);
        // A save in mid-hand: the roster of the last finished hand, the header of the running one.
        const std::string file = ReadAll(dir.File("current.sgf"));
        EXPECT_EQ(file.substr(0, file.find("\r\n")), c.saved ? header : "");
        EXPECT_EQ(file.find("\r\n1,\"Ann\",10000,0,1\r\n") != std::string::npos, c.saved);
    }
    EXPECT_EQ(
        std::make_tuple(g.RosterName[80], g.RosterName[81], g.view.lblBlind.text, g.view.lblGoodLuck.text),
        std::make_tuple("Player No. 80", "", "Blinds: $100 - $200", "Good Luck!"));
}

}  // namespace
}  // namespace holdem::test
