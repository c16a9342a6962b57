#include <UI/FormInputs/CRequiredEdit.h>

#include <QLabel>

namespace UICommonMdl {

namespace {

constexpr int SymbolLeft = 5; // pixels
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
    m_pSymbolRequired->move(SymbolLeft, 0);
    setTextMargins(TextLeft, 0, 0, 0);
}

void CRequiredEdit::resizeEvent(QResizeEvent* event)
{
    KvLineEdit::resizeEvent(event);
    m_pSymbolRequired->setMinimumHeight(height());
    m_pSymbolRequired->resize(m_pSymbolRequired->width(), height());
}

} // namespace UICommonMdl
