#include <Platform/Automation/Office/Host/RowRuns.h>

#include <algorithm>

namespace Office {

void RowRuns::Add(int first, int last)
{
    Run added{first, last};
    QVector<Run> runs;
    for (const Run& run : std::as_const(m_runs)) {
        if (run.last + 1 < added.first || added.last + 1 < run.first) {
            runs << run;
        } else {
            added.first = std::min(added.first, run.first);
            added.last = std::max(added.last, run.last);
        }
    }
    const auto place = std::find_if(
        runs.begin(), runs.end(), [&added](const Run& run) { return run.first > added.first; });
    runs.insert(place, added);
    m_runs = runs;
}

QVector<RowRuns::Run> RowRuns::Gaps(int last) const
{
    QVector<Run> gaps;
    int next = 0;
    for (const Run& run : m_runs) {
        if (run.first > last)
            break;
        if (run.first > next)
            gaps << Run{next, run.first - 1};
        next = run.last + 1;
    }
    if (next <= last)
        gaps << Run{next, last};
    return gaps;
}

} // namespace Office
