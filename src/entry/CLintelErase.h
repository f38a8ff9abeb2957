// The dialog "Vymazání překladu": asks which drawn elements of a lintel the host is to erase.
#pragma once

#include "design/module_values.h"
#include "entry/erase_choice.h"

namespace lx {

class CLintelErase {
public:
    CLintelErase(const Context& context, Owner owner);

    // id::ok, id::cancel, or -1 when the dialog could not be made. Once per object.
    int doModal();
    // The bit set chosen with OK; 0 when there was no dialog.
    int elements() const { return m_elements; }

private:
    void onInit();
    void onOk();
    void show(EraseChoice choice);
    // As the boxes stand, disabled ones included.
    EraseChoice choice() const;

    Host& m_host;
    Profile m_settings;
    std::unique_ptr<Dialog> m_window;
    CheckBox& m_lintel;
    CheckBox& m_section;
    CheckBox& m_bubble;
    CheckBox& m_description;
    int m_elements = 0;
};

}  // namespace lx
