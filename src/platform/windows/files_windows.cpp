// Files through KERNEL32. Names are bytes of the system's code page and go to the byte functions
// unchanged.
#include <windows.h>

#include <algorithm>
#include <new>
#include <utility>

#include "platform/unfinished_file.h"

namespace lx {
namespace {

class FileHandle {
public:
    FileHandle(const Path& path, DWORD access, DWORD sharing, DWORD disposition)
        : m_handle(CreateFileA(path.c_str(), access, sharing, nullptr, disposition,
                               FILE_ATTRIBUTE_NORMAL, nullptr)),
          m_error(GetLastError()) {}
    FileHandle(const FileHandle&) = delete;
    FileHandle& operator=(const FileHandle&) = delete;
    ~FileHandle() { close(); }

    explicit operator bool() const { return m_handle != INVALID_HANDLE_VALUE; }
    // The system's error number right after opening; ERROR_ALREADY_EXISTS when OPEN_ALWAYS found
    // the file.
    DWORD error() const { return m_error; }
    bool close() {
        if (m_handle == INVALID_HANDLE_VALUE) return false;
        return CloseHandle(std::exchange(m_handle, INVALID_HANDLE_VALUE)) != 0;
    }
    bool about(BY_HANDLE_FILE_INFORMATION& information) const {
        return GetFileInformationByHandle(m_handle, &information) != 0;
    }
    bool size(std::uint64_t& bytes) const {
        LARGE_INTEGER size;
        if (!GetFileSizeEx(m_handle, &size)) return false;
        bytes = static_cast<std::uint64_t>(size.QuadPart);
        return true;
    }
    bool seek(std::uint64_t position) {
        LARGE_INTEGER distance;
        distance.QuadPart = static_cast<LONGLONG>(position);
        return SetFilePointerEx(m_handle, distance, nullptr, FILE_BEGIN) != 0;
    }
    bool write(std::string_view bytes) {
        while (!bytes.empty()) {
            const auto portion = static_cast<DWORD>(std::min<std::size_t>(bytes.size(), 1U << 24U));
            DWORD written = 0;
            if (!WriteFile(m_handle, bytes.data(), portion, &written, nullptr) || written == 0) {
                return false;
            }
            bytes.remove_prefix(written);
        }
        return true;
    }
    // Up to the file's end; false on a read error.
    bool readAll(Bytes& bytes) {
        std::uint64_t expected = 0;
        if (!size(expected) || expected > 0x7FFFFFFFU) return false;
        bytes.resize(static_cast<std::size_t>(expected));
        std::size_t done = 0;
        while (done < bytes.size()) {
            const auto portion =
                static_cast<DWORD>(std::min<std::size_t>(bytes.size() - done, 1U << 24U));
            DWORD got = 0;
            if (!ReadFile(m_handle, bytes.data() + done, portion, &got, nullptr)) return false;
            if (got == 0) break;
            done += got;
        }
        bytes.resize(done);
        return true;
    }
    bool flush() { return FlushFileBuffers(m_handle) != 0; }
    bool truncate(std::uint64_t length) { return seek(length) && SetEndOfFile(m_handle) != 0; }

private:
    HANDLE m_handle;
    DWORD m_error;
};

constexpr DWORD shareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
constexpr DWORD shareRead = FILE_SHARE_READ;

bool meansMissing(DWORD error) {
    switch (error) {
        case ERROR_FILE_NOT_FOUND:
        case ERROR_PATH_NOT_FOUND:
        case ERROR_INVALID_NAME:
        case ERROR_BAD_PATHNAME:
        case ERROR_INVALID_DRIVE:
            return true;
        default:
            return false;
    }
}

// A name in the folder of path that no file has yet; the number keeps two processes apart.
Path nameBeside(const Path& path, unsigned attempt) {
    const std::size_t separator = path.find_last_of("\\/:");
    Path name = separator == Path::npos ? Path() : path.substr(0, separator + 1);
    unsigned number = GetCurrentProcessId() * 31U + GetTickCount() + attempt * 7919U;
    name += "lx";
    for (int digit = 0; digit < 6; ++digit) {
        name += static_cast<char>('a' + number % 26U);
        number /= 26U;
    }
    return name + ".tmp";
}

// A file marked so stays as it is, also where the process has the rights to change it.
bool readOnly(const Path& path) {
    const DWORD attributes = GetFileAttributesA(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY);
}

void takeAway(const Path& path) {
    DeleteFileA(path.c_str());
}

class WindowsFiles final : public Files {
public:
    FileRead read(const Path& path) override {
        FileHandle file(path, GENERIC_READ, shareAll, OPEN_EXISTING);
        if (!file) {
            return {meansMissing(file.error()) ? ReadStatus::missing : ReadStatus::failed, {}};
        }
        FileRead result;
        try {
            if (file.readAll(result.bytes)) {
                result.status = ReadStatus::ok;
                return result;
            }
        } catch (const std::bad_alloc&) {
            // A file larger than the memory that is left cannot be read.
        }
        return {ReadStatus::failed, {}};
    }

    bool same(const Path& a, const Path& b) override {
        const FileHandle one(a, 0, shareAll, OPEN_EXISTING);
        const FileHandle other(b, 0, shareAll, OPEN_EXISTING);
        BY_HANDLE_FILE_INFORMATION first = {};
        BY_HANDLE_FILE_INFORMATION second = {};
        return one.about(first) && other.about(second) &&
               first.dwVolumeSerialNumber == second.dwVolumeSerialNumber &&
               first.nFileIndexHigh == second.nFileIndexHigh &&
               first.nFileIndexLow == second.nFileIndexLow;
    }

    bool writable(const Path& path) override {
        return !readOnly(path) && static_cast<bool>(FileHandle(path, GENERIC_READ | GENERIC_WRITE,
                                                               shareAll, OPEN_EXISTING));
    }

    bool createEmpty(const Path& path) override {
        return static_cast<bool>(FileHandle(path, GENERIC_WRITE, shareRead, CREATE_NEW));
    }

    bool replaceByPieces(const Path& path, const NextPiece& next) override {
        if (readOnly(path)) return false;
        for (unsigned attempt = 0; attempt < 100; ++attempt) {
            UnfinishedFile temporary(nameBeside(path, attempt), &takeAway);
            FileHandle file(temporary.path(), GENERIC_WRITE, 0, CREATE_NEW);
            if (!file && file.error() == ERROR_FILE_EXISTS) continue;
            if (!file) return false;
            temporary.made = true;
            const bool written = writePieces(file, next) && file.flush();
            const bool done = file.close() && written &&
                              MoveFileExA(temporary.path().c_str(), path.c_str(),
                                          MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH);
            temporary.made = !done;
            return done;
        }
        return false;
    }

    bool append(const Path& path, std::string_view bytes, const Seal& seal) override {
        if (readOnly(path)) return false;
        FileHandle file(path, GENERIC_READ | GENERIC_WRITE, shareRead, OPEN_ALWAYS);
        if (!file) return false;
        const bool existed = file.error() == ERROR_ALREADY_EXISTS;
        std::uint64_t length = 0;
        const bool measured = file.size(length);
        const bool done = measured && file.seek(length) && file.write(bytes) && file.flush() &&
                          (seal.bytes.empty() || (file.seek(length + seal.offset) &&
                                                  file.write(seal.bytes) && file.flush()));
        if (done) return true;
        if (measured) file.truncate(length);
        file.close();
        if (!existed) takeAway(path);
        return false;
    }

    bool overwrite(const Path& path, std::uint64_t offset, std::string_view bytes) override {
        if (readOnly(path)) return false;
        FileHandle file(path, GENERIC_READ | GENERIC_WRITE, shareRead, OPEN_EXISTING);
        std::uint64_t length = 0;
        if (!file || !file.size(length)) return false;
        if (offset > length || bytes.size() > length - offset) return false;
        return file.seek(offset) && file.write(bytes) && file.flush();
    }

    bool remove(const Path& path) override {
        if (readOnly(path)) return false;
        if (DeleteFileA(path.c_str())) return true;
        return GetFileAttributesA(path.c_str()) == INVALID_FILE_ATTRIBUTES &&
               meansMissing(GetLastError());
    }

    Path temporaryFolder() override {
        char buffer[MAX_PATH + 1];
        const DWORD length = GetTempPathA(sizeof buffer, buffer);
        return length > 0 && length < sizeof buffer ? Path(buffer, length) : Path();
    }
};

}  // namespace

Files& systemFiles() {
    static WindowsFiles files;
    return files;
}

}  // namespace lx
