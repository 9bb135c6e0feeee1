// The metrics part of the top tab: the switch, the listen address and how serving goes.
#pragma once

#include <QWidget>

class QCheckBox;
class QLabel;
class QLineEdit;

class TopTabMetricsSection : public QWidget {
    Q_OBJECT
public:
    explicit TopTabMetricsSection(QWidget* parent = nullptr);

    // Shows the stored settings; an address being typed is left alone.
    void showSettings(bool enabled, const QString& address);
    // Where the running monitor serves, or why it does not.
    void showStatus(const QString& status);

    QCheckBox* switchBox() const { return switch_; }
    QLineEdit* addressEdit() const { return address_; }
    QLabel* statusLabel() const { return status_; }

Q_SIGNALS:
    void switched(bool on);
    // A well-formed address was entered; a malformed one is reported here and not passed on.
    void addressEdited(const QString& address);

private:
    void addressFinished();

    QCheckBox* switch_;
    QLineEdit* address_;
    QLabel* status_;
};
