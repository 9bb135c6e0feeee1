// Test entry point: an offscreen GUI application (fonts, images) with the translations installed.
#include "toolkit/localization.h"

#include <QGuiApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    ::testing::InitGoogleTest(&argc, argv);
    QGuiApplication app(argc, argv);
    installTranslations(app);
    return RUN_ALL_TESTS();
}
