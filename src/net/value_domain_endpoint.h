// Where the dynamic DNS provider listens: its update endpoint also echoes the caller's address.
#pragma once

namespace ValueDomainEndpoint {

inline constexpr char kBaseUrl[] = "https://dyn.value-domain.com";
inline constexpr char kPath[] = "/cgi-bin/dyn.fcg";

} // namespace ValueDomainEndpoint
