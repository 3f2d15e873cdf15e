#include "platform/host/Host.h"

#include "platform/host/HeadlessHost.h"

namespace {
// The one host of the process; the user-interface thread alone touches it.
std::unique_ptr<Host>& InstalledHost() {
    static std::unique_ptr<Host>& host = *new std::unique_ptr<Host>;
    return host;
}
} // namespace

Host& GetHost() {
    auto& host = InstalledHost();
    if (!host)
        host = std::make_unique<HeadlessHost>();
    return *host;
}

void SetHost(std::unique_ptr<Host> host) {
    InstalledHost() = std::move(host);
}
