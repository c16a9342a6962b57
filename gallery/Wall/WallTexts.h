#pragma once

#include <Platform/BasicUIComponents/StructScaleRect.h>

#include <QList>
#include <QString>

namespace OperatorClient {

/// A place in a screen, for a report: "0.000, 0.250 – 0.500, 1.000".
QString PlaceText(const KvGUI::StructScaleRect& rect);

/// Indices as the operator counts, from 1: "1, 3, 4".
QString NumbersText(const QList<int>& indices);

} // namespace OperatorClient
