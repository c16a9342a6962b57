#pragma once

#include <QRect>
#include <QString>

namespace OperatorClient {

/// How the client was left, beside its wall. Each value may be missing: empty.
struct ClientState
{
    QRect window; ///< the place of the window when it is not maximised, without its frame
    bool maximized = false;
    QString page; ///< Page::Name()
    QString skin; ///< "Black" or "White"
    QString language; ///< "en" or "zh_CN"

    QString ToText() const; ///< one line
    /// Reads such a text. Whatever makes no sense is missing in the result.
    static ClientState FromText(const QString& text);
};

/// The place for a window that was at @p wanted, so that all of it can be seen: the same when the screens
/// hold it, also as neighbours; else on the screen that shows most of it, smaller where it must be. What was
/// on a screen that is no longer there goes to the first one.
/// @param wanted and the result: without the window's frame, in desktop pixels
/// @param screens their free areas in desktop pixels, the primary one first; without any: @p wanted
/// @param titleBar height that a window which cannot stay needs above it, in pixels
QRect PlaceOnScreens(const QRect& wanted, const QVector<QRect>& screens, int titleBar);

} // namespace OperatorClient
