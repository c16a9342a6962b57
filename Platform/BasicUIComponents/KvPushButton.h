#pragma once

#include <QPushButton>
#include <UIComponentsExport.h>

namespace KvGUI {

/// A push button in the library's look, which follows the skin. As the default button of a dialog it is
/// drawn in the accent colour.
///
/// A subclass may give itself another sheet with CommonFun::SetStyleSheet; where the skin has none for
/// it, this class's look stays.
class UICOMPONENTS_EXPORT KvPushButton : public QPushButton
{
    Q_OBJECT

public:
    explicit KvPushButton(QWidget* parent = nullptr);
    explicit KvPushButton(const QString& text, QWidget* parent = nullptr);
    KvPushButton(const QIcon& icon, const QString& text, QWidget* parent = nullptr);
};

} // namespace KvGUI
