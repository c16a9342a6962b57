#include <UI/Dialogs/CFloatDialog.h>

#include "ui_CFloatDialog.h"

#include <Common/CommonFun.h>
#include <Platform/BasicUIComponents/DialogEnd.h>
#include <Platform/BasicUIComponents/KvSkinNotifier.h>
#include <UI/Dialogs/FloatSlide.h>

#include <QCloseEvent>
#include <QGridLayout>
#include <QGuiApplication>
#include <QPropertyAnimation>
#include <QResizeEvent>

namespace UICommonMdl {

CFloatDialog::CFloatDialog(QWidget* parent)
    : QDialog(parent, Qt::FramelessWindowHint)
    , m_ui(std::make_unique<Ui::CFloatDialog>())
    , m_floatWgt(new QWidget(this))
    , m_pAnimation(new QPropertyAnimation(m_floatWgt, "pos", this))
{
    setObjectName(QStringLiteral("CFloatDialog"));
    setAttribute(Qt::WA_TranslucentBackground);
    // A panel that comes by itself may not take the keyboard from the page that is worked on.
    setAttribute(Qt::WA_ShowWithoutActivating);
    m_floatWgt->setObjectName(QStringLiteral("m_floatWgt"));
    m_ui->setupUi(m_floatWgt);
    WatchAncestors();

    m_pAnimation->setEasingCurve(QEasingCurve::InOutCirc);
    connect(m_pAnimation, &QPropertyAnimation::valueChanged, this, &CFloatDialog::ShowStep);
    connect(m_pAnimation, &QPropertyAnimation::finished, this, &CFloatDialog::SignalAnimationFinished);
    connect(m_ui->closeBtn, &QPushButton::clicked, this, &CFloatDialog::OnBtnCloseClicked);
    connect(
        KvGUI::KvSkinNotifier::Instance(), &KvGUI::KvSkinNotifier::SignalSkinChanged, this,
        &CFloatDialog::LoadStyleSheet);
    LoadStyleSheet();
}

CFloatDialog::~CFloatDialog() = default;

void CFloatDialog::AddCentralWidget(QWidget* widget)
{
    if (widget == nullptr)
        return;
    if (m_ui->wgtCenter->layout() == nullptr)
        (new QGridLayout(m_ui->wgtCenter))->setContentsMargins(0, 0, 0, 0);
    m_ui->wgtCenter->layout()->addWidget(widget);
}

QWidget* CFloatDialog::GetCentralWidget() const { return m_ui->wgtCenter; }

void CFloatDialog::SetTitle(const QString& strTitle) { m_ui->titleText->setText(strTitle); }

void CFloatDialog::SetFixWidth(int iWidth)
{
    const int width = qBound(0, iWidth, QWIDGETSIZE_MAX);
    setFixedWidth(width);
    m_floatWgt->setFixedWidth(width);
    PlacePanel();
    UpdatePos();
}

void CFloatDialog::SetCentralWidgetStyle(const QString& strStyle) { setStyleSheet(styleSheet() + strStyle); }

void CFloatDialog::InitUI() { m_ui->label_info->hide(); }

void CFloatDialog::AnimaShow(bool show)
{
    if (show == m_bShown)
        return;
    FloatSlide slide = FloatSlide::FromRest(show, m_floatWgt->width(), m_Duration);
    if (IsSliding()) {
        const int elapsed = m_pAnimation->currentTime();
        m_pAnimation->stop();
        slide = FloatSlide::TurnedBack(show, m_floatWgt->width(), m_floatWgt->x(), elapsed);
    }
    m_bShown = show;
    m_bShowWithParent = false; // that is for panels that were taken out at once
    GiveFocusBack();
    m_pAnimation->setStartValue(slide.start);
    m_pAnimation->setEndValue(slide.end);
    m_pAnimation->setDuration(slide.duration);
    m_pAnimation->start(QAbstractAnimation::KeepWhenStopped); // a slide of no time ends in here
}

void CFloatDialog::DirectShow(bool show)
{
    if (show == m_bShown)
        return;
    m_pAnimation->stop();
    m_bShown = show;
    m_bShowWithParent = !show;
    PlacePanel();
    GiveFocusBack();
}

bool CFloatDialog::IsShown() const { return m_bShown || IsSliding(); }

QPoint CFloatDialog::HiddenPos() { return {m_floatWgt->width(), 0}; }

void CFloatDialog::UpdateHeight(int h)
{
    if (h > 0)
        setFixedHeight(qMin(h, QWIDGETSIZE_MAX));
}

void CFloatDialog::UpdatePos()
{
    if (const QWidget* parent = parentWidget()) {
        const QPoint corner(parent->width() - width() - m_Margin, m_Margin);
        move(isWindow() ? parent->mapToGlobal(corner) : corner);
    }
}

void CFloatDialog::done(int iResult) { EndDialog(*this, iResult); }

void CFloatDialog::OnBtnCloseClicked() { Q_EMIT SignalBtnCloseClicked(); }

bool CFloatDialog::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::Polish:
        m_floatWgt->setFixedWidth(width());
        PlacePanel();
        break;
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        event->accept();
        return true;
    case QEvent::ParentChange:
        WatchAncestors();
        break;
    default:
        break;
    }
    return QDialog::event(event);
}

bool CFloatDialog::eventFilter(QObject* watched, QEvent* event)
{
    if (parentWidget() == nullptr)
        return false;
    if (watched == m_watched.value(0) || watched == m_watched.value(1))
        FollowParent(*event);
    if (event->type() == QEvent::Move)
        UpdatePos();
    if (event->type() == QEvent::ParentChange) {
        WatchAncestors();
        UpdatePos(); // no move comes of it where the place in the new parent is the old one
        Q_EMIT SignalParentChange();
    }
    return false;
}

/// @param event of the parent or its parent
void CFloatDialog::FollowParent(const QEvent& event)
{
    switch (event.type()) {
    case QEvent::Resize:
        UpdateHeight(static_cast<const QResizeEvent&>(event).size().height());
        UpdatePos();
        break;
    case QEvent::Hide:
    case QEvent::HideToParent:
        if (IsShown()) {
            DirectShow(false);
            repaint();
        }
        break;
    case QEvent::Show:
    case QEvent::ShowToParent:
        if (m_bShowWithParent) {
            DirectShow(true);
            repaint();
        }
        break;
    default:
        break;
    }
}

void CFloatDialog::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event); // centres a dialog
    if (const QWidget* parent = parentWidget())
        UpdateHeight(parent->height());
    UpdatePos();
    UpdateShape();
}

void CFloatDialog::resizeEvent(QResizeEvent* event)
{
    m_floatWgt->setFixedHeight(event->size().height());
    UpdateShape();
    QDialog::resizeEvent(event);
}

void CFloatDialog::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        m_ui->retranslateUi(m_floatWgt);
}

void CFloatDialog::closeEvent(QCloseEvent* event)
{
    if (event->spontaneous()) {
        event->ignore();
        OnBtnCloseClicked();
    } else {
        QDialog::closeEvent(event);
    }
}

void CFloatDialog::WatchAncestors()
{
    for (const QPointer<QWidget>& former : qAsConst(m_watched)) {
        if (former)
            former->removeEventFilter(this);
    }
    m_watched.clear();
    for (QWidget* ancestor = parentWidget(); ancestor != nullptr; ancestor = ancestor->parentWidget()) {
        ancestor->installEventFilter(this);
        m_watched.append(ancestor);
    }
}

bool CFloatDialog::IsSliding() const { return m_pAnimation->state() != QAbstractAnimation::Stopped; }

/// Puts a panel that does not slide where it belongs, and lets one that slides end there.
void CFloatDialog::PlacePanel()
{
    const QPoint place = m_bShown ? QPoint(0, 0) : HiddenPos();
    if (IsSliding())
        m_pAnimation->setEndValue(place);
    else
        m_floatWgt->move(place);
    UpdateShape();
}

/// Gives the window the shape of the visible part of the panel. Not every desktop lets clicks pass where a
/// window is transparent, or shows what is behind it.
void CFloatDialog::UpdateShape()
{
    // Without a desktop there are no shapes, and a warning at each try.
    if (QGuiApplication::platformName() != QLatin1String("offscreen"))
        setMask(CoveredByPanel(size(), m_floatWgt->geometry()));
}

/// A step of a slide. Painted at once: otherwise the strip that the shape lets in is seen before the rest has
/// moved.
void CFloatDialog::ShowStep()
{
    UpdateShape();
    repaint();
}

/// A panel that goes out takes no keys with it.
void CFloatDialog::GiveFocusBack()
{
    QWidget* parent = parentWidget();
    if (!m_bShown && parent != nullptr && parent->isVisible() && isActiveWindow())
        parent->activateWindow();
}

void CFloatDialog::LoadStyleSheet()
{
    const QString path = CommonFun::GetSkinPath(
        QStringLiteral("UICommonModule"), QStringLiteral("FloatDialog/CFloatDialog.qss"));
    QString sheet;
    if (!CommonFun::loadStyleSheet(path, sheet))
        return;
    // What was appended stays; a sheet that the client put in place of the skin's stays as it is.
    const QString present = styleSheet();
    if (!present.startsWith(m_strSkinSheet))
        return;
    setStyleSheet(sheet + present.mid(m_strSkinSheet.size()));
    m_strSkinSheet = sheet;
}

} // namespace UICommonMdl
