#include <gallery/KeysDialog.h>

#include <gallery/DigitsWidth.h>

#include <Platform/BasicUIComponents/KvVerScrollBar.h>

#include <QAction>
#include <QHeaderView>
#include <QTableWidget>
#include <QVBoxLayout>

namespace OperatorClient {

namespace {

constexpr QSize Size(460, 560); // at least
constexpr int Digits = 60; // its width in large letters
constexpr int KeyDigits = 22;
constexpr int RowHeight = 28; // pixels

} // namespace

KeysDialog::KeysDialog(const QList<QAction*>& actions, QWidget* parent)
    : KvDialog(parent)
    , m_pTable(new QTableWidget(0, 2, GetCentralWidget()))
{
    SetTitle(tr("Keys"));
    resize(qMax(Size.width(), DigitsWidth(*this, Digits)), Size.height());
    m_pTable->setAccessibleName(tr("Keys"));
    m_pTable->setVerticalScrollBar(new KvGUI::KvVerScrollBar(m_pTable));
    m_pTable->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_pTable->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_pTable->setSelectionMode(QAbstractItemView::SingleSelection);
    m_pTable->setTabKeyNavigation(false);
    m_pTable->setShowGrid(false);
    m_pTable->verticalHeader()->hide();
    m_pTable->verticalHeader()->setDefaultSectionSize(RowHeight);
    m_pTable->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_pTable->horizontalHeader()->hide();
    m_pTable->setColumnWidth(1, DigitsWidth(*this, KeyDigits));
    auto* layout = new QVBoxLayout(GetCentralWidget());
    layout->setContentsMargins(12, 12, 12, 12);
    layout->addWidget(m_pTable);
    for (const QAction* action : actions) {
        if (!action->shortcut().isEmpty())
            AddRow(*action);
    }
    m_pTable->setCurrentCell(0, 0);
}

void KeysDialog::AddRow(const QAction& action)
{
    const int row = m_pTable->rowCount();
    m_pTable->insertRow(row);
    m_pTable->setItem(row, 0, new QTableWidgetItem(action.text()));
    m_pTable->setItem(row, 1, new QTableWidgetItem(action.shortcut().toString(QKeySequence::NativeText)));
}

} // namespace OperatorClient
