#include "files/seq_text.h"

#include <algorithm>
#include <atomic>
#include <charconv>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

namespace holdem {

namespace fs = std::filesystem;

namespace {

// Far above any file of the game (a saved tournament of 1,000 is about 40 KB);
// a larger file is not one of ours and is not read into memory.
constexpr std::uintmax_t kMaxFileBytes = 16u * 1024u * 1024u;

bool IsBlank(char c) { return c == ' ' || c == '\t'; }
bool IsLineEnd(char c) { return c == '\r' || c == '\n'; }

fs::path FsPath(const std::string& utf8) { return fs::path(std::u8string(utf8.begin(), utf8.end())); }

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

SeqReader::SeqReader(const std::string& path) : path_(path) {
    std::error_code ec;
    fs::path p = FsPath(path);
    if (path.empty() || !fs::is_regular_file(p, ec)) throw FileError(path + ": no such file");
    std::uintmax_t size = fs::file_size(p, ec);
    if (ec) throw FileError(path + ": cannot be read");
    if (size > kMaxFileBytes) throw FileError(path + ": too large to be a file of the game");
    std::ifstream in(p, std::ios::binary);
    if (!in) throw FileError(path + ": cannot be opened");
    text_.assign(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    if (in.bad()) throw FileError(path + ": cannot be read");
    // A file saved again by a text editor may carry a UTF-8 mark in front.
    if (text_.rfind("\xEF\xBB\xBF", 0) == 0) pos_ = 3;
}

SeqReader SeqReader::FromText(std::string text) {
    SeqReader r;
    r.text_ = std::move(text);
    r.path_ = "(text)";
    return r;
}

void SeqReader::Fail(const std::string& what) const {
    auto upTo = text_.begin() + static_cast<std::ptrdiff_t>(std::min(pos_, text_.size()));
    int line = 1 + static_cast<int>(std::count(text_.begin(), upTo, '\n'));
    throw FileError(path_ + ": line " + std::to_string(line) + ": " + what);
}

SeqReader::Item SeqReader::NextItem() {
    const std::size_t n = text_.size();
    // Blanks and empty lines before an item carry nothing.
    while (pos_ < n && (IsBlank(text_[pos_]) || IsLineEnd(text_[pos_]))) ++pos_;
    if (pos_ >= n) Fail("the file ends early");

    Item item;
    if (text_[pos_] == '"') {
        item.quoted = true;
        std::size_t close = pos_ + 1;
        while (close < n && text_[close] != '"' && !IsLineEnd(text_[close])) ++close;
        if (close >= n || text_[close] != '"') Fail("a quoted string is not closed");
        item.text = text_.substr(pos_ + 1, close - pos_ - 1);
        pos_ = close + 1;
        while (pos_ < n && IsBlank(text_[pos_])) ++pos_;
        if (pos_ < n && text_[pos_] != ',' && !IsLineEnd(text_[pos_])) Fail("text follows a quoted string");
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
        } else if (text_[pos_] == '\n') {
            ++pos_;
        }
    }
    return item;
}

int64_t SeqReader::ReadWhole(int64_t lo, int64_t hi, const char* kind) {
    Item item = NextItem();
    const std::string& t = item.text;
    if (item.quoted || t.empty()) Fail(std::string("a number is expected for ") + kind);
    const char* first = t.data();
    const char* last = t.data() + t.size();
    bool negative = *first == '-';
    if (*first == '-' || *first == '+') ++first;
    if (first == last || *first < '0' || *first > '9') Fail(std::string("a number is expected for ") + kind);
    uint64_t magnitude = 0;
    auto [ptr, ec] = std::from_chars(first, last, magnitude);
    if (ec == std::errc() && ptr != last) Fail(std::string("a number is expected for ") + kind);
    if (ec != std::errc() || magnitude > static_cast<uint64_t>(INT64_MAX))
        Fail(std::string("the number is too large for ") + kind);
    int64_t value = negative ? -static_cast<int64_t>(magnitude) : static_cast<int64_t>(magnitude);
    if (value < lo || value > hi) Fail(std::string("the number is too large for ") + kind);
    return value;
}

int16_t SeqReader::ReadInt16() {
    return static_cast<int16_t>(ReadWhole(INT16_MIN, INT16_MAX, "a 16-bit item"));
}

int32_t SeqReader::ReadInt32() {
    return static_cast<int32_t>(ReadWhole(INT32_MIN, INT32_MAX, "a 32-bit item"));
}

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

void SeqWriter::Commit() {
    static std::atomic<unsigned> counter{0};
    if (path_.empty()) throw FileError("no file name given");
    fs::path target = FsPath(path_);
    std::error_code ec;
    if (fs::is_directory(target, ec)) throw FileError(path_ + ": is a folder");

    auto stamp = static_cast<unsigned long long>(std::chrono::steady_clock::now().time_since_epoch().count());
    fs::path temp = target;
    temp += FsPath(".~" + std::to_string(stamp % 1000000) + "-" + std::to_string(++counter) + ".tmp");
    {
        std::ofstream out(temp, std::ios::binary | std::ios::trunc);
        if (!out) throw FileError(path_ + ": cannot be written");
        out.write(text_.data(), static_cast<std::streamsize>(text_.size()));
        out.flush();
        if (!out) {
            out.close();
            fs::remove(temp, ec);
            throw FileError(path_ + ": cannot be written");
        }
    }
    fs::rename(temp, target, ec);
    if (ec) {
        std::error_code ignored;
        fs::remove(temp, ignored);
        throw FileError(path_ + ": cannot be replaced");
    }
}

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
