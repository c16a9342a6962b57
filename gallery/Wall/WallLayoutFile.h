#pragma once

#include <gallery/Wall/WallLayout.h>

namespace OperatorClient {

/// The settings file in which a wall's layout is kept.
///
/// The layout is one value of the file, so that after a kill at any moment the file holds the old or the
/// new wall and never a mixture. A copy is made after each save; a file that has lost its data, or holds
/// no layout, comes back from there.
class WallLayoutFile
{
public:
    /// The folder of @p path is created by the first Write().
    explicit WallLayoutFile(const QString& path);

    const QString& Path() const { return m_strPath; }

    /// The stored layout; nothing when neither the file nor its copy holds one.
    std::optional<WallLayout> Read() const;

    void Write(const WallLayout& layout) const;

private:
    QString m_strPath;
};

} // namespace OperatorClient
