// The desktop's preferences window: built when first opened, one tab per module of the registry.
#pragma once

#include "app/preferences_host.h"
#include "preferences/preferences_window.h"

#include <QObject>
#include <QPointer>

class AppDelegate;

class PreferencesWindowHost final : public QObject, public PreferencesHost {
    Q_OBJECT
public:
    // The controller must outlive this host.
    explicit PreferencesWindowHost(AppDelegate& delegate, QObject* parent = nullptr);
    ~PreferencesWindowHost() override;

    // The window while it exists (from its first opening until it is closed).
    PreferencesWindow* window() const { return window_; }

    void openTab(int tabIndex, const InfoDict& live) override;
    bool isVisible() const override;
    void setLiveHistory(const InfoDict& info) override;
    void setStorageDescriptions(const DiskBaseDict& disks, std::shared_ptr<const VolumeBaseDict> volumes) override;
    void handOutDefaults(const AllModuleDefaults& all, const QVariantMap& theme, bool themeChanged) override;
    void showStoreFailure() override;

private:
    // Most of the time the window is closed, and its widgets and the font list would only take
    // memory: it is built when opened and goes when closed.
    void build();

    AppDelegate& delegate_;
    QPointer<PreferencesWindow> window_;
};
