#pragma once

#include <Platform/BasicUIComponents/KvDialog.h>
#include <UIComponentsExport.h>

#include <memory>

class QPixmap;
class QTimer;

namespace UICommonMdl {

namespace Ui {
class CDisplayQRcodeDlg;
}

/// A small dialog that shows one QR code, such as a token that a phone scans to be paired.
///
/// The dialog renews nothing itself: every 120 seconds it says that the code is due, and the client answers
/// with a new one.
/// @code
///     UICommonMdl::CDisplayQRcodeDlg dialog(this);
///     connect(&dialog, &UICommonMdl::CDisplayQRcodeDlg::SignalRefreshTimeout, &dialog,
///             [&](const QString& device) { dialog.SetQRCodeValue(NewToken(device), device); });
///     dialog.SetQRCodeValue(NewToken(device), device);
///     dialog.exec();
/// @endcode
///
/// The code is 200 x 200 pixels without the light margin that readers need around it; the skins' sheets
/// leave the dialog's background white for it. Any slot may delete the dialog.
class UICOMPONENTS_EXPORT CDisplayQRcodeDlg : public KvGUI::KvDialog
{
    Q_OBJECT
    /// Milliseconds from a code to its renewal, and between two requests for it: 120,000.
    Q_PROPERTY(int refreshInterval READ RefreshInterval WRITE SetRefreshInterval)

public:
    /// Shows no code yet.
    explicit CDisplayQRcodeDlg(QWidget* parent = nullptr);
    ~CDisplayQRcodeDlg() override;

    /// Shows @p value as a QR code and begins its period anew.
    /// @param value encoded as UTF-8 up to its first null character. 1,273 bytes always fit; texts with many
    ///        digits or capitals may be longer. One that is too long leaves the code that is shown, and its
    ///        period begins anew as well. With an empty one the code stays and is not renewed any more.
    /// @param initValue handed back with each SignalRefreshTimeout(); taken over in every case
    void SetQRCodeValue(const QString& value, const QString& initValue);

    int RefreshInterval() const; ///< in milliseconds
    /// Sets the period in milliseconds. A running period begins anew. 0 or less is ignored.
    void SetRefreshInterval(int iMilliseconds);

Q_SIGNALS:
    /// The code is due for renewal. Comes again after each period until SetQRCodeValue() is called.
    /// @param strInitValue the second argument of the last SetQRCodeValue()
    void SignalRefreshTimeout(const QString& strInitValue);

protected:
    void changeEvent(QEvent* event) override;

private Q_SLOTS:
    void OnRefreshTimeout();

private:
    void CreateShowRCodeImage(const QString& text);
    QPixmap CreateQRcode(const QString& text);

    std::unique_ptr<Ui::CDisplayQRcodeDlg> m_ui;
    QTimer* m_pRefreshTimer;
    QString m_strInitValue;
};

} // namespace UICommonMdl
