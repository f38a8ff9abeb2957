#include "host/scenario.h"

#include "host/paths.h"

namespace lx::host {

namespace {

constexpr int deepestInclude = 8;

char escaped(char letter) {
    switch (letter) {
        case 'r':
            return '\r';
        case 'n':
            return '\n';
        case 't':
            return '\t';
        case '"':
        case '\\':
            return letter;
        default:
            throw std::invalid_argument(std::string("\\") + letter +
                                        " is no escape; there are \\\" \\\\ \\r \\n \\t");
    }
}

// Reads the text behind an opening quote and leaves i behind the closing one.
std::string quotedText(std::string_view line, std::size_t& i) {
    std::string text;
    while (i < line.size() && line[i] != '"') {
        if (line[i] == '\\') {
            if (++i == line.size()) break;
            text += escaped(line[i]);
        } else {
            text += line[i];
        }
        ++i;
    }
    if (i == line.size()) throw std::invalid_argument("the closing quote is missing");
    ++i;
    return text;
}

bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r';
}

class Reader {
public:
    explicit Reader(const std::function<std::optional<std::string>(const std::string&)>& readFile)
        : m_readFile(readFile) {}

    void read(const std::string& file, const std::string& whence, int depth) {
        const std::optional<std::string> text = m_readFile(file);
        if (!text) throw ScenarioError(whence + "cannot read " + file);
        const auto name = std::make_shared<const std::string>(file);
        std::string_view rest = *text;
        if (rest.starts_with("\xEF\xBB\xBF")) rest.remove_prefix(3);
        for (int number = 1; !rest.empty(); ++number) {
            const std::size_t end = std::min(rest.find('\n'), rest.size());
            add({name, number, words(rest.substr(0, end), file, number), 0}, depth);
            rest.remove_prefix(std::min(end + 1, rest.size()));
        }
    }

    std::vector<ScenarioLine> lines;

private:
    static std::vector<std::string> words(std::string_view line, const std::string& file,
                                          int number) {
        try {
            return splitWords(line);
        } catch (const std::invalid_argument& error) {
            throw ScenarioError(file + ":" + std::to_string(number) + ": " + error.what());
        }
    }

    void add(ScenarioLine line, int depth) {
        if (line.words.empty()) return;
        if (line.words[0] != "include") {
            lines.push_back(std::move(line));
            return;
        }
        if (line.words.size() != 2) throw ScenarioError(line.place() + ": include takes one file");
        if (depth == deepestInclude) {
            throw ScenarioError(line.place() + ": includes go too deep");
        }
        const auto folder = pathFromUtf8(*line.file).parent_path();
        read(utf8FromPath(folder / pathFromUtf8(line.words[1])), line.place() + ": ", depth + 1);
    }

    const std::function<std::optional<std::string>(const std::string&)>& m_readFile;
};

}  // namespace

std::vector<std::string> splitWords(std::string_view line) {
    std::vector<std::string> words;
    for (std::size_t i = 0; i < line.size();) {
        if (isBlank(line[i])) {
            ++i;
            continue;
        }
        if (line[i] == '#') break;
        if (line[i] == '"') {
            words.push_back(quotedText(line, ++i));
            if (i < line.size() && !isBlank(line[i])) {
                throw std::invalid_argument("a blank is missing behind a quoted text");
            }
            continue;
        }
        std::string& word = words.emplace_back();
        for (; i < line.size() && !isBlank(line[i]); ++i) {
            if (line[i] == '"') throw std::invalid_argument("a quote inside a word");
            word += line[i];
        }
    }
    return words;
}

std::string inQuotes(std::string_view text) {
    std::string result = "\"";
    for (const char c : text) {
        switch (c) {
            case '\r':
                result += "\\r";
                break;
            case '\n':
                result += "\\n";
                break;
            case '\t':
                result += "\\t";
                break;
            case '"':
            case '\\':
                result += '\\';
                [[fallthrough]];
            default:
                result += c;
        }
    }
    return result + '"';
}

std::vector<ScenarioLine> readScenario(
    const std::string& file,
    const std::function<std::optional<std::string>(const std::string&)>& readFile) {
    Reader reader(readFile);
    reader.read(file, "", 0);
    return std::move(reader.lines);
}

}  // namespace lx::host
