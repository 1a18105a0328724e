// Whole files read within a limit and written so that a failed save keeps the
// old file. The one unit of the engine that calls the operating system
// directly: a save that survives a power cut needs fsync, which the standard
// library does not offer.
#pragma once

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>

namespace holdem {

// Every failure to read or write a file of the game. Its text says why, in
// words a player can act on ("Line 12: ...", "Cannot write PATH: No space left
// on device."); the message boxes show it under their own first line.
class FileError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// The largest file of each kind the game reads. Each stands far above what
// the game writes (a saved tournament of 1,000 players is about 33 KB,
// settings.dft 17 bytes, the shipped tips under 4 KB); a larger file is not
// one of ours and is refused without being read.
inline constexpr std::uintmax_t kMaxRosterFileBytes = 1u << 20;    // *.sgf, gamedata.dat, stnd.dat
inline constexpr std::uintmax_t kMaxSettingsFileBytes = 4u << 10;  // settings.dft
inline constexpr std::uintmax_t kMaxTipsFileBytes = 1u << 20;      // TIPOFDAY.TXT

// The contents of a regular file of at most maxBytes bytes. Throws FileError
// when there is no such file, it cannot be read, or it is larger.
std::string ReadBoundedFile(const std::string& path, std::uintmax_t maxBytes);

// The calls a save makes, as the operating system offers them. Tests replace
// one to make it fail; everything else goes through the real ones.
struct SaveCalls {
    int (*open)(const char* path, int flags, int mode);
    long (*write)(int fd, const void* data, std::size_t size);
    int (*fsync)(int fd);
    int (*close)(int fd);
    int (*rename)(const char* from, const char* to);
};
SaveCalls& SystemSaveCalls();

// Where a save writes before it renames: beside the target, one name per
// target, so that the next save to that place removes what a killed one left.
std::string TemporaryPathFor(const std::string& path);

// Writes the text to a temporary file, syncs it, renames it over the target
// and syncs the folder. A read-only target is refused. On any failure the
// temporary file is gone and the target as it was; FileError tells why.
void WriteFileAtomically(const std::string& path, const std::string& text);

}  // namespace holdem
