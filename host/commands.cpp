// The lines of a scenario that set something up or act as the user.
#include <charconv>
#include <chrono>
#include <fstream>
#include <stdexcept>
#include <thread>

#include "host/ini_text.h"
#include "host/parse.h"
#include "host/paths.h"
#include "host/play_context.h"
#include "host/scenario.h"
#include "platform/text.h"

namespace lx::host {

namespace fs = std::filesystem;

int wholeNumber(const std::string& text) {
    int value = 0;
    if (!parseNumber(text, value)) throw std::runtime_error(inQuotes(text) + " is no whole number");
    return value;
}

namespace {

void refuse(const std::string& error) {
    if (!error.empty()) throw std::runtime_error(error);
}

Text czech(const std::string& utf8) {
    const std::optional<Text> text = fromUtf8(utf8);
    if (!text) throw std::runtime_error(inQuotes(utf8) + " has a character outside code page 1250");
    return *text;
}

// ---- setting up

void copyFile(const fs::path& from, const fs::path& to) {
    const std::optional<std::string> bytes = readFile(from);
    if (!bytes) throw std::runtime_error("cannot read " + utf8FromPath(from));
    fs::create_directories(to.parent_path());
    writeFile(to, *bytes);
}

void takeSamples(PlayContext& context, const Words&) {
    for (const char* name : {"LXDATA6.DAT", "LXDATA6S.DAT"}) {
        copyFile(context.folders.path(std::string("sample:") + name),
                 context.folders.path(std::string("catalogue:") + name));
    }
    copyFile(context.folders.path("sample:VDLINTEL.TXT"),
             context.folders.path("data:VDLINTEL.TXT"));
}

// Another program makes it meanwhile; the windows go on.
void awaitFile(PlayContext& context, const Words& words) {
    constexpr int step = 20;  // ms
    const int most = 6 * context.driver.limit() / step;
    const fs::path file = context.folders.path(words[0]);
    for (int tries = 0; !fs::exists(file); ++tries) {
        if (tries == most) throw std::runtime_error("nobody made " + words[0]);
        std::this_thread::sleep_for(std::chrono::milliseconds(step));
        context.driver.wait(1);
    }
}

void writeText(PlayContext& context, const Words& words) {
    std::string bytes;
    for (std::size_t i = 1; i < words.size(); ++i) bytes += czech(words[i]);
    const fs::path file = context.folders.path(words[0]);
    fs::create_directories(file.parent_path());
    writeFile(file, bytes);
}

void writeBytes(PlayContext& context, const Words& words) {
    std::string bytes;
    for (std::size_t i = 1; i < words.size(); ++i) {
        unsigned value = 0;
        const char* end = words[i].data() + words[i].size();
        const auto [stop, error] = std::from_chars(words[i].data(), end, value, 16);
        if (error != std::errc() || stop != end || value > 0xFF) {
            throw std::runtime_error(inQuotes(words[i]) + " is no byte in hexadecimal digits");
        }
        bytes += static_cast<char>(value);
    }
    writeFile(context.folders.path(words[0]), bytes);
}

void cutFile(PlayContext& context, const Words& words) {
    const fs::path file = context.folders.path(words[0]);
    std::optional<std::string> bytes = readFile(file);
    if (!bytes) throw std::runtime_error("cannot read " + utf8FromPath(file));
    const int size = wholeNumber(words[1]);
    if (size < 0 || static_cast<std::size_t>(size) > bytes->size()) {
        throw std::runtime_error("the file has " + std::to_string(bytes->size()) + " bytes");
    }
    bytes->resize(static_cast<std::size_t>(size));
    writeFile(file, *bytes);
}

void extendFile(PlayContext& context, const Words& words) {
    const fs::path file = context.folders.path(words[0]);
    const int size = wholeNumber(words[1]);
    if (size < 0 || static_cast<std::uintmax_t>(size) <= fs::file_size(file)) {
        throw std::runtime_error("the file is as long already");
    }
    // Systems that can keep such files with holes do, which resize_file does not on all of them.
    std::fstream stream(file, std::ios::in | std::ios::out | std::ios::binary);
    if (!stream.seekp(size - 1).put('\0').flush()) {
        throw std::runtime_error("cannot write " + utf8FromPath(file));
    }
}

void setSetting(PlayContext& context, const Words& words) {
    const fs::path file = context.folders.path(words[0]);
    writeFile(file, iniWithValue(readFile(file).value_or(""), czech(words[1]), czech(words[2]),
                                 czech(words[3])));
}

void setHost(PlayContext& context, const Words& words) {
    const bool isFolder = words[0] == "profile" || words[0] == "arx-profile" ||
                          words[0] == "library" || words[0] == "catalogue";
    const bool isReference = isFolder && words[1] != "none";
    const std::string value = isReference ? context.folders.resolve(words[1]) : words[1];
    refuse(context.services.settings.set(words[0], value));
}

void setOpening(PlayContext& context, const Words& words) {
    if (words.size() % 2 != 0) throw std::runtime_error("a value is missing");
    for (std::size_t i = 0; i < words.size(); i += 2) {
        refuse(context.opening.set(words[i], words[i + 1]));
    }
}

// ---- acts with the mouse: "X Y" or "region NAME", taken off the words from i on

ScreenPoint takePoint(PlayContext& context, const std::string& picture, const Words& words,
                      std::size_t& i) {
    if (i + 2 > words.size()) throw std::runtime_error("a place is missing: X Y or region NAME");
    const std::string& first = words[i];
    const std::string& second = words[i + 1];
    i += 2;
    if (first == "region") return context.driver.regionPoint(picture, second);
    return {wholeNumber(first), wholeNumber(second)};
}

ScreenPoint onlyPoint(PlayContext& context, const Words& words) {
    std::size_t i = 1;
    const ScreenPoint point = takePoint(context, words[0], words, i);
    if (i != words.size()) throw std::runtime_error("too many words behind the place");
    return point;
}

void click(PlayContext& context, const Words& words) {
    const ScreenPoint point = onlyPoint(context, words);
    context.driver.mouseMove(words[0], point, false);
    context.driver.mouseDown(words[0], point);
    context.driver.mouseUp(words[0], point);
}

void drag(PlayContext& context, const Words& words) {
    std::size_t i = 1;
    const ScreenPoint from = takePoint(context, words[0], words, i);
    if (i == words.size() || words[i] != "to") throw std::runtime_error("\"to\" is missing");
    ++i;
    const ScreenPoint to = takePoint(context, words[0], words, i);
    Driver& driver = context.driver;
    driver.mouseMove(words[0], from, false);
    driver.mouseDown(words[0], from);
    // A hand passes places between: what follows the mouse is asked for there as well.
    driver.mouseMove(words[0], {(from.x + to.x) / 2, (from.y + to.y) / 2}, true);
    driver.mouseMove(words[0], to, true);
    driver.mouseUp(words[0], to);
}

// ---- other acts

void pressKey(PlayContext& context, const Words& words) {
    const int times = words.size() > 1 ? wholeNumber(words[1]) : 1;
    for (int i = 0; i < times; ++i) context.driver.key(words[0]);
}

void setColumnOrder(PlayContext& context, const Words& words) {
    std::vector<int> order;
    for (std::size_t i = 1; i < words.size(); ++i) order.push_back(wholeNumber(words[i]));
    context.driver.setColumnOrder(words[0], order);
}

void answerAny(PlayContext& context, const Words&) {
    Driver& driver = context.driver;
    while (driver.messageBoxOpen()) driver.answer(driver.messageBox().buttons.at(0));
}

// The host calls while a dialog of the module is open: that answers at once and touches nothing.
void secondCall(PlayContext& context, const Words& words) {
    CallRequest request;
    const std::optional<Function> function = functionNamed(words[0]);
    if (!function || *function == Function::merge) {
        throw std::runtime_error(inQuotes(words[0]) + " is none of the functions with a dialog");
    }
    request.function = *function;
    request.opening = context.opening;
    const CallOutcome outcome = context.callAgain(request);
    if (outcome.result != wholeNumber(words[1])) {
        throw std::runtime_error("expected result " + words[1] + ", there is " +
                                 std::to_string(outcome.result));
    }
    const bool kept = outcome.a == request.opening.a && outcome.b == request.opening.b;
    if (outcome.text || outcome.overran || (*function == Function::design && !kept)) {
        throw std::runtime_error("the refused call handed a result back");
    }
}

void takeScreenshot(PlayContext& context, const Words& words) {
    const fs::path file = context.folders.path("out:" + words[0]);
    context.driver.screenshot(utf8FromPath(file));
}

const std::vector<Command>& commands() {
    using C = PlayContext;
    using W = Words;
    static const std::vector<Command> table = {
        {"samples", 0, 0, Where::anywhere, takeSamples},
        {"file", 1, anyNumber, Where::anywhere, writeText},
        {"bytes", 1, anyNumber, Where::anywhere, writeBytes},
        {"cut", 2, 2, Where::anywhere, cutFile},
        {"extend", 2, 2, Where::anywhere, extendFile},
        {"copy", 2, 2, Where::anywhere,
         [](C& c, const W& w) { copyFile(c.folders.path(w[0]), c.folders.path(w[1])); }},
        {"remove", 1, 1, Where::anywhere,
         [](C& c, const W& w) { fs::remove_all(c.folders.path(w[0])); }},
        {"await", 1, 1, Where::anywhere, awaitFile},
        {"setting", 4, 4, Where::anywhere, setSetting},
        {"host", 2, 2, Where::anywhere, setHost},
        {"opening", 2, anyNumber, Where::anywhere, setOpening},
        {"count-held", 0, 0, Where::outside, [](C& c, const W&) { c.counted = countHeld(); }},
        {"clear-logs", 0, 0, Where::anywhere, [](C& c, const W&) { c.services.clearLogs(); }},

        {"dialog", 1, 1, Where::inCall, [](C& c, const W& w) { c.driver.expectDialog(w[0]); }},
        {"press", 1, 1, Where::inCall, [](C& c, const W& w) { c.driver.press(w[0]); }},
        {"check", 1, 1, Where::inCall, [](C& c, const W& w) { c.driver.check(w[0], true); }},
        {"uncheck", 1, 1, Where::inCall, [](C& c, const W& w) { c.driver.check(w[0], false); }},
        {"tab", 1, 1, Where::inCall, [](C& c, const W& w) { c.driver.selectTab(w[0]); }},
        {"select", 2, 2, Where::inCall, [](C& c, const W& w) { c.driver.selectRow(w[0], w[1]); }},
        {"select-at", 2, 2, Where::inCall,
         [](C& c, const W& w) { c.driver.selectRowAt(w[0], wholeNumber(w[1])); }},
        {"add-at", 2, 2, Where::inCall,
         [](C& c, const W& w) { c.driver.addRowAt(w[0], wholeNumber(w[1])); }},
        {"double-click", 2, 2, Where::inCall,
         [](C& c, const W& w) {
             if (w[1] == "ground") return c.driver.doubleClickGround(w[0]);
             c.driver.doubleClickRow(w[0], wholeNumber(w[1]));
         }},
        {"right-click", 2, 2, Where::inCall,
         [](C& c, const W& w) { c.driver.rightClickRow(w[0], wholeNumber(w[1])); }},
        {"scroll", 2, 2, Where::inCall,
         [](C& c, const W& w) { c.driver.scrollToRow(w[0], wholeNumber(w[1])); }},
        {"click-heading", 2, 2, Where::inCall,
         [](C& c, const W& w) { c.driver.clickHeading(w[0], w[1]); }},
        {"column-width", 3, 3, Where::inCall,
         [](C& c, const W& w) {
             c.driver.setColumnWidth(w[0], wholeNumber(w[1]), wholeNumber(w[2]));
         }},
        {"column-order", 2, anyNumber, Where::inCall, setColumnOrder},
        {"focus", 1, 1, Where::inCall, [](C& c, const W& w) { c.driver.focus(w[0]); }},
        {"type", 1, 1, Where::inCall, [](C& c, const W& w) { c.driver.type(w[0]); }},
        {"key", 1, 2, Where::inCall, pressKey},
        {"menu", 1, 1, Where::inCall, [](C& c, const W& w) { c.driver.chooseMenu(w[0]); }},
        {"popup", 1, 1, Where::inCall, [](C& c, const W& w) { c.driver.choosePopup(w[0]); }},
        {"close-popup", 0, 0, Where::inCall, [](C& c, const W&) { c.driver.closePopup(); }},
        {"answer", 1, 1, Where::inCall, [](C& c, const W& w) { c.driver.answer(w[0]); }},
        {"answer-any", 0, 0, Where::inCall, answerAny},
        {"second-call", 2, 2, Where::inCall, secondCall},
        {"close", 0, 0, Where::inCall, [](C& c, const W&) { c.driver.closeDialog(); }},
        {"mouse-move", 3, 3, Where::inCall,
         [](C& c, const W& w) { c.driver.mouseMove(w[0], onlyPoint(c, w), false); }},
        {"mouse-drag", 3, 3, Where::inCall,
         [](C& c, const W& w) { c.driver.mouseMove(w[0], onlyPoint(c, w), true); }},
        {"mouse-down", 3, 3, Where::inCall,
         [](C& c, const W& w) { c.driver.mouseDown(w[0], onlyPoint(c, w)); }},
        {"mouse-up", 3, 3, Where::inCall,
         [](C& c, const W& w) { c.driver.mouseUp(w[0], onlyPoint(c, w)); }},
        {"mouse-right", 3, 3, Where::inCall,
         [](C& c, const W& w) { c.driver.rightClick(w[0], onlyPoint(c, w)); }},
        {"click", 3, 3, Where::inCall, click},
        {"drag", 6, 6, Where::inCall, drag},
        {"resize", 2, 2, Where::inCall,
         [](C& c, const W& w) {
             c.driver.resizeDialog({wholeNumber(w[0]), wholeNumber(w[1])});
         }},
        {"move", 2, 2, Where::inCall,
         [](C& c, const W& w) {
             c.driver.moveDialog({wholeNumber(w[0]), wholeNumber(w[1])});
         }},
        {"state", 1, 1, Where::inCall, [](C& c, const W& w) { c.driver.setDialogState(w[0]); }},
        {"wait", 1, 1, Where::inCall, [](C& c, const W& w) { c.driver.wait(wholeNumber(w[0])); }},
        {"repaint", 0, 0, Where::inCall, [](C& c, const W&) { c.driver.repaint(); }},
        {"screenshot", 1, 1, Where::inCall, takeScreenshot},
    };
    return table;
}

}  // namespace

const Command* findCommand(std::string_view name) {
    for (const Command& command : commands()) {
        if (command.name == name) return &command;
    }
    return nullptr;
}

}  // namespace lx::host
