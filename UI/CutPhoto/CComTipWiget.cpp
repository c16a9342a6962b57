#include "CComTipWiget.h"

#include <QHBoxLayout>
#include <QLabel>

namespace UICommonMdl {

namespace {

constexpr int Margins = 62; // pixels beside the text, both sides together

} // namespace

CComTipWiget::CComTipWiget(QWidget* parent)
    : QWidget(parent)
    , m_pLabel(new QLabel(this))
{
    setObjectName(QStringLiteral("CComTipWiget"));
    auto* layout = new QHBoxLayout(this);
    layout->addWidget(m_pLabel);
}

void CComTipWiget::SetTipText(const QString& strText)
{
    m_pLabel->setText(strText);
    const int width = m_pLabel->fontMetrics().horizontalAdvance(strText) + Margins;
    resize(width, height());
}

} // namespace UICommonMdl
