#pragma once

#include <QWidget>
#include <UIComponentsExport.h>

class QLabel;

namespace UICommonMdl {

/// The bubble with a one-line hint that lies over a CCutDetailPhoto canvas.
class UICOMPONENTS_EXPORT CComTipWiget : public QWidget
{
    Q_OBJECT

public:
    explicit CComTipWiget(QWidget* parent = nullptr);

    /// Shows @p strText and makes the bubble wide enough for it; its place and height stay.
    void SetTipText(const QString& strText);

private:
    QLabel* const m_pLabel;
};

} // namespace UICommonMdl
