// The dialogs and pages as data, with the texts as the user reads them.
#pragma once

#include "platform/dialog.h"
#include "platform/dialog_template.h"
#include "resources/ids.h"

namespace lx {

// The host asks a window by this message whether it is one of the module's.
inline constexpr unsigned identifyMessage = 0x7101;
inline constexpr int identifyAnswer = 1;

extern const DialogTemplate lintelEraseTemplate;

// Asks for a name; its title and its label are set by whoever asks.
extern const DialogTemplate nameTemplate;

// The catalogue browser and what it opens. The item editor and the browser are titled by whoever
// opens them; steel items have no length and no largest opening, so those rows are hidden.
extern const DialogTemplate chooserTemplate;
extern const DialogTemplate browserTemplate;
extern const DialogTemplate precastItemTemplate;
extern const DialogTemplate steelItemTemplate;
extern const DialogTemplate sectionTypeTemplate;

// The design dialog and its five pages; a page's title is its tab's text.
extern const DialogTemplate designTemplate;
extern const DialogTemplate geometryTemplate;
extern const DialogTemplate precastTemplate;
extern const DialogTemplate steelTemplate;
extern const DialogTemplate monolithTemplate;
extern const DialogTemplate libraryTemplate;
// The annotation settings, over the geometry page.
extern const DialogTemplate annotationTemplate;

}  // namespace lx
