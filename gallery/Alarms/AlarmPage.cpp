#include <gallery/Alarms/AlarmPage.h>

#include <Platform/BasicUIComponents/KvHorScrollBar.h>
#include <Platform/BasicUIComponents/KvLineEdit.h>
#include <Platform/BasicUIComponents/KvMessageNotify.h>
#include <Platform/BasicUIComponents/KvPushButton.h>
#include <Platform/BasicUIComponents/KvVerScrollBar.h>
#include <UI/Spreadsheet/AxExcelFunction.h>
#include <gallery/Alarms/AlarmExport.h>
#include <gallery/Alarms/AlarmImport.h>
#include <gallery/Alarms/AlarmTable.h>
#include <gallery/DigitsWidth.h>
#include <gallery/FollowLanguage.h>
#include <gallery/LastFolders.h>
#include <gallery/StartLabel.h>

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QProgressBar>
#include <QRegularExpression>
#include <QSortFilterProxyModel>
#include <QStandardPaths>
#include <QTableView>

namespace OperatorClient {

using UICommonMdl::AxExcelFunction;

namespace {

const int ColumnWidths[] = {11, 21, 20, 24, 12, 16, 32}; // digits in the letters of the desktop
constexpr int FilterWidth = 280;
constexpr int ProgressWidth = 320;

/// A table whose last column takes what is left, and never less than its own width: a header alone would
/// leave it no room in a narrow table.
class AlarmView : public QTableView
{
public:
    using QTableView::QTableView;

    void KeepLastColumn(int width)
    {
        m_iLeast = width;
        connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this] { StretchLastColumn(); });
        StretchLastColumn();
    }

protected:
    void resizeEvent(QResizeEvent* event) override
    {
        QTableView::resizeEvent(event);
        StretchLastColumn();
    }

private:
    void StretchLastColumn()
    {
        const int last = model()->columnCount() - 1;
        setColumnWidth(last, qMax(m_iLeast, viewport()->width() - horizontalHeader()->sectionPosition(last)));
    }

    int m_iLeast = 0; // pixels
};

/// The hourglass while the spreadsheet application is waited for.
class Waiting
{
public:
    Waiting() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~Waiting() { QApplication::restoreOverrideCursor(); }
    Waiting(const Waiting&) = delete;
    Waiting& operator=(const Waiting&) = delete;
};

/// The path with the suffix of the chosen filter, such as "CSV files (*.csv)", when it has none of its own.
QString WithSuffix(const QString& path, const QString& filter)
{
    const auto suffix = QRegularExpression(QStringLiteral("\\*(\\.\\w+)")).match(filter);
    return QFileInfo(path).suffix().isEmpty() ? path + suffix.captured(1) : path;
}

QString WorkbookFolder()
{
    return LastFolders::Of(
        FileUse::Workbook, QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
}

} // namespace

AlarmPage::AlarmPage(const QVector<AlarmRecord>& alarms, QWidget* parent)
    : Page(parent)
    , m_pAlarms(new AlarmTable(this))
    , m_pShown(new QSortFilterProxyModel(this))
{
    m_pAlarms->SetAlarms(alarms);
    m_pShown->setSourceModel(m_pAlarms);
    m_pShown->setFilterKeyColumn(-1); // all of them
    m_pShown->setFilterCaseSensitivity(Qt::CaseInsensitive);
    auto* title = FollowLanguage(new StartLabel(this), "text", &AlarmPage::Title);
    title->ShowAsHeading(StartLabel::PageTitle);
    auto* page = new QVBoxLayout(this);
    page->setContentsMargins(24, 20, 24, 12);
    page->setSpacing(12);
    page->addWidget(title);
    page->addLayout(BuildTools());
    page->addWidget(BuildTable(), 1);
    page->addWidget(BuildWork());
    EndWork();
    ShowCount();
}

QString AlarmPage::Title() { return tr("Alarms"); }

QHBoxLayout* AlarmPage::BuildTools()
{
    m_pFilter = new KvGUI::KvLineEdit(this);
    FollowLanguage(m_pFilter, "placeholderText", [] { return tr("Filter the alarms"); });
    FollowLanguage(m_pFilter, "accessibleName", [] { return tr("Filter the alarms"); });
    m_pFilter->setFixedWidth(FilterWidth);
    m_pFilter->setClearButtonEnabled(true);
    m_pCount = new QLabel(this);
    m_pCount->setObjectName(QStringLiteral("hint"));
    m_pImport = FollowLanguage(new KvGUI::KvPushButton(this), "text", [] { return tr("&Import\u2026"); });
    m_pExport = FollowLanguage(new KvGUI::KvPushButton(this), "text", [] { return tr("&Export\u2026"); });
    auto* tools = new QHBoxLayout;
    tools->setSpacing(8);
    tools->addWidget(m_pFilter);
    tools->addSpacing(8);
    tools->addWidget(m_pCount);
    tools->addStretch(1);
    tools->addWidget(m_pImport);
    tools->addWidget(m_pExport);
    connect(m_pFilter, &QLineEdit::textChanged, this, &AlarmPage::Filter);
    connect(m_pImport, &QPushButton::clicked, this, &AlarmPage::AskForImport);
    connect(m_pExport, &QPushButton::clicked, this, &AlarmPage::AskForExport);
    return tools;
}

QTableView* AlarmPage::BuildTable()
{
    auto* table = new AlarmView(this);
    FollowLanguage(table, "accessibleName", [] { return tr("Alarms"); });
    table->setModel(m_pShown);
    table->setHorizontalScrollBar(new KvGUI::KvHorScrollBar(table));
    table->setVerticalScrollBar(new KvGUI::KvVerScrollBar(table));
    table->setAlternatingRowColors(true);
    table->setShowGrid(false);
    table->setWordWrap(false);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setTabKeyNavigation(false); // Tab leaves the table
    table->verticalHeader()->hide();
    table->verticalHeader()->setDefaultSectionSize(28);
    table->horizontalHeader()->setHighlightSections(false);
    int column = 0;
    for (const int digits : ColumnWidths)
        table->setColumnWidth(column++, DigitsWidth(*table, digits));
    table->KeepLastColumn(table->columnWidth(column - 1));
    return table;
}

QWidget* AlarmPage::BuildWork()
{
    m_pWork = new QWidget(this);
    QSizePolicy policy = m_pWork->sizePolicy();
    policy.setRetainSizeWhenHidden(true); // the table keeps its place
    m_pWork->setSizePolicy(policy);
    m_pWorkText = new QLabel(m_pWork);
    m_pProgress = new QProgressBar(m_pWork);
    FollowLanguage(m_pProgress, "accessibleName", [] { return tr("Progress of the export"); });
    m_pProgress->setFixedWidth(ProgressWidth);
    m_pProgress->setTextVisible(false);
    m_pCancel = FollowLanguage(new KvGUI::KvPushButton(m_pWork), "text", [] { return tr("&Cancel"); });
    auto* line = new QHBoxLayout(m_pWork);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(12);
    line->addWidget(m_pProgress);
    line->addWidget(m_pWorkText);
    line->addStretch(1);
    line->addWidget(m_pCancel);
    connect(m_pCancel, &QPushButton::clicked, this, &AlarmPage::CancelExport);
    return m_pWork;
}

void AlarmPage::Filter(const QString& text)
{
    m_pShown->setFilterFixedString(text);
    ShowCount();
}

void AlarmPage::OnLanguageChanged()
{
    m_pAlarms->ShowTexts();
    ShowCount();
}

void AlarmPage::ShowCount()
{
    const int all = m_pAlarms->rowCount();
    const QString shown = QLocale().toString(m_pShown->rowCount());
    m_pCount->setText(
        m_pFilter->text().isEmpty() ? tr("%Ln alarm(s)", nullptr, all)
                                    : tr("%1 of %Ln alarm(s)", nullptr, all).arg(shown));
}

QList<QList<QString>> AlarmPage::ShownRows() const
{
    QList<QList<QString>> rows;
    rows.reserve(m_pShown->rowCount());
    for (int row = 0; row < m_pShown->rowCount(); ++row) {
        QList<QString> cells;
        for (int column = 0; column < m_pShown->columnCount(); ++column)
            cells << m_pShown->index(row, column).data().toString();
        rows << cells;
    }
    return rows;
}

void AlarmPage::AskForExport()
{
    QString filters;
    {
        const Waiting waiting;
        filters = AxExcelFunction::GetExcelFileFilter(true);
    }
    if (filters.isEmpty())
        return Tell(tr("No spreadsheet application was found."));
    QString filter;
    const QString path = QFileDialog::getSaveFileName(
        this, tr("Export the alarms"), QDir(WorkbookFolder()).filePath(tr("Alarms")), filters, &filter);
    if (path.isEmpty())
        return;
    LastFolders::Note(FileUse::Workbook, path);
    const QString target = WithSuffix(path, filter);
    // The dialog has asked about the typed name only.
    if (target == path || !QFileInfo::exists(target) || MayReplace(target))
        Export(target);
}

bool AlarmPage::MayReplace(const QString& path)
{
    const QString question
        = tr("%1 already exists.\nDo you want to replace it?").arg(QFileInfo(path).fileName());
    return QMessageBox::question(this, tr("Export the alarms"), question) == QMessageBox::Yes;
}

void AlarmPage::Export(const QString& path)
{
    if (m_pRunning)
        return;
    const QList<QList<QString>> rows = ShownRows();
    const int all = rows.size();
    m_pRunning = new AlarmExport(path, tr("Alarms"), AlarmRecord::Columns(), rows, this);
    connect(
        m_pRunning, &AlarmExport::SignalProgress, this, [this, all](int done) { ShowExported(done, all); });
    connect(m_pRunning, &AlarmExport::SignalSaving, this, [this, all] {
        ShowWork(tr("Storing the file\u2026"), all, all);
    });
    connect(m_pRunning, &AlarmExport::SignalFinished, this, [this, path](bool saved, const QString& error) {
        OnExported(saved, error, path);
    });
    Q_EMIT SignalReport(QString()); // of the export before
    ShowWork(tr("Starting\u2026"), 0, all);
    m_pRunning->Start();
}

void AlarmPage::OnExported(bool saved, const QString& error, const QString& path)
{
    EndWork();
    if (saved)
        Q_EMIT SignalReport(tr("The alarms were exported to %1.").arg(QDir::toNativeSeparators(path)));
    else
        Tell(error);
    Q_EMIT SignalDone(saved);
}

void AlarmPage::CancelExport()
{
    if (!m_pRunning)
        return;
    m_pRunning->Cancel();
    EndWork();
    Q_EMIT SignalReport(tr("The export was cancelled; no file was written."));
}

void AlarmPage::AskForImport()
{
    const QString path = QFileDialog::getOpenFileName(
        this, tr("Import alarms"), WorkbookFolder(), tr("Workbooks (*.xlsx *.xls *.csv)"));
    LastFolders::Note(FileUse::Workbook, path);
    if (!path.isEmpty())
        Import(path);
}

void AlarmPage::Import(const QString& path)
{
    AlarmImport import;
    Q_EMIT SignalReport(QString());
    {
        const Waiting waiting;
        import = AlarmImport::Read(path);
    }
    const bool well = import.error.isEmpty();
    if (well) {
        m_pFilter->clear();
        m_pAlarms->SetAlarms(import.alarms);
        ShowCount();
        QString report = tr("%Ln alarm(s) imported.", nullptr, import.alarms.size());
        if (import.skipped > 0)
            report += QLatin1Char(' ') + tr("%Ln row(s) left out.", nullptr, import.skipped);
        Q_EMIT SignalReport(report);
    } else {
        Tell(import.error);
    }
    Q_EMIT SignalDone(well);
}

void AlarmPage::ShowExported(int done, int all)
{
    ShowWork(tr("%1 of %Ln alarm(s)", nullptr, all).arg(QLocale().toString(done)), done, all);
}

void AlarmPage::ShowWork(const QString& text, int done, int all)
{
    m_pWorkText->setText(text);
    m_pProgress->setRange(0, qMax(1, all));
    m_pProgress->setValue(done);
    m_pWork->show();
    // Not by hasFocus(): the file dialog may not have given the keyboard back to the window yet.
    if (focusWidget() == m_pExport)
        m_pCancel->setFocus();
    m_pImport->setEnabled(false);
    m_pExport->setEnabled(false);
    // The next step keeps the event loop from it, and storing may take seconds.
    m_pWork->layout()->activate();
    m_pWork->repaint();
}

void AlarmPage::EndWork()
{
    if (m_pRunning)
        m_pRunning->deleteLater();
    m_pRunning.clear();
    m_pImport->setEnabled(true);
    m_pExport->setEnabled(true);
    if (focusWidget() == m_pCancel)
        m_pExport->setFocus(); // otherwise it leaves the page
    m_pWork->hide();
}

void AlarmPage::Tell(const QString& text)
{
    KvGUI::KvMessageNotify::Instance()->AddTextNotification(text, this);
}

QVector<Page::Picture> AlarmPage::Pictures()
{
    return {
        {QString(), [this] { m_pFilter->clear(); }},
        {QStringLiteral("filtered"), [this] { m_pFilter->setText(tr("lens covered")); }},
        {QStringLiteral("exporting"),
         [this] {
             m_pFilter->clear();
             ShowExported(12000, 20000);
         },
         [this] { EndWork(); }}};
}

} // namespace OperatorClient
