// The page "Geometrie": the plan, the bend presets of the head, the description, the bubble name
// and what is to be inserted into the drawing, with the way to the style that it is drawn in.
#pragma once

#include <memory>

#include "catalogue/my_edit.h"
#include "design/pages.h"
#include "design/services.h"
#include "preview/CObrP.h"

namespace lx {

class CTabGeometrie : public GeometryPage {
public:
    explicit CTabGeometrie(DesignServices& services);

    Dialog& window() override { return *m_window; }
    void showAvailability(const Availability&) override {}
    void initialise() override;
    void RefreshDescription() override;
    Text bubbleName() const override { return m_bubble.text(); }
    Text description() const override { return m_description.text(); }
    void setDescription(std::string_view text) override { m_description.setText(text); }
    void setAnnotation(const Annotation& annotation) override;
    Annotation annotation() const override;
    void focusBubble() override;
    void redrawPlan() override { m_plan.redraw(); }

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
