// The VNC tab: the hosts the menu lists, kept in the user's order and edited in place, the
// imports from other viewers, and the menu's switches.
#pragma once

#include "net/vnc_host.h"
#include "preferences/preference_tab.h"

#include <QList>
#include <QString>
#include <QVariantList>

#include <functional>
#include <utility>
#include <vector>

class MenuModuleDelegate;
class QCheckBox;
class QLabel;
class QPushButton;
class VncHostTable;

class VNCTabViewController final : public PreferenceTab {
    Q_OBJECT
public:
    using HostImporter = std::function<QList<VncHost>()>;
    using FolderChooser = std::function<QString()>;
    using Opener = std::function<void(const QString& url)>;

    VNCTabViewController(MenuModuleDelegate* delegate, SettingsStore& store, PrefNotificationCenter& center,
                         QWidget* parent = nullptr);

    // Where the hosts of other viewers come from, which folder a .vncloc import reads, and how a
    // host is opened: the user's own unless set (tests set them).
    void setHostImporter(HostImporter importer) { importer_ = std::move(importer); }
    void setFolderChooser(FolderChooser chooser) { chooser_ = std::move(chooser); }
    void setOpener(Opener opener) { opener_ = std::move(opener); }

    // Appends the found hosts after the stored ones (duplicates too), stores, saves and tells
    // the module; says in the tab how many came, or that none did. Returns how many.
    qsizetype importSSCacheFiles(const QList<VncHost>& found);

protected:
    void loadViews() override;

private:
    QWidget* buildHosts();
    QWidget* buildSwitches();
    QPushButton* addButton(const char* objectName, const char* text, void (VNCTabViewController::*action)());
    void addSwitch(QWidget* box, const char* key, const char* text);
    // A switch that stores its key, not yet laid out.
    QCheckBox* makeSwitch(const char* key, const QString& text, const QVariantMap& userInfo);

    void addHost();
    void deleteHost();
    void moveHostUp() { moveHost(-1); }
    void moveHostDown() { moveHost(1); }
    void moveHost(int step);
    void connectHost();
    void importFromViewers();
    void importFromFolder();
    void menuToggled(int row, bool shown);
    void nameEdited(int row, const QString& name);
    void addressEdited(int row, const QString& address);

    // Writes the hosts as shown, saves and posts.
    void storeHosts();
    // Fills the table from the hosts, with the given row selected.
    void showHosts(int selectRow);
    void setRecordValue(int row, const char* key, const QVariant& value);
    void updateButtons();
    void showMessage(const QString& text);

    MenuModuleDelegate* delegate_;
    HostImporter importer_;
    FolderChooser chooser_;
    Opener opener_;
    QVariantList records_; // the hosts as the table shows them
    VncHostTable* table_ = nullptr;
    QLabel* message_ = nullptr;
    std::vector<QPushButton*> rowButtons_; // the ones that act on the selected host
    std::vector<std::pair<const char*, QCheckBox*>> switches_;
};
