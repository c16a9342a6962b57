#include <Platform/Automation/Office/OfficeMessage.h>

#include <Platform/Automation/Office/OfficeValue.h>

#include <QDataStream>
#include <QIODevice>
#include <cstring>

namespace Office {

namespace {

using Length = quint32;

constexpr int Head = sizeof(Length);
constexpr Length LongestMessage = 1U << 30; // a byte array holds no 2^31 bytes

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

bool IsWhole(const QDataStream& stream) { return stream.status() == QDataStream::Ok && stream.atEnd(); }

} // namespace

QByteArray ToFrame(const Request& request)
{
    return Frame([&request](QDataStream& stream) {
        stream << quint8(request.kind) << request.object;
        WriteValue(stream, request.member);
        WriteValue(stream, request.arguments);
    });
}

QByteArray ToFrame(const Answer& answer)
{
    return Frame([&answer](QDataStream& stream) {
        stream << quint8(answer.kind) << quint8(answer.status) << answer.object << answer.officeProcess;
        WriteValue(stream, answer.value);
    });
}

std::optional<Request> ToRequest(const QByteArray& message)
{
    QDataStream stream(message);
    stream.setVersion(QDataStream::Qt_5_15);
    Request request;
    quint8 kind = 0;
    stream >> kind >> request.object;
    const QVariant member = ReadValue(stream);
    const QVariant arguments = ReadValue(stream);
    const bool typed = member.type() == QVariant::String && arguments.type() == QVariant::List;
    if (!IsWhole(stream) || !typed || kind > Request::Release)
        return std::nullopt;
    request.kind = static_cast<Request::Kind>(kind);
    request.member = member.toString();
    request.arguments = arguments.toList();
    return request;
}

std::optional<Answer> ToAnswer(const QByteArray& message)
{
    QDataStream stream(message);
    stream.setVersion(QDataStream::Qt_5_15);
    Answer answer;
    quint8 kind = 0;
    quint8 status = 0;
    stream >> kind >> status >> answer.object >> answer.officeProcess;
    answer.value = ReadValue(stream);
    if (!IsWhole(stream) || kind > Answer::Result || status > Answer::Gone)
        return std::nullopt;
    answer.kind = static_cast<Answer::Kind>(kind);
    answer.status = static_cast<Answer::Status>(status);
    return answer;
}

std::optional<Length> FrameBuffer::NextLength() const
{
    if (m_data.size() < Head)
        return std::nullopt;
    Length length = 0;
    std::memcpy(&length, m_data.constData(), sizeof(Length));
    return length;
}

bool FrameBuffer::IsBroken() const { return NextLength().value_or(0) > LongestMessage; }

std::optional<QByteArray> FrameBuffer::Take()
{
    const std::optional<Length> length = NextLength();
    if (!length || IsBroken())
        return std::nullopt;
    const int size = static_cast<int>(*length);
    if (m_data.size() - Head < size)
        return std::nullopt;
    QByteArray message = m_data.mid(Head, size);
    m_data.remove(0, Head + size);
    return message;
}

} // namespace Office
