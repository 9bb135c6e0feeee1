// Desktop files: the parser on awkward files, the index over a temporary XDG tree, and naming processes.
#include "collect/desktop_entry.h"
#include "collect/desktop_index.h"
#include "collect/running_applications.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <map>

namespace {
const QLocale kGerman(QLocale::German, QLocale::Germany);

void writeFile(const QString& path, const QByteArray& text)
{
    QDir().mkpath(path.section('/', 0, -2));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
}

class FakeProcesses : public ProcessSource {
public:
    std::vector<ProcessRecord> records;
    std::map<std::int64_t, std::string> executables;
    std::optional<ProcessCounts> counts() override { return std::nullopt; }
    std::optional<std::vector<ProcessRecord>> scanProcesses() override { return records; }
    int lookUps = 0;
    std::optional<std::string> executablePath(std::int64_t pid) override
    {
        ++lookUps;
        const auto found = executables.find(pid);
        return found == executables.end() ? std::nullopt : std::optional(found->second);
    }
};
} // namespace

TEST(DesktopEntryText, PicksTheLocalisedNameAndTheProgram)
{
    const auto entry = parseDesktopEntry(u"# comment\n[Desktop Entry]\nName=Text Editor\nName[de]=Texteditor\n"
                                         u"Name[de_DE]=Texteditor\\sDE\nName[fr]=Éditeur\nType=Application\n"
                                         u"Exec=env GTK_THEME=Adwaita \"/opt/My Apps/gedit\" %U\nStartupWMClass=Gedit\n"
                                         u"[Desktop Action new]\nName=New Window\nExec=other\nNoDisplay=true\n",
                                         kGerman);
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->name, "Texteditor DE");
    EXPECT_EQ(entry->execName, "gedit");
    EXPECT_EQ(entry->wmClass, "Gedit");
    EXPECT_TRUE(entry->shown);

    const auto plain = parseDesktopEntry(u"[Desktop Entry]\nName=Text Editor\nName[de]=Texteditor\n", QLocale::c());
    ASSERT_TRUE(plain);
    EXPECT_EQ(plain->name, "Text Editor");
    EXPECT_TRUE(plain->execName.isEmpty());
}

TEST(DesktopEntryText, HiddenEntriesLinksAndOtherFiles)
{
    EXPECT_FALSE(parseDesktopEntry(u"[Desktop Entry]\nType=Link\nName=Site\nURL=https://example.org\n", kGerman));
    EXPECT_FALSE(parseDesktopEntry(u"Name=No group\nExec=x\n", kGerman));
    EXPECT_FALSE(parseDesktopEntry(u"[Desktop Entry]\nName=Helper\nNoDisplay=true\nExec=helper\n", kGerman)->shown);
    EXPECT_FALSE(parseDesktopEntry(u"[Desktop Entry]\nName=Gone\nHidden=true\n", kGerman)->shown);
}

class DesktopTree : public ::testing::Test {
protected:
    QTemporaryDir dir;
    QString home() const { return dir.path() + "/home"; }
    QString system() const { return dir.path() + "/usr"; }
    DesktopIndex index() const { return DesktopIndex({home(), system()}, kGerman); }
};

TEST_F(DesktopTree, EarlierFoldersWinAndSubfoldersGiveIds)
{
    writeFile(system() + "/applications/firefox.desktop",
              "[Desktop Entry]\nName=Firefox\nExec=/usr/lib/firefox/firefox\n");
    writeFile(home() + "/applications/firefox.desktop", "[Desktop Entry]\nName=My Firefox\nExec=firefox-wrapper\n");
    writeFile(system() + "/applications/kde/konsole.desktop", "[Desktop Entry]\nName=Konsole\nExec=konsole\n");
    writeFile(system() + "/applications/daemon.desktop", "[Desktop Entry]\nName=Daemon\nExec=daemond\n");
    writeFile(home() + "/applications/daemon.desktop", "[Desktop Entry]\nName=Daemon\nExec=daemond\nHidden=true\n");
    writeFile(system() + "/applications/term.desktop",
              "[Desktop Entry]\nName=Terminal\nName[de]=Terminal "
              "DE\nExec=gnome-terminal\nStartupWMClass=Gnome-terminal-server\n");

    DesktopIndex apps = index();
    apps.refresh();
    EXPECT_EQ(apps.nameFor("firefox-wrapper"), "My Firefox");
    EXPECT_EQ(apps.nameFor("firefox"), "My Firefox"); // by the file's id
    EXPECT_EQ(apps.nameFor("kde-konsole"), "Konsole");
    EXPECT_EQ(apps.nameFor("KONSOLE"), "Konsole");
    EXPECT_FALSE(apps.nameFor("daemond"));
    EXPECT_EQ(apps.nameFor("gnome-terminal-server"), "Terminal DE");
}

TEST_F(DesktopTree, RebuildsOnlyWhenAFolderChanges)
{
    writeFile(system() + "/applications/a.desktop", "[Desktop Entry]\nName=A\nExec=a\n");
    DesktopIndex apps = index();
    apps.refresh();
    apps.refresh();
    EXPECT_EQ(apps.buildCount(), 1);

    // The home folder did not exist at first; its appearance counts as a change.
    writeFile(home() + "/applications/b.desktop", "[Desktop Entry]\nName=B\nExec=b\n");
    apps.refresh();
    EXPECT_EQ(apps.buildCount(), 2);
    EXPECT_EQ(apps.nameFor("b"), "B");

    writeFile(system() + "/applications/sub/c.desktop", "[Desktop Entry]\nName=C\nExec=c\n");
    apps.refresh();
    EXPECT_EQ(apps.nameFor("c"), "C");
    writeFile(system() + "/applications/sub/d.desktop", "[Desktop Entry]\nName=D\nExec=d\n");
    apps.refresh();
    EXPECT_EQ(apps.nameFor("d"), "D");
    EXPECT_EQ(apps.buildCount(), 4);
}

TEST_F(DesktopTree, NamesRunningProcessesOnceEachByExecutableThenCommand)
{
    writeFile(system() + "/applications/editor.desktop", "[Desktop Entry]\nName=Editor\nExec=editor %F\n");
    writeFile(system() + "/applications/tool.desktop", "[Desktop Entry]\nExec=tool.py\n");
    DesktopIndex apps = index();
    apps.refresh();

    FakeProcesses processes;
    processes.records = {{10, "editor-main", 0, 0, 1, 500}, {11, "tool.py", 0, 0, 1, 600}, {12, "bash", 0, 0, 1, 700}};
    processes.executables = {{10, "/usr/bin/editor"}, {11, "/usr/bin/python3.12"}, {12, "/usr/bin/bash"}};
    RunningApplications running;
    EXPECT_EQ(running.names(processes.records, processes, apps),
              ProcessDict({{"_10", "Editor"}, {"_11", "unknown pid :: 11"}}));
    EXPECT_EQ(processes.lookUps, 3);

    // Known processes are not looked up again. The editor ended and its pid went to another
    // program; the tool ended; a new editor started.
    processes.records = {{10, "bash", 0, 0, 1, 900}, {12, "bash", 0, 0, 1, 700}, {13, "editor", 0, 0, 1, 950}};
    processes.executables = {{10, "/usr/bin/bash"}, {12, "/usr/bin/bash"}, {13, "/usr/bin/editor"}};
    EXPECT_EQ(running.names(processes.records, processes, apps), ProcessDict({{"_13", "Editor"}}));
    EXPECT_EQ(processes.lookUps, 5);

    // A rebuilt index may name them differently: everyone is looked up afresh.
    writeFile(system() + "/applications/shell.desktop", "[Desktop Entry]\nName=Shell\nExec=bash\n");
    apps.refresh();
    EXPECT_EQ(running.names(processes.records, processes, apps),
              ProcessDict({{"_10", "Shell"}, {"_12", "Shell"}, {"_13", "Editor"}}));
    EXPECT_EQ(processes.lookUps, 8);
}
