// What the design dialog remembers between calls: the check boxes, the page shown, the chosen types
// and the bubble name last entered or proposed.
#pragma once

#include "design/annotation.h"
#include "settings/profile.h"
#include "settings/value_history.h"

namespace lx {

class DialogSettings {
public:
    // The data folder ends in a separator.
    DialogSettings(Files& files, const Path& dataFolder);

    Annotation annotation() const;
    void storeAnnotation(const Annotation& annotation);
    bool bearingCheck() const;
    void storeBearingCheck(bool on);

    // As stored, whatever the number.
    int tab() const;
    void storeTab(int index);
    // -1 when none is stored.
    int precastType() const;
    void storePrecastType(int type);
    int steelType() const;
    void storeSteelType(int type);
    Text bubbleName() const;
    void storeBubbleName(std::string_view name);
    // Values remembered for one kind of in-place edit.
    ValueHistory history(std::string_view section) { return {m_dialog, section}; }

private:
    Profile m_user;
    Profile m_dialog;
};

}  // namespace lx
