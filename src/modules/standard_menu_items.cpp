// Builds the standard menu items with their theme icons.
#include "modules/standard_menu_items.h"

#include "modules/desktop_tools.h"
#include "prefs/pref_keys.h"
#include "toolkit/localization.h"

#include <QAction>
#include <QIcon>
#include <QMenu>
#include <QPixmap>

#include <algorithm>

namespace {

const char* iconKey(int tag)
{
    switch (tag) {
    case OpenPrefTag:
        return "O01";
    case OpenAmonTag:
        return "O11";
    case OpenCnslTag:
        return "O12";
    case OpenTmnlTag:
        return "O13";
    default:
        return nullptr;
    }
}

void setIcon(QAction* action, const ModuleDefaults& defaults, int tag)
{
    const ThemePicture picture = defaults.picture(QString::fromLatin1(iconKey(tag)));
    if (picture.image.isNull())
        return;
    QImage image = picture.image;
    image.setDevicePixelRatio(image.width() / std::max(1.0, picture.size.width()));
    action->setIcon(QIcon(QPixmap::fromImage(image)));
}

QAction* addItem(QMenu* menu, const ModuleDefaults& defaults, const QString& title, int tag,
                 std::function<void()> action)
{
    QAction* item = menu->addAction(title);
    item->setData(tag);
    setIcon(item, defaults, tag);
    QObject::connect(item, &QAction::triggered, menu, [action = std::move(action)] { action(); });
    return item;
}

QAction* addToolItem(QMenu* menu, const ModuleDefaults& defaults, int tag, DesktopTool tool)
{
    const auto found = DesktopTools::find(tool);
    if (!found)
        return nullptr;
    return addItem(menu, defaults, DesktopTools::title(tool, found), tag, [tool] { DesktopTools::launch(tool); });
}

} // namespace

namespace GeneralFunctions {

QAction* retOpenPrefMenuItem(QMenu* menu, const ModuleDefaults& defaults, std::function<void()> action)
{
    const QString title = Tarvel::localized("Open \"%@\" Preference")
                              .replace(QLatin1String("%@"), defaults.stringValue(PrefKey::PrefName));
    return addItem(menu, defaults, title, OpenPrefTag, std::move(action));
}

QAction* retOpenAmonMenuItem(QMenu* menu, const ModuleDefaults& defaults)
{
    return addToolItem(menu, defaults, OpenAmonTag, DesktopTool::SystemMonitor);
}

QAction* retOpenCnslMenuItem(QMenu* menu, const ModuleDefaults& defaults)
{
    return addToolItem(menu, defaults, OpenCnslTag, DesktopTool::LogViewer);
}

QAction* retOpenTmnlMenuItem(QMenu* menu, const ModuleDefaults& defaults)
{
    return addToolItem(menu, defaults, OpenTmnlTag, DesktopTool::Terminal);
}

void addStandardMenuItems(QMenu* menu, const ModuleDefaults& defaults, bool amon, bool cnsl, bool tmnl,
                          std::function<void()> openTab)
{
    retOpenPrefMenuItem(menu, defaults, std::move(openTab));
    if (amon)
        retOpenAmonMenuItem(menu, defaults);
    if (cnsl)
        retOpenCnslMenuItem(menu, defaults);
    if (tmnl)
        retOpenTmnlMenuItem(menu, defaults);
}

} // namespace GeneralFunctions

namespace TvlClasses {

void checkBaseMenuItems(QMenu* menu, const ModuleDefaults& defaults)
{
    for (QAction* action : menu->actions()) {
        const int tag = action->data().toInt();
        if (iconKey(tag) != nullptr)
            setIcon(action, defaults, tag);
    }
}

} // namespace TvlClasses
