// The rules of the automatic composition, which are written by hand. The first byte tells the wall.
#include "composition/automatic.h"
#include "composition/layout.h"
#include "fuzz/targets.h"
#include "tests/support/designs.h"
#include "tests/support/memory_files.h"

namespace lx::fuzz {

void readRules(std::string_view input) {
    if (input.empty()) return;
    const std::int32_t wall = 10 * static_cast<unsigned char>(input.front());
    MemoryFiles files;
    files.content["rules"] = input.substr(1);
    const Profile rules(files, "rules");

    RezChain offer;
    std::vector<const CRez*> listed;
    for (const char letter : {' ', 'X', 'A', 'B', 'A'}) {
        CRez* element = offer.append(layer(Kind::precast, 70, "KPV 7"));
        element->letter = letter;
        listed.push_back(element);
    }
    RezChain design = sampleDesign("A1", wall);
    promise(composePrecast(design, offer.head(), listed, rules) == design.head());
    // Two elements of the letter A for each of the rule's 259 characters.
    promise(LayerCount(*design.head()) <= 2 * 259);
}

}  // namespace lx::fuzz
