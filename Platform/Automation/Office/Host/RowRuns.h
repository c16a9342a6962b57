#pragma once

#include <QVector>

namespace Office {

/// A set of rows, as runs of them.
class RowRuns
{
public:
    struct Run
    {
        int first;
        int last;
    };

    void Add(int first, int last);

    /// The rows from 0 to @p last that are not in the set.
    QVector<Run> Gaps(int last) const;

private:
    QVector<Run> m_runs; ///< in order, neither touching nor overlapping
};

} // namespace Office
