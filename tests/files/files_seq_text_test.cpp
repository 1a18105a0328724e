// The sequential text format, and the shipped data files written in it.
#include <gtest/gtest.h>

#include <set>

#include "files/seq_text.h"
#include "tests/files/files_test_util.h"

namespace holdem::test {
namespace {

TEST(SeqTextTest, ItemsByPositionAcrossCommasLineEndsAndBlanks) {
    auto in =
        SeqReader::FromText("  12,\"a, b\" ,#TRUE#\r\n-7,  unquoted text  ,#false#\n\n\"\",2147483647\r\n");
    EXPECT_EQ(in.ReadInt16(), 12);
    EXPECT_EQ(in.ReadString(), "a, b");
    EXPECT_TRUE(in.ReadBool());
    EXPECT_EQ(in.ReadInt32(), -7);
    EXPECT_EQ(in.ReadString(), "unquoted text");
    EXPECT_FALSE(in.ReadBool());
    EXPECT_EQ(in.ReadString(), "");
    EXPECT_EQ(in.ReadInt32(), 2147483647);
    EXPECT_TRUE(in.AtEnd());
    EXPECT_THROW(in.ReadInt16(), FileError);
}

TEST(SeqTextTest, EveryBadItemIsAFileError) {
    const struct {
        const char* text;
        int kind;  // 0 int16, 1 int32, 2 bool, 3 string
    } cases[] = {
        {"32768", 0},
        {"-32769", 0},
        {"2147483648", 1},
        {"-2147483649", 1},
        {"99999999999999999999999", 1},
        {"12x", 0},
        {"1.5", 0},
        {"1e3", 1},
        {"", 0},
        {",", 0},
        {"\"12\"", 0},
        {"--1", 0},
        {"+-1", 0},
        {"-", 1},
        {"TRUE", 2},
        {"1", 2},
        {"\"#TRUE#\"", 2},
        {"\"open", 3},
        {"\"open\r\n\"", 3},
        {"\"a\"b,", 3},
        {"   \r\n ", 3},
    };
    for (const auto& c : cases) {
        auto in = SeqReader::FromText(c.text);
        SCOPED_TRACE(c.text);
        switch (c.kind) {
            case 0:
                EXPECT_THROW(in.ReadInt16(), FileError);
                break;
            case 1:
                EXPECT_THROW(in.ReadInt32(), FileError);
                break;
            case 2:
                EXPECT_THROW(in.ReadBool(), FileError);
                break;
            default:
                EXPECT_THROW(in.ReadString(), FileError);
                break;
        }
    }
    EXPECT_THROW(SeqReader("/no/such/folder/file.dat"), FileError);
}

TEST(SeqTextTest, WriterRoundTripsThroughTheReader) {
    TempFolder dir;
    const std::string path = dir.File("round.dat");
    SeqWriter out(path);
    out.Int(-32768).Str("Smith, John").Int(2147483647).Bool(true).EndLine();
    out.Str("  padded  ").Bool(false).Str("").EndLine();
    out.Commit();
    EXPECT_EQ(ReadAll(path), "-32768,\"Smith, John\",2147483647,#TRUE#\r\n\"  padded  \",#FALSE#,\"\"\r\n");

    SeqReader in(path);
    EXPECT_EQ(in.ReadInt16(), -32768);
    EXPECT_EQ(in.ReadString(), "Smith, John");
    EXPECT_EQ(in.ReadInt32(), 2147483647);
    EXPECT_TRUE(in.ReadBool());
    EXPECT_EQ(in.ReadString(), "  padded  ");
    EXPECT_FALSE(in.ReadBool());
    EXPECT_EQ(in.ReadString(), "");
    EXPECT_TRUE(in.AtEnd());
    EXPECT_EQ(QuoteSafe("A \"B\"\r\nC"), "A 'B'  C");
}

TEST(SeqTextTest, CommitReplacesWholeOrLeavesTheOldFile) {
    TempFolder dir;
    const std::string path = dir.File("keep.dat");
    WriteAll(path, "old\r\n");
    SeqWriter(path).Int(1).EndLine().Commit();
    EXPECT_EQ(ReadAll(path), "1\r\n");

    // A failed commit (the target's folder is missing) leaves no temporary file.
    EXPECT_THROW(SeqWriter(dir.File("missing/x.dat")).Int(1).EndLine().Commit(), FileError);
    std::filesystem::create_directory(dir.File("folder.dat"));
    EXPECT_THROW(SeqWriter(dir.File("folder.dat")).Int(1).EndLine().Commit(), FileError);
    int files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(dir.File(""))) {
        (void)entry;
        ++files;
    }
    EXPECT_EQ(files, 2);  // keep.dat and folder.dat
    EXPECT_EQ(ReadAll(path), "1\r\n");
}

// ---- The shipped files ---------------------------------------------------------

TEST(ShippedDataTest, GameDataHoldsAThousandPlayersReadyForANewGame) {
    const std::string text = ReadAll(ShippedFile("gamedata.dat"));
    std::size_t lines = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\n') {
            ++lines;
            EXPECT_TRUE(i > 0 && text[i - 1] == '\r') << "line " << lines << " does not end in CR LF";
        }
    }
    EXPECT_EQ(lines, 1001u);

    SeqReader in(ShippedFile("gamedata.dat"));
    in.ReadInt16();
    EXPECT_EQ(in.ReadInt16(), 0);
    in.ReadInt16();
    in.ReadInt32();
    std::set<std::string> names;
    std::set<int> numbers;
    for (int p = 1; p <= kRoster; ++p) {
        in.ReadInt16();
        std::string name = in.ReadString();
        EXPECT_EQ(in.ReadInt32(), 10000);
        EXPECT_EQ(in.ReadInt16(), 0);
        int number = in.ReadInt16();
        EXPECT_EQ(number == 1, p == 1) << "line " << p;
        EXPECT_FALSE(name.empty());
        EXPECT_LE(name.size(), 20u) << name;
        EXPECT_EQ(name.find('"'), std::string::npos);
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
    for (std::size_t end; (end = text.find("\r\n", start)) != std::string::npos; start = end + 2) {
        EXPECT_GT(end - start, 20u) << "tip " << tips + 1 << " is too short";
        ++tips;
    }
    EXPECT_EQ(start, text.size());
    EXPECT_GE(tips, 30);
}

}  // namespace
}  // namespace holdem::test
