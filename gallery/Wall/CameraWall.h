#pragma once

#include <gallery/Pictures/FrameClock.h>
#include <gallery/Pictures/SourcePool.h>
#include <gallery/Wall/WallLayout.h>
#include <gallery/Wall/WallWidget.h>
#include <gallery/Wall/WindowDetails.h>

#include <QMetaType>
#include <QTemporaryDir>
#include <QTimer>

class QDropEvent;

namespace OperatorClient {

class CameraTile;

/// What the page keeps with each screen of the wall.
struct ScreenNote
{
    QString text;
    bool overlays = false;
    bool baseMap = false;
    bool positioning = false; ///< drags over its windows draw 3D frames
    bool cellBound = false; ///< drags end on its cells; in the normal family
};

/// What the page keeps with each window of the wall.
struct WindowNote
{
    QString source; ///< as text
    bool titled = false;
    int volume = 100; ///< per cent of the wall's
};

/// The wall with pictures in its windows. It answers the operator's hand: opens a window where an area was
/// drawn or a file dropped, closes it by its button, lets one window sound. All state is the wall's own, so
/// that a layout is read from what is really there.
class CameraWall : public QWidget
{
    Q_OBJECT

public:
    CameraWall(SourcePool& pool, FrameClock& clock, QWidget* parent = nullptr);

    WallWidget* Wall() const { return m_pWall; }

    /// Replaces the wall by a stored one and selects its first screen.
    void Apply(const WallLayout& layout);
    /// The wall as it is.
    WallLayout Layout() const;

    /// Shows the same wall in another family (WallLayout::NormalFamily or DisplayFamily).
    void SetFamily(int family);
    int Family() const { return m_iFamily; }
    void ShowWholeWall(); ///< of the normal family: ends zooming and panning

    /// Files that the next windows show, before cameras come.
    void SetWaitingFiles(const QVector<SourceSpec>& files) { m_waitingFiles = files; }
    /// Shows the waiting files in the windows that are open, for as long as there are both.
    void ShowWaitingFiles();

    void SetGrid(int rows, int columns);
    bool AddScreen(); ///< on the first free cell; false when there is none
    int FillGrid(); ///< a screen on each free cell; how many
    void RemoveAll();
    void SetGutter(bool bGutter);
    void SetTitles(bool bTitles);
    void SetSelectionMode(int mode);

    /// Opens a window with the next waiting file or the first camera not shown. @return its index, or -1
    int OpenWindow(int screen, const KvGUI::StructScaleRect& rect);
    int OpenWindow(int screen, const KvGUI::StructScaleRect& rect, const SourceSpec& source);
    /// Opens a window on the selected screen, a step beside those that are there.
    int OpenWindowSomewhere(const SourceSpec* source = nullptr);
    void ReplaceSource(int screen, int window, const SourceSpec& source);
    void CloseWindow(int screen, int window);
    void CloseWindows(int screen);
    void CloseSelected();
    void StackSelected(bool toTop); ///< the selected windows above or below all others of their screen
    void SnapWindows(int screen); ///< every window to the screen's cells

    ScreenNote Note(int screen) const;
    void SetOverlays(int screen, bool bShow);
    void SetBaseMap(int screen, bool bShow);
    void SetPositioning(int screen, bool bEnable); ///< for the selected screen only
    void SetCellBound(int screen, bool bBound);

    WindowFacts Facts(int screen, int window) const;
    /// Lets this window sound alone, or turns its sound off.
    void SetWindowSound(int screen, int window, bool bAudible);
    void SetWindowVolume(int screen, int window, int volume); ///< per cent of the wall's
    void SetSound(bool bOn); ///< of the whole wall
    void SetVolume(int volume); ///< of the whole wall, per cent

Q_SIGNALS:
    void SignalChanged(); ///< something that a layout holds is another one now
    void SignalSelectionChanged(); ///< other windows may be the selected ones now
    void SignalSoundChanged(); ///< another window may sound now
    void SignalScreenSelected(); ///< another screen may be the selected one now
    void SignalMenuWanted(int screen);
    void SignalReport(const QString& text); ///< one line for the status bar

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void ConnectReports();
    void ConnectHands();
    void ShowFamily(int family);
    void AddScreenFor(const ScreenLayout& layout);
    void RestoreWindows(int screen, const QVector<WindowLayout>& windows);
    void Stack(int screen, const QVector<int>& order);
    QVector<int> ZValues(int screen) const;
    void PlaceTile(int screen, int window, const SourceSpec& source);
    CameraTile* Tile(int screen, int window) const;
    void NameSource(int screen, int window); ///< in the window's title
    SourceSpec NextSource();
    bool IsShown(const SourceSpec& source) const;
    void SetAudible(int screen, int window, bool bAudible);
    void SilenceAll();
    void ApplySound();
    void OnVolume(int screen, int window);
    void OnScreenEvent(int screen, QEvent* event);
    void OnWindowEvent(int screen, int window, QEvent* event);
    void OpenAtDrop(int screen, const QDropEvent& drop, const SourceSpec& source);
    void ShowNote(int screen, const ScreenNote& note);
    void ChangeNote(int screen, const ScreenNote& note); ///< keeps, shows and reports it
    void ShowOverlaysAgain();
    QString BaseMapPath();

    SourcePool& m_pool;
    FrameClock& m_clock;
    WallWidget* m_pWall;
    int m_iFamily = -1; // none yet
    QVector<SourceSpec> m_waitingFiles;
    bool m_bTitles = true;
    bool m_bGutter = true;
    bool m_bSound = true;
    int m_iVolume = 50; // per cent
    QTemporaryDir m_folder; ///< of the base map
    QTimer m_resized;
};

} // namespace OperatorClient

Q_DECLARE_METATYPE(OperatorClient::ScreenNote)
Q_DECLARE_METATYPE(OperatorClient::WindowNote)
