// The browser's list of types: the section's shape and the name, a popup menu.
#pragma once

#include <functional>
#include <span>

#include "catalogue/CPreklItem.h"
#include "platform/dialog.h"

namespace lx {

class CList1 {
public:
    // Both must outlive the object, which takes the list's handlers.
    CList1(Dialog& window, ListBox& list, CatalogueKind kind);
    CList1(const CList1&) = delete;
    CList1& operator=(const CList1&) = delete;

    void setReadOnly(bool on) { m_readOnly = on; }

    // Copies what it shows; selects the first one.
    void fill(std::span<CPreklItem* const> types);
    void add(const CPreklItem& type) { m_list.append(rowOf(type)); }
    void set(int position, const CPreklItem& type) { m_list.set(position, rowOf(type)); }
    void remove(int position) { m_list.remove(position); }
    int count() const { return m_list.count(); }
    int selected() const { return m_list.selected(); }  // -1 = none
    void select(int position) { m_list.select(position); }

    // The user selected another one.
    std::function<void()> onSelect;
    // Chosen from the popup menu.
    std::function<void(int command)> onCommand;

private:
    ListRow rowOf(const CPreklItem& type) const;
    KeyAnswer key(const KeyEvent& event);
    void openPopup(Point p);

    Dialog& m_window;
    ListBox& m_list;
    CatalogueKind m_kind;
    bool m_readOnly = false;
};

}  // namespace lx
