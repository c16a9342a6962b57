#pragma once

#include <gallery/Wall/WallNotes.h>

#include <QObject>
#include <QTemporaryDir>
#include <QTimer>

namespace OperatorClient {

/// What the screens of a wall show beside their windows: a text, overlays, the base map; and how drags
/// behave there. It stands in each screen's ScreenNote.
class ScreenNotes : public QObject
{
    Q_OBJECT

public:
    explicit ScreenNotes(WallWidget& wall, QObject* parent = nullptr);

    void WatchWall(); ///< to be called when the wall has been built anew
    void Show(int screen); ///< shows what its note says, in the present language

    void SetOverlays(int screen, bool bShow);
    void SetBaseMap(int screen, bool bShow);
    void SetPositioning(int screen, bool bEnable); ///< for the selected screen only
    void SetCellBound(int screen, bool bBound);

Q_SIGNALS:
    void SignalChanged(); ///< something that a layout holds
    void SignalReport(const QString& text);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Change(int screen, const ScreenNote& note);
    void ShowOverlaysAgain();
    QString BaseMapPath();

    WallWidget& m_wall;
    QTemporaryDir m_folder; ///< of the base map
    QTimer m_resized;
};

} // namespace OperatorClient
