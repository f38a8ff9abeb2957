#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <new>
#include <utility>

#include "platform/unfinished_file.h"

namespace lx {

namespace {

// No file of the module comes near it.
constexpr off_t longest = 0x7FFFFFFF;

class Descriptor {
public:
    // Not blocking: a pipe of that name must not hang the program.
    Descriptor(const Path& path, int flags)
        : m_number(::open(path.c_str(), flags | O_CLOEXEC | O_NONBLOCK, 0666)) {}
    ~Descriptor() {
        if (m_number >= 0) ::close(m_number);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    bool open() const { return m_number >= 0; }
    int number() const { return m_number; }
    // Length of a plain file, -1 for anything else.
    off_t length() const {
        struct stat about {};
        if (::fstat(m_number, &about) != 0 || !S_ISREG(about.st_mode)) return -1;
        return about.st_size;
    }
    // All that is needed to read the bytes again; times of change may be lost.
    bool flush() const { return ::fdatasync(m_number) == 0; }
    // Also a close can tell of bytes that did not arrive.
    bool close() { return ::close(std::exchange(m_number, -1)) == 0; }

    bool write(std::string_view bytes) const {
        while (!bytes.empty()) {
            const ssize_t written = ::write(m_number, bytes.data(), bytes.size());
            if (written < 0 && errno == EINTR) continue;
            if (written <= 0) return false;
            bytes.remove_prefix(static_cast<std::size_t>(written));
        }
        return true;
    }
    bool readAll(Bytes& bytes) const {
        char buffer[16384];
        for (;;) {
            const ssize_t got = ::read(m_number, buffer, sizeof buffer);
            if (got < 0 && errno == EINTR) continue;
            if (got < 0) return false;
            if (got == 0) return true;
            bytes.append(buffer, static_cast<std::size_t>(got));
        }
    }

private:
    int m_number;
};

// A file without the owner's write permission counts as read-only for everybody, also for an
// administrator and for a rename over it, as a read-only file does on Windows.
bool readOnly(const Path& path) {
    struct stat about {};
    return ::stat(path.c_str(), &about) == 0 && (about.st_mode & S_IWUSR) == 0;
}

void flushFolderOf(const Path& path) {
    const std::size_t slash = path.rfind('/');
    const Path folder = slash == Path::npos ? "." : path.substr(0, slash + 1);
    const Descriptor opened(folder, O_RDONLY | O_DIRECTORY);
    // Some file systems cannot flush a folder; the file itself is in its place either way.
    if (opened.open()) opened.flush();
}

void takeAway(const Path& path) {
    ::unlink(path.c_str());
}

class PosixFiles final : public Files {
public:
    FileRead read(const Path& path) override {
        const Descriptor file(path, O_RDONLY);
        if (!file.open()) {
            const bool absent = errno == ENOENT || errno == ENOTDIR;
            return {absent ? ReadStatus::missing : ReadStatus::failed, {}};
        }
        FileRead result{ReadStatus::ok, {}};
        const off_t length = file.length();
        if (length < 0 || length > longest) return {ReadStatus::failed, {}};
        try {
            result.bytes.reserve(static_cast<std::size_t>(length));
            if (file.readAll(result.bytes)) return result;
        } catch (const std::bad_alloc&) {
            // A file larger than the memory that is left cannot be read.
        }
        return {ReadStatus::failed, {}};
    }

    bool same(const Path& a, const Path& b) override {
        struct stat one {};
        struct stat other {};
        return ::stat(a.c_str(), &one) == 0 && ::stat(b.c_str(), &other) == 0 &&
               one.st_dev == other.st_dev && one.st_ino == other.st_ino;
    }

    bool writable(const Path& path) override {
        if (readOnly(path)) return false;
        const Descriptor file(path, O_RDWR);
        return file.open() && file.length() >= 0;
    }

    bool createEmpty(const Path& path) override {
        const Descriptor file(path, O_WRONLY | O_CREAT | O_EXCL);
        if (!file.open()) return false;
        flushFolderOf(path);
        return true;
    }

    bool replaceByPieces(const Path& path, const NextPiece& next) override {
        if (readOnly(path)) return false;
        // A name that a killed process left behind is passed over.
        for (int attempt = 0; attempt < 100; ++attempt) {
            UnfinishedFile beside(path + ".new" + std::to_string(attempt), &takeAway);
            Descriptor file(beside.path(), O_WRONLY | O_CREAT | O_EXCL);
            if (!file.open() && errno == EEXIST) continue;
            if (!file.open()) return false;
            beside.made = true;
            const bool done = keepMode(path, file) && writePieces(file, next) && file.flush() &&
                              file.close() && ::rename(beside.path().c_str(), path.c_str()) == 0;
            beside.made = !done;
            if (done) flushFolderOf(path);
            return done;
        }
        return false;
    }

    bool append(const Path& path, std::string_view bytes, const Seal& seal) override {
        if (readOnly(path)) return false;
        // Only a file that was surely made here may be taken away again.
        const bool isNew = Descriptor(path, O_WRONLY | O_CREAT | O_EXCL).open();
        const Descriptor file(path, O_WRONLY | O_APPEND | O_CREAT);
        const off_t before = file.open() ? file.length() : -1;
        if (before >= 0 && file.write(bytes) && file.flush() &&
            setSeal(path, file, bytes.size(), seal)) {
            if (isNew) flushFolderOf(path);
            return true;
        }
        if (isNew) {
            takeAway(path);
        } else if (before >= 0 && ::ftruncate(file.number(), before) == 0) {
            file.flush();
        }
        return false;
    }

    bool overwrite(const Path& path, std::uint64_t offset, std::string_view bytes) override {
        if (readOnly(path)) return false;
        const Descriptor file(path, O_WRONLY);
        const off_t length = file.open() ? file.length() : -1;
        if (length < 0) return false;
        const auto size = static_cast<std::uint64_t>(length);
        if (offset > size || bytes.size() > size - offset) return false;
        return ::lseek(file.number(), static_cast<off_t>(offset), SEEK_SET) >= 0 &&
               file.write(bytes) && file.flush();
    }

    bool remove(const Path& path) override {
        if (readOnly(path)) return false;
        return ::unlink(path.c_str()) == 0 || errno == ENOENT || errno == ENOTDIR;
    }

    Path temporaryFolder() override {
        const char* set = std::getenv("TMPDIR");
        Path folder = set && *set ? set : "/tmp";
        if (folder.back() != '/') folder.push_back('/');
        return folder;
    }

private:
    // The appended bytes end where the descriptor stands, also when others append as well.
    bool setSeal(const Path& path, const Descriptor& file, std::size_t appended, const Seal& seal) {
        if (seal.bytes.empty()) return true;
        const off_t end = ::lseek(file.number(), 0, SEEK_CUR);
        if (end < 0 || static_cast<std::uint64_t>(end) < appended) return false;
        return overwrite(path, static_cast<std::uint64_t>(end) - appended + seal.offset,
                         seal.bytes);
    }

    static bool keepMode(const Path& path, const Descriptor& file) {
        struct stat about {};
        if (::stat(path.c_str(), &about) != 0) return true;
        return ::fchmod(file.number(), about.st_mode & 0777U) == 0;
    }
};

}  // namespace

Files& systemFiles() {
    static PosixFiles files;
    return files;
}

}  // namespace lx
