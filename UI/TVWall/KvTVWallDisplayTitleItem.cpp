#include "KvTVWallDisplayTitleItem.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QStyle>
#include <QVariant>

namespace UICommonMdl {

namespace {

constexpr int ButtonSize = 20; // pixels, at most: buttons shrink in a narrow window
constexpr int IconSize = 16; // pixels
constexpr int SmallestButton = 8; // pixels
constexpr int TextIndent = 4; // pixels

/// A label that ends a text which does not fit with an ellipsis, and never asks for room. Painted without
/// the style, which costs more than the text itself on a wall with hundreds of windows.
class TitleText : public QLabel
{
public:
    explicit TitleText(QWidget* parent)
        : QLabel(parent)
    {
        setObjectName(QStringLiteral("pWindowTitleText"));
        setTextFormat(Qt::PlainText);
        setAttribute(Qt::WA_NoSystemBackground);
        setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        const QRect area = rect().adjusted(TextIndent, 0, 0, 0);
        if (text().isEmpty() || area.isEmpty())
            return;
        QPainter painter(this);
        painter.setPen(palette().color(QPalette::WindowText));
        const QFontMetrics metrics = painter.fontMetrics();
        const bool fits = TextWidth(metrics) <= area.width();
        painter.drawText(
            area, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
            fits ? text() : metrics.elidedText(text(), Qt::ElideRight, area.width()));
    }

private:
    // Measured again only for another text or font.
    int TextWidth(const QFontMetrics& metrics)
    {
        if (m_measuredText != text() || m_measuredFont != font()) {
            m_measuredText = text();
            m_measuredFont = font();
            m_textWidth = metrics.horizontalAdvance(text());
        }
        return m_textWidth;
    }

    QString m_measuredText;
    QFont m_measuredFont;
    int m_textWidth = 0;
};

void SetToolTip(QPushButton* button, const QString& toolTip)
{
    button->setToolTip(toolTip);
    button->setAccessibleName(toolTip);
}

void StyleAgain(QWidget* widget)
{
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
    widget->update();
}

// The sheet selects the restoring icon by this property. A button that was never set has none.
void SetRestore(QPushButton* button, bool restore)
{
    if (button->property("restore").toBool() == restore)
        return;
    button->setProperty("restore", restore);
    StyleAgain(button);
}

} // namespace

KvTVWallDisplayTitleItem::KvTVWallDisplayTitleItem(QWidget* parent)
    : QWidget(parent)
    , m_pText(new TitleText(this))
    , m_btnVolume(AddButton(QStringLiteral("pWindowVolumeOffBtn")))
    , m_btnSnap(AddButton(QStringLiteral("pWindowSelfAdaptionBtn")))
    , m_btnMax(AddButton(QStringLiteral("pWindowMaxBtn")))
    , m_btnClose(AddButton(QStringLiteral("pWindowCloseBtn")))
{
    setObjectName(QStringLiteral("pWindowTitleBar"));
    setAttribute(Qt::WA_StyledBackground);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(1);
    layout->addWidget(m_pText, 1);
    for (QPushButton* button : {m_btnVolume, m_btnSnap, m_btnMax, m_btnClose})
        layout->addWidget(button);
    SetToolTip(m_btnVolume, tr("Open Volume"));
    SetToolTip(m_btnSnap, tr("SelfAdaption"));
    SetToolTip(m_btnMax, tr("Max"));
    SetToolTip(m_btnClose, tr("Close"));
}

QPushButton* KvTVWallDisplayTitleItem::AddButton(const QString& objectName)
{
    auto* button = new QPushButton(this);
    button->setObjectName(objectName);
    button->setFocusPolicy(Qt::TabFocus);
    button->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    button->setMinimumWidth(SmallestButton);
    button->setMaximumSize(ButtonSize, ButtonSize);
    button->setIconSize(QSize(IconSize, IconSize)); // the style would compute it at each painting
    return button;
}

void KvTVWallDisplayTitleItem::SetText(const QString& text) { m_pText->setText(text); }

void KvTVWallDisplayTitleItem::SetVolumeOn(bool on)
{
    m_btnVolume->setObjectName(
        on ? QStringLiteral("pWindowVolumeOnBtn") : QStringLiteral("pWindowVolumeOffBtn"));
    SetToolTip(m_btnVolume, on ? tr("Close Volume") : tr("Open Volume"));
    StyleAgain(m_btnVolume);
}

void KvTVWallDisplayTitleItem::SetMaximized(bool maximized)
{
    SetToolTip(m_btnMax, maximized ? tr("Restore") : tr("Max"));
    SetRestore(m_btnMax, maximized);
}

void KvTVWallDisplayTitleItem::SetSnapped(bool snapped)
{
    SetToolTip(m_btnSnap, snapped ? tr("Restore") : tr("SelfAdaption"));
    SetRestore(m_btnSnap, snapped);
}

} // namespace UICommonMdl
