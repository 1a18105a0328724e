// The sequential text format, and the shipped data files written in it.
#include <cstring>
#include <set>

#include "files/seq_text.h"
#include "tests/files/files_test_util.h"

namespace holdem::test {
namespace {

// Reads one item per letter (h 16-bit, l 32-bit, b flag, s string), joined by
// '|'; a FileError ends the list with "!" and its reason.
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

    std::filesystem::create_directory(dir.File("folder.dat"));
    for (const std::string& target : {dir.File("missing/x.dat"), dir.File("folder.dat"), std::string()}) {
        try {
            SeqWriter(target).Int(1).EndLine().Commit();
            ADD_FAILURE() << target;
        } catch (const FileError& e) {
            EXPECT_EQ(e.what(), target.empty() ? std::string("No file name was given.")
                                : target.find("folder") != std::string::npos
                                    ? "Cannot write " + target + ": it is a folder."
                                    : "Cannot write " + target + ": " + std::strerror(ENOENT) + ".");
        }
    }
    const auto entries = std::filesystem::directory_iterator(dir.Folder());
    EXPECT_EQ(std::distance(begin(entries), end(entries)), 3);  // no temporary left behind
}

// gamedata.dat: 1,000 players of distinct names and numbers ready for a new game,
// the user first; settings.dft: medium, sound on, tips on; one tip to a line.
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

}  // namespace
}  // namespace holdem::test
