#include <Common/ElidedText.h>

namespace {

const QString& Ellipsis()
{
    static const QString ellipsis = QStringLiteral("...");
    return ellipsis;
}

QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED
int WidthOf(const QFontMetrics& metrics, const QString& text) { return metrics.width(text); }
QT_WARNING_POP

int WidthOf(const QFontMetrics& metrics, QChar character) { return WidthOf(metrics, QString(character)); }

/// The beginning of a text.
struct LeftPart
{
    int count; ///< characters
    qint64 width; ///< pixels, also counted when the single character that was tried is left out
};

/// Adds characters until the part reaches @p limit - 1 pixels, and takes the last one off again.
LeftPart FindLeftPart(const QFontMetrics& metrics, qint64 limit, const QString& text)
{
    LeftPart part{0, 0};
    while (part.width < limit - 1 && part.count < text.size())
        part.width += WidthOf(metrics, text.at(part.count++));
    if (part.count <= 1)
        return {0, part.width};
    --part.count;
    part.width -= WidthOf(metrics, text.at(part.count));
    return part;
}

/// Position at which the end of the text begins that goes into @p limit pixels; the first character is
/// never a part of it.
int FindRightPart(const QFontMetrics& metrics, qint64 limit, const QString& text)
{
    qint64 width = 0;
    int last = text.size() - 1;
    while (width < limit - 1 && last >= 1)
        width += WidthOf(metrics, text.at(last--));
    return last + 2;
}

} // namespace

QString ElidedInTheMiddle(const QFontMetrics& metrics, int width, const QString& text)
{
    if (WidthOf(metrics, text) <= width)
        return text;
    const qint64 room = qint64(width) - WidthOf(metrics, Ellipsis());
    const LeftPart left = FindLeftPart(metrics, room / 2, text);
    const int right = FindRightPart(metrics, room - left.width, text);
    return text.left(left.count) + Ellipsis() + text.mid(right);
}

QString ElidedAtTheEnd(const QFontMetrics& metrics, int width, const QString& text)
{
    if (WidthOf(metrics, text) <= width)
        return text;
    const qint64 room = qint64(width) - WidthOf(metrics, Ellipsis());
    return text.left(FindLeftPart(metrics, room, text).count) + Ellipsis();
}
