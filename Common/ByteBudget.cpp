#include <Common/ByteBudget.h>

#include <algorithm>

namespace {

/// The block that is too long is counted in blocks so many times smaller; small ones are bisected.
constexpr int kShrink = 16;

/// Counts the bytes of pieces of one text.
class ByteCounter
{
public:
    ByteCounter(const QString& text, TextEncoding encoding)
        : m_text(text)
        , m_encoding(encoding)
    { }

    /// Bytes of the units @p begin to @p end (exclusive), encoded as a text of their own.
    qint64 Count(int begin, int end) const
    {
        const QString piece = QString::fromRawData(m_text.constData() + begin, end - begin);
        return m_encoding == TextEncoding::Utf8 ? piece.toUtf8().size() : piece.toLocal8Bit().size();
    }

    /// True when cutting between @p position - 1 and @p position would tear a surrogate pair.
    bool IsInsidePair(int position) const
    {
        return position > 0 && position < m_text.size() && m_text.at(position - 1).isHighSurrogate()
            && m_text.at(position).isLowSurrogate();
    }

    int WholeCharacters(int position) const { return IsInsidePair(position) ? position - 1 : position; }

    /// True when what becomes of the unit at @p position depends on the next one. Some codecs hold back
    /// a surrogate that ends the text, others write a "?" for it.
    bool NeedsItsSuccessor(int position) const
    {
        return m_text.at(position).isSurrogate() && !IsInsidePair(position);
    }

private:
    const QString& m_text;
    TextEncoding m_encoding;
};

/// True when a text has as many bytes as its pieces together. Codecs that begin with a byte order mark,
/// that switch between character sets or that write a base and its mark as one are told by a text in
/// which all of that happens.
bool AddsUp(TextEncoding encoding)
{
    const QString sample = QStringLiteral("aa\u4E2D\u4E2Da\u00CA\u0304\u304B\u309Ab\uD55C\u0E01\u0416\u0416c"
                                          "\u0B95\u0BC6\u0915\u093F\u0995\u00E9\u05D0d");
    const ByteCounter counter(sample, encoding);
    qint64 sum = 0;
    for (int i = 0; i < sample.size(); ++i)
        sum += counter.Count(i, i + 1);
    return sum == counter.Count(0, sample.size());
}

/// The largest end in @p begin to @p end for which the units from @p begin on have at most @p maxBytes.
int LargestEnd(const ByteCounter& counter, int begin, int end, qint64 maxBytes)
{
    int fits = begin;
    int tooLong = end + 1;
    while (tooLong - fits > 1) {
        const int middle = fits + (tooLong - fits) / 2;
        const int candidate = counter.WholeCharacters(middle);
        if (candidate > fits && counter.Count(begin, candidate) > maxBytes)
            tooLong = candidate;
        else
            fits = middle;
    }
    return counter.WholeCharacters(fits);
}

} // namespace

QString CutToByteBudget(const QString& text, int maxBytes, TextEncoding encoding, int block)
{
    if (maxBytes <= 0)
        return {};
    const ByteCounter counter(text, encoding);
    const int end = counter.WholeCharacters(std::min(text.size(), maxBytes));
    const bool inBlocks = end > block && AddsUp(encoding);
    int step = inBlocks ? block : end;

    // What is surely cut is copied block by block, while the block is still in the processor's cache; for
    // ASCII the copy takes as long as the encoding.
    const bool isCopied = inBlocks && end < text.size();
    QString copy;
    if (isCopied)
        copy.reserve(end);
    const auto keep = [&](int from, int to) {
        return isCopied ? copy.append(text.constData() + from, to - from) : text.left(to);
    };

    int begin = 0;
    qint64 rest = maxBytes;
    while (begin < end) {
        const int stop = end - begin > step ? begin + step : end;
        qint64 bytes = counter.Count(begin, stop);
        if (bytes > rest && inBlocks && step >= 2 * kShrink) {
            step /= kShrink;
            continue;
        }
        if (bytes > rest)
            return keep(begin, LargestEnd(counter, begin, stop, rest));
        if (stop == end)
            break;
        int next = stop;
        if (counter.NeedsItsSuccessor(stop - 1)) {
            // It is counted again with the next block.
            --next;
            bytes -= counter.Count(next, stop);
        }
        if (isCopied)
            keep(begin, next);
        rest -= bytes;
        begin = next;
    }
    return keep(begin, end);
}
