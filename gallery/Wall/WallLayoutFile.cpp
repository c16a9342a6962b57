#include <gallery/Wall/WallLayoutFile.h>

namespace OperatorClient {

WallLayoutFile::WallLayoutFile(const QString& path)
    : m_text(path, QStringLiteral("Wall"), QStringLiteral("Layout"))
{ }

std::optional<WallLayout> WallLayoutFile::Read() const
{
    const QStringList stored = m_text.Read();
    for (const QString& text : stored) {
        if (auto layout = WallLayout::FromText(text))
            return layout;
    }
    return std::nullopt;
}

void WallLayoutFile::Write(const WallLayout& layout) const { m_text.Write(layout.ToText()); }

} // namespace OperatorClient
