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
        item.designation = line.text(1);
        if (item.designation->empty()) line.fail("an item without a designation");
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

std::optional<Text> textOrNone(Text text) {
    if (text.empty()) return std::nullopt;
    return text;
}

void addPrecastItem(const SourceLine& line, CatalogueBuilder& catalogue) {
    line.expectFields(10);
    CPreklItem& item = catalogue.addItem(line);
    item.length = line.whole(2);
    item.width = line.whole(3);
    item.height = line.whole(4);
    item.maxOpening = line.whole(5);
    item.weight = line.number(6);
    item.qu = line.number(7);
    const Text mark = line.text(8);
    if (mark.size() > 1) line.fail("a mark is one letter");
    if (!mark.empty()) item.compositionMark = mark.front();
    item.description = textOrNone(line.text(9));
}

Catalogue precastCatalogue(const std::string& source, int& items) {
    CatalogueBuilder catalogue;
    for (const SourceLine& line : readTable(source)) {
        if (line.what() == "type") {
            line.expectFields(2);
            catalogue.addType(line);
        } else if (line.what() == "item") {
            addPrecastItem(line, catalogue);
        } else {
            line.fail("neither type nor item");
        }
    }
    items = catalogue.items();
    return catalogue.take();
}

Catalogue steelCatalogue(const std::string& source, int& items) {
    CatalogueBuilder catalogue;
    for (const SourceLine& line : readTable(source)) {
        if (line.what() == "type") {
            line.expectFields(3);
            const int shape = line.whole(2);
            if (shape < 1 || shape > 99) line.fail("a shape number is 1 to 99");
            catalogue.addType(line).length = shape;
        } else if (line.what() == "item") {
            line.expectFields(6);
            CPreklItem& item = catalogue.addItem(line);
            item.length = 1;
            item.width = line.whole(2);
            item.height = line.whole(3);
            item.weight = line.number(4);
            item.description = textOrNone(line.text(5));
        } else {
            line.fail("neither type nor item");
        }
    }
    items = catalogue.items();
    return catalogue.take();
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
    const Catalogue precast = precastCatalogue(inFolder(sources, "precast.txt"), precastItems);
    const Catalogue steel = steelCatalogue(inFolder(sources, "steel.txt"), sections);
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
