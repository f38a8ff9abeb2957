#include "tabs/CTabGeometrie.h"

#include "design/layer_texts.h"
#include "resources/icons.h"
#include "resources/strings.h"
#include "resources/templates.h"
#include "tabs/CSettings.h"
#include "tabs/page_window.h"

namespace lx {

namespace {

constexpr int bendButtons[] = {id::bendNone, id::bend1, id::bend2, id::bend3, id::bend4, id::bend5};

// Most bytes that typing into the bubble field may produce, before and after the page is
// initialised.
constexpr int bubbleLimitAtFirst = 50;
constexpr int bubbleLimit = 5;

}  // namespace

CTabGeometrie::CTabGeometrie(DesignServices& services)
    : m_services(services),
      m_window(makePageWindow(services, geometryTemplate)),
      m_plan(services, *m_window, m_window->get<Picture>(id::planPreview),
             m_window->get<CheckBox>(id::insertFoldedSection)),
      m_description(m_window->get<Edit>(id::description)),
      m_bubble(m_window->get<Edit>(id::bubbleName)),
      m_bubbleField(services.context().platform, *m_window, m_bubble, bubbleLimitAtFirst,
                    CMyEdit::freeText),
      m_insertBubble(m_window->get<CheckBox>(id::insertBubble)),
      m_insertDescription(m_window->get<CheckBox>(id::insertDescription)),
      m_insertFoldedSection(m_window->get<CheckBox>(id::insertFoldedSection)),
      m_insertDiagonals(m_window->get<CheckBox>(id::insertDiagonals)),
      m_annotationSettings(m_window->get<Button>(id::annotationSettings)) {
    for (std::size_t i = 0; i < std::size(bendButtons); ++i) {
        Button& button = m_window->get<Button>(bendButtons[i]);
        dress(button, icon::bends[i], text::bends[i]);
        button.onClick = [this, shape = static_cast<int>(i)] { m_services.bendHead(shape); };
    }
    m_annotationSettings.onClick = [this] { openAnnotationSettings(); };
    m_bubble.onChange = [this] { bubbleChanged(); };
    m_insertFoldedSection.onClick = [this] { redrawPlan(); };
    for (CheckBox* const box : {&m_insertBubble, &m_insertDescription, &m_insertDiagonals}) {
        box->onClick = [this] { enableAnnotationSettings(); };
    }
}

void CTabGeometrie::initialise() {
    m_bubbleField.setMaxLength(bubbleLimit);
    enableAnnotationSettings();
}

void CTabGeometrie::enableAnnotationSettings() {
    m_annotationSettings.enable(hasAnnotationStyle(annotation()));
}

void CTabGeometrie::openAnnotationSettings() {
    CSettings(m_services.context(), Owner{&m_services.window(), nullptr}, annotation()).doModal();
}

void CTabGeometrie::refreshDescription() {
    const CRez* head = m_services.model().head();
    if (head == nullptr) return;
    m_description.setText(descriptionSummary(*head));
    // A design without a label takes the proposed name.
    const bool labelled = head->itemIndex != 0;
    const Text name = labelled ? head->label() : m_services.context().values.proposedBubble;
    if (m_bubble.text() != name) m_bubble.setText(name);
    bubbleChanged();
}

// Also when the module itself fills the field: so a new design gets its label.
void CTabGeometrie::bubbleChanged() {
    const Text name = m_bubble.text();
    if (CRez* head = m_services.model().head()) head->setLabel(name);
    m_services.settings().storeBubbleName(name);
}

void CTabGeometrie::setAnnotation(const Annotation& annotation) {
    m_insertFoldedSection.check(annotation.foldedSection);
    m_insertDescription.check(annotation.description);
    m_insertBubble.check(annotation.bubble);
    m_insertDiagonals.check(annotation.diagonals);
}

Annotation CTabGeometrie::annotation() const {
    return {m_insertFoldedSection.checked(), m_insertDescription.checked(),
            m_insertBubble.checked(), m_insertDiagonals.checked()};
}

void CTabGeometrie::focusBubble() {
    m_bubble.focus();
    m_bubble.selectAll();
}

}  // namespace lx
