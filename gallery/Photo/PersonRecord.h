#pragma once

#include <QByteArray>
#include <QString>
#include <array>

namespace OperatorClient {

/// A person as the client keeps it: some texts and two pictures, the avatar and the face for recognition.
struct PersonRecord
{
    enum Page
    {
        Avatar,
        Face,
        PageCount
    };

    QString name;
    QString card;
    QString department;
    std::array<QByteArray, PageCount> pictures; ///< JPEG files; empty where there is none
};

/// A record in a folder of its own: "person.ini", "avatar.jpg" and "face.jpg".
class PersonRecordFile
{
public:
    explicit PersonRecordFile(const QString& folder);

    /// What is missing or unreadable is empty.
    PersonRecord Read() const;

    /// @return false when the folder or a file cannot be written
    bool Write(const PersonRecord& record) const;

private:
    QString PathOf(const QString& file) const;

    QString m_strFolder;
};

} // namespace OperatorClient
