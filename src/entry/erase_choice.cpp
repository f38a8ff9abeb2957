#include "entry/erase_choice.h"

#include "settings/setting_keys.h"

namespace lx {

EraseChoice storedChoice(const Profile& settings) {
    const int elements = settings.readInt(settings::lintelErase) & (LX_ERASE_LINTEL | eraseParts);
    return {elements, (elements & LX_ERASE_LINTEL) == 0};
}

EraseChoice toggleLintel(EraseChoice choice, bool checked) {
    if (checked) return {LX_ERASE_LINTEL | eraseParts, false};
    return {choice.elements & eraseParts, true};
}

void storeChoice(Profile& settings, EraseChoice choice) {
    settings.writeInt(settings::lintelErase, choice.elements);
}

}  // namespace lx
