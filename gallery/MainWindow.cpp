#include <gallery/MainWindow.h>

#include <Common/CommonFun.h>
#include <gallery/KeysDialog.h>
#include <gallery/SideBar.h>

#include <QAction>
#include <QApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QStackedWidget>
#include <QStatusBar>

namespace OperatorClient {

namespace {

/// Gives the focus to the first widget of the page that the Tab key reaches.
void FocusFirst(QWidget& page)
{
    for (QWidget* next = page.nextInFocusChain(); page.isAncestorOf(next); next = next->nextInFocusChain()) {
        if ((next->focusPolicy() & Qt::TabFocus) != 0 && next->isEnabled() && next->isVisibleTo(&page))
            return next->setFocus(Qt::TabFocusReason);
    }
}

} // namespace

MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent)
    , m_pSideBar(new SideBar(this))
    , m_pPages(new QStackedWidget(this))
{
    auto* central = new QWidget(this);
    auto* layout = new QHBoxLayout(central);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_pSideBar);
    layout->addWidget(m_pPages, 1);
    setCentralWidget(central);
    statusBar()->setSizeGripEnabled(false);
    connect(m_pSideBar, &SideBar::SignalPageChosen, this, &MainWindow::OnPageChosen);
    connect(m_pSideBar, &SideBar::SignalLanguageWanted, this, &MainWindow::SignalLanguageWanted);
    AddKeys();
    m_pSideBar->AddFootButton(m_pKeys, QStringLiteral("Keys"));
    ShowTexts();
    UICommonMdl::CommonFun::SetStyleSheet(
        this, QStringLiteral("MainWindow"), QStringLiteral("OperatorClient.css"),
        QStringLiteral("OperatorClient"));
    resize(1440, 900);
}

QAction* MainWindow::AddKey(const QKeySequence& key)
{
    auto* action = new QAction(this);
    action->setShortcut(key);
    action->setShortcutContext(Qt::ApplicationShortcut); // also in a panel, which is a window of its own
    addAction(action);
    return action;
}

void MainWindow::AddKeys()
{
    m_pNext = AddKey(QKeySequence(Qt::CTRL + Qt::Key_PageDown));
    m_pPrevious = AddKey(QKeySequence(Qt::CTRL + Qt::Key_PageUp));
    m_pSwitchArea = AddKey(QKeySequence(Qt::Key_F6));
    m_pKeys = AddKey(QKeySequence(Qt::Key_F1));
    connect(m_pNext, &QAction::triggered, this, [this] { Step(1); });
    connect(m_pPrevious, &QAction::triggered, this, [this] { Step(-1); });
    connect(m_pSwitchArea, &QAction::triggered, this, &MainWindow::SwitchArea);
    connect(m_pKeys, &QAction::triggered, this, &MainWindow::ShowKeys);
}

void MainWindow::AddPage(const PageEntry& entry)
{
    const int index = m_places.size();
    QAction* key = AddKey(SideBar::Shortcut(index));
    m_places.append({entry, key});
    m_pSideBar->AddPage(entry.name, entry.title());
    key->setText(entry.title());
    connect(key, &QAction::triggered, this, [this, index] { ShowPage(index); });
}

QStringList MainWindow::PageNames() const
{
    QStringList names;
    for (const Place& place : m_places)
        names << place.entry.name;
    return names;
}

Page* MainWindow::CurrentPage() const { return qobject_cast<Page*>(m_pPages->currentWidget()); }

QString MainWindow::CurrentPageName() const { return PageNames().value(m_pSideBar->CurrentPage()); }

void MainWindow::ShowPage(int index)
{
    if (index >= 0 && index < m_places.size())
        m_pSideBar->SetCurrentPage(index);
}

bool MainWindow::ShowPage(const QString& name)
{
    const int index = PageNames().indexOf(name);
    ShowPage(index);
    return index >= 0;
}

Page* MainWindow::PageAt(int index)
{
    Place& place = m_places[index];
    if (place.page == nullptr) {
        place.page = place.entry.make(m_pPages);
        m_pPages->addWidget(place.page);
        connect(place.page, &Page::SignalReport, this, [this](const QString& text) {
            statusBar()->showMessage(text);
        });
    }
    return place.page;
}

void MainWindow::OnPageChosen(int index)
{
    if (index < 0)
        return; // no row is the current one
    statusBar()->clearMessage(); // it reports of another page
    m_pPages->setCurrentWidget(PageAt(index));
    m_pLeft.clear();
    Q_EMIT SignalPageShown(CurrentPageName());
}

void MainWindow::Step(int pages)
{
    const int count = m_places.size();
    if (count > 0)
        ShowPage((m_pSideBar->CurrentPage() + pages + count) % count);
}

/// The page gets the focus where it was left, else at its first widget.
void MainWindow::SwitchArea()
{
    QWidget* page = m_pPages->currentWidget();
    QWidget* focus = QApplication::focusWidget();
    if (page == nullptr)
        return;
    if (focus != nullptr && page->isAncestorOf(focus)) {
        m_pLeft = focus;
        m_pSideBar->FocusPages();
    } else if (m_pLeft && page->isAncestorOf(m_pLeft)) {
        m_pLeft->setFocus(Qt::ShortcutFocusReason);
    } else {
        FocusFirst(*page);
    }
}

void MainWindow::ShowLanguage(const QString& name) { m_pSideBar->ShowLanguage(name); }

void MainWindow::ShowKeys()
{
    const Page* page = CurrentPage();
    auto* dialog = new KeysDialog(
        actions() + m_pSideBar->actions() + (page ? page->findChildren<QAction*>() : QList<QAction*>()),
        this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

void MainWindow::ShowTexts()
{
    setWindowTitle(tr("Operator client"));
    m_pNext->setText(tr("Next page"));
    m_pPrevious->setText(tr("Previous page"));
    m_pSwitchArea->setText(tr("To the side bar and back"));
    m_pKeys->setText(tr("Keys"));
    m_pKeys->setToolTip(
        tr("Show what the keyboard can do (%1)").arg(m_pKeys->shortcut().toString(QKeySequence::NativeText)));
    for (int i = 0; i < m_places.size(); ++i) {
        const QString title = m_places.at(i).entry.title();
        m_pSideBar->SetTitle(i, title);
        m_places.at(i).key->setText(title);
    }
}

void MainWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() != QEvent::LanguageChange)
        return;
    ShowTexts();
    statusBar()->clearMessage(); // it reports in the former language
}

} // namespace OperatorClient
