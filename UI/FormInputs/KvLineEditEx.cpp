#include <UI/FormInputs/KvLineEditEx.h>

#include <UI/FormInputs/LineEnds.h>

#include <QEvent>
#include <QLabel>

namespace UICommonMdl {

namespace {

constexpr int MarkerLeft = 5; // pixels; from the right edge where the layout is mirrored
constexpr int TextLeft = 15; // pixels, so that the text begins beside the marker

} // namespace

KvLineEditEx::KvLineEditEx(QWidget* parent)
    : KvLineEdit(parent)
    , m_pMarker(new QLabel(QStringLiteral("*"), this))
{
    KeepRoom(*this, LineEnd::Start, TextLeft);
    m_pMarker->setStyleSheet(QStringLiteral("color:red"));
    m_pMarker->setAlignment(Qt::AlignCenter);
    m_pMarker->setAttribute(Qt::WA_TransparentForMouseEvents);
}

void KvLineEditEx::PlaceMarker()
{
    m_pMarker->setFixedHeight(height());
    const QRect left(MarkerLeft, 0, m_pMarker->sizeHint().width(), height());
    PlaceInLine(*this, *m_pMarker, left);
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
    KeepRoom(*this, LineEnd::Start, TextLeft);
    PlaceMarker();
}

} // namespace UICommonMdl
