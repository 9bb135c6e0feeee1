// Controls of a picture tab: each writes its key, saves and posts the module's notification.
#include "modules/picture_settings_tab.h"

#include "modules/desktop_tool_switch.h"
#include "modules/module_registry.h"
#include "preferences/element_order_list.h"
#include "preferences/picture_preview.h"
#include "preferences/pref_slider_handlers.h"
#include "prefs/pref_functions.h"
#include "prefs/pref_keys.h"
#include "prefs/settings_store.h"
#include "prefs/theme_appearance.h"
#include "toolkit/counter_arithmetic.h"
#include "toolkit/localization.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSlider>
#include <QSpinBox>
#include <QVBoxLayout>

#include <algorithm>

namespace {

qint64 storedValue(PictureSettingsTab::SliderKind kind, int position)
{
    return kind == PictureSettingsTab::SliderKind::GraphWidth ? qint64{position} * 10 : qint64{position};
}

QString sliderText(PictureSettingsTab::SliderKind kind, qint64 stored)
{
    const auto value = static_cast<long>(stored);
    switch (kind) {
    case PictureSettingsTab::SliderKind::GraphWidth:
        return PrefFunctions::graphSliderText(value);
    case PictureSettingsTab::SliderKind::Interval:
        return PrefFunctions::updateSliderText(value);
    case PictureSettingsTab::SliderKind::Limen:
        return PrefFunctions::limenBaseSliderText(value);
    }
    return {};
}

} // namespace

PictureSettingsTab::PictureSettingsTab(ModuleId id, QList<Element> elements, const char* orderKey, SettingsStore& store,
                                       PrefNotificationCenter& center, QWidget* parent)
    : PreferenceTab(moduleSchema(id), store, center, parent)
    , elements_(std::move(elements))
    , orderKey_(orderKey)
{}

QList<qint64> PictureSettingsTab::shownOrder(const QList<qint64>& stored, const QList<Element>& elements)
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

int PictureSettingsTab::sliderPosition(SliderKind kind, qint64 stored, int minimum, int maximum)
{
    const qint64 position = kind == SliderKind::GraphWidth ? Counter::saturatedSum(stored, 5) / 10 : stored;
    return static_cast<int>(std::clamp<qint64>(position, minimum, maximum));
}

QWidget* PictureSettingsTab::buildPreview(const char* objectName)
{
    auto* box = new QGroupBox(Tarvel::localized("Preview"), this);
    preview_ = new PicturePreview(box);
    preview_->setObjectName(QLatin1String(objectName));
    (new QVBoxLayout(box))->addWidget(preview_);
    return box;
}

QWidget* PictureSettingsTab::buildElements()
{
    auto* box = new QGroupBox(Tarvel::localized("Elements"), this);
    auto* layout = new QVBoxLayout(box);
    elementList_ = new ElementOrderList(box);
    elementList_->setObjectName(QLatin1String(orderKey_));
    layout->addWidget(elementList_);
    auto* hint = new QLabel(Tarvel::localized("Drag an element to change its place in the menu bar."), box);
    hint->setWordWrap(true);
    layout->addWidget(hint);
    layout->addStretch(1);
    connect(elementList_, &ElementOrderList::entrySwitched, this, &PictureSettingsTab::elementSwitched);
    connect(elementList_, &ElementOrderList::orderChanged, this, &PictureSettingsTab::orderChanged);
    return box;
}

QWidget* PictureSettingsTab::buildMenuItems(const char* amonKey, const char* cnslKey, const char* tmnlKey)
{
    auto* box = new QGroupBox(Tarvel::localized("Menu items"), this);
    auto* form = new QFormLayout(box);
    const QVariantMap refreshItems{{QLatin1String(NotifKey::ModuleItemRefreshNow), true}};
    DesktopToolSwitch::addRows(form, {amonKey, cnslKey, tmnlKey},
                               [this, &refreshItems](const char* key) { return makeSwitch(key, {}, refreshItems); });
    return box;
}

QCheckBox* PictureSettingsTab::addSwitch(QFormLayout* form, const char* key, const char* text,
                                         const QVariantMap& userInfo)
{
    QCheckBox* box = makeSwitch(key, Tarvel::localized(text), userInfo);
    form->addRow(box);
    return box;
}

QCheckBox* PictureSettingsTab::makeSwitch(const char* key, const QString& text, const QVariantMap& userInfo)
{
    auto* box = new QCheckBox(text);
    box->setObjectName(QLatin1String(key));
    switches_.emplace_back(key, box);
    connect(box, &QCheckBox::toggled, this,
            [this, key, userInfo](bool on) { switchChanged(key, on, userInfo, false); });
    return box;
}

QCheckBox* PictureSettingsTab::addLabelSwitch(QFormLayout* form, const char* key, const char* text)
{
    auto* box = new QCheckBox(Tarvel::localized(text));
    box->setObjectName(QLatin1String(key));
    form->addRow(box);
    switches_.emplace_back(key, box);
    connect(box, &QCheckBox::toggled, this, [this, key](bool on) { switchChanged(key, on, {}, true); });
    return box;
}

QSlider* PictureSettingsTab::addSlider(QFormLayout* form, const char* key, SliderKind kind, int minimum, int maximum)
{
    auto* label = new QLabel();
    auto* slider = new QSlider(Qt::Horizontal);
    slider->setObjectName(QLatin1String(key));
    slider->setRange(minimum, maximum);
    slider->setPageStep(1);
    slider->setTickPosition(QSlider::TicksBelow);
    slider->setTickInterval(std::max(1, (maximum - minimum) / 10));
    // Stored on release; while dragging only the label and the preview follow.
    slider->setTracking(false);
    form->addRow(label);
    form->addRow(slider);
    sliders_.push_back({key, kind, slider, label});
    const SliderControl control = sliders_.back();
    connect(slider, &QSlider::valueChanged, this, [this, control](int value) { sliderChanged(control, value); });
    connect(slider, &QSlider::sliderMoved, this, [this, control](int value) {
        control.label->setText(sliderText(control.kind, storedValue(control.kind, value)));
        // Kept in the store but not saved until the slider is let go, so the preview follows the
        // hand without a write per step.
        store().setInteger(QLatin1String(control.key), storedValue(control.kind, value));
        settingsChanged();
    });
    return slider;
}

QComboBox* PictureSettingsTab::addPopup(QFormLayout* form, const char* key, const char* text,
                                        const QStringList& entries, qint64 firstValue)
{
    auto* popup = new QComboBox();
    popup->setObjectName(QLatin1String(key));
    popup->addItems(entries);
    form->addRow(Tarvel::localized(text), popup);
    const PopupControl control{key, popup, firstValue};
    popups_.push_back(control);
    connect(popup, &QComboBox::currentIndexChanged, this, [this, control](int index) { popupChanged(control, index); });
    return popup;
}

QSpinBox* PictureSettingsTab::addNumber(QFormLayout* form, const char* key, const char* text, int minimum, int maximum,
                                        int step, const QString& unit)
{
    auto* box = new QSpinBox();
    box->setObjectName(QLatin1String(key));
    box->setRange(minimum, maximum);
    box->setSingleStep(step);
    box->setSuffix(unit);
    // Typing "75" passes through 7 on its way: only the finished number is stored.
    box->setKeyboardTracking(false);
    form->addRow(Tarvel::localized(text), box);
    numbers_.push_back({key, box});
    connect(box, &QSpinBox::valueChanged, this, [this, key](int value) {
        if (loading())
            return;
        store().setInteger(QLatin1String(key), value);
        settingsChanged();
        commit();
    });
    return box;
}

void PictureSettingsTab::buildFrame(const char* previewName, QWidget* display, QWidget* menuItems)
{
    auto* columns = new QHBoxLayout();
    columns->addWidget(buildElements());
    columns->addWidget(display, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(buildPreview(previewName));
    layout->addLayout(columns);
    layout->addWidget(menuItems);
    layout->addStretch(1);
}

void PictureSettingsTab::loadControls()
{
    changedDefaults_.clear();
    alternativeTheme_ = TvlClasses::retAlternativeTheme(theme());
    alternativeDefaults_ =
        alternativeTheme_.isEmpty()
            ? ModuleDefaults()
            : PrefFunctions::loadModuleDefaults(schema(), store(), alternativeTheme_, allModuleSchemas());
    const ModuleDefaults& d = myDefaults();
    if (elementList_ != nullptr) {
        QList<ElementOrderList::Entry> entries;
        for (const qint64 code : shownOrder(d.intList(QLatin1String(orderKey_)), elements_)) {
            const auto element =
                std::find_if(elements_.begin(), elements_.end(), [code](const Element& e) { return e.code == code; });
            entries.append({code, Tarvel::localized(element->text), d.boolValue(element->key)});
        }
        elementList_->setEntries(entries);
        // Exactly the size of its rows: there is never anything to scroll to.
        const int frame = 2 * elementList_->frameWidth();
        elementList_->setFixedSize(elementList_->sizeHintForColumn(0) + frame + 8,
                                   elementList_->sizeHintForRow(0) * elementList_->count() + frame);
    }
    for (const SliderControl& control : sliders_) {
        // A slider under the user's hand keeps its place; the settings catch up on release.
        if (control.slider->isSliderDown())
            continue;
        const qint64 stored = d.intValue(QLatin1String(control.key));
        control.slider->setValue(
            sliderPosition(control.kind, stored, control.slider->minimum(), control.slider->maximum()));
        control.label->setText(sliderText(control.kind, stored));
    }
    for (const auto& [key, box] : switches_)
        box->setChecked(d.boolValue(QLatin1String(key)));
    for (const auto& [key, box] : numbers_)
        box->setValue(static_cast<int>(d.intValue(QLatin1String(key))));
    for (const PopupControl& control : popups_) {
        const qint64 index = Counter::saturatedDifference(d.intValue(QLatin1String(control.key)), control.firstValue);
        control.popup->setCurrentIndex(index >= 0 && index < control.popup->count() ? static_cast<int>(index) : 0);
    }
}

void PictureSettingsTab::settingsChanged()
{
    changedDefaults_ = PrefFunctions::loadModuleDefaults(schema(), store(), theme(), allModuleSchemas());
    if (!alternativeTheme_.isEmpty())
        alternativeDefaults_ =
            PrefFunctions::loadModuleDefaults(schema(), store(), alternativeTheme_, allModuleSchemas());
    redrawPreview();
}

void PictureSettingsTab::redrawPreview()
{
    if (preview_ == nullptr)
        return;
    preview_->setImage(drawPreview(changedDefaults_.isEmpty() ? myDefaults() : changedDefaults_),
                       TvlClasses::isDarkTheme(theme()));
    preview_->setAlternativeImage(alternativeTheme_.isEmpty() ? QImage() : drawPreview(alternativeDefaults_),
                                  TvlClasses::isDarkTheme(alternativeTheme_));
}

void PictureSettingsTab::switchChanged(const char* key, bool on, const QVariantMap& userInfo, bool alsoGeneral)
{
    if (loading())
        return;
    store().setBool(QLatin1String(key), on);
    settingsChanged();
    commit(userInfo);
    // The label switch lives in the General settings too: this keeps that dictionary in step.
    if (alsoGeneral)
        postAs(moduleSchema(ModuleId::General), {});
}

void PictureSettingsTab::elementSwitched(qint64 code, bool on)
{
    // With every element off the module switches itself off and its item leaves the bar.
    const auto element =
        std::find_if(elements_.begin(), elements_.end(), [code](const Element& e) { return e.code == code; });
    if (element != elements_.end())
        switchChanged(element->key, on, {}, false);
}

void PictureSettingsTab::orderChanged(const QList<qint64>& order)
{
    if (loading())
        return;
    QVariantList stored;
    for (const qint64 code : order)
        stored.append(code);
    store().setArray(QLatin1String(orderKey_), stored);
    settingsChanged();
    commit();
}

void PictureSettingsTab::sliderChanged(const SliderControl& control, int position)
{
    if (loading())
        return;
    const QString key = QLatin1String(control.key);
    switch (control.kind) {
    case SliderKind::GraphWidth:
        PrefFunctions::graphSliderChange(position, store(), control.label, key);
        break;
    case SliderKind::Interval:
        PrefFunctions::updateSliderChange(position, store(), control.label, key);
        break;
    case SliderKind::Limen:
        PrefFunctions::limenBaseSliderChange(position, store(), control.label, key);
        break;
    }
    settingsChanged();
    commit();
}

void PictureSettingsTab::popupChanged(const PopupControl& control, int index)
{
    if (loading() || index < 0)
        return;
    const qint64 value = control.firstValue + index;
    store().setInteger(QLatin1String(control.key), value);
    settingsChanged();
    commit();
}
