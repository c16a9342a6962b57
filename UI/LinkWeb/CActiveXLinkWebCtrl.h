#pragma once

#include <Platform/Automation/ILinkWebAPI.h>

#include <QWidget>
#include <memory>

namespace Automation {
class HostedControl;
}

namespace UICommonMdl {

/// Shows a web page in the client, and passes calls between the two: the page calls the client by name,
/// the client runs scripts in the page. An e-map whose cameras can be clicked is a typical page.
///
/// The page is shown by a hosted control that fills the widget. It comes from
/// Automation::AutomationRegistry when the first valid address is set: on most desktops a browser engine,
/// which is a plugin of its own (docs/web-engine.md). Without one the widget stays empty.
///
/// @code
/// auto* map = new UICommonMdl::CActiveXLinkWebCtrl(this);
/// connect(map, &UICommonMdl::CActiveXLinkWebCtrl::sgnMainCall, this,
///         [this](const QString& name, const QString& param) {
///             if (name == QLatin1String("openCamera"))
///                 OpenCamera(param);
///         });
/// map->SetUrl(QStringLiteral("https://maps.example/site.html"));
/// map->ExecuteJavaScript(QStringLiteral("highlight([3, 5])"));
/// @endcode
///
/// In the page, window.external.CallBack(name, param) calls the client; a function zoomChange() of the page
/// is called after each change of the widget's size.
///
/// All functions are for the GUI thread but CallBack() and MainCall(), which may be entered on the thread
/// of the hosted control: their signals are emitted right there. A slot may delete the widget.
class UICOMPONENTS_EXPORT CActiveXLinkWebCtrl : public QWidget, public LINKWEB::ILinkWebAPI
{
    Q_OBJECT

public:
    /// An empty widget without control or address.
    explicit CActiveXLinkWebCtrl(QWidget* parent = nullptr);

    /// The page can call back no more, and the hosted control is released.
    ~CActiveXLinkWebCtrl() override;

    /// Loads the page at @p url, read tolerantly ("host/a b" has a blank escaped, for instance).
    /// A text that is no address, such as an empty one, does nothing; otherwise the page is loaded again
    /// also when it is the present one. Failures are not reported.
    void SetUrl(QString url);

    /// The last address that SetUrl() took, as it was given; empty before.
    QString GetUrl();

    /// Runs @p script in the page, once that is ready. Without a hosted control the script is dropped.
    void ExecuteJavaScript(QString script);

    /// Emits sgnMainCall().
    /// @return 0
    int MainCall(QString name, QString param);

    /// A call of the page: emits sgnLoadFinished(true) when @p name is "initComplete" or "initMComplete",
    /// and sgnMainCall() for every name. Null pointers count as empty texts.
    /// @param name UTF-8
    /// @param param in the local 8-bit encoding
    /// @return 0
    long CallBack(const char* name, const char* param) override;

    /// Whether a hosted control is there to show pages. False until SetUrl() took an address, and also then
    /// when no provider of such controls is installed or can run on this display.
    bool HasControl() const;

    void Reflush(); ///< does nothing
    void clearCache(); ///< does nothing

Q_SIGNALS:
    /// The page called the client.
    void sgnMainCall(QString name, QString param);
    /// The page has loaded; always true.
    void sgnLoadFinished(bool);
    /// For the owner's own use; this widget never emits it.
    void sgnWebTerminated(QString&);

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool CreateControl();
    void WatchControl();
    bool IsWatched(const QObject* object) const;

    std::unique_ptr<Automation::HostedControl> m_pControl;
    QString m_strUrl;
};

} // namespace UICommonMdl
