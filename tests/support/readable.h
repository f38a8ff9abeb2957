// Records as text with every field that is stored, so that what was read can be compared with what
// was written, and with the text beside a file.
#pragma once

#include <bit>
#include <cmath>
#include <cstdio>

#include "catalogue/CPreklItem.h"
#include "composition/library.h"
#include "composition/projects.h"

namespace lx {

// UTF-8 between quotes; quotes, backslashes and control characters as \xHH.
inline std::string readable(std::string_view text) {
    std::string result = "\"";
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte >= ' ' && c != '"' && c != '\\' && byte != 0x7F) {
            result += toUtf8(std::string_view(&c, 1));
            continue;
        }
        char escaped[8];
        std::snprintf(escaped, sizeof escaped, "\\x%02X", static_cast<unsigned>(byte));
        result += escaped;
    }
    return result + "\"";
}

inline std::string readableOrNone(const std::optional<Text>& text) {
    return text ? readable(*text) : "none";
}

// Numbers that are none by their bits.
inline std::string readable(double number) {
    char text[40];
    if (std::isnan(number)) {
        std::snprintf(text, sizeof text, "nan:%016llX",
                      static_cast<unsigned long long>(std::bit_cast<std::uint64_t>(number)));
    } else {
        std::snprintf(text, sizeof text, "%.17g", number);
    }
    return text;
}

inline std::string readableFields(
    std::initializer_list<std::pair<const char*, std::int32_t>> fields) {
    std::string text;
    for (const auto& [name, value] : fields) {
        text += std::string(text.empty() ? "" : " ") + name + "=" + std::to_string(value);
    }
    return text;
}

// "name=value" of each field but the texts of layers and what they own, with blanks between.
class ReadableFields {
public:
    void operator()(const char* name, double value) { add(name, readable(value)); }
    void operator()(const char* name, std::int32_t value) { add(name, std::to_string(value)); }
    void operator()(const char* name, char value) {
        add(name, readable(std::string_view(&value, 1)));
    }
    void operator()(const char* name, const std::optional<Text>& value) {
        add(name, readableOrNone(value));
    }
    template <class Value>
    void operator()(const RezField& field, const Value& value) {
        (*this)(field.name, value);
    }
    void operator()(const RezField& field, Kind kind) { (*this)(field.name, code(kind)); }
    void operator()(const RezField&, const std::optional<Text>&) {}
    void operator()(const RezField&, const std::unique_ptr<CZalom>&) {}

    const std::string& text() const { return m_text; }

private:
    void add(std::string_view name, const std::string& value) {
        m_text.append(m_text.empty() ? "" : " ").append(name).append("=").append(value);
    }
    std::string m_text;
};

// A line for each record.
inline std::string readable(const CPreklItem* chain) {
    std::string text;
    for (const CPreklItem* record = chain; record; record = record->next.get()) {
        ReadableFields fields;
        CPreklItem::eachField(fields, *record);
        text += fields.text() + "\n";
    }
    return text;
}

// A line for each record and each bend. A missing name is stored as an empty one.
inline std::string readable(const CRez* head) {
    std::string text;
    for (const CRez* record = head; record; record = record->next) {
        ReadableFields fields;
        CRez::eachField(fields, *record);
        text += fields.text() + " " +
                readable(record->isHead() ? record->label() : Text(record->nameOrEmpty())) + "\n";
        for (const CZalom* bend = record->bends.get(); bend; bend = bend->next.get()) {
            ReadableFields ofBend;
            CZalom::eachField(ofBend, *bend);
            text += "  bend " + ofBend.text() + "\n";
        }
    }
    return text;
}

inline std::string readable(const LibraryRead& library) {
    std::string text = library.damaged ? "damaged\n" : "";
    for (const LibraryEntry& entry : library.entries) {
        text += "design " + readable(entry.label) + "\n" + readable(entry.design.head());
    }
    return text;
}

inline std::string readable(const ProjectList& list) {
    std::string text = list.damaged ? "damaged\n" : "";
    text += "selected=" + std::to_string(list.selected) + "\n";
    for (const Project& project : list.projects) {
        text += std::to_string(project.id) + " " + readable(project.name) + "\n";
    }
    return text;
}

}  // namespace lx
