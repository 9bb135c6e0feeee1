// Rows of alert rules for one module: what is watched, past which threshold, for how long.
#include "preferences/alert_editor.h"

#include "alerts/alert_rule_store.h"
#include "prefs/settings_store.h"
#include "toolkit/localization.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include <algorithm>

namespace {

enum Column { ColOn, ColFigure, ColAbove, ColThreshold, ColUnit, ColHold, ColClearAt, ColRemove };

// What a threshold of the figure's unit may sensibly be set to.
std::pair<double, double> thresholdRange(AlertFigure figure)
{
    const QLatin1String unit(alertFigureInfo(figure).unit);
    if (unit == QLatin1String("%"))
        return {0, 100};
    if (unit == QLatin1String("rpm"))
        return {0, 100000};
    if (unit == QLatin1String("KB/s"))
        return {0, 100000000};
    return {-100, 300}; // degrees
}

QDoubleSpinBox* numberBox(QWidget* parent, const char* name)
{
    auto* box = new QDoubleSpinBox(parent);
    box->setObjectName(QLatin1String(name));
    box->setDecimals(1);
    box->setKeyboardTracking(false);
    return box;
}

} // namespace

AlertEditor::AlertEditor(ModuleId module, SettingsStore& store, QWidget* parent)
    : QGroupBox(Tarvel::localized("Alerts"), parent)
    , module_(module)
    , store_(store)
    , grid_(new QGridLayout())
{
    setObjectName(QStringLiteral("Alerts"));
    for (const AlertFigureInfo& figure : alertFigures()) {
        if (figure.module == module)
            figures_.append(figure.figure);
    }
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(grid_);
    auto* add = new QPushButton(Tarvel::localized("Add Alert"), this);
    add->setObjectName(QStringLiteral("AlertAdd"));
    connect(add, &QPushButton::clicked, this, &AlertEditor::addRule);
    auto* note =
        new QLabel(Tarvel::localized("A notification is sent once when a figure stays past its threshold for "
                                     "the time given, and again only after it has come back to where it clears."),
                   this);
    note->setWordWrap(true);
    note->setEnabled(false);
    auto* foot = new QHBoxLayout();
    foot->addWidget(add);
    foot->addWidget(note, 1);
    layout->addLayout(foot);
    addHeader();
}

void AlertEditor::addHeader()
{
    const std::pair<Column, const char*> titles[] = {{ColOn, Tarvel::textKey("On")},
                                                     {ColFigure, Tarvel::textKey("Figure")},
                                                     {ColThreshold, Tarvel::textKey("Threshold")},
                                                     {ColHold, Tarvel::textKey("For")},
                                                     {ColClearAt, Tarvel::textKey("Clears at")}};
    for (const auto& [column, title] : titles)
        grid_->addWidget(new QLabel(Tarvel::localized(title), this), 0, column);
    grid_->setColumnStretch(ColFigure, 1);
}

void AlertEditor::load()
{
    QList<AlertRule> rules = AlertRuleStore::load(store_);
    rules.removeIf([this](const AlertRule& r) { return alertFigureInfo(r.figure).module != module_; });
    if (rules != shown_ || rows_.size() != rules.size())
        rebuildRows(rules);
}

QList<AlertRule> AlertEditor::shownRules() const
{
    QList<AlertRule> rules;
    for (const Row& row : rows_)
        rules.append(rowRule(row));
    return rules;
}

void AlertEditor::addRule()
{
    if (figures_.isEmpty())
        return;
    const AlertFigureInfo& figure = alertFigureInfo(figures_.front());
    QList<AlertRule> rules = shownRules();
    rules.append(AlertRule::offered(figure.figure, figure.threshold, figure.threshold, 60));
    store(rules);
    rebuildRows(rules);
}

void AlertEditor::rebuildRows(const QList<AlertRule>& rules)
{
    for (const Row& row : std::as_const(rows_)) {
        for (QWidget* widget :
             {static_cast<QWidget*>(row.enabled), static_cast<QWidget*>(row.figure), static_cast<QWidget*>(row.above),
              static_cast<QWidget*>(row.threshold), static_cast<QWidget*>(row.unit), static_cast<QWidget*>(row.hold),
              static_cast<QWidget*>(row.clearAt), static_cast<QWidget*>(row.remove)}) {
            // Out of the section at once, deleted later: the remove button being clicked may be
            // one of them.
            grid_->removeWidget(widget);
            widget->setParent(nullptr);
            widget->deleteLater();
        }
    }
    rows_.clear();
    filling_ = true;
    for (const AlertRule& rule : rules) {
        const Row row = makeRow(static_cast<int>(rows_.size()) + 1);
        showRule(row, rule);
        connectRow(row);
        rows_.append(row);
    }
    filling_ = false;
    shown_ = rules;
}

AlertEditor::Row AlertEditor::makeRow(int line)
{
    Row row{new QCheckBox(this),
            new QComboBox(this),
            new QComboBox(this),
            numberBox(this, "AlertThreshold"),
            new QLabel(this),
            new QSpinBox(this),
            numberBox(this, "AlertClearAt"),
            new QPushButton(Tarvel::localized("Remove"), this)};
    row.enabled->setObjectName(QStringLiteral("AlertOn"));
    row.figure->setObjectName(QStringLiteral("AlertFigure"));
    for (const AlertFigure figure : std::as_const(figures_))
        row.figure->addItem(Tarvel::localized(alertFigureInfo(figure).name));
    row.above->setObjectName(QStringLiteral("AlertAbove"));
    row.above->addItems({Tarvel::localized("over"), Tarvel::localized("under")});
    row.hold->setObjectName(QStringLiteral("AlertHold"));
    row.hold->setRange(0, static_cast<int>(kAlertMaxHoldSeconds));
    row.hold->setSuffix(QStringLiteral(" s"));
    row.hold->setKeyboardTracking(false);
    row.remove->setObjectName(QStringLiteral("AlertRemove"));
    const std::pair<Column, QWidget*> cells[] = {
        {ColOn, row.enabled}, {ColFigure, row.figure}, {ColAbove, row.above},     {ColThreshold, row.threshold},
        {ColUnit, row.unit},  {ColHold, row.hold},     {ColClearAt, row.clearAt}, {ColRemove, row.remove}};
    for (const auto& [column, widget] : cells)
        grid_->addWidget(widget, line, column);
    return row;
}

void AlertEditor::showRule(const Row& row, const AlertRule& rule)
{
    const auto [low, high] = thresholdRange(rule.figure);
    row.enabled->setChecked(rule.enabled);
    row.figure->setCurrentIndex(static_cast<int>(figures_.indexOf(rule.figure)));
    row.above->setCurrentIndex(rule.above ? 0 : 1);
    for (QDoubleSpinBox* box : {row.threshold, row.clearAt})
        box->setRange(low, high);
    row.threshold->setValue(rule.threshold);
    row.clearAt->setValue(rule.clearAt);
    row.unit->setText(QString::fromUtf8(alertFigureInfo(rule.figure).unit));
    row.hold->setValue(static_cast<int>(rule.holdSeconds));
}

AlertRule AlertEditor::rowRule(const Row& row) const
{
    AlertRule rule;
    rule.figure = figures_.value(row.figure->currentIndex(), figures_.value(0));
    rule.enabled = row.enabled->isChecked();
    rule.above = row.above->currentIndex() == 0;
    rule.threshold = row.threshold->value();
    // A clearing point past the threshold would clear the rule while it is still breached.
    rule.clearAt =
        rule.above ? std::min(row.clearAt->value(), rule.threshold) : std::max(row.clearAt->value(), rule.threshold);
    rule.holdSeconds = row.hold->value();
    return rule;
}

void AlertEditor::connectRow(const Row& row)
{
    connect(row.enabled, &QCheckBox::toggled, this, &AlertEditor::rowEdited);
    connect(row.figure, &QComboBox::currentIndexChanged, this, &AlertEditor::rowEdited);
    connect(row.above, &QComboBox::currentIndexChanged, this, &AlertEditor::rowEdited);
    connect(row.threshold, &QDoubleSpinBox::valueChanged, this, &AlertEditor::rowEdited);
    connect(row.clearAt, &QDoubleSpinBox::valueChanged, this, &AlertEditor::rowEdited);
    connect(row.hold, &QSpinBox::valueChanged, this, &AlertEditor::rowEdited);
    QPushButton* button = row.remove;
    connect(button, &QPushButton::clicked, this, [this, button] { removeRow(button); });
}

void AlertEditor::rowEdited()
{
    if (filling_)
        return;
    const QList<AlertRule> rules = shownRules();
    // The rows show what is stored: a moved clearing point, a new figure's unit and range.
    filling_ = true;
    for (qsizetype i = 0; i < rows_.size(); ++i)
        showRule(rows_[i], rules[i]);
    filling_ = false;
    store(rules);
}

void AlertEditor::removeRow(QPushButton* button)
{
    const auto it = std::find_if(rows_.cbegin(), rows_.cend(), [button](const Row& r) { return r.remove == button; });
    if (it == rows_.cend())
        return;
    QList<AlertRule> rules = shownRules();
    rules.removeAt(it - rows_.cbegin());
    store(rules);
    rebuildRows(rules);
}

void AlertEditor::store(const QList<AlertRule>& rules)
{
    // Read again, not remembered: another tab may have stored its module's rules meanwhile.
    QList<AlertRule> all = AlertRuleStore::load(store_);
    all.removeIf([this](const AlertRule& r) { return alertFigureInfo(r.figure).module == module_; });
    all.append(rules);
    AlertRuleStore::save(store_, all);
    shown_ = rules;
    Q_EMIT rulesChanged();
}
