#include "composition/projects.h"
#include "fuzz/targets.h"

namespace lx::fuzz {

void readProjects(std::string_view input) {
    const ProjectList list = parseProjects(input);
    promise(!list.projects.empty() && list.selected >= 0 &&
            static_cast<std::size_t>(list.selected) < list.projects.size());
    const Bytes written = projectBytes(list);
    const ProjectList again = parseProjects(written);
    promise(!again.damaged && again.selected == list.selected && projectBytes(again) == written);
}

}  // namespace lx::fuzz
