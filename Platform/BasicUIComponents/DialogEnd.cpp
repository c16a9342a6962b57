#include <Platform/BasicUIComponents/DialogEnd.h>

#include <QDialog>
#include <QPointer>
#include <QSignalBlocker>

void EndDialog(QDialog& dialog, int result)
{
    const QPointer<QDialog> living(&dialog);
    dialog.setResult(result);
    dialog.hide(); // not blocked: what a subclass or a client tells at this event comes through
    if (!living)
        return;
    {
        const QSignalBlocker blocker(&dialog);
        dialog.QDialog::done(result);
    }
    if (result == QDialog::Accepted)
        emit dialog.accepted();
    else if (result == QDialog::Rejected)
        emit dialog.rejected();
    if (living)
        emit dialog.finished(result);
}
