// The browser's hold on one catalogue file: the host's lock, what the file held when the browser
// opened, and every write. Given up when destroyed.
#pragma once

#include <optional>

#include "catalogue/catalogue_file.h"
#include "platform/host_access_lock.h"

namespace lx {

class CatalogueSession {
public:
    // Asks for the lock. With it, loads items anew when the file holds something else than state
    // says: somebody has changed it before the lock was granted. All given must outlive the
    // session.
    CatalogueSession(Files& files, Host& host, CatalogueKind kind, Catalogue& items,
                     CatalogueState& state);

    // Without the lock nothing is ever written.
    bool readOnly() const { return m_readOnly; }
    // Pointers into the chain as it was before are void.
    bool reloaded() const { return m_reloaded; }

    // The items as they are now. False when the file cannot be written; it stays as it is then.
    bool saveCatalogue();
    // The file as it was when the session began. Nothing is written unless saveCatalogue did.
    void putBack();

private:
    Files& m_files;
    Path m_path;
    Catalogue& m_items;
    CatalogueState& m_state;
    HostAccessLock m_accessLock;
    bool m_readOnly = true;
    bool m_reloaded = false;
    bool m_written = false;
    // The bytes, not a copy of the items: what could not be read of them comes back as well. None =
    // there was no file.
    std::optional<Bytes> m_backup;
    CatalogueState m_backupState;
};

}  // namespace lx
