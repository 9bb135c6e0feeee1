// Each edit is reported once, by row, for the tab to check and store.
#include "modules/vnc/vnc_host_table.h"

#include "net/vnc_host.h"
#include "toolkit/localization.h"

#include <QHeaderView>

VncHostTable::VncHostTable(QWidget* parent)
    : QTableWidget(0, 3, parent)
{
    setHorizontalHeaderLabels({Tarvel::localized("In menu"), Tarvel::localized("Name"), Tarvel::localized("Address")});
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                    QAbstractItemView::SelectedClicked);
    verticalHeader()->hide();
    horizontalHeader()->setSectionResizeMode(MenuColumn, QHeaderView::ResizeToContents);
    horizontalHeader()->setSectionResizeMode(NameColumn, QHeaderView::Stretch);
    horizontalHeader()->setSectionResizeMode(AddressColumn, QHeaderView::Stretch);
    connect(this, &QTableWidget::itemChanged, this, &VncHostTable::itemEdited);
}

void VncHostTable::setRecords(const QVariantList& records)
{
    using namespace VncHostRecords;
    ++filling_;
    setRowCount(static_cast<int>(records.size()));
    for (int row = 0; row < rowCount(); ++row) {
        const QVariantMap record = records.at(row).toMap();
        auto* menu = new QTableWidgetItem();
        menu->setFlags(Qt::ItemIsUserCheckable | Qt::ItemIsEnabled | Qt::ItemIsSelectable);
        menu->setCheckState(record.value(QLatin1String(kMenu)).toBool() ? Qt::Checked : Qt::Unchecked);
        setItem(row, MenuColumn, menu);
        setItem(row, NameColumn, new QTableWidgetItem(record.value(QLatin1String(kName)).toString()));
        setItem(row, AddressColumn, new QTableWidgetItem(record.value(QLatin1String(kUrl)).toString()));
    }
    --filling_;
}

void VncHostTable::setCellText(int row, Column column, const QString& text)
{
    if (QTableWidgetItem* cell = item(row, column)) {
        ++filling_;
        cell->setText(text);
        --filling_;
    }
}

int VncHostTable::selectedRow() const
{
    const QModelIndexList rows = selectionModel() != nullptr ? selectionModel()->selectedRows() : QModelIndexList();
    return rows.isEmpty() ? -1 : rows.first().row();
}

void VncHostTable::selectRow(int row)
{
    if (row >= 0 && row < rowCount())
        QTableWidget::selectRow(row);
    else
        clearSelection();
}

void VncHostTable::itemEdited(QTableWidgetItem* item)
{
    if (filling_ > 0 || item == nullptr)
        return;
    switch (item->column()) {
    case MenuColumn:
        Q_EMIT menuToggled(item->row(), item->checkState() == Qt::Checked);
        break;
    case NameColumn:
        Q_EMIT nameEdited(item->row(), item->text());
        break;
    case AddressColumn:
        Q_EMIT addressEdited(item->row(), item->text());
        break;
    default:
        break;
    }
}
