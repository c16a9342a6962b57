// Every widget but the walls.

#include "Kind.h"

#include <Platform/BasicUIComponents/KvCalendarEx.h>
#include <Platform/BasicUIComponents/KvCheckBox.h>
#include <Platform/BasicUIComponents/KvCustomDialog.h>
#include <Platform/BasicUIComponents/KvHorScrollBar.h>
#include <Platform/BasicUIComponents/KvMenu.h>
#include <Platform/BasicUIComponents/KvPushButton.h>
#include <Platform/BasicUIComponents/KvVerScrollBar.h>
#include <UI/CutPhoto/CComTipWiget.h>
#include <UI/CutPhoto/CComTipWigetWithZoom.h>
#include <UI/CutPhoto/CCutDetailPhoto.h>
#include <UI/CutPhoto/CCutPhotoDlg.h>
#include <UI/CutPhoto/CCutPhotoDlgWithZoom.h>
#include <UI/CutPhoto/CCutPhotoWithZoom.h>
#include <UI/Dialogs/CDisplayQRcodeDlg.h>
#include <UI/Dialogs/CFloatDialog.h>
#include <UI/Dialogs/KvVolumeButton.h>
#include <UI/FormInputs/CPasswordEdit.h>
#include <UI/FormInputs/CPasswordStrength.h>
#include <UI/FormInputs/KvImpPushButton.h>
#include <UI/FormInputs/KvLineEditEx.h>
#include <UI/FormInputs/KvLineEditWithDirButton.h>
#include <UI/FormInputs/QIpAddrEdit.h>
#include <UI/FormInputs/QIpPartLineEdit.h>
#include <UI/FormInputs/WmAddGroup.h>
#include <UI/FormInputs/WmDateCalendar.h>
#include <UI/FormInputs/WmNoImpPushButton.h>
#include <UI/LinkWeb/CActiveXLinkWebCtrl.h>
#include <UI/PersonImage/WmPersonImage.h>

#include <QAbstractAnimation>
#include <QApplication>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <limits>

namespace Storms {

using namespace UICommonMdl;

namespace {

/// A kind without rules of its own.
template <class Widget>
Kind Plain(const QVector<Operation>& operations = {})
{
    const auto make = [](QWidget* parent) -> QWidget* { return new Widget(parent); };
    return {Widget::staticMetaObject.className(), make, operations, {}, {}, {}};
}

/// A kind with the rule that @p fault returns an empty text.
template <class Widget>
Kind Ruled(const QVector<Operation>& operations, QString (*fault)(Widget&))
{
    Kind kind = Plain<Widget>(operations);
    kind.fault = [fault](QWidget& widget, bool) { return fault(static_cast<Widget&>(widget)); };
    return kind;
}

QString FaultUnless(bool right, const char* fault) { return right ? QString() : QString::fromLatin1(fault); }

// ---- Inputs

/// Texts are taken as they are; the check must know whether one was an address.
void SetAddress(QWidget& edit, Dice& dice)
{
    const QString text = dice.Text();
    const bool isAddress = text.startsWith(QLatin1String("10.0.0.")) && text.midRef(7).toInt() <= 255;
    const bool foreign = !isAddress && (edit.property("foreign").toBool() || !text.isEmpty());
    edit.setProperty("foreign", foreign);
    const QPointer<QWidget> guard(&edit);
    static_cast<QIpAddrEdit&>(edit).settext(text);
    if (guard && foreign) // a slot may have set an address before the last parts of this text
        edit.setProperty("foreign", true);
}

/// Octets that are none, or a look of the focus without it.
QString AddressFault(QIpAddrEdit& edit)
{
    const auto octets = edit.findChildren<QIpPartLineEdit*>();
    const auto isOctet = [](const QIpPartLineEdit* octet) {
        return octet->text().isEmpty() || (octet->text().size() <= 3 && octet->text().toUInt() <= 255);
    };
    const bool focus
        = std::any_of(octets.begin(), octets.end(), [](const QWidget* w) { return w->hasFocus(); });
    // Not the other way round: after a hide, Qt can name an octet that it has told of no focus.
    if (edit.notice() && !focus && QApplication::activePopupWidget() == nullptr)
        return QStringLiteral("notice without focus");
    const bool foreign = edit.property("foreign").toBool();
    const bool right = foreign || std::all_of(octets.begin(), octets.end(), isOctet);
    return right ? QString() : QStringLiteral("no address: ") + edit.text();
}

QString PasswordFault(CPasswordEdit& edit)
{
    const bool readable = edit.echoMode() == QLineEdit::Password && edit.displayText() == edit.text();
    return FaultUnless(!readable || edit.text().isEmpty(), "readable");
}

void SetMaxLen(QWidget& dialog, Dice& dice)
{
    const int most = dice.Int();
    dialog.setProperty("most", most);
    static_cast<WmAddGroup&>(dialog).SetMaxLen(most);
}

/// A name beyond its budget in characters, which no encoding allows.
QString GroupFault(WmAddGroup& dialog)
{
    const QVariant most = dialog.property("most");
    const int length = dialog.findChild<QLineEdit*>()->text().size();
    return FaultUnless(length <= qMax(0, most.isValid() ? most.toInt() : 32), "a name beyond its budget");
}

bool IsNameTrimmed(QWidget&, const QMetaMethod& signal, void** arguments)
{
    const int name = signal.parameterTypes().indexOf("QString");
    if (name < 0 || !signal.name().startsWith("Signal"))
        return true;
    const auto& text = *static_cast<const QString*>(arguments[name + 1]);
    return !text.isEmpty() && text == text.trimmed();
}

/// The calendar, and the button that opens one.
template <class Calendar>
Kind CalendarKind()
{
    const Operation limit = [](QWidget& calendar, Dice& dice) {
        const int days = dice.Int();
        calendar.setProperty("days", days);
        static_cast<Calendar&>(calendar).SetRestrcitDateRange(days);
    };
    const auto fault = [](Calendar& calendar) {
        QDateTime start;
        QDateTime end;
        calendar.DateTimeRange(start, end);
        const int days = calendar.property("days").toInt();
        const bool ordered = start.isValid() == end.isValid() && start <= end;
        const bool fits = days <= 0 || !start.isValid() || start.date().daysTo(end.date()) < days;
        return FaultUnless(ordered && fits, "a range that runs backwards, or is too long");
    };
    return Ruled<Calendar>({Op(&Calendar::SetSelDate), limit, Op(&Calendar::SetTimeEditVisible)}, fault);
}

// ---- Photos

/// Both canvases have the same operations.
template <class Canvas>
QVector<Operation> CanvasOperations()
{
    return {
        Op(&Canvas::SetSrcPhoto),
        Op(&Canvas::SetSrcImage),
        Op(&Canvas::SetSrcImage),
        Op(&Canvas::SetCutImage),
        Op(&Canvas::SetCutRegion),
        Op(&Canvas::SetImageMaxCapacity),
        Op(&Canvas::SetPicMaxSize),
        Op(&Canvas::SetKeepAspectRatio),
        Op(&Canvas::IsCutPhotoVaildWithNotify),
        [](QWidget& canvas, Dice& dice) {
            QRect frame;
            frame.setCoords(dice.Int(), dice.Int(), dice.Int(), dice.Int());
            static_cast<Canvas&>(canvas).SetCutRegion(frame);
        }};
}

template <class Canvas>
QString CanvasFault(Canvas& canvas)
{
    return FaultUnless(canvas.GetCompressRatio() >= -1 && canvas.GetCompressRatio() <= 100, "quality");
}

template <class Dialog, class Canvas>
Kind CutDialogKind()
{
    const Operation canvas = [](QWidget& dialog, Dice& dice) {
        const QVector<Operation> operations = CanvasOperations<Canvas>();
        operations.at(dice.Below(operations.size()))(*static_cast<Dialog&>(dialog).GetCanvas(), dice);
    };
    const Operation resolution = [](QWidget& dialog, Dice& dice) {
        static_cast<Dialog&>(dialog).SetPhotoResolution(dice.Int() % 3000, dice.Int() % 3000);
    };
    const auto fault = [](Dialog& dialog) { return CanvasFault(*dialog.GetCanvas()); };
    return Ruled<Dialog>(
        {Op(&Dialog::SetSrcPhoto), Op(&Dialog::SetDlgTitle), resolution, canvas, canvas, canvas}, fault);
}

/// A button that is switched off and shown all the same.
QString PersonFault(WmPersonImage& panel)
{
    const auto buttons = panel.findChildren<QPushButton*>();
    const auto isRight = [](const QPushButton* button) {
        return button->isHidden() || !button->testAttribute(Qt::WA_ForceDisabled);
    };
    return FaultUnless(std::all_of(buttons.begin(), buttons.end(), isRight), "a button that is switched off");
}

// ---- Windows and controls

void FillMenu(QWidget& menu, Dice& dice)
{
    auto& kvMenu = static_cast<KvGUI::KvMenu&>(menu);
    kvMenu.addAction(dice.Text());
    kvMenu.addMenu(new KvGUI::KvMenu(dice.Text(), &menu))->menu()->addAction(dice.Text());
}

void OpenMenu(QWidget& menu, Dice& dice)
{
    const QPoint place(dice.Below(9000) - 4000, dice.Below(9000) - 4000);
    auto& kvMenu = static_cast<KvGUI::KvMenu&>(menu);
    // Of two loops of one menu Qt ends the inner one only.
    kvMenu.isVisible() || dice.OneIn(2) ? kvMenu.popup(place) : void(kvMenu.exec(place));
}

/// A panel that rests elsewhere than in or out.
QString FloatFault(CFloatDialog& dialog)
{
    const auto* panel = dialog.findChild<QWidget*>(QStringLiteral("m_floatWgt"));
    const auto* slide = dialog.findChild<QAbstractAnimation*>();
    const QPoint rest = dialog.IsShown() ? QPoint(0, 0) : dialog.HiddenPos();
    const bool slides = slide->state() != QAbstractAnimation::Stopped;
    return FaultUnless(
        slides || !dialog.isVisible() || panel->pos() == rest, "panel on its way without a slide");
}

/// A volume that is none, a look that tells nothing, or a panel off the screens.
QString VolumeFault(KvVolumeButton& button)
{
    const QRect screens = QGuiApplication::primaryScreen()->virtualGeometry();
    const auto panels = button.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    const auto isLost
        = [&](const QWidget* panel) { return panel->isVisible() && !screens.intersects(panel->geometry()); };
    if (std::any_of(panels.begin(), panels.end(), isLost))
        return QStringLiteral("panel off the screens");
    const bool volume = button.GetVolumeValue() >= 0 && button.GetVolumeValue() <= 100;
    return FaultUnless(
        volume && button.objectName().startsWith(QLatin1String("btnVolumeO")), "volume or look");
}

bool IsVolume(QWidget&, const QMetaMethod& signal, void** arguments)
{
    const int value
        = signal.name() == "SignalVolumeValueChanged" ? *static_cast<const int*>(arguments[1]) : 0;
    return value >= 0 && value <= 100;
}

void CallBack(QWidget& page, Dice& dice)
{
    const QByteArray names[] = {"initComplete", "openCamera", dice.Text().toUtf8()};
    const QByteArray name = dice.OneOf(names);
    const QByteArray param = dice.Text().toLocal8Bit();
    static_cast<CActiveXLinkWebCtrl&>(page).CallBack(
        dice.OneIn(9) ? nullptr : name.constData(), dice.OneIn(9) ? nullptr : param.constData());
}

QVector<Kind> WidgetKinds()
{
    using Dialog = KvGUI::KvCustomDialog;
    Kind group = Ruled<WmAddGroup>(
        {Op(&WmAddGroup::Init), Op(&WmAddGroup::SetParentGroupID), Op(&WmAddGroup::SetToolTip), &SetMaxLen,
         Op(&WmAddGroup::SetIsCloseAfterSave), Op(&WmAddGroup::SetSaveAndNewVisible),
         Op(&WmAddGroup::SetNameRegExp), Op(&WmAddGroup::EmptyEditLine), Op(&WmAddGroup::CanCloseDialog)},
        &GroupFault);
    group.isRight = &IsNameTrimmed;
    Kind volume = Ruled<KvVolumeButton>(
        {Op(&KvVolumeButton::SetVolumeState), Op(&KvVolumeButton::SetVolumeValue),
         Op(&KvVolumeButton::PopupVolumeWidget)},
        &VolumeFault);
    volume.isRight = &IsVolume;
    return {
        Plain<KvGUI::KvLineEdit>(),
        Plain<KvGUI::KvPushButton>(),
        Plain<KvGUI::KvCheckBox>(),
        Plain<KvGUI::KvHorScrollBar>(),
        Plain<KvGUI::KvVerScrollBar>(),
        Plain<CRequiredEdit>(),
        Plain<KvLineEditEx>(),
        Plain<KvImpPushButton>(),
        Plain<WmNoImpPushButton>(),
        Ruled<QIpAddrEdit>(
            {&SetAddress, &SetAddress, Op(&QIpAddrEdit::setRequired), Op(&QIpAddrEdit::showErrorHint),
             Op(&QWidget::setAccessibleName)},
            &AddressFault),
        Plain<QIpPartLineEdit>(
            {Op(&QIpPartLineEdit::set_nexttab_edit), Op(&QIpPartLineEdit::set_front_edit),
             Op(&QIpPartLineEdit::setDealTextEditEnable)}),
        Ruled<CPasswordEdit>({Op(&QWidget::setToolTip)}, &PasswordFault),
        Plain<CPasswordStrength>({Op(&CPasswordStrength::SetStrength)}),
        Plain<KvLineEditWithDirButton>(
            {Op(&KvLineEditWithDirButton::SetOpenFile), Op(&KvLineEditWithDirButton::SetSaveFile),
             Op(&KvLineEditWithDirButton::SetSelectDirectory)}),
        group,
        CalendarKind<KvGUI::KvCalendarEx>(),
        CalendarKind<WmDateCalendar>(),
        Ruled<CCutDetailPhoto>(CanvasOperations<CCutDetailPhoto>(), &CanvasFault<CCutDetailPhoto>),
        Ruled<CCutPhotoWithZoom>(CanvasOperations<CCutPhotoWithZoom>(), &CanvasFault<CCutPhotoWithZoom>),
        CutDialogKind<CCutPhotoDlg, CCutDetailPhoto>(),
        CutDialogKind<CCutPhotoDlgWithZoom, CCutPhotoWithZoom>(),
        Plain<CComTipWiget>({Op(&CComTipWiget::SetTipText)}),
        Plain<CComTipWigetWithZoom>({Op(&CComTipWigetWithZoom::SetTipText)}),
        Ruled<WmPersonImage>(
            {Op(&WmPersonImage::SetShowUpLoadButton), Op(&WmPersonImage::SetShowCaptureButton),
             Op(&WmPersonImage::SetShowVistorCaptureButton), Op(&WmPersonImage::SetShowIDCardButton),
             Op(&WmPersonImage::SetShowDeleteButton), Op(&WmPersonImage::SetShowTurnPageButton),
             Op(&WmPersonImage::SetShowAvatarOrFaceLabel), Op(&WmPersonImage::RefreshUIButton),
             Op(&WmPersonImage::ResetUI), Op(&WmPersonImage::SetPhotoBtnAlwaysShow),
             Op(&WmPersonImage::SetPhotoBtnVisible), Op(&WmPersonImage::SetButtonSize)},
            &PersonFault),
        Plain<KvGUI::KvDialog>({Op(&KvGUI::KvDialog::SetTitle)}),
        Plain<Dialog>(
            {Op(&Dialog::SetButtonVisible), Op(&Dialog::SetButtonText), Op(&Dialog::SetButtonEnabled),
             Op(&Dialog::SetTitle)}),
        Plain<KvGUI::KvMenu>({&FillMenu, &FillMenu, &OpenMenu, Op(&QMenu::clear)}),
        Plain<CDisplayQRcodeDlg>(
            {Op(&CDisplayQRcodeDlg::SetQRCodeValue), Op(&CDisplayQRcodeDlg::SetRefreshInterval)}),
        Ruled<CFloatDialog>(
            {Op(&CFloatDialog::AddCentralWidget), Op(&CFloatDialog::SetTitle), Op(&CFloatDialog::SetFixWidth),
             Op(&CFloatDialog::InitUI), Op(&CFloatDialog::AnimaShow), Op(&CFloatDialog::AnimaShow),
             Op(&CFloatDialog::DirectShow), Op(&CFloatDialog::UpdateHeight), Op(&CFloatDialog::UpdatePos)},
            &FloatFault),
        Plain<CActiveXLinkWebCtrl>(
            {Op(&CActiveXLinkWebCtrl::SetUrl), Op(&CActiveXLinkWebCtrl::ExecuteJavaScript),
             Op(&CActiveXLinkWebCtrl::MainCall), &CallBack}),
        volume,
    };
}

} // namespace

const QVector<Kind>& Kinds()
{
    static const QVector<Kind> kinds = WidgetKinds() + WallKinds();
    return kinds;
}

const Kind* KindNamed(const QByteArray& className)
{
    const auto named = [&](const Kind& kind) { return kind.className == className; };
    const auto found = std::find_if(Kinds().begin(), Kinds().end(), named);
    return found != Kinds().end() ? &*found : nullptr;
}

} // namespace Storms
