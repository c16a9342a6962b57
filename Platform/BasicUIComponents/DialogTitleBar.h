#pragma once

#include <QWidget>

class QLabel;

namespace KvGUI {

/// The title bar of a dialog: the title, a close button, and a handle by which the window is dragged.
class DialogTitleBar : public QWidget
{
    Q_OBJECT

public:
    DialogTitleBar(bool bCloseButton, QWidget* parent);

    void SetTitle(const QString& title);

Q_SIGNALS:
    void SignalCloseClicked();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void AddCloseButton();
    void ShowTitle();
    void FollowDirection();

    QLabel* m_pTitle;
    QString m_strTitle;
    QPoint m_grab; ///< where the pointer holds the window, from its top left corner
    bool m_bDragging = false;
};

} // namespace KvGUI
