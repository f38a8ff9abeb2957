// Makes the sample catalogues and the rules file from their readable sources, by the module's own
// writers: make_data SOURCEDIR OUTDIR.
#include <iostream>
#include <memory>

#include "catalogue/catalogue_file.h"
#include "data/source_table.h"
#include "settings/profile.h"

namespace lx::data {

namespace {

// Appends records to a chain and numbers the types, as the browser would.
class CatalogueBuilder {
public:
    CPreklItem& addType(const SourceLine& line) {
        CPreklItem& type = append();
        type.group = -++m_types;
        type.designation = line.text(1);
        return type;
    }
    CPreklItem& addItem(const SourceLine& line) {
        if (m_types == 0) line.fail("an item before the first type");
        CPreklItem& item = append();
        item.group = m_types;
        if (line.text(1).empty()) line.fail("an item without a designation");
        ++m_items;
        return item;
    }
    Catalogue take() { return std::move(m_head); }
    int items() const { return m_items; }

private:
    CPreklItem& append() {
        auto record = std::make_unique<CPreklItem>();
        CPreklItem* added = record.get();
        (m_last ? m_last->next : m_head) = std::move(record);
        m_last = added;
        return *added;
    }

    Catalogue m_head;
    CPreklItem* m_last = nullptr;
    int m_types = 0;
    int m_items = 0;
};

// Takes the values of an item's line by the names that the table gives to its fields; what it does
// not name stays as it is.
class NamedFields {
public:
    NamedFields(const SourceLine& names, const SourceLine& line) : m_names(names), m_line(line) {}

    void operator()(const char* name, std::int32_t& value) {
        if (const auto field = place(name)) value = m_line.whole(*field);
    }
    void operator()(const char* name, double& value) {
        if (const auto field = place(name)) value = m_line.number(*field);
    }
    void operator()(const char* name, std::optional<Text>& value) {
        const auto field = place(name);
        if (field && !m_line.text(*field).empty()) value = m_line.text(*field);
    }
    void operator()(const char* name, char& value) {
        const auto field = place(name);
        const Text mark = field ? m_line.text(*field) : Text();
        if (mark.size() > 1) m_line.fail("a mark is one letter");
        if (!mark.empty()) value = mark.front();
    }
    std::size_t taken() const { return m_taken; }

private:
    std::optional<std::size_t> place(const std::string& name) {
        for (std::size_t field = 1; field < m_names.fields(); ++field) {
            if (m_names.utf8(field) != name) continue;
            ++m_taken;
            return field;
        }
        return std::nullopt;
    }

    const SourceLine& m_names;
    const SourceLine& m_line;
    std::size_t m_taken = 0;
};

void addItem(const SourceLine& names, const SourceLine& line, CatalogueBuilder& catalogue) {
    line.expectFields(names.fields());
    NamedFields fields(names, line);
    CPreklItem::eachField(fields, catalogue.addItem(line));
    if (fields.taken() + 1 != names.fields()) names.fail("a field that items do not have");
}

void addType(const SourceLine& line, CatalogueKind kind, CatalogueBuilder& catalogue) {
    const bool steel = kind == CatalogueKind::steel;
    line.expectFields(steel ? 3 : 2);
    CPreklItem& type = catalogue.addType(line);
    if (!steel) return;
    type.length = line.whole(2);
    if (type.length < 1 || type.length > 99) line.fail("a shape number is 1 to 99");
}

Catalogue catalogueFrom(const std::string& source, CatalogueKind kind, int& items) {
    CatalogueBuilder catalogue;
    std::optional<SourceLine> names;
    for (const SourceLine& line : readTable(source)) {
        if (line.what() == "fields") {
            names = line;
        } else if (line.what() == "type") {
            addType(line, kind, catalogue);
        } else if (line.what() == "item" && names) {
            addItem(*names, line, catalogue);
        } else {
            line.fail("neither fields, nor a type, nor an item behind them");
        }
    }
    items = catalogue.items();
    Catalogue head = catalogue.take();
    completeShapes(kind, head.get());
    return head;
}

// Whether a designation is meant: the same, or for "KPV 7/*" one that begins so.
bool matches(std::string_view pattern, std::string_view designation) {
    if (pattern.empty() || pattern.back() != '*') return pattern == designation;
    pattern.remove_suffix(1);
    return designation.substr(0, pattern.size()) == pattern;
}

class RulesBuilder {
public:
    explicit RulesBuilder(const CPreklItem* precast) : m_precast(precast) {}

    void addWall(const SourceLine& line) {
        line.expectFields(2);
        m_wall = std::to_string(line.whole(1));
        if (m_wall == "0") return;
        ++m_walls;
        write("INDEX", "COUNT", std::to_string(m_walls));
        write("INDEX", std::to_string(m_walls), m_wall);
    }
    void addRule(const SourceLine& line) {
        constexpr std::size_t longestRule = 259;
        line.expectFields(3);
        if (m_wall.empty()) line.fail("a rule before the first wall");
        const Text composition = line.text(2);
        if (composition.size() > longestRule) line.fail("the composition is too long");
        int found = 0;
        for (const CPreklItem* item = m_precast; item; item = item->next.get()) {
            if (item->isType() || !matches(line.text(1), *item->designation)) continue;
            write(m_wall, *item->designation, composition);
            ++found;
        }
        if (found == 0) line.fail("no lintel of that designation");
        m_rules += found;
    }
    int rules() const { return m_rules; }
    bool save(const Path& path) const {
        std::vector<ProfileChange> changes;
        for (const Line& line : m_lines) changes.push_back({line.section, line.key, line.value});
        return systemFiles().remove(path) && Profile(systemFiles(), path).apply(changes);
    }

private:
    struct Line {
        Text section;
        Text key;
        Text value;
    };
    void write(std::string_view section, std::string_view key, std::string_view value) {
        m_lines.push_back({Text(section), Text(key), Text(value)});
    }

    const CPreklItem* m_precast;
    std::vector<Line> m_lines;
    std::string m_wall;
    int m_walls = 0;
    int m_rules = 0;
};

// Saved, loaded and saved again: what was read is what was written.
void saveChecked(const Catalogue& catalogue, CatalogueKind kind, const Path& path) {
    if (saveCatalogueAs(catalogue.get(), path, systemFiles()) != 0) {
        throw std::runtime_error(path + ": cannot be written");
    }
    const Bytes written = systemFiles().read(path).bytes;
    const LoadedCatalogue loaded = loadCatalogue(kind, written);
    const bool again = saveCatalogueAs(loaded.head.get(), path, systemFiles()) == 0;
    if (!again || loaded.state.damaged || systemFiles().read(path).bytes != written) {
        throw std::runtime_error(path + ": does not read back as it was written");
    }
}

std::string inFolder(const std::string& folder, std::string_view name) {
    return folder + "/" + std::string(name);
}

void makeAll(const std::string& sources, const std::string& out) {
    int precastItems = 0;
    int sections = 0;
    const Catalogue precast =
        catalogueFrom(inFolder(sources, "precast.txt"), CatalogueKind::precast, precastItems);
    const Catalogue steel =
        catalogueFrom(inFolder(sources, "steel.txt"), CatalogueKind::steel, sections);
    RulesBuilder rules(precast.get());
    for (const SourceLine& line : readTable(inFolder(sources, "rules.txt"))) {
        if (line.what() == "wall") {
            rules.addWall(line);
        } else if (line.what() == "rule") {
            rules.addRule(line);
        } else {
            line.fail("neither wall nor rule");
        }
    }
    for (const auto& [kind, catalogue] :
         {std::pair{CatalogueKind::precast, &precast}, std::pair{CatalogueKind::steel, &steel}}) {
        saveChecked(*catalogue, kind, inFolder(out, catalogueFileName(kind)));
    }
    const Path rulesPath = inFolder(out, "VDLINTEL.TXT");
    if (!rules.save(rulesPath)) {
        throw std::runtime_error(rulesPath + ": cannot be written");
    }
    std::cout << precastItems << " precast lintels, " << sections << " sections, " << rules.rules()
              << " rules\n";
}

}  // namespace

}  // namespace lx::data

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: make_data SOURCEDIR OUTDIR\n";
        return 2;
    }
    try {
        lx::data::makeAll(argv[1], argv[2]);
        return 0;
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
