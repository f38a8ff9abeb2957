#include "host/host_settings.h"

#include <functional>

#include "host/parse.h"
#include "platform/text.h"

namespace lx::host {

namespace {

std::optional<int> wholeNumber(std::string_view text) {
    int value = 0;
    return parseNumber(text, value) ? std::optional(value) : std::nullopt;
}

std::string setSwitch(bool& target, std::string_view value) {
    if (value != "on" && value != "off") return "is \"on\" or \"off\"";
    target = value == "on";
    return {};
}

std::string setText(std::optional<std::string>& target, std::string_view value) {
    if (!fromUtf8(value)) return "has a character that code page 1250 lacks";
    target = std::string(value);
    if (value == "none") target.reset();
    return {};
}

std::string setFolder(std::optional<std::string>& target, std::string_view value) {
    target = std::string(value);
    if (value == "none") target.reset();
    return {};
}

std::string setLock(int& target, bool& entry, std::string_view value) {
    if (value == "none") {
        entry = false;
        return {};
    }
    const std::optional<int> number = value == "granted"   ? std::optional<int>(1)
                                      : value == "refused" ? std::optional<int>(0)
                                                           : wholeNumber(value);
    if (!number) return "is \"granted\", \"refused\", \"none\" or a number";
    entry = true;
    target = *number;
    return {};
}

std::string setStyles(std::optional<std::vector<std::string>>& target, std::string_view value) {
    if (!fromUtf8(value)) return "has a character that code page 1250 lacks";
    target.reset();
    if (value == "none") return {};
    target.emplace();
    for (std::size_t begin = 0; begin < value.size();) {
        const std::size_t end = std::min(value.find(';', begin), value.size());
        target->emplace_back(value.substr(begin, end - begin));
        begin = end + 1;
    }
    return {};
}

std::string setUnits(std::optional<int>& target, std::string_view value) {
    target = wholeNumber(value);
    return target || value == "none" ? "" : "is a whole number or \"none\"";
}

std::string setWindow(HostSettings& settings, std::string_view value) {
    if (value != "normal" && value != "minimized" && value != "modal" && value != "none") {
        return "is \"normal\", \"minimized\", \"modal\" or \"none\"";
    }
    settings.window = value;
    return {};
}

struct Setting {
    std::string_view name;
    std::string_view values;
    std::string_view meaning;
    std::function<std::string(HostSettings&, std::string_view)> set;
};

const std::vector<Setting>& settings() {
    using S = HostSettings;
    using V = std::string_view;
    static const std::vector<Setting> table = {
        {"profile", "DIR", "profile folder that GetProfilePath gives; the data are in its DAT",
         [](S& s, V v) {
             s.profile = std::string(v);
             return std::string();
         }},
        {"arx-profile", "DIR|none", "another profile folder for VORDAN2D.ARX",
         [](S& s, V v) { return setFolder(s.arxProfile, v); }},
        {"library", "DIR|none", "host folder 2; none: the lookup fails",
         [](S& s, V v) { return setFolder(s.library, v); }},
        {"catalogue", "DIR|none", "host folder 3; none: the lookup fails",
         [](S& s, V v) { return setFolder(s.catalogue, v); }},
        {"services", "on|off", "off: there is no service table",
         [](S& s, V v) { return setSwitch(s.services, v); }},
        {"folders", "on|off", "off: the table has no folder lookup",
         [](S& s, V v) { return setSwitch(s.folderEntry, v); }},
        {"arx", "on|off", "on: VORDAN2D.ARX is loaded too",
         [](S& s, V v) { return setSwitch(s.arx, v); }},
        {"host", "on|off", "off: no module of the host is loaded (headless only)",
         [](S& s, V v) { return setSwitch(s.host, v); }},
        {"vdhelp", "on|off", "off: there is no vdhelp.dll",
         [](S& s, V v) { return setSwitch(s.helpLibrary, v); }},
        {"load", "FILE|none", "a library beside the program that is loaded before the module",
         [](S& s, V v) { return setText(s.otherLibrary, v); }},
        {"drawing", "TEXT|none", "the drawing's file name; none: the table cannot tell variables",
         [](S& s, V v) { return setText(s.drawing, v); }},
        {"units", "N|none", "drawing units per metre; none: the table cannot tell",
         [](S& s, V v) { return setUnits(s.units, v); }},
        {"lock", "granted|refused|shared|N|none",
         "answer to both locks; shared: granted to one program at a time; none: no such entry",
         [](S& s, V v) {
             s.sharedLocks = v == "shared";
             if (s.sharedLocks) v = "granted";
             const std::string error = setLock(s.libraryLock, s.lockEntry, v);
             s.catalogueLock = s.libraryLock;
             return error;
         }},
        {"lock-library", "granted|refused|N", "answer to the lock on the library (resource 2)",
         [](S& s, V v) { return setLock(s.libraryLock, s.lockEntry, v); }},
        {"lock-catalogue", "granted|refused|N", "answer to the lock on the catalogue (resource 3)",
         [](S& s, V v) { return setLock(s.catalogueLock, s.lockEntry, v); }},
        {"styles", "A;B;...|none", "the drawing's text styles; none: the table cannot tell",
         [](S& s, V v) { return setStyles(s.styles, v); }},
        {"title", "TEXT|none", "the host's title; none: the table cannot tell",
         [](S& s, V v) { return setText(s.title, v); }},
        {"window", "normal|minimized|modal|none",
         "what owns the dialogs; modal: a dialog of the host's own", setWindow},
    };
    return table;
}

const Setting* find(std::string_view name) {
    for (const Setting& setting : settings()) {
        if (setting.name == name) return &setting;
    }
    return nullptr;
}

}  // namespace

std::string HostSettings::set(std::string_view name, std::string_view value) {
    const Setting* setting = find(name);
    if (setting == nullptr) return "there is no host setting \"" + std::string(name) + "\"";
    const std::string error = setting->set(*this, value);
    return error.empty() ? "" : "\"" + std::string(name) + "\" " + error;
}

bool HostSettings::known(std::string_view name) {
    return find(name) != nullptr;
}

std::string HostSettings::help() {
    std::string text;
    for (const Setting& setting : settings()) {
        std::string line = "  --" + std::string(setting.name) + " " + std::string(setting.values);
        line.resize(std::max<std::size_t>(line.size() + 2, 40), ' ');
        text += line + std::string(setting.meaning) + "\n";
    }
    return text;
}

}  // namespace lx::host
