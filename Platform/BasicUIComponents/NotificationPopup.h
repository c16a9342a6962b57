#pragma once

#include <QFrame>
#include <QTimer>

class QLabel;

namespace KvGUI {

/// One message: a small window with a text and a close button that closes and deletes itself in time.
class NotificationPopup : public QFrame
{
    Q_OBJECT

public:
    /// @param parent the window that the message belongs to, or null
    NotificationPopup(const QString& text, int milliseconds, QWidget* parent);

    QString Text() const;

    /// The time begins anew.
    void Restart(int milliseconds);

    /// Fits the label to the text, long lines wrapped, and gives the size of the whole.
    QSize FittedSize();

Q_SIGNALS:
    void SignalClosed(); ///< the message is gone; its object is deleted later

protected:
    void closeEvent(QCloseEvent* event) override;
    void enterEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    const QString m_strText;
    QLabel* m_pText; ///< shows it, with places for a line break in its longest words
    QTimer m_time; ///< stands still while the pointer is inside
    bool m_bPointerInside = false;
};

} // namespace KvGUI
