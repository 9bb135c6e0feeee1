// Keeps the status items' latest pictures and texts in memory and writes them as PNG files.
#include "app/front_ends/image_status_bar.h"

#include "app/front_ends/image_status_item.h"

#include <QDir>

#include <cmath>

namespace {

constexpr double kDotsPerMeterAtRatioOne = 72.0 / 0.0254;

} // namespace

std::unique_ptr<StatusItem> ImageStatusBar::createItem(const QString& moduleKey)
{
    auto record = std::make_shared<RenderedItem>(RenderedItem{moduleKey, {}, {}});
    items_.insert(items_.begin(), record);
    return std::make_unique<ImageStatusItem>(std::move(record));
}

QStringList ImageStatusBar::moduleKeys() const
{
    QStringList keys;
    for (const auto& weak : items_)
        if (const auto item = weak.lock())
            keys.append(item->moduleKey);
    return keys;
}

QImage ImageStatusBar::image(const QString& moduleKey) const
{
    const auto item = find(moduleKey);
    return item ? item->image : QImage();
}

QString ImageStatusBar::text(const QString& moduleKey) const
{
    const auto item = find(moduleKey);
    return item ? item->text : QString();
}

bool ImageStatusBar::writeAll(const QString& dir, QStringList* written) const
{
    bool allWritten = true;
    for (const auto& weak : items_) {
        const auto item = weak.lock();
        if (!item || item->image.isNull())
            continue;
        const bool ok = writePng(dir, item->moduleKey, item->image);
        if (ok && written != nullptr)
            written->append(item->moduleKey + QStringLiteral(".png"));
        allWritten = ok && allWritten;
    }
    return allWritten;
}

bool ImageStatusBar::writePng(const QString& dir, const QString& name, const QImage& image)
{
    if (image.isNull() || !QDir().mkpath(dir))
        return false;
    QImage stamped = image;
    const int dotsPerMeter = static_cast<int>(std::lround(kDotsPerMeterAtRatioOne * image.devicePixelRatio()));
    stamped.setDotsPerMeterX(dotsPerMeter);
    stamped.setDotsPerMeterY(dotsPerMeter);
    return stamped.save(QDir(dir).filePath(name + QStringLiteral(".png")), "PNG");
}

std::shared_ptr<const RenderedItem> ImageStatusBar::find(const QString& moduleKey) const
{
    for (const auto& weak : items_) {
        auto item = weak.lock();
        if (item && item->moduleKey == moduleKey)
            return item;
    }
    return nullptr;
}
