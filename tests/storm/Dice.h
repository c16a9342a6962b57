#pragma once

#include <Platform/BasicUIComponents/StructOSDInfo.h>
#include <Platform/BasicUIComponents/StructScaleRect.h>
#include <UI/CutPhoto/CutImageInfo.h>

#include <QPoint>
#include <QRandomGenerator>
#include <QRegExp>
#include <QVariant>
#include <type_traits>
#include <vector>

namespace Storms {

/// The random decisions of one storm, the same for the same seed, and arguments such as no client should
/// pass but one will.
class Dice
{
public:
    explicit Dice(int seed)
        : m_random(quint32(seed))
    { }

    int Below(int end) { return int(m_random.bounded(end)); }
    bool OneIn(int n) { return Below(n) == 0; }
    template <typename T, int N>
    const T& OneOf(const T (&values)[N])
    {
        return values[Below(N)];
    }
    QPoint PointIn(const QSize& area)
    {
        return {Below(qMax(1, area.width())), Below(qMax(1, area.height()))};
    }

    int Int(); ///< mostly small, at times as far from 0 as there are numbers
    double Double();
    QSize Size(); ///< of a widget, from nothing to larger than most screens
    QString
    Text(); ///< empty, blank, very long, with control characters, halves of characters, an address ...
    QImage Image(); ///< at times null
    KvGUI::StructScaleRect Rect();
    std::vector<KvGUI::StructOSDInfo> Overlays();

    /// Of a meta type; invalid for one that is not known here. Tame numbers are not negative and small.
    QVariant Value(int type, bool wild);

    /// Of any type that operations of the library take.
    template <typename T>
    T Any()
    {
        if constexpr (std::is_pointer_v<T>)
            return nullptr;
        else if constexpr (std::is_enum_v<T>)
            return T(Below(8));
        else if constexpr (std::is_same_v<T, KvGUI::StructScaleRect>)
            return Rect();
        else if constexpr (std::is_same_v<T, std::vector<KvGUI::StructOSDInfo>>)
            return Overlays();
        else if constexpr (std::is_same_v<T, std::string>)
            return Text().toStdString();
        else if constexpr (std::is_same_v<T, QRegExp>)
            return QRegExp(OneIn(2) ? Text() : QStringLiteral("[a-z]*"));
        else if constexpr (std::is_same_v<T, UICommonMdl::CutImageInfo>)
            return {OneIn(2), Image(), Text()};
        else
            return Value(qMetaTypeId<T>(), true).template value<T>();
    }

private:
    QRandomGenerator m_random;
};

} // namespace Storms
