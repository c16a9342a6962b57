#pragma once

#include <QObject>
#include <QVector>
#include <QWidget>

namespace KvGUI {

class NotificationPopup;

/// The messages of one window, which follow it when it moves; or those of the primary screen.
/// A child of the window; the messages go with it.
class NotificationStack : public QObject
{
    Q_OBJECT

public:
    explicit NotificationStack(QWidget* window); ///< null for the primary screen
    ~NotificationStack() override;

    void Add(const QString& text, int milliseconds);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    NotificationPopup* Find(const QString& text) const;
    void Forget(NotificationPopup* popup);
    void Place();

    QWidget* m_pWindow;
    QVector<NotificationPopup*> m_popups; ///< alive; the uppermost, which is the oldest, first
};

} // namespace KvGUI
