#include "composition/projects.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "composition/library.h"
#include "platform/binary.h"
#include "resources/strings.h"

namespace lx {

namespace {

constexpr std::size_t nameField = projectNameLimit + 1;
constexpr std::size_t headerSize = 8;
constexpr std::size_t entrySize = 4 + nameField;

// Whether the bytes are exactly what their count announces; an empty file announces nothing.
bool sizeFits(std::string_view bytes, std::int32_t count) {
    if (bytes.empty()) return true;
    return bytes.size() >= headerSize && count >= 0 &&
           bytes.size() - headerSize == static_cast<std::uint64_t>(count) * entrySize;
}

// The name of the entry at the reader; what is left of it at the end of the file.
Text readName(BinaryReader& reader, bool& damaged) {
    std::string_view field = reader.raw(std::min(nameField, reader.remaining()));
    const std::size_t zero = field.find('\0');
    if (zero == std::string_view::npos) damaged = true;
    return Text(field.substr(0, std::min(zero, projectNameLimit)));
}

}  // namespace

std::int32_t newProjectId(const std::set<std::int32_t>& taken) {
    std::int32_t id = 0;
    if (taken.empty()) return id;
    const std::int32_t largest = *taken.rbegin();
    if (largest == std::numeric_limits<std::int32_t>::max()) {
        while (taken.contains(id)) ++id;
    } else if (largest + 1 != deletedProject) {
        id = largest + 1;
    }
    return id;
}

ProjectList defaultProjects() {
    ProjectList list;
    list.projects.push_back({0, Text(text::defaultProject)});
    return list;
}

ProjectList parseProjects(std::string_view bytes) {
    ProjectList list;
    BinaryReader reader(bytes);
    const std::int32_t selected = reader.int32();
    const std::int32_t count = reader.int32();
    list.damaged = !sizeFits(bytes, count);
    for (std::int32_t i = 0; i < count && reader.remaining() >= sizeof(std::int32_t); ++i) {
        const std::int32_t id = reader.int32();
        Text name = readName(reader, list.damaged);
        // A project of that id would show the deleted designs of all projects.
        if (id == deletedProject) {
            list.damaged = true;
            continue;
        }
        if (i == selected) list.selected = static_cast<int>(list.projects.size());
        list.projects.push_back({id, std::move(name)});
    }
    if (list.projects.empty()) list.projects = defaultProjects().projects;
    return list;
}

ProjectList loadProjects(const Path& path, Files& files) {
    const FileRead file = files.read(path);
    if (file.status == ReadStatus::ok) return parseProjects(file.bytes);
    ProjectList list = defaultProjects();
    list.mayReplaceFile = file.status == ReadStatus::missing;
    return list;
}

Bytes projectBytes(const ProjectList& list) {
    BinaryWriter writer;
    writer.reserve(headerSize + entrySize * list.projects.size());
    writer.int32(list.selected);
    writer.int32(static_cast<std::int32_t>(list.projects.size()));
    for (const Project& project : list.projects) {
        writer.int32(project.id);
        Bytes name = project.name.substr(0, projectNameLimit);
        name.resize(nameField, '\0');
        writer.raw(name);
    }
    return writer.take();
}

bool saveProjects(const Path& path, ProjectList& list, Files& files) {
    if (!list.mayReplaceFile) return false;
    if (list.damaged && !files.keepAsBackup(path)) return false;
    if (!files.replace(path, projectBytes(list))) return false;
    list.damaged = false;
    return true;
}

}  // namespace lx
