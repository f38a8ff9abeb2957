// Readable tables: UTF-8 text, one record a line, fields separated by semicolons, "#" comments.
#pragma once

#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/text.h"

namespace lx::data {

// A line of a table. Whatever is wrong with it is told with file and line.
class SourceLine {
public:
    SourceLine(std::string file, int number, std::vector<std::string> fields)
        : m_place(std::move(file) + ":" + std::to_string(number)), m_fields(std::move(fields)) {}

    [[noreturn]] void fail(const std::string& why) const {
        throw std::runtime_error(m_place + ": " + why);
    }
    void expectFields(std::size_t count) const {
        if (m_fields.size() != count) fail("expected " + std::to_string(count) + " fields");
    }
    std::size_t fields() const { return m_fields.size(); }
    const std::string& what() const { return m_fields.front(); }
    std::string utf8(std::size_t field) const { return m_fields.at(field); }
    Text text(std::size_t field) const {
        const auto converted = fromUtf8(m_fields.at(field));
        if (!converted) fail("not in code page 1250: " + m_fields.at(field));
        return *converted;
    }
    int whole(std::size_t field) const {
        const double value = number(field);
        if (value != static_cast<int>(value)) fail("not a whole number: " + m_fields.at(field));
        return static_cast<int>(value);
    }
    double number(std::size_t field) const {
        const std::string& written = m_fields.at(field);
        std::size_t read = 0;
        double value = 0;
        try {
            value = std::stod(written, &read);
        } catch (const std::logic_error&) {
            read = 0;
        }
        if (read == 0 || read != written.size()) fail("not a number: '" + written + "'");
        return value;
    }

private:
    std::string m_place;
    std::vector<std::string> m_fields;
};

inline std::string trimmed(const std::string& text) {
    const std::size_t first = text.find_first_not_of(" \t\r");
    if (first == std::string::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

inline std::vector<SourceLine> readTable(const std::string& path) {
    std::ifstream file(path);
    if (!file) throw std::runtime_error(path + ": cannot be read");
    std::vector<SourceLine> lines;
    int number = 0;
    for (std::string line; std::getline(file, line);) {
        ++number;
        if (trimmed(line).empty() || trimmed(line).front() == '#') continue;
        std::vector<std::string> fields;
        for (std::size_t begin = 0; begin != std::string::npos;) {
            const std::size_t end = line.find(';', begin);
            fields.push_back(trimmed(line.substr(begin, end - begin)));
            begin = end == std::string::npos ? end : end + 1;
        }
        lines.emplace_back(path, number, std::move(fields));
    }
    return lines;
}

}  // namespace lx::data
