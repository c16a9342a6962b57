#pragma once

#include <QTest>
#include <QWidget>

namespace TestSupport {

/// Shows a window and waits until it has the keyboard; fails the test when it never gets it.
inline void ShowActive(QWidget& window)
{
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
}

} // namespace TestSupport
