// Keeps the status items' latest pictures and texts in memory and writes them as PNG files.
#pragma once

#include "modules/status_bar.h"

#include <QStringList>

#include <memory>
#include <vector>

struct RenderedItem;

class ImageStatusBar final : public StatusBar {
public:
    // New items go to the left of the existing ones, as in every other front end.
    std::unique_ptr<StatusItem> createItem(const QString& moduleKey) override;

    // The keys of the items alive, in bar order (left to right).
    QStringList moduleKeys() const;
    // The latest picture and text of an item; null and empty when there is no such item.
    QImage image(const QString& moduleKey) const;
    QString text(const QString& moduleKey) const;

    // Writes every item that has a picture to dir as <module>.png; false if any write failed.
    // The names written are added to written when it is given.
    bool writeAll(const QString& dir, QStringList* written = nullptr) const;
    // Writes image to dir as <name>.png, recording its pixel ratio as the file's resolution
    // (72 dots per inch at ratio 1) so that viewers show it at its size in points.
    static bool writePng(const QString& dir, const QString& name, const QImage& image);

private:
    std::shared_ptr<const RenderedItem> find(const QString& moduleKey) const;

    std::vector<std::weak_ptr<RenderedItem>> items_; // left to right
};
