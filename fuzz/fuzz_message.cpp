// What the office's host sends, and what it is sent: any bytes, in pieces of any size.

#include "Expect.h"

#include <Platform/Automation/Office/OfficeMessage.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>

using namespace Office;

namespace {

/// The one message of a frame that was made here.
QByteArray MessageOf(const QByteArray& frame)
{
    FrameBuffer buffer;
    buffer.Add(frame.constData(), frame.size());
    const std::optional<QByteArray> message = buffer.Take();
    Expect(message && !buffer.Take() && !buffer.IsBroken(), "a frame holds one message");
    return *message;
}

void Read(const QByteArray& message)
{
    if (const auto request = ToRequest(message)) {
        const auto again = ToRequest(MessageOf(ToFrame(*request)));
        Expect(again.has_value(), "a request that was read can be sent");
        Expect(again->kind == request->kind && again->member == request->member, "and is the same");
        Expect(again->arguments.size() == request->arguments.size(), "with its arguments");
    }
    if (const auto answer = ToAnswer(message)) {
        const auto again = ToAnswer(MessageOf(ToFrame(*answer)));
        Expect(again.has_value(), "an answer that was read can be sent");
        Expect(again->status == answer->status && again->object == answer->object, "and is the same");
        Expect(again->value.type() == answer->value.type(), "with its value");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<int>(size));
    Read(bytes);
    // The first byte is the size of the pieces in which the others come.
    const int piece = 1 + (size > 0 ? data[0] : 0);
    FrameBuffer buffer;
    qint64 taken = 0;
    for (int at = 1; at < bytes.size() && !buffer.IsBroken(); at += piece) {
        buffer.Add(bytes.constData() + at, std::min(piece, bytes.size() - at));
        while (const auto message = buffer.Take()) {
            taken += message->size();
            Read(*message);
        }
    }
    Expect(taken <= bytes.size(), "nothing is read twice");
    return 0;
}
