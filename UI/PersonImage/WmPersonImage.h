#pragma once

#include <QLabel>
#include <QPointer>
#include <UIComponentsExport.h>

class QPushButton;

namespace UICommonMdl {

/// The picture box of a person record: the person's photo, with slim buttons over it.
///
/// The panel shows what it is given and tells which button was clicked; the client does the work:
/// @code
///     auto* photo = new UICommonMdl::WmPersonImage(this);
///     photo->setFixedSize(150, 200);
///     photo->setPixmap(picture);
///     photo->SetShowVistorCaptureButton(false);
///     connect(photo, &UICommonMdl::WmPersonImage::SignalClickUploadPicBtn, this, &MyRecord::UploadPicture);
/// @endcode
///
/// The buttons stack upwards from the lower edge, "Delete" lowest; the page button is at the top right and
/// the caption at the top. They are there while the pointer is over the picture, or always with
/// SetPhotoBtnAlwaysShow(). A button that is switched off is never shown and takes no room. The buttons
/// take no keyboard focus: offer their actions by keyboard elsewhere, or by the shortcuts of QAction.
///
/// A slot may delete the panel. A child that the client finds by its name and deletes is as one switched off
/// for good.
class UICOMPONENTS_EXPORT WmPersonImage : public QLabel
{
    Q_OBJECT

public:
    /// Makes a panel with all buttons and the caption switched on, and hidden.
    explicit WmPersonImage(QWidget* parent = nullptr);

    /// @name Which buttons are in use
    ///
    /// A button that is switched off is hidden and disabled. One that is switched on again appears with the
    /// next hover.
    /// @{
    void SetShowUpLoadButton(bool bShow); ///< "Upload Pic"
    void SetShowCaptureButton(bool bShow); ///< "CameraCaptchPicture": a picture by the desk's camera
    void SetShowVistorCaptureButton(bool bShow); ///< "ACHCaptchPicture": a picture by the visitor terminal
    void SetShowIDCardButton(bool bShow); ///< "ID card reading"
    void SetShowDeleteButton(bool bShow); ///< "Delete"
    void SetShowTurnPageButton(bool bShow); ///< "Next Picture" and "Previous Picture"
    /// @}

    /// Sets the caption.
    /// @param type 1 "Avatar", 2 "Face1", any other "Face2"
    void SetShowAvatarOrFaceLabel(bool bShow, int type);

    /// The type that the caption was set with; 0 until it is set.
    int CaptionType() const;

    /// Turns the page: the page button offers the previous picture, or again the next one. Shows the
    /// buttons.
    void RefreshUIButton();

    /// Back to the first page: the page button offers the next picture.
    void ResetUI();

    /// Shows the buttons whether or not the pointer is over the picture, or no longer. At first not.
    void SetPhotoBtnAlwaysShow(bool bAlways);

    /// Shows or hides the buttons in use, until the pointer comes or goes; the others are hidden.
    void SetPhotoBtnVisible(bool bVisible);

    /// Lays the buttons out for the panel's present size; called by each resize.
    void SetButtonSize();

Q_SIGNALS:
    void SignalClickUploadPicBtn(); ///< "Upload Pic" was clicked
    void SignalCameraBtnClick(); ///< "CameraCaptchPicture" was clicked
    void SignalVistorSnapBtnClick(); ///< "ACHCaptchPicture" was clicked
    void SignalIDCardBtnClick(); ///< "ID card reading" was clicked
    void SignalDeleteBtnClick(); ///< "Delete" was clicked; the picture stays until the client takes it away
    void SignalTurnPageBtnClick(); ///< the page button was clicked; the page turns by RefreshUIButton()

protected:
    void enterEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    /// @param caption null for one that changes with the page
    QPushButton* AddButton(const char* name, QString (*caption)(), void (WmPersonImage::*clicked)());
    void SetInUse(QWidget* child, bool bInUse);
    void ShowTurnText();
    void ShowCaption();

    // The client can find the children by their names, and may delete one.
    QPointer<QPushButton> m_btnUpLoad;
    QPointer<QPushButton> m_btnCapture;
    QPointer<QPushButton> m_btnVistorCapture;
    QPointer<QPushButton> m_btnIDCard;
    QPointer<QPushButton> m_btnPhotoDelete;
    QPointer<QPushButton> m_btnTurnPage;
    QPointer<QLabel> m_lbAvatarOrFace;
    int m_iCaptionType = 0;
    bool m_bSecondPage = false;
    bool m_bAlwaysShow = false;
};

} // namespace UICommonMdl
