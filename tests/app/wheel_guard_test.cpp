// The wheel over an unfocused pop-up or number box scrolls the page; a focused one it changes.
#include "preferences/wheel_guard.h"

#include <QApplication>
#include <QComboBox>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <gtest/gtest.h>

namespace {

// One notch of the wheel, downwards, over widget.
void wheelDown(QWidget* widget)
{
    const QPointF at(widget->width() / 2.0, widget->height() / 2.0);
    QWheelEvent wheel(at, widget->mapToGlobal(at), QPoint(), QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &wheel);
}

} // namespace

TEST(WheelGuard, ScrollsThePageUnlessTheControlHasTheFocus)
{
    QWidget window;
    auto* page = new QScrollArea(&window);
    auto* content = new QWidget();
    auto* column = new QVBoxLayout(content);
    auto* popup = new QComboBox();
    popup->addItems({QStringLiteral("one"), QStringLiteral("two"), QStringLiteral("three")});
    auto* number = new QSpinBox();
    column->addWidget(popup);
    column->addWidget(number);
    column->addSpacing(2000); // taller than the page, so it can scroll
    page->setWidget(content);
    (new QVBoxLayout(&window))->addWidget(page);
    window.resize(300, 200);
    WheelGuard::guard(&window);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));

    wheelDown(popup);
    wheelDown(number);
    EXPECT_EQ(popup->currentIndex(), 0);
    EXPECT_EQ(number->value(), 0);
    EXPECT_GT(page->verticalScrollBar()->value(), 0);

    popup->setFocus();
    wheelDown(popup);
    EXPECT_EQ(popup->currentIndex(), 1);
}
