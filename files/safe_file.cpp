#include "files/safe_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace holdem {

namespace {

constexpr std::size_t kReadChunk = 16u << 10;
constexpr mode_t kNewFileMode = 0666;  // less the umask, as any program creates files
constexpr mode_t kWriteBits = S_IWUSR | S_IWGRP | S_IWOTH;

std::string SizeText(std::uintmax_t bytes) {
    if (bytes % (1u << 20) == 0) return std::to_string(bytes >> 20) + " MB";
    if (bytes % (1u << 10) == 0) return std::to_string(bytes >> 10) + " KB";
    return std::to_string(bytes) + " bytes";
}

[[noreturn]] void Fail(const char* action, const std::string& path, const std::string& why) {
    throw FileError("Cannot " + std::string(action) + " " + path + ": " + why + ".");
}

int SystemOpen(const char* path, int flags, int mode) {
    return ::open(path, flags, static_cast<mode_t>(mode));
}
long SystemWrite(int fd, const void* data, std::size_t size) { return ::write(fd, data, size); }

std::string FolderOf(const std::string& path) {
    std::size_t slash = path.find_last_of('/');
    if (slash == std::string::npos) return ".";
    return slash == 0 ? "/" : path.substr(0, slash);
}

// A save is the only writer of the file: a target that its owner has made
// read-only, or that this user may not change, is left alone rather than
// replaced behind the lock. The mode bits are read as well as access(),
// because access() grants everything to root.
void RefuseUnfitTarget(const std::string& path, struct stat& st, bool& exists) {
    exists = ::stat(path.c_str(), &st) == 0;
    if (!exists) return;
    if (S_ISDIR(st.st_mode)) Fail("write", path, "it is a folder");
    if (!S_ISREG(st.st_mode)) Fail("write", path, "it is not a file");
    if ((st.st_mode & kWriteBits) == 0 || ::access(path.c_str(), W_OK) != 0)
        Fail("replace", path, "the file is read-only");
}

// The rename is on disk only once the folder is.
void SyncFolder(const std::string& path, SaveCalls& sys) {
    const std::string folder = FolderOf(path);
    int fd = sys.open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC, 0);
    if (fd < 0) Fail("write", path, std::strerror(errno));
    // Some file systems cannot sync a folder and say so; the rename stands.
    if (sys.fsync(fd) != 0 && errno != EINVAL && errno != ENOTSUP) {
        int err = errno;
        sys.close(fd);
        Fail("write", path, std::strerror(err));
    }
    if (sys.close(fd) != 0) Fail("write", path, std::strerror(errno));
}

}  // namespace

std::string ReadBoundedFile(const std::string& path, std::uintmax_t maxBytes) {
    if (path.empty()) throw FileError("No file name was given.");
    struct stat st;
    if (::stat(path.c_str(), &st) != 0) Fail("read", path, std::strerror(errno));
    if (!S_ISREG(st.st_mode)) Fail("read", path, "it is not a file");
    const std::string tooLarge = "the file is larger than " + SizeText(maxBytes);
    if (static_cast<std::uintmax_t>(st.st_size) > maxBytes) Fail("read", path, tooLarge);

    std::FILE* in = std::fopen(path.c_str(), "rb");
    if (!in) Fail("read", path, std::strerror(errno));
    std::string text;
    // The size is checked again as the file is read: it may have grown.
    for (;;) {
        std::size_t at = text.size();
        text.resize(at + kReadChunk);
        std::size_t got = std::fread(text.data() + at, 1, kReadChunk, in);
        text.resize(at + got);
        if (text.size() > maxBytes) {
            std::fclose(in);
            Fail("read", path, tooLarge);
        }
        if (got < kReadChunk) break;
    }
    const bool failed = std::ferror(in) != 0;
    const int err = errno;
    std::fclose(in);
    if (failed) Fail("read", path, std::strerror(err));
    return text;
}

SaveCalls& SystemSaveCalls() {
    static SaveCalls calls{SystemOpen, SystemWrite, ::fsync, ::close, ::rename};
    return calls;
}

std::string TemporaryPathFor(const std::string& path) { return path + ".~tmp"; }

void WriteFileAtomically(const std::string& path, const std::string& text) {
    if (path.empty()) throw FileError("No file name was given.");
    SaveCalls& sys = SystemSaveCalls();
    struct stat target;
    bool exists = false;
    RefuseUnfitTarget(path, target, exists);

    const std::string temp = TemporaryPathFor(path);
    ::unlink(temp.c_str());  // what a save killed part-way left behind
    int fd = sys.open(temp.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, kNewFileMode);
    if (fd < 0) Fail("write", path, std::strerror(errno));
    auto abandon = [&](int err) {
        if (fd >= 0) sys.close(fd);
        ::unlink(temp.c_str());
        Fail("write", path, std::strerror(err));
    };
    // The replacement keeps who may read the old file.
    if (exists) ::fchmod(fd, target.st_mode & 07777);

    for (std::size_t done = 0; done < text.size();) {
        long n = sys.write(fd, text.data() + done, text.size() - done);
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) abandon(n < 0 ? errno : EIO);
        done += static_cast<std::size_t>(n);
    }
    if (sys.fsync(fd) != 0) abandon(errno);
    // A failed close has released the descriptor all the same.
    int closed = sys.close(fd);
    fd = -1;
    if (closed != 0) abandon(errno);
    if (sys.rename(temp.c_str(), path.c_str()) != 0) abandon(errno);
    SyncFolder(path, sys);
}

}  // namespace holdem
