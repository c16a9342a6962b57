#pragma once

#include <Platform/BasicUIComponents/KvCustomDialog.h>
#include <UI/CutPhoto/CutImageInfo.h>
#include <UIComponentsExport.h>

#include <memory>

namespace UICommonMdl {

class CCutPhotoWithZoom;
struct CutPhotoForm;

/// Asks the operator for a part of a photo, with handles on the frame and a search menu: a dialog
/// around CCutPhotoWithZoom.
///
/// @code
///     UICommonMdl::CCutPhotoDlgWithZoom dialog(this);
///     dialog.SetDlgTitle(tr("Face picture"));
///     dialog.SetPhotoResolution(800, 520);
///     dialog.SetImageMaxCapacity(200 * 1024);
///     dialog.SetSrcPhoto(path);
///     if (dialog.exec() == QDialog::Accepted)
///         dialog.GetCutPhoto().image.save(target, "JPG", qMax(0, dialog.GetCanvas()->GetCompressRatio()));
/// @endcode
///
/// The picture is read when the dialog is on the screen, since the canvas stretches it over its size. A
/// picture that is in memory only is handed to GetCanvas() at that time, not before: a resize loses it.
///
/// A search that is chosen in the canvas's menu ends the dialog like OK; GetSavePictureType() tells which.
///
/// OK checks the choice (see CCutPhotoWithZoom::IsCutPhotoVaildWithNotify()) and leaves the dialog open when
/// it is not valid; a notification says why. An unreadable picture leaves the canvas empty, which is not
/// valid.
class UICOMPONENTS_EXPORT CCutPhotoDlgWithZoom : public KvGUI::KvCustomDialog
{
    Q_OBJECT

public:
    explicit CCutPhotoDlgWithZoom(QWidget* parent = nullptr);
    ~CCutPhotoDlgWithZoom() override;

    /// Names the picture file that exec() shows. Nothing is read before that.
    void SetSrcPhoto(const QString& strPath);

    /// The canvas's picture: after the dialog was accepted the cut, before it the source picture.
    CutImageInfo GetCutPhoto() const;

    /// What the operator chose: 0 OK, 1 vehicle search, 2 face search, 3 human-body search. A search with an
    /// invalid frame is noted as well, though the dialog stays open.
    int GetSavePictureType() const;

    /// Sets the text of the title bar, as KvDialog::SetTitle().
    void SetDlgTitle(const QString& strTitle);

    /// Sets the canvas's size in pixels; 800 x 520 at first. The dialog is 80 pixels higher, and wider or
    /// higher still so that it is 4:3; where that is too little for the canvas, it can be scrolled. A
    /// canvas with a height of 3/4 of its width less 80 fits exactly.
    void SetPhotoResolution(int iWidth, int iHeight);

    /// @name Limits of the cut, as the canvas's operations of these names take them
    /// @{
    void SetPicMaxSize(int iMaxWidth, int iMaxHeight); ///< in pixels; 0 x 0, as at first, for no limit
    /// In bytes as a JPEG; 0, as at first, for no limit: then pixels are not limited either.
    void SetImageMaxCapacity(int iMaxCapacity);
    void SetKeepAspectRatio(bool bKeep); ///< too many pixels are halved (true) or refused (as at first)
    /// @}

    /// The canvas, for what the dialog does not pass on: pictures in memory, the JPEG quality. Never null.
    CCutPhotoWithZoom* GetCanvas() const;

public Q_SLOTS:
    /// Shows the dialog, reads the picture 10 milliseconds later, and returns when the dialog is closed:
    /// QDialog::Accepted or QDialog::Rejected. The dialog or its parent may be deleted meanwhile.
    int exec() override;

    void OnBtnOkClicked(); ///< accepts the dialog when the choice is valid
    void OnBtnCancelClicked(); ///< rejects the dialog
    void OnHandelClose(); ///< rejects the dialog
    void OnBtnHumanClicked(); ///< notes the human-body search, then as OnBtnOkClicked()
    void OnBtnVehicleClicked(); ///< notes the vehicle search, then as OnBtnOkClicked()
    void OnBtnFaceClicked(); ///< notes the face search, then as OnBtnOkClicked()

    /// Scrolls the canvas so that the edge which the pointer drags can be seen.
    /// @param rcCut the frame, in pixels of the canvas
    /// @param bAddX, bAddY whether the frame grows to the right, or down
    void OnUpdateCutRect(const QRect& rcCut, bool bAddX, bool bAddY);

    void OnUpdateImage(); ///< reads the picture

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    CCutPhotoWithZoom* m_pCanvas;
    const std::unique_ptr<CutPhotoForm> m_pForm;
    QString m_strPath;
    int m_iSavePictureType = 0;
};

} // namespace UICommonMdl
