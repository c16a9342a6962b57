#pragma once

#include <Platform/kvl/DMutex.h>
#include <QList>
#include <UIComponentsExport.h>

namespace UICommonMdl {

/// The sequence numbers of requests that still wait for their answer.
///
/// Note a request's number with InsertSeq() before it is sent; when an answer arrives, on whatever
/// thread, HasSeqIn() tells once whether it was expected. Any thread may call any operation; only the
/// destructor must not run while another thread is inside one. Nothing expires by time.
class UICOMPONENTS_EXPORT COperSequence
{
public:
    COperSequence();
    ~COperSequence();

    COperSequence(const COperSequence&) = delete;
    COperSequence& operator=(const COperSequence&) = delete;

    /// Notes @p seq; a number that is noted twice is outstanding twice.
    void InsertSeq(int seq);

    /// True when @p seq is outstanding; that one note of it is forgotten in the same step, so that of
    /// several threads asking for one note only one is told true.
    bool HasSeqIn(int seq);

    /// Forgets one note of @p seq, the oldest; nothing happens when there is none.
    void ClearSeq(int seq);

    /// Forgets all numbers.
    void Clear();

private:
    kvl::DMutex m_mutex;
    QList<int> m_sequences; ///< in the order of their insertion
};

} // namespace UICommonMdl
