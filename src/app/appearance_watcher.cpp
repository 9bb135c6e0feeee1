// The desktop's light or dark preference from the settings portal, or from the palette.
#include "app/appearance_watcher.h"

#include <QDBusConnection>
#include <QDBusInterface>
#include <QDBusReply>
#include <QDBusVariant>
#include <QEvent>
#include <QGuiApplication>
#include <QPalette>

namespace {

const QString kPortalService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString kPortalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString kPortalInterface = QStringLiteral("org.freedesktop.portal.Settings");
const QString kAppearanceGroup = QStringLiteral("org.freedesktop.appearance");
const QString kColorSchemeKey = QStringLiteral("color-scheme");
constexpr int kPortalTimeoutMs = 500;

// Older portals wrap the answer of Read in one more variant.
uint unwrap(QVariant value)
{
    while (value.canConvert<QDBusVariant>() && value.userType() == qMetaTypeId<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value.toUInt();
}

} // namespace

AppearanceWatcher::AppearanceWatcher(QObject* parent)
    : QObject(parent)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (bus.isConnected()) {
        portalDark_ = readPortal();
        bus.connect(kPortalService, kPortalPath, kPortalInterface, QStringLiteral("SettingChanged"), this,
                    SLOT(portalSettingChanged(QString, QString, QDBusVariant)));
    }
    if (QCoreApplication::instance() != nullptr)
        QCoreApplication::instance()->installEventFilter(this);
    dark_ = portalDark_.value_or(darkFromPalette(QGuiApplication::palette()));
}

std::optional<bool> AppearanceWatcher::darkFromColorScheme(uint value)
{
    if (value == 1)
        return true;
    if (value == 2)
        return false;
    return std::nullopt;
}

bool AppearanceWatcher::darkFromPalette(const QPalette& palette)
{
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

std::optional<bool> AppearanceWatcher::readPortal() const
{
    QDBusInterface portal(kPortalService, kPortalPath, kPortalInterface, QDBusConnection::sessionBus());
    if (!portal.isValid())
        return std::nullopt;
    portal.setTimeout(kPortalTimeoutMs);
    QDBusReply<QDBusVariant> reply = portal.call(QStringLiteral("ReadOne"), kAppearanceGroup, kColorSchemeKey);
    if (!reply.isValid())
        reply = portal.call(QStringLiteral("Read"), kAppearanceGroup, kColorSchemeKey);
    if (!reply.isValid())
        return std::nullopt;
    return darkFromColorScheme(unwrap(reply.value().variant()));
}

void AppearanceWatcher::portalSettingChanged(const QString& group, const QString& key, const QDBusVariant& value)
{
    if (group != kAppearanceGroup || key != kColorSchemeKey)
        return;
    portalDark_ = darkFromColorScheme(unwrap(value.variant()));
    update();
}

bool AppearanceWatcher::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == QCoreApplication::instance() && event->type() == QEvent::ApplicationPaletteChange && !portalDark_)
        update();
    return QObject::eventFilter(watched, event);
}

void AppearanceWatcher::update()
{
    const bool dark = portalDark_.value_or(darkFromPalette(QGuiApplication::palette()));
    if (dark == dark_)
        return;
    dark_ = dark;
    Q_EMIT appearanceChanged(dark);
}
