// The top tab: module switches and order, theme and colours, and the application's own options.
#include "modules/general/top_tab_view_controller.h"

#include "modules/general/metrics_keys.h"
#include "modules/general/top_tab_color_section.h"
#include "modules/general/top_tab_ddns_section.h"
#include "modules/general/top_tab_metrics_section.h"
#include "modules/general/top_tab_theme_section.h"
#include "modules/menu_module.h"
#include "modules/module_desktop_registry.h"
#include "modules/module_registry.h"
#include "preferences/element_order_list.h"
#include "preferences/login_item.h"
#include "prefs/module_switch.h"
#include "prefs/pref_keys.h"
#include "prefs/settings_store.h"
#include "toolkit/localization.h"
#include "toolkit/program_path.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QMessageBox>
#include <QPainter>
#include <QPointer>
#include <QSpinBox>
#include <QVBoxLayout>

#include <algorithm>

using namespace PrefKey;

namespace {

constexpr int kMaxRebootDays = 30;
// Between pictures in the preview, as a panel spaces its items.
constexpr double kPreviewSpacing = 8;

QGroupBox* group(const QString& title, QWidget* content, QWidget* parent)
{
    auto* box = new QGroupBox(title, parent);
    auto* layout = new QVBoxLayout(box);
    layout->addWidget(content);
    return box;
}

} // namespace

TopTabViewController::TopTabViewController(MenuModuleDelegate* delegate, SettingsStore& store,
                                           PrefNotificationCenter& center, QWidget* parent)
    : PreferenceTab(moduleSchema(ModuleId::General), store, center, parent)
    , delegate_(delegate)
    , modules_(new ElementOrderList())
    , theme_(new TopTabThemeSection())
    , colors_(new TopTabColorSection())
{
    // The window scrolls the page, so the page holds its sections directly.
    auto* layout = new QVBoxLayout(this);
    auto* modulesBox = new QWidget();
    auto* modulesLayout = new QVBoxLayout(modulesBox);
    modulesLayout->setContentsMargins(0, 0, 0, 0);
    auto* hint = new QLabel(Tarvel::localized("Drag to change the order in the menu bar."));
    hint->setEnabled(false);
    appIcon_ = new QCheckBox(Tarvel::localized("Show the Tarvel item"));
    barPreviewOn_ = new QCheckBox(Tarvel::localized("Preview the menu bar here"));
    barPreviewOn_->setObjectName(QLatin1String(TopHistgramPreview));
    barPreview_ = new QLabel();
    barPreview_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    barPreview_->setAutoFillBackground(true);
    modulesLayout->addWidget(modules_);
    modulesLayout->addWidget(hint);
    modulesLayout->addWidget(appIcon_);
    modulesLayout->addWidget(barPreviewOn_);
    modulesLayout->addWidget(barPreview_);
    layout->addWidget(group(Tarvel::localized("Modules"), modulesBox, this));
    layout->addWidget(group(Tarvel::localized("Theme"), theme_, this));
    layout->addWidget(group(Tarvel::localized("Colors"), colors_, this));
    layout->addWidget(group(Tarvel::localized("General"), buildOptions(), this));
    layout->addWidget(group(Tarvel::localized("Dynamic DNS"), buildDdns(), this));
    layout->addWidget(group(Tarvel::localized("Metrics"), buildMetrics(), this));
    layout->addStretch(1);

    connect(modules_, &ElementOrderList::entrySwitched, this, &TopTabViewController::moduleSwitched);
    connect(modules_, &ElementOrderList::orderChanged, this, &TopTabViewController::orderChanged);
    connect(appIcon_, &QCheckBox::toggled, this, [this](bool on) { storeBool(DisplayMyMenuIcon, on); });
    connect(barPreviewOn_, &QCheckBox::toggled, this, [this](bool on) {
        storeBool(TopHistgramPreview, on);
        drawBarPreview();
    });
    connect(theme_, &TopTabThemeSection::changeRequested, this, &TopTabViewController::post);
    connect(theme_, &TopTabThemeSection::saveRequested, this, [this] {
        if (delegate_ != nullptr)
            theme_->saveTheme(delegate_->currentTheme());
    });
    connect(colors_, &TopTabColorSection::changeRequested, this, &TopTabViewController::post);
    theme_->rebuildThemeMenus();
}

QWidget* TopTabViewController::buildOptions()
{
    auto* options = new QWidget();
    auto* form = new QFormLayout(options);
    rebootDays_ = new QSpinBox(options);
    rebootDays_->setRange(0, kMaxRebootDays);
    rebootDays_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    rebootDays_->setSpecialValueText(Tarvel::localized("Never"));
    form->addRow(Tarvel::localized("Reboot Tarvel regularly (days)"), rebootDays_);
    atStartup_ = new QCheckBox(Tarvel::localized("Display preferences at startup"), options);
    denyUpdate_ = new QCheckBox(Tarvel::localized("Never receive the update notification"), options);
    atLogin_ = new QCheckBox(Tarvel::localized("Start Tarvel at login"), options);
    // Named after their keys, for tests and accessibility tools.
    rebootDays_->setObjectName(QLatin1String(kRebootRegularlyDays));
    atStartup_->setObjectName(QLatin1String(DisplayTopWindowAtStartup));
    denyUpdate_->setObjectName(QLatin1String(DenyUpdateNotif));
    atLogin_->setObjectName(QLatin1String(AutoLaunchAtLogin));
    form->addRow(atStartup_);
    form->addRow(denyUpdate_);
    form->addRow(atLogin_);
    connect(rebootDays_, &QSpinBox::valueChanged, this, [this](int days) {
        if (loading())
            return;
        store().setInteger(kRebootRegularlyDays, days);
        commit();
    });
    connect(atStartup_, &QCheckBox::toggled, this, [this](bool on) { storeBool(DisplayTopWindowAtStartup, on); });
    connect(denyUpdate_, &QCheckBox::toggled, this, [this](bool on) { storeBool(DenyUpdateNotif, on); });
    connect(atLogin_, &QCheckBox::toggled, this, &TopTabViewController::loginChanged);
    return options;
}

QWidget* TopTabViewController::buildDdns()
{
    ddns_ = new TopTabDdnsSection();
    connect(ddns_, &TopTabDdnsSection::listEdited, this, [this](const QString& list) {
        store().setString(QLatin1String(DdnsPropertyString), list);
        commit();
    });
    connect(ddns_, &TopTabDdnsSection::runRequested, this, [this] {
        if (delegate_ == nullptr)
            return;
        delegate_->forcedExecutionDdns([section = QPointer(ddns_)](const QString& outcome) {
            if (section)
                section->showOutcome(outcome);
        });
    });
    return ddns_;
}

QWidget* TopTabViewController::buildMetrics()
{
    metrics_ = new TopTabMetricsSection();
    connect(metrics_, &TopTabMetricsSection::switched, this, [this](bool on) { storeBool(MetricsServeEnabled, on); });
    connect(metrics_, &TopTabMetricsSection::addressEdited, this, [this](const QString& address) {
        if (loading() || address == store().stringForKey(MetricsListenAddress))
            return;
        store().setString(QLatin1String(MetricsListenAddress), address);
        commit();
    });
    return metrics_;
}

void TopTabViewController::loadViews()
{
    loadModuleEnabled();
    appIcon_->setChecked(store().boolForKey(DisplayMyMenuIcon));
    barPreviewOn_->setChecked(store().boolForKey(TopHistgramPreview));
    drawBarPreview();
    rebootDays_->setValue(static_cast<int>(store().integerForKey(kRebootRegularlyDays)));
    atStartup_->setChecked(store().boolForKey(DisplayTopWindowAtStartup));
    denyUpdate_->setChecked(store().boolForKey(DenyUpdateNotif));
    atLogin_->setChecked(store().boolForKey(AutoLaunchAtLogin));
    colors_->showColors(allDefaults());
    ddns_->showList(store().stringForKey(DdnsPropertyString));
    metrics_->showSettings(store().boolForKey(MetricsServeEnabled), store().stringForKey(MetricsListenAddress));
    rebuildFontMenus();
}

void TopTabViewController::resetViews(int which)
{
    theme_->rebuildThemeMenus();
    PreferenceTab::resetViews(which);
}

void TopTabViewController::rebuildThemeMenus()
{
    theme_->rebuildThemeMenus();
}

void TopTabViewController::rebuildFontMenus()
{
    if (delegate_ != nullptr)
        theme_->rebuildFontMenus(delegate_->currentTheme());
}

void TopTabViewController::loadModuleEnabled()
{
    QList<ElementOrderList::Entry> entries;
    for (const QVariant& code : store().arrayForKey(TopItemSortArray)) {
        const auto id = moduleForSortCode(code.toLongLong());
        if (id)
            entries.append({code.toLongLong(),
                            moduleHasStatusItem(*id)
                                ? Tarvel::localized(moduleSchema(*id).prefName)
                                : Tarvel::localized(moduleSchema(*id).prefName) + QStringLiteral("  ") +
                                      Tarvel::localized("(not available on this system yet)"),
                            PrefFunctions::isModuleSwitchedOn(store(), moduleSchema(*id))});
    }
    modules_->setEntries(entries);
}

void TopTabViewController::setLiveHistory(const InfoDict& info)
{
    Q_UNUSED(info)
    drawBarPreview();
}

void TopTabViewController::drawBarPreview()
{
    barPreview_->setVisible(barPreviewOn_->isChecked());
    if (!barPreviewOn_->isChecked() || delegate_ == nullptr)
        return;
    const QList<QImage> images = delegate_->shownBarImages();
    double width = 0;
    double height = 0;
    qreal ratio = 1;
    for (const QImage& image : images) {
        const QSizeF points = image.deviceIndependentSize();
        width += points.width() + kPreviewSpacing;
        height = std::max(height, points.height());
        ratio = std::max(ratio, image.devicePixelRatio());
    }
    if (images.isEmpty()) {
        barPreview_->clear();
        return;
    }
    QImage strip((QSizeF(width + kPreviewSpacing, height) * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
    strip.setDevicePixelRatio(ratio);
    strip.fill(Qt::transparent);
    QPainter painter(&strip);
    double x = kPreviewSpacing;
    for (const QImage& image : images) {
        const QSizeF points = image.deviceIndependentSize();
        painter.drawImage(QRectF(QPointF(x, (height - points.height()) / 2), points), image);
        x += points.width() + kPreviewSpacing;
    }
    painter.end();
    barPreview_->setPixmap(QPixmap::fromImage(strip));
}

void TopTabViewController::moduleSwitched(qint64 code, bool on)
{
    const auto id = moduleForSortCode(code);
    if (!id || loading())
        return;
    PrefFunctions::setModuleSwitch(store(), moduleSchema(*id), on);
    // The module's own settings changed too, so every working dictionary is loaded again; the
    // items are built anew so that a returning module takes its place in the order.
    commit({{QLatin1String(NotifKey::ModuleDefaultReload), true}, {QLatin1String(NotifKey::ModuleAllocNow), true}});
}

void TopTabViewController::orderChanged(const QList<qint64>& order)
{
    if (loading())
        return;
    QVariantList stored;
    for (qint64 code : order)
        stored.append(code);
    store().setArray(TopItemSortArray, stored);
    // Items can only be placed by creating them again in the new order.
    commit({{QLatin1String(NotifKey::ModuleAllocNow), true}});
}

void TopTabViewController::storeBool(const char* key, bool on)
{
    if (loading())
        return;
    store().setBool(key, on);
    commit();
}

void TopTabViewController::loginChanged(bool on)
{
    if (loading())
        return;
    if (!LoginItem::setEnabled(on, Tarvel::programPath())) {
        QMessageBox::warning(this, Tarvel::localized("Start Tarvel at login"),
                             Tarvel::localized("The autostart entry could not be written:") + QLatin1Char('\n') +
                                 LoginItem::entryPath());
        const QSignalBlocker blocker(atLogin_);
        atLogin_->setChecked(!on);
        return;
    }
    storeBool(AutoLaunchAtLogin, on);
}
