// Opens the preferences window of a running tarvel on a virtual screen and keeps its pictures.
#include "virtual_screen_test.h"

namespace {

class PreferencesScreenTest : public VirtualScreenTest {
protected:
    QSize screenSize() const override { return {1024, 800}; }

    // Starts tarvel with the window open on the module's tab and returns the window's pixels.
    QImage openedWindow(const QString& module)
    {
        QProcess& tarvel = start(QStringLiteral(TARVEL_EXECUTABLE),
                                 tarvelArguments({QStringLiteral("--bar"), QStringLiteral("--preferences"), module}));
        EXPECT_TRUE(tarvel.waitForStarted());
        QRect window;
        QImage screen;
        const bool shown = waitUntil([&] {
            window = windowGeometry(QStringLiteral("Tarvel Preferences"));
            return window.width() >= 300 && tarvel.state() == QProcess::Running;
        });
        // A few cycles, so that the previews show measured figures rather than the first zeros.
        QThread::sleep(3);
        screen = grab();
        EXPECT_TRUE(shown) << "no preferences window appeared for " << module.toStdString();
        stop(tarvel);
        return shown ? screen.copy(window) : QImage();
    }
};

// How many distinct colours an image holds; a blank or half-drawn window has few.
int colourCount(const QImage& image)
{
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            colours.insert(image.pixel(x, y));
    return static_cast<int>(colours.size());
}

} // namespace

TEST_F(PreferencesScreenTest, TopAndCpuTabsAreDrawn)
{
    const QImage top = openedWindow(QStringLiteral("General"));
    const QImage cpu = openedWindow(QStringLiteral("CPU"));
    ASSERT_FALSE(top.isNull());
    ASSERT_FALSE(cpu.isNull());
    top.save(QStringLiteral(E2E_OUTPUT_DIR "/preferences_top.png"));
    cpu.save(QStringLiteral(E2E_OUTPUT_DIR "/preferences_cpu.png"));
    EXPECT_GT(colourCount(top), 20) << "the top tab looks empty";
    EXPECT_NE(top, cpu) << "both runs show the same tab";
}
