#include "design/confirmation.h"

#include "composition/hand_over.h"
#include "design/bubble_name.h"

namespace lx {

namespace {
constexpr std::string_view lineEnd = "\r\n";
}

ConfirmationAnswer confirmDesign(const ConfirmationInput& input, DesignModel& model,
                                 LibrarySession& library, DialogSettings& settings, Files& files,
                                 CallResult& result) {
    settings.storeAnnotation(input.annotation);
    settings.storeBearingCheck(input.bearingCheck);

    result.text = input.bubbleName;
    if (!bubbleNameAccepted(input.bubbleName)) return ConfirmationAnswer::bubbleMissing;
    result.text.append(lineEnd).append(input.description);
    result.foldedSection = foldedSectionResult(input.annotation);
    result.insert = insertSet(input.annotation);

    if (CRez* head = model.head()) {
        head->setLabel(input.bubbleName);
        head->setProject(library.projects().selected);
    }
    if (library.available()) {
        const StoreAnswer stored = library.StoreDesign(model, input.bubbleName);
        if (stored == StoreAnswer::differs) return ConfirmationAnswer::labelTaken;
        if (stored == StoreAnswer::failed) return ConfirmationAnswer::storeFailed;
        library.SaveProjects();
    }
    WriteHandOver(handOverPath(files), model.head(), model.values().openingWidth, files);

    settings.storeTab(input.tab);
    settings.storePrecastType(input.precastType);
    settings.storeSteelType(input.steelType);
    return ConfirmationAnswer::done;
}

}  // namespace lx
