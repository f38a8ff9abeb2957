#include "entry/merge_call.h"

#include <lxdata6dlg.h>

#include <optional>

#include "catalogue/catalogue_file.h"
#include "catalogue/merge.h"

namespace lx {

namespace {

// What the folder service is told that its buffer holds; more than other calls allow it.
constexpr int folderBufferSize = 1024;
constexpr int lockGranted = 1;
constexpr int lockBusy = 2;

// The host's lock on what is being merged, given back when destroyed.
class MergeLock {
public:
    MergeLock(Host& host, HostResource resource) : m_host(host), m_resource(resource) {}
    ~MergeLock() {
        if (m_giveBack) m_host.releaseLock(m_resource, LX_LOCK_RELEASE);
    }
    MergeLock(const MergeLock&) = delete;
    MergeLock& operator=(const MergeLock&) = delete;

    bool take() {
        const int answer = m_host.requestLock(m_resource, LX_LOCK_REQUEST);
        if (answer == lockBusy) m_host.releaseLock(m_resource, LX_LOCK_RELEASE_REFUSED);
        m_giveBack = answer == lockGranted;
        return m_giveBack;
    }
    // From here on any host is told of the end, one that was not asked for the lock too.
    void tellEnd() { m_giveBack = m_giveBack || m_host.present(); }

private:
    Host& m_host;
    HostResource m_resource;
    bool m_giveBack = false;
};

CatalogueKind kindOf(const Path& sourcePath) {
    return sourcePath.ends_with(catalogueFileName(CatalogueKind::steel)) ? CatalogueKind::steel
                                                                         : CatalogueKind::precast;
}

// With its separator; none when the host has no folder or no lock to give.
std::optional<Path> targetFolder(Host& host, const MergeArguments& arguments, MergeLock& lock) {
    if (arguments.targetFolder.empty()) {
        if (!host.present()) return std::nullopt;
        std::optional<Path> folder = host.folderWithin(HostFolder::catalogue, folderBufferSize);
        return folder && lock.take() ? folder : std::nullopt;
    }
    Path folder = arguments.targetFolder;
    if (folder.back() != '\\' && folder.back() != '/') folder += folderSeparator;
    return folder;
}

int replaceLibrary(Files& files, const Path& source, const Path& target, MergeLock& lock) {
    lock.tellEnd();
    const FileRead supplied = files.read(source);
    if (supplied.status != ReadStatus::ok) return LX_MERGE_NO_SOURCE;
    if (files.same(source, target)) return LX_MERGE_NO_TARGET;
    return files.replace(target, supplied.bytes) ? LX_MERGE_DONE : LX_MERGE_NO_TARGET;
}

int mergeCatalogue(Files& files, const Path& source, const Path& target, MergeLock& lock) {
    const CatalogueKind kind = kindOf(source);
    const FileRead installedFile = files.read(target);
    if (installedFile.status != ReadStatus::ok) return LX_MERGE_NO_TARGET;
    LoadedCatalogue installed = loadCatalogue(kind, installedFile.bytes);
    const FileRead suppliedFile = files.read(source);
    if (suppliedFile.status != ReadStatus::ok) return LX_MERGE_NO_SOURCE;
    LoadedCatalogue supplied = loadCatalogue(kind, suppliedFile.bytes);

    const Catalogue merged = mergedCatalogue(std::move(installed.head), std::move(supplied.head));
    lock.tellEnd();
    const bool saved = saveCatalogueAs(merged.get(), target, files, installed.state.damaged) == 0;
    return saved ? LX_MERGE_DONE : LX_MERGE_NO_TARGET;
}

}  // namespace

int mergeCall(Files& files, Host& host, const MergeArguments& arguments) {
    if (arguments.sourcePath.empty()) return LX_MERGE_NO_SOURCE;
    const bool library = arguments.mode == LX_MERGE_LIBRARY;
    if (!library && arguments.mode != LX_MERGE_CATALOGUE) return LX_MERGE_UNKNOWN_MODE;

    MergeLock lock(host, library ? HostResource::library : HostResource::catalogue);
    std::optional<Path> target = targetFolder(host, arguments, lock);
    if (!target) return LX_MERGE_NO_TARGET;
    if (library) {
        *target += arguments.targetFolder.empty() ? "preklady.bk6" : "PREKLADY.BK6";
        return replaceLibrary(files, arguments.sourcePath, *target, lock);
    }
    *target += catalogueFileName(kindOf(arguments.sourcePath));
    return mergeCatalogue(files, arguments.sourcePath, *target, lock);
}

}  // namespace lx
