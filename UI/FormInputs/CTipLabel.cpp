#include <UI/FormInputs/CTipLabel.h>

#include "TipPlacement.h"
#include "WidgetScreen.h"

#include <QAccessible>
#include <QLinearGradient>
#include <QPainter>
#include <QPropertyAnimation>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextEdit>
#include <QTextFrame>
#include <QTextLayout>
#include <QTimerEvent>
#include <QWindow>
#include <cmath>

namespace UICommonMdl {

namespace {

constexpr int FadeTime = 1000; // milliseconds
constexpr int ShortestDisplayTime = 300; // milliseconds

/// A way to set a text in its box.
struct Setting
{
    int padding; ///< pixels between the text and the box's edge at the left and right
    int spacing; ///< advance of a letter, in percent of the font's own
    QTextOption::WrapMode wrap;
};

/// From the most pleasing to the tightest.
constexpr Setting Settings[]
    = {{6, 100, QTextOption::WrapAtWordBoundaryOrAnywhere},
       {3, 100, QTextOption::WrapAtWordBoundaryOrAnywhere},
       {3, 98, QTextOption::WrapAtWordBoundaryOrAnywhere},
       {3, 96, QTextOption::WrapAtWordBoundaryOrAnywhere},
       {2, 95, QTextOption::WrapAtWordBoundaryOrAnywhere},
       {2, 95, QTextOption::WrapAnywhere},
       {0, 93, QTextOption::WrapAnywhere}};

/// Pixels of room above and below the letters that a text which fills the box can do without.
constexpr int RoomAbove = 3;
constexpr int RoomBelow = 1;
constexpr QRgb BodyColor = qRgb(102, 47, 47);
constexpr QRgb ArrowColor = qRgb(229, 57, 53);

QRect GlobalRect(const QWidget* widget) { return {widget->mapToGlobal(QPoint(0, 0)), widget->size()}; }

/// The document's own count is that of its paragraphs.
int LineCount(const QTextDocument& document)
{
    int lines = 0;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        lines += block.layout()->lineCount();
    return lines;
}

} // namespace

CTipLabel* CTipLabel::Instance()
{
    static auto* const label = new CTipLabel;
    return label;
}

CTipLabel::CTipLabel()
    : QWidget(nullptr, Qt::FramelessWindowHint | Qt::ToolTip | Qt::BypassGraphicsProxyWidget)
    , m_pTextBox(new QTextEdit(this))
    , m_pFadeIn(MakeFade(0.0, 1.0))
    , m_pFadeOut(MakeFade(1.0, 0.0))
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFocusPolicy(Qt::NoFocus);
    m_pTextBox->setObjectName(QStringLiteral("m_tipLabel"));
    m_pTextBox->setStyleSheet(
        QStringLiteral("QTextEdit#m_tipLabel{border-radius:%1px;background-color:#662f2f;color:#abb2bd;}")
            .arg(TipCornerRadius));
    m_pTextBox->setFrameShape(QFrame::NoFrame);
    m_pTextBox->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_pTextBox->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_pTextBox->setReadOnly(true);
    m_pTextBox->setTextInteractionFlags(Qt::NoTextInteraction); // else there is text to be dragged
    m_pTextBox->setFocusPolicy(Qt::NoFocus);
    m_pTextBox->setContextMenuPolicy(Qt::NoContextMenu);
    m_pTextBox->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    m_pTextBox->document()->setDocumentMargin(0);
    connect(m_pFadeOut, &QPropertyAnimation::finished, this, &CTipLabel::OnFadeOutFinished);
}

QPropertyAnimation* CTipLabel::MakeFade(double from, double to)
{
    auto* fade = new QPropertyAnimation(this, QByteArrayLiteral("windowOpacity"), this);
    fade->setDuration(FadeTime);
    fade->setStartValue(from);
    fade->setEndValue(to);
    return fade;
}

void CTipLabel::ShowTip(const QString& text, QWidget* anchor, DisplayPosition position)
{
    if (text.isEmpty() || !anchor) {
        HideTip();
        return;
    }
    const bool hasArrow = position >= Left && position <= Bottom;
    const TipPlacement place
        = PlaceTip(GlobalRect(anchor), BodySize(text), hasArrow ? position : None, ScreenOf(anchor));
    m_iDisplayPosition = place.side;
    m_iArrowStart = place.arrowStart;
    SetAnchor(anchor);
    m_pFadeOut->stop();
    setGeometry(place.bubble);
    // Where the desktop does not mix windows, what is around the arrow would be black.
    const QRegion arrow(TipArrow(place.bubble.size(), place.side, place.arrowStart));
    setMask(arrow + TipBody(place.bubble.size(), place.side));
    m_pTextBox->setGeometry(TipBody(place.bubble.size(), place.side).adjusted(1, 1, -1, -1));
    SetText(text);
    update();
    show();
    LetClicksThrough();
    raise();
    m_hideTimer.start(m_iDisplayTime, this);
    m_pFadeIn->start();
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

/// The attribute works inside this program only; the window system must let clicks through as well. On X11
/// each showing makes a new window, to which Qt applies the flag only when it changes.
void CTipLabel::LetClicksThrough()
{
    windowHandle()->setFlag(Qt::WindowTransparentForInput, false);
    windowHandle()->setFlag(Qt::WindowTransparentForInput, true);
}

QSize CTipLabel::BodySize(const QString& text) const
{
    m_pTextBox->ensurePolished();
    const QFontMetrics metrics(m_pTextBox->font());
    return TipBodySize(metrics.boundingRect(text).width(), metrics.lineSpacing(), metrics.leading());
}

/// The text stands in the middle of the box's height. The box was measured without padding and as if every
/// line were full: where the text would need another line, it is set a little tighter, and at last words are
/// broken. The box may be lower than its lines, as the leading of many fonts is below zero: the lines are
/// moved together then, and the room around the letters is left out.
void CTipLabel::SetText(const QString& text)
{
    setAccessibleName(text);
    const QTextDocument* document = m_pTextBox->document();
    const QFontMetrics metrics(m_pTextBox->font());
    const int lines = TipLines(metrics.boundingRect(text).width());
    const int room = m_pTextBox->height() + RoomAbove + RoomBelow;
    int needed = 0;
    for (const Setting& setting : Settings) {
        m_pTextBox->setWordWrapMode(setting.wrap);
        QFont font = m_pTextBox->font();
        font.setLetterSpacing(QFont::PercentageSpacing, setting.spacing);
        m_pTextBox->document()->setDefaultFont(font);
        m_pTextBox->setPlainText(text);
        needed = SetMargins(setting.padding, 0);
        if (LineCount(*document) > lines)
            continue;
        if (needed > room)
            needed = MoveLinesTogether(lines > 1 ? (room - metrics.height()) / (lines - 1) : room);
        SetMargins(setting.padding, qMax(0, (m_pTextBox->height() - needed) / 2));
        break;
    }
    m_pTextBox->verticalScrollBar()->setValue(
        needed > room ? 0 : qBound(0, needed - m_pTextBox->height(), RoomAbove));
}

/// Returns the height that the text needs then.
int CTipLabel::MoveLinesTogether(int lineHeight)
{
    QTextBlockFormat format;
    format.setLineHeight(lineHeight, QTextBlockFormat::FixedHeight);
    QTextCursor all(m_pTextBox->document());
    all.select(QTextCursor::Document);
    all.mergeBlockFormat(format);
    return static_cast<int>(std::ceil(m_pTextBox->document()->size().height()));
}

/// Returns the height that the text needs then.
int CTipLabel::SetMargins(int beside, int above)
{
    QTextDocument* document = m_pTextBox->document();
    QTextFrameFormat format = document->rootFrame()->frameFormat();
    format.setLeftMargin(beside);
    format.setRightMargin(beside);
    format.setTopMargin(above);
    document->rootFrame()->setFrameFormat(format);
    document->setTextWidth(m_pTextBox->width());
    return static_cast<int>(std::ceil(document->size().height()));
}

void CTipLabel::SetAnchor(QWidget* anchor)
{
    const auto watch = [this](QWidget* widget, bool on) {
        if (!widget)
            return;
        if (on)
            widget->installEventFilter(this);
        else
            widget->removeEventFilter(this);
    };
    watch(m_pAnchor, false);
    watch(m_pAnchorWindow, false);
    disconnect(m_anchorDestroyed);
    if (anchor)
        m_anchorDestroyed = connect(anchor, &QObject::destroyed, this, [this] { HideTip(); });
    m_pAnchor = anchor;
    m_pAnchorWindow = anchor ? anchor->window() : nullptr;
    watch(m_pAnchorWindow, true);
    watch(m_pAnchor, true);
}

void CTipLabel::HideTip(const QWidget* anchor)
{
    if (anchor && anchor != m_pAnchor)
        return;
    m_hideTimer.stop();
    m_pFadeIn->stop();
    m_pFadeOut->stop();
    SetAnchor(nullptr);
    hide();
}

void CTipLabel::SetDisplayTime(int milliseconds)
{
    if (milliseconds > ShortestDisplayTime)
        m_iDisplayTime = milliseconds;
}

void CTipLabel::OnFadeOutFinished() { HideTip(); }

void CTipLabel::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_hideTimer.timerId()) {
        QWidget::timerEvent(event);
        return;
    }
    m_hideTimer.stop();
    m_pFadeIn->stop();
    m_pFadeOut->start();
}

bool CTipLabel::eventFilter(QObject* watched, QEvent* event)
{
    const bool windowMoved = watched == m_pAnchorWindow && event->type() == QEvent::Move;
    if (event->type() == QEvent::Hide || windowMoved)
        HideTip();
    return QWidget::eventFilter(watched, event);
}

void CTipLabel::paintEvent(QPaintEvent*)
{
    const auto side = static_cast<DisplayPosition>(m_iDisplayPosition);
    const QRect body = TipBody(size(), side);
    QLinearGradient fill(body.topLeft(), body.bottomLeft());
    for (const double stop : {0.0, 0.5, 1.0})
        fill.setColorAt(stop, QColor(BodyColor));
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    painter.drawRoundedRect(body, TipCornerRadius, TipCornerRadius);
    painter.setBrush(QColor(ArrowColor));
    painter.drawPolygon(TipArrow(size(), side, m_iArrowStart));
}

} // namespace UICommonMdl
