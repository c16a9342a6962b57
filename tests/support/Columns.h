#pragma once

#include <QTest>

namespace TestSupport {

/// Columns<QString, int>("text", "size"): the columns of a test's table, in one line.
template <class... Types, class... Names>
void Columns(const Names*... names)
{
    (QTest::addColumn<Types>(names), ...);
}

} // namespace TestSupport
