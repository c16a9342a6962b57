#pragma once

#include "Dice.h"

#include <QMetaMethod>
#include <QVector>
#include <QWidget>
#include <functional>
#include <tuple>

namespace Storms {

/// One public operation of a widget, with any arguments. It may delete the widget.
using Operation = std::function<void(QWidget& widget, Dice& dice)>;

/// A public widget of the library and what a storm cannot find out about it by itself.
struct Kind
{
    QByteArray className;
    std::function<QWidget*(QWidget* parent)> make;
    QVector<Operation> operations; ///< that are no slots
    /// What is wrong with a widget between two steps, or an empty text.
    std::function<QString(QWidget& widget, bool buttonHeld)> fault;
    /// Whether a signal says something that can be.
    std::function<bool(QWidget& widget, const QMetaMethod& signal, void** arguments)> isRight;
    /// A place worth pressing.
    std::function<QPoint(QWidget& widget, Dice& dice)> spot;
};

template <class Widget, class Result, class... Arguments>
Operation Op(Result (Widget::*function)(Arguments...))
{
    return [function](QWidget& widget, Dice& dice) {
        std::tuple<std::decay_t<Arguments>...> arguments{dice.Any<std::decay_t<Arguments>>()...};
        const auto call = [&](auto&... argument) { (static_cast<Widget&>(widget).*function)(argument...); };
        std::apply(call, arguments);
    };
}

QVector<Kind> WallKinds();
const QVector<Kind>& Kinds(); ///< all of them
const Kind* KindNamed(const QByteArray& className); ///< null for none

} // namespace Storms
