// The traffic panel of the Network menu: now, average, peak and since boot, each way; the
// global address and the network location.
#pragma once

#include "collect/history.h"
#include "collect/network_sample.h"
#include "modules/network/network_panel_rows.h"
#include "modules/network/network_picture_settings.h"

#include <QWidget>

#include <array>

class QLabel;

class Network_Current final : public QWidget {
    Q_OBJECT
public:
    explicit Network_Current(QWidget* parent = nullptr);

    void replaceData(const NetworkPictureSettings& settings, const History<NetworkSample>& resumeArray);
    void setLocation(const QString& location);
    // The machine's address as the internet sees it; empty until it has been looked up.
    void setGlobalAddress(const QString& address);

    const NetworkPanelFigures& figures() const { return figures_; }
    QString locationText() const;

private:
    // Rows now, average, peak, since boot; columns upload, download.
    std::array<std::array<QLabel*, 2>, 4> cells_{};
    QLabel* globalAddress_ = nullptr;
    QLabel* location_ = nullptr;
    NetworkPanelFigures figures_;
};
