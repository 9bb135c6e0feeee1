// The dynamic DNS list of the top tab: the lines as typed, a button to run them now, the outcome.
#pragma once

#include <QWidget>

class QLabel;
class QPlainTextEdit;
class QPushButton;
class QTimer;

class TopTabDdnsSection : public QWidget {
    Q_OBJECT
public:
    explicit TopTabDdnsSection(QWidget* parent = nullptr);

    // Shows the stored list; the text the user is typing is left alone.
    void showList(const QString& list);
    // What the last run ended with.
    void showOutcome(const QString& outcome);

    QPlainTextEdit* editor() const { return editor_; }
    QPushButton* runButton() const { return run_; }
    QLabel* outcomeLabel() const { return outcome_; }

Q_SIGNALS:
    // The list was edited; sent once typing pauses, not per key.
    void listEdited(const QString& list);
    void runRequested();

private:
    void textEdited();

    QPlainTextEdit* editor_;
    QPushButton* run_;
    QLabel* outcome_;
    QTimer* settle_;
};
