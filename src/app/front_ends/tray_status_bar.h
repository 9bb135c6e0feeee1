// The status items as system tray icons: StatusNotifierItem on D-Bus desktops, XEmbed elsewhere.
#pragma once

#include "modules/status_bar.h"

#include <QObject>

class TrayStatusBar final : public QObject, public StatusBar {
    Q_OBJECT
public:
    explicit TrayStatusBar(QObject* parent = nullptr);

    std::unique_ptr<StatusItem> createItem(const QString& moduleKey) override;
    // As a balloon from the first icon that is shown.
    void showMessage(const QString& title, const QString& text) override;

    // Whether a tray host is running now; icons made without one would never be seen.
    static bool isAvailable();
};
