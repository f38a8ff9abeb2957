#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <utility>

#include "lxtool/catalogue_columns.h"
#include "lxtool/catalogue_table.h"
#include "lxtool/csv_reader.h"
#include "lxtool/progress.h"
#include "lxtool/table_encoding.h"
#include "platform/binary.h"
#include "platform/numbers.h"

namespace lx::lxtool {

namespace {

constexpr std::size_t pieceSize = 262144;  // bytes that are written at a time
constexpr std::size_t mostColumns = 64;
constexpr std::size_t noColumn = mostColumns;

// Between the cells of the first row, whose names have neither; a semicolon is surely one.
char separatorOf(std::string_view table) {
    const std::string_view first = table.substr(0, table.find_first_of("\r\n"));
    return first.find(';') == std::string_view::npos && first.find(',') != std::string_view::npos
               ? ','
               : ';';
}

std::string_view trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

std::optional<std::int64_t> wholeNumber(std::string_view text) {
    if (text.size() > 1 && text.front() == '+' && isDigit(text[1])) text.remove_prefix(1);
    std::int64_t value = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), value);
    if (read.ec != std::errc() || read.ptr != text.data() + text.size()) return std::nullopt;
    return value;
}

// With a decimal comma or point. From either the same double comes as from the other.
std::optional<double> decimalNumber(std::string_view text, std::string& room) {
    room = text;
    const std::size_t comma = room.find(',');
    if (comma != std::string::npos) room[comma] = '.';
    std::size_t read = 0;
    const double value = leadingDouble(room, &read);
    if (room.empty() || read != room.size() || !std::isfinite(value)) return std::nullopt;
    return value;
}

// The place in its row of each column.
struct Columns {
    std::size_t record = noColumn;
    std::size_t group = noColumn;
    std::size_t type = noColumn;
    std::array<std::size_t, std::size(fieldColumns)> fields{};

    Columns() { fields.fill(noColumn); }
    // Null for a name that a table does not have.
    std::size_t* find(std::string_view name) {
        if (name == recordColumn) return &record;
        if (name == groupColumn) return &group;
        if (name == typeColumn) return &type;
        for (std::size_t i = 0; i < fields.size(); ++i) {
            if (name == fieldColumns[i].name) return &fields[i];
        }
        return nullptr;
    }
};

std::string allNames() {
    std::string names(recordColumn);
    for (const std::string_view name : {groupColumn, typeColumn}) names.append(", ").append(name);
    for (const FieldColumn& column : fieldColumns) names.append(", ").append(column.name);
    return names;
}

std::string wantedWhole(std::int64_t lowest, std::int64_t highest) {
    return "a whole number from " + std::to_string(lowest) + " to " + std::to_string(highest);
}

}  // namespace

struct CatalogueImport::Work {
    Work(Session& theSession, std::string_view theName, std::string_view table)
        : session(theSession),
          name(theName),
          encoding(table),
          rows(table.substr(encoding.start()), separatorOf(table.substr(encoding.start())),
               mostColumns),
          progress(theSession.console, "import", table.size()) {}

    bool wrong() const { return session.messages.count() > told; }
    // where is the name of a column, or a place in words.
    void tell(const CsvCell& cell, std::string_view where, const std::string& wanted) {
        const std::string place =
            columns.find(where) ? "column " + inQuotes(where) : std::string(where);
        session.messages.tell(
            name, cell.line,
            place + ": " + inQuotes(encoding.shown(cell.text)) + " is wrong; wanted is " + wanted);
    }
    void tellRow(const std::string& what) { session.messages.tell(name, rows.line(), what); }

    bool isWhole(const CsvCell& cell, std::string_view column);
    bool readHead();
    bool readColumn(const CsvCell& cell, std::size_t place);
    // False when the row is none: no cell of it holds anything.
    bool readRow();
    void readRecord();
    std::int32_t groupOf(const CsvCell& kind);

    // The values of a record's fields.
    void operator()(const CsvCell& cell, std::string_view column, std::int32_t& value);
    void operator()(const CsvCell& cell, std::string_view column, double& value);
    void operator()(const CsvCell& cell, std::string_view column, std::optional<Text>& value);
    void operator()(const CsvCell& cell, std::string_view column, char& value);

    Session& session;
    std::string name;
    TableEncoding encoding;
    CsvReader rows;
    Progress progress;
    Columns columns;
    std::size_t columnCount = 0;
    std::array<bool, mostColumns> named{};
    bool begun = false;
    bool ended = false;
    std::int32_t types = 0;  // so far
    // As which rows without a number belong to the nearest type above; 0 when that has none.
    std::int32_t typeAbove = 0;
    BinaryWriter writer;
    std::string room;
    std::size_t told = session.messages.count();
};

// Whether the cell stands in the table as a cell can; what is wrong with it is told.
bool CatalogueImport::Work::isWhole(const CsvCell& cell, std::string_view column) {
    if (cell.unfinished) {
        tell(cell, column, "a closing quote, which the file lacks");
    } else if (cell.tooLong) {
        tell(cell, column, "a cell of at most " + std::to_string(longestCell) + " bytes");
    } else if (cell.behindQuote) {
        tell(cell, column, "nothing behind the closing quote; one within a text is doubled");
    }
    return !cell.unfinished && !cell.tooLong && !cell.behindQuote;
}

bool CatalogueImport::Work::readHead() {
    if (!rows.next()) {
        session.messages.tell(name, 1, "there is no table; wanted are the columns " + allNames());
        return false;
    }
    const std::vector<CsvCell> cells = rows.cells();
    columnCount = cells.size();
    for (std::size_t place = 0; place < cells.size(); ++place) {
        if (!readColumn(cells[place], place)) return false;
    }
    if (rows.surplus()) tellRow("too many columns; wanted are " + allNames());
    std::string missing;
    const auto want = [&missing](std::string_view column, std::size_t place) {
        if (place == noColumn) missing.append(missing.empty() ? "" : ", ").append(column);
    };
    want(recordColumn, columns.record);
    for (std::size_t i = 0; i < columns.fields.size(); ++i) {
        want(fieldColumns[i].name, columns.fields[i]);
    }
    if (!missing.empty()) {
        tellRow("these columns are missing: " + missing + "; wanted are " + allNames());
    }
    return !wrong();
}

// False when it is not worth to look at more.
bool CatalogueImport::Work::readColumn(const CsvCell& cell, std::size_t place) {
    const std::string_view first = "first row";
    if (!isWhole(cell, first)) return false;
    const std::optional<Text> text = encoding.text(trimmed(cell.text));
    // Without a name nothing may stand below it.
    if (text && text->empty()) return true;
    std::size_t* const found = text ? columns.find(toUtf8(*text)) : nullptr;
    if (found == nullptr) {
        tell(cell, first, "one of " + allNames());
        return place > 0;
    }
    if (*found != noColumn) tell(cell, first, "each column once");
    *found = place;
    named[place] = true;
    return true;
}

bool CatalogueImport::Work::readRow() {
    const std::vector<CsvCell>& cells = rows.cells();
    bool any = rows.surplus();
    for (const CsvCell& cell : cells) {
        any = any || !cell.text.empty() || cell.unfinished || cell.behindQuote;
    }
    if (!any) return false;
    if (cells.size() < columnCount) {
        const bool whole = isWhole(cells.back(), "end of the row");
        if (!whole) return false;
        tellRow("a row of " + std::to_string(cells.size()) + " cells; wanted are " +
                std::to_string(columnCount) + " as in the first row");
        return false;
    }
    for (std::size_t place = 0; place < cells.size(); ++place) {
        const CsvCell& cell = cells[place];
        if (!named[place] && !cell.text.empty())
            tell(cell, "a column without a name", "an empty cell");
    }
    if (rows.surplus()) tellRow("a row of too many cells");
    readRecord();
    return true;
}

void CatalogueImport::Work::readRecord() {
    const std::vector<CsvCell>& cells = rows.cells();
    CPreklItem record;
    const CsvCell& kind = cells[columns.record];
    if (isWhole(kind, recordColumn)) record.group = groupOf(kind);
    for (std::size_t i = 0; i < columns.fields.size(); ++i) {
        const FieldColumn& column = fieldColumns[i];
        const CsvCell& cell = cells[columns.fields[i]];
        if (cell.text.empty() && !cell.unfinished && !cell.behindQuote) continue;
        if (!isWhole(cell, column.name)) continue;
        std::visit([&](auto field) { (*this)(cell, column.name, record.*field); }, column.field);
    }
    if (columns.type != noColumn) isWhole(cells[columns.type], typeColumn);
    if (!wrong()) record.writeRecord(writer);
}

// The stored number of the row's record: negative that of a type, else that of an item's type.
std::int32_t CatalogueImport::Work::groupOf(const CsvCell& kind) {
    constexpr std::int64_t highest = std::numeric_limits<std::int32_t>::max();
    const std::string_view letter = trimmed(kind.text);
    const bool isType = letter == typeRow;
    if (!isType && letter != itemRow) {
        tell(kind, recordColumn, "T for a type or P for an item");
        return 0;
    }
    std::optional<std::int64_t> number;
    if (columns.group != noColumn) {
        const CsvCell& cell = rows.cells()[columns.group];
        const std::string_view text = trimmed(cell.text);
        const std::int64_t lowest = isType ? 1 : 0;
        const std::int64_t most = isType ? highest + 1 : highest;
        if (!isWhole(cell, groupColumn)) return 0;
        if (!text.empty()) {
            number = wholeNumber(text);
            if (!number || *number < lowest || *number > most) {
                tell(cell, groupColumn, wantedWhole(lowest, most));
                return 0;
            }
        }
    }
    if (isType) {
        ++types;
        if (!number) number = types;
        typeAbove = *number <= highest ? static_cast<std::int32_t>(*number) : 0;
        return static_cast<std::int32_t>(-*number);
    }
    if (number) return static_cast<std::int32_t>(*number);
    if (typeAbove == 0) tell(kind, recordColumn, "a type above the first item, or its number");
    return typeAbove;
}

void CatalogueImport::Work::operator()(const CsvCell& cell, std::string_view column,
                                       std::int32_t& value) {
    using Limits = std::numeric_limits<std::int32_t>;
    const std::optional<std::int64_t> number = wholeNumber(trimmed(cell.text));
    if (!number || *number < Limits::min() || *number > Limits::max()) {
        tell(cell, column, wantedWhole(Limits::min(), Limits::max()));
        return;
    }
    value = static_cast<std::int32_t>(*number);
}

void CatalogueImport::Work::operator()(const CsvCell& cell, std::string_view column,
                                       double& value) {
    const std::optional<double> number = decimalNumber(trimmed(cell.text), room);
    if (number) {
        value = *number;
    } else {
        tell(cell, column, "a finite number such as 36,5 or 36.5");
    }
}

void CatalogueImport::Work::operator()(const CsvCell& cell, std::string_view column,
                                       std::optional<Text>& value) {
    value = encoding.text(cell.text);
    if (!value) {
        tell(cell, column,
             "a text of code page 1250, which lacks " +
                 characterLacking(cell.text).value_or("U+0000"));
    } else if (value->size() > catalogueTextLimit) {
        tell(cell, column,
             "a text of at most " + std::to_string(catalogueTextLimit) + " letters, not " +
                 std::to_string(value->size()));
    }
}

void CatalogueImport::Work::operator()(const CsvCell& cell, std::string_view column, char& value) {
    if (encoding.shown(cell.text) == zeroMark) {
        value = '\0';
        return;
    }
    const std::optional<Text> text = encoding.text(cell.text);
    if (text && text->size() == 1) {
        value = text->front();
    } else {
        tell(cell, column, "one letter of code page 1250, or nothing");
    }
}

CatalogueImport::CatalogueImport(Session& session, std::string_view name, std::string_view table)
    : m_work(std::make_unique<Work>(session, name, table)) {}
CatalogueImport::~CatalogueImport() = default;

std::optional<std::string_view> CatalogueImport::next() {
    Work& work = *m_work;
    if (!std::exchange(work.begun, true)) work.ended = !work.readHead();
    work.writer.clear();
    while (!work.ended && work.writer.bytes().size() < pieceSize) {
        work.ended = !work.rows.next();
        if (!work.ended) work.readRow();
        work.progress.at(work.rows.position());
    }
    if (work.writer.bytes().empty() && work.wrong()) return std::nullopt;
    return work.writer.bytes();
}

}  // namespace lx::lxtool
