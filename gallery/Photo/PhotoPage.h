#pragma once

#include <gallery/Page.h>
#include <gallery/Photo/PhotoCrop.h>

class QDialog;
class QFormLayout;
class QLabel;
class QSpinBox;

namespace KvGUI {
class KvCheckBox;
class KvPushButton;
} // namespace KvGUI

namespace OperatorClient {

class PhotoView;

/// Opens a photo, has it cropped in either dialog within limits set here, and shows and saves the cut.
class PhotoPage : public Page
{
    Q_OBJECT

public:
    /// @param file the photo to begin with; empty for a drawn one
    explicit PhotoPage(const QString& file, QWidget* parent = nullptr);

    static QString Title(); ///< in the list of pages
    QVector<Picture> Pictures() override;

    /// Takes the limits that were stored in this settings file, and stores there each change of them.
    void Remember(const QString& settingsFile);
    void OpenFile(const QString& path);
    void CropWithZoom();
    void CropPlain();

    const std::optional<PhotoCut>& Cut() const { return m_cut; }

protected:
    void OnLanguageChanged() override;

private:
    QWidget* BuildPhotoSide();
    QWidget* BuildLimits();
    QWidget* BuildCommands();
    QWidget* BuildCut();
    QSpinBox* AddLimit(QFormLayout* form, QString (*label)(), int most, int value, QString (*unit)());
    void AskForFile();
    void ShowDrawn();
    void ShowPhoto(const Photo& photo);
    void ShowTexts();
    void ShowCut(const std::optional<PhotoCut>& cut);
    void SaveCut();
    CutLimits Limits() const;
    void ShowLimits(const CutLimits& limits);
    void ShowWithDialog(void (PhotoPage::*crop)(), const std::function<void(QDialog*)>& act);
    void CloseDialogs();

    Photo m_photo;
    bool m_bDrawn = false; ///< no file's: its title is in the operator's language
    bool m_bActed = false; ///< in the dialog of a screenshot
    std::optional<PhotoCut> m_cut;
    PhotoView* m_pView;
    QLabel* m_pPhotoText;
    QSpinBox* m_pKilobytes;
    QSpinBox* m_pWidth;
    QSpinBox* m_pHeight;
    KvGUI::KvCheckBox* m_pHalve;
    PhotoView* m_pCutView;
    QLabel* m_pCutText;
    KvGUI::KvPushButton* m_pSave;
};

} // namespace OperatorClient
