#include "entry/CLXdata6dlgApp.h"

#include "entry/locations.h"
#include "resources/icons.h"

namespace lx {

CLXdata6dlgApp::CLXdata6dlgApp(Platform& platform, Files& files, Modules& modules)
    : m_modules(modules),
      m_host(modules, m_dataFolder, m_values.helpFile),
      m_context{platform, files, m_host, m_values} {
    // Only remembered here; icons are drawn when a dialog first shows them.
    platform.paintIcon = paintIcon;
}

bool CLXdata6dlgApp::InitInstance() {
    Locations found = findLocations(m_modules);
    m_dataFolder = std::move(found.dataFolder);
    m_values.helpFile = std::move(found.helpFile);
    return true;
}

int CLXdata6dlgApp::ExitInstance() {
    m_dataFolder.clear();
    m_values.helpFile.clear();
    return 0;
}

}  // namespace lx
