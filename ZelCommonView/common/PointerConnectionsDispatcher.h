#pragma once

#include <ZelCommonView/common/Export.h>

#include <sigc++/connection.h>

#include <unordered_map>

namespace Zel {

/// A table of signal connections, one for each object, keyed by the object's address. The address is only
/// compared: the object may be gone already. What the table still holds is disconnected when it is destroyed.
class ZEL_API PointerConnectionsDispatcher {
public:
    PointerConnectionsDispatcher() = default;
    ~PointerConnectionsDispatcher();
    PointerConnectionsDispatcher(const PointerConnectionsDispatcher&) = delete;
    PointerConnectionsDispatcher& operator=(const PointerConnectionsDispatcher&) = delete;

    /// Stores the connection under the address. Another one that stood there is disconnected.
    void connect(const void* address, const sigc::connection& connection);

    /// Disconnects what is stored under the address and forgets it. An unknown address is no error.
    void disconnect(const void* address);

    /// Does so for every address.
    void disconnectAll();

private:
    std::unordered_map<const void*, sigc::connection> connections;
};

} // namespace Zel
