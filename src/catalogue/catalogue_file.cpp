#include "catalogue/catalogue_file.h"

#include <algorithm>
#include <new>
#include <utility>

#include "platform/binary.h"

namespace lx {

namespace {

constexpr std::size_t pieceSize = 262144;  // bytes that are written at a time

// Whether every type has its position for a number, from 1, and every item one of theirs.
class Numbering {
public:
    void add(std::int32_t group) {
        if (group < 0) {
            m_inOrder = m_inOrder && group == -++m_types;
        } else {
            m_lowest = std::min(m_lowest, group);
            m_highest = std::max(m_highest, group);
        }
    }
    bool sound() const { return m_inOrder && m_lowest > 0 && m_highest <= m_types; }

private:
    bool m_inOrder = true;
    std::int32_t m_types = 0;
    std::int32_t m_lowest = 1;  // of the items' numbers
    std::int32_t m_highest = 0;
};

// Hands over every whole record. Whether the file is damaged.
template <class Use>
bool readRecords(std::string_view bytes, const Use& use) {
    BinaryReader reader(bytes);
    Numbering numbering;
    bool damaged = false;
    for (;;) {
        auto record = std::make_unique<CPreklItem>();
        if (!record->readRecord(reader, damaged)) break;
        numbering.add(record->group);
        use(std::move(record));
    }
    return damaged || reader.cutShort() || !reader.atEnd() || !numbering.sound();
}

// Keeps the file of that name as its .bak. What was there of that name comes back unless done is
// told.
class Backup {
public:
    Backup(Files& files, const Path& path) : m_files(files), m_path(path + ".bak") {
        m_before = m_files.read(m_path);
        m_made = m_before.status != ReadStatus::failed && m_files.keepAsBackup(path);
    }
    ~Backup() {
        if (!m_made) return;
        try {
            if (m_before.status == ReadStatus::ok) {
                m_files.replace(m_path, m_before.bytes);
            } else {
                m_files.remove(m_path);
            }
        } catch (const std::bad_alloc&) {
            // A .bak too many loses nothing.
        }
    }
    Backup(const Backup&) = delete;
    Backup& operator=(const Backup&) = delete;

    bool made() const { return m_made; }
    void done() { m_made = false; }

private:
    Files& m_files;
    Path m_path;
    FileRead m_before;
    bool m_made = false;
};

}  // namespace

std::string_view catalogueFileName(CatalogueKind kind) {
    return kind == CatalogueKind::steel ? "LXDATA6S.DAT" : "LXDATA6.DAT";
}

Path cataloguePath(CatalogueKind kind, Host& host) {
    Path path = host.getHostFolder(HostFolder::catalogue).value_or(host.dataFolder());
    path += catalogueFileName(kind);
    return path;
}

std::optional<Bytes> openCatalogueFileAt(const Path& path, Files& files) {
    FileRead file = files.read(path);
    const bool opened = file.status == ReadStatus::missing
                            ? files.createEmpty(path)
                            : file.status == ReadStatus::ok && files.writable(path);
    if (!opened) return std::nullopt;
    return std::move(file.bytes);
}

std::optional<Bytes> openCatalogueFile(CatalogueKind kind, Host& host, Files& files) {
    return openCatalogueFileAt(cataloguePath(kind, host), files);
}

LoadedCatalogue loadCatalogue(CatalogueKind kind, std::string_view bytes) {
    LoadedCatalogue result;
    Catalogue* end = &result.head;
    const bool damaged = readRecords(bytes, [&end](Catalogue record) {
        *end = std::move(record);
        end = &(*end)->next;
    });
    result.state = stateOf(bytes, damaged);
    completeShapes(kind, result.head.get());
    return result;
}

bool isDamagedCatalogue(std::string_view bytes) {
    return readRecords(bytes, [](const Catalogue&) {});
}

void completeShapes(CatalogueKind kind, CPreklItem* head) {
    if (kind != CatalogueKind::steel) return;
    for (CPreklItem* record = head; record; record = record->next.get()) {
        if (record->length == 0) record->length = 1;
    }
}

// Piece by piece: fresh memory for the whole file would cost more than what is put into it.
int saveCatalogueAs(const CPreklItem* head, const Path& path, Files& files, bool keepOld,
                    CatalogueState* written) {
    constexpr int notAccessible = -5;
    std::optional<Backup> backup;
    const CPreklItem* record = head;
    BinaryWriter piece;
    CatalogueHash hash;
    const bool done = files.replaceByPieces(path, [&]() -> std::optional<std::string_view> {
        piece.clear();
        for (; record && piece.bytes().size() < pieceSize; record = record->next.get()) {
            record->writeRecord(piece);
        }
        if (written) hash.add(piece.bytes());
        // What can fail is behind by then, all but putting the file in its place.
        const bool atEnd = piece.bytes().empty();
        if (atEnd && keepOld && !backup.emplace(files, path).made()) return std::nullopt;
        return piece.bytes();
    });
    if (!done) return notAccessible;
    if (backup) backup->done();
    if (written) *written = hash.state(false);
    return 0;
}

}  // namespace lx
