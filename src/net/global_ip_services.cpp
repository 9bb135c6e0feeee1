// The address-echo service table and the setting that replaces it.
#include "net/global_ip_services.h"

#include "net/value_domain_endpoint.h"
#include "prefs/pref_keys.h"
#include "prefs/settings_store.h"

namespace GlobalIpServices {

QStringList builtInServiceList()
{
    // Every entry is asked over HTTPS where its host serves it, so no one on the path can hand
    // us an address that then goes to the DNS provider. Entries 1/2 and 3/4 pair a dual-stack
    // host with the same service's IPv4-only host: an IPv6 answer from the first is refused and
    // the second still gives the IPv4 address.
    return {
        QStringLiteral("https://api64.ipify.org/"),
        QStringLiteral("https://api.ipify.org/"),
        QStringLiteral("https://icanhazip.com/"),
        QStringLiteral("https://ipv4.icanhazip.com/"),
        QStringLiteral("https://diagnostic.opendns.com/myip"),
        QStringLiteral("https://checkip.amazonaws.com"),
        QStringLiteral("https://v4.ident.me/"),
        // Answers JSON whose "origin" lists the client first.
        QStringLiteral("https://httpbin.org/ip"),
        QStringLiteral("https://ipinfo.io/ip"),
        // Plain HTTP: this host has no certificate for its name.
        QStringLiteral("http://whatismyip.akamai.com"),
        QStringLiteral("https://ipv4.wtfismyip.com/text"),
        QStringLiteral("https://api.ipaddress.com/myip"),
        QStringLiteral("https://myip.dnsomatic.com"),
        QString::fromLatin1(ValueDomainEndpoint::kBaseUrl) + QLatin1String(ValueDomainEndpoint::kPath) +
            QLatin1String("?ip"),
        QStringLiteral("https://myexternalip.com/raw"),
        QStringLiteral("https://ipecho.net/plain"),
        QStringLiteral("https://ipv4.lafibre.info/ip.php"),
        QStringLiteral("https://ip.lafibre.info/ip.php"),
    };
}

QStringList serviceList(const SettingsStore& store)
{
    QStringList services;
    for (const QVariant& entry : store.arrayForKey(PrefKey::GlobalIpServiceList)) {
        const QString url = entry.toString().trimmed();
        if (!url.isEmpty())
            services.append(url);
    }
    return services.isEmpty() ? builtInServiceList() : services;
}

} // namespace GlobalIpServices
