// One status item shown as a system tray icon.
#pragma once

#include "modules/status_bar.h"

#include <QImage>
#include <QPointer>

class QMenu;
class QSystemTrayIcon;

class TrayStatusItem final : public StatusItem {
public:
    // The icon is a child of owner, so it goes when the whole tray front end goes.
    TrayStatusItem(const QString& moduleKey, QObject* owner);
    ~TrayStatusItem() override;

    void setImage(const QImage& image, bool templated) override;
    void setText(const QString& text) override;
    void setMenu(QMenu* menu) override;

private:
    QPointer<QSystemTrayIcon> icon_;
    QPointer<QMenu> menu_;
    QImage shownImage_;
};
