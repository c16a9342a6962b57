#include <gallery/Wall/WallTexts.h>

#include <QStringList>

namespace OperatorClient {

QString PlaceText(const KvGUI::StructScaleRect& rect)
{
    const auto number = [](double value) { return QString::number(value, 'f', 3); };
    return QStringLiteral("%1, %2 \u2013 %3, %4")
        .arg(number(rect.dLeft), number(rect.dTop), number(rect.dRight), number(rect.dBottom));
}

QString NumbersText(const QList<int>& indices)
{
    QStringList numbers;
    for (const int index : indices)
        numbers << QString::number(index + 1);
    return numbers.join(QStringLiteral(", "));
}

} // namespace OperatorClient
