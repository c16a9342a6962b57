#include <Common/COperSequence.h>

#include <Platform/kvl/DMutexGuard.h>

namespace UICommonMdl {

COperSequence::COperSequence() = default;

COperSequence::~COperSequence() { Clear(); }

void COperSequence::InsertSeq(int seq)
{
    const kvl::DMutexGuard guard(m_mutex);
    m_sequences.append(seq);
}

bool COperSequence::HasSeqIn(int seq)
{
    const kvl::DMutexGuard guard(m_mutex);
    return m_sequences.removeOne(seq);
}

void COperSequence::ClearSeq(int seq)
{
    const kvl::DMutexGuard guard(m_mutex);
    m_sequences.removeOne(seq);
}

void COperSequence::Clear()
{
    const kvl::DMutexGuard guard(m_mutex);
    m_sequences.clear();
}

} // namespace UICommonMdl
