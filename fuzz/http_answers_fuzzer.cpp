// Fuzzes the readers of HTTP answers: the global address services, the update check's version
// file and the dynamic DNS service's reply.
#include "fuzz_input.h"
#include "net/tvl_classes_update.h"
#include "net/tvl_ret_global_ip_address.h"
#include "net/tvl_send_ddns_value_domain.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray body(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    (void)TvlRetGlobalIpAddress::retGlobalIpRes(body, 200, QStringLiteral("text/plain"), QString());
    (void)TvlRetGlobalIpAddress::retGlobalIpRes(body, 200, QStringLiteral("text/html"), QString());
    (void)TvlRetGlobalIpAddress::checkIpAddress(QString::fromUtf8(body));
    (void)TvlClasses::updateCheckDetail(body, QStringLiteral("6.0.0"));
    (void)TvlSendDdnsValueDomain::retVdResponse(body, 200, QString());
    return 0;
}
