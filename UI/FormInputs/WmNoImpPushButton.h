#pragma once

#include <Platform/BasicUIComponents/KvPushButton.h>

namespace UICommonMdl {

/// A plain push button for the other actions of a form, beside a KvImpPushButton.
/// The look is "Button/WmNoImpPushButton.css" of the skin.
class UICOMPONENTS_EXPORT WmNoImpPushButton : public KvGUI::KvPushButton
{
    Q_OBJECT

public:
    explicit WmNoImpPushButton(QWidget* parent = nullptr);
    explicit WmNoImpPushButton(const QString& text, QWidget* parent = nullptr);
    WmNoImpPushButton(const QIcon& icon, const QString& text, QWidget* parent = nullptr);
};

} // namespace UICommonMdl
