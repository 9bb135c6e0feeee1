// A thin window along the top of the screen showing the status items side by side, for desktops
// without a system tray (or when asked for); a normal window under Wayland.
#pragma once

#include "modules/status_bar.h"

#include <QWidget>

#include <vector>

class BarItemWidget;

class BarWindowStatusBar final : public QWidget, public StatusBar {
    Q_OBJECT
public:
    // Height of the bar when the pictures are not taller, in points.
    static constexpr int kMinimumHeight = 20;
    // Gap between neighbouring pictures, in points.
    static constexpr int kItemSpacing = 8;

    explicit BarWindowStatusBar(QWidget* parent = nullptr);
    ~BarWindowStatusBar() override;

    // New items go to the left of the existing ones; the window shows itself with the first.
    std::unique_ptr<StatusItem> createItem(const QString& moduleKey) override;

private:
    void forgetItem(QObject* gone);
    // Spans the primary screen's top edge and packs the pictures against its right end.
    void layoutItems();

    // Left to right; children of this window, dropped from here as they are destroyed.
    std::vector<BarItemWidget*> items_;
};
