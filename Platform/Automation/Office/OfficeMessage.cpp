#include <Platform/Automation/Office/OfficeMessage.h>

#include <QDataStream>
#include <QIODevice>
#include <cstring>

namespace Office {

namespace {

using Length = quint32;

template <typename Fill>
QByteArray Frame(Fill fill)
{
    QByteArray frame(sizeof(Length), '\0');
    QDataStream stream(&frame, QIODevice::WriteOnly | QIODevice::Append);
    stream.setVersion(QDataStream::Qt_5_15);
    fill(stream);
    const auto length = static_cast<Length>(frame.size() - static_cast<int>(sizeof(Length)));
    std::memcpy(frame.data(), &length, sizeof(Length));
    return frame;
}

} // namespace

QByteArray ToFrame(const Request& request)
{
    return Frame([&request](QDataStream& stream) {
        stream << quint8(request.kind) << request.object << request.member << request.arguments;
    });
}

QByteArray ToFrame(const Answer& answer)
{
    return Frame([&answer](QDataStream& stream) {
        stream << quint8(answer.kind) << quint8(answer.status) << answer.value << answer.object
               << answer.officeProcess;
    });
}

Request ToRequest(const QByteArray& message)
{
    QDataStream stream(message);
    stream.setVersion(QDataStream::Qt_5_15);
    Request request;
    quint8 kind = 0;
    stream >> kind >> request.object >> request.member >> request.arguments;
    request.kind = static_cast<Request::Kind>(kind);
    return request;
}

Answer ToAnswer(const QByteArray& message)
{
    QDataStream stream(message);
    stream.setVersion(QDataStream::Qt_5_15);
    Answer answer;
    quint8 kind = 0;
    quint8 status = 0;
    stream >> kind >> status >> answer.value >> answer.object >> answer.officeProcess;
    answer.kind = static_cast<Answer::Kind>(kind);
    answer.status = static_cast<Answer::Status>(status);
    return answer;
}

std::optional<QByteArray> FrameBuffer::Take()
{
    constexpr int Head = sizeof(Length);
    if (m_data.size() < Head)
        return std::nullopt;
    Length length = 0;
    std::memcpy(&length, m_data.constData(), sizeof(Length));
    if (static_cast<Length>(m_data.size() - Head) < length) {
        // Once, for a large block that arrives in many pieces.
        m_data.reserve(Head + static_cast<int>(length));
        return std::nullopt;
    }
    QByteArray message = m_data.mid(Head, static_cast<int>(length));
    m_data.remove(0, Head + static_cast<int>(length));
    return message;
}

} // namespace Office
