// Looks for controls that a user could not see or read whole.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace lx::host {

// Visible controls of the dialog that overlap one another, stick out of their dialog or page, or
// whose text is larger than their area; one a line.
std::vector<std::string> layoutFaultsOf(HWND dialog);

}  // namespace lx::host
