// The top preferences tab: which modules show and in what order, theme, font, colours, start-up.
#pragma once

#include "preferences/preference_tab.h"

class ElementOrderList;
class MenuModuleDelegate;
class QCheckBox;
class QLabel;
class QSpinBox;
class TopTabColorSection;
class TopTabDdnsSection;
class TopTabMetricsSection;
class TopTabThemeSection;

class TopTabViewController : public PreferenceTab {
    Q_OBJECT
public:
    TopTabViewController(MenuModuleDelegate* delegate, SettingsStore& store, PrefNotificationCenter& center,
                         QWidget* parent = nullptr);

    void resetViews(int which) override;
    void rebuildThemeMenus() override;
    void rebuildFontMenus() override;
    void loadModuleEnabled() override;
    void setLiveHistory(const InfoDict& info) override;

    ElementOrderList* moduleList() const { return modules_; }
    TopTabThemeSection* themeSection() const { return theme_; }
    TopTabColorSection* colorSection() const { return colors_; }
    TopTabDdnsSection* ddnsSection() const { return ddns_; }
    TopTabMetricsSection* metricsSection() const { return metrics_; }

protected:
    void loadViews() override;

private:
    QWidget* buildOptions();
    QWidget* buildDdns();
    QWidget* buildMetrics();
    void moduleSwitched(qint64 code, bool on);
    void orderChanged(const QList<qint64>& order);
    void storeBool(const char* key, bool on);
    void loginChanged(bool on);
    void drawBarPreview();

    MenuModuleDelegate* delegate_;
    ElementOrderList* modules_;
    QCheckBox* appIcon_ = nullptr;
    QCheckBox* barPreviewOn_ = nullptr;
    QLabel* barPreview_ = nullptr;
    TopTabThemeSection* theme_;
    TopTabColorSection* colors_;
    TopTabDdnsSection* ddns_ = nullptr;
    TopTabMetricsSection* metrics_ = nullptr;
    QSpinBox* rebootDays_ = nullptr;
    QCheckBox* atStartup_ = nullptr;
    QCheckBox* denyUpdate_ = nullptr;
    QCheckBox* atLogin_ = nullptr;
};
