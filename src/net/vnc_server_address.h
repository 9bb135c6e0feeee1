// vnc: URLs from the server addresses viewers keep and from what the user types.
#pragma once

#include <QString>
#include <QStringView>

#include <optional>

namespace VncServerAddress {

// The first port of VNC servers: display N listens on 5900 + N.
inline constexpr int kBasePort = 5900;

// A server as VNC viewers write it: "host", "host:N" (display N when below 100, else a port),
// "host::port", "[v6]:N", or a bare IPv6 address. None for a socket path or an unreadable port.
std::optional<QString> urlFromViewerServer(QStringView server);

// What the user typed as a host's address: a vnc: URL kept as it is, or "host[:port]" made into
// vnc://host:port (the number is a port, never a display). None when it is neither.
std::optional<QString> normalizedUrl(QStringView typed);

} // namespace VncServerAddress
