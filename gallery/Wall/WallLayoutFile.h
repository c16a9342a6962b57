#pragma once

#include <gallery/StoredText.h>
#include <gallery/Wall/WallLayout.h>

namespace OperatorClient {

/// The settings file in which a wall's layout is kept.
class WallLayoutFile
{
public:
    explicit WallLayoutFile(const QString& path);

    /// The stored layout; nothing when neither the file nor its copy holds one.
    std::optional<WallLayout> Read() const;

    void Write(const WallLayout& layout) const;

private:
    StoredText m_text;
};

} // namespace OperatorClient
