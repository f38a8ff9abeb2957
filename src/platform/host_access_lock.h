// The host's access lock on data that several users share, asked for when made and given back when
// destroyed.
#pragma once

#include "platform/host.h"

namespace lx {

class HostAccessLock {
public:
    // Asks for exclusive writing.
    HostAccessLock(Host& host, HostResource resource);
    ~HostAccessLock();
    HostAccessLock(const HostAccessLock&) = delete;
    HostAccessLock& operator=(const HostAccessLock&) = delete;

    // Never without a host.
    bool isGranted() const { return m_state == granted; }

private:
    static constexpr int granted = 1;
    static constexpr int noHost = 3;

    Host& m_host;
    HostResource m_resource;
    int m_state = noHost;
};

}  // namespace lx
