#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>
#include <optional>

/// What the plugin and its host process tell each other over their socket: frames of a length (four bytes
/// in the machine's order; both ends run on it) and a message.
namespace Office {

using Handle = quint32; ///< names an object of the host; 0 is none

/// From the plugin to the host.
struct Request
{
    enum Kind : quint8
    {
        Create, ///< an application object
        Call,
        SubObject,
        Read, ///< a property
        Write, ///< a property
        Release, ///< forgets the object; has no answer
    };

    Kind kind = Create;
    Handle object = 0;
    QString member;
    QVariantList arguments; ///< of Write: the value
};

/// From the host to the plugin.
struct Answer
{
    enum Kind : quint8
    {
        Started, ///< comes once, before the first result
        Working, ///< the office is busy with the request, and not hung
        Result,
    };
    enum Status : quint8
    {
        Done,
        Failed, ///< the office refused
        Gone, ///< the object belongs to an application that has quit
    };

    Kind kind = Result;
    Status status = Done;
    QVariant value; ///< of a call or a property
    Handle object = 0; ///< that was made
    qint64 officeProcess = 0; ///< of Started: process id
};

QByteArray ToFrame(const Request& request);
QByteArray ToFrame(const Answer& answer);

/// Nothing for a message that is not one, or holds more than one.
std::optional<Request> ToRequest(const QByteArray& message);
std::optional<Answer> ToAnswer(const QByteArray& message);

/// Puts frames together from the pieces in which they arrive.
class FrameBuffer
{
public:
    void Add(const char* data, int size) { m_data.append(data, size); }
    std::optional<QByteArray> Take(); ///< the next message, when it is complete

    /// Whether the next frame is longer than any that is sent: the two ends have lost one another.
    bool IsBroken() const;

private:
    std::optional<quint32> NextLength() const;

    QByteArray m_data;
};

} // namespace Office
