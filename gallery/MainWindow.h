#pragma once

#include <gallery/Page.h>

#include <QMainWindow>

class QListWidget;
class QStackedWidget;

namespace OperatorClient {

/// The window of the client: a list of pages, the page chosen there, and a line for reports.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent = nullptr);

    void AddPage(Page* page); ///< takes ownership; the first page is the one shown
    QVector<Page*> Pages() const;
    void ShowPage(int index);

protected:
    void changeEvent(QEvent* event) override;

private:
    QListWidget* m_pPageList;
    QStackedWidget* m_pPages;
};

} // namespace OperatorClient
