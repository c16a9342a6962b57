#pragma once

#include <QVariant>

class QDataStream;

/// How the values of cells, properties and arguments cross between the plugin and its host. Only these
/// cross: nothing (an invalid value), bool, whole numbers, doubles, texts, dates, moments, colours, and lists
/// of them, four deep. What is none of them crosses as its text, and a deeper list as nothing.
namespace Office {

void WriteValue(QDataStream& stream, const QVariant& value);

/// The next value of the stream. Whatever stands there, it takes no more memory than a few times the bytes
/// that are left; what is no value, or is nested deeper than any that is written, sets the stream's status.
QVariant ReadValue(QDataStream& stream);

} // namespace Office
