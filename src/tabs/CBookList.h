// The list of stored designs on the library page: "<výchozí>" and the labels of the project, those
// that no longer suit the opening in red.
#pragma once

#include "design/design_model.h"
#include "platform/controls.h"

namespace lx {

class CBookList {
public:
    CBookList(ListBox& list, const DesignModel& model) : m_list(list), m_model(model) {}

    ListBox& list() { return m_list; }
    // All entries anew, the shown one selected.
    void fill();
    // Of the entries whose design may have changed.
    void refreshLooks();

private:
    void refreshRow(int entry);

    ListBox& m_list;
    const DesignModel& m_model;
};

}  // namespace lx
