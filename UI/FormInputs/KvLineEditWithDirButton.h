#pragma once

#include <Platform/BasicUIComponents/KvLineEdit.h>

#include <QFileDialog>

class QToolButton;

namespace UICommonMdl {

/// A line edit for a path, with a folder button inside its right end that fills it from a file dialog.
///
/// The button always opens the dialog for opening a file: the three setters store what a dialog needs, and
/// none of them chooses the kind of dialog. The edit may be deleted while the dialog is open, which then
/// closes.
class UICOMPONENTS_EXPORT KvLineEditWithDirButton : public KvGUI::KvLineEdit
{
    Q_OBJECT

public:
    explicit KvLineEditWithDirButton(QWidget* parent = nullptr);

    /// Stores what the dialog shows.
    /// @param caption of the dialog
    /// @param directory that the dialog begins with; a file in it is preselected
    /// @param filter of names, as QFileDialog takes it: "Pictures (*.png *.jpg);;All files (*)"
    void SetOpenFile(QString caption, QString directory, QString filter);

    /// Stores the same as SetOpenFile().
    void SetSaveFile(QString caption, QString directory, QString filter);

    /// Stores the dialog's caption and the folder that it begins with.
    /// @param caption of the dialog
    /// @param directory that the dialog begins with; a file in it is preselected
    /// @param option for a folder dialog; without effect on the one for a file
    void SetSelectDirectory(QString caption, QString directory, QFileDialog::Option option);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private Q_SLOTS:
    void onDirButtonClicked();

private:
    void PlaceButton();
    QFileDialog* MakeDialog();
    QString AskForPath();

    QString m_strCaption;
    QString m_strFilter;
    QString m_strDirectory;
    QToolButton* m_btnDir;
};

} // namespace UICommonMdl
