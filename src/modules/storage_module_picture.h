// What the Disk and Volume pictures share: a set per disk or volume, all together in the menu.
#pragma once

#include "modules/sampled_module_picture.h"
#include "modules/storage_pictures.h"

#include <QSizeF>
#include <QString>

#include <vector>

// What differs between Disk and Volume only in its types: the settings and their builder, the
// picture and the samples.
template <class Settings, Settings (*readSettings)(const ModuleDefaults&), class Bar, class Sample>
class StorageModulePictureOf : public SampledModulePicture<Settings, readSettings, Sample> {
    using Base = SampledModulePicture<Settings, readSettings, Sample>;

public:
    static constexpr qint64 kMenuGraphWidth = 400;

protected:
    using Base::Base;

    // The bar's picture of sets, width wide at the bar's height, and its words.
    BarPicture barPicture(bool highlighted, qreal scale, const std::vector<StorageBarSet>& sets, double width,
                          int shownElements, const QString& words)
    {
        const double height = TvlClasses::retRootMenuHeight();
        bar_.redrawWithSize(QSizeF(width, height), TvlClasses::retStatusMenuInsets(shownElements), highlighted, true,
                            this->settings_.bar, this->resumeArray, sets);
        return BarPicture{bar_.image(scale), words};
    }

    QImage menuGraph(const Settings& settings, qreal scale) override
    {
        // The combined set, whatever the picture in the bar shows.
        menuBar_.redrawWithSize(QSizeF(static_cast<double>(kMenuGraphWidth), ModulePicture::kMenuGraphHeight),
                                TvlClasses::retMenuPullDownInsets(), false, true, settings, this->resumeArray,
                                {StorageBarSet{QString(), StoragePicture::Internal}});
        return menuBar_.image(scale);
    }

private:
    Bar bar_;
    Bar menuBar_;
};
