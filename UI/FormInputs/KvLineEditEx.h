#pragma once

#include <Platform/BasicUIComponents/KvLineEdit.h>

class QLabel;

namespace UICommonMdl {

/// A line edit with a red marker at its left, for fields that the client treats specially.
class UICOMPONENTS_EXPORT KvLineEditEx : public KvGUI::KvLineEdit
{
    Q_OBJECT

public:
    explicit KvLineEditEx(QWidget* parent = nullptr);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void PlaceMarker();

    QLabel* m_pMarker;
};

} // namespace UICommonMdl
