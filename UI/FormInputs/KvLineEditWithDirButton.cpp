#include <UI/FormInputs/KvLineEditWithDirButton.h>

#include <Common/CommonFun.h>
#include <Platform/BasicUIComponents/KvTranslatedText.h>
#include <UI/FormInputs/LineEnds.h>

#include <QEvent>
#include <QPointer>
#include <QStyle>
#include <QToolButton>

namespace UICommonMdl {

namespace {

constexpr int ButtonSize = 20; // pixels

/// The text with each half of a surrogate pair replaced: Qt makes a regular expression of a filter.
QString WholeCharacters(const QString& text) { return QString::fromUtf8(text.toUtf8()); }

/// Qt warns of a path that holds a zero character; there is none such.
QString WithoutZeros(QString path) { return path.remove(QChar::Null); }

} // namespace

KvLineEditWithDirButton::KvLineEditWithDirButton(QWidget* parent)
    : KvLineEdit(parent)
    , m_btnDir(new QToolButton(this))
{
    m_btnDir->setIcon(style()->standardIcon(QStyle::SP_DirIcon));
    m_btnDir->setToolButtonStyle(Qt::ToolButtonIconOnly);
    // Qt skips the last property, which has no hyphen, with a debug message.
    m_btnDir->setStyleSheet(QStringLiteral("background:transparent;borderstyle:solid;"));
    m_btnDir->setAutoRaise(true);
    m_btnDir->setIconSize(QSize(ButtonSize, ButtonSize));
    m_btnDir->setCursor(Qt::ArrowCursor);
    new KvGUI::KvTranslatedText(m_btnDir, "toolTip", [] { return tr("Choose"); });
    new KvGUI::KvTranslatedText(m_btnDir, "accessibleName", [] { return tr("Choose a file"); });
    connect(m_btnDir, &QToolButton::clicked, this, &KvLineEditWithDirButton::onDirButtonClicked);
    KeepRoom(*this, LineEnd::End, ButtonSize);
    CommonFun::SetStyleSheet(this, QStringLiteral("LineEdit"), QString(), QString());
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): the interface takes a copy
void KvLineEditWithDirButton::SetOpenFile(QString caption, QString directory, QString filter)
{
    m_strCaption = std::move(caption);
    m_strDirectory = WithoutZeros(std::move(directory));
    m_strFilter = WholeCharacters(filter);
}

void KvLineEditWithDirButton::SetSaveFile(QString caption, QString directory, QString filter)
{
    SetOpenFile(std::move(caption), std::move(directory), std::move(filter));
}

void KvLineEditWithDirButton::SetSelectDirectory(
    QString caption, QString directory, QFileDialog::Option /*option*/)
{
    m_strCaption = std::move(caption);
    m_strDirectory = WithoutZeros(std::move(directory));
}

void KvLineEditWithDirButton::resizeEvent(QResizeEvent* event)
{
    KvLineEdit::resizeEvent(event);
    PlaceButton();
}

void KvLineEditWithDirButton::changeEvent(QEvent* event)
{
    KvLineEdit::changeEvent(event);
    if (event->type() != QEvent::LayoutDirectionChange)
        return;
    KeepRoom(*this, LineEnd::End, ButtonSize);
    PlaceButton();
}

/// At the end of the line: right, and left where the layout is mirrored.
void KvLineEditWithDirButton::PlaceButton()
{
    QRect place = rect();
    const int middle = place.center().y();
    place.setLeft(place.right() - ButtonSize);
    place.setTop(middle - ButtonSize / 2);
    place.setBottom(middle + ButtonSize / 2);
    PlaceInLine(*this, *m_btnDir, place);
}

QFileDialog* KvLineEditWithDirButton::MakeDialog()
{
    auto* dialog = new QFileDialog(this, m_strCaption, m_strDirectory, m_strFilter);
    dialog->setSupportedSchemes({QStringLiteral("file")});
    dialog->setFileMode(QFileDialog::ExistingFile);
    return dialog;
}

/// What QFileDialog's static functions give. Their dialog lies on the stack, though, where it would be
/// deleted as a child when the edit is deleted while it is open.
QString KvLineEditWithDirButton::AskForPath()
{
    const QPointer<QFileDialog> dialog(MakeDialog());
    const bool accepted = dialog->exec() == QDialog::Accepted;
    QString path = accepted ? dialog->selectedFiles().value(0) : QString(); // an accepted one lives
    delete dialog;
    return path;
}

void KvLineEditWithDirButton::onDirButtonClicked()
{
    const QString path = AskForPath();
    if (!path.isEmpty())
        setText(path);
}

} // namespace UICommonMdl
