// Reading the watched figures after a cycle, and the notification a firing rule sends.
#include "alerts/alert_monitor.h"

#include "net/notifier.h"
#include "toolkit/localization.h"

#include <QElapsedTimer>

#include <cmath>
#include <memory>

namespace {

QString holdText(qint64 seconds)
{
    // Units are not translated; whole minutes read better than hundreds of seconds.
    if (seconds >= 60 && seconds % 60 == 0)
        return QStringLiteral("%1 min").arg(seconds / 60);
    return QStringLiteral("%1 s").arg(seconds);
}

} // namespace

AlertMonitor::AlertMonitor(std::function<Notifier*()> notifier, Clock clock)
    : notifier_(std::move(notifier))
    , clock_(std::move(clock))
{}

AlertMonitor::Clock AlertMonitor::steadyClock()
{
    auto timer = std::make_shared<QElapsedTimer>();
    timer->start();
    return [timer] { return timer->elapsed(); };
}

void AlertMonitor::setRules(const QList<AlertRule>& rules)
{
    engine_.setRules(rules);
    watched_.fill(false);
    watching_ = false;
    for (const AlertRule& rule : rules) {
        if (rule.enabled) {
            watched_[alertFigureIndex(rule.figure)] = true;
            watching_ = true;
        }
    }
}

bool AlertMonitor::watches(ModuleId module) const
{
    for (const AlertFigureInfo& figure : alertFigures()) {
        if (figure.module == module && watched_[alertFigureIndex(figure.figure)])
            return true;
    }
    return false;
}

void AlertMonitor::cycleFinished(const InfoDict& info, const AlertFigureContext& context)
{
    if (!watching_)
        return;
    AlertReadings readings{};
    for (std::size_t i = 0; i < kAlertFigureCount; ++i) {
        if (watched_[i])
            readings[i] = readAlertFigure(alertFigures()[i].figure, info, context);
    }
    fired_.clear();
    engine_.evaluate(readings, clock_(), fired_);
    if (fired_.empty())
        return;
    Notifier* notifier = notifier_();
    if (notifier == nullptr)
        return;
    for (const AlertFiring& firing : fired_)
        notifier->fireNotification(notification(engine_.rules()[firing.rule], firing.value));
}

QString AlertMonitor::valueText(AlertFigure figure, double value)
{
    // A tenth only where it tells something: "0.4 KB/s", but "93 %" and "2048 KB/s".
    const bool tenths = std::abs(value) < 10 && value != std::round(value);
    return QStringLiteral("%1 %2").arg(QString::number(value, 'f', tenths ? 1 : 0),
                                       QString::fromUtf8(alertFigureInfo(figure).unit));
}

UserNotification AlertMonitor::notification(const AlertRule& rule, double value)
{
    const QString now = valueText(rule.figure, value);
    const QString threshold = valueText(rule.figure, rule.threshold);
    QString text;
    if (rule.holdSeconds > 0) {
        text =
            (rule.above ? Tarvel::localized("Now %1, over %2 for %3.") : Tarvel::localized("Now %1, under %2 for %3."))
                .arg(now, threshold, holdText(rule.holdSeconds));
    } else {
        text = (rule.above ? Tarvel::localized("Now %1, over %2.") : Tarvel::localized("Now %1, under %2."))
                   .arg(now, threshold);
    }
    return {Tarvel::localized("Alert: %1").arg(Tarvel::localized(alertFigureInfo(rule.figure).name)), text, {}, {}};
}
