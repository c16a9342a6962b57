#pragma once

#include <QMouseEvent>
#include <QRegularExpression>
#include <QTest>
#include <QWidget>

namespace TestSupport {

/// Announces the warnings that making @p count CCutPhotoWithZoom canvases gives: each tries one connection
/// of a signal that it does not have, on purpose.
inline void AnnounceCropCanvases(int count = 1)
{
    const QRegularExpression warning(
        QStringLiteral("No such signal UICommonMdl::CCutPhotoWithZoom::sgnKeyPressed\\(QKeyEvent\\*\\)"));
    for (int i = 0; i < count; ++i)
        QTest::ignoreMessage(QtWarningMsg, warning);
}

/// Moves the mouse over a canvas with the left button held.
inline void MoveHeld(QWidget& canvas, const QPoint& to)
{
    QMouseEvent move(
        QEvent::MouseMove, to, canvas.mapToGlobal(to), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&canvas, &move);
}

inline void Drag(QWidget& canvas, const QPoint& from, const QPoint& to)
{
    QTest::mousePress(&canvas, Qt::LeftButton, Qt::NoModifier, from);
    MoveHeld(canvas, (from + to) / 2);
    MoveHeld(canvas, to);
    QTest::mouseRelease(&canvas, Qt::LeftButton, Qt::NoModifier, to);
}

} // namespace TestSupport
