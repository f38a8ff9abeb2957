#include "design/dialog_settings.h"

#include "platform/numbers.h"
#include "settings/keys.h"

namespace lx {

namespace {

void writeInt(Profile& file, const settings::TextKey& key, int value) {
    file.writeInt(key.section, key.key, value);
}

}  // namespace

DialogSettings::DialogSettings(Files& files, const Path& dataFolder)
    : m_user(files, dataFolder + Path(settings::userFile)),
      m_dialog(files, dataFolder + Path(settings::dialogFile)) {}

Annotation DialogSettings::annotation() const {
    return annotationFromSetting(m_user.readInt(settings::description));
}

void DialogSettings::storeAnnotation(const Annotation& annotation) {
    const auto& key = settings::description;
    m_user.writeInt(key.section, key.key, settingFrom(annotation));
}

bool DialogSettings::bearingCheck() const {
    return m_user.readInt(settings::checkLength) != 0;
}

void DialogSettings::storeBearingCheck(bool on) {
    const auto& key = settings::checkLength;
    m_user.writeInt(key.section, key.key, on ? 1 : 0);
}

int DialogSettings::tab() const {
    return leadingInt(m_dialog.read(settings::tab));
}

void DialogSettings::storeTab(int index) {
    writeInt(m_dialog, settings::tab, index);
}

int DialogSettings::precastType() const {
    return leadingInt(m_dialog.read(settings::precastType));
}

void DialogSettings::storePrecastType(int type) {
    writeInt(m_dialog, settings::precastType, type);
}

int DialogSettings::steelType() const {
    return leadingInt(m_dialog.read(settings::steelType));
}

void DialogSettings::storeSteelType(int type) {
    writeInt(m_dialog, settings::steelType, type);
}

Text DialogSettings::bubbleName() const {
    return m_dialog.read(settings::bubbleName);
}

void DialogSettings::storeBubbleName(std::string_view name) {
    m_dialog.write(settings::bubbleName.section, settings::bubbleName.key, name);
}

}  // namespace lx
