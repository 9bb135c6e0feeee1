// Tests the tray icons on a StatusNotifierItem tray (Plasma, GNOME's AppIndicator extension and
// most panels now): tarvel on a virtual screen, on a private bus where a watcher stands for the
// panel, registers one item per shown module, each with a picture and its module's menu.
#include "support/private_session_bus.h"
#include "support/status_notifier_watcher.h"
#include "virtual_screen_test.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>

namespace {

constexpr auto kItemInterface = "org.kde.StatusNotifierItem";

// Polls as waitUntil does, but keeps this process's bus connections served meanwhile.
bool serveUntil(const std::function<bool()>& condition)
{
    const QDeadlineTimer deadline(30000);
    while (!condition()) {
        if (deadline.hasExpired())
            return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
        QThread::msleep(50);
    }
    return true;
}

// One property of an item, read over the bus; invalid when the item does not answer.
QVariant itemProperty(const QDBusConnection& bus, const QString& service, const QString& path, const char* name)
{
    QDBusMessage get = QDBusMessage::createMethodCall(service, path, QStringLiteral("org.freedesktop.DBus.Properties"),
                                                      QStringLiteral("Get"));
    get << QLatin1String(kItemInterface) << QLatin1String(name);
    const QDBusMessage reply = bus.call(get, QDBus::Block, 10000);
    if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().isEmpty())
        return {};
    return qvariant_cast<QDBusVariant>(reply.arguments().constFirst()).variant();
}

// The largest picture of an IconPixmap property (a(iiay)): width times bytes given.
QPair<int, qsizetype> largestPixmap(const QVariant& property)
{
    QPair<int, qsizetype> largest{0, 0};
    const auto pixmaps = qvariant_cast<QDBusArgument>(property);
    pixmaps.beginArray();
    while (!pixmaps.atEnd()) {
        int width = 0;
        int height = 0;
        QByteArray bytes;
        pixmaps.beginStructure();
        pixmaps >> width >> height >> bytes;
        pixmaps.endStructure();
        if (width > largest.first)
            largest = {width, bytes.size()};
    }
    pixmaps.endArray();
    return largest;
}

// The labels of a com.canonical.dbusmenu layout node (ia{sv}av) and everything below it.
void collectLabels(const QDBusArgument& node, QStringList& labels)
{
    int id = 0;
    QVariantMap properties;
    node.beginStructure();
    node >> id >> properties;
    node.beginArray();
    while (!node.atEnd()) {
        QDBusVariant child;
        node >> child;
        collectLabels(qvariant_cast<QDBusArgument>(child.variant()), labels);
    }
    node.endArray();
    node.endStructure();
    if (properties.contains(QStringLiteral("label")))
        labels << properties.value(QStringLiteral("label")).toString();
}

QStringList menuLabels(const QDBusConnection& bus, const QString& service, const QString& menuPath)
{
    QDBusMessage call = QDBusMessage::createMethodCall(service, menuPath, QStringLiteral("com.canonical.dbusmenu"),
                                                       QStringLiteral("GetLayout"));
    call << 0 << -1 << QStringList();
    const QDBusMessage reply = bus.call(call, QDBus::Block, 10000);
    QStringList labels;
    if (reply.type() == QDBusMessage::ReplyMessage && reply.arguments().size() == 2)
        collectLabels(qvariant_cast<QDBusArgument>(reply.arguments().at(1)), labels);
    return labels;
}

class StatusNotifierTest : public VirtualScreenTest {
protected:
    void SetUp() override
    {
        VirtualScreenTest::SetUp();
        if (IsSkipped() || HasFatalFailure())
            return;
        ASSERT_TRUE(bus_.started()) << "dbus-daemon did not start";
        ASSERT_TRUE(watcher_.registerOn(bus_.connect(QStringLiteral("watcher"))));
        reader_ = bus_.connect(QStringLiteral("reader"));
    }

    // tarvel on the virtual screen, speaking to the private bus.
    QProcess& startTarvel()
    {
        auto process = std::make_unique<QProcess>();
        QProcessEnvironment env = environment();
        env.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), bus_.address());
        process->setProcessEnvironment(env);
        process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process->setStandardOutputFile(QProcess::nullDevice());
        process->start(QStringLiteral(TARVEL_EXECUTABLE), tarvelArguments({}));
        processes_.push_back(std::move(process));
        return *processes_.back();
    }

    PrivateSessionBus bus_;
    StatusNotifierWatcher watcher_;
    QDBusConnection reader_{QString()};
};

} // namespace

TEST_F(StatusNotifierTest, EveryShownModuleRegistersAnItemWithItsPictureAndMenu)
{
    const QStringList shown = renderedModuleKeys();
    ASSERT_FALSE(shown.isEmpty()) << "the render command drew no status item";
    QProcess& tarvel = startTarvel();
    ASSERT_TRUE(tarvel.waitForStarted());

    // Each icon registers once it has its first picture.
    serveUntil([&] { return watcher_.registeredItems().size() >= shown.size(); });
    // A moment more, in case an item registered twice or one too many came.
    QDeadlineTimer settle(1500);
    serveUntil([&] { return settle.hasExpired(); });
    const QStringList items = watcher_.registeredItems();
    ASSERT_EQ(items.size(), shown.size())
        << "registered: " << items.join(u' ').toStdString() << "; shown: " << shown.join(u' ').toStdString();
    EXPECT_LT(windowGeometry(QStringLiteral("Tarvel")).width(), screenSize().width())
        << "a bar window was shown beside the tray";

    QStringList menusOf;
    for (const QString& item : items) {
        SCOPED_TRACE(item.toStdString());
        const qsizetype slash = item.indexOf(u'/');
        const QString service = item.left(slash);
        const QString path = item.mid(slash);
        const auto [width, bytes] = largestPixmap(itemProperty(reader_, service, path, "IconPixmap"));
        const bool named = !itemProperty(reader_, service, path, "IconName").toString().isEmpty();
        EXPECT_TRUE((width > 0 && bytes >= qsizetype(width) * 4) || named) << "an item without a picture";
        const QString menu = qvariant_cast<QDBusObjectPath>(itemProperty(reader_, service, path, "Menu")).path();
        ASSERT_FALSE(menu.isEmpty()) << "an item without a menu";
        const QStringList labels = menuLabels(reader_, service, menu);
        // Every module's menu opens with the item of its preferences tab; the Tarvel item's with
        // the preferences themselves, and it alone can quit.
        for (const QString& key : shown) {
            const QString opener = QStringLiteral("Open \"%1\" Preference").arg(key);
            if (labels.contains(opener) || (key == QLatin1String("General") && labels.contains(QStringLiteral("Quit"))))
                menusOf << key;
        }
    }
    menusOf.sort();
    QStringList expected = shown;
    expected.sort();
    EXPECT_EQ(menusOf, expected) << "the menus found belong to " << menusOf.join(u' ').toStdString();

    tarvel.terminate();
    ASSERT_TRUE(tarvel.waitForFinished(10000));
    EXPECT_EQ(tarvel.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(tarvel.exitCode(), 0);
}
