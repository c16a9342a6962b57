#pragma once

#include <QObject>
#include <QPointer>
#include <UIComponentsExport.h>

class QWidget;

namespace KvGUI {

class NotificationStack;

/// Short messages for the operator that come up by themselves and go by themselves:
/// @code
/// KvGUI::KvMessageNotify::Instance()->AddTextNotification(tr("The picture was saved."), this);
/// @endcode
///
/// A message appears near the upper right corner of the window that it belongs to, below the messages that
/// are already there, and stays on the screen when the window is partly outside. It never takes the keyboard
/// focus. It goes after a while, not while the pointer is over it, or when its close button is clicked.
/// Screen readers are told of it as an alert. A message that is still shown in the same window is not
/// shown twice; its time begins anew. Of more than five messages in a window the oldest goes.
class UICOMPONENTS_EXPORT KvMessageNotify : public QObject
{
    Q_OBJECT

public:
    /// The one object of this class; never null. Use it on the GUI thread only.
    static KvMessageNotify* Instance();

    /// Shows a message in the window of a widget; returns at once.
    /// @param strText plain text; line ends are kept, long lines and words wrapped. An empty text does
    /// nothing.
    /// @param parent a widget of the window. The message goes when that window is deleted. When null, the
    ///        active window; when there is none, the message appears on the primary screen.
    void AddTextNotification(const QString& strText, QWidget* parent = nullptr);

    /// Sets the time that later messages stay, in milliseconds, at least 1. It is 6000 at first.
    void SetDisplayTime(int iMilliseconds);

    /// Closes all messages of all windows.
    void CloseAll();

private:
    KvMessageNotify();
    NotificationStack* StackOf(QWidget* window);

    int m_iDisplayTime;
    QPointer<NotificationStack> m_pScreenStack; ///< messages that belong to no window
};

} // namespace KvGUI
