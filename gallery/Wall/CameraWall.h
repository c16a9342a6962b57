#pragma once

#include <gallery/Pictures/FrameClock.h>
#include <gallery/Pictures/SourcePool.h>
#include <gallery/Wall/WallLayout.h>
#include <gallery/Wall/WallWidget.h>
#include <gallery/Wall/WindowDetails.h>

namespace OperatorClient {

class ScreenNotes;
class WallSound;

/// The wall with pictures in its windows. It opens a window where the operator draws an area and closes it by
/// its button; what lies on the screens beside windows, sound, dropped files and reports are its parts'. All
/// state is the wall's own, so that a layout is read from what is really there.
class CameraWall : public QWidget
{
    Q_OBJECT

public:
    CameraWall(SourcePool& pool, FrameClock& clock, QWidget* parent = nullptr);

    WallWidget* Wall() const { return m_pWall; }
    ScreenNotes* Notes() const { return m_pNotes; } ///< what screens show beside windows
    WallSound* Sound() const { return m_pSound; }

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

    WindowFacts Facts(int screen, int window) const;

Q_SIGNALS:
    void SignalChanged(); ///< something that a layout holds is another one now
    void SignalSelectionChanged(); ///< other windows may be the selected ones now
    void SignalSoundChanged(); ///< another window may sound now
    void SignalScreenSelected(); ///< another screen may be the selected one now
    void SignalMenuWanted(int screen);
    void SignalReport(const QString& text); ///< one line for the status bar

protected:
    void changeEvent(QEvent* event) override;

private:
    void ConnectWall();
    void ConnectParts();
    void ShowFamily(int family);
    void AddScreenFor(const ScreenLayout& layout);
    void RestoreWindows(int screen, const QVector<WindowLayout>& windows);
    void Stack(int screen, const QVector<int>& order);
    QVector<int> ZValues(int screen) const;
    void PlaceTile(int screen, int window, const SourceSpec& source);
    void NameSource(int screen, int window); ///< in the window's title
    SourceSpec NextSource();
    bool IsShown(const SourceSpec& source) const;

    SourcePool& m_pool;
    FrameClock& m_clock;
    WallWidget* m_pWall;
    ScreenNotes* m_pNotes;
    WallSound* m_pSound;
    int m_iFamily = -1; // none yet
    QVector<SourceSpec> m_waitingFiles;
    bool m_bTitles = true;
    bool m_bGutter = true;
};

} // namespace OperatorClient
