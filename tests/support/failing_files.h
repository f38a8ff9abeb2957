// Files whose n-th operation goes wrong, so that a test can show what an interrupted save leaves
// behind.
#pragma once

#include "platform/files.h"

namespace lx {

enum class Fault {
    refused,  // that operation alone fails, leaving everything as it was
    died      // the process ends in the middle of it: an append is torn, nothing happens afterwards
};

// Counts every operation from 1, reading ones too; failAt 0 = none fails.
class FailingFiles : public Files {
public:
    FailingFiles(Files& files, int failAt, Fault fault = Fault::refused)
        : m_files(files), m_failAt(failAt), m_fault(fault) {}

    int operations() const { return m_count; }

    FileRead read(const Path& path) override {
        if (fails()) return {ReadStatus::failed, {}};
        return m_files.read(path);
    }
    bool exists(const Path& path) override { return m_files.exists(path); }
    bool same(const Path& a, const Path& b) override { return m_files.same(a, b); }
    bool writable(const Path& path) override { return !fails() && m_files.writable(path); }
    bool createEmpty(const Path& path) override { return !fails() && m_files.createEmpty(path); }
    bool replace(const Path& path, std::string_view bytes) override {
        return !fails() && m_files.replace(path, bytes);
    }
    bool append(const Path& path, std::string_view bytes, const Seal& seal) override {
        if (!fails()) return m_files.append(path, bytes, seal);
        if (m_fault == Fault::died && m_count == m_failAt) {
            m_files.append(path, bytes.substr(0, bytes.size() / 2));
        }
        return false;
    }
    bool overwrite(const Path& path, std::uint64_t offset, std::string_view bytes) override {
        return !fails() && m_files.overwrite(path, offset, bytes);
    }
    bool remove(const Path& path) override { return !fails() && m_files.remove(path); }
    bool keepAsBackup(const Path& path) override { return !fails() && m_files.keepAsBackup(path); }
    Path temporaryFolder() override { return m_files.temporaryFolder(); }

private:
    bool fails() {
        ++m_count;
        return m_failAt != 0 &&
               (m_fault == Fault::died ? m_count >= m_failAt : m_count == m_failAt);
    }

    Files& m_files;
    int m_failAt;
    Fault m_fault;
    int m_count = 0;
};

}  // namespace lx
