#pragma once

#include <QWidget>
#include <UIComponentsExport.h>

class QLabel;

namespace UICommonMdl {

/// A bubble with a hint of one line that CCutDetailPhoto shows over its photo. It follows the skin.
///
/// The pointer goes through it to the photo. Its owner places it; its height is fixed and its width
/// follows the text.
class UICOMPONENTS_EXPORT CComTipWiget : public QWidget
{
    Q_OBJECT

public:
    explicit CComTipWiget(QWidget* parent = nullptr);

    /// Shows the text and makes the bubble as wide as the text and 62 pixels; place and height stay.
    void SetTipText(const QString& strText);

private:
    QLabel* m_pText;
};

} // namespace UICommonMdl
