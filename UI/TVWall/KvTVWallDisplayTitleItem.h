#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

namespace UICommonMdl {

/// The title bar of a window: its text and the buttons for volume, snapping, maximising and closing.
///
/// It shows states; what a click on a button does is the window's business.
class KvTVWallDisplayTitleItem : public QWidget
{
    Q_OBJECT

public:
    explicit KvTVWallDisplayTitleItem(QWidget* parent);

    void SetText(const QString& text); ///< elided at its end where it does not fit
    void SetVolumeOn(bool on);
    void SetMaximized(bool maximized);
    void SetSnapped(bool snapped);
    void PassMoves(bool pass); ///< whether the window gets moves of the mouse without a button, too

    QPushButton* VolumeButton() const { return m_btnVolume; }
    QPushButton* SnapButton() const { return m_btnSnap; }
    QPushButton* MaxButton() const { return m_btnMax; }
    QPushButton* CloseButton() const { return m_btnClose; }

protected:
    void changeEvent(QEvent* event) override;

private:
    QPushButton* AddButton(const QString& objectName);
    void ShowToolTips();

    QLabel* m_pText;
    QPushButton* m_btnVolume;
    QPushButton* m_btnSnap;
    QPushButton* m_btnMax;
    QPushButton* m_btnClose;
    bool m_bVolumeOn = false;
};

} // namespace UICommonMdl
