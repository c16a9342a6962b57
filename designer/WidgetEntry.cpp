#include <designer/WidgetEntry.h>

#include <Platform/BasicUIComponents/KvCalendarEx.h>
#include <Platform/BasicUIComponents/KvCheckBox.h>
#include <Platform/BasicUIComponents/KvHorScrollBar.h>
#include <Platform/BasicUIComponents/KvLineEdit.h>
#include <Platform/BasicUIComponents/KvPushButton.h>
#include <Platform/BasicUIComponents/KvVerScrollBar.h>
#include <UI/CutPhoto/CCutDetailPhoto.h>
#include <UI/CutPhoto/CCutPhotoWithZoom.h>
#include <UI/Dialogs/KvVolumeButton.h>
#include <UI/FormInputs/CPasswordEdit.h>
#include <UI/FormInputs/CPasswordStrength.h>
#include <UI/FormInputs/CRequiredEdit.h>
#include <UI/FormInputs/KvImpPushButton.h>
#include <UI/FormInputs/KvLineEditEx.h>
#include <UI/FormInputs/KvLineEditWithDirButton.h>
#include <UI/FormInputs/QIpAddrEdit.h>
#include <UI/FormInputs/QIpPartLineEdit.h>
#include <UI/FormInputs/WmDateCalendar.h>
#include <UI/FormInputs/WmNoImpPushButton.h>
#include <UI/LinkWeb/CActiveXLinkWebCtrl.h>
#include <UI/PersonImage/WmPersonImage.h>
#include <UI/TVWall/KvTVWallDisplayWnd.h>
#include <UI/TVWall/KvTVWallNormalWnd.h>
#include <UI/TVWall/KvTVWallOperateWnd.h>

namespace UIComponentsDesigner {

namespace {

using namespace UICommonMdl;

constexpr char Walls[] = "UIComponents: video walls";
constexpr char Photos[] = "UIComponents: photos";
constexpr char Inputs[] = "UIComponents: form inputs";
constexpr char Controls[] = "UIComponents: controls";

template <class Widget>
QWidget* Create(QWidget* parent)
{
    return new Widget(parent);
}

void ShowAWall(QWidget* widget)
{
    static_cast<KvTVWallOperateWnd*>(widget)->SetShowMode(KvTVWallOperateWnd::DisplayMode);
}

} // namespace

const QVector<WidgetEntry>& Widgets()
{
    static const QVector<WidgetEntry> widgets{
        {"UICommonMdl::KvTVWallOperateWnd",
         "UI/TVWall/KvTVWallOperateWnd.h",
         Walls,
         "VideoWall",
         "Video wall of either family, with zoom and overview",
         {480, 270},
         &Create<KvTVWallOperateWnd>,
         &ShowAWall},
        {"UICommonMdl::KvTVWallDisplayWnd",
         "UI/TVWall/KvTVWallDisplayWnd.h",
         Walls,
         "WallPanels",
         "Video wall of live widgets",
         {480, 270},
         &Create<KvTVWallDisplayWnd>},
        {"UICommonMdl::KvTVWallNormalWnd",
         "UI/TVWall/KvTVWallNormalWnd.h",
         Walls,
         "WallView",
         "Video wall drawn by a graphics view",
         {480, 270},
         &Create<KvTVWallNormalWnd>},

        {"UICommonMdl::CCutPhotoWithZoom",
         "UI/CutPhoto/CCutPhotoWithZoom.h",
         Photos,
         "CropZoom",
         "Cuts a face, a person or a vehicle out of a photo",
         {400, 300},
         &Create<CCutPhotoWithZoom>},
        {"UICommonMdl::CCutDetailPhoto",
         "UI/CutPhoto/CCutDetailPhoto.h",
         Photos,
         "CropDetail",
         "Cuts a detail out of a photo by a rubber band",
         {400, 300},
         &Create<CCutDetailPhoto>},
        {"UICommonMdl::WmPersonImage",
         "UI/PersonImage/WmPersonImage.h",
         Photos,
         "Person",
         "The picture of a person record with its buttons",
         {160, 200},
         &Create<WmPersonImage>},

        {"UICommonMdl::CRequiredEdit",
         "UI/FormInputs/CRequiredEdit.h",
         Inputs,
         "RequiredEdit",
         "Line edit with the mark of a field that must be filled",
         {200, 28},
         &Create<CRequiredEdit>},
        {"UICommonMdl::QIpAddrEdit",
         "UI/FormInputs/QIpAddrEdit.h",
         Inputs,
         "AddressEdit",
         "IPv4 address in four parts",
         {200, 28},
         &Create<QIpAddrEdit>},
        {"UICommonMdl::QIpPartLineEdit",
         "UI/FormInputs/QIpPartLineEdit.h",
         Inputs,
         "AddressPart",
         "One part of an IPv4 address",
         {48, 28},
         &Create<QIpPartLineEdit>},
        {"UICommonMdl::CPasswordEdit",
         "UI/FormInputs/CPasswordEdit.h",
         Inputs,
         "PasswordEdit",
         "Password that takes nothing from Ctrl+V or its menu",
         {200, 28},
         &Create<CPasswordEdit>},
        {"UICommonMdl::CPasswordStrength",
         "UI/FormInputs/CPasswordStrength.h",
         Inputs,
         "PasswordStrength",
         "Strength of a password in three steps",
         {200, 28},
         &Create<CPasswordStrength>},
        {"UICommonMdl::KvLineEditEx",
         "UI/FormInputs/KvLineEditEx.h",
         Inputs,
         "LineEdit",
         "Line edit with a red marker at its left",
         {200, 28},
         &Create<KvLineEditEx>},
        {"UICommonMdl::KvLineEditWithDirButton",
         "UI/FormInputs/KvLineEditWithDirButton.h",
         Inputs,
         "FolderEdit",
         "Path of a file or a folder, with a button to choose it",
         {240, 28},
         &Create<KvLineEditWithDirButton>},
        {"UICommonMdl::KvImpPushButton",
         "UI/FormInputs/KvImpPushButton.h",
         Inputs,
         "Button",
         "Button of the important action",
         {96, 30},
         &Create<KvImpPushButton>},
        {"UICommonMdl::WmNoImpPushButton",
         "UI/FormInputs/WmNoImpPushButton.h",
         Inputs,
         "PlainButton",
         "Button of a less important action",
         {96, 30},
         &Create<WmNoImpPushButton>},

        {"UICommonMdl::WmDateCalendar",
         "UI/FormInputs/WmDateCalendar.h",
         Inputs,
         "DateRange",
         "Button that shows a range of dates and opens its calendar",
         {220, 30},
         &Create<WmDateCalendar>},
        {"KvGUI::KvCalendarEx",
         "Platform/BasicUIComponents/KvCalendarEx.h",
         Inputs,
         "Calendar",
         "Calendar of two months for a range of dates",
         {560, 300},
         &Create<KvGUI::KvCalendarEx>},

        {"UICommonMdl::KvVolumeButton",
         "UI/Dialogs/KvVolumeButton.h",
         Controls,
         "Volume",
         "Button with a pop-up volume slider",
         {32, 32},
         &Create<KvVolumeButton>},
        {"UICommonMdl::CActiveXLinkWebCtrl",
         "UI/LinkWeb/CActiveXLinkWebCtrl.h",
         Controls,
         "WebPage",
         "Web page that talks with the client",
         {400, 300},
         &Create<CActiveXLinkWebCtrl>},
        {"KvGUI::KvPushButton",
         "Platform/BasicUIComponents/KvPushButton.h",
         Controls,
         "PlainButton",
         "Push button in the library's look",
         {96, 30},
         &Create<KvGUI::KvPushButton>},
        {"KvGUI::KvCheckBox",
         "Platform/BasicUIComponents/KvCheckBox.h",
         Controls,
         "CheckBox",
         "Check box in the library's look",
         {120, 24},
         &Create<KvGUI::KvCheckBox>},
        {"KvGUI::KvLineEdit",
         "Platform/BasicUIComponents/KvLineEdit.h",
         Controls,
         "LineEdit",
         "Line edit in the library's look",
         {200, 28},
         &Create<KvGUI::KvLineEdit>},
        {"KvGUI::KvHorScrollBar",
         "Platform/BasicUIComponents/KvHorScrollBar.h",
         Controls,
         "HorizontalScrollBar",
         "Horizontal scroll bar in the library's look",
         {160, 12},
         &Create<KvGUI::KvHorScrollBar>},
        {"KvGUI::KvVerScrollBar",
         "Platform/BasicUIComponents/KvVerScrollBar.h",
         Controls,
         "VerticalScrollBar",
         "Vertical scroll bar in the library's look",
         {12, 160},
         &Create<KvGUI::KvVerScrollBar>},
    };
    return widgets;
}

} // namespace UIComponentsDesigner
