// Every change writes Vnc_ClientSortArray (or its switch), saves and posts "VNCModuleNotif"; the
// menu reads the hosts again when it next opens.
#include "modules/vnc/vnc_tab_view_controller.h"

#include "modules/desktop_tool_switch.h"
#include "modules/menu_module.h"
#include "modules/module_registry.h"
#include "modules/vnc/vnc_host_table.h"
#include "modules/vnc/vnc_screen_sharing.h"
#include "net/vnc_host_importers.h"
#include "net/vnc_server_address.h"
#include "net/vnc_user_dirs.h"
#include "prefs/pref_keys.h"
#include "prefs/settings_store.h"
#include "toolkit/localization.h"

#include <QCheckBox>
#include <QFileDialog>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <tuple>

using namespace PrefKey;
using namespace VncHostRecords;

VNCTabViewController::VNCTabViewController(MenuModuleDelegate* delegate, SettingsStore& store,
                                           PrefNotificationCenter& center, QWidget* parent)
    : PreferenceTab(moduleSchema(ModuleId::Vnc), store, center, parent)
    , delegate_(delegate)
    , importer_([] { return GeneralFunctions::importScreenShareFiles(VncUserDirs::fromEnvironment()); })
    , chooser_(
          [this] { return QFileDialog::getExistingDirectory(this, Tarvel::localized("Choose a folder of .vncloc files")); })
    , opener_([this](const QString& url) {
        TvlClasses::goScreenSharingApp(url, delegate_ != nullptr ? delegate_->notifier() : nullptr);
    })
{
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(buildHosts(), 1);
    layout->addWidget(buildSwitches());
}

QWidget* VNCTabViewController::buildHosts()
{
    auto* box = new QGroupBox(Tarvel::localized("Hosts"), this);
    auto* layout = new QVBoxLayout(box);
    table_ = new VncHostTable(box);
    table_->setObjectName(QStringLiteral("VncHosts"));
    layout->addWidget(table_, 1);
    message_ = new QLabel(box);
    message_->setObjectName(QStringLiteral("VncMessage"));
    message_->setWordWrap(true);
    message_->hide();
    layout->addWidget(message_);
    auto* hint = new QLabel(Tarvel::localized("Double-click a name or an address to change it."), box);
    hint->setWordWrap(true);
    layout->addWidget(hint);

    auto* rows = new QHBoxLayout();
    rows->addWidget(addButton("VncAdd", Tarvel::textKey("Add"), &VNCTabViewController::addHost));
    for (auto [name, text, action] : {std::tuple{"VncDelete", Tarvel::textKey("Delete"), &VNCTabViewController::deleteHost},
                                      std::tuple{"VncMoveUp", Tarvel::textKey("Move Up"), &VNCTabViewController::moveHostUp},
                                      std::tuple{"VncMoveDown", Tarvel::textKey("Move Down"), &VNCTabViewController::moveHostDown}})
        rows->addWidget(rowButtons_.emplace_back(addButton(name, text, action)));
    rows->addStretch(1);
    rows->addWidget(rowButtons_.emplace_back(addButton("VncConnect", Tarvel::textKey("Connect"), &VNCTabViewController::connectHost)));
    layout->addLayout(rows);

    auto* imports = new QHBoxLayout();
    imports->addWidget(
        addButton("VncImportViewers", Tarvel::textKey("Import from Remmina and TigerVNC"), &VNCTabViewController::importFromViewers));
    imports->addWidget(
        addButton("VncImportFolder", Tarvel::textKey("Import .vncloc Files..."), &VNCTabViewController::importFromFolder));
    imports->addStretch(1);
    layout->addLayout(imports);

    connect(table_, &VncHostTable::menuToggled, this, &VNCTabViewController::menuToggled);
    connect(table_, &VncHostTable::nameEdited, this, &VNCTabViewController::nameEdited);
    connect(table_, &VncHostTable::addressEdited, this, &VNCTabViewController::addressEdited);
    connect(table_, &QTableWidget::itemSelectionChanged, this, &VNCTabViewController::updateButtons);
    updateButtons();
    return box;
}

QWidget* VNCTabViewController::buildSwitches()
{
    auto* box = new QGroupBox(Tarvel::localized("Menu items"), this);
    new QVBoxLayout(box);
    addSwitch(box, Vnc_ShowMenu, Tarvel::textKey("Show the VNC item in the menu bar"));
    addSwitch(box, Vnc_AddMenuOpenAll, Tarvel::textKey("Add \"Open All of Servers at Once\" to the menu"));
    // The tool items are built with the menu, so it is rebuilt at its next opening.
    const QVariantMap refreshItems{{QLatin1String(NotifKey::ModuleItemRefreshNow), true}};
    DesktopToolSwitch::addRows(box->layout(), {Vnc_EnaMenu_Amon, Vnc_EnaMenu_Cnsl, Vnc_EnaMenu_Tmnl},
                               [this, &refreshItems](const char* key) { return makeSwitch(key, {}, refreshItems); });
    return box;
}

QPushButton* VNCTabViewController::addButton(const char* objectName, const char* text,
                                             void (VNCTabViewController::*action)())
{
    auto* button = new QPushButton(Tarvel::localized(text), this);
    button->setObjectName(QLatin1String(objectName));
    connect(button, &QPushButton::clicked, this, action);
    return button;
}

void VNCTabViewController::addSwitch(QWidget* box, const char* key, const char* text)
{
    box->layout()->addWidget(makeSwitch(key, Tarvel::localized(text), {}));
}

QCheckBox* VNCTabViewController::makeSwitch(const char* key, const QString& text, const QVariantMap& userInfo)
{
    auto* check = new QCheckBox(text);
    check->setObjectName(QLatin1String(key));
    switches_.emplace_back(key, check);
    connect(check, &QCheckBox::toggled, this, [this, key, userInfo](bool on) {
        if (loading())
            return;
        store().setBool(QLatin1String(key), on);
        commit(userInfo);
    });
    return check;
}

void VNCTabViewController::loadViews()
{
    for (const auto& [key, check] : switches_)
        check->setChecked(myDefaults().boolValue(QLatin1String(key)));
    const QVariantList stored = myDefaults().listValue(QLatin1String(Vnc_ClientSortArray));
    // The application hands every tab its settings after any change anywhere: a table that
    // already shows them is left alone, with its selection and any edit under way.
    if (stored == records_ && table_->rowCount() == records_.size())
        return;
    records_ = stored;
    showHosts(table_->selectedRow());
}

qsizetype VNCTabViewController::importSSCacheFiles(const QList<VncHost>& found)
{
    if (found.isEmpty()) {
        showMessage(Tarvel::localized("No VNC hosts were found."));
        return 0;
    }
    records_ = appendImported(records_, found);
    storeHosts();
    showHosts(static_cast<int>(records_.size() - found.size()));
    showMessage(Tarvel::localized("Imported %1 hosts.").arg(found.size()));
    return found.size();
}

void VNCTabViewController::addHost()
{
    records_.append(QVariantMap{{QLatin1String(kName), Tarvel::localized("New Host")},
                                {QLatin1String(kUrl), QStringLiteral("vnc://localhost")},
                                {QLatin1String(kMenu), true}});
    const int row = static_cast<int>(records_.size() - 1);
    storeHosts();
    showHosts(row);
    table_->editItem(table_->item(row, VncHostTable::NameColumn));
}

void VNCTabViewController::deleteHost()
{
    const int row = table_->selectedRow();
    if (row < 0 || row >= records_.size())
        return;
    records_.removeAt(row);
    storeHosts();
    showHosts(std::min(row, static_cast<int>(records_.size()) - 1));
}

void VNCTabViewController::moveHost(int step)
{
    const int row = table_->selectedRow();
    const int to = row + step;
    if (row < 0 || to < 0 || to >= records_.size())
        return;
    records_.swapItemsAt(row, to);
    storeHosts();
    showHosts(to);
}

void VNCTabViewController::connectHost()
{
    const int row = table_->selectedRow();
    if (row >= 0 && row < records_.size() && opener_)
        opener_(records_.at(row).toMap().value(QLatin1String(kUrl)).toString());
}

void VNCTabViewController::importFromViewers()
{
    importSSCacheFiles(importer_ ? importer_() : QList<VncHost>());
}

void VNCTabViewController::importFromFolder()
{
    const QString folder = chooser_ ? chooser_() : QString();
    if (!folder.isEmpty())
        importSSCacheFiles(GeneralFunctions::importScreenShareFileFromAs(folder));
}

void VNCTabViewController::menuToggled(int row, bool shown)
{
    setRecordValue(row, kMenu, shown);
}

void VNCTabViewController::nameEdited(int row, const QString& name)
{
    if (name.trimmed().isEmpty()) {
        showMessage(Tarvel::localized("A host needs a name."));
        table_->setCellText(row, VncHostTable::NameColumn,
                            records_.value(row).toMap().value(QLatin1String(kName)).toString());
        return;
    }
    setRecordValue(row, kName, name.trimmed());
}

void VNCTabViewController::addressEdited(int row, const QString& address)
{
    const auto url = VncServerAddress::normalizedUrl(address);
    if (!url) {
        showMessage(
            Tarvel::localized("\"%1\" is not a VNC address. Type vnc://host:port or host:port.").arg(address.trimmed()));
        table_->setCellText(row, VncHostTable::AddressColumn,
                            records_.value(row).toMap().value(QLatin1String(kUrl)).toString());
        return;
    }
    table_->setCellText(row, VncHostTable::AddressColumn, *url);
    setRecordValue(row, kUrl, *url);
}

void VNCTabViewController::setRecordValue(int row, const char* key, const QVariant& value)
{
    if (row < 0 || row >= records_.size())
        return;
    QVariantMap record = records_.at(row).toMap();
    record.insert(QLatin1String(key), value);
    records_[row] = record;
    showMessage({});
    // The table shows the edit already; refilling it from its own signal would delete the cell.
    storeHosts();
}

void VNCTabViewController::storeHosts()
{
    store().setArray(QLatin1String(Vnc_ClientSortArray), records_);
    commit();
    updateButtons();
}

void VNCTabViewController::showHosts(int selectRow)
{
    table_->setRecords(records_);
    table_->selectRow(selectRow);
    updateButtons();
}

void VNCTabViewController::updateButtons()
{
    const bool selected = table_->selectedRow() >= 0;
    for (QPushButton* button : rowButtons_)
        button->setEnabled(selected);
}

void VNCTabViewController::showMessage(const QString& text)
{
    message_->setText(text);
    message_->setVisible(!text.isEmpty());
}
