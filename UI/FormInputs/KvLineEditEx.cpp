#include <UI/FormInputs/KvLineEditEx.h>

#include <QEvent>
#include <QLabel>
#include <QStyle>

namespace UICommonMdl {

namespace {

constexpr int MarkerLeft = 5; // pixels; from the right edge where the layout is mirrored
constexpr int TextLeft = 15; // pixels, so that the text begins beside the marker

} // namespace

KvLineEditEx::KvLineEditEx(QWidget* parent)
    : KvLineEdit(parent)
    , m_pMarker(new QLabel(QStringLiteral("*"), this))
{
    MirrorText();
    m_pMarker->setStyleSheet(QStringLiteral("color:red"));
    m_pMarker->setAlignment(Qt::AlignCenter);
    m_pMarker->setAttribute(Qt::WA_TransparentForMouseEvents);
}

void KvLineEditEx::MirrorText()
{
    const bool mirrored = isRightToLeft();
    setTextMargins(mirrored ? 0 : TextLeft, 0, mirrored ? TextLeft : 0, 0);
}

void KvLineEditEx::PlaceMarker()
{
    m_pMarker->setFixedHeight(height());
    const QRect left(MarkerLeft, 0, m_pMarker->sizeHint().width(), height());
    m_pMarker->setGeometry(QStyle::visualRect(layoutDirection(), rect(), left));
}

void KvLineEditEx::resizeEvent(QResizeEvent* event)
{
    KvLineEdit::resizeEvent(event);
    PlaceMarker();
}

void KvLineEditEx::changeEvent(QEvent* event)
{
    KvLineEdit::changeEvent(event);
    if (event->type() != QEvent::LayoutDirectionChange)
        return;
    MirrorText();
    PlaceMarker();
}

} // namespace UICommonMdl
