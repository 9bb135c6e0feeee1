// The CPU module's preferences tab: its elements and their order, graph, interval, menu items
// and a live preview of the picture.
#pragma once

#include "collect/cpu_sample.h"
#include "collect/history.h"
#include "preferences/preference_tab.h"

#include <QVariantHash>

#include <utility>
#include <vector>

class ElementOrderList;
class PicturePreview;
class QCheckBox;
class QFormLayout;
class QLabel;
class QSlider;

class CpuTabViewController : public PreferenceTab {
    Q_OBJECT
public:
    // The graph slider counts tens of points: 1 to 10 is a graph of 10 to 100 points per set.
    static constexpr int kGraphSliderMin = 1;
    static constexpr int kGraphSliderMax = 10;
    // Seconds between two samples.
    static constexpr int kIntervalSliderMin = 1;
    static constexpr int kIntervalSliderMax = 60;

    CpuTabViewController(SettingsStore& store, PrefNotificationCenter& center, QWidget* parent = nullptr);

    void setLiveHistory(const InfoDict& info) override;

protected:
    void loadViews() override;

private:
    QWidget* buildElements();
    QWidget* buildDisplay();
    QWidget* buildMenuItems();
    QCheckBox* addSwitch(QFormLayout* form, const char* key, const char* text, const QVariantMap& userInfo = {});
    QSlider* addSlider(QFormLayout* form, const char* key, QLabel*& label, int minimum, int maximum);

    void switchChanged(const char* key, bool on, const QVariantMap& userInfo);
    void elementSwitched(qint64 code, bool on);
    void orderChanged(const QList<qint64>& order);
    void graphSliderChanged(int value);
    void intervalSliderChanged(int value);
    // Remembers a stored value until the application hands the reloaded settings back.
    void noteChange(const char* key, const QVariant& value);

    // Draws with the module's settings and this tab's changes laid over them, so the preview
    // follows at once instead of after the round trip through the application.
    void redrawPreview();

    ElementOrderList* elements_ = nullptr;
    QSlider* graphSlider_ = nullptr;
    QLabel* graphLabel_ = nullptr;
    QSlider* intervalSlider_ = nullptr;
    QLabel* intervalLabel_ = nullptr;
    QCheckBox* boldLine_ = nullptr;
    std::vector<std::pair<const char*, QCheckBox*>> switches_;
    PicturePreview* preview_ = nullptr;

    QVariantHash changes_;
    History<CpuSample> history_;
};
