#include <UI/FormInputs/CRequiredEdit.h>

#include <QEvent>
#include <QLabel>
#include <QStyle>

namespace UICommonMdl {

namespace {

constexpr int SymbolLeft = 5; // pixels; from the right edge where the layout is mirrored
constexpr int SymbolWidth = 10; // pixels, at least
constexpr int TextLeft = 10; // pixels, so that the text begins beside the symbol

} // namespace

CRequiredEdit::CRequiredEdit(QWidget* parent)
    : KvLineEdit(parent)
    , m_pSymbolRequired(new QLabel(QStringLiteral("*"), this))
{
    m_pSymbolRequired->setObjectName(QStringLiteral("CRequiredEdit--m_pSymbolRequired"));
    m_pSymbolRequired->setStyleSheet(
        QStringLiteral("color:red;font-size:12px;font-weight:bold;background:transparent;"));
    m_pSymbolRequired->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_pSymbolRequired->setMinimumSize(SymbolWidth, height());
    MirrorText();
    PlaceSymbol();
}

void CRequiredEdit::MirrorText()
{
    const bool mirrored = isRightToLeft();
    setTextMargins(mirrored ? 0 : TextLeft, 0, mirrored ? TextLeft : 0, 0);
}

void CRequiredEdit::PlaceSymbol()
{
    const QRect left(QPoint(SymbolLeft, 0), m_pSymbolRequired->size());
    m_pSymbolRequired->move(QStyle::visualRect(layoutDirection(), rect(), left).topLeft());
}

void CRequiredEdit::changeEvent(QEvent* event)
{
    KvLineEdit::changeEvent(event);
    if (event->type() != QEvent::LayoutDirectionChange)
        return;
    MirrorText();
    PlaceSymbol();
}

void CRequiredEdit::resizeEvent(QResizeEvent* event)
{
    KvLineEdit::resizeEvent(event);
    m_pSymbolRequired->setMinimumHeight(height());
    m_pSymbolRequired->resize(qMax(SymbolWidth, m_pSymbolRequired->sizeHint().width()), height());
    PlaceSymbol();
}

} // namespace UICommonMdl
