// Test entry point: an offscreen application (fonts, images, widgets) with the translations installed.
#include "toolkit/localization.h"

#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    ::testing::InitGoogleTest(&argc, argv);
    QApplication app(argc, argv);
    installTranslations(app);
    return RUN_ALL_TESTS();
}
