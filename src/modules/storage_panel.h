// The panel under the Disk and Volume graphs: a block per disk or volume, its picture at the left.
#pragma once

#include <QList>
#include <QString>
#include <QWidget>

#include <vector>

class QGridLayout;
class QLabel;

class StoragePanel : public QWidget {
    Q_OBJECT
public:
    // The blocks as shown, one line per label, for tests and the snapshot.
    int rowCount() const { return static_cast<int>(blocks_.size()); }
    QString rowText(int row) const;

protected:
    explicit StoragePanel(QWidget* parent);

    struct Block {
        QString key; // the disk's device or the volume's mount point
        QList<QLabel*> lines;
    };

    // Removes every block; with nothing to list, says so (emptyNotice, a localisation key) and
    // returns false.
    bool startBlocks(bool nothingToList, const char* emptyNotice);
    // Adds a block: the picture beside all its lines, the first line bold, the second muted.
    void addBlock(const QString& key, QLabel* picture, const QList<QLabel*>& lines);

    std::vector<Block> blocks_;

private:
    QGridLayout* grid_ = nullptr;
    int nextLine_ = 0;
};
