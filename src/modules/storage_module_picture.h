// What the Disk and Volume pictures share: a set of elements per disk or volume in the bar, and
// every disk or volume together in the in-menu graph.
#pragma once

#include "collect/history.h"
#include "modules/module_picture.h"
#include "modules/module_settings.h"
#include "modules/storage_pictures.h"

#include <QSizeF>
#include <QString>

#include <vector>

// What differs between Disk and Volume only in its types: the settings and their builder, the
// picture and the samples.
template <class Settings, Settings (*readSettings)(const ModuleDefaults&), class Bar, class Sample>
class StorageModulePictureOf : public ModulePicture {
public:
    static constexpr qint64 kMenuGraphWidth = 400;
    static constexpr double kMenuGraphHeight = 20;

    void setResumeArray(const History<Sample>& history) { resumeArray = history; }
    const History<Sample>& history() const { return resumeArray; }
    const ModuleSettings<Settings>& settings() const { return settings_; }

    QImage drawMenuGraph(qreal scale) override { return menuGraph(settings_.menu, scale); }
    QImage drawOpenMenuGraph(qreal scale) override { return menuGraph(settings_.openMenu, scale); }
    void keepForOpenMenu() override { settings_.keepForOpenMenu(); }

protected:
    using ModulePicture::ModulePicture;

    void settingsChanged() override { settings_.read(readSettings, myDefaults, withMenuLayout()); }
    // The bar's picture of sets, width wide at the bar's height, and its words.
    BarPicture barPicture(bool highlighted, qreal scale, const std::vector<StorageBarSet>& sets, double width,
                          int shownElements, const QString& words)
    {
        const double height = TvlClasses::retRootMenuHeight();
        bar_.redrawWithSize(QSizeF(width, height), TvlClasses::retStatusMenuInsets(shownElements), highlighted, true,
                            settings_.bar, resumeArray, sets);
        return BarPicture{bar_.image(scale), words};
    }

    ModuleSettings<Settings> settings_;
    History<Sample> resumeArray;

private:
    QImage menuGraph(const Settings& settings, qreal scale)
    {
        // The combined set, whatever the picture in the bar shows.
        menuBar_.redrawWithSize(QSizeF(static_cast<double>(kMenuGraphWidth), kMenuGraphHeight),
                                TvlClasses::retMenuPullDownInsets(), false, true, settings, resumeArray,
                                {StorageBarSet{QString(), StoragePicture::Internal}});
        return menuBar_.image(scale);
    }

    Bar bar_;
    Bar menuBar_;
};
