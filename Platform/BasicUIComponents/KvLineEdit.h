#pragma once

#include <QLineEdit>
#include <UIComponentsExport.h>

namespace KvGUI {

/// A line edit in the library's look, which follows the skin. Its placeholder text is dimmer than typed text.
///
/// A subclass may give itself another sheet with CommonFun::SetStyleSheet; where the skin has none for
/// it, this class's look stays.
class UICOMPONENTS_EXPORT KvLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit KvLineEdit(QWidget* parent = nullptr);
    explicit KvLineEdit(const QString& text, QWidget* parent = nullptr);

protected:
    bool event(QEvent* event) override;
};

} // namespace KvGUI
