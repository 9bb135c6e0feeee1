// The Volume drop-down's panel: one block per volume with its picture, file system, used and free.
#pragma once

#include "collect/disk_sample.h"
#include "collect/history.h"
#include "collect/storage_descriptions.h"
#include "prefs/module_defaults.h"

#include <QWidget>

#include <vector>

class QGridLayout;
class QLabel;

class Volume_MenuController final : public QWidget {
    Q_OBJECT
public:
    explicit Volume_MenuController(QWidget* parent = nullptr);

    // One block per volume: its picture, name, file system, device and mount point. The space
    // is filled by replaceData.
    void loadBaseData(const ModuleDefaults& myDefaults, const VolumeBaseDict& volumeBaseDict);
    // Every tick while the menu is open.
    void replaceData(const History<VolumeSample>& resumeArray);

    // The blocks as shown, one line per label, for tests.
    int rowCount() const { return static_cast<int>(rows_.size()); }
    QString rowText(int row) const;

private:
    struct Row {
        QString path;
        QLabel* title = nullptr;
        QLabel* facts = nullptr;
        QLabel* usage = nullptr;
    };

    QGridLayout* grid_ = nullptr;
    std::vector<Row> rows_;
};
