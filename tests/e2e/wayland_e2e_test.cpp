// Tests the bar window and the preferences window under a real Wayland compositor (weston,
// headless): they come up, draw, take a click on an item, and end cleanly on SIGTERM.
#include "headless_weston.h"

#include <QDeadlineTimer>
#include <QProcess>
#include <QSize>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QThread>
#include <gtest/gtest.h>

#include <memory>

namespace {

// The variable that makes tarvel tell which windows the compositor shows, and press the bar's
// first item: weston's headless backend has no input device a test could drive.
constexpr auto kProbeVariable = "TARVEL_WINDOW_PROBE";

// The size in a "window shown: <class> <width>x<height>" line.
QSize shownSize(const QString& line)
{
    const QStringList size = line.section(u' ', -1).split(u'x');
    return size.size() == 2 ? QSize(size[0].toInt(), size[1].toInt()) : QSize();
}

class WaylandTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        if (QStandardPaths::findExecutable(QStringLiteral("weston")).isEmpty())
            GTEST_SKIP() << "weston is not installed";
        weston_ = std::make_unique<HeadlessWeston>();
        if (weston_->socket().isEmpty())
            GTEST_SKIP() << "weston could not start: " << weston_->failure().toStdString();
    }

    void TearDown() override
    {
        if (tarvel_.state() != QProcess::NotRunning) {
            tarvel_.kill();
            tarvel_.waitForFinished();
        }
    }

    void startTarvel(const QStringList& arguments)
    {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        for (const QString& name : {QStringLiteral("DISPLAY"), QStringLiteral("DBUS_SESSION_BUS_ADDRESS"),
                                    QStringLiteral("QT_SCALE_FACTOR"), QStringLiteral("QT_SCREEN_SCALE_FACTORS")})
            env.remove(name);
        env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("wayland"));
        env.insert(QStringLiteral("WAYLAND_DISPLAY"), weston_->socket());
        env.insert(QStringLiteral("XDG_RUNTIME_DIR"), weston_->runtimeDir());
        env.insert(QStringLiteral("XDG_CONFIG_HOME"), dir_.filePath(QStringLiteral("config")));
        env.insert(QStringLiteral("XDG_DATA_HOME"), dir_.filePath(QStringLiteral("data")));
        env.insert(QLatin1String(kProbeVariable), QStringLiteral("1"));
        tarvel_.setProcessEnvironment(env);
        tarvel_.setProcessChannelMode(QProcess::SeparateChannels);
        tarvel_.setStandardOutputFile(QProcess::nullDevice());
        tarvel_.start(QStringLiteral(TARVEL_EXECUTABLE),
                      QStringList{QStringLiteral("--settings"), dir_.filePath(QStringLiteral("settings.plist"))} +
                          arguments);
        tarvel_.waitForStarted();
    }

    // Waits for a line of tarvel's standard error that starts with prefix; the line, or empty.
    QString waitForLine(const QString& prefix)
    {
        const QDeadlineTimer deadline(30000);
        while (!deadline.hasExpired()) {
            for (const QString& line : std::as_const(lines_))
                if (line.startsWith(prefix))
                    return line;
            if (tarvel_.state() != QProcess::Running)
                break;
            tarvel_.waitForReadyRead(250);
            const QString more = QString::fromLocal8Bit(tarvel_.readAllStandardError());
            lines_ += more.split(u'\n', Qt::SkipEmptyParts);
        }
        return {};
    }

    // SIGTERM, as a session's end sends it, ends the program with status 0.
    void expectCleanEnd()
    {
        tarvel_.terminate();
        ASSERT_TRUE(tarvel_.waitForFinished(10000));
        EXPECT_EQ(tarvel_.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(tarvel_.exitCode(), 0);
    }

    std::unique_ptr<HeadlessWeston> weston_;
    QTemporaryDir dir_;
    QProcess tarvel_;
    QStringList lines_;
};

} // namespace

TEST_F(WaylandTest, BarWindowComesUpDrawsAndOpensAMenuOnAClick)
{
    startTarvel({QStringLiteral("--bar")});
    // Shown: the compositor configured the window and told it to draw, as wide as its output.
    const QString shown = waitForLine(QStringLiteral("window shown: BarWindowStatusBar"));
    ASSERT_FALSE(shown.isEmpty()) << "the bar window was not shown: " << lines_.join(u'\n').toStdString();
    const QSize bar = shownSize(shown);
    EXPECT_EQ(bar.width(), 1024) << shown.toStdString();
    EXPECT_GE(bar.height(), 20) << shown.toStdString();
    EXPECT_FALSE(waitForLine(QStringLiteral("pressed: ")).isEmpty()) << "no item had a picture and a menu";
    // The menu is a popup of the bar window, which the compositor shows beside it.
    EXPECT_FALSE(waitForLine(QStringLiteral("menu opened")).isEmpty())
        << "the menu did not open: " << lines_.join(u'\n').toStdString();

    expectCleanEnd();
}

TEST_F(WaylandTest, PreferencesWindowComesUpAndDraws)
{
    startTarvel({QStringLiteral("--preferences"), QStringLiteral("CPU")});
    const QString shown = waitForLine(QStringLiteral("window shown: PreferencesWindow"));
    ASSERT_FALSE(shown.isEmpty()) << "the preferences window was not shown: " << lines_.join(u'\n').toStdString();
    // A window, not a sliver.
    const QSize window = shownSize(shown);
    EXPECT_GE(window.width(), 400) << shown.toStdString();
    EXPECT_GE(window.height(), 300) << shown.toStdString();
    expectCleanEnd();
}
