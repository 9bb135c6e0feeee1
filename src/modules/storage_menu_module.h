// What the Disk and Volume status items share: the menu's frame, its graph and the redraws.
#pragma once

#include "collect/history.h"
#include "modules/menu_module.h"
#include "modules/module_settings.h"
#include "modules/storage_pictures.h"

#include <QSizeF>
#include <QString>

#include <vector>

class QLabel;

// Both menus show every disk or volume together in one graph, 400 points wide, above a panel
// of blocks; both pictures draw a set of elements per disk or volume.
class StorageMenuModule : public MenuModule {
    Q_OBJECT
public:
    bool checkcMenuOpened() const { return menuOpened(); }

protected:
    static constexpr qint64 kMenuGraphWidth = 400;
    static constexpr double kMenuGraphHeight = 20;

    StorageMenuModule(MenuModuleDelegate* delegate, ModuleId id, QObject* parent);

    // The standard items (switched on by the three settings), Open Disk Utility where there is
    // one, and the graph.
    void addBaseItems(const char* amonKey, const char* cnslKey, const char* tmnlKey, const ThemePicture& utilityIcon);
    // The panel below the graph; the menu owns it.
    void addPanel(QWidget* panel);

    // The graph and the figures are drawn only for a menu that is shown.
    void redrawStatusItem() final;
    // The graph with the settings of the menu's opening.
    virtual QImage openMenuGraph() = 0;
    virtual void replacePanelData() = 0;

    // Shows bar, drawn for sets width wide at the bar's height, and words for front ends without
    // pictures.
    template <class Bar, class Settings, class History>
    void showStoragePicture(Bar& bar, const Settings& settings, const History& history,
                            const std::vector<StorageBarSet>& sets, double width, int shownElements,
                            const QString& words);
    // Draws bar as the menu's graph: every disk or volume together.
    template <class Bar, class Settings, class History>
    QImage drawStorageMenuGraph(Bar& bar, const Settings& settings, const History& history);

private:
    QLabel* menuGraph_ = nullptr; // owned by the menu through its widget action
};

// What differs between Disk and Volume only in its types: the settings and their builder, the
// picture, the samples, and the panel of blocks.
template <class Settings, Settings (*readSettings)(const ModuleDefaults&), class Bar, class Sample, class Panel>
class StorageMenuModuleOf : public StorageMenuModule {
public:
    void setResumeArray(const History<Sample>& history) { resumeArray = history; }
    // The panel of blocks; none before the menu is built.
    Panel* controller() const { return panel_; }

protected:
    using StorageMenuModule::StorageMenuModule;

    void settingsChanged() override { settings_.read(readSettings, myDefaults, withMenuLayout()); }
    void prepareMenuOpening() override { settings_.keepForOpenMenu(); }
    QImage drawMenuGraph() override { return drawStorageMenuGraph(menuBar_, settings_.menu, resumeArray); }
    QImage openMenuGraph() override { return drawStorageMenuGraph(menuBar_, settings_.openMenu, resumeArray); }
    void replacePanelData() override
    {
        if (panel_ != nullptr)
            panel_->replaceData(resumeArray);
    }
    // Shows the bar's picture of sets, width wide, and its words.
    void showPicture(const std::vector<StorageBarSet>& sets, double width, int shownElements, const QString& words)
    {
        showStoragePicture(bar_, settings_.bar, resumeArray, sets, width, shownElements, words);
    }

    ModuleSettings<Settings> settings_;
    History<Sample> resumeArray;
    Panel* panel_ = nullptr; // owned by the menu through its widget action

private:
    Bar bar_;
    Bar menuBar_;
};

template <class Bar, class Settings, class History>
void StorageMenuModule::showStoragePicture(Bar& bar, const Settings& settings, const History& history,
                                           const std::vector<StorageBarSet>& sets, double width, int shownElements,
                                           const QString& words)
{
    const double height = TvlClasses::retRootMenuHeight();
    bar.redrawWithSize(QSizeF(width, height), TvlClasses::retStatusMenuInsets(shownElements), menuOpened(), true,
                       settings, history, sets);
    showImage(bar.image(pictureScale()));
    statusItem->setText(words);
}

template <class Bar, class Settings, class History>
QImage StorageMenuModule::drawStorageMenuGraph(Bar& bar, const Settings& settings, const History& history)
{
    // The combined set, whatever the picture in the bar shows.
    bar.redrawWithSize(QSizeF(static_cast<double>(kMenuGraphWidth), kMenuGraphHeight),
                       TvlClasses::retMenuPullDownInsets(), false, true, settings, history,
                       {StorageBarSet{QString(), StoragePicture::Internal}});
    return bar.image(pictureScale());
}
