#include <algorithm>
#include <cstdint>
#include <utility>
#include <vector>

#include "lxtool/catalogue_columns.h"
#include "lxtool/catalogue_records.h"
#include "lxtool/catalogue_table.h"
#include "lxtool/csv_writer.h"
#include "lxtool/progress.h"
#include "lxtool/table_encoding.h"
#include "platform/numbers.h"

namespace lx::lxtool {

namespace {

constexpr std::size_t pieceSize = 262144;  // bytes that are written at a time

// The names of types by their numbers. Holds places in the file: a hostile one may consist of types
// alone.
class TypeNames {
public:
    explicit TypeNames(std::string_view bytes) : m_bytes(bytes) {
        for (CatalogueRecords records(bytes); records.next();) {
            if (!records.record().isType()) continue;
            const auto number = static_cast<std::uint32_t>(records.record().group);
            m_types.emplace_back(0U - number, static_cast<std::uint32_t>(records.position()));
        }
        std::sort(m_types.begin(), m_types.end());
    }
    // Of doubled numbers the first counts.
    std::string_view of(std::int32_t number) {
        if (number == m_number) return m_name;
        m_number = number;
        m_name.clear();
        const Type wanted{static_cast<std::uint32_t>(number), 0};
        const auto found = std::lower_bound(m_types.begin(), m_types.end(), wanted);
        if (found != m_types.end() && found->first == wanted.first) {
            CatalogueRecords record(m_bytes.substr(found->second));
            if (record.next()) m_name = toUtf8(record.record().nameOrEmpty());
        }
        return m_name;
    }

private:
    using Type = std::pair<std::uint32_t, std::uint32_t>;  // number and place in the file

    std::string_view m_bytes;
    std::vector<Type> m_types;
    std::int32_t m_number = -1;
    std::string m_name;  // of the type of that number
};

}  // namespace

struct CatalogueExport::Work {
    Work(Session& theSession, std::string_view theName, std::string_view bytes,
         const TableForm& theForm)
        : session(theSession),
          name(theName),
          form(theForm),
          names(bytes),
          records(bytes),
          writer(theForm.separator),
          progress(theSession.console, "export", bytes.size()) {}

    void writeHead() {
        writer.cell(recordColumn);
        writer.cell(groupColumn);
        writer.cell(typeColumn);
        for (const FieldColumn& column : fieldColumns) writer.cell(column.name);
        writer.endRow();
    }
    void writeRow(const CPreklItem& record) {
        const bool isType = record.isType();
        const std::int64_t number = record.group;
        writer.cell(isType ? typeRow : itemRow);
        writer.cell(formatInt(isType ? -number : number));
        writer.cell(isType ? toUtf8(record.nameOrEmpty()) : names.of(record.group));
        for (const FieldColumn& column : fieldColumns) {
            if (isUnwritable(record, column.field)) {
                session.messages.tell(name, records.line(),
                                      "column " + inQuotes(column.name) + ": the record at byte " +
                                          std::to_string(records.position()) +
                                          " holds no number; wanted is a finite one");
            }
            writer.cell(shownField(record, column.field, form.decimalSign));
        }
        writer.endRow();
    }

    Session& session;
    std::string name;
    TableForm form;
    TypeNames names;
    CatalogueRecords records;
    CsvWriter writer;
    Progress progress;
    bool begun = false;
    std::size_t told = session.messages.count();
};

CatalogueExport::CatalogueExport(Session& session, std::string_view name,
                                 std::string_view catalogue, const TableForm& form)
    : m_work(std::make_unique<Work>(session, name, catalogue, form)) {}
CatalogueExport::~CatalogueExport() = default;

std::optional<std::string_view> CatalogueExport::next() {
    Work& work = *m_work;
    Session& session = work.session;
    work.writer.clear();
    if (!std::exchange(work.begun, true)) {
        work.writer.raw(utf8Mark);
        work.writeHead();
    }
    while (work.writer.bytes().size() < pieceSize) {
        const bool more = work.records.next();
        if (!work.records.damage().empty()) {
            session.messages.tell(work.name, work.records.line(),
                                  work.records.damage() + "; wanted is a whole catalogue");
        }
        if (!more) break;
        work.progress.at(work.records.position());
        work.writeRow(work.records.record());
    }
    if (work.writer.bytes().empty() && session.messages.count() > work.told) return std::nullopt;
    return work.writer.bytes();
}

}  // namespace lx::lxtool
