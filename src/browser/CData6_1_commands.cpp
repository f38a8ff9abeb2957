// What the user's commands do in the catalogue browser, and what of it is written when: a new item
// at once, all else on OK.
#include <algorithm>

#include "browser/CAddVyrobce.h"
#include "browser/CData6_1.h"
#include "browser/CEdDlg1.h"
#include "browser/CTypPrurez.h"
#include "resources/ids.h"
#include "resources/strings.h"

namespace lx {

void CData6_1::execute(int command) {
    if (!m_setUp || readOnly()) return;
    switch (command) {
        case id::newType:
            return newType();
        case id::renameType:
            return renameType();
        case id::deleteType:
            return deleteType();
        case id::newItem:
        case id::newItemInList:
            return newItem();
        case id::editItem:
            return editItem();
        case id::deleteItem:
            return deleteItem();
        default:
            return;
    }
}

bool CData6_1::mayDelete(const CPreklItem& record, std::string_view question) const {
    return message(fillIn(question, {record.nameOrEmpty()}), text::warning, MessageIcon::question,
                   MessageButtons::yesNo) == MessageAnswer::yes;
}

// ---- types

std::optional<Text> CData6_1::askTypeName(int& shape) {
    const auto accepted = [this](auto& dialog) -> std::optional<Text> {
        while (dialog.doModal()) {
            const std::string_view refusal = newTypeRefusal(m_items->get(), dialog.name);
            if (refusal.empty()) return dialog.name;
            dialog.showMessage(refusal);
        }
        return std::nullopt;
    };
    if (steel()) {
        CTypPrurez dialog(m_platform, m_host, here());
        const std::optional<Text> name = accepted(dialog);
        shape = dialog.shape;
        return name;
    }
    CAddVyrobce dialog(m_platform, m_host, here());
    dialog.title = text::newType;
    dialog.label = text::name;
    return accepted(dialog);
}

void CData6_1::newType() {
    int shape = 0;
    const std::optional<Text> name = askTypeName(shape);
    if (!name) return;
    m_types->add(appendType(*m_items, *name, m_request.kind, shape));
    m_types->select(m_types->count() - 1);
    showType();
}

void CData6_1::renameType() {
    CPreklItem* type = selectedType();
    if (!type) return;
    CAddVyrobce dialog(m_platform, m_host, here());
    dialog.title = text::renameType;
    dialog.label = text::name;
    dialog.name = type->nameOrEmpty();
    while (dialog.doModal()) {
        const std::string_view refusal = renameRefusal(m_items->get(), *type, dialog.name);
        if (!refusal.empty()) {
            dialog.showMessage(refusal);
            continue;
        }
        type->designation = dialog.name;
        m_types->set(m_types->selected(), *type);
        return showType();
    }
}

// The first type loses its items alone.
void CData6_1::deleteType() {
    const CPreklItem* type = selectedType();
    if (!type || m_types->count() < 2) return;
    if (!mayDelete(*type, text::askDeleteType)) return;
    const int position = m_types->selected();
    if (position > 0 && type == m_requestedType) m_requestedType = nullptr;
    lx::deleteType(*m_items, position);
    if (position > 0) {
        m_types->remove(position);
        m_types->select(std::min(position, m_types->count() - 1));
    }
    showType();
}

// ---- items

// The selected item is the model of a new one, too.
std::optional<EditorTexts> CData6_1::askItem(bool asNew) {
    CEdDlg1 editor(m_platform, m_host, here(), m_request.kind);
    editor.title = Text(asNew ? text::newBefore : text::changeBefore)
                       .append(steel() ? text::section : text::lintel);
    if (const CPreklItem* model = m_list->selected()) editor.texts = editorTexts(*model);
    while (editor.doModal()) {
        if (!editor.texts.designation.empty()) return editor.texts;
        editor.showMessage(text::nameMissing);
    }
    return std::nullopt;
}

void CData6_1::newItem() {
    if (!selectedType()) return;
    if (const auto texts = askItem(true)) addItem(*texts);
}

void CData6_1::addItem(const EditorTexts& texts) {
    m_list->add(appendItem(*m_items, *selectedType(), texts));
    save();
}

void CData6_1::editItem() {
    if (!selectedType()) return;
    CPreklItem* item = m_list->selected();
    const auto texts = askItem(false);
    if (!texts) return;
    if (!item) return addItem(*texts);
    changeItem(*item, *texts);
    // In chain order again: the row of before may be another item's.
    refreshItems();
    m_list->select(*item);
}

void CData6_1::deleteItem() {
    const CPreklItem* item = m_list->selected();
    if (!item) return;
    if (!mayDelete(*item, text::askDeleteItem)) return;
    m_list->remove(*item);
    unlinkItem(*m_items, *item);
}

// ---- closing

bool CData6_1::save() {
    if (m_session->saveCatalogue()) return true;
    message(text::catalogueNotWritten, text::warning, MessageIcon::stop, MessageButtons::ok);
    return false;
}

void CData6_1::pick() {
    const std::vector<const CPreklItem*> chosen = m_list->allSelected();
    if (confirm()) m_picked = chosen;
}

// Closing with a catalogue that cannot be written would lose what was changed in it.
bool CData6_1::confirm() {
    saveColumns();
    if (!save()) return false;
    close(id::ok);
    return true;
}

void CData6_1::cancel() {
    m_session->putBack();
    close(id::cancel);
}

// Before the set-up the lists would tell of no columns and no rows.
void CData6_1::saveColumns() {
    if (!m_setUp) return;
    saveColumnSettings(m_settings, m_request.kind,
                       {m_list->columnOrder(), m_list->columnWidths(), m_types->selected(),
                        m_list->firstSelected()},
                       m_widths);
}

void CData6_1::close(int result) {
    m_window->stopTimer(setUpTimer);
    m_window->end(result);
}

}  // namespace lx
