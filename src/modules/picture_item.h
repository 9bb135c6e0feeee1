// A status item that shows its module's picture and words, with no drop-down behind it.
#pragma once

#include "modules/module_item.h"
#include "modules/module_picture.h"

#include <memory>

// What a render without the widget toolkit shows; the desktop's MenuModule adds the menu to it.
class PictureItem : public ModuleItem {
public:
    explicit PictureItem(std::unique_ptr<ModulePicture> picture);
    ~PictureItem() override;

    ModuleId moduleId() const override { return picture_->moduleId(); }
    void setMyDefaults(const ModuleDefaults& defaults) override { picture_->setMyDefaults(defaults); }
    const ModuleDefaults& defaults() const { return picture_->defaults(); }
    void setHistory(const InfoDict& info) override { picture_->setHistory(info); }
    void setStorageDescriptions(const DiskBaseDict& disks, std::shared_ptr<const VolumeBaseDict> volumes) override
    {
        picture_->setStorageDescriptions(disks, std::move(volumes));
    }
    void setPictureScale(qreal scale) override { pictureScale_ = scale; }
    // Creates the status item and shows the picture there is.
    void initDrawStatusBar(StatusBar& bar) override;
    void cycleStatusMenu() override { refreshBar(); }
    void refreshBar() final;
    void resetAndRefreshBar() override { refreshBar(); }
    bool menuOpened() const override { return false; }
    void setMenuItemRefresh(bool refresh) override { Q_UNUSED(refresh) }
    void resetMenuNowCount() override {}
    const QImage& shownImage() const override { return shownImage_; }
    // Told every cycle; the picture is drawn again only when the answer changes.
    void setAlerting(bool alerting) override;
    bool alerting() const { return alerting_; }
    void menuAutoClose() override {}
    QImage menuGraphImage() override { return picture_->drawMenuGraph(pictureScale()); }

    StatusItem* item() const { return statusItem.get(); }

protected:
    ModulePicture& picture() const { return *picture_; }
    qreal pictureScale() const;

    std::unique_ptr<StatusItem> statusItem;

private:
    std::unique_ptr<ModulePicture> picture_;
    qreal pictureScale_ = 0; // 0: the screen's
    QImage shownImage_;
    bool alerting_ = false;
};

// The item of a module that has one; none otherwise.
std::unique_ptr<ModuleItem> createPictureItem(ModuleId id, MenuModuleDelegate* delegate);
