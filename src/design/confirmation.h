// What OK of the design dialog does with a design, in its order: settings, checks, results, the
// library, the hand-over to the host.
#pragma once

#include "design/dialog_settings.h"
#include "design/library_session.h"

namespace lx {

// What stands in the dialog's controls.
struct ConfirmationInput {
    Text bubbleName;
    Text description;
    Annotation annotation;
    bool bearingCheck = true;
    int tab = 0;
    int precastType = -1;
    int steelType = -1;
};

struct CallResult {
    int insert = 0;         // result value A
    int foldedSection = 0;  // result value B
    Text text;              // bubble name, CR LF, description
};

enum class ConfirmationAnswer {
    done,
    bubbleMissing,  // nothing is stored; the result text is the name alone
    labelTaken,     // another design of that label is stored; the results are set
    storeFailed     // the library could not be written; the results are set
};

// The design must be laid out: it is stored as it is.
ConfirmationAnswer confirmDesign(const ConfirmationInput& input, DesignModel& model,
                                 LibrarySession& library, DialogSettings& settings, Files& files,
                                 CallResult& result);

}  // namespace lx
