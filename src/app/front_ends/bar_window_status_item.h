// One status item of the bar window: a handle on its picture widget, which the window owns.
#pragma once

#include "modules/status_bar.h"

#include <QPointer>

class BarItemWidget;

class BarWindowStatusItem final : public StatusItem {
public:
    explicit BarWindowStatusItem(BarItemWidget* widget);
    // Takes the picture out of the bar.
    ~BarWindowStatusItem() override;

    void setImage(const QImage& image, bool templated) override;
    void setText(const QString& text) override;
    void setMenu(QMenu* menu) override;

private:
    QPointer<BarItemWidget> widget_;
};
