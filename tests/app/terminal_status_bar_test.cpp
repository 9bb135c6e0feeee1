// Tests the terminal front end's lines: bar order, appended stamped blocks, in-place redraws, and
// what the application's own line says.
#include "app/front_ends/terminal_status_bar.h"
#include "test_app.h"

#include <QBuffer>
#include <QRegularExpression>
#include <gtest/gtest.h>

namespace {

class TerminalTest : public ::testing::Test {
protected:
    QStringList writtenLines() const { return QString::fromUtf8(buffer.data()).split(u'\n', Qt::SkipEmptyParts); }

    QBuffer buffer;
};

} // namespace

TEST_F(TerminalTest, AppendsOneStampedLinePerModuleInBarOrderOnEachChange)
{
    buffer.open(QIODevice::WriteOnly);
    TerminalStatusBar bar(&buffer, false);
    auto general = bar.createItem(QStringLiteral("General"));
    auto cpu = bar.createItem(QStringLiteral("CPU"));
    general->setText(QStringLiteral("Tarvel"));
    cpu->setText(QStringLiteral("12%\n3%"));
    bar.flush();

    QStringList lines = writtenLines();
    ASSERT_EQ(lines.size(), 3);
    EXPECT_TRUE(lines[0].startsWith(QStringLiteral("No display found")));
    const QRegularExpression stamp(QStringLiteral("^\\d\\d:\\d\\d:\\d\\d "));
    EXPECT_TRUE(stamp.match(lines[1]).hasMatch()) << lines[1].toStdString();
    EXPECT_EQ(lines[1].mid(9), QStringLiteral("CPU      12% 3%"));
    EXPECT_EQ(lines[2].mid(9), QStringLiteral("General  Tarvel"));

    // Nothing changed, nothing written; a change appends the block, without the notice.
    cpu->setText(QStringLiteral("12%\n3%"));
    bar.flush();
    EXPECT_EQ(writtenLines().size(), 3);
    cpu.reset();
    bar.flush();
    lines = writtenLines();
    ASSERT_EQ(lines.size(), 4);
    EXPECT_EQ(lines[3].mid(9), QStringLiteral("General  Tarvel"));
}

TEST_F(TerminalTest, RedrawsInPlaceOverTheLinesDrawnBefore)
{
    buffer.open(QIODevice::WriteOnly);
    TerminalStatusBar bar(&buffer, true);
    auto general = bar.createItem(QStringLiteral("General"));
    auto cpu = bar.createItem(QStringLiteral("CPU"));
    general->setText(QStringLiteral("Tarvel"));
    bar.flush();
    // CPU has no figure yet, so no line: only General's was drawn.
    EXPECT_FALSE(buffer.data().contains("CPU"));
    EXPECT_FALSE(buffer.data().contains("\x1b[1A"));

    const qsizetype firstDraw = buffer.data().size();
    cpu->setText(QStringLiteral("50%"));
    bar.showMessage(QStringLiteral("No update available"), {});
    bar.flush();
    const QByteArray redraw = buffer.data().mid(firstDraw);
    EXPECT_TRUE(redraw.startsWith("\x1b[1A")) << redraw.toStdString();
    EXPECT_TRUE(redraw.contains("CPU      50%\n"));
    EXPECT_TRUE(redraw.contains("* No update available\n"));
    EXPECT_FALSE(redraw.contains("No display found"));
}

TEST_F(TerminalTest, TheGeneralLineGivesTheVersionAndWhereTheSettingsAre)
{
    buffer.open(QIODevice::WriteOnly);
    TerminalStatusBar bar(&buffer, false);
    TestApp t;
    const QByteArray home = qgetenv("HOME");
    for (const bool settingsAtHome : {false, true}) {
        SCOPED_TRACE(settingsAtHome);
        // Under the home folder the path is written as from "~", as a shell would take it.
        qputenv("HOME", settingsAtHome ? t.dir.path().toUtf8() : QByteArray("/nonexistent"));
        t.launchWithBar(bar);
        bar.flush();
        const QRegularExpression generalLine(QStringLiteral("^\\S+ General +(.*)$"));
        QString general;
        for (const QString& line : writtenLines())
            if (const auto match = generalLine.match(line); match.hasMatch())
                general = match.captured(1);
        const QString where = settingsAtHome ? QStringLiteral("~/settings.plist") : t.settingsPath();
        EXPECT_EQ(general, QStringLiteral("Tarvel " TARVEL_VERSION ", settings in ") + where);
        t.app.reset();
    }
    qputenv("HOME", home);
}
