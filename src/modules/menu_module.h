// What every desktop status item adds to its picture: the drop-down menu and its open state.
#pragma once

#include "modules/menu_module_delegate.h"
#include "modules/module_picture.h"
#include "modules/picture_item.h"
#include "modules/status_bar.h"

#include <QMenu>
#include <QObject>
#include <QPointer>

#include <memory>

class MenuHistoryGraph;
class QLabel;

class MenuModule : public QObject, public PictureItem {
    Q_OBJECT
public:
    MenuModule(MenuModuleDelegate* delegate, std::unique_ptr<ModulePicture> picture, QObject* parent = nullptr);
    ~MenuModule() override;

    // Creates the menu and the status item, then builds the menu's items.
    void initDrawStatusBar(StatusBar& bar) override;
    void cycleStatusMenu() override;

    bool menuOpened() const override { return menuOpened_; }
    void setMenuItemRefresh(bool refresh) override { menuItemRefresh = refresh; }
    QMenu* menu() const { return statusMenu; }

    void menuAutoClose() override;

    // Drives the open state as the menu would; the front ends' menus call these through signals.
    void menuWillOpen();
    void menuDidClose();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

    // (Re)builds the menu's items.
    virtual void drawBaseStatusBar() = 0;
    // Redraws what the open menu shows.
    virtual void redrawStatusItem() {}
    // Extra work when the menu opens, before its contents are redrawn (the graph has already
    // kept the settings of this moment).
    virtual void prepareMenuOpening() {}

    void openTab();
    // Adds the graph's range choice (the live samples or a past hour, day or week) to the
    // menu, just above the graph; nothing where no long-term history is kept.
    void addHistoryChoice();
    // Draws the chosen past range into the graph; false while the live samples are chosen.
    bool showHistoryGraph(QLabel* graph);
    // Adds the in-menu graph's row, as wide as the menu layout's widthKey says; the menu owns it.
    QLabel* addMenuGraph(const char* widthKey);
    // Shows the open menu's graph: the chosen past range, or the live samples.
    void showOpenMenuGraph(QLabel* graph);

    MenuModuleDelegate* myDelegate;
    QPointer<QMenu> statusMenu;
    bool menuItemRefresh = false;

private:
    // Measures the menu's rows again after a panel in it changed size: the menu itself only
    // does so when an item changes. An open menu grows into the screen but does not narrow
    // while it is looked at, so its edge does not jump with every tick's figures.
    void fitMenuToContent();

    bool menuOpened_ = false;
    MenuHistoryGraph* historyGraph_ = nullptr; // a child, made with the first choice row
};
