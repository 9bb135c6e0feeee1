// Storing, posting and previewing for the Disk and Volume tabs.
#include "modules/disk/storage_tab.h"

#include "preferences/element_order_list.h"
#include "preferences/picture_preview.h"
#include "preferences/pref_slider_handlers.h"
#include "prefs/pref_derived.h"
#include "prefs/pref_keys.h"
#include "prefs/settings_store.h"
#include "toolkit/localization.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSlider>
#include <QVBoxLayout>

#include <algorithm>

using namespace PrefKey;

namespace {

int graphSliderPosition(qint64 storedWidth)
{
    const auto tens = static_cast<int>((storedWidth + 5) / 10);
    return std::clamp(tens, StorageTab::kGraphSliderMin, StorageTab::kGraphSliderMax);
}

bool isLabelSwitch(const char* key)
{
    return qstrcmp(key, Disk_ShowMyLabel) == 0 || qstrcmp(key, Vlms_ShowMyLabel) == 0;
}

} // namespace

StorageTab::StorageTab(ModuleId id, SettingsStore& store, PrefNotificationCenter& center, QWidget* parent)
    : PreferenceTab(id, store, center, parent)
{}

QList<qint64> StorageTab::shownOrder(const QList<Element>& elements, const QList<qint64>& stored)
{
    const auto known = [&elements](qint64 code) {
        return std::any_of(elements.begin(), elements.end(), [code](const Element& e) { return e.code == code; });
    };
    QList<qint64> order;
    for (const qint64 code : stored) {
        if (known(code) && !order.contains(code))
            order.append(code);
    }
    for (const Element& element : elements) {
        if (!order.contains(element.code))
            order.append(element.code);
    }
    return order;
}

void StorageTab::buildFrame(const QList<Element>& elements, const char* orderKey, QWidget* display, QWidget* menuItems)
{
    elements_ = elements;
    orderKey_ = orderKey;
    auto* previewBox = new QGroupBox(localized("Preview"), this);
    preview_ = new PicturePreview(previewBox);
    preview_->setObjectName(QString::fromLatin1(moduleKeys(moduleId()).historyKey) + QLatin1String("Preview"));
    (new QVBoxLayout(previewBox))->addWidget(preview_);

    auto* elementBox = new QGroupBox(localized("Elements"), this);
    auto* elementLayout = new QVBoxLayout(elementBox);
    elementList_ = new ElementOrderList(elementBox);
    elementList_->setObjectName(QLatin1String(orderKey));
    elementLayout->addWidget(elementList_);
    auto* hint = new QLabel(localized("Drag an element to change its place in the menu bar."), elementBox);
    hint->setWordWrap(true);
    elementLayout->addWidget(hint);
    elementLayout->addStretch(1);
    connect(elementList_, &ElementOrderList::entrySwitched, this, &StorageTab::elementSwitched);
    connect(elementList_, &ElementOrderList::orderChanged, this, &StorageTab::orderChanged);

    auto* columns = new QHBoxLayout();
    columns->addWidget(elementBox);
    columns->addWidget(display, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(previewBox);
    layout->addLayout(columns);
    layout->addWidget(menuItems);
    layout->addStretch(1);
}

QWidget* StorageTab::buildMenuItems(const char* amon, const char* cnsl, const char* tmnl)
{
    auto* box = new QGroupBox(localized("Menu items"), this);
    auto* form = new QFormLayout(box);
    // These are menu entries: the menu is rebuilt, not just the picture redrawn.
    const QVariantMap refreshItems{{QLatin1String(NotifKey::ModuleItemRefreshNow), true}};
    addSwitch(form, amon, "Open Activity Monitor", refreshItems);
    addSwitch(form, cnsl, "Open Console", refreshItems);
    addSwitch(form, tmnl, "Open Terminal", refreshItems);
    return box;
}

QSlider* StorageTab::addGraphSlider(QFormLayout* form, const char* key)
{
    auto* label = new QLabel();
    auto* slider = new QSlider(Qt::Horizontal);
    slider->setObjectName(QLatin1String(key));
    slider->setRange(kGraphSliderMin, kGraphSliderMax);
    slider->setPageStep(1);
    slider->setTickPosition(QSlider::TicksBelow);
    slider->setTracking(false);
    form->addRow(label);
    form->addRow(slider);
    sliders_.push_back({key, slider, label, true});
    connect(slider, &QSlider::valueChanged, this, [this, key, label](int value) {
        if (loading())
            return;
        PrefFunctions::graphSliderChange(value, store(), label, QLatin1String(key));
        noteChange(key, qint64{value} * 10);
        commit();
    });
    // While dragging, only the label and the preview follow; the width is stored on release.
    connect(slider, &QSlider::sliderMoved, this, [this, key, label](int value) {
        label->setText(PrefFunctions::graphSliderText(value * 10L));
        changes_.insert(QLatin1String(key), qint64{value} * 10);
        redrawPreview();
    });
    return slider;
}

QSlider* StorageTab::addIntervalSlider(QFormLayout* form, const char* key)
{
    auto* label = new QLabel();
    auto* slider = new QSlider(Qt::Horizontal);
    slider->setObjectName(QLatin1String(key));
    slider->setRange(kIntervalSliderMin, kIntervalSliderMax);
    slider->setPageStep(1);
    slider->setTickInterval(5);
    slider->setTickPosition(QSlider::TicksBelow);
    slider->setTracking(false);
    form->addRow(label);
    form->addRow(slider);
    sliders_.push_back({key, slider, label, false});
    connect(slider, &QSlider::valueChanged, this, [this, key, label](int value) {
        if (loading())
            return;
        PrefFunctions::updateSliderChange(value, store(), label, QLatin1String(key));
        commit();
    });
    connect(slider, &QSlider::sliderMoved, this,
            [label](int value) { label->setText(PrefFunctions::updateSliderText(value)); });
    return slider;
}

QComboBox* StorageTab::addChoice(QFormLayout* form, const char* key, const char* title, const Choices& choices)
{
    auto* box = new QComboBox();
    box->setObjectName(QLatin1String(key));
    for (const auto& [text, value] : choices)
        box->addItem(text, value);
    form->addRow(localized(title), box);
    choices_.emplace_back(key, box);
    connect(box, &QComboBox::currentIndexChanged, this, [this, key, box](int index) {
        if (loading() || index < 0)
            return;
        const qint64 value = box->itemData(index).toLongLong();
        store().setInteger(QLatin1String(key), value);
        noteChange(key, value);
        commit();
    });
    return box;
}

QCheckBox* StorageTab::addSwitch(QFormLayout* form, const char* key, const char* text, const QVariantMap& userInfo)
{
    auto* box = new QCheckBox(localized(text));
    box->setObjectName(QLatin1String(key));
    form->addRow(box);
    switches_.emplace_back(key, box);
    connect(box, &QCheckBox::toggled, this, [this, key, userInfo](bool on) { switchChanged(key, on, userInfo); });
    return box;
}

void StorageTab::loadViews()
{
    changes_.clear();
    const ModuleDefaults& d = myDefaults();
    QList<ElementOrderList::Entry> entries;
    for (const qint64 code : shownOrder(elements_, d.intList(QLatin1String(orderKey_)))) {
        const auto element =
            std::find_if(elements_.begin(), elements_.end(), [code](const Element& e) { return e.code == code; });
        entries.append({code, localized(element->text), d.boolValue(QLatin1String(element->key))});
    }
    elementList_->setEntries(entries);
    // Exactly the size of its rows: there is never anything to scroll to.
    const int frame = 2 * elementList_->frameWidth();
    elementList_->setFixedSize(elementList_->sizeHintForColumn(0) + frame + 8,
                               elementList_->sizeHintForRow(0) * elementList_->count() + frame);

    // A slider under the user's hand keeps its place; the settings catch up on release.
    for (const Slider& s : sliders_) {
        if (s.slider->isSliderDown())
            continue;
        const qint64 stored = d.intValue(QLatin1String(s.key));
        if (s.graph) {
            s.slider->setValue(graphSliderPosition(stored));
            s.label->setText(PrefFunctions::graphSliderText(static_cast<long>(stored)));
        } else {
            s.slider->setValue(std::clamp(static_cast<int>(stored), kIntervalSliderMin, kIntervalSliderMax));
            s.label->setText(PrefFunctions::updateSliderText(static_cast<long>(stored)));
        }
    }
    for (const auto& [key, box] : choices_) {
        // A stored value that no entry has shows the first entry, as the picture draws it.
        const int index = box->findData(d.intValue(QLatin1String(key)));
        box->setCurrentIndex(std::max(index, 0));
    }
    for (const auto& [key, box] : switches_)
        box->setChecked(d.boolValue(QLatin1String(key)));
    redrawPreview();
}

ModuleDefaults StorageTab::previewDefaults()
{
    ModuleDefaults defaults = myDefaults();
    if (changes_.isEmpty())
        return defaults;
    for (auto it = changes_.cbegin(); it != changes_.cend(); ++it)
        defaults.set(it.key(), it.value());
    // The label lists and widths depend on the changed choices; the theme's font is in the
    // settings already, and these modules read nothing else from the theme or the store.
    const QVariantMap font{{QLatin1String(_FontPostScriptName), defaults.value(QLatin1String(_FontPostScriptName))},
                           {QLatin1String(_FontSizeDiff), defaults.value(QLatin1String(_FontSizeDiff))}};
    addDerivedKeys(moduleId(), defaults, store(), font);
    return defaults;
}

void StorageTab::noteChange(const char* key, const QVariant& value)
{
    changes_.insert(QLatin1String(key), value);
    redrawPreview();
}

void StorageTab::switchChanged(const char* key, bool on, const QVariantMap& userInfo)
{
    if (loading())
        return;
    store().setBool(QLatin1String(key), on);
    noteChange(key, on);
    commit(userInfo);
    if (isLabelSwitch(key))
        postAs(ModuleId::General, {});
}

void StorageTab::elementSwitched(qint64 code, bool on)
{
    // With every element off the module switches itself off and its item leaves the bar.
    const auto element =
        std::find_if(elements_.begin(), elements_.end(), [code](const Element& e) { return e.code == code; });
    if (element != elements_.end())
        switchChanged(element->key, on, {});
}

void StorageTab::orderChanged(const QList<qint64>& order)
{
    if (loading())
        return;
    QVariantList stored;
    for (const qint64 code : order)
        stored.append(code);
    store().setArray(QLatin1String(orderKey_), stored);
    noteChange(orderKey_, stored);
    commit();
}
