// A catalogue as a table and back. A table holds a well-formed catalogue whole: its records in
// their order, each field as it is stored.
#pragma once

#include <memory>

#include "lxtool/session.h"

namespace lx::lxtool {

struct TableForm {
    char separator;
    char decimalSign;
};
inline constexpr TableForm czechTable{';', ','};
inline constexpr TableForm plainTable{',', '.'};

// The table of a catalogue's bytes piece by piece, in UTF-8 with its mark. Ends with none, told,
// when the catalogue cannot stand in a table whole.
class CatalogueExport {
public:
    CatalogueExport(Session& session, std::string_view name, std::string_view catalogue,
                    const TableForm& form);
    ~CatalogueExport();
    CatalogueExport(const CatalogueExport&) = delete;
    CatalogueExport& operator=(const CatalogueExport&) = delete;

    std::optional<std::string_view> next();

private:
    struct Work;
    std::unique_ptr<Work> m_work;
};

// The catalogue of a table's bytes piece by piece. Ends with none when anything is wrong with the
// table, all of which is told.
class CatalogueImport {
public:
    CatalogueImport(Session& session, std::string_view name, std::string_view table);
    ~CatalogueImport();
    CatalogueImport(const CatalogueImport&) = delete;
    CatalogueImport& operator=(const CatalogueImport&) = delete;

    std::optional<std::string_view> next();

private:
    struct Work;
    std::unique_ptr<Work> m_work;
};

}  // namespace lx::lxtool
