// A module's picture shown in its status item: drawn each cycle, marked while an alert fires.
#include "modules/picture_item.h"

#include "modules/module_registry.h"
#include "toolkit/alert_mark.h"

#include <QGuiApplication>

PictureItem::PictureItem(std::unique_ptr<ModulePicture> picture)
    : picture_(std::move(picture))
{}

PictureItem::~PictureItem() = default;

void PictureItem::initDrawStatusBar(StatusBar& bar)
{
    statusItem = bar.createItem(QString::fromLatin1(moduleSchema(moduleId()).moduleKey));
    refreshBar();
}

void PictureItem::refreshBar()
{
    if (!statusItem)
        return;
    std::optional<BarPicture> drawn = picture_->drawBar(menuOpened(), pictureScale());
    if (!drawn)
        return;
    shownImage_ = alerting_ ? TvlClasses::tvlMarkedForAlert(drawn->image) : drawn->image;
    statusItem->setImage(shownImage_, menuOpened());
    if (drawn->text)
        statusItem->setText(*drawn->text);
}

qreal PictureItem::pictureScale() const
{
    if (pictureScale_ > 0)
        return pictureScale_;
    return qGuiApp != nullptr ? qGuiApp->devicePixelRatio() : 1.0;
}

void PictureItem::setAlerting(bool alerting)
{
    if (alerting == alerting_)
        return;
    alerting_ = alerting;
    // Before the first picture there is nothing to mark: that one is drawn with the mark.
    if (!shownImage_.isNull())
        refreshBar();
}

std::unique_ptr<ModuleItem> createPictureItem(ModuleId id, MenuModuleDelegate* delegate)
{
    const ModuleDescriptor& descriptor = moduleDescriptor(id);
    if (descriptor.createPicture == nullptr)
        return nullptr;
    return std::make_unique<PictureItem>(descriptor.createPicture(delegate));
}
