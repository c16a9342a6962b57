#include <UI/FormInputs/CPasswordEdit.h>

#include "LineEditMenu.h"

#include <Common/QCommon.h>
#include <Platform/BasicUIComponents/KvSkin.h>
#include <Platform/BasicUIComponents/KvSkinNotifier.h>
#include <QAction>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>

namespace UICommonMdl {

CPasswordEdit::CPasswordEdit(QWidget* parent)
    : CRequiredEdit(parent)
{
    setEchoMode(QLineEdit::Password);
    setAttribute(Qt::WA_InputMethodEnabled, false);
    installEventFilter(this);
    setObjectName(QStringLiteral("CPasswordEdit"));
    ApplySheet();
    // Comes after the base class's own sheet, which was registered first.
    connect(
        KvGUI::KvSkinNotifier::Instance(), &KvGUI::KvSkinNotifier::SignalSkinChanged, this,
        &CPasswordEdit::ApplySheet);
}

/// The folder is a complete resource path already, and GetSkinPath nests it in a second prefix. Applications
/// keep their sheet at that place, so the path stays.
void CPasswordEdit::ApplySheet()
{
    const QString folder = QStringLiteral(":/%1/UICommonModule/%2/UICommonModule/PasswordEdit")
                               .arg(KvGUI::GetAppName(), KvGUI::GetSkinVersion());
    QString sheet;
    if (XCM::loadStyleSheet(XCM::GetSkinPath(folder, QStringLiteral("CPasswordEdit.qss")), sheet))
        setStyleSheet(sheet);
}

bool CPasswordEdit::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->modifiers() == Qt::ControlModifier && key->key() == Qt::Key_V)
            return true;
    }
    return QObject::eventFilter(watched, event);
}

/// Emptying the clipboard while the menu is made would also grey "Paste" out, but lose pictures, files and
/// the formats of other programs.
void CPasswordEdit::contextMenuEvent(QContextMenuEvent* event)
{
    QMenu* menu = createStandardContextMenu();
    if (QAction* paste = PasteAction(menu))
        paste->setEnabled(false);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->popup(event->globalPos());
}

} // namespace UICommonMdl
