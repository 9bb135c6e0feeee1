// A host's row in the VNC menu: a menu item that carries the host's name and address.
#pragma once

#include <QAction>
#include <QString>

// Tags of the rows the host list adds, kept on the items' data like the standard items' tags.
enum VncMenuTag { FirstVncHostTag = 301, LastVncHostTag = 65534, OpenAllVncTag = 65535, FirstAddedVncTag = 300 };

class VNC_MenuItem final : public QAction {
    Q_OBJECT
public:
    // The tag goes on the item's data, where the menu's rebuild looks for it.
    VNC_MenuItem(const QString& title, int tag, QObject* parent);

    int tag() const { return data().toInt(); }
    const QString& serverName() const { return serverName_; }
    const QString& serverUrl() const { return serverUrl_; }
    void setServerName(const QString& name) { serverName_ = name; }
    void setServerUrl(const QString& url) { serverUrl_ = url; }

private:
    QString serverName_;
    QString serverUrl_;
};
