#include "KvTVWallNormalScreen.h"

#include "KvTVWallNormalFrame.h"
#include "KvTVWallNormalView.h"
#include "KvTVWallNormalWindow.h"
#include "WallGeometry.h"

#include <QGraphicsScene>
#include <QPainter>
#include <cmath>

namespace UICommonMdl {

namespace {

constexpr QRgb ScreenColor = qRgb(33, 34, 37);
constexpr QRgb SelectedColor = qRgb(219, 221, 225);
constexpr int NoWindow = -1;

/// Holds the windows of a screen and cuts them at its edges.
class Pane : public QGraphicsItem
{
public:
    explicit Pane(QGraphicsItem* parent)
        : QGraphicsItem(parent)
    {
        setFlags(ItemHasNoContents | ItemClipsChildrenToShape);
    }

    QRectF boundingRect() const override { return parentItem()->boundingRect(); }
    void paint(QPainter*, const QStyleOptionGraphicsItem*, QWidget*) override { }
};

} // namespace

KvTVWallNormalScreen::KvTVWallNormalScreen(
    KvTVWallNormalView* view, int rowSpan, int columnSpan, const KvGUI::StructScaleRect& scale)
    : m_pView(view)
    , m_iRowSpan(rowSpan)
    , m_iColumnSpan(columnSpan)
    , m_scale(scale)
    , m_pPane(new Pane(this))
{
    m_pView->scene()->addItem(this);
}

// ---- The screen itself

const NormalWallLook& KvTVWallNormalScreen::Look() const { return m_pView->Look(); }

void KvTVWallNormalScreen::PlaceOnWall(const QRect& wall)
{
    const QRect place = WallGeometry::Displayable(WallGeometry::ScreenRect(wall, m_scale, false));
    setPos(place.topLeft());
    if (m_size == place.size())
        return;
    prepareGeometryChange();
    m_size = place.size();
    for (KvTVWallNormalWindow* window : qAsConst(m_windows))
        window->PlaceOnScreen();
    if (m_pFrame != nullptr)
        m_pFrame->FitTo(m_size);
}

void KvTVWallNormalScreen::SetSelected(bool selected)
{
    if (!selected)
        DeselectWindows();
    if (m_bSelected == selected)
        return;
    m_bSelected = selected;
    if (m_pFrame == nullptr) {
        m_pFrame = new KvTVWallNormalFrame(this);
        m_pFrame->SetColor(QColor(SelectedColor));
        m_pFrame->FitTo(m_size);
    }
    m_pFrame->setVisible(selected);
}

void KvTVWallNormalScreen::SetIcon(const QIcon& icon)
{
    m_icon = icon;
    update();
}

void KvTVWallNormalScreen::SetTitle(const QString& title)
{
    m_strTitle = title;
    update();
}

void KvTVWallNormalScreen::SetContentText(const QString& text)
{
    m_strContentText = text;
    update();
}

// ---- Windows

int KvTVWallNormalScreen::OpenWindow(
    const KvGUI::StructScaleRect& scale, const QVariant& userData, bool showTitle)
{
    auto* window = new KvTVWallNormalWindow(this, m_pPane, WallGeometry::NormalPrecision, scale, userData);
    m_windows.append(window);
    if (showTitle)
        window->SetTitle(QStringLiteral("%1 %2").arg(tr("Window"), QString::number(m_windows.size())));
    window->PlaceOnScreen();
    using Window = KvTVWallNormalWindow;
    const auto with = [this, window](const auto& report) {
        return [this, window, report] {
            const int index = IndexOf(window);
            if (index != NoWindow)
                report(index);
        };
    };
    if (scale.bEditable) {
        connect(window, &Window::SignalCloseBtnClicked, this, with([this](int index) {
                    Q_EMIT SignalWindowCloseBtnClicked(index);
                }));
        connect(window, &Window::SignalVolemeBtnClicked, this, with([this](int index) {
                    Q_EMIT SignalWindowVolumeBtnClicked(index);
                }));
        connect(window, &Window::SignalGeoChanged, this, [this, window](const KvGUI::StructScaleRect& rect) {
            const int index = IndexOf(window);
            if (index != NoWindow)
                Q_EMIT SignalWindowGeoChanged(index, rect);
        });
        connect(
            window, &Window::SignalDoubleClickedSelectedChanged, this,
            &KvTVWallNormalScreen::SignalWindowSelectedChanged);
    } else {
        connect(
            window, &Window::SignalDoubleClickedSelectedChanged, this,
            &KvTVWallNormalScreen::SignalWindowDoubleClicked);
    }
    return m_windows.size() - 1;
}

bool KvTVWallNormalScreen::DeleteWindow(int index)
{
    KvTVWallNormalWindow* window = GetWindow(index);
    if (window == nullptr)
        return false;
    m_windows.removeAt(index);
    disconnect(window, nullptr, this, nullptr);
    window->deleteLater();
    window->hide();
    return true;
}

void KvTVWallNormalScreen::DeleteAllWindows()
{
    for (int index = m_windows.size() - 1; index >= 0; --index)
        DeleteWindow(index);
}

QList<int> KvTVWallNormalScreen::GetWindowIndexs(bool selected) const
{
    QList<int> indexes;
    for (int index = 0; index < m_windows.size(); ++index) {
        if (m_windows.at(index)->IsSelected() == selected)
            indexes << index;
    }
    return indexes;
}

void KvTVWallNormalScreen::SelectOnly(int index, bool selected)
{
    const KvTVWallNormalWindow* chosen = GetWindow(index);
    if (chosen == nullptr)
        return;
    for (KvTVWallNormalWindow* window : qAsConst(m_windows))
        window->SetSelected(selected && window == chosen);
}

void KvTVWallNormalScreen::DeselectWindows()
{
    for (KvTVWallNormalWindow* window : qAsConst(m_windows))
        window->SetSelected(false);
}

bool KvTVWallNormalScreen::SetWindowZValue(int index, double z)
{
    KvTVWallNormalWindow* window = GetWindow(index);
    if (window == nullptr || std::isnan(z))
        return false;
    window->setZValue(z);
    return true;
}

double KvTVWallNormalScreen::GetMaxWindowZValue() const
{
    double largest = 0.0;
    for (const KvTVWallNormalWindow* window : m_windows)
        largest = qMax(largest, window->zValue());
    return largest;
}

int KvTVWallNormalScreen::IndexOf(const QObject* window) const
{
    const auto found = std::find(m_windows.begin(), m_windows.end(), window);
    return found == m_windows.end() ? NoWindow : int(found - m_windows.begin());
}

// ---- Painting

void KvTVWallNormalScreen::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*)
{
    painter->fillRect(boundingRect(), QColor(ScreenColor));
}

} // namespace UICommonMdl
