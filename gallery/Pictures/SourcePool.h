#pragma once

#include <gallery/Pictures/FrameSource.h>
#include <gallery/Pictures/SourceSpec.h>

#include <QHash>
#include <memory>

namespace OperatorClient {

/// Makes the sources that windows ask for. Windows that show the same thing get the same object, which
/// lives for as long as one of them holds it.
class SourcePool
{
public:
    std::shared_ptr<FrameSource> Get(const SourceSpec& spec);

    /// Whether every living source has its picture.
    bool AllReady() const;

private:
    QHash<QString, std::weak_ptr<FrameSource>> m_sources; ///< by the text of their description
};

} // namespace OperatorClient
