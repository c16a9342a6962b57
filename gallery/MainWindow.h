#pragma once

#include <gallery/Page.h>

#include <QMainWindow>
#include <QPointer>

class QStackedWidget;

namespace OperatorClient {

class SideBar;

/// The window of the client: a side bar of pages, the page chosen there, and a line for reports.
///
/// Alt and a digit chooses a page, Ctrl+PageUp and Ctrl+PageDown the one before and after, F6 goes between
/// the side bar and the page, F1 lists the keys.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent = nullptr);

    void AddPage(Page* page); ///< takes ownership; the first page is the one shown
    QVector<Page*> Pages() const;
    Page* CurrentPage() const; ///< null when there are none
    void ShowPage(int index);
    bool ShowPage(const QString& name); ///< by Page::Name(); false when there is none

    void ShowLanguage(const QString& name); ///< on the switch of the side bar

    void ShowKeys(); ///< opens the list of the window's keys and of the page's

Q_SIGNALS:
    void SignalPageShown(const QString& name);
    void SignalLanguageWanted(const QString& name); ///< by the operator

protected:
    void changeEvent(QEvent* event) override;

private:
    QAction* AddKey(const QKeySequence& key);
    void AddKeys();
    void ShowTexts();
    void OnPageChosen(int index);
    void Step(int pages);
    void SwitchArea();

    SideBar* m_pSideBar;
    QStackedWidget* m_pPages;
    QAction* m_pNext = nullptr;
    QAction* m_pPrevious = nullptr;
    QAction* m_pSwitchArea = nullptr;
    QAction* m_pKeys = nullptr;
    QVector<QAction*> m_pageKeys;
    QPointer<QWidget> m_pLeft; ///< had the focus when the page was left for the side bar
};

} // namespace OperatorClient
