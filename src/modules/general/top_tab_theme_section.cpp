// Theme menu with details and saving; font family, style, adjustment and size difference.
#include "modules/general/top_tab_theme_section.h"

#include "prefs/pref_keys.h"
#include "prefs/theme_files.h"
#include "prefs/theme_font.h"
#include "prefs/theme_keys.h"
#include "prefs/theme_list.h"
#include "toolkit/localization.h"

#include <QComboBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDatabase>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSpinBox>

namespace {

constexpr int kFileNameRole = Qt::UserRole + 1;
const QVariant kUnchanged = QVariant(qint64{NotifKey::kUnchangedNumberBelow - 1});

QVariantMap fontChange()
{
    const QString unchanged = QLatin1String(NotifKey::kUnchangedText);
    // Every module measures its texts in the theme's font, so all of them reload.
    return {{QLatin1String(NotifKey::FontChanged), true},
            {QLatin1String(NotifKey::ModuleDefaultReload), true},
            {QLatin1String(PrefKey::_FontName), unchanged},
            {QLatin1String(PrefKey::_FontStyle), unchanged},
            {QLatin1String(PrefKey::_FontPostScriptName), unchanged},
            {QLatin1String(PrefKey::_FontAdjust), kUnchanged},
            {QLatin1String(PrefKey::_FontSizeDiff), kUnchanged}};
}

} // namespace

TopTabThemeSection::TopTabThemeSection(QWidget* parent)
    : QWidget(parent)
    , themes_(new QComboBox(this))
    , detail_(new QLabel(this))
    , save_(new QPushButton(Tarvel::localized("Save Theme..."), this))
    , families_(new QComboBox(this))
    , styles_(new QComboBox(this))
    , adjust_(new QSpinBox(this))
    , sizeDiff_(new QSpinBox(this))
{
    auto* form = new QFormLayout(this);
    auto* themeRow = new QHBoxLayout();
    themeRow->addWidget(themes_, 1);
    themeRow->addWidget(save_);
    form->addRow(Tarvel::localized("Theme"), themeRow);
    detail_->setWordWrap(true);
    detail_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    form->addRow(QString(), detail_);
    auto* fontRow = new QHBoxLayout();
    fontRow->addWidget(families_, 1);
    fontRow->addWidget(styles_);
    form->addRow(Tarvel::localized("Font"), fontRow);
    adjust_->setRange(-5, 5);
    sizeDiff_->setRange(-4, 6);
    adjust_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    sizeDiff_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    form->addRow(Tarvel::localized("Font position adjustment"), adjust_);
    form->addRow(Tarvel::localized("Font size difference"), sizeDiff_);
    families_->addItems(QFontDatabase::families());

    connect(themes_, &QComboBox::currentIndexChanged, this, &TopTabThemeSection::themeChosen);
    connect(save_, &QPushButton::clicked, this, &TopTabThemeSection::saveRequested);
    connect(families_, &QComboBox::currentTextChanged, this, [this](const QString& family) {
        if (filling_)
            return;
        fillStyles(family, styles_->currentText());
        fontChosen();
    });
    connect(styles_, &QComboBox::currentTextChanged, this, [this] {
        if (!filling_)
            fontChosen();
    });
    connect(adjust_, &QSpinBox::valueChanged, this, [this](int v) { numberChosen(PrefKey::_FontAdjust, v); });
    connect(sizeDiff_, &QSpinBox::valueChanged, this, [this](int v) { numberChosen(PrefKey::_FontSizeDiff, v); });
}

void TopTabThemeSection::rebuildThemeMenus()
{
    filling_ = true;
    themes_->clear();
    const QVariantList list = TvlClasses::retThemeList();
    for (const QVariant& item : list) {
        const QVariantMap entry = item.toMap();
        const QString file = entry.value(QLatin1String(PrefKey::_FileName)).toString();
        const bool current = file == QLatin1String(TvlClasses::kNowThemeFileName);
        const QString name = entry.value(QLatin1String(PrefKey::_Name)).toString();
        themes_->addItem(current ? Tarvel::localized("Selected Theme") + QStringLiteral(" (") + name + QLatin1Char(')') : name,
                         file);
        themes_->setItemData(themes_->count() - 1, file, Qt::ToolTipRole);
        if (current)
            themeEntry_ = entry;
    }
    themes_->setCurrentIndex(0);
    filling_ = false;
    showDetail();
}

void TopTabThemeSection::showDetail()
{
    if (themeEntry_.isEmpty())
        return;
    QString text = TvlClasses::retThemeDetailText(themeEntry_);
    if (!fontInUse_.isEmpty())
        text += u'\n' + Tarvel::localized("Font: %1").arg(fontInUse_);
    detail_->setText(text);
}

void TopTabThemeSection::themeChosen(int index)
{
    if (filling_ || index <= 0)
        return;
    if (TvlClasses::selectThemeFile(themes_->itemData(index).toString())) {
        Q_EMIT changeRequested({{QLatin1String(NotifKey::ModuleDefaultReload), true},
                                {QLatin1String(NotifKey::ModuleThemeChanged), true}});
    }
    rebuildThemeMenus();
}

void TopTabThemeSection::rebuildFontMenus(const QVariantMap& theme)
{
    filling_ = true;
    const QString family = theme.value(QLatin1String(PrefKey::_FontName)).toString();
    families_->setCurrentIndex(families_->findText(family));
    fillStyles(family, theme.value(QLatin1String(PrefKey::_FontStyle)).toString());
    adjust_->setValue(theme.value(QLatin1String(PrefKey::_FontAdjust)).toInt());
    sizeDiff_->setValue(theme.value(QLatin1String(PrefKey::_FontSizeDiff)).toInt());
    filling_ = false;
    fontInUse_ = family + u' ' + theme.value(QLatin1String(PrefKey::_FontStyle)).toString();
    showDetail();
}

void TopTabThemeSection::fillStyles(const QString& family, const QString& selected)
{
    const bool wasFilling = filling_;
    filling_ = true;
    styles_->clear();
    styles_->addItems(QFontDatabase::styles(family));
    const int index = styles_->findText(selected);
    styles_->setCurrentIndex(index >= 0 ? index : 0);
    filling_ = wasFilling;
}

void TopTabThemeSection::fontChosen()
{
    const QString family = families_->currentText();
    const QString style = styles_->currentText();
    if (family.isEmpty() || style.isEmpty())
        return;
    QVariantMap info = fontChange();
    info.insert(QLatin1String(PrefKey::_FontName), family);
    info.insert(QLatin1String(PrefKey::_FontStyle), style);
    info.insert(QLatin1String(PrefKey::_FontPostScriptName), TvlClasses::retPostScriptName(family, style));
    // Shown before the application writes the theme and hands it back.
    fontInUse_ = family + u' ' + style;
    showDetail();
    Q_EMIT changeRequested(info);
}

void TopTabThemeSection::numberChosen(const char* key, int value)
{
    if (filling_)
        return;
    QVariantMap info = fontChange();
    info.insert(QLatin1String(key), qint64{value});
    Q_EMIT changeRequested(info);
}

void TopTabThemeSection::saveTheme(const QVariantMap& theme)
{
    const QString name = theme.value(QLatin1String(PrefKey::_Name)).toString();
    const QString proposed = TvlClasses::retThemeFilePath(QStringLiteral("%1 copy.plist").arg(name));
    const QString path =
        QFileDialog::getSaveFileName(this, Tarvel::localized("Save Theme..."), proposed, QStringLiteral("*.plist"));
    if (path.isEmpty())
        return;
    if (!TvlClasses::saveThemeFile(path, theme))
        QMessageBox::warning(this, Tarvel::localized("Save Theme..."), Tarvel::localized("The theme could not be saved."));
    rebuildThemeMenus();
}
