// The shared status-item life cycle: creation, menu opening and closing, per-tick redraws.
#include "modules/menu_module.h"

#include "history/history_reader.h"
#include "modules/history_figures.h"
#include "modules/menu_history_graph.h"
#include "modules/module_registry.h"

#include <QActionEvent>
#include <QCoreApplication>
#include <QLabel>
#include <QMenu>
#include <QScreen>
#include <QWidgetAction>

#include <algorithm>

MenuModule::MenuModule(MenuModuleDelegate* delegate, std::unique_ptr<ModulePicture> picture, QObject* parent)
    : QObject(parent)
    , PictureItem(std::move(picture))
    , myDelegate(delegate)
{
    setObjectName(QString::fromLatin1(moduleSchema(moduleId()).moduleKey));
}

MenuModule::~MenuModule()
{
    // The item goes first, so no front end is left pointing at the menu.
    statusItem.reset();
    // The menu tells its watchers while it is already half destroyed (a QWidget no longer a
    // QMenu): let go of it before, so that neither the filter nor a slot looks at it as one.
    if (QMenu* menu = statusMenu.data()) {
        statusMenu = nullptr;
        menu->removeEventFilter(this);
        disconnect(menu, nullptr, this, nullptr);
        delete menu;
    }
}

void MenuModule::initDrawStatusBar(StatusBar& bar)
{
    // Parentless: a menu is a top-level window; the module deletes it.
    statusMenu = new QMenu();
    connect(statusMenu, &QMenu::aboutToShow, this, &MenuModule::menuWillOpen);
    connect(statusMenu, &QMenu::aboutToHide, this, &MenuModule::menuDidClose);
    statusMenu->installEventFilter(this);
    statusItem = bar.createItem(objectName());
    statusItem->setMenu(statusMenu);
    drawBaseStatusBar();
}

void MenuModule::cycleStatusMenu()
{
    refreshBar();
    if (menuOpened_)
        redrawStatusItem();
}

void MenuModule::menuWillOpen()
{
    if (menuItemRefresh) {
        menuItemRefresh = false;
        drawBaseStatusBar();
    }
    menuOpened_ = true;
    refreshBar();
    picture().keepForOpenMenu();
    prepareMenuOpening();
    redrawStatusItem();
    // The panels were just filled: the menu is measured from them, not from the last opening.
    fitMenuToContent();
}

void MenuModule::menuDidClose()
{
    menuOpened_ = false;
    if (historyGraph_ != nullptr)
        historyGraph_->menuClosed();
    if (statusMenu)
        statusMenu->setMinimumWidth(0);
    refreshBar();
}

bool MenuModule::eventFilter(QObject* watched, QEvent* event)
{
    // A panel whose size hint changed asks its parent, the menu, to lay it out again.
    if (watched == statusMenu && event->type() == QEvent::LayoutRequest && statusMenu->isVisible())
        fitMenuToContent();
    return QObject::eventFilter(watched, event);
}

void MenuModule::fitMenuToContent()
{
    if (!statusMenu || statusMenu->actions().isEmpty())
        return;
    const bool shown = statusMenu->isVisible();
    if (shown)
        statusMenu->setMinimumWidth(statusMenu->width());
    QActionEvent changed(QEvent::ActionChanged, statusMenu->actions().constFirst());
    QCoreApplication::sendEvent(statusMenu, &changed);
    const QScreen* screen = statusMenu->screen();
    if (!shown || screen == nullptr)
        return;
    const QRect area = screen->availableGeometry();
    QRect frame = statusMenu->geometry();
    frame.moveRight(std::min(frame.right(), area.right()));
    frame.moveBottom(std::min(frame.bottom(), area.bottom()));
    frame.moveLeft(std::max(frame.left(), area.left()));
    frame.moveTop(std::max(frame.top(), area.top()));
    if (frame.topLeft() != statusMenu->pos())
        statusMenu->move(frame.topLeft());
}

void MenuModule::openTab()
{
    if (myDelegate)
        myDelegate->openPreferenceTab(modulePreferenceTab(moduleId()));
}

void MenuModule::menuAutoClose()
{
    if (!menuOpened())
        return;
    if (statusMenu)
        statusMenu->close();
    // A front end that shows the menu its own way may not report the close.
    if (menuOpened())
        menuDidClose();
}

void MenuModule::addHistoryChoice()
{
    HistoryReader* reader = myDelegate != nullptr ? myDelegate->historyReader() : nullptr;
    const QString key = historyModuleKey(moduleId());
    if (reader == nullptr || key.isEmpty() || !statusMenu)
        return;
    if (historyGraph_ == nullptr) {
        historyGraph_ = new MenuHistoryGraph(*reader, key, this);
        connect(historyGraph_, &MenuHistoryGraph::changed, this, [this] {
            if (menuOpened_)
                redrawStatusItem();
        });
    }
    auto* action = new QWidgetAction(statusMenu);
    action->setDefaultWidget(historyGraph_->makeChoice());
    statusMenu->addAction(action);
}

bool MenuModule::showHistoryGraph(QLabel* graph)
{
    if (historyGraph_ == nullptr || graph == nullptr)
        return false;
    // A past range is read only for a menu someone is looking at.
    if (!menuOpened_)
        return historyGraph_->range() != HistoryRange::Live;
    const QImage image =
        historyGraph_->image(graph->size(), pictureScale(), graph->palette().color(QPalette::WindowText));
    if (image.isNull())
        return false;
    graph->setPixmap(QPixmap::fromImage(image));
    return true;
}

QLabel* MenuModule::addMenuGraph(const char* widthKey)
{
    auto* action = new QWidgetAction(statusMenu);
    auto* graph = new QLabel();
    graph->setFixedSize(static_cast<int>(picture().menuLayout().intValue(QLatin1String(widthKey))),
                        static_cast<int>(ModulePicture::kMenuGraphHeight));
    graph->setContentsMargins(0, 0, 0, 0);
    action->setDefaultWidget(graph);
    statusMenu->addAction(action);
    return graph;
}

void MenuModule::showOpenMenuGraph(QLabel* graph)
{
    if (graph != nullptr && menuOpened_ && !showHistoryGraph(graph))
        graph->setPixmap(QPixmap::fromImage(picture().drawOpenMenuGraph(pictureScale())));
}
