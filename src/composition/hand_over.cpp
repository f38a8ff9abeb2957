#include "composition/hand_over.h"

#include <string_view>
#include <unordered_map>

#include "composition/saturate.h"
#include "composition/stored_form.h"

namespace lx {

namespace {
constexpr std::string_view header = "PŘEKLADY"_cz;
}

Path handOverPath(Files& files) {
    Path path = files.temporaryFolder();
    // Without a folder the file would lie wherever the host happens to stand.
    if (!path.empty()) path += handOverFileName;
    return path;
}

Bytes handOverBytes(const CRez* head) {
    BinaryWriter writer;
    writer.raw(header);
    writeDesign(head, writer);
    return writer.take();
}

int WriteHandOver(const Path& path, CRez* head, double openingWidth, Files& files) {
    if (openingWidth < 0) {
        for (CRez* record = head; record; record = record->next) {
            record->length = saturated(-std::int64_t{record->length});
        }
    }
    return files.replace(path, handOverBytes(head)) ? 1 : 0;
}

RezChain parseHandOver(std::string_view bytes) {
    BinaryReader reader(bytes);
    reader.raw(header.size());
    return readDesign(reader).design;
}

HandOverRead ReadHandOver(const Path& path, Files& files) {
    const FileRead file = files.read(path);
    HandOverRead result;
    result.present = file.status == ReadStatus::ok;
    result.design = parseHandOver(file.bytes);
    return result;
}

void refreshMaxOpenings(CRez* head, const CPreklItem* precast) {
    std::unordered_map<std::string_view, std::int32_t> openings;
    for (const CPreklItem* item = precast; item; item = item->next.get()) {
        if (!item->isType() && item->designation) {
            openings.emplace(*item->designation, item->maxOpening);
        }
    }
    for (CRez* record = head; record; record = record->next) {
        if (record->bearing == 0 || !record->name) continue;
        const auto found = openings.find(*record->name);
        if (found != openings.end()) record->maxOpening = found->second;
    }
}

}  // namespace lx
