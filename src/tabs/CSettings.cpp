#include "tabs/CSettings.h"

#include "resources/strings.h"
#include "resources/templates.h"
#include "settings/setting_keys.h"

namespace lx {

namespace {

constexpr int helpTopic = 99;

struct ValueField {
    int control;
    Text AnnotationStyle::*value;
};
constexpr ValueField valueFields[] = {
    {id::bubbleHeight, &AnnotationStyle::bubbleHeight},
    {id::lineLength, &AnnotationStyle::lineLength},
    {id::bubbleWidthFactor, &AnnotationStyle::bubbleWidthFactor},
    {id::diameter, &AnnotationStyle::diameter},
    {id::edges, &AnnotationStyle::edges},
    {id::angle, &AnnotationStyle::bubbleAngle},
    {id::descriptionHeight, &AnnotationStyle::descriptionHeight},
    {id::descriptionWidthFactor, &AnnotationStyle::descriptionWidthFactor}};

constexpr int descriptionControls[] = {id::descriptionColor, id::descriptionHeight,
                                       id::descriptionWidthFactor};
constexpr int bubbleControls[] = {id::bubbleColor,       id::followsOpening, id::auxiliaryLine,
                                  id::bubbleWidthFactor, id::hasEdges,       id::diameter,
                                  id::bubbleGroup,       id::bubbleHeight};

template <class Items>
void fill(ComboBox& box, const Items& items) {
    for (const std::string_view item : items) box.add(item);
}

}  // namespace

CSettings::CSettings(const Context& context, Owner owner, const Annotation& inserted)
    : m_context(context),
      m_inserted(inserted),
      m_settings(context.files, context.host.dataFolder() + Path(settings::userFile)),
      m_window(context.platform.createDialog(annotationTemplate, owner)),
      m_textStyle(m_window->get<ComboBox>(id::textStyle)),
      m_bubbleColor(m_window->get<ComboBox>(id::bubbleColor)),
      m_descriptionColor(m_window->get<ComboBox>(id::descriptionColor)),
      m_followsOpening(m_window->get<CheckBox>(id::followsOpening)),
      m_auxiliaryLine(m_window->get<CheckBox>(id::auxiliaryLine)),
      m_hasEdges(m_window->get<CheckBox>(id::hasEdges)),
      m_edges(m_window->get<Edit>(id::edges)) {
    m_window->onInit = [this] { onInit(); };
    m_window->get<Button>(id::ok).onClick = [this] { onOk(); };
    m_window->get<Button>(id::help).onClick = [this] { m_context.host.showHelp(helpTopic); };
    for (CheckBox* const box : {&m_followsOpening, &m_auxiliaryLine, &m_hasEdges}) {
        box->onClick = [this] { refreshEnabled(); };
    }
    // Names of styles may be longer than the box.
    m_textStyle.setTooltip([this] { return m_textStyle.text(); });
}

int CSettings::doModal() {
    return m_window->runModal();
}

void CSettings::onInit() {
    fillBoxes();
    show(storedStyle(m_settings));
    refreshEnabled();
}

void CSettings::fillBoxes() {
    fill(m_textStyle, textStyleChoices(m_context.host.textStyles()));
    fill(m_bubbleColor, annotationColors);
    fill(m_descriptionColor, annotationColors);
    fill(m_window->get<ComboBox>(id::bubbleHeight), annotationHeights);
    fill(m_window->get<ComboBox>(id::descriptionHeight), annotationHeights);
}

void CSettings::selectTextStyle(const Text& name) {
    std::vector<Text> entries;
    for (int i = 0; i < m_textStyle.count(); ++i) entries.push_back(m_textStyle.item(i));
    const int found = entryBeginningWith(entries, name);
    m_textStyle.select(found >= 0 ? found : m_textStyle.add(name));
}

void CSettings::show(const AnnotationStyle& style) {
    selectTextStyle(style.textStyle);
    m_bubbleColor.select(style.bubbleColor);
    m_descriptionColor.select(style.descriptionColor);
    m_followsOpening.check(style.followsOpening);
    m_auxiliaryLine.check(style.auxiliaryLine);
    m_hasEdges.check(style.hasEdges);
    for (const ValueField& field : valueFields) {
        m_window->item(field.control).setText(style.*field.value);
    }
}

AnnotationStyle CSettings::style() const {
    AnnotationStyle style;
    style.textStyle = m_textStyle.text();
    style.bubbleColor = m_bubbleColor.selected();
    style.descriptionColor = m_descriptionColor.selected();
    style.followsOpening = m_followsOpening.checked();
    style.auxiliaryLine = m_auxiliaryLine.checked();
    style.hasEdges = m_hasEdges.checked();
    for (const ValueField& field : valueFields) {
        style.*field.value = m_window->item(field.control).text();
    }
    return style;
}

void CSettings::refreshEnabled() {
    const UsableStyle usable = usableStyle(m_inserted, style());
    for (const int control : descriptionControls)
        m_window->item(control).enable(usable.description);
    for (const int control : bubbleControls) m_window->item(control).enable(usable.bubble);
    m_window->item(id::lineLength).enable(usable.lineLength);
    m_window->item(id::angle).enable(usable.angle);
    m_edges.enable(usable.edges);
}

void CSettings::onOk() {
    const AnnotationStyle chosen = style();
    if (const std::string_view refusal = styleRefusal(chosen); !refusal.empty()) {
        if (m_edges.enabled()) {
            m_edges.focus();
            m_edges.selectAll();
        }
        m_context.platform.messageBox(Owner{m_window.get(), nullptr}, refusal,
                                      m_context.host.hostTitle(), MessageIcon::stop,
                                      MessageButtons::ok);
        return;
    }
    storeStyle(m_settings, chosen);
    m_window->end(id::ok);
}

}  // namespace lx
