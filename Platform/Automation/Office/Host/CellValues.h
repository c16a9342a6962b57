#pragma once

#include <QDateTime>
#include <QVariant>
#include <com/sun/star/uno/Any.hxx>
#include <com/sun/star/uno/Sequence.hxx>

/// How the values of cells cross between the client and the office. Texts stay texts, whatever they look
/// like: they are neither converted to numbers and dates nor taken for formulas. An apostrophe in front is
/// the mark of a text and not part of it.
namespace Office {

using UnoRow = com::sun::star::uno::Sequence<com::sun::star::uno::Any>;
using UnoBlock = com::sun::star::uno::Sequence<UnoRow>;

/// What a cell's number stands for.
enum class CellKind
{
    Number,
    DateTime,
    Boolean
};

/// A range of @p rows x @p columns cells for the office. @p value is a list of row lists, of which what is
/// too much is dropped and what is missing is empty, or one value for all cells.
/// @param nullDate the document's day 0
UnoBlock ToBlock(const QVariant& value, int rows, int columns, QDate nullDate);

CellKind KindOf(const QVariant& value);

/// Whether the row lists hold nothing but texts and empty cells.
bool HoldOnlyTexts(const QVariantList& rows);

/// The value of a cell: a double, a text, a bool, a QDateTime; invalid for an empty cell or an error.
QVariant FromCell(const com::sun::star::uno::Any& cell, CellKind kind, QDate nullDate);

/// Days since @p nullDate, with the time of the day as fraction, and back (to the millisecond).
double ToSerial(const QDateTime& moment, QDate nullDate);
QDateTime FromSerial(double serial, QDate nullDate);

} // namespace Office
