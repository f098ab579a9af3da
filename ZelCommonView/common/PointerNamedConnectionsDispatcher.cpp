#include <ZelCommonView/common/PointerNamedConnectionsDispatcher.h>

#include <utility>

namespace Zel {

PointerNamedConnectionsDispatcher::~PointerNamedConnectionsDispatcher() {
    for (auto& [address, named] : std::exchange(connections, {}))
        for (auto& [name, connection] : named)
            connection.disconnect();
}

void PointerNamedConnectionsDispatcher::connect(const void* address, const std::string& name,
                                                sigc::connection connection) {
    disconnect(address, name);
    connections[address][name] = connection;
}

void PointerNamedConnectionsDispatcher::disconnect(const void* address, const std::string& name) {
    const auto found = connections.find(address);
    if (found == connections.end())
        return;
    auto node = found->second.extract(name);
    if (found->second.empty())
        connections.erase(found);
    // Forgotten first: disconnecting destroys the slot and what it has captured, and that may come back here.
    if (node)
        node.mapped().disconnect();
}

} // namespace Zel
