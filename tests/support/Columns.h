#pragma once

#include <QTest>

namespace TestSupport {

/// Columns<QString, int>("text", "size"): the columns of a test's table, in one line.
template <class... Types, class... Names>
void Columns(const Names*... names)
{
    (QTest::addColumn<Types>(names), ...);
}

/// Row("empty", QString(), 0): a row of a test's table.
template <class... Values>
void Row(const char* name, const Values&... values)
{
    (QTest::newRow(name) << ... << values);
}

} // namespace TestSupport
