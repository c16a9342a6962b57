#pragma once

#include <QLineEdit>
#include <UIComponentsExport.h>

namespace KvGUI {

/// A line edit in the library's look, which follows the skin. Its placeholder text is dimmer than typed text.
///
/// A subclass may give itself another sheet with CommonFun::SetStyleSheet; where the skin has none for
/// it, this class's look stays.
///
/// An input method puts no text into it that the validator refuses, not even for a moment: QLineEdit tells
/// of the cursor before it asks the validator, and keeps the text when a slot takes the focus away then.
///
/// What Qt asks of slots of any line edit holds here, too, or Qt crashes: none of them ends the edit at once,
/// nor by deleteLater() from inside an event loop that the slot runs; and a slot of editingFinished() makes
/// no child widget when nextInFocusChain() of its window is null, for then that window is in its destructor.
class UICOMPONENTS_EXPORT KvLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit KvLineEdit(QWidget* parent = nullptr);
    explicit KvLineEdit(const QString& text, QWidget* parent = nullptr);

protected:
    bool event(QEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;

private:
    bool IsRefused(const QInputMethodEvent& event) const;
};

} // namespace KvGUI
