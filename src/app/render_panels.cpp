// Drop-downs and preference tabs rendered from their widgets, at the picture scale of the render.
#include "app/render_panels.h"

#include "app/app_delegate.h"
#include "app/front_ends/desktop_parts.h"
#include "app/front_ends/image_status_bar.h"
#include "modules/menu_module.h"
#include "modules/module_registry.h"
#include "preferences/preferences_window.h"

#include <QCoreApplication>
#include <QMenu>
#include <QPainter>

#include <vector>

namespace {

QImage drawn(QWidget& widget, qreal scale)
{
    QImage image((QSizeF(widget.size()) * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    widget.render(&image);
    return image;
}

bool write(const QString& dir, const QString& name, const QImage& image, QStringList& written)
{
    if (!ImageStatusBar::writePng(dir, name, image))
        return false;
    written.append(name + QStringLiteral(".png"));
    return true;
}

} // namespace

namespace RenderPanels {

bool writeDropDowns(AppDelegate& delegate, const QString& dir, qreal scale, const std::function<void()>& waitForFigures,
                    QStringList& written)
{
    // All open at once, so that one wait fills them all: while a menu is open its module is
    // sampled every cycle, and its background details arrive a moment after.
    std::vector<std::pair<QString, QMenu*>> menus;
    for (const ModuleSchema* schema : allModuleSchemas()) {
        const MenuModule* module = menuModule(delegate, schema->id);
        if (module == nullptr || module->menu() == nullptr)
            continue;
        module->menu()->popup(QPoint(0, 0));
        menus.emplace_back(QLatin1String(schema->moduleKey), module->menu());
    }
    waitForFigures();
    bool allWritten = true;
    for (const auto& [key, menu] : menus) {
        if (!write(dir, key + QStringLiteral("-dropdown"), drawn(*menu, scale), written))
            allWritten = false;
    }
    for (auto it = menus.rbegin(); it != menus.rend(); ++it)
        it->second->hide();
    return allWritten;
}

bool writePreferences(AppDelegate& delegate, const QString& dir, qreal scale, QStringList& written)
{
    bool allWritten = true;
    for (const ModuleId id : {ModuleId::General, ModuleId::Cpu}) {
        delegate.openPreferenceTab(modulePreferenceTab(id));
        PreferencesWindow* window = preferencesWindow(delegate);
        if (window == nullptr)
            return false;
        // As it opens on a screen with room for it, whatever the size of the offscreen one.
        window->resize(PreferencesWindow::defaultSize());
        QCoreApplication::processEvents();
        const QString name = QStringLiteral("preferences-") + QLatin1String(moduleSchema(id).moduleKey);
        if (!write(dir, name, drawn(*window, scale), written))
            allWritten = false;
    }
    preferencesWindow(delegate)->close();
    return allWritten;
}

} // namespace RenderPanels
