// The drop-down of projects on the library page.
#pragma once

#include "composition/projects.h"
#include "platform/controls.h"

namespace lx {

class CBookBox {
public:
    explicit CBookBox(ComboBox& box) : m_box(box) {}

    ComboBox& box() { return m_box; }
    void fill(const ProjectList& list) {
        m_box.clear();
        for (const Project& project : list.projects) m_box.add(project.name);
        m_box.select(list.selected);
    }

private:
    ComboBox& m_box;
};

}  // namespace lx
