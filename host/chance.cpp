#include "host/chance.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <random>
#include <utility>

namespace lx::host {

namespace {

constexpr std::string_view numberMark = "any:";

std::optional<int> numberIn(std::string_view text) {
    int value = 0;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    if (text.empty() || error != std::errc() || stop != end) return std::nullopt;
    return value;
}

class Drawing {
public:
    Drawing(const std::vector<ScenarioLine>& lines, const Chance& chance)
        : m_lines(lines), m_calls(chance.calls), m_random(chance.seed) {}

    std::vector<ScenarioLine> draw() {
        take(0, m_lines.size());
        endAlternative(0);
        stopAtReturns();
        return std::move(m_drawn);
    }

private:
    struct Block {
        std::vector<std::size_t> marks;  // each "or", then the "end"
    };

    [[noreturn]] static void fail(const ScenarioLine& line, const std::string& what) {
        throw ScenarioError(line.place() + ": " + what);
    }

    void take(std::size_t at, std::size_t end) {
        while (at < end) {
            const std::string& name = m_lines[at].words[0];
            if (name == "or" || name == "end") fail(m_lines[at], "there is no \"random\" for it");
            if (name != "random") {
                take(m_lines[at++]);
                continue;
            }
            const Block block = blockAt(at);
            const int count = countOf(m_lines[at]);
            for (int i = 0; i < count; ++i) {
                const std::size_t dealt = deal(m_lines[at], block.marks.size() - 1);
                const std::size_t first = m_drawn.size();
                take(block.marks[dealt] + 1, block.marks[dealt + 1]);
                endAlternative(first);
            }
            at = block.marks.back() + 1;
        }
    }

    void take(ScenarioLine line) {
        for (std::string& word : line.words) {
            if (word.starts_with(numberMark)) word = std::to_string(numberFrom(line, word));
        }
        m_drawn.push_back(std::move(line));
    }

    int numberFrom(const ScenarioLine& line, std::string_view word) {
        word.remove_prefix(numberMark.size());
        const std::size_t colon = std::min(word.find(':'), word.size());
        const std::optional<int> low = numberIn(word.substr(0, colon));
        const std::optional<int> high = numberIn(word.substr(std::min(colon + 1, word.size())));
        if (!low || !high || *low < 0 || *low > *high) fail(line, "a number is any:LOW:HIGH");
        return *low + static_cast<int>(below(static_cast<std::size_t>(*high - *low) + 1));
    }

    Block blockAt(std::size_t begin) const {
        Block block;
        int depth = 0;
        for (std::size_t at = begin; at < m_lines.size(); ++at) {
            const std::string& name = m_lines[at].words[0];
            if (name == "random") ++depth;
            if (depth == 1 && (name == "or" || name == "end")) block.marks.push_back(at);
            if (name == "end" && --depth == 0) break;
        }
        if (depth != 0) fail(m_lines[begin], "\"end\" is missing behind it");
        if (block.marks.front() != begin + 1 || block.marks.size() < 2) {
            fail(m_lines[begin], "\"or\" stands before each alternative, the first one too");
        }
        return block;
    }

    int countOf(const ScenarioLine& line) const {
        if (line.words.size() == 2 && line.words[1] == "calls") return m_calls;
        const std::optional<int> count =
            line.words.size() == 2 ? numberIn(line.words[1]) : std::nullopt;
        if (!count || *count < 0) fail(line, "random takes a number or \"calls\"");
        return *count;
    }

    std::size_t deal(const ScenarioLine& random, std::size_t count) {
        std::vector<std::size_t>& pack = m_packs[{*random.file, random.number}];
        if (pack.empty()) {
            for (std::size_t i = 0; i < count; ++i) {
                pack.insert(pack.begin() + static_cast<std::ptrdiff_t>(below(i + 1)), i);
            }
        }
        const std::size_t dealt = pack.back();
        pack.pop_back();
        return dealt;
    }

    std::size_t below(std::size_t limit) { return m_random() % limit; }

    void endAlternative(std::size_t first) {
        for (std::size_t i = first; i < m_drawn.size(); ++i) {
            if (m_drawn[i].goesOnAt == 0) m_drawn[i].goesOnAt = m_drawn.size();
        }
    }

    // What is left out never takes the end of its call along.
    void stopAtReturns() {
        std::size_t returns = m_drawn.size();
        for (std::size_t i = m_drawn.size(); i-- > 0;) {
            if (m_drawn[i].words[0] == "returns") returns = i;
            m_drawn[i].goesOnAt = std::min(m_drawn[i].goesOnAt, returns);
        }
    }

    const std::vector<ScenarioLine>& m_lines;
    int m_calls;
    std::mt19937 m_random;
    // The alternatives of each "random" that are still to come.
    std::map<std::pair<std::string, int>, std::vector<std::size_t>> m_packs;
    std::vector<ScenarioLine> m_drawn;
};

}  // namespace

std::vector<ScenarioLine> drawn(const std::vector<ScenarioLine>& lines, const Chance& chance) {
    return Drawing(lines, chance).draw();
}

}  // namespace lx::host
