#include "platform/host_access_lock.h"

namespace lx {

namespace {
constexpr int writeMode = 9;
constexpr int releaseGranted = 4;
constexpr int releaseOther = 2;
}  // namespace

HostAccessLock::HostAccessLock(Host& host, HostResource resource)
    : m_host(host), m_resource(resource) {
    if (host.present()) m_state = host.requestLock(resource, writeMode);
}

HostAccessLock::~HostAccessLock() {
    if (m_state == noHost) return;
    m_host.releaseLock(m_resource, m_state == granted ? releaseGranted : releaseOther);
}

}  // namespace lx
