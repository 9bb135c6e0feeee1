// The virtual X screen that the end-to-end tests run tarvel on, and what they look for on it.
#pragma once

#include "server_process.h"
#include "virtual_display.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QHash>
#include <QImage>
#include <QList>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QThread>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <memory>
#include <vector>

// Polls until the condition holds; false when it still does not after half a minute.
inline bool waitUntil(const std::function<bool()>& condition)
{
    const QDeadlineTimer deadline(30000);
    while (!condition()) {
        if (deadline.hasExpired())
            return false;
        QThread::msleep(250);
    }
    return true;
}

// A written picture's size in points: the files record their pixel ratio as their resolution.
inline QSize pointSize(const QImage& picture)
{
    const double ratio = picture.dotsPerMeterX() / (72.0 / 0.0254);
    return (QSizeF(picture.size()) / ratio).toSize();
}

// The bounding box of the pixels of image inside area that differ from background.
inline QRect boundsDifferingFrom(const QImage& image, const QRect& area, QRgb background)
{
    QRect bounds;
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            if (image.pixel(x, y) != background)
                bounds |= QRect(x, y, 1, 1);
    return bounds;
}

// The colours of a picture's solid parts: those of at least a few fully opaque pixels, which
// anti-aliased edges never are. These are the theme's colours of its elements.
inline QList<QRgb> solidColours(const QImage& picture)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            if (qAlpha(picture.pixel(x, y)) == 255)
                ++counts[picture.pixel(x, y)];
    QList<QRgb> colours;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it)
        if (it.value() >= 3)
            colours.append(it.key());
    return colours;
}

// Whether area holds a pixel of about that colour; live figures differ from the rendered ones, so
// the same colour may only be met on the edge of a differently shaped digit.
inline bool containsColour(const QImage& image, const QRect& area, QRgb colour)
{
    const auto near = [colour](QRgb pixel) {
        return std::abs(qRed(pixel) - qRed(colour)) <= 16 && std::abs(qGreen(pixel) - qGreen(colour)) <= 16 &&
               std::abs(qBlue(pixel) - qBlue(colour)) <= 16;
    };
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            if (near(image.pixel(x, y)))
                return true;
    return false;
}

class VirtualScreenTest : public ::testing::Test {
protected:
    // A strip the height of a panel, unless a test needs room for windows.
    virtual QSize screenSize() const { return {1024, 200}; }

    void SetUp() override
    {
        if (QStandardPaths::findExecutable(QStringLiteral("Xvfb")).isEmpty())
            GTEST_SKIP() << "Xvfb is not installed";
        display_ = std::make_unique<VirtualDisplay>(screenSize());
        ASSERT_FALSE(display_->name().isEmpty()) << "Xvfb did not start";
    }

    void TearDown() override
    {
        // Clients first: they would otherwise die of the lost display.
        for (auto it = processes_.rbegin(); it != processes_.rend(); ++it)
            stop(**it);
    }

    // A clean environment on the virtual display: no Wayland, no session bus (so Qt's tray
    // speaks XEmbed to the tray host), settings and themes in the test's own folder.
    QProcessEnvironment environment() const
    {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        for (const QString& name : {QStringLiteral("WAYLAND_DISPLAY"), QStringLiteral("DBUS_SESSION_BUS_ADDRESS"),
                                    QStringLiteral("QT_SCALE_FACTOR"), QStringLiteral("QT_SCREEN_SCALE_FACTORS")})
            env.remove(name);
        env.insert(QStringLiteral("DISPLAY"), display_->name());
        env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
        env.insert(QStringLiteral("XDG_CONFIG_HOME"), dir_.filePath(QStringLiteral("config")));
        env.insert(QStringLiteral("XDG_DATA_HOME"), dir_.filePath(QStringLiteral("data")));
        env.insert(QStringLiteral("XDG_RUNTIME_DIR"), dir_.path());
        return env;
    }

    QProcess& start(const QString& program, const QStringList& arguments)
    {
        auto process = std::make_unique<QProcess>();
        process->setProcessEnvironment(environment());
        process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process->setStandardOutputFile(QProcess::nullDevice());
        process->start(program, arguments);
        processes_.push_back(std::move(process));
        return *processes_.back();
    }

    QString settingsPath() const { return dir_.filePath(QStringLiteral("settings.plist")); }

    QStringList tarvelArguments(const QStringList& more) const
    {
        return QStringList{QStringLiteral("--settings"), settingsPath()} + more;
    }

    // The module's picture at scale 1, as the render command draws it with the same settings.
    QImage renderedPicture(const QString& moduleKey)
    {
        const QString out = dir_.filePath(QStringLiteral("rendered"));
        if (!QDir(out).exists()) {
            QProcess& render = start(QStringLiteral(TARVEL_EXECUTABLE),
                                     tarvelArguments({QStringLiteral("render"), QStringLiteral("--out"), out,
                                                      QStringLiteral("--scale"), QStringLiteral("1")}));
            render.waitForFinished(60000);
        }
        return QImage(QDir(out).filePath(moduleKey + QStringLiteral(".png")));
    }

    // The modules the render command drew a status-item picture of (menu graphs left out).
    QStringList renderedModuleKeys()
    {
        renderedPicture(QStringLiteral("General"));
        QStringList keys;
        for (const QString& file : QDir(dir_.filePath(QStringLiteral("rendered"))).entryList({QStringLiteral("*.png")}))
            if (!file.contains(QLatin1Char('-')))
                keys << file.chopped(4);
        return keys;
    }

    QImage grab()
    {
        const QString file = dir_.filePath(QStringLiteral("screen.png"));
        QProcess probe;
        probe.setProcessEnvironment(environment());
        probe.start(QStringLiteral(SCREEN_PROBE), {QStringLiteral("grab"), file});
        probe.waitForFinished(20000);
        return probe.exitCode() == 0 ? QImage(file).convertToFormat(QImage::Format_RGB32) : QImage();
    }

    bool trayHostRunning()
    {
        QProcess probe;
        probe.setProcessEnvironment(environment());
        probe.start(QStringLiteral(SCREEN_PROBE), {QStringLiteral("tray")});
        return probe.waitForFinished(20000) && probe.exitStatus() == QProcess::NormalExit && probe.exitCode() == 0;
    }

    // The geometry of the first top-level window with that name, as xwininfo lists it.
    QRect windowGeometry(const QString& name)
    {
        QProcess info;
        info.setProcessEnvironment(environment());
        info.start(QStringLiteral("xwininfo"), {QStringLiteral("-root"), QStringLiteral("-children")});
        info.waitForFinished(20000);
        const QRegularExpression line(QStringLiteral("^\\s*0x[0-9a-f]+ \"") + QRegularExpression::escape(name) +
                                      QStringLiteral("\":.*\\s(\\d+)x(\\d+)\\+(-?\\d+)\\+(-?\\d+)"));
        for (const QString& text : QString::fromLocal8Bit(info.readAllStandardOutput()).split(u'\n')) {
            const auto match = line.match(text);
            if (match.hasMatch())
                return {match.captured(3).toInt(), match.captured(4).toInt(), match.captured(1).toInt(),
                        match.captured(2).toInt()};
        }
        return {};
    }

    // The monitor may be in a slow cycle under a loaded machine: give it time to end cleanly.
    static void stop(QProcess& process) { stopServer(process, 10000); }

    QTemporaryDir dir_;
    std::unique_ptr<VirtualDisplay> display_;
    std::vector<std::unique_ptr<QProcess>> processes_;
};
