#pragma once

#include <Platform/BasicUIComponents/KvLineEdit.h>

class QLabel;

namespace UICommonMdl {

/// A line edit for a field that must not stay empty: it shows a red asterisk at its left. Whether something
/// was entered is the client's to check; CTipLabel can tell the operator.
class UICOMPONENTS_EXPORT CRequiredEdit : public KvGUI::KvLineEdit
{
    Q_OBJECT

public:
    explicit CRequiredEdit(QWidget* parent = nullptr);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void PlaceSymbol();

    QLabel* m_pSymbolRequired;
};

} // namespace UICommonMdl
