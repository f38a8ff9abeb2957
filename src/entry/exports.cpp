#include "entry/exports.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include "browser/CData6_1.h"
#include "dialog/CObr1.h"
#include "entry/CLintelErase.h"
#include "entry/merge_call.h"
#include "resources/strings.h"

namespace lx {

namespace {

constexpr double widestWall = 2000.0;       // mm
constexpr double thinnestWall = 70.0;       // mm
constexpr double narrowestOpening = 300.0;  // mm

// The exported functions have no argument that could name it.
CLXdata6dlgApp* g_application = nullptr;

// The message that refuses these dimensions, mm; empty when they are accepted.
std::string_view refusedBy(double openingWidth, double wallThickness) {
    if (wallThickness > widestWall) return text::wallTooWide;
    // So written that not a number fails.
    if (!(wallThickness >= thinnestWall)) return text::wallTooThin;
    if (!(openingWidth >= narrowestOpening)) return text::openingTooNarrow;
    return {};
}

void store(ModuleValues& values, const DesignArguments& arguments) {
    values.openingWidth = arguments.openingWidth;
    values.wallThickness = arguments.wallThickness;
    // A level that is no number tells of no opening object.
    values.level = std::isnan(arguments.level) ? 0.0 : arguments.level;
    values.block = arguments.opening;
}

struct DesignOutcome {
    int result = LX_DIALOG_FAILED;
    int a = 0;
    int b = 0;
    Text text;
};

// What came in stays in the outcome when the dialog fails.
void runDialog(CLXdata6dlgApp& app, const DesignArguments& arguments, DesignOutcome& outcome) {
    CObr1 dialog(app.context(), Owner{nullptr, arguments.parent});
    dialog.resultA = outcome.a;
    dialog.resultB = outcome.b;
    dialog.exteriorSide = arguments.exteriorSide;
    outcome.result = dialog.doModal();
    outcome.a = dialog.resultA;
    outcome.b = dialog.resultB;
    outcome.text = std::move(dialog.resultText);
}

// Runs a dialog call of an exported function: one at a time, and no exception leaves it, since it
// would end the host's process.
template <class Body>
int dialogCall(int busy, int failed, Body body) noexcept {
    if (!g_application) return failed;
    const CLXdata6dlgApp::Call call(*g_application);
    if (!call.held()) return busy;
    try {
        return body(*g_application);
    } catch (...) {
        return failed;
    }
}

int merge(const char* sourcePath, const char* targetFolder, int mode) noexcept {
    if (!g_application) return LX_MERGE_NO_TARGET;
    try {
        const Context& context = g_application->context();
        return mergeCall(context.files, context.host,
                         {sourcePath ? sourcePath : "", targetFolder ? targetFolder : "", mode});
    } catch (...) {
        return LX_MERGE_NO_TARGET;
    }
}

}  // namespace

void copyResultText(std::string_view text, char* buffer) {
    const std::size_t size = std::min<std::size_t>(text.size(), LX_RESULT_TEXT_SIZE - 1);
    std::memcpy(buffer, text.data(), size);
    buffer[size] = '\0';
}

int designCall(CLXdata6dlgApp& app, const DesignArguments& arguments) {
    Context& context = app.context();
    const std::string_view refusal = refusedBy(arguments.openingWidth, arguments.wallThickness);
    if (!refusal.empty()) {
        context.platform.messageBox(Owner{nullptr, arguments.parent}, refusal, text::warning,
                                    MessageIcon::stop, MessageButtons::ok);
        return LX_DIALOG_CANCEL;
    }
    store(context.values, arguments);

    DesignOutcome outcome;
    if (arguments.resultA) outcome.a = *arguments.resultA;
    if (arguments.resultB) outcome.b = *arguments.resultB;
    try {
        runDialog(app, arguments, outcome);
    } catch (...) {
        outcome.result = LX_DIALOG_FAILED;
    }
    if (arguments.resultText) {
        copyResultText(outcome.text.empty() ? text::notGiven : outcome.text, arguments.resultText);
    }
    if (arguments.resultA) *arguments.resultA = outcome.a;
    if (arguments.resultB) *arguments.resultB = outcome.b;
    return outcome.result;
}

int browserCall(CLXdata6dlgApp& app, void* parent) {
    Context& context = app.context();
    CData6_1 browser(context.platform, context.files, context.host, context.values.columnWidths,
                     Owner{nullptr, parent});
    return browser.runStandAlone();
}

int eraseCall(CLXdata6dlgApp& app, void* parent) {
    CLintelErase dialog(app.context(), Owner{nullptr, parent});
    switch (dialog.doModal()) {
        case id::ok:
            return dialog.elements();
        case id::cancel:
            return LX_ERASE_CANCELLED;
        default:
            return 0;
    }
}

void setApplication(CLXdata6dlgApp* app) {
    g_application = app;
}

}  // namespace lx

// ---- the exported functions; the header for hosts gives them C linkage and their conventions

int LX_STDCALL CallLXdata6(void* parent, int32_t, int32_t, int32_t, double openingWidth,
                           double wallThickness, double level, char* resultText, int32_t* resultA,
                           int32_t* resultB, OpeningBlock opening, int32_t exteriorSide) {
    lx::DesignArguments arguments;
    arguments.parent = parent;
    arguments.openingWidth = openingWidth;
    arguments.wallThickness = wallThickness;
    arguments.level = level;
    arguments.resultText = resultText;
    arguments.resultA = resultA;
    arguments.resultB = resultB;
    arguments.opening = opening;
    // The flag is one byte; the host leaves the rest of its slot as it was.
    arguments.exteriorSide = (exteriorSide & 0xFF) != 0;
    return lx::dialogCall(
        LX_DIALOG_CANCEL, LX_DIALOG_FAILED,
        [&arguments](lx::CLXdata6dlgApp& app) { return lx::designCall(app, arguments); });
}

int LX_STDCALL CallLXdata6Base(void* parent) {
    return lx::dialogCall(LX_DIALOG_CANCEL, LX_DIALOG_FAILED, [parent](lx::CLXdata6dlgApp& app) {
        return lx::browserCall(app, parent);
    });
}

int LX_STDCALL LintelErase(void* parent) {
    return lx::dialogCall(LX_ERASE_CANCELLED, 0,
                          [parent](lx::CLXdata6dlgApp& app) { return lx::eraseCall(app, parent); });
}

int LX_CDECL mergeLibraryFiles(void*, const char* sourcePath, const char* targetFolder,
                               int32_t mode) {
    return lx::merge(sourcePath, targetFolder, mode);
}
