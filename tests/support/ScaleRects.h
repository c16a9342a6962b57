#pragma once

#include <Platform/BasicUIComponents/StructScaleRect.h>

#include <QMetaType>
#include <QString>
#include <cmath>

Q_DECLARE_METATYPE(KvGUI::StructScaleRect)

namespace KvGUI {

/// For QCOMPARE: the edges may differ by what arithmetic rounds.
inline bool operator==(const StructScaleRect& a, const StructScaleRect& b)
{
    const auto close = [](double one, double other) { return std::abs(one - other) <= 1e-9; };
    return close(a.dLeft, b.dLeft) && close(a.dTop, b.dTop) && close(a.dRight, b.dRight)
        && close(a.dBottom, b.dBottom) && a.bEditable == b.bEditable;
}

/// What QCOMPARE prints.
inline char* toString(const StructScaleRect& rect)
{
    return qstrdup(qPrintable(QStringLiteral("{%1, %2, %3, %4, %5}")
                                  .arg(rect.dLeft)
                                  .arg(rect.dTop)
                                  .arg(rect.dRight)
                                  .arg(rect.dBottom)
                                  .arg(rect.bEditable)));
}

} // namespace KvGUI
