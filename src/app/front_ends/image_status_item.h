// One status item kept as its latest picture and text, for writing to files.
#pragma once

#include "modules/status_bar.h"

#include <memory>

// The latest state of one item; shared with the bar, which forgets it once the item goes.
struct RenderedItem {
    QString moduleKey;
    QImage image;
    QString text;
};

class ImageStatusItem final : public StatusItem {
public:
    explicit ImageStatusItem(std::shared_ptr<RenderedItem> record)
        : record_(std::move(record))
    {}

    void setImage(const QImage& image, bool) override { record_->image = image; }
    void setText(const QString& text) override { record_->text = text; }
    // Nothing is clicked here; the caller draws the menu's graph itself.
    void setMenu(QMenu*) override {}

private:
    std::shared_ptr<RenderedItem> record_;
};
