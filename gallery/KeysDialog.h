#pragma once

#include <Platform/BasicUIComponents/KvDialog.h>

class QAction;
class QTableWidget;

namespace OperatorClient {

/// Lists what the keyboard can do: the texts of actions and their shortcuts.
class KeysDialog : public KvGUI::KvDialog
{
    Q_OBJECT

public:
    /// @param actions those without a shortcut are left out
    explicit KeysDialog(const QList<QAction*>& actions, QWidget* parent = nullptr);

private:
    void AddRow(const QAction& action);

    QTableWidget* m_pTable;
};

} // namespace OperatorClient
