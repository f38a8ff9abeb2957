#include "catalogue/catalogue_file.h"

#include <utility>

namespace lx {

namespace {

constexpr std::size_t fixedRecordSize = 39;  // bytes of a record without texts
constexpr std::size_t pieceSize = 262144;    // bytes that are written at a time

std::optional<Text> readText(BinaryReader& reader, bool& damaged) {
    std::string_view text = reader.zeroTerminated();
    if (text.empty()) return std::nullopt;
    if (text.size() > catalogueTextLimit) {
        damaged = true;
        text = text.substr(0, catalogueTextLimit);
    }
    return Text(text);
}

void writeText(const std::optional<Text>& text, BinaryWriter& writer) {
    std::string_view bytes;
    if (text) bytes = std::string_view(*text).substr(0, catalogueTextLimit);
    // A zero inside would end the text early and shift everything behind it.
    writer.zeroTerminated(bytes.substr(0, bytes.find('\0')));
}

}  // namespace

std::string_view catalogueFileName(CatalogueKind kind) {
    return kind == CatalogueKind::steel ? "LXDATA6S.DAT" : "LXDATA6.DAT";
}

Path cataloguePath(CatalogueKind kind, Host& host) {
    Path path = host.getHostFolder(HostFolder::catalogue).value_or(host.dataFolder());
    path += catalogueFileName(kind);
    return path;
}

bool readRecord(CPreklItem& record, BinaryReader& reader, bool& damaged) {
    if (reader.remaining() < sizeof(std::int32_t)) return false;
    record.group = reader.int32();
    record.length = reader.int32();
    record.width = reader.int32();
    record.height = reader.int32();
    record.maxOpening = reader.int32();
    record.weight = reader.float64();
    record.qu = reader.float64();
    record.designation = readText(reader, damaged);
    record.description = readText(reader, damaged);
    record.compositionMark = static_cast<char>(reader.byte());
    return !reader.cutShort();
}

void writeRecord(const CPreklItem& record, BinaryWriter& writer) {
    writer.int32(record.group);
    writer.int32(record.length);
    writer.int32(record.width);
    writer.int32(record.height);
    writer.int32(record.maxOpening);
    writer.float64(record.weight);
    writer.float64(record.qu);
    writeText(record.designation, writer);
    writeText(record.description, writer);
    writer.byte(static_cast<unsigned char>(record.compositionMark));
}

CatalogueRead parseCatalogue(CatalogueKind kind, std::string_view bytes) {
    CatalogueRead result;
    BinaryReader reader(bytes);
    Catalogue* end = &result.head;
    for (;;) {
        auto record = std::make_unique<CPreklItem>();
        if (!readRecord(*record, reader, result.damaged)) break;
        *end = std::move(record);
        end = &(*end)->next;
    }
    if (reader.cutShort() || !reader.atEnd()) result.damaged = true;
    completeShapes(kind, result.head.get());
    return result;
}

void completeShapes(CatalogueKind kind, CPreklItem* head) {
    if (kind != CatalogueKind::steel) return;
    for (CPreklItem* record = head; record; record = record->next.get()) {
        if (record->length == 0) record->length = 1;
    }
}

Bytes catalogueBytes(const CPreklItem* head) {
    std::size_t size = 0;
    for (const CPreklItem* record = head; record; record = record->next.get()) {
        size += fixedRecordSize + (record->designation ? record->designation->size() : 0) +
                (record->description ? record->description->size() : 0);
    }
    BinaryWriter writer;
    writer.reserve(size);
    for (const CPreklItem* record = head; record; record = record->next.get()) {
        writeRecord(*record, writer);
    }
    return writer.take();
}

LoadedCatalogue loadCatalogue(CatalogueKind kind, const Path& path, Files& files) {
    LoadedCatalogue result;
    const FileRead file = files.read(path);
    if (file.status == ReadStatus::missing) {
        result.opened = files.createEmpty(path);
        result.state = stateOf({}, false);
        return result;
    }
    if (file.status == ReadStatus::failed || !files.writable(path)) return result;
    CatalogueRead read = parseCatalogue(kind, file.bytes);
    result.opened = true;
    result.head = std::move(read.head);
    result.state = stateOf(file.bytes, read.damaged);
    return result;
}

// Piece by piece: fresh memory for the whole file would cost more than what is put into it.
int saveCatalogueAs(const CPreklItem* head, const Path& path, Files& files, bool keepOld,
                    CatalogueState* written) {
    constexpr int notAccessible = -5;
    if (keepOld && !files.keepAsBackup(path)) return notAccessible;
    const CPreklItem* record = head;
    BinaryWriter piece;
    CatalogueHash hash;
    const bool done = files.replaceByPieces(path, [&] {
        piece.clear();
        for (; record && piece.bytes().size() < pieceSize; record = record->next.get()) {
            writeRecord(*record, piece);
        }
        if (written) hash.add(piece.bytes());
        return std::string_view(piece.bytes());
    });
    if (!done) return notAccessible;
    if (written) *written = hash.state(false);
    return 0;
}

Catalogue copyCatalogue(const CPreklItem* head) {
    return head ? std::make_unique<CPreklItem>(*head) : nullptr;
}

}  // namespace lx
