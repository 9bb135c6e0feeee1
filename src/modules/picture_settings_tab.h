// The frame of a module tab that sets up a status-item picture: its elements and their order,
// sliders, pop-ups, switches, menu items, and the live preview they all redraw.
#pragma once

#include "preferences/preference_tab.h"

#include <QList>
#include <QVariantHash>
#include <QVariantMap>

#include <utility>
#include <vector>

class ElementOrderList;
class PicturePreview;
class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QSlider;
class QSpinBox;

class PictureSettingsTab : public PreferenceTab {
    Q_OBJECT
public:
    // The graph slider counts tens of points: 1 to 10 is a graph of 10 to 100 points.
    static constexpr int kGraphSliderMin = 1;
    static constexpr int kGraphSliderMax = 10;
    // Seconds between two samples.
    static constexpr int kIntervalSliderMin = 1;
    static constexpr int kIntervalSliderMax = 60;

    // One element of the picture as the list shows it.
    struct Element {
        qint64 code;      // its number in the module's order array
        const char* key;  // its display switch
        const char* text; // its name, a localisation key
    };
    enum class SliderKind {
        GraphWidth, // counts tens of points, stored as points
        Interval,   // seconds between samples
        Limen,      // KB/s below which traffic is ignored
    };

    // The stored order with unknown and repeated numbers left out and missing elements appended,
    // so every element can be switched and dragged whatever an older version stored.
    static QList<qint64> shownOrder(const QList<qint64>& stored, const QList<Element>& elements);
    // Where a slider of that kind stands for a stored value, within its range.
    static int sliderPosition(SliderKind kind, qint64 stored, int minimum, int maximum);

protected:
    PictureSettingsTab(ModuleId id, QList<Element> elements, const char* orderKey, SettingsStore& store,
                       PrefNotificationCenter& center, QWidget* parent = nullptr);

    // The preview box on top; the rest is the derived tab's to lay out below it.
    QWidget* buildPreview(const char* objectName);
    QWidget* buildElements();
    // The three tool switches, named after the applications found; they change menu items, so
    // the menu is rebuilt.
    QWidget* buildMenuItems(const char* amonKey, const char* cnslKey, const char* tmnlKey);
    QCheckBox* addSwitch(QFormLayout* form, const char* key, const char* text, const QVariantMap& userInfo = {});
    // The module's label switch, stored with the General settings as well.
    QCheckBox* addLabelSwitch(QFormLayout* form, const char* key, const char* text);
    QSlider* addSlider(QFormLayout* form, const char* key, SliderKind kind, int minimum, int maximum);
    // A whole number from minimum to maximum in steps, shown with its unit ("°C", "rpm").
    QSpinBox* addNumber(QFormLayout* form, const char* key, const char* text, int minimum, int maximum, int step,
                        const QString& unit);
    // Entry i stands for the stored value firstValue + i (most settings count from 1).
    QComboBox* addPopup(QFormLayout* form, const char* key, const char* text, const QStringList& entries,
                        qint64 firstValue = 1);
    // The standard layout: the preview on top, the elements beside the display settings, the
    // menu items below. Call once from the derived tab's constructor.
    void buildFrame(const char* previewName, QWidget* display, QWidget* menuItems);

    // Fills every control made above from the settings; derived tabs call it from loadViews().
    void loadControls();
    // A control wrote the store: the preview is drawn from the stored settings.
    void settingsChanged();
    // Draws the preview again: the picture with the theme in use, on the panel that theme is
    // made for, and with the theme's alternative on its own. After a change of this tab the
    // settings are read again from the store with their derived values, so the preview follows
    // at once instead of after the round trip through the application.
    void redrawPreview();
    // The module's picture drawn from these settings, at zoom() times the screen's ratio.
    virtual QImage drawPreview(const ModuleDefaults& defaults) = 0;

private:
    struct PopupControl {
        const char* key;
        QComboBox* popup;
        qint64 firstValue;
    };
    struct NumberControl {
        const char* key;
        QSpinBox* box;
    };
    struct SliderControl {
        const char* key;
        SliderKind kind;
        QSlider* slider;
        QLabel* label;
    };
    // A switch that stores its key, not yet laid out.
    QCheckBox* makeSwitch(const char* key, const QString& text, const QVariantMap& userInfo);
    void switchChanged(const char* key, bool on, const QVariantMap& userInfo, bool alsoGeneral);
    void elementSwitched(qint64 code, bool on);
    void orderChanged(const QList<qint64>& order);
    void sliderChanged(const SliderControl& control, int position);
    void popupChanged(const PopupControl& control, int index);

    QList<Element> elements_;
    const char* orderKey_;
    ElementOrderList* elementList_ = nullptr;
    PicturePreview* preview_ = nullptr;
    std::vector<std::pair<const char*, QCheckBox*>> switches_;
    std::vector<PopupControl> popups_;
    std::vector<SliderControl> sliders_;
    std::vector<NumberControl> numbers_;
    // The stored settings since this tab's last change; empty until then.
    ModuleDefaults changedDefaults_;
    // The theme in use's alternative, and this module's settings in its colours; empty when
    // the theme names none.
    QVariantMap alternativeTheme_;
    ModuleDefaults alternativeDefaults_;
};
