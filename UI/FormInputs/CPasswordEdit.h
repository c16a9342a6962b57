#pragma once

#include <UI/FormInputs/CRequiredEdit.h>

namespace UICommonMdl {

/// A required line edit for a password: hides what is typed, and takes no text from Ctrl+V nor from its
/// context menu. The clipboard stays as it is in every case.
class UICOMPONENTS_EXPORT CPasswordEdit : public CRequiredEdit
{
    Q_OBJECT

public:
    explicit CPasswordEdit(QWidget* parent = nullptr);

    /// Swallows Ctrl+V, pressed without another modifier. Installed on the edit itself.
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void ApplySheet();
};

} // namespace UICommonMdl
