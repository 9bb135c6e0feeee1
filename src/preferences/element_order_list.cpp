// Switchable, draggable entries: check boxes for switches, internal moves for the order.
#include "preferences/element_order_list.h"

#include <QDropEvent>
#include <QKeyEvent>

namespace {

constexpr int kCodeRole = Qt::UserRole + 1;

} // namespace

ElementOrderList::ElementOrderList(QWidget* parent)
    : QListWidget(parent)
{
    setDragDropMode(QAbstractItemView::InternalMove);
    setDefaultDropAction(Qt::MoveAction);
    setSelectionMode(QAbstractItemView::SingleSelection);
    connect(this, &QListWidget::itemChanged, this, [this](QListWidgetItem* item) {
        if (!filling_)
            Q_EMIT entrySwitched(item->data(kCodeRole).toLongLong(), item->checkState() == Qt::Checked);
    });
}

void ElementOrderList::setEntries(const QList<Entry>& entries)
{
    // The entry the user is working on stays selected when the stored order comes back, so a
    // second Alt+Up moves it again.
    const QVariant selected = currentItem() != nullptr ? currentItem()->data(kCodeRole) : QVariant();
    filling_ = true;
    clear();
    for (const Entry& entry : entries) {
        auto* item = new QListWidgetItem(entry.text, this);
        item->setData(kCodeRole, entry.code);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable | Qt::ItemIsDragEnabled);
        item->setCheckState(entry.on ? Qt::Checked : Qt::Unchecked);
        if (selected.isValid() && selected.toLongLong() == entry.code)
            setCurrentItem(item);
    }
    // Tall enough for every entry, so that dragging never needs scrolling.
    if (count() > 0)
        setFixedHeight(sizeHintForRow(0) * count() + 2 * frameWidth() + 4);
    filling_ = false;
}

QList<ElementOrderList::Entry> ElementOrderList::entries() const
{
    QList<Entry> result;
    for (int row = 0; row < count(); ++row) {
        const QListWidgetItem* it = item(row);
        result.append({it->data(kCodeRole).toLongLong(), it->text(), it->checkState() == Qt::Checked});
    }
    return result;
}

QList<qint64> ElementOrderList::order() const
{
    QList<qint64> codes;
    for (int row = 0; row < count(); ++row)
        codes.append(item(row)->data(kCodeRole).toLongLong());
    return codes;
}

void ElementOrderList::dropEvent(QDropEvent* event)
{
    const QList<qint64> before = order();
    QListWidget::dropEvent(event);
    if (order() != before)
        Q_EMIT orderChanged(order());
}

void ElementOrderList::moveEntry(int from, int to)
{
    if (from < 0 || from >= count() || to < 0 || to >= count() || from == to)
        return;
    filling_ = true;
    QListWidgetItem* moved = takeItem(from);
    insertItem(to, moved);
    setCurrentItem(moved);
    filling_ = false;
    Q_EMIT orderChanged(order());
}

void ElementOrderList::keyPressEvent(QKeyEvent* event)
{
    // Alt+Up and Alt+Down move the selected entry, for those who do not drag.
    const int row = currentRow();
    if (event->modifiers().testFlag(Qt::AltModifier) && (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down)) {
        moveEntry(row, event->key() == Qt::Key_Up ? row - 1 : row + 1);
        return;
    }
    QListWidget::keyPressEvent(event);
}
