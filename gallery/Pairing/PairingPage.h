#pragma once

#include <gallery/Page.h>

class QComboBox;
class QLineEdit;
class QPlainTextEdit;

namespace UICommonMdl {
class CDisplayQRcodeDlg;
}

namespace OperatorClient {

/// Pairs a phone: shows a token as a QR code and issues another one whenever the dialog asks for it, for as
/// long as the dialog is open.
class PairingPage : public Page
{
    Q_OBJECT

public:
    explicit PairingPage(QWidget* parent = nullptr);

    static QString Title(); ///< in the list of pages
    QVector<Picture> Pictures() override;

protected:
    void OnLanguageChanged() override;

private:
    void AddInputs();
    void ShowCode();
    void Issue(const QString& phone);
    void OnClosed();

    QLineEdit* m_pPhone;
    QComboBox* m_pPeriod;
    QPlainTextEdit* m_pIssued;
    UICommonMdl::CDisplayQRcodeDlg* m_pDialog;
};

} // namespace OperatorClient
