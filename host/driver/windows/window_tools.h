// Real windows as a user sees them: their texts, what kind of control they are, and which one a
// name means. Texts are UTF-8.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>
#include <vector>

#include "host/driver/control_look.h"
#include "platform/windows/describe_message.h"

namespace lx::host {

std::wstring toWide(std::string_view utf8);
std::string fromWide(std::wstring_view text);

Kind kindOf(HWND window);

std::string quotedName(std::string_view text);
std::string windowText(HWND window);
// Without the "&" of a mnemonic.
std::string plainText(HWND window);

// What the private message answers, in UTF-8; "" when the window does not know it.
std::string ask(HWND window, DescribeQuestion question, int index = 0, const char* topic = nullptr);
// A dialog of the module, as against a message box.
bool isOurs(HWND dialog);

// The parts of a text between separators, empty ones included.
std::vector<std::string> split(std::string_view text, char separator);

// Controls of a dialog and its pages, in Tab order; those of hidden pages too.
std::vector<HWND> controlsOf(HWND dialog);
bool isPushButton(HWND window);

// By the rules of ControlName; null when there is none.
HWND findControl(HWND dialog, std::string_view name);
// "#id" and what it is called, such as "#1 OK".
std::string describeControl(HWND control);
// One control a line, for messages.
std::string dumpControls(HWND dialog);

}  // namespace lx::host
