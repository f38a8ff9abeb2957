// The page "Geometrie": the plan, the bend presets of the head, the description, the bubble name
// and what is to be inserted into the drawing, with the way to the style that it is drawn in.
#pragma once

#include <memory>

#include "design/annotation.h"
#include "design/design_services.h"
#include "preview/CObrP.h"
#include "tabs/design_page.h"
#include "widgets/CMyEdit.h"

namespace lx {

class CTabGeometrie : public DesignPage {
public:
    explicit CTabGeometrie(DesignServices& services);

    Dialog& window() override { return *m_window; }
    void showAvailability(const Availability&) override {}
    // Once, when settings and check boxes have been filled.
    void initialise();
    // Replaces the description by the summary of the layers and the bubble field by the design's
    // label (or the proposed name when it has none yet).
    void refreshDescription();
    Text bubbleName() const { return m_bubble.text(); }
    Text description() const { return m_description.text(); }
    void setDescription(std::string_view text) { m_description.setText(text); }
    void setAnnotation(const Annotation& annotation);
    Annotation annotation() const;
    // The bubble field takes the focus, its text selected.
    void focusBubble();
    void redrawPlan() { m_plan.redraw(); }

private:
    void bubbleChanged();
    void enableAnnotationSettings();
    void openAnnotationSettings();

    DesignServices& m_services;
    std::unique_ptr<Dialog> m_window;
    CObrP m_plan;
    Edit& m_description;
    Edit& m_bubble;
    CMyEdit m_bubbleField;
    CheckBox& m_insertBubble;
    CheckBox& m_insertDescription;
    CheckBox& m_insertFoldedSection;
    CheckBox& m_insertDiagonals;
    Button& m_annotationSettings;
};

}  // namespace lx
