#include "widgets/field_dialog.h"

#include <list>

#include "resources/icons.h"

namespace lx {

namespace {
constexpr int helpTopic = 100;
}

bool FieldDialog::run(const DialogTemplate& layout, std::span<const Field> fields,
                      const std::function<void(Dialog&)>& dress) {
    const std::unique_ptr<Dialog> window = m_platform.createDialog(layout, m_parent);
    std::list<CMyEdit> edits;
    for (const Field& field : fields) {
        edits.emplace_back(m_platform, *window, window->get<Edit>(field.control), field.longest,
                           field.decimals);
    }
    window->get<Button>(id::help).onClick = [this] { m_host.showHelp(helpTopic); };
    window->onInit = [&] {
        window->setIcon(icon::module);
        dress(*window);
        for (const Field& field : fields) window->item(field.control).setText(*field.text);
        Edit& first = window->get<Edit>(fields.front().control);
        first.focus();
        first.selectAll();
    };
    if (window->runModal() != id::ok) return false;
    for (const Field& field : fields) *field.text = window->item(field.control).text();
    return true;
}

void FieldDialog::stop(std::string_view text, std::string_view caption) {
    m_platform.messageBox(m_parent, text, caption, MessageIcon::stop, MessageButtons::ok);
}

}  // namespace lx
