#include "design/dialog_settings.h"

#include "platform/numbers.h"
#include "settings/setting_keys.h"

namespace lx {

DialogSettings::DialogSettings(Files& files, const Path& dataFolder)
    : m_user(files, dataFolder + Path(settings::userFile)),
      m_dialog(files, dataFolder + Path(settings::dialogFile)) {}

Annotation DialogSettings::annotation() const {
    return annotationFromSetting(m_user.readInt(settings::description));
}

void DialogSettings::storeAnnotation(const Annotation& annotation) {
    m_user.writeInt(settings::description, settingFrom(annotation));
}

bool DialogSettings::bearingCheck() const {
    return m_user.readInt(settings::checkLength) != 0;
}

void DialogSettings::storeBearingCheck(bool on) {
    m_user.writeInt(settings::checkLength, on ? 1 : 0);
}

int DialogSettings::tab() const {
    return leadingInt(m_dialog.read(settings::tab));
}

void DialogSettings::storeTab(int index) {
    m_dialog.write(settings::tab, formatInt(index));
}

int DialogSettings::precastType() const {
    return leadingInt(m_dialog.read(settings::precastType));
}

void DialogSettings::storePrecastType(int type) {
    m_dialog.write(settings::precastType, formatInt(type));
}

int DialogSettings::steelType() const {
    return leadingInt(m_dialog.read(settings::steelType));
}

void DialogSettings::storeSteelType(int type) {
    m_dialog.write(settings::steelType, formatInt(type));
}

Text DialogSettings::bubbleName() const {
    return m_dialog.read(settings::bubbleName);
}

void DialogSettings::storeBubbleName(std::string_view name) {
    m_dialog.write(settings::bubbleName, name);
}

}  // namespace lx
