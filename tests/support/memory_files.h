// Files kept in memory: fast enough for a test to try every byte, and open to its eyes.
#pragma once

#include <map>
#include <set>

#include "platform/files.h"

namespace lx {

class MemoryFiles : public Files {
public:
    std::map<Path, Bytes> content;
    std::set<Path> locked;  // there, but neither readable nor writable
    bool readOnly = false;

    FileRead read(const Path& path) override {
        if (locked.count(path) != 0) return {ReadStatus::failed, {}};
        const auto found = content.find(path);
        if (found == content.end()) return {ReadStatus::missing, {}};
        return {ReadStatus::ok, found->second};
    }
    bool exists(const Path& path) const { return content.count(path) + locked.count(path) != 0; }
    bool same(const Path& a, const Path& b) override { return a == b && exists(a); }
    bool writable(const Path& path) override {
        return !readOnly && locked.count(path) == 0 && exists(path);
    }
    bool createEmpty(const Path& path) override {
        if (readOnly || exists(path)) return false;
        content[path];
        return true;
    }
    bool replaceByPieces(const Path& path, const NextPiece& next) override {
        if (readOnly || locked.count(path) != 0) return false;
        Bytes bytes;
        for (;;) {
            const std::optional<std::string_view> piece = next();
            if (!piece) return false;
            if (piece->empty()) break;
            bytes += *piece;
        }
        content[path] = bytes;
        return true;
    }
    bool append(const Path& path, std::string_view bytes, const Seal& seal) override {
        if (readOnly || locked.count(path) != 0) return false;
        Bytes& file = content[path];
        const std::size_t start = file.size();
        file += bytes;
        file.replace(start + seal.offset, seal.bytes.size(), seal.bytes);
        return true;
    }
    bool overwrite(const Path& path, std::uint64_t offset, std::string_view bytes) override {
        const auto found = content.find(path);
        if (readOnly || found == content.end() || offset + bytes.size() > found->second.size()) {
            return false;
        }
        found->second.replace(static_cast<std::size_t>(offset), bytes.size(), bytes);
        return true;
    }
    bool remove(const Path& path) override {
        if (!readOnly) content.erase(path);
        return !exists(path);
    }
    Path temporaryFolder() override { return "tmp/"; }
};

}  // namespace lx
