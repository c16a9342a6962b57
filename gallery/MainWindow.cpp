#include <gallery/MainWindow.h>

#include <gallery/FollowLanguage.h>

#include <Common/CommonFun.h>

#include <QHBoxLayout>
#include <QListWidget>
#include <QStackedWidget>
#include <QStatusBar>

namespace OperatorClient {

MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent)
    , m_pPageList(new QListWidget(this))
    , m_pPages(new QStackedWidget(this))
{
    FollowLanguage(this, "windowTitle", [] { return tr("Operator client"); });
    m_pPageList->setObjectName(QStringLiteral("pageList"));
    FollowLanguage(m_pPageList, "accessibleName", [] { return tr("Pages"); });
    m_pPageList->setFixedWidth(160);
    m_pPageList->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* central = new QWidget(this);
    auto* layout = new QHBoxLayout(central);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_pPageList);
    layout->addWidget(m_pPages, 1);
    setCentralWidget(central);
    statusBar()->setSizeGripEnabled(false);
    connect(m_pPageList, &QListWidget::currentRowChanged, m_pPages, &QStackedWidget::setCurrentIndex);
    UICommonMdl::CommonFun::SetStyleSheet(
        this, QStringLiteral("MainWindow"), QStringLiteral("OperatorClient.css"),
        QStringLiteral("OperatorClient"));
    resize(1440, 900);
}

void MainWindow::AddPage(Page* page)
{
    m_pPages->addWidget(page);
    m_pPageList->addItem(page->Title());
    connect(page, &Page::SignalReport, this, [this](const QString& text) { statusBar()->showMessage(text); });
    if (m_pPageList->currentRow() < 0)
        ShowPage(0);
}

QVector<Page*> MainWindow::Pages() const
{
    QVector<Page*> pages;
    for (int i = 0; i < m_pPages->count(); ++i)
        pages.append(qobject_cast<Page*>(m_pPages->widget(i)));
    return pages;
}

void MainWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() != QEvent::LanguageChange)
        return;
    const QVector<Page*> pages = Pages();
    for (int i = 0; i < pages.size(); ++i)
        m_pPageList->item(i)->setText(pages.at(i)->Title());
    statusBar()->clearMessage(); // it reports in the former language
}

void MainWindow::ShowPage(int index) { m_pPageList->setCurrentRow(index); }

} // namespace OperatorClient
