// The sequential text format, and the shipped data files written in it.
#include <gtest/gtest.h>

#include <set>

#include "files/seq_text.h"
#include "tests/files/files_test_util.h"

namespace holdem::test {
namespace {

// Reads one item per letter (h 16-bit, l 32-bit, b flag, s string), joined by '|'.
std::string Items(SeqReader& in, const std::string& kinds) {
    std::string out;
    for (std::size_t i = 0; i < kinds.size(); ++i)
        out += (i ? "|" : "") + (kinds[i] == 'h'   ? std::to_string(in.ReadInt16())
                                 : kinds[i] == 'l' ? std::to_string(in.ReadInt32())
                                 : kinds[i] == 'b' ? std::string(in.ReadBool() ? "T" : "F")
                                                   : in.ReadString());
    return out;
}

TEST(SeqTextTest, ItemsByPositionAcrossCommasLineEndsAndBlanks) {
    auto in =
        SeqReader::FromText("  12,\"a, b\" ,#TRUE#\r\n-7,  unquoted text  ,#false#\n\n\"\",2147483647\r\n");
    EXPECT_EQ(Items(in, "hsblsbsl"), "12|a, b|T|-7|unquoted text|F||2147483647");
    EXPECT_TRUE(in.AtEnd());
    EXPECT_THROW(in.ReadInt16(), FileError);
}

TEST(SeqTextTest, EveryBadItemIsAFileError) {
    const std::pair<const char*, std::vector<const char*>> cases[] = {
        {"h", {"32768", "-32769", "12x", "1.5", "", ",", "\"12\"", "--1", "+-1"}},
        {"l", {"2147483648", "-2147483649", "99999999999999999999999", "1e3", "-"}},
        {"b", {"TRUE", "1", "\"#TRUE#\""}},
        {"s", {"\"open", "\"open\r\n\"", "\"a\"b,", "   \r\n "}}};
    for (const auto& [kind, texts] : cases)
        for (const char* text : texts) {
            auto in = SeqReader::FromText(text);
            EXPECT_THROW(Items(in, kind), FileError) << kind << " " << text;
        }
    EXPECT_THROW(SeqReader("/no/such/folder/file.dat"), FileError);
}

TEST(SeqTextTest, WriterRoundTripsThroughTheReader) {
    TempFolder dir;
    const std::string path = dir.File("round.dat");
    SeqWriter(path)
        .Int(-32768)
        .Str("Smith, John")
        .Int(2147483647)
        .Bool(true)
        .EndLine()
        .Str("  padded  ")
        .Bool(false)
        .Str("")
        .EndLine()
        .Commit();
    EXPECT_EQ(ReadAll(path), "-32768,\"Smith, John\",2147483647,#TRUE#\r\n\"  padded  \",#FALSE#,\"\"\r\n");
    SeqReader in(path);
    EXPECT_EQ(Items(in, "hslbsbs"), "-32768|Smith, John|2147483647|T|  padded  |F|");
    EXPECT_TRUE(in.AtEnd());
    EXPECT_EQ(QuoteSafe("A \"B\"\r\nC"), "A 'B'  C");
}

TEST(SeqTextTest, CommitReplacesWholeOrLeavesTheOldFileAndNoTemporary) {
    TempFolder dir;
    const std::string path = dir.File("keep.dat");
    WriteAll(path, "old\r\n");
    SeqWriter(path).Int(1).EndLine().Commit();
    EXPECT_EQ(ReadAll(path), "1\r\n");
    std::filesystem::create_directory(dir.File("folder.dat"));
    for (const char* target : {"missing/x.dat", "folder.dat"})
        EXPECT_THROW(SeqWriter(dir.File(target)).Int(1).EndLine().Commit(), FileError) << target;
    const auto entries = std::filesystem::directory_iterator(dir.File(""));
    EXPECT_EQ(std::distance(begin(entries), end(entries)), 2);  // keep.dat and folder.dat
    EXPECT_EQ(ReadAll(path), "1\r\n");
}

TEST(ShippedDataTest, GameDataHoldsAThousandDistinctPlayersReadyForANewGame) {
    const std::string text = ReadAll(ShippedFile("gamedata.dat"));
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 1001);
    for (std::size_t i = text.find('\n'); i != std::string::npos; i = text.find('\n', i + 1))
        ASSERT_EQ(text[i - 1], '\r') << "at byte " << i;
    SeqReader in(ShippedFile("gamedata.dat"));
    in.ReadInt16();
    EXPECT_EQ(in.ReadInt16(), 0);
    in.ReadInt16();
    in.ReadInt32();
    std::set<std::string> names;
    std::set<int> numbers;
    for (int p = 1; p <= kRoster; ++p) {
        in.ReadInt16();
        const std::string name = in.ReadString();
        EXPECT_EQ(Items(in, "lh"), "10000|0") << p;
        const int number = in.ReadInt16();
        EXPECT_EQ(number == 1, p == 1) << p;
        EXPECT_TRUE(!name.empty() && name.size() <= 20 && name.find('"') == std::string::npos) << name;
        names.insert(name);
        numbers.insert(number);
    }
    EXPECT_TRUE(in.AtEnd());
    EXPECT_EQ(names.size(), 1000u);
    EXPECT_EQ(numbers.size(), 1000u);
}

TEST(ShippedDataTest, TipsAreOneToALine) {
    const std::string text = ReadAll(ShippedFile("TIPOFDAY.TXT"));
    int tips = 0;
    std::size_t start = 0;
    for (std::size_t end; (end = text.find("\r\n", start)) != std::string::npos; start = end + 2, ++tips)
        EXPECT_GT(end - start, 20u) << "tip " << tips + 1 << " is too short";
    EXPECT_EQ(start, text.size());
    EXPECT_GE(tips, 30);
}

}  // namespace
}  // namespace holdem::test
