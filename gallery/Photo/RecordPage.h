#pragma once

#include <gallery/Page.h>
#include <gallery/Photo/PersonRecord.h>
#include <gallery/Photo/PhotoCrop.h>

class QAction;
class QLineEdit;

namespace KvGUI {
class KvMenu;
class KvPushButton;
} // namespace KvGUI

namespace UICommonMdl {
class WmPersonImage;
}

namespace OperatorClient {

/// The record of a person: the library's picture box with two pictures, which come from files, a camera or
/// a card, are cropped in the library's dialogs and kept with the record.
class RecordPage : public Page
{
    Q_OBJECT

public:
    /// @param folder where the record is kept
    explicit RecordPage(const QString& folder, QWidget* parent = nullptr);

    static QString Title(); ///< in the list of pages
    QVector<Picture> Pictures() override;

    const PersonRecord& Record() const { return m_record; }

protected:
    void OnLanguageChanged() override;

private:
    QWidget* BuildPhoto();
    QWidget* BuildForm();
    void AddPictureAction(QString (*text)(), void (RecordPage::*act)());
    void ConnectPanel();

    void UploadPicture();
    void CapturePicture();
    void SnapVisitor();
    void ReadCard();
    void DeletePicture();
    void TurnPage();
    void SaveRecord();
    void ResetRecord();

    void Show(const PersonRecord& record);
    void ShowPicture();
    void ShowTexts();
    void SetPicture(const QByteArray& jpeg);
    QByteArray& PresentPicture();
    void ShowVisitor(int number);
    void CloseDialog();

    const PersonRecordFile m_file;
    PersonRecord m_record;
    int m_iPage = PersonRecord::Avatar;
    int m_iVisitor = 0;
    UICommonMdl::WmPersonImage* m_pPanel = nullptr;
    KvGUI::KvMenu* m_pMenu = nullptr;
    KvGUI::KvPushButton* m_pMenuButton = nullptr;
    QAction* m_pDelete = nullptr;
    QAction* m_pTurn = nullptr;
    QLineEdit* m_pName = nullptr;
    QLineEdit* m_pCard = nullptr;
    QLineEdit* m_pDepartment = nullptr;
};

} // namespace OperatorClient
