// The parts of a dynamic DNS check that tests and special set-ups replace.
#pragma once

#include "net/tvl_ret_global_ip_address.h"
#include "net/tvl_send_ddns_value_domain.h"
#include "net/value_domain_endpoint.h"

#include <QString>
#include <QStringList>

#include <optional>

struct DdnsCheckOptions {
    // Scheme and host of the update endpoint; the path and query are fixed.
    QString endpointBase = QString::fromLatin1(ValueDomainEndpoint::kBaseUrl);
    int updateTimeoutMs = TvlSendDdnsValueDomain::kRequestTimeoutMs;
    // Services asked in this order instead of the settings' shuffled list.
    std::optional<QStringList> lookupServices;
    int lookupTimeoutMs = TvlRetGlobalIpAddress::kRequestTimeoutMs;
};
