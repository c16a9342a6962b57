#pragma once

class QDialog;

/// Does what QDialog::done() does, but has the signals come last: Qt goes on with the dialog after accepted()
/// and rejected(), whose slots may have deleted it. For overrides of done().
void EndDialog(QDialog& dialog, int result);
