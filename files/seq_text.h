// The sequential text format that every data file of the game shares:
// gamedata.dat, saved games (*.sgf), settings.dft and stnd.dat.
//
//   - A line holds the items of one write, separated by a single comma, and
//     ends in CR LF. Readers accept LF alone as well.
//   - Whole numbers are plain decimal; strings stand between double quotes
//     (a quote inside is not escaped, so writers keep quotes out of strings);
//     flags are #TRUE# or #FALSE#.
//   - A reader takes items one after the other by position: a comma and a line
//     end both end an item, blanks before an item are skipped, and a comma
//     inside quotes belongs to the string.
//
// Every failure of a read or a write is a FileError (files/safe_file.h). It
// never reaches the window: the routines that handle file failures catch it
// and tell the user why, by line and item where the text is at fault.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "files/safe_file.h"

namespace holdem {

// Reads a whole file at construction and hands out its items in order.
class SeqReader {
public:
    // Throws FileError when the file is missing, unreadable or over maxBytes.
    explicit SeqReader(const std::string& path, std::uintmax_t maxBytes = kMaxRosterFileBytes);
    static SeqReader FromText(std::string text);

    // Each throws FileError when the file ends before the item, when the item
    // is not of its kind, or when a number does not fit its width.
    int16_t ReadInt16();
    int32_t ReadInt32();
    bool ReadBool();
    std::string ReadString();

    // True when nothing but blanks and line ends is left.
    bool AtEnd();

    // Throws FileError "Line N: what." for the line of the item read last,
    // when its value is of the right kind but not one the game can take.
    [[noreturn]] void Refuse(const std::string& what) const;

private:
    SeqReader() = default;
    int Line() const;
    struct Item {
        std::string text;
        bool quoted = false;
    };
    Item NextItem();
    int64_t ReadWhole(int64_t lo, int64_t hi);
    // "Line N, item K: what." for the item being read.
    [[noreturn]] void Fail(const std::string& what) const;

    std::string text_;
    std::size_t pos_ = 0;
    std::size_t itemStart_ = 0;
    int itemInLine_ = 0;
    bool atLineStart_ = true;
};

// Collects lines in memory; Commit() writes them to a temporary file beside
// the target and renames it over the target, so that a failed or interrupted
// save leaves the previous file whole.
class SeqWriter {
public:
    explicit SeqWriter(std::string path);

    SeqWriter& Int(int64_t value);
    SeqWriter& Bool(bool value);
    // The text goes between quotes as it is; see QuoteSafe.
    SeqWriter& Str(const std::string& value);
    SeqWriter& EndLine();

    // Throws FileError when the file cannot be written; the target is then
    // left as it was.
    void Commit();

    const std::string& Text() const { return text_; }

private:
    void Separate();

    std::string path_;
    std::string text_;
    bool lineStarted_ = false;
};

// A name made fit for a quoted item: a double quote cannot be read back, so it
// becomes an apostrophe; a line end would split the record, so it becomes a blank.
std::string QuoteSafe(const std::string& text);

}  // namespace holdem
