#pragma once

#include <ZelCommonView/common/Export.h>

#include <sigc++/connection.h>

#include <string>
#include <unordered_map>

namespace Zel {

/// A table of signal connections, several for each object, keyed by the object's address and by a name. The
/// address is only compared: the object may be gone already. What the table still holds is disconnected when
/// it is destroyed.
class ZEL_API PointerNamedConnectionsDispatcher {
public:
    PointerNamedConnectionsDispatcher() = default;
    ~PointerNamedConnectionsDispatcher();
    PointerNamedConnectionsDispatcher(const PointerNamedConnectionsDispatcher&) = delete;
    PointerNamedConnectionsDispatcher& operator=(const PointerNamedConnectionsDispatcher&) = delete;

    /// Stores the connection under the address and the name. Another one that stood there is disconnected.
    void connect(const void* address, const std::string& name, sigc::connection connection);

    /// Disconnects that one connection and forgets it. A pair that is not there is no error.
    void disconnect(const void* address, const std::string& name);

private:
    std::unordered_map<const void*, std::unordered_map<std::string, sigc::connection>> connections;
};

} // namespace Zel
