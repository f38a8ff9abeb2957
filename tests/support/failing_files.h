// Files whose n-th operation fails, for acts that touch several files.
#pragma once

#include "platform/files.h"

namespace lx {

// Counts every operation from 1, reading ones too; the one of that number is refused and leaves
// everything as it was. failAt 0 = none fails.
class FailingFiles : public Files {
public:
    FailingFiles(Files& files, int failAt) : m_files(files), m_failAt(failAt) {}

    int operations() const { return m_count; }

    FileRead read(const Path& path) override {
        if (fails()) return {ReadStatus::failed, {}};
        return m_files.read(path);
    }
    bool same(const Path& a, const Path& b) override { return m_files.same(a, b); }
    bool writable(const Path& path) override { return !fails() && m_files.writable(path); }
    bool createEmpty(const Path& path) override { return !fails() && m_files.createEmpty(path); }
    bool replaceByPieces(const Path& path, const NextPiece& next) override {
        return !fails() && m_files.replaceByPieces(path, next);
    }
    bool append(const Path& path, std::string_view bytes, const Seal& seal) override {
        return !fails() && m_files.append(path, bytes, seal);
    }
    bool overwrite(const Path& path, std::uint64_t offset, std::string_view bytes) override {
        return !fails() && m_files.overwrite(path, offset, bytes);
    }
    bool remove(const Path& path) override { return !fails() && m_files.remove(path); }
    Path temporaryFolder() override { return m_files.temporaryFolder(); }

private:
    bool fails() { return ++m_count == m_failAt; }

    Files& m_files;
    int m_failAt;
    int m_count = 0;
};

}  // namespace lx
