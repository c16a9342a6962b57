#pragma once

#include <QRegularExpression>
#include <QTest>

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

} // namespace TestSupport
