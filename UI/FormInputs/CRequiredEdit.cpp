#include <UI/FormInputs/CRequiredEdit.h>

#include <UI/FormInputs/LineEnds.h>

#include <QEvent>
#include <QLabel>

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
    KeepRoom(*this, LineEnd::Start, TextLeft);
    PlaceSymbol();
}

void CRequiredEdit::PlaceSymbol()
{
    PlaceInLine(*this, *m_pSymbolRequired, QRect(QPoint(SymbolLeft, 0), m_pSymbolRequired->size()));
}

void CRequiredEdit::changeEvent(QEvent* event)
{
    KvLineEdit::changeEvent(event);
    if (event->type() != QEvent::LayoutDirectionChange)
        return;
    KeepRoom(*this, LineEnd::Start, TextLeft);
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
