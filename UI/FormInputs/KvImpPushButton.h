#pragma once

#include <Platform/BasicUIComponents/KvPushButton.h>

namespace UICommonMdl {

/// The push button for the main action of a form: drawn in the accent colour, otherwise a
/// KvGUI::KvPushButton. The look is "Button/KvImpPushButton.css" of the skin.
class UICOMPONENTS_EXPORT KvImpPushButton : public KvGUI::KvPushButton
{
    Q_OBJECT

public:
    explicit KvImpPushButton(QWidget* parent = nullptr);
    explicit KvImpPushButton(const QString& text, QWidget* parent = nullptr);
    KvImpPushButton(const QIcon& icon, const QString& text, QWidget* parent = nullptr);
};

} // namespace UICommonMdl
