// What a scenario can print and expect.
#include <algorithm>
#include <ostream>
#include <stdexcept>

#include "host/ini_text.h"
#include "host/paths.h"
#include "host/play_context.h"
#include "host/scenario.h"
#include "platform/text.h"

namespace lx::host {

namespace fs = std::filesystem;

namespace {

Words one(std::string text) {
    return {std::move(text)};
}

Words yesNo(bool yes) {
    return {yes ? "yes" : "no"};
}

Words numbers(const std::vector<int>& values) {
    Words items;
    for (const int value : values) items.push_back(std::to_string(value));
    return items;
}

Words linesOf(std::string_view text) {
    Words lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        std::string_view line = text.substr(0, end);
        if (line.ends_with('\r')) line.remove_suffix(1);
        lines.emplace_back(line);
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

Words rows(Driver& driver, const std::string& list) {
    Words items;
    const int count = driver.rowCount(list);
    for (int row = 0; row < count; ++row) items.push_back(driver.row(list, row).text);
    return items;
}

RowLook rowLook(PlayContext& context, const Words& words) {
    const int row = wholeNumber(words[1]);
    const int count = context.driver.rowCount(words[0]);
    if (row < 0 || row >= count) {
        throw std::runtime_error("there is no row " + words[1] + ", the list has " +
                                 std::to_string(count));
    }
    return context.driver.row(words[0], row);
}

// ---- the last call

const CallOutcome& outcome(PlayContext& context) {
    if (!context.outcome) throw std::runtime_error("there was no call yet");
    return *context.outcome;
}

Words resultText(PlayContext& context) {
    const CallOutcome& out = outcome(context);
    if (out.overran) return one("(wrote past the end of the buffer)");
    return one(out.text ? toUtf8(*out.text) : "(untouched)");
}

// ---- files

std::string bytesOf(PlayContext& context, const std::string& reference) {
    const fs::path file = context.folders.path(reference);
    std::optional<std::string> bytes = readFile(file);
    if (!bytes) throw std::runtime_error("there is no file " + utf8FromPath(file));
    return std::move(*bytes);
}

Words hexLines(const std::string& bytes, std::size_t perLine = 16) {
    constexpr char digits[] = "0123456789ABCDEF";
    Words lines;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (i % perLine == 0) lines.emplace_back();
        std::string& line = lines.back();
        if (!line.empty()) line += ' ';
        const auto byte = static_cast<unsigned char>(bytes[i]);
        line += digits[byte / 16];
        line += digits[byte % 16];
    }
    return lines;
}

Words filePart(PlayContext& context, const Words& words) {
    const std::string bytes = bytesOf(context, words[0]);
    const int offset = wholeNumber(words[1]);
    const int count = wholeNumber(words[2]);
    if (offset < 0 || count < 1 || bytes.size() < static_cast<std::size_t>(offset)) {
        throw std::runtime_error("the file has " + std::to_string(bytes.size()) + " bytes");
    }
    const auto size = static_cast<std::size_t>(count);
    return hexLines(bytes.substr(static_cast<std::size_t>(offset), size), size);
}

Words sameFiles(PlayContext& context, const Words& words) {
    const std::string first = bytesOf(context, words[0]);
    const std::string second = bytesOf(context, words[1]);
    if (first == second) return one("yes");
    const auto difference =
        std::mismatch(first.begin(), first.end(), second.begin(), second.end()).first;
    return one("no (" + std::to_string(first.size()) + " and " + std::to_string(second.size()) +
               " bytes, first difference at " + std::to_string(difference - first.begin()) + ")");
}

Words fileNames(PlayContext& context, const std::string& reference) {
    Words names;
    const fs::path folder = context.folders.path(reference);
    if (!fs::is_directory(folder)) return names;
    for (const auto& entry : fs::directory_iterator(folder)) {
        names.push_back(utf8FromPath(entry.path().filename()));
    }
    std::sort(names.begin(), names.end());
    return names;
}

Words settingValue(PlayContext& context, const Words& words) {
    const std::string file = readFile(context.folders.path(words[0])).value_or("");
    const std::optional<std::string> value =
        iniValue(file, fromUtf8(words[1]).value_or(""), fromUtf8(words[2]).value_or(""));
    return one(value ? toUtf8(*value) : "(missing)");
}

const std::vector<Readable>& readables() {
    using C = PlayContext;
    using W = Words;
    constexpr Where in = Where::inCall;
    constexpr Where any = Where::anywhere;
    constexpr Where after = Where::outside;
    static const std::vector<Readable> table = {
        {"open", 0, in, [](C& c, const W&) { return yesNo(c.driver.anyDialogOpen()); }},
        {"title", 0, in, [](C& c, const W&) { return one(c.driver.title()); }},
        {"message-open", 0, in, [](C& c, const W&) { return yesNo(c.driver.messageBoxOpen()); }},
        {"message", 0, in, [](C& c, const W&) { return one(c.driver.messageBox().text); }},
        {"message-caption", 0, in,
         [](C& c, const W&) { return one(c.driver.messageBox().caption); }},
        {"message-icon", 0, in, [](C& c, const W&) { return one(c.driver.messageBox().icon); }},
        {"message-buttons", 0, in, [](C& c, const W&) { return c.driver.messageBox().buttons; }},
        {"text", 1, in, [](C& c, const W& w) { return one(c.driver.text(w[0])); }},
        {"exists", 1, in, [](C& c, const W& w) { return yesNo(c.driver.exists(w[0])); }},
        {"enabled", 1, in, [](C& c, const W& w) { return yesNo(c.driver.enabled(w[0])); }},
        {"visible", 1, in, [](C& c, const W& w) { return yesNo(c.driver.visible(w[0])); }},
        {"area", 1, in,
         [](C& c, const W& w) {
             const ScreenArea area = c.driver.area(w[0]);
             return numbers({area.left, area.top, area.right, area.bottom});
         }},
        {"checked", 1, in, [](C& c, const W& w) { return yesNo(c.driver.checked(w[0])); }},
        {"rows", 1, in, [](C& c, const W& w) { return rows(c.driver, w[0]); }},
        {"row-count", 1, in,
         [](C& c, const W& w) { return one(std::to_string(c.driver.rowCount(w[0]))); }},
        {"row", 2, in, [](C& c, const W& w) { return one(rowLook(c, w).text); }},
        {"row-color", 2, in, [](C& c, const W& w) { return one(rowLook(c, w).textColor); }},
        {"row-background", 2, in, [](C& c, const W& w) { return one(rowLook(c, w).background); }},
        {"row-icon", 2, in,
         [](C& c, const W& w) { return one(std::to_string(rowLook(c, w).icon)); }},
        {"selected", 1, in, [](C& c, const W& w) { return numbers(c.driver.selectedRows(w[0])); }},
        {"tab", 0, in, [](C& c, const W&) { return one(c.driver.selectedTab()); }},
        {"focus", 0, in, [](C& c, const W&) { return one(c.driver.focusedControl()); }},
        {"default", 0, in, [](C& c, const W&) { return one(c.driver.defaultButton()); }},
        {"edit-selection", 1, in,
         [](C& c, const W& w) { return one(c.driver.editSelection(w[0])); }},
        {"tooltip", 1, in, [](C& c, const W& w) { return one(c.driver.tooltip(w[0])); }},
        {"cursor", 1, in, [](C& c, const W& w) { return one(c.driver.cursor(w[0])); }},
        {"clipboard", 0, in, [](C& c, const W&) { return one(c.driver.clipboard()); }},
        {"headings", 1, in, [](C& c, const W& w) { return c.driver.headings(w[0]); }},
        {"column-widths", 1, in,
         [](C& c, const W& w) { return numbers(c.driver.columnWidths(w[0])); }},
        {"column-order", 1, in,
         [](C& c, const W& w) { return numbers(c.driver.columnOrder(w[0])); }},
        {"menu", 0, in, [](C& c, const W&) { return c.driver.menu(); }},
        {"popup", 0, in, [](C& c, const W&) { return c.driver.popup(); }},
        {"size", 0, in,
         [](C& c, const W&) {
             const ScreenSize size = c.driver.dialogSize();
             return numbers({size.width, size.height});
         }},
        {"placement", 0, in, [](C& c, const W&) { return one(c.driver.placement()); }},
        {"regions", 1, in, [](C& c, const W& w) { return c.driver.regions(w[0]); }},
        {"drawing", 1, in, [](C& c, const W& w) { return linesOf(c.driver.drawing(w[0])); }},
        {"design", 0, in, [](C& c, const W&) { return linesOf(c.driver.describe("design")); }},
        {"describe", 1, in, [](C& c, const W& w) { return linesOf(c.driver.describe(w[0])); }},
        {"dialog", 0, in, [](C& c, const W&) { return linesOf(c.driver.dump()); }},
        {"layout-faults", 0, in, [](C& c, const W&) { return c.driver.layoutFaults(); }},

        {"result", 0, after, [](C& c, const W&) { return one(std::to_string(outcome(c).result)); }},
        {"result-text", 0, after, [](C& c, const W&) { return resultText(c); }},
        {"A", 0, after, [](C& c, const W&) { return one(std::to_string(outcome(c).a)); }},
        {"B", 0, after, [](C& c, const W&) { return one(std::to_string(outcome(c).b)); }},

        {"held", 0, after, [](C& c, const W&) { return comparedHeld(c.counted, countHeld()); }},
        {"left-behind", 0, after,
         [](C& c, const W&) { return leftBehind(c.counted, countHeld()); }},

        {"host-windows", 0, any, [](C& c, const W&) { return c.hostWindows(); }},
        {"help-topics", 0, any, [](C& c, const W&) { return numbers(c.services.helpTopics); }},
        {"help-file", 0, any,
         [](C& c, const W&) { return one(utf8FromSystemPath(c.services.helpFile)); }},
        {"locks", 0, any, [](C& c, const W&) { return c.services.lockLog(); }},
        {"file", 1, any,
         [](C& c, const W& w) {
             return one(fs::exists(c.folders.path(w[0])) ? "present" : "absent");
         }},
        {"files", 1, any, [](C& c, const W& w) { return fileNames(c, w[0]); }},
        {"file-size", 1, any,
         [](C& c, const W& w) { return one(std::to_string(bytesOf(c, w[0]).size())); }},
        {"file-text", 1, any, [](C& c, const W& w) { return linesOf(toUtf8(bytesOf(c, w[0]))); }},
        {"file-bytes", 1, any, [](C& c, const W& w) { return hexLines(bytesOf(c, w[0])); }},
        {"file-part", 3, any, filePart},
        {"same", 2, any, sameFiles},
        {"setting", 3, any, settingValue},
    };
    return table;
}

const Readable& readableOf(const Words& words) {
    if (words.empty()) throw std::invalid_argument("it is missing what to look at");
    const Readable* readable = findReadable(words[0]);
    if (readable == nullptr) throw std::invalid_argument("nothing is called " + inQuotes(words[0]));
    if (words.size() < 1 + readable->arguments) {
        throw std::invalid_argument(inQuotes(words[0]) + " needs " +
                                    std::to_string(readable->arguments) + " more words");
    }
    return *readable;
}

Words read(PlayContext& context, const Readable& readable, const Words& words) {
    return readable.read(
        context, Words(words.begin() + 1,
                       words.begin() + 1 + static_cast<std::ptrdiff_t>(readable.arguments)));
}

std::string listed(const Words& items) {
    if (items.empty()) return "nothing";
    std::string text;
    for (const std::string& item : items) text += (text.empty() ? "" : " ") + inQuotes(item);
    return text;
}

bool anyContains(const Words& items, const std::string& part) {
    return std::any_of(items.begin(), items.end(), [&part](const std::string& item) {
        return item.find(part) != std::string::npos;
    });
}

bool has(const Words& items, const std::string& wanted) {
    return std::find(items.begin(), items.end(), wanted) != items.end();
}

bool holds(const std::string& comparison, const Words& actual, const Words& expected) {
    if (comparison == "is") return actual == expected;
    if (comparison == "is-not") return actual != expected;
    if (comparison == "has") return has(actual, expected[0]);
    if (comparison == "lacks") return !has(actual, expected[0]);
    return anyContains(actual, expected[0]);
}

}  // namespace

const Readable* findReadable(std::string_view name) {
    for (const Readable& readable : readables()) {
        if (readable.name == name) return &readable;
    }
    return nullptr;
}

Where whereOf(const Words& readableWords) {
    return readableOf(readableWords).where;
}

void checkExpectWords(const Words& words) {
    const Readable& readable = readableOf(words);
    const std::size_t at = 1 + readable.arguments;
    if (at == words.size()) throw std::invalid_argument("a comparison is missing, such as \"is\"");
    const std::string& comparison = words[at];
    if (comparison == "is" || comparison == "is-not") return;
    if (comparison != "has" && comparison != "lacks" && comparison != "contains") {
        throw std::invalid_argument(
            inQuotes(comparison) + " is no comparison; there are is, is-not, has, lacks, contains");
    }
    if (words.size() != at + 2) throw std::invalid_argument(comparison + " takes one text");
}

void expect(PlayContext& context, const Words& words) {
    const Readable& readable = readableOf(words);
    const auto at = static_cast<std::ptrdiff_t>(1 + readable.arguments);
    const std::string& comparison = words[static_cast<std::size_t>(at)];
    const Words expected(words.begin() + at + 1, words.end());
    const Words actual = read(context, readable, words);
    if (holds(comparison, actual, expected)) return;
    throw std::runtime_error("expected " + listed(Words(words.begin(), words.begin() + at)) + " " +
                             comparison + " " + listed(expected) + ", there is " + listed(actual));
}

void checkPrintWords(const Words& words) {
    if (words.size() != 1 + readableOf(words).arguments) {
        throw std::invalid_argument("too many words behind " + inQuotes(words[0]));
    }
}

void print(PlayContext& context, const Words& words) {
    const Words items = read(context, readableOf(words), words);
    std::string text;
    for (const std::string& word : words) text += (text.empty() ? "" : " ") + word;
    text += ":\n";
    for (const std::string& item : items) {
        text += "  ";
        for (const char c : item) text += c == '\r' ? "\\r" : c == '\n' ? "\\n" : std::string(1, c);
        text += "\n";
    }
    context.output << text << std::flush;
}

}  // namespace lx::host
