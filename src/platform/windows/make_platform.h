// The platform on a real screen: Win32 windows and GDI.
#pragma once

#include <memory>

#include "platform/modules.h"
#include "platform/platform.h"

namespace lx {

// moduleInstance: the instance handle of the DLL or program that the code is linked into. Making
// the platform touches no window yet, so the loader may be at work. Destroying it unregisters its
// window classes; no dialog of it may be left.
std::unique_ptr<Platform> makeWindowsPlatform(void* moduleInstance);

// The system's loader.
Modules& systemModules();

}  // namespace lx
