// The dialog "Nastavení...": the style in which the host draws the bubble and the description.
#pragma once

#include <memory>

#include "design/annotation.h"
#include "design/module_values.h"

namespace lx {

class CSettings {
public:
    // inserted: what is to be drawn, which decides what can be edited.
    CSettings(const Context& context, Owner owner, const Annotation& inserted);

    // id::ok, id::cancel, or -1 when the dialog could not be made. Once per object.
    int doModal();

private:
    void onInit();
    void fillBoxes();
    void selectTextStyle(const Text& name);
    void show(const AnnotationStyle& style);
    // As the controls stand, disabled ones included.
    AnnotationStyle style() const;
    void refreshEnabled();
    void onOk();

    Context m_context;
    Annotation m_inserted;
    Profile m_settings;
    std::unique_ptr<Dialog> m_window;
    ComboBox& m_textStyle;
    ComboBox& m_bubbleColor;
    ComboBox& m_descriptionColor;
    CheckBox& m_followsOpening;
    CheckBox& m_auxiliaryLine;
    CheckBox& m_hasEdges;
    Edit& m_edges;
};

}  // namespace lx
