#include "files/seq_text.h"

#include <algorithm>
#include <charconv>

namespace holdem {

namespace {

bool IsBlank(char c) { return c == ' ' || c == '\t'; }
bool IsLineEnd(char c) { return c == '\r' || c == '\n'; }

bool EqualsNoCase(const std::string& a, const char* b) {
    std::size_t n = std::char_traits<char>::length(b);
    if (a.size() != n) return false;
    for (std::size_t i = 0; i < n; ++i) {
        char x = a[i];
        if (x >= 'a' && x <= 'z') x = static_cast<char>(x - 'a' + 'A');
        if (x != b[i]) return false;
    }
    return true;
}

}  // namespace

// ---- Reading ------------------------------------------------------------------

SeqReader::SeqReader(const std::string& path, std::uintmax_t maxBytes)
    : text_(ReadBoundedFile(path, maxBytes)) {
    // A file saved again by a text editor may carry a UTF-8 mark in front.
    if (text_.rfind("\xEF\xBB\xBF", 0) == 0) pos_ = 3;
}

SeqReader SeqReader::FromText(std::string text) {
    SeqReader r;
    r.text_ = std::move(text);
    return r;
}

int SeqReader::Line() const {
    // CR LF, LF and a CR alone each end a line.
    int line = 1;
    const std::size_t upTo = std::min(itemStart_, text_.size());
    for (std::size_t i = 0; i < upTo; ++i)
        if (text_[i] == '\n' || (text_[i] == '\r' && (i + 1 >= text_.size() || text_[i + 1] != '\n'))) ++line;
    return line;
}

void SeqReader::Refuse(const std::string& what) const {
    throw FileError("Line " + std::to_string(Line()) + ": " + what + ".");
}

void SeqReader::Fail(const std::string& what) const {
    throw FileError("Line " + std::to_string(Line()) + ", item " + std::to_string(itemInLine_) + ": " + what +
                    ".");
}

SeqReader::Item SeqReader::NextItem() {
    const std::size_t n = text_.size();
    // Blanks and empty lines before an item carry nothing.
    while (pos_ < n && (IsBlank(text_[pos_]) || IsLineEnd(text_[pos_]))) {
        if (IsLineEnd(text_[pos_])) atLineStart_ = true;
        ++pos_;
    }
    itemStart_ = pos_;
    itemInLine_ = atLineStart_ ? 1 : itemInLine_ + 1;
    atLineStart_ = false;
    if (pos_ >= n) Fail("the file ends before this item");

    Item item;
    if (text_[pos_] == '"') {
        item.quoted = true;
        std::size_t close = pos_ + 1;
        while (close < n && text_[close] != '"' && !IsLineEnd(text_[close])) ++close;
        if (close >= n || text_[close] != '"') Fail("a quoted text is not closed on its line");
        item.text = text_.substr(pos_ + 1, close - pos_ - 1);
        pos_ = close + 1;
        while (pos_ < n && IsBlank(text_[pos_])) ++pos_;
        if (pos_ < n && text_[pos_] != ',' && !IsLineEnd(text_[pos_])) Fail("text follows the closing quote");
    } else {
        std::size_t end = pos_;
        while (end < n && text_[end] != ',' && !IsLineEnd(text_[end])) ++end;
        std::size_t last = end;
        while (last > pos_ && IsBlank(text_[last - 1])) --last;
        item.text = text_.substr(pos_, last - pos_);
        pos_ = end;
    }
    // Consume the delimiter: a comma, or one line end (CR LF, LF or CR).
    if (pos_ < n) {
        if (text_[pos_] == ',') {
            ++pos_;
        } else if (text_[pos_] == '\r') {
            ++pos_;
            if (pos_ < n && text_[pos_] == '\n') ++pos_;
            atLineStart_ = true;
        } else if (text_[pos_] == '\n') {
            ++pos_;
            atLineStart_ = true;
        }
    }
    return item;
}

int64_t SeqReader::ReadWhole(int64_t lo, int64_t hi) {
    Item item = NextItem();
    const std::string& t = item.text;
    const char* kExpected = "a whole number is expected";
    if (item.quoted || t.empty()) Fail(kExpected);
    const char* first = t.data();
    const char* last = t.data() + t.size();
    bool negative = *first == '-';
    if (*first == '-' || *first == '+') ++first;
    if (first == last || *first < '0' || *first > '9') Fail(kExpected);
    uint64_t magnitude = 0;
    auto [ptr, ec] = std::from_chars(first, last, magnitude);
    if (ec == std::errc() && ptr != last) Fail(kExpected);
    const std::string range = "the number is outside " + std::to_string(lo) + " to " + std::to_string(hi);
    if (ec != std::errc() || magnitude > static_cast<uint64_t>(INT64_MAX)) Fail(range);
    int64_t value = negative ? -static_cast<int64_t>(magnitude) : static_cast<int64_t>(magnitude);
    if (value < lo || value > hi) Fail(range);
    return value;
}

int16_t SeqReader::ReadInt16() { return static_cast<int16_t>(ReadWhole(INT16_MIN, INT16_MAX)); }

int32_t SeqReader::ReadInt32() { return static_cast<int32_t>(ReadWhole(INT32_MIN, INT32_MAX)); }

bool SeqReader::ReadBool() {
    Item item = NextItem();
    if (!item.quoted && EqualsNoCase(item.text, "#TRUE#")) return true;
    if (!item.quoted && EqualsNoCase(item.text, "#FALSE#")) return false;
    Fail("#TRUE# or #FALSE# is expected");
}

std::string SeqReader::ReadString() { return NextItem().text; }

bool SeqReader::AtEnd() {
    for (std::size_t i = pos_; i < text_.size(); ++i)
        if (!IsBlank(text_[i]) && !IsLineEnd(text_[i])) return false;
    return true;
}

// ---- Writing ------------------------------------------------------------------

SeqWriter::SeqWriter(std::string path) : path_(std::move(path)) {}

void SeqWriter::Separate() {
    if (lineStarted_) text_ += ',';
    lineStarted_ = true;
}

SeqWriter& SeqWriter::Int(int64_t value) {
    Separate();
    text_ += std::to_string(value);
    return *this;
}

SeqWriter& SeqWriter::Bool(bool value) {
    Separate();
    text_ += value ? "#TRUE#" : "#FALSE#";
    return *this;
}

SeqWriter& SeqWriter::Str(const std::string& value) {
    Separate();
    text_ += '"';
    text_ += value;
    text_ += '"';
    return *this;
}

SeqWriter& SeqWriter::EndLine() {
    text_ += "\r\n";
    lineStarted_ = false;
    return *this;
}

void SeqWriter::Commit() { WriteFileAtomically(path_, text_); }

std::string QuoteSafe(const std::string& text) {
    std::string out = text;
    for (char& c : out) {
        if (c == '"')
            c = '\'';
        else if (IsLineEnd(c))
            c = ' ';
    }
    return out;
}

}  // namespace holdem
