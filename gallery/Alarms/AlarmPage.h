#pragma once

#include <gallery/Alarms/AlarmRecord.h>
#include <gallery/Page.h>

#include <QPointer>

class QHBoxLayout;
class QLabel;
class QProgressBar;
class QPushButton;
class QSortFilterProxyModel;
class QTableView;

namespace KvGUI {
class KvLineEdit;
}

namespace OperatorClient {

class AlarmExport;
class AlarmTable;

/// The alarms of the last weeks, which can be filtered, exported to a workbook and imported from one.
class AlarmPage : public Page
{
    Q_OBJECT

public:
    explicit AlarmPage(const QVector<AlarmRecord>& alarms, QWidget* parent = nullptr);

    static QString Title(); ///< in the list of pages
    QVector<Picture> Pictures() override;

    /// Exports the rows that the filter shows. SignalDone follows, unless it is cancelled.
    void Export(const QString& path);
    /// Shows the alarms of a workbook in place of the present ones; an error leaves these.
    void Import(const QString& path);

Q_SIGNALS:
    void SignalDone(bool well); ///< an export or an import has ended

protected:
    void OnLanguageChanged() override;

private:
    QHBoxLayout* BuildTools();
    QTableView* BuildTable();
    QWidget* BuildWork();
    void AskForExport();
    bool MayReplace(const QString& path);
    void AskForImport();
    void CancelExport();
    void Filter(const QString& text);
    QList<QList<QString>> ShownRows() const;
    void ShowCount();
    void ShowExported(int done, int all);
    void ShowWork(const QString& text, int done, int all);
    void EndWork();
    void Tell(const QString& text);
    void OnExported(bool saved, const QString& error, const QString& path);

    AlarmTable* m_pAlarms;
    QSortFilterProxyModel* m_pShown;
    KvGUI::KvLineEdit* m_pFilter = nullptr;
    QLabel* m_pCount = nullptr;
    QPushButton* m_pImport = nullptr;
    QPushButton* m_pExport = nullptr;
    QWidget* m_pWork = nullptr;
    QPushButton* m_pCancel = nullptr;
    QLabel* m_pWorkText = nullptr;
    QProgressBar* m_pProgress = nullptr;
    QPointer<AlarmExport> m_pRunning;
};

} // namespace OperatorClient
