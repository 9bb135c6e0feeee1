// A list of switchable entries that the user reorders by dragging.
#pragma once

#include <QList>
#include <QListWidget>
#include <QString>

class ElementOrderList : public QListWidget {
    Q_OBJECT
public:
    struct Entry {
        qint64 code; // the entry's number in the stored order
        QString text;
        bool on;
    };

    explicit ElementOrderList(QWidget* parent = nullptr);

    // Shows the entries in this order without announcing a change.
    void setEntries(const QList<Entry>& entries);
    QList<Entry> entries() const;
    QList<qint64> order() const;
    // Moves the entry at row from to row to, as a drag would (also the keyboard's way to reorder).
    void moveEntry(int from, int to);

Q_SIGNALS:
    // An entry was switched on or off.
    void entrySwitched(qint64 code, bool on);
    // The user dropped an entry at a new place.
    void orderChanged(const QList<qint64>& order);

protected:
    void dropEvent(QDropEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool filling_ = false;
};
