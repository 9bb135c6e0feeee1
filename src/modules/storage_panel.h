// The panel under the Disk and Volume graphs: a block per disk or volume, its picture at the left.
#pragma once

#include "collect/history.h"
#include "modules/storage_pictures.h"

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
    // A kind picture for a block: at the size the theme gives it, or, with a side in points,
    // scaled into a column that wide.
    QLabel* pictureLabel(const ThemePicture& picture, double side = 0);

    std::vector<Block> blocks_;

private:
    QGridLayout* grid_ = nullptr;
    int nextLine_ = 0;
};

// A panel for a description of disks or volumes (Description) and their samples; each module
// defines how its blocks are laid out and filled.
template <class Description, class Sample> class StoragePanelOf final : public StoragePanel {
public:
    explicit StoragePanelOf(QWidget* parent = nullptr)
        : StoragePanel(parent)
    {}

    // One block per entry, with its kind picture and the facts that do not change while the
    // menu is open.
    void loadBaseData(const StoragePictures& pictures, const Description& description);
    // Every tick while the menu is open: the figures.
    void replaceData(const History<Sample>& resumeArray);
};
