#include <Platform/Automation/Office/Host/OfficeBridge.h>

#include <Platform/Automation/Office/Host/UnoText.h>

#include <QElapsedTimer>
#include <QFile>
#include <QThread>
#include <QUrl>
#include <com/sun/star/bridge/UnoUrlResolver.hpp>
#include <com/sun/star/connection/NoConnectException.hpp>
#include <com/sun/star/frame/Desktop.hpp>
#include <cppuhelper/bootstrap.hxx>

namespace Office {

namespace {

namespace uno = com::sun::star::uno;
using com::sun::star::bridge::UnoUrlResolver;
using com::sun::star::frame::Desktop;
using com::sun::star::frame::XDesktop2;

constexpr int LongestStart = 60000; // milliseconds
constexpr int Pause = 20; // between two tries, milliseconds

/// Null while the office does not listen yet.
uno::Reference<XDesktop2>
TryToConnect(const uno::Reference<uno::XComponentContext>& context, const QString& pipe)
{
    try {
        const QString url = QStringLiteral("uno:pipe,name=%1;urp;StarOffice.ComponentContext").arg(pipe);
        const uno::Reference<uno::XComponentContext> office(
            UnoUrlResolver::create(context)->resolve(ToUno(url)), uno::UNO_QUERY);
        if (office.is())
            return Desktop::create(office);
    } catch (const com::sun::star::connection::NoConnectException&) { }
    return {};
}

} // namespace

uno::Reference<XDesktop2> ConnectOffice(OfficeProcess& process, const QString& programFolder)
{
    // Where the bridge finds the office's types and services.
    const QString bootstrap
        = QLatin1String("vnd.sun.star.pathname:") + programFolder + QLatin1String("/fundamentalrc");
    qputenv("URE_BOOTSTRAP", QFile::encodeName(bootstrap));
    QElapsedTimer timer;
    timer.start();
    if (!process.Start())
        return {};
    const uno::Reference<uno::XComponentContext> context = cppu::defaultBootstrap_InitialComponentContext();
    bool restarted = false;
    while (timer.elapsed() < LongestStart) {
        const uno::Reference<XDesktop2> desktop = TryToConnect(context, process.PipeName());
        if (desktop.is())
            return desktop;
        if (process.HasEnded()) {
            if (restarted || !process.WantsRestart() || !process.Start())
                return {};
            restarted = true;
        }
        QThread::msleep(Pause);
    }
    return {};
}

} // namespace Office
