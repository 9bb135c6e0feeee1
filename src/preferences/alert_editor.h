// The "Alerts" section every module tab with figures shows: the module's rules, one row each.
#pragma once

#include "alerts/alert_rule.h"

#include <QGroupBox>
#include <QList>

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QGridLayout;
class QLabel;
class QPushButton;
class QSpinBox;
class SettingsStore;

class AlertEditor final : public QGroupBox {
    Q_OBJECT
public:
    AlertEditor(ModuleId module, SettingsStore& store, QWidget* parent = nullptr);

    // Shows the module's stored rules; rows stay as they are while the store holds what they
    // show, so a setting saved elsewhere does not pull the field the user is typing in.
    void load();
    // The module's rules as the rows show them.
    QList<AlertRule> shownRules() const;
    // Appends a switched-off rule of the module's first figure and stores it.
    void addRule();

Q_SIGNALS:
    // The rules were stored; the tab saves the store and tells the application.
    void rulesChanged();

private:
    struct Row {
        QCheckBox* enabled;
        QComboBox* figure;
        QComboBox* above;
        QDoubleSpinBox* threshold;
        QLabel* unit;
        QSpinBox* hold;
        QDoubleSpinBox* clearAt;
        QPushButton* remove;
    };

    void addHeader();
    void rebuildRows(const QList<AlertRule>& rules);
    Row makeRow(int line);
    void showRule(const Row& row, const AlertRule& rule);
    AlertRule rowRule(const Row& row) const;
    void connectRow(const Row& row);
    void rowEdited();
    void removeRow(QPushButton* button);
    // Writes the shown rules in place of the module's stored ones, leaving the other modules'.
    void store(const QList<AlertRule>& rules);

    ModuleId module_;
    SettingsStore& store_;
    QList<AlertFigure> figures_; // the module's, in combo box order
    QGridLayout* grid_;
    QList<Row> rows_;
    QList<AlertRule> shown_;
    bool filling_ = false;
};
