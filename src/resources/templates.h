// The dialogs and pages as data, with the texts as the user reads them.
#pragma once

#include "platform/dialog.h"
#include "platform/dialog_template.h"
#include "resources/ids.h"

namespace lx {

extern const DialogTemplate lintelEraseTemplate;

// The design dialog and its five pages; a page's title is its tab's text.
extern const DialogTemplate designTemplate;
extern const DialogTemplate geometryTemplate;
extern const DialogTemplate precastTemplate;
extern const DialogTemplate steelTemplate;
extern const DialogTemplate monolithTemplate;
extern const DialogTemplate libraryTemplate;

}  // namespace lx
