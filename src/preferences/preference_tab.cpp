// Storing and posting for every preferences tab.
#include "preferences/preference_tab.h"

#include "alerts/alert_figure.h"
#include "preferences/alert_editor.h"
#include "prefs/pref_notification.h"
#include "prefs/settings_store.h"

PreferenceTab::PreferenceTab(const ModuleSchema& schema, SettingsStore& store, PrefNotificationCenter& center,
                             QWidget* parent)
    : QWidget(parent)
    , schema_(schema)
    , store_(store)
    , center_(center)
{
    setObjectName(QString::fromLatin1(schema.moduleKey));
}

void PreferenceTab::setMyDefaults(const AllModuleDefaults& all, const QVariantMap& theme)
{
    all_ = all;
    theme_ = theme;
    resetViews(0);
    if (alerts_ != nullptr)
        alerts_->load();
}

AlertEditor* PreferenceTab::alertsSection()
{
    if (alerts_ == nullptr && moduleHasAlertFigures(schema_.id)) {
        alerts_ = new AlertEditor(schema_.id, store_, this);
        connect(alerts_, &AlertEditor::rulesChanged, this, [this] { commit(); });
        alerts_->load();
    }
    return alerts_;
}

void PreferenceTab::resetViews(int which)
{
    Q_UNUSED(which)
    ++loading_;
    loadViews();
    --loading_;
}

bool PreferenceTab::commit(const QVariantMap& userInfo)
{
    const bool saved = store_.synchronize();
    if (saved)
        Q_EMIT storeSaved();
    else
        Q_EMIT storeFailed();
    post(userInfo);
    return saved;
}

void PreferenceTab::post(const QVariantMap& userInfo)
{
    postAs(schema_, userInfo);
}

void PreferenceTab::postAs(const ModuleSchema& schema, const QVariantMap& userInfo)
{
    center_.post(QString::fromLatin1(schema.notification), userInfo);
}
