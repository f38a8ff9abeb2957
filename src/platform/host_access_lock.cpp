#include "platform/host_access_lock.h"

namespace lx {

namespace {
constexpr int releaseGranted = 4;
constexpr int releaseOther = 2;
}  // namespace

HostAccessLock::HostAccessLock(Host& host, HostResource resource, int mode)
    : m_host(host), m_resource(resource), m_mode(mode) {
    if (host.present()) m_state = host.requestLock(resource, mode);
}

HostAccessLock::~HostAccessLock() {
    if (m_state == noHost) return;
    const bool heldForWriting = (m_mode & 1) != 0 && m_state == granted;
    m_host.releaseLock(m_resource, heldForWriting ? releaseGranted : releaseOther);
}

}  // namespace lx
