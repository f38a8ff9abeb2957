#include "catalogue/catalogue_session.h"

#include <utility>

namespace lx {

CatalogueSession::CatalogueSession(Files& files, Host& host, CatalogueKind kind, Catalogue& items,
                                   CatalogueState& state)
    : m_files(files),
      m_path(cataloguePath(kind, host)),
      m_items(items),
      m_state(state),
      m_accessLock(host, HostResource::catalogue) {
    if (!m_accessLock.isGranted()) return;
    FileRead file = m_files.read(m_path);
    // What cannot be read now may be newer than the items, and is not to be written over.
    if (file.status == ReadStatus::failed) return;
    m_readOnly = false;
    if (file.status == ReadStatus::ok) {
        if (!m_state.holds(file.bytes)) {
            LoadedCatalogue read = loadCatalogue(kind, file.bytes);
            m_items = std::move(read.head);
            m_state = read.state;
            m_reloaded = true;
        }
        m_backup = std::move(file.bytes);
    }
    m_backupState = m_state;
}

bool CatalogueSession::saveCatalogue() {
    if (m_readOnly) return true;
    const bool keepOld = m_state.damaged;
    if (saveCatalogueAs(m_items.get(), m_path, m_files, keepOld, &m_state) != 0) return false;
    m_written = true;
    return true;
}

void CatalogueSession::putBack() {
    if (!m_written) return;
    const bool done = m_backup ? m_files.replace(m_path, *m_backup) : m_files.remove(m_path);
    if (!done) return;
    m_state = m_backupState;
    m_written = false;
}

}  // namespace lx
