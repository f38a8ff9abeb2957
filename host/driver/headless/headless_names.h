// Controls of the headless platform as a user sees them, by the rules of control_look.h. Texts are
// UTF-8.
#pragma once

#include <string>
#include <string_view>

#include "platform/headless/headless_dialog.h"

namespace lx::host {

// By the rules of ControlName; null when there is none.
HeadlessControl* findControl(const HeadlessDialog& dialog, std::string_view name);
// "#id" and what it is called, such as "#1 OK".
std::string describeControl(const HeadlessControl& control);
// The dialog's title, then one control a line.
std::string dumpControls(const HeadlessDialog& dialog);
// Controls that overlap, stick out of their dialog or cut their text; one a line.
std::vector<std::string> layoutFaultsOf(const HeadlessDialog& dialog);

}  // namespace lx::host
