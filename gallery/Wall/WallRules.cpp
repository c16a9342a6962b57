#include <gallery/Wall/WallRules.h>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace OperatorClient {

namespace {

constexpr double Hair = 1e-6;

bool Overlap(const KvGUI::StructScaleRect& one, const KvGUI::StructScaleRect& other)
{
    return one.dLeft < other.dRight - Hair && other.dLeft < one.dRight - Hair
        && one.dTop < other.dBottom - Hair && other.dTop < one.dBottom - Hair;
}

} // namespace

QVector<KvGUI::StructScaleRect> FreeCells(int rows, int columns, const QVector<KvGUI::StructScaleRect>& taken)
{
    QVector<KvGUI::StructScaleRect> cells;
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            const KvGUI::StructScaleRect cell{
                double(column) / columns, double(row) / rows, double(column + 1) / columns,
                double(row + 1) / rows, false};
            const bool free
                = std::none_of(taken.begin(), taken.end(), [&](const KvGUI::StructScaleRect& rect) {
                      return Overlap(cell, rect);
                  });
            if (free)
                cells.append(cell);
        }
    }
    return cells;
}

QVector<int> StackingOrder(const QVector<int>& zValues)
{
    QVector<int> order(zValues.size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(
        order.begin(), order.end(), [&](int one, int other) { return zValues.at(one) < zValues.at(other); });
    return order;
}

QVector<int> StackingOrder(const QVector<int>& zValues, const QList<int>& moved, bool toTop)
{
    QVector<int> order = StackingOrder(zValues);
    std::stable_partition(
        order.begin(), order.end(), [&](int window) { return moved.contains(window) != toTop; });
    return order;
}

KvGUI::StructScaleRect CascadePlace(int windows)
{
    constexpr int Steps = 6;
    const double shift = 0.05 + 0.07 * (windows % Steps);
    return {shift, shift, shift + 0.5, shift + 0.5, true};
}

KvGUI::StructScaleRect PlaceAround(const QPointF& centre)
{
    constexpr double Size = 0.4;
    const auto edge = [](double middle) {
        return std::isfinite(middle) ? std::clamp(middle - Size / 2, 0.0, 1.0 - Size) : 0.0;
    };
    const double left = edge(centre.x());
    const double top = edge(centre.y());
    return {left, top, left + Size, top + Size, true};
}

} // namespace OperatorClient
