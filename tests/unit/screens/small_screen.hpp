#pragma once

#include <QMargins>
#include <QRect>
#include <QSize>

#include <gtest/gtest.h>

class QAbstractScrollArea;
class QWidget;

namespace kova::test {

/// Tests of windows on a small screen, which the application of this program has.
class SmallScreen : public testing::Test {
protected:
    static constexpr QSize Size{683, 384};

    static void SetUpTestSuite();

    static QRect Room();
    /// As users do it; what it sends for is done.
    static void Show(QWidget& window);
    /// What changes in a window takes its place.
    static void Settle();
    /// With its frame on the screen, all of it.
    static void ExpectOnScreen(const QWidget& window);
    /// None of it lies outside what scrolls, or covered.
    static bool IsSeen(const QWidget& part);
    /// Nothing in it goes further to the side than one can see.
    static void ExpectNothingSideways(const QWidget& window);
};

} // namespace kova::test
