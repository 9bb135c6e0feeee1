// The Disk drop-down's panel: one block per disk with its facts, its rates and its totals.
#pragma once

#include "collect/disk_sample.h"
#include "collect/history.h"
#include "collect/storage_descriptions.h"
#include "prefs/module_defaults.h"

#include <QWidget>

#include <vector>

class QGridLayout;
class QLabel;

class Disk_MenuController final : public QWidget {
    Q_OBJECT
public:
    explicit Disk_MenuController(QWidget* parent = nullptr);

    // One block per disk: its picture, name and model, hardware facts. Rates and totals are
    // filled by replaceData.
    void loadBaseData(const ModuleDefaults& myDefaults, const DiskBaseDict& diskBaseDict);
    // Every tick while the menu is open.
    void replaceData(const History<DiskSample>& resumeArray);

    // The blocks as shown, one line per label, for tests and the snapshot.
    int rowCount() const { return static_cast<int>(rows_.size()); }
    QString rowText(int row) const;

private:
    struct Row {
        QString key;
        QLabel* title = nullptr;
        QLabel* facts = nullptr;
        QLabel* rates = nullptr;
        QLabel* totals = nullptr;
    };

    QGridLayout* grid_ = nullptr;
    std::vector<Row> rows_;
};
