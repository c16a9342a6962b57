#pragma once

#include <gallery/Page.h>

class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;

namespace KvGUI {
class KvCalendarEx;
}

namespace UICommonMdl {
class CPasswordEdit;
class CPasswordStrength;
class CRequiredEdit;
class KvLineEditEx;
class KvLineEditWithDirButton;
class QIpAddrEdit;
class WmAddGroup;
class WmDateCalendar;
} // namespace UICommonMdl

namespace OperatorClient {

/// The form in which a device and its account are entered: the library's inputs, checked when they are
/// saved, with an error bubble at the first wrong one.
class DevicePage : public Page
{
    Q_OBJECT

public:
    explicit DevicePage(QWidget* parent = nullptr);

    static QString Title(); ///< in the list of pages
    QVector<Picture> Pictures() override;

    /// Checks the form and reports the device. Otherwise the first wrong field gets the focus and tells why.
    /// @return whether all is right
    bool Save();
    void Clear(); ///< empties the form

protected:
    void OnLanguageChanged() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* BuildDevice();
    QWidget* BuildAccount();
    QWidget* BuildRecording();
    QWidget* BuildButtons();
    QWidget* GroupRow(QWidget* parent);
    void PlaceCalendar() const;
    void NameGroups();
    void NameFileDialogs();
    void ShowStrength();
    void TakeFolderOfFile(const QString& path);
    bool IsFilled(QLineEdit* edit, const QString& complaint);
    bool IsAddressRight();
    void OpenNewGroup();
    bool AddGroup(const QString& name);
    void FillIn();

    UICommonMdl::CRequiredEdit* m_pName = nullptr;
    UICommonMdl::QIpAddrEdit* m_pAddress = nullptr;
    UICommonMdl::KvLineEditEx* m_pSerial = nullptr;
    QComboBox* m_pGroups = nullptr;
    UICommonMdl::CRequiredEdit* m_pUser = nullptr;
    UICommonMdl::CPasswordEdit* m_pPassword = nullptr;
    UICommonMdl::CPasswordStrength* m_pStrength = nullptr;
    QLabel* m_pStrengthText = nullptr;
    UICommonMdl::KvLineEditWithDirButton* m_pCertificate = nullptr;
    UICommonMdl::KvLineEditWithDirButton* m_pFolder = nullptr;
    UICommonMdl::WmDateCalendar* m_pPeriod = nullptr;
    KvGUI::KvCalendarEx* m_pCalendar = nullptr; ///< of the period
    UICommonMdl::WmAddGroup* m_pNewGroup = nullptr;
};

} // namespace OperatorClient
