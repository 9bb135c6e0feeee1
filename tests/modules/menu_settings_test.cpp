// When a picture reads its settings again, and which settings the open menu's graph is drawn with.
#include "cpu_picture_defaults.h"
#include "modules/cpu/cpu_menu_module.h"
#include "modules/status_bar.h"

#include <QLabel>
#include <QMenu>
#include <QWidgetAction>
#include <gtest/gtest.h>

#include <memory>

namespace {

class CountingPicture final : public ModulePicture {
public:
    CountingPicture()
        : ModulePicture(nullptr, ModuleId::General)
    {}
    std::optional<BarPicture> drawBar(bool, qreal) override { return std::nullopt; }
    int reads = 0;

protected:
    void settingsChanged() override { ++reads; }
};

class SilentItem final : public StatusItem {
    void setImage(const QImage&, bool) override {}
    void setText(const QString&) override {}
    void setMenu(QMenu*) override {}
};

class SilentBar final : public StatusBar {
    std::unique_ptr<StatusItem> createItem(const QString&) override { return std::make_unique<SilentItem>(); }
};

// The graph as the open menu's row shows it.
QImage shownMenuGraph(const MenuModule& module)
{
    for (QAction* action : module.menu()->actions()) {
        const auto* row = qobject_cast<QWidgetAction*>(action);
        if (const auto* label = row != nullptr ? qobject_cast<QLabel*>(row->defaultWidget()) : nullptr)
            return label->pixmap().toImage();
    }
    return {};
}

bool containsColour(const QImage& image, const QColor& colour)
{
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y) == colour)
                return true;
    return false;
}

} // namespace

TEST(ModulePictureSettings, AreReadAgainOnlyForANewDictionary)
{
    CountingPicture module;
    module.setMyDefaults(ModuleDefaults()); // even an empty first dictionary is read
    EXPECT_EQ(module.reads, 1);
    const ModuleDefaults first = cpuPictureDefaults({.graph = true});
    module.setMyDefaults(first);
    // Every cycle hands over copies of the dictionary it holds.
    const ModuleDefaults sameAgain = first;
    module.setMyDefaults(sameAgain);
    module.setMyDefaults(first);
    EXPECT_EQ(module.reads, 2);

    ModuleDefaults changed = first;
    changed.set(PrefKey::Cpu_GraphWidth, qint64{41});
    EXPECT_TRUE(sameAgain.sharesDataWith(first));
    EXPECT_FALSE(changed.sharesDataWith(first));
    module.setMyDefaults(changed);
    EXPECT_EQ(module.reads, 3);
}

TEST(MenuModuleSettings, OpenMenusGraphKeepsTheSettingsOfItsOpening)
{
    const QColor red(255, 0, 0);
    const QColor magenta(255, 0, 255);
    CPU_MenuModule module(nullptr);
    module.setPictureScale(1);
    // The bar shows the text alone; the menu's graph is its own layout in the user's colours.
    ModuleDefaults settings = cpuPictureDefaults({.text = true});
    module.setMyDefaults(settings);
    module.cpuPicture().setResumeArray(cpuHistory(CpuSample{{1, 0, 0, 1}}, 3));
    SilentBar bar;
    module.initDrawStatusBar(bar);
    module.menuWillOpen();
    EXPECT_EQ(module.menuGraphImage().width(), 400);
    EXPECT_TRUE(containsColour(shownMenuGraph(module), red));

    settings.set(CpuThemeKey::A01, QVariant::fromValue(magenta));
    module.setMyDefaults(settings);
    module.cycleStatusMenu();
    EXPECT_TRUE(containsColour(shownMenuGraph(module), red));
    EXPECT_FALSE(containsColour(shownMenuGraph(module), magenta));
    EXPECT_TRUE(containsColour(module.menuGraphImage(), magenta)); // drawn now: the new colour

    module.menuDidClose();
    module.menuWillOpen();
    EXPECT_TRUE(containsColour(shownMenuGraph(module), magenta));
}
