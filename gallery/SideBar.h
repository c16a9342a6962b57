#pragma once

#include <QWidget>

class QAction;
class QListWidget;
class QToolButton;
class QVBoxLayout;

namespace OperatorClient {

/// The list of pages at the window's side. At its foot are the switches of the skin and the language, and
/// what the window adds.
class SideBar : public QWidget
{
    Q_OBJECT

public:
    explicit SideBar(QWidget* parent = nullptr);

    /// Adds a page below the others.
    /// @param name chooses its icon, "Pages/<name>.svg" of the skin
    void AddPage(const QString& name, const QString& title);
    void SetTitle(int index, const QString& title);
    int CurrentPage() const; ///< -1 when there are no pages
    void SetCurrentPage(int index);
    void FocusPages(); ///< gives the focus to the list
    /// Adds a button for the action below those that are there.
    /// @param icon "Pages/<icon>.svg" of the skin
    QToolButton* AddFootButton(QAction* action, const QString& icon);

    void ShowLanguage(const QString& name); ///< one of Language::Names(); without a signal

    /// Shortcut of a page: Alt and its number for the first nine, else empty.
    static QKeySequence Shortcut(int index);

Q_SIGNALS:
    void SignalPageChosen(int index); ///< another page is the current one
    void SignalLanguageWanted(const QString& name); ///< by the operator; one of Language::Names()

protected:
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void AddLanguages();
    void ChangeSkin();
    void ShowTexts();
    void LoadIcons();
    void FitWidth();

    QListWidget* m_pList;
    QVBoxLayout* m_pFoot;
    QAction* m_pSkin;
    QAction* m_pLanguage;
    QVector<QAction*> m_footActions; ///< their data is the icon's name
};

} // namespace OperatorClient
