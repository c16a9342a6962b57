#pragma once

#include <QTextCodec>

namespace TestSupport {

/// Another codec for the process, for the length of a scope.
class LocaleCodec
{
public:
    explicit LocaleCodec(const QByteArray& name)
        : m_before(QTextCodec::codecForLocale())
        , m_codec(QTextCodec::codecForName(name))
    {
        if (m_codec != nullptr)
            QTextCodec::setCodecForLocale(m_codec);
    }
    ~LocaleCodec() { QTextCodec::setCodecForLocale(m_before); }
    Q_DISABLE_COPY(LocaleCodec)

    bool IsKnown() const { return m_codec != nullptr; }

private:
    QTextCodec* m_before;
    QTextCodec* m_codec;
};

} // namespace TestSupport
