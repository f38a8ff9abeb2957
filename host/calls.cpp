#include "host/calls.h"

#include <array>
#include <cstddef>
#include <cstring>
#include <stdexcept>
#include <vector>

#include "host/parse.h"
#include "host/paths.h"

namespace lx::host {

namespace {

enum class FieldType { int16, int32, byte, float64 };

struct BlockField {
    std::string_view name;
    std::size_t offset;
    FieldType type;
    std::size_t count = 1;
};

#define LX_FIELD(name, type) \
    { #name, offsetof(OpeningBlock, name), FieldType::type }
constexpr BlockField blockFields[] = {
    LX_FIELD(openingKind, int16),
    {"triple1", offsetof(OpeningBlock, triple1), FieldType::float64, 3},
    LX_FIELD(width1, float64),
    LX_FIELD(unread40, float64),
    LX_FIELD(width2, float64),
    {"triple3", offsetof(OpeningBlock, triple3), FieldType::float64, 3},
    LX_FIELD(bend1Step, float64),
    LX_FIELD(unread88, float64),
    LX_FIELD(bend1Run, float64),
    LX_FIELD(unread104, float64),
    LX_FIELD(bend2Step, float64),
    LX_FIELD(unread120, float64),
    LX_FIELD(bend2Run, float64),
    LX_FIELD(unread136, float64),
    {"unread144", offsetof(OpeningBlock, unread144), FieldType::int16, 3},
    LX_FIELD(unread152, float64),
    LX_FIELD(unread160, float64),
    LX_FIELD(bend3Step, float64),
    LX_FIELD(unread176, float64),
    LX_FIELD(unread184, int16),
    LX_FIELD(headShape, int16),
    LX_FIELD(unread188, int16),
    LX_FIELD(unread192, int32),
    LX_FIELD(unread196, byte),
    LX_FIELD(unread200, int32),
};
#undef LX_FIELD

template <class T>
bool store(std::string_view text, unsigned char* place) {
    T value{};
    if (!parseNumber(text, value)) return false;
    std::memcpy(place, &value, sizeof value);
    return true;
}

// Stores one value at its place and moves the place behind it.
bool storeAs(FieldType type, std::string_view text, unsigned char*& place) {
    const auto done = [&place](bool stored, std::size_t size) {
        place += size;
        return stored;
    };
    switch (type) {
        case FieldType::int16:
            return done(store<std::int16_t>(text, place), 2);
        case FieldType::int32:
            return done(store<std::int32_t>(text, place), 4);
        case FieldType::byte:
            return done(store<unsigned char>(text, place), 1);
        case FieldType::float64:
            return done(store<double>(text, place), 8);
    }
    return false;
}

std::vector<std::string_view> splitAtCommas(std::string_view text) {
    std::vector<std::string_view> parts;
    for (std::size_t begin = 0; begin <= text.size();) {
        const std::size_t end = std::min(text.find(',', begin), text.size());
        parts.push_back(text.substr(begin, end - begin));
        begin = end + 1;
    }
    return parts;
}

std::string setBlockField(OpeningBlock& block, const BlockField& field, std::string_view value) {
    const std::vector<std::string_view> parts = splitAtCommas(value);
    auto* place = reinterpret_cast<unsigned char*>(&block) + field.offset;
    bool good = parts.size() == field.count;
    for (const std::string_view part : parts) good = good && storeAs(field.type, part, place);
    if (good) return {};
    return "\"block." + std::string(field.name) + "\" takes " +
           (field.count == 1 ? "a number" : std::to_string(field.count) + " numbers with commas") +
           " that its type holds, not \"" + std::string(value) + "\"";
}

constexpr std::string_view blockPrefix = "block.";

const BlockField* blockField(std::string_view name) {
    if (!name.starts_with(blockPrefix)) return nullptr;
    name.remove_prefix(blockPrefix.size());
    for (const BlockField& field : blockFields) {
        if (field.name == name) return &field;
    }
    return nullptr;
}

std::string needsNumber(std::string_view name, std::string_view value, bool good) {
    if (good) return {};
    return "\"" + std::string(name) + "\" takes a number, not \"" + std::string(value) + "\"";
}

constexpr std::array<std::string_view, 4> functionNames = {"CallLXdata6", "CallLXdata6Base",
                                                           "LintelErase", "mergeLibraryFiles"};

// The module promises at most 1023 bytes and the zero; what lies behind must stay as it is.
constexpr std::size_t promisedText = 1024;
constexpr std::size_t bufferSize = 4 * promisedText;
constexpr char untouched = '\x5A';

template <class F>
void require(F function, std::string_view name) {
    if (function == nullptr) throw std::runtime_error("the module has no " + std::string(name));
}

void runDesign(const ModuleCalls& calls, const Opening& opening, void* parent, CallOutcome& out) {
    require(calls.CallLXdata6, "CallLXdata6");
    std::vector<char> buffer(bufferSize, untouched);
    out.a = opening.a;
    out.b = opening.b;
    out.result = calls.CallLXdata6(parent, 0, 0, 0, opening.width, opening.wall, opening.level,
                                   buffer.data(), &out.a, &out.b, opening.block, opening.exterior);
    for (std::size_t i = promisedText; i < bufferSize; ++i) out.overran |= buffer[i] != untouched;
    const std::string_view written(buffer.data(), promisedText);
    const std::size_t end = written.find('\0');
    if (end != std::string_view::npos) {
        out.text = Text(written.substr(0, end));
    } else if (written.find_first_not_of(untouched) != std::string_view::npos) {
        out.overran = true;  // a text without its zero
    }
}

}  // namespace

OpeningBlock Opening::emptyBlock() {
    OpeningBlock block{};
    block.headShape = -1;
    block.unread188 = -1;
    return block;
}

std::string Opening::set(std::string_view name, std::string_view value) {
    if (name == "width") return needsNumber(name, value, parseNumber(value, width));
    if (name == "wall") return needsNumber(name, value, parseNumber(value, wall));
    if (name == "level") return needsNumber(name, value, parseNumber(value, level));
    if (name == "A") return needsNumber(name, value, parseNumber(value, a));
    if (name == "B") return needsNumber(name, value, parseNumber(value, b));
    if (name == "exterior") {
        if (value == "on" || value == "off") {
            exterior = value == "on" ? 1 : 0;
            return {};
        }
        if (parseNumber(value, exterior)) return {};
        return "\"exterior\" is \"on\", \"off\" or a number";
    }
    if (const BlockField* field = blockField(name)) return setBlockField(block, *field, value);
    return "there is no value \"" + std::string(name) + "\" of an opening";
}

bool Opening::known(std::string_view name) {
    return name == "width" || name == "wall" || name == "level" || name == "A" || name == "B" ||
           name == "exterior" || blockField(name) != nullptr;
}

std::string Opening::help() {
    std::string text =
        "  --width MM                            width of the opening (1200)\n"
        "  --wall MM                             thickness of the wall (300)\n"
        "  --level M                             level of the opening; 0 = no opening object\n"
        "  --exterior on|off|N                   the first wall face is the exterior one\n"
        "  --A N  --B N                          result values A and B as handed in\n"
        "  --block.FIELD VALUE                   a field of the opening block:\n";
    std::string line = "     ";
    for (const BlockField& field : blockFields) {
        if (line.size() + field.name.size() > 90) {
            text += line + "\n";
            line = "     ";
        }
        line += " " + std::string(field.name) + (field.count == 1 ? "" : " (three: 1,2,3)");
    }
    return text + line + "\n";
}

std::optional<Function> functionNamed(std::string_view name) {
    for (std::size_t i = 0; i < functionNames.size(); ++i) {
        if (functionNames[i] == name) return static_cast<Function>(i);
    }
    return std::nullopt;
}

CallOutcome run(const ModuleCalls& calls, const CallRequest& request, void* parentWindow) {
    CallOutcome out;
    out.function = request.function;
    switch (request.function) {
        case Function::design:
            runDesign(calls, request.opening, parentWindow, out);
            break;
        case Function::base:
            require(calls.CallLXdata6Base, "CallLXdata6Base");
            out.result = calls.CallLXdata6Base(parentWindow);
            break;
        case Function::erase:
            require(calls.LintelErase, "LintelErase");
            out.result = calls.LintelErase(parentWindow);
            break;
        case Function::merge: {
            require(calls.mergeLibraryFiles, "mergeLibraryFiles");
            const std::string source = systemPath(request.source);
            const std::string folder = systemPath(request.folder.value_or(""));
            out.result = calls.mergeLibraryFiles(
                nullptr, source.c_str(), request.folder ? folder.c_str() : nullptr, request.mode);
            break;
        }
    }
    return out;
}

std::string report(const CallOutcome& outcome) {
    std::string text = std::string(functionNames[static_cast<std::size_t>(outcome.function)]) +
                       "\nresult " + std::to_string(outcome.result) + "\n";
    if (outcome.function != Function::design) return text;
    text += "text ";
    if (outcome.text) {
        text += '"';
        for (const char byte : toUtf8(*outcome.text)) {
            text += byte == '\r' ? "\\r" : byte == '\n' ? "\\n" : std::string(1, byte);
        }
        text += '"';
    } else {
        text += "untouched";
    }
    if (outcome.overran) text += " (wrote past the end)";
    return text + "\nA " + std::to_string(outcome.a) + "\nB " + std::to_string(outcome.b) + "\n";
}

}  // namespace lx::host
