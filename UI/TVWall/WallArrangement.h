#pragma once

#include "WallMiniature.h"

#include <QObject>

namespace UICommonMdl {

/// A wall as its overview sees it, whichever kind of wall it is.
class WallArrangement : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    virtual QVector<WallMiniature::Screen> Miniature() const = 0;

Q_SIGNALS:
    /// Screens or windows, their places, order or selection may be others now. For the library's own use:
    /// it may come in the middle of a change.
    void SignalArrangementChanged();
};

} // namespace UICommonMdl
