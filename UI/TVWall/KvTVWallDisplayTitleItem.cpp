#include "KvTVWallDisplayTitleItem.h"

#include "WindowTitle.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QStyle>
#include <QStyleOption>
#include <QVariant>

namespace UICommonMdl {

namespace {

using Button = WindowTitle::Button;

constexpr int ButtonSize = 20; // pixels, at most: buttons shrink in a narrow window
constexpr int IconSize = 16; // pixels
constexpr int SmallestButton = 8; // pixels

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
        QPainter painter(this);
        m_title.Draw(painter, rect(), text(), palette().color(QPalette::WindowText));
    }

private:
    WindowTitle m_title;
};

/// A button whose picture is its background's. Drawing a label that is not there would cost as much as the
/// rest of the title bar.
class TitleButton : public QPushButton
{
public:
    using QPushButton::QPushButton;

protected:
    void paintEvent(QPaintEvent* event) override
    {
        if (hasFocus() || !text().isEmpty() || !icon().isNull())
            return QPushButton::paintEvent(event);
        QStyleOptionButton option;
        initStyleOption(&option);
        QPainter painter(this);
        style()->drawControl(QStyle::CE_PushButtonBevel, &option, &painter, this);
    }
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
bool IsRestore(const QPushButton* button) { return button->property("restore").toBool(); }

void SetRestore(QPushButton* button, Button kind, bool restore)
{
    if (IsRestore(button) == restore)
        return;
    SetToolTip(button, WindowTitle::ToolTip(kind, restore));
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
    ShowToolTips();
}

void KvTVWallDisplayTitleItem::ShowToolTips()
{
    SetToolTip(m_btnVolume, WindowTitle::ToolTip(Button::Volume, m_bVolumeOn));
    SetToolTip(m_btnSnap, WindowTitle::ToolTip(Button::Snap, IsRestore(m_btnSnap)));
    SetToolTip(m_btnMax, WindowTitle::ToolTip(Button::Max, IsRestore(m_btnMax)));
    SetToolTip(m_btnClose, WindowTitle::ToolTip(Button::Close, false));
}

void KvTVWallDisplayTitleItem::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        ShowToolTips();
}

void KvTVWallDisplayTitleItem::PassMoves(bool pass)
{
    setMouseTracking(pass);
    m_pText->setMouseTracking(pass);
}

QPushButton* KvTVWallDisplayTitleItem::AddButton(const QString& objectName)
{
    auto* button = new TitleButton(this);
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
    m_bVolumeOn = on;
    m_btnVolume->setObjectName(
        on ? QStringLiteral("pWindowVolumeOnBtn") : QStringLiteral("pWindowVolumeOffBtn"));
    SetToolTip(m_btnVolume, WindowTitle::ToolTip(Button::Volume, on));
    StyleAgain(m_btnVolume);
}

void KvTVWallDisplayTitleItem::SetMaximized(bool maximized) { SetRestore(m_btnMax, Button::Max, maximized); }

void KvTVWallDisplayTitleItem::SetSnapped(bool snapped) { SetRestore(m_btnSnap, Button::Snap, snapped); }

} // namespace UICommonMdl
