#pragma once

#include <gallery/Page.h>
#include <gallery/PageEntry.h>

#include <QMainWindow>
#include <QPointer>

class QStackedWidget;

namespace OperatorClient {

class SideBar;

/// The window of the client: a side bar of pages, the page chosen there, and a line for reports.
///
/// Alt and a digit chooses a page, Ctrl+PageUp and Ctrl+PageDown the one before and after, F6 goes between
/// the side bar and the page, F1 lists the keys. A page is made when it is shown for the first time: one
/// that nobody looks at costs neither time nor memory.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent = nullptr);

    void AddPage(const PageEntry& entry); ///< below the others; none is shown before ShowPage()
    QStringList PageNames() const;
    Page* CurrentPage() const; ///< null before the first is shown
    QString CurrentPageName() const; ///< empty before the first is shown
    void ShowPage(int index); ///< makes it when it is not there yet; nothing when there is none
    bool ShowPage(const QString& name); ///< false when there is none

    void ShowLanguage(const QString& name); ///< on the switch of the side bar

    void ShowKeys(); ///< opens the list of the window's keys and of the page's

Q_SIGNALS:
    void SignalPageShown(const QString& name);
    void SignalLanguageWanted(const QString& name); ///< by the operator

protected:
    void changeEvent(QEvent* event) override;

private:
    struct Place
    {
        PageEntry entry;
        QAction* key;
        Page* page = nullptr; ///< not made yet
    };

    QAction* AddKey(const QKeySequence& key);
    void AddKeys();
    void ShowTexts();
    Page* PageAt(int index);
    void OnPageChosen(int index);
    void Step(int pages);
    void SwitchArea();

    SideBar* m_pSideBar;
    QStackedWidget* m_pPages;
    QAction* m_pNext = nullptr;
    QAction* m_pPrevious = nullptr;
    QAction* m_pSwitchArea = nullptr;
    QAction* m_pKeys = nullptr;
    QVector<Place> m_places; ///< a page each, in the order of the side bar
    QPointer<QWidget> m_pLeft; ///< had the focus when the page was left for the side bar
};

} // namespace OperatorClient
