// The small dialog in which the user chooses the catalogue to open.
#pragma once

#include "platform/platform.h"

namespace lx {

class CBaseDlg {
public:
    // Both must outlive the dialog.
    CBaseDlg(Platform& platform, Owner parent) : m_platform(platform), m_parent(parent) {}

    // id::choosePrecast, id::chooseSteel, id::cancel, or -1 when the dialog could not be made.
    int doModal();

private:
    Platform& m_platform;
    Owner m_parent;
};

}  // namespace lx
