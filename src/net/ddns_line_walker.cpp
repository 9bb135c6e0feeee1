// The dynamic DNS line walk: updates, confirmations and, on a forced run, the lines it skipped.
#include "net/ddns_line_walker.h"

#include "net/ddns_line.h"
#include "net/format_objects.h"
#include "net/notifier.h"
#include "net/tvl_send_ddns_value_domain.h"
#include "net/value_domain_endpoint.h"
#include "toolkit/localization.h"

namespace {

constexpr char kUpdateSucceeded[] = "更新に成功しました";

QString localizedText(const QString& key)
{
    return Tarvel::localized(key.toUtf8().constData());
}

} // namespace

DdnsLineWalker::DdnsLineWalker(Walk walk, Notifier& notifier, QObject* parent)
    : QThread(parent)
    , walk_(std::move(walk))
    , notifier_(notifier)
{}

void DdnsLineWalker::run()
{
    const auto count = static_cast<int>(walk_.lines.size());
    for (int i = 0; i < count && !isInterruptionRequested(); ++i)
        walkLine(DdnsLine::parse(walk_.lines.at(i)), ddnsLineLabel(i + 1, count));
    if (updatesSent_ == 0)
        outcome_ = fillObjects(Tarvel::localized("Global IP address %@ recorded."), {walk_.newAddress});
    else
        outcome_ = fillObjects(Tarvel::localized("Global IP address %@ sent: %@ of %@ updates succeeded."),
                               {walk_.newAddress, QString::number(updatesSucceeded_), QString::number(updatesSent_)});
}

void DdnsLineWalker::walkLine(const DdnsLine& line, const QString& label)
{
    switch (line.kind) {
    case DdnsLine::Kind::Blank:
        if (walk_.forced)
            notify(Tarvel::localized("Blank line"), label);
        break;
    case DdnsLine::Kind::Comment:
        if (walk_.forced)
            notify(Tarvel::localized("Comment out"), label);
        break;
    case DdnsLine::Kind::NoSeparator:
        if (walk_.forced)
            notify(Tarvel::localized("Invalid Parameter"), label);
        break;
    case DdnsLine::Kind::ValueDomain:
        sendUpdate(line);
        break;
    case DdnsLine::Kind::Confirm:
        notify(Tarvel::localized("Global IP Address changed."),
               fillObjects(Tarvel::localized("%@ -> %@"), {walk_.oldText, walk_.newAddress}));
        break;
    case DdnsLine::Kind::Malformed:
        if (walk_.forced)
            notify(fillObjects(Tarvel::localized("Some error occurred (%@)"), {line.firstPart}), label);
        break;
    }
}

void DdnsLineWalker::sendUpdate(const DdnsLine& line)
{
    // The fields go in as typed: the service expects them unencoded.
    const QString url =
        walk_.endpointBase + QLatin1String(ValueDomainEndpoint::kPath) + QLatin1Char('?') +
        fillObjects(QStringLiteral("d=%@&p=%@&h=%@&i=%@"), {line.domain, line.password, line.host, walk_.newAddress});
    const QString text = fillObjects(Tarvel::localized("%@ -> %@.%@"), {walk_.newAddress, line.host, line.domain});
    ++updatesSent_;
    TvlSendDdnsValueDomain(walk_.timeoutMs).sendDdnsProperty(url, [&](const QString& result) {
        // A request abandoned because the program quits is nobody's news.
        if (isInterruptionRequested())
            return;
        if (result == QString::fromUtf8(kUpdateSucceeded))
            ++updatesSucceeded_;
        QString title = localizedText(result);
        // A transport error's description is the one text that could echo the request.
        if (result.startsWith(QLatin1Char('[')))
            title.replace(line.password, QStringLiteral("…"));
        notify(title, text);
    });
}

void DdnsLineWalker::notify(const QString& title, const QString& text)
{
    notifier_.fireNotification(UserNotification{title, text, QString(), {}});
}
