#pragma once

#include <QString>
#include <QStringList>

namespace OperatorClient {

/// One text of a settings file, written as a whole.
///
/// After a kill at any moment the file holds the old or the new text and never a mixture. A copy of the file
/// is made after each write, for the case that the file loses its data. A file that can be neither read nor
/// written is borne in silence: the client goes on with what it has.
class StoredText
{
public:
    /// @param path of the file; its folder is created by the first write
    StoredText(const QString& path, const QString& section, const QString& key);

    /// The texts to choose from, the best one first: of the file, and of its copy. Either may be cut
    /// anywhere, or empty.
    QStringList Read() const;

    void Write(const QString& text) const;

private:
    QString m_strPath;
    QString m_strSection;
    QString m_strKey;
};

} // namespace OperatorClient
