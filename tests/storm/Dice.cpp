#include "Dice.h"

#include <QColor>
#include <QDateTime>
#include <QHash>
#include <QIcon>
#include <QPixmap>
#include <functional>
#include <limits>
#include <utility>

namespace Storms {

int Dice::Int()
{
    const int wild[]
        = {std::numeric_limits<int>::max(), std::numeric_limits<int>::min(), -1, 0, 100, 255, 256, 1 << 24};
    return OneIn(4) ? OneOf(wild) : Below(12) - 2;
}

double Dice::Double()
{
    const double wild[] = {qQNaN(), qInf(), -qInf(), 1e300, -1e9, -0.3, 1.4, 3.0};
    return OneIn(25) ? OneOf(wild) : OneIn(2) ? Below(9) / 8.0 : m_random.generateDouble();
}

QSize Dice::Size()
{
    const auto length = [this] { return OneIn(10) ? Below(3) : OneIn(2) ? Below(80) : Below(1200); };
    return {length(), length()};
}

QString Dice::Text()
{
    const QString texts[] = {
        QString(),
        QLatin1String(""),
        QStringLiteral(" \u3000 "),
        QStringLiteral("10.0.0.%1").arg(Below(300)),
        QStringLiteral("7"),
        QStringLiteral("%1 <b>&lt;%2%%"),
        QStringLiteral("\u00e4\u20ac\u6f22\u5b57"),
        QStringLiteral("\u05d0\u0628 abc \u202e"),
        QString(QChar(0xd83d)) + QChar(0xde00) + QChar(0xdc00), // a pair, and half of one
        QString(QChar(0xd800)),
        QStringLiteral("a\tb\nc\r\x01\x7f") + QChar(0) + QLatin1Char('d'),
        QString(OneIn(20) ? 20000 : 300, QLatin1Char('W')),
        QStringLiteral("/no/such/file.jpg"),
        QString::number(Int()),
    };
    return OneOf(texts);
}

QImage Dice::Image()
{
    const QSize sizes[] = {{}, {1, 1}, {300, 2}, {640, 480}};
    QImage image(OneOf(sizes), OneIn(2) ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied);
    image.fill(QColor::fromHsv(Below(360), 200, 200));
    return image;
}

KvGUI::StructScaleRect Dice::Rect()
{
    KvGUI::StructScaleRect rect{Double(), Double(), Double(), Double(), !OneIn(4)};
    if (rect.dLeft > rect.dRight && !OneIn(10))
        std::swap(rect.dLeft, rect.dRight);
    if (rect.dTop > rect.dBottom && !OneIn(10))
        std::swap(rect.dTop, rect.dBottom);
    return rect;
}

std::vector<KvGUI::StructOSDInfo> Dice::Overlays()
{
    KvGUI::StructOSDInfo info;
    info.iRight = OneIn(4) ? Int() : Below(8192);
    info.iBottom = OneIn(4) ? Int() : Below(8192);
    info.bRoll = OneIn(2);
    info.iRollMode = static_cast<unsigned char>(Below(6));
    info.strText = Text().toStdString();
    return std::vector<KvGUI::StructOSDInfo>(size_t(Below(12)), info);
}

QVariant Dice::Value(int type, bool wild)
{
    const int number = wild ? Int() : Below(300);
    const QHash<int, std::function<QVariant()>> makers{
        {QMetaType::Bool, [&] { return OneIn(2); }},
        {QMetaType::Int, [&] { return number; }},
        {QMetaType::LongLong, [&] { return qint64(number) * (1 << Below(31)); }},
        {QMetaType::Double, [&] { return Double(); }},
        {QMetaType::QString, [&] { return Text(); }},
        {QMetaType::QVariant, [&] { return Text(); }},
        {QMetaType::QPoint, [&] { return QPoint(number, wild ? Int() : number); }},
        {QMetaType::QSize, [&] { return Size(); }},
        {QMetaType::QRect,
         [&] {
             return QRect(PointIn({300, 300}), Size());
         }},
        {QMetaType::QColor, [&] { return QColor::fromRgba(quint32(number)); }},
        {QMetaType::QImage, [&] { return Image(); }},
        {QMetaType::QPixmap, [&] { return QPixmap::fromImage(Image()); }},
        {QMetaType::QIcon, [&] { return QIcon(QPixmap::fromImage(Image())); }},
        {QMetaType::QDateTime, [&] { return QDate(2024, 1, 1).addDays(number).startOfDay(); }},
    };
    return makers.contains(type) ? makers[type]() : QVariant();
}

} // namespace Storms
