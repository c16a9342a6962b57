#include <UI/FormInputs/KvLineEditEx.h>

#include <QLabel>

namespace UICommonMdl {

namespace {

constexpr int MarkerLeft = 5; // pixels
constexpr int TextLeft = 15; // pixels, so that the text begins beside the marker

} // namespace

KvLineEditEx::KvLineEditEx(QWidget* parent)
    : KvLineEdit(parent)
    , m_pMarker(new QLabel(QStringLiteral("*"), this))
{
    setTextMargins(TextLeft, 0, 0, 0);
    m_pMarker->setStyleSheet(QStringLiteral("color:red"));
    m_pMarker->setAlignment(Qt::AlignCenter);
    m_pMarker->setAttribute(Qt::WA_TransparentForMouseEvents);
}

void KvLineEditEx::resizeEvent(QResizeEvent* event)
{
    KvLineEdit::resizeEvent(event);
    m_pMarker->setFixedHeight(height());
    m_pMarker->move(MarkerLeft, 0);
}

} // namespace UICommonMdl
