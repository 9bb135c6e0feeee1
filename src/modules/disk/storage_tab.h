// What the Disk and Volume preference tabs share: elements and their order, sliders, choices,
// switches, the menu items and a live preview of the tab's own changes.
#pragma once

#include "preferences/preference_tab.h"

#include <QList>
#include <QVariantHash>

#include <utility>
#include <vector>

class ElementOrderList;
class PicturePreview;
class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QSlider;

class StorageTab : public PreferenceTab {
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
        qint64 code;      // its number in the stored order, as the picture reads it
        const char* key;  // its display switch
        const char* text; // its name, a localisation key
    };
    // A choice's entries: the shown text and the value stored for it.
    using Choices = QList<std::pair<QString, qint64>>;

    // The stored order with unknown and repeated numbers left out and missing elements appended,
    // so every element can be switched and dragged whatever an older version stored.
    static QList<qint64> shownOrder(const QList<Element>& elements, const QList<qint64>& stored);

protected:
    StorageTab(ModuleId id, SettingsStore& store, PrefNotificationCenter& center, QWidget* parent);

    // The tab's frame: the preview on top, the elements and the display settings side by side,
    // the menu items below. Call once from the subclass's constructor.
    void buildFrame(const QList<Element>& elements, const char* orderKey, QWidget* display, QWidget* menuItems);
    QWidget* buildMenuItems(const char* amon, const char* cnsl, const char* tmnl);

    QSlider* addGraphSlider(QFormLayout* form, const char* key);
    QSlider* addIntervalSlider(QFormLayout* form, const char* key);
    QComboBox* addChoice(QFormLayout* form, const char* key, const char* title, const Choices& choices);
    // The label switch also posts the General notification: it is stored with the General
    // settings as well as read into the module's.
    QCheckBox* addSwitch(QFormLayout* form, const char* key, const char* text, const QVariantMap& userInfo = {});

    void loadViews() override;
    // The module's settings with this tab's changes laid over them and the derived layout values
    // measured again, so the preview follows at once instead of after the round trip.
    ModuleDefaults previewDefaults();
    virtual void redrawPreview() = 0;
    PicturePreview* preview() const { return preview_; }

private:
    void switchChanged(const char* key, bool on, const QVariantMap& userInfo);
    void elementSwitched(qint64 code, bool on);
    void orderChanged(const QList<qint64>& order);
    void noteChange(const char* key, const QVariant& value);

    QList<Element> elements_;
    const char* orderKey_ = nullptr;
    ElementOrderList* elementList_ = nullptr;
    PicturePreview* preview_ = nullptr;
    std::vector<std::pair<const char*, QCheckBox*>> switches_;
    std::vector<std::pair<const char*, QComboBox*>> choices_;
    struct Slider {
        const char* key;
        QSlider* slider;
        QLabel* label;
        bool graph;
    };
    std::vector<Slider> sliders_;
    QVariantHash changes_;
};
