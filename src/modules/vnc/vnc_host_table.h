// The VNC tab's table of hosts: whether each is in the menu, its name and its address, edited
// in place.
#pragma once

#include <QTableWidget>
#include <QVariantList>

class VncHostTable final : public QTableWidget {
    Q_OBJECT
public:
    enum Column { MenuColumn, NameColumn, AddressColumn };

    explicit VncHostTable(QWidget* parent = nullptr);

    // Shows the stored records; the user's edits of what was shown are not reported meanwhile.
    void setRecords(const QVariantList& records);
    // Puts a cell back to the given text, as when an edit was refused.
    void setCellText(int row, Column column, const QString& text);
    // The row under the selection; -1 when none is selected.
    int selectedRow() const;
    void selectRow(int row);

Q_SIGNALS:
    void menuToggled(int row, bool shown);
    void nameEdited(int row, const QString& name);
    void addressEdited(int row, const QString& address);

private:
    void itemEdited(QTableWidgetItem* item);

    int filling_ = 0;
};
