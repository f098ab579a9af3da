#include <ZelCommonView/common/PointerConnectionsDispatcher.h>

#include <utility>

namespace Zel {

PointerConnectionsDispatcher::~PointerConnectionsDispatcher() {
    disconnectAll();
}

void PointerConnectionsDispatcher::connect(const void* address, const sigc::connection& connection) {
    disconnect(address);
    connections[address] = connection;
}

void PointerConnectionsDispatcher::disconnect(const void* address) {
    // Forgotten first: disconnecting destroys the slot and what it has captured, and that may come back here.
    if (auto node = connections.extract(address))
        node.mapped().disconnect();
}

void PointerConnectionsDispatcher::disconnectAll() {
    for (auto& [address, connection] : std::exchange(connections, {}))
        connection.disconnect();
}

} // namespace Zel
