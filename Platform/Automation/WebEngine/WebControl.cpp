#include <Platform/Automation/WebEngine/WebControl.h>

#include <Platform/Automation/LinkWebMembers.h>

#include <QCoreApplication>
#include <QEvent>

namespace WebEngine {

namespace {

/// A view that is called "Web page", in the operator's language, until a page gives it another name.
class View : public QWebEngineView
{
public:
    explicit View(QWidget* parent)
        : QWebEngineView(parent)
    {
        Name();
    }

protected:
    void changeEvent(QEvent* event) override
    {
        QWebEngineView::changeEvent(event);
        if (event->type() == QEvent::LanguageChange && accessibleName() == m_strName)
            Name();
    }

private:
    void Name()
    {
        m_strName = QCoreApplication::translate("WebEngine::WebControl", "Web page");
        setAccessibleName(m_strName);
    }

    QString m_strName; ///< the view's own
};

} // namespace

WebControl::WebControl(QWidget* parent)
    : m_pView(new View(parent))
{
    // A file dropped on the page would take its place.
    m_pView->setAcceptDrops(false);
    // The menu offers to leave, reload, save and dissect the page, which is part of the client.
    m_pView->setContextMenuPolicy(Qt::PreventContextMenu);
    QObject::connect(m_pView, &QWebEngineView::titleChanged, m_pView, &QWidget::setAccessibleName);
}

WebControl::~WebControl()
{
    WebControl::clear();
    delete m_pView;
}

QWidget* WebControl::widget() const { return m_pView; }

bool WebControl::setControl(const QString& classId)
{
    clear();
    if (!m_pView || classId != LINKWEB::ControlClassId)
        return false;
    MakePage();
    return true;
}

void WebControl::MakePage()
{
    auto page = std::make_unique<WebPage>(Allowances::OfApplication());
    // What is seen until the page paints itself.
    page->setBackgroundColor(m_pView->palette().color(QPalette::Window));
    QObject::connect(
        page.get(), &WebPage::SignalCalled, page.get(),
        [this](const QString& name, const QString& param) { CallListener(name, param); });
    m_pView->setPage(page.get());
    m_pPage = std::move(page); // the view has let the old one go
}

QVariant WebControl::dynamicCall(const QString& member, const QVariantList& arguments)
{
    if (!m_pPage || !m_pView)
        return QVariant();
    if (member == LINKWEB::AddListenerMember) {
        // NOLINTNEXTLINE(performance-no-int-to-ptr): the interface passes the address as a number
        m_pListener = reinterpret_cast<LINKWEB::ILinkWebAPI*>(quintptr(arguments.value(0).toULongLong()));
    } else if (member == LINKWEB::LoadMember) {
        MakePage();
        const QString address = arguments.value(0).toString();
        const QUrl url(address, QUrl::TolerantMode);
        // "maps.example/site" and "/srv/maps/site.html" are addresses, too.
        m_pPage->Open(url.scheme().isEmpty() ? QUrl::fromUserInput(address) : url);
    } else if (member == LINKWEB::RunScriptMember) {
        m_pPage->RunWhenReady(arguments.value(0).toString());
    }
    return QVariant();
}

void WebControl::CallListener(const QString& name, const QString& param) const
{
    // The listener may delete this control.
    if (m_pListener)
        m_pListener->CallBack(name.toUtf8().constData(), param.toLocal8Bit().constData());
}

WId WebControl::winId() const { return m_pView ? m_pView->effectiveWinId() : 0; }

void WebControl::show()
{
    if (m_pView && m_pPage)
        m_pView->show();
}

void WebControl::clear()
{
    m_pListener = nullptr;
    if (m_pView)
        m_pView->hide();
    m_pPage.reset();
}

} // namespace WebEngine
