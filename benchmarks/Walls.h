#pragma once

#include <Platform/BasicUIComponents/StructScaleRect.h>
#include <UI/TVWall/KvTVWallDisplayWnd.h>

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QVariant>
#include <memory>

/// Walls of the library, and what the same widgets would be in bare MDI areas.
namespace Walls {

/// So many screens across the wall and down, and windows across each screen and down.
struct Grid
{
    int screens;
    int windows;
};

constexpr Grid FullWall{6, 5}; ///< 900 windows on 36 screens
constexpr QSize WallSize(1920, 1080);

inline KvGUI::StructScaleRect Cell(int index, int across)
{
    const double side = 1.0 / across;
    const double left = (index % across) * side;
    const double top = (index / across) * side; // NOLINT(bugprone-integer-division)
    return {left, top, left + side, top + side, true};
}

/// Handles all posted events, layout and painting included.
inline void DeliverAll()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

/// Gives a wall its size and screens, and shows it.
template <typename Wall>
void Arrange(Wall& wall, const Grid& grid)
{
    wall.resize(WallSize);
    wall.SetTVWallGridCount(grid.screens, grid.screens);
    wall.SetWindowTitleShow(true);
    wall.show();
    for (int s = 0; s < grid.screens * grid.screens; ++s)
        wall.AddScreen(Cell(s, grid.screens), QVariant());
}

template <typename Wall>
std::unique_ptr<Wall> MakeWall(const Grid& grid = FullWall)
{
    auto wall = std::make_unique<Wall>();
    Arrange(*wall, grid);
    return wall;
}

template <typename Wall>
void OpenWindows(Wall& wall, const Grid& grid = FullWall)
{
    for (int s = 0; s < wall.GetScreenCount(); ++s) {
        for (int w = 0; w < grid.windows * grid.windows; ++w)
            wall.OpenWindow(s, Cell(w, grid.windows), QVariant());
    }
}

/// A widget of the client that fills the place of a window's video.
inline void AddVideo(QWidget* place)
{
    auto* layout = new QHBoxLayout(place);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* video = new QWidget(place);
    video->setAutoFillBackground(true);
    layout->addWidget(video);
}

template <typename Wall>
void AddVideos(Wall& wall, const Grid& grid = FullWall)
{
    for (int s = 0; s < wall.GetScreenCount(); ++s) {
        for (int w = 0; w < grid.windows * grid.windows; ++w)
            AddVideo(wall.GetWindowWidget(s, w));
    }
}

/// The style sheet of the display wall's widgets.
inline QString WidgetSheet() { return UICommonMdl::KvTVWallDisplayWnd().styleSheet(); }

/// The widgets of the display wall, placed by the same numbers, in QMdiArea and QMdiSubWindow as they are.
class BareWall : public QWidget
{
public:
    explicit BareWall(const QString& sheet, const Grid& grid = FullWall)
        : m_grid(grid)
    {
        setAttribute(Qt::WA_StyledBackground);
        setStyleSheet(sheet);
        for (int s = 0; s < grid.screens * grid.screens; ++s) {
            auto* area = new QMdiArea(this);
            area->setFrameStyle(QFrame::NoFrame);
            m_areas << area;
        }
    }

    void OpenWindows()
    {
        for (QMdiArea* area : qAsConst(m_areas)) {
            for (int w = 0; w < m_grid.windows * m_grid.windows; ++w) {
                auto* window = new QMdiSubWindow;
                AddChildren(window, w);
                area->addSubWindow(window, Qt::FramelessWindowHint | Qt::CustomizeWindowHint);
                m_windows << window;
                Place(window, area, w);
                window->show();
            }
        }
    }

    void AddVideos()
    {
        for (const QMdiSubWindow* window : qAsConst(m_windows))
            AddVideo(window->findChild<QWidget*>(QStringLiteral("pWindowVideo")));
    }

protected:
    void resizeEvent(QResizeEvent*) override
    {
        for (int s = 0; s < m_areas.size(); ++s)
            m_areas.at(s)->setGeometry(Pixels(Cell(s, m_grid.screens), size()));
        for (int w = 0; w < m_windows.size(); ++w) {
            const int perScreen = m_grid.windows * m_grid.windows;
            Place(m_windows.at(w), m_areas.at(w / perScreen), w % perScreen);
        }
    }

private:
    static QRect Pixels(const KvGUI::StructScaleRect& scale, const QSize& size)
    {
        return {
            int(size.width() * scale.dLeft), int(size.height() * scale.dTop),
            int(size.width() * (scale.dRight - scale.dLeft)),
            int(size.height() * (scale.dBottom - scale.dTop))};
    }

    static void AddChildren(QMdiSubWindow* window, int index)
    {
        delete window->layout(); // it would lay out one inner widget over the whole window
        auto* title = new QWidget(window);
        title->setObjectName(QStringLiteral("pWindowTitleBar"));
        title->setAttribute(Qt::WA_StyledBackground);
        auto* layout = new QHBoxLayout(title);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(1);
        auto* text = new QLabel(QStringLiteral("Window %1").arg(index + 1), title);
        text->setObjectName(QStringLiteral("pWindowTitleText"));
        text->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        layout->addWidget(text, 1);
        for (const char* name :
             {"pWindowVolumeOffBtn", "pWindowSelfAdaptionBtn", "pWindowMaxBtn", "pWindowCloseBtn"}) {
            auto* button = new QPushButton(title);
            button->setObjectName(QLatin1String(name));
            button->setMaximumSize(20, 20);
            layout->addWidget(button);
        }
        auto* video = new QWidget(window);
        video->setObjectName(QStringLiteral("pWindowVideo"));
        video->setAttribute(Qt::WA_StyledBackground);
    }

    void Place(QMdiSubWindow* window, const QMdiArea* area, int index) const
    {
        window->setGeometry(Pixels(Cell(index, m_grid.windows), area->size()));
        const QList<QWidget*> children
            = window->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
        children.at(0)->setGeometry(2, 2, window->width() - 4, 24);
        children.at(1)->setGeometry(1, 26, window->width() - 4, window->height() - 24);
    }

    const Grid m_grid;
    QList<QMdiArea*> m_areas;
    QList<QMdiSubWindow*> m_windows;
};

/// Such a wall, shown and still without windows.
inline std::unique_ptr<BareWall> MakeBareWall(const QString& sheet, const Grid& grid = FullWall)
{
    auto bare = std::make_unique<BareWall>(sheet, grid);
    bare->resize(WallSize);
    bare->show();
    return bare;
}

} // namespace Walls
