#include <gallery/Forms/DevicePage.h>

#include <Platform/BasicUIComponents/KvCalendarEx.h>
#include <Platform/BasicUIComponents/KvCheckBox.h>
#include <Platform/BasicUIComponents/KvPushButton.h>
#include <UI/FormInputs/CPasswordEdit.h>
#include <UI/FormInputs/CPasswordStrength.h>
#include <UI/FormInputs/CRequiredEdit.h>
#include <UI/FormInputs/CTipLabel.h>
#include <UI/FormInputs/KvImpPushButton.h>
#include <UI/FormInputs/KvLineEditEx.h>
#include <UI/FormInputs/KvLineEditWithDirButton.h>
#include <UI/FormInputs/QIpAddrEdit.h>
#include <UI/FormInputs/QIpPartLineEdit.h>
#include <UI/FormInputs/WmAddGroup.h>
#include <UI/FormInputs/WmDateCalendar.h>
#include <UI/FormInputs/WmNoImpPushButton.h>
#include <gallery/DigitsWidth.h>
#include <gallery/FollowLanguage.h>
#include <gallery/Forms/PasswordRating.h>
#include <gallery/StartLabel.h>

#include <QComboBox>
#include <QFileInfo>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>

namespace OperatorClient {

namespace {

using UICommonMdl::CTipLabel;

/// The bubble stands after the field: right, and left where the layout is mirrored.
CTipLabel::DisplayPosition TipSide(const QWidget& field)
{
    return field.isRightToLeft() ? CTipLabel::Right : CTipLabel::Left;
}

constexpr int FormWidth = 400; // pixels, where the window has them, and more in large letters:
constexpr int FormDigits = 48;
/// Pixels beside each column for the error bubbles of its fields, where the window has them.
constexpr int BubbleRoom = 220;
constexpr int LabelWidth = 100; // pixels, so that the columns of groups below each other agree
constexpr int LongestPeriod = 31; // days
constexpr qint64 RootGroup = 1;

int WidestForm(const QWidget& form) { return qMax(FormWidth, DigitsWidth(form, FormDigits)); }

QFormLayout* FormIn(QGroupBox* group)
{
    group->setMaximumWidth(WidestForm(*group));
    auto* form = new QFormLayout(group);
    form->setVerticalSpacing(10);
    form->setHorizontalSpacing(10);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    return form;
}

/// A label without the mark of its shortcut, which stands in brackets where the letter is not in the word.
QString WithoutShortcut(QString label)
{
    label.remove(QRegularExpression(QStringLiteral("\\s*\\(&\\w\\)")));
    return label.remove(QLatin1Char('&'));
}

/// A row whose field is also called by the label's text, without the mark of its shortcut.
/// @return the label
QLabel* AddRow(
    QFormLayout* form, const KvGUI::KvTranslatedText::Source& label, QWidget* field, QWidget* row = nullptr)
{
    FollowLanguage(field, "accessibleName", [label] { return WithoutShortcut(label()); });
    auto* text = FollowLanguage(new StartLabel, "text", label);
    text->setBuddy(field);
    form->addRow(text, row ? row : field);
    return text;
}

QString StrengthName(int level)
{
    switch (level) {
    case 0:
        return {};
    case 1:
        return DevicePage::tr("Weak");
    case 2:
        return DevicePage::tr("Medium");
    default:
        return DevicePage::tr("Strong");
    }
}

} // namespace

DevicePage::DevicePage(QWidget* parent)
    : Page(parent)
{
    auto* title = FollowLanguage(new StartLabel(this), "text", [] { return tr("Device and account"); });
    title->ShowAsHeading(StartLabel::PageTitle);
    auto* hint = FollowLanguage(
        new StartLabel(this), "text", [] { return tr("Fields with an asterisk must be filled in."); });
    hint->setObjectName(QStringLiteral("hint"));
    auto* left = new QVBoxLayout;
    left->setSpacing(16);
    left->addWidget(BuildDevice());
    left->addWidget(BuildRecording());
    left->addStretch(1);
    auto* right = new QVBoxLayout;
    right->setSpacing(16);
    right->addWidget(BuildAccount());
    right->addWidget(BuildButtons());
    right->addStretch(1);
    auto* columns = new QHBoxLayout;
    columns->setSpacing(12);
    columns->addLayout(left, FormWidth);
    columns->addSpacerItem(new QSpacerItem(BubbleRoom, 0, QSizePolicy::Maximum));
    columns->addLayout(right, FormWidth);
    columns->addSpacerItem(new QSpacerItem(BubbleRoom, 0, QSizePolicy::Maximum));
    columns->addStretch(1);
    auto* page = new QVBoxLayout(this);
    page->setContentsMargins(24, 20, 24, 20);
    page->setSpacing(2);
    page->addWidget(title);
    page->addWidget(hint);
    page->addSpacing(16);
    page->addLayout(columns, 1);
    // Enter saves, or leads to what is missing; in the address it goes on to the next field.
    for (QLineEdit* edit : std::initializer_list<QLineEdit*>{
             m_pName, m_pSerial, m_pUser, m_pPassword, m_pCertificate, m_pFolder})
        connect(edit, &QLineEdit::returnPressed, this, &DevicePage::Save);
    Clear();
}

QString DevicePage::Title() { return tr("Device form"); }

QWidget* DevicePage::BuildDevice()
{
    auto* group = FollowLanguage(new QGroupBox(this), "title", [] { return tr("Device"); });
    // The least width that the layout tells counts each label alone, not the column of them.
    group->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Preferred);
    QFormLayout* form = FormIn(group);
    m_pName = new UICommonMdl::CRequiredEdit(group);
    m_pAddress = new UICommonMdl::QIpAddrEdit(group);
    m_pAddress->setRequired(true);
    m_pSerial = new UICommonMdl::KvLineEditEx(group);
    QLabel* name = AddRow(
        form, [] { return tr("&Name"); }, m_pName);
    name->setMinimumWidth(LabelWidth);
    AddRow(
        form, [] { return tr("&IP address"); }, m_pAddress);
    AddRow(
        form, [] { return tr("Serial n&umber"); }, m_pSerial);
    QWidget* row = GroupRow(group);
    AddRow(
        form, [] { return tr("&Group"); }, m_pGroups, row);
    // The keypad's Enter goes on, as the Tab key does.
    connect(
        m_pAddress, &UICommonMdl::QIpAddrEdit::sgnEnterPress, m_pSerial, [this] { m_pSerial->setFocus(); });
    return group;
}

QWidget* DevicePage::GroupRow(QWidget* parent)
{
    auto* row = new QWidget(parent);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    m_pGroups = new QComboBox(row);
    m_pGroups->addItems({QString(), QString(), QString()});
    NameGroups();
    auto* add = FollowLanguage(new KvGUI::KvPushButton(row), "text", [] { return tr("Ne&w\u2026"); });
    FollowLanguage(add, "accessibleName", [] { return tr("New group"); });
    // as high as each other
    m_pGroups->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Minimum);
    add->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum);
    layout->addWidget(m_pGroups, 1);
    layout->addWidget(add);
    connect(add, &QPushButton::clicked, this, &DevicePage::OpenNewGroup);
    return row;
}

QWidget* DevicePage::BuildAccount()
{
    auto* group = FollowLanguage(new QGroupBox(this), "title", [] { return tr("Account"); });
    QFormLayout* form = FormIn(group);
    m_pUser = new UICommonMdl::CRequiredEdit(group);
    m_pPassword = new UICommonMdl::CPasswordEdit(group);
    AddRow(
        form, [] { return tr("Us&er"); }, m_pUser);
    AddRow(
        form, [] { return tr("&Password"); }, m_pPassword);
    m_pStrength = new UICommonMdl::CPasswordStrength(group);
    m_pStrength->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    m_pStrengthText = new StartLabel(group);
    m_pStrengthText->setObjectName(QStringLiteral("hint"));
    form->addRow(m_pStrengthText, m_pStrength); // nothing moves when the text comes
    connect(m_pPassword, &QLineEdit::textChanged, this, &DevicePage::ShowStrength);
    return group;
}

QWidget* DevicePage::BuildRecording()
{
    auto* group = FollowLanguage(new QGroupBox(this), "title", [] { return tr("Recording"); });
    group->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Preferred);
    QFormLayout* form = FormIn(group);
    m_pCertificate = new UICommonMdl::KvLineEditWithDirButton(group);
    m_pFolder = new UICommonMdl::KvLineEditWithDirButton(group);
    NameFileDialogs();
    m_pPeriod = new UICommonMdl::WmDateCalendar(group);
    m_pPeriod->SetRestrcitDateRange(LongestPeriod);
    m_pCalendar = m_pPeriod->findChild<KvGUI::KvCalendarEx*>();
    m_pCalendar->installEventFilter(this);
    auto* times = FollowLanguage(
        new KvGUI::KvCheckBox(group), "text", [] { return tr("Choose &times of day as well"); });
    QLabel* certificate = AddRow(
        form, [] { return tr("Certi&ficate"); }, m_pCertificate);
    certificate->setMinimumWidth(LabelWidth);
    AddRow(
        form, [] { return tr("Fol&der"); }, m_pFolder);
    AddRow(
        form, [] { return tr("Pe&riod"); }, m_pPeriod);
    form->addRow(new QLabel, times);
    connect(m_pFolder, &QLineEdit::textChanged, this, &DevicePage::TakeFolderOfFile);
    connect(times, &QCheckBox::toggled, m_pPeriod, &UICommonMdl::WmDateCalendar::SetTimeEditVisible);
    return group;
}

bool DevicePage::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_pCalendar && event->type() == QEvent::Show)
        PlaceCalendar();
    return Page::eventFilter(watched, event);
}

/// The button opens its calendar at its right in every layout. Where lines end at the left it belongs there,
/// and never beyond the screen.
void DevicePage::PlaceCalendar() const
{
    int x = m_pCalendar->x();
    if (isRightToLeft())
        x = m_pPeriod->mapToGlobal(QPoint(0, 0)).x() - m_pCalendar->width();
    const QRect room = m_pPeriod->screen()->availableGeometry();
    const int last = room.right() + 1 - m_pCalendar->width();
    m_pCalendar->move(qMax(room.left(), qMin(x, last)), m_pCalendar->y());
}

void DevicePage::OnLanguageChanged()
{
    NameGroups();
    NameFileDialogs();
    ShowStrength();
    if (m_pNewGroup)
        m_pNewGroup->SetToolTip(tr("Enter a name"));
}

/// The groups that are there from the start; the others have the names that the operator gave them.
void DevicePage::NameGroups()
{
    int index = 0;
    for (const QString& name : {tr("Entrances"), tr("Car park"), tr("Warehouse")})
        m_pGroups->setItemText(index++, name);
}

void DevicePage::NameFileDialogs()
{
    m_pCertificate->SetOpenFile(
        tr("Certificate of the device"), QString(), tr("Certificates (*.pem *.crt);;All files (*)"));
    m_pFolder->SetOpenFile(tr("Choose any file of the folder"), QString(), tr("All files (*)"));
}

QWidget* DevicePage::BuildButtons()
{
    auto* row = new QWidget(this);
    row->setMaximumWidth(WidestForm(*row));
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    auto* clear
        = FollowLanguage(new UICommonMdl::WmNoImpPushButton(row), "text", [] { return tr("&Clear"); });
    auto* save = FollowLanguage(
        new UICommonMdl::KvImpPushButton(row), "text", [] { return tr("&Save the device"); });
    layout->addStretch(1);
    layout->addWidget(clear);
    layout->addWidget(save);
    connect(clear, &QPushButton::clicked, this, &DevicePage::Clear);
    connect(save, &QPushButton::clicked, this, &DevicePage::Save);
    return row;
}

void DevicePage::ShowStrength()
{
    const int level = RatePassword(m_pPassword->text());
    m_pStrength->SetStrength(level);
    m_pStrengthText->setText(StrengthName(level));
    m_pStrength->setAccessibleDescription(StrengthName(level));
}

/// The dialog of the edit finds files only; the folder is where the chosen one lies.
void DevicePage::TakeFolderOfFile(const QString& path)
{
    const QFileInfo file(path);
    if (file.isFile())
        m_pFolder->setText(file.absolutePath());
}

bool DevicePage::IsFilled(QLineEdit* edit, const QString& complaint)
{
    if (!edit->text().trimmed().isEmpty())
        return true;
    edit->setFocus();
    CTipLabel::Instance()->ShowTip(complaint, edit, TipSide(*edit));
    return false;
}

bool DevicePage::IsAddressRight()
{
    const auto octets = m_pAddress->findChildren<UICommonMdl::QIpPartLineEdit*>();
    const auto empty = std::find_if(
        octets.begin(), octets.end(), [](const QLineEdit* octet) { return octet->text().isEmpty(); });
    if (empty == octets.end())
        return true;
    const QString complaint = m_pAddress->text().isEmpty() ? tr("Enter the device's address")
                                                           : tr("The address needs four numbers");
    (*empty)->setFocus();
    m_pAddress->showErrorHint(true, complaint, TipSide(*this));
    return false;
}

bool DevicePage::Save()
{
    const bool right = IsFilled(m_pName, tr("Enter a name")) && IsAddressRight()
        && IsFilled(m_pSerial, tr("Enter the serial number"))
        && IsFilled(m_pUser, tr("Enter the user of the device"))
        && IsFilled(m_pPassword, tr("Enter the password"));
    if (!right)
        return false;
    CTipLabel::Instance()->HideTip();
    Q_EMIT SignalReport(tr("%1 at %2 saved in the group %3")
                            .arg(m_pName->text().trimmed(), m_pAddress->text(), m_pGroups->currentText()));
    return true;
}

void DevicePage::Clear()
{
    for (QLineEdit* edit : std::initializer_list<QLineEdit*>{
             m_pName, m_pSerial, m_pUser, m_pPassword, m_pCertificate, m_pFolder})
        edit->clear();
    m_pAddress->clear();
    m_pAddress->showErrorHint(false, QString(), CTipLabel::None);
    m_pGroups->setCurrentIndex(0);
    CTipLabel::Instance()->HideTip();
    const QDate today = QDate::currentDate();
    m_pPeriod->SetSelDate(today.addDays(-6).startOfDay(), QDateTime(today, QTime(23, 59, 59)));
}

void DevicePage::OpenNewGroup()
{
    if (!m_pNewGroup) {
        m_pNewGroup = new UICommonMdl::WmAddGroup(this);
        FollowLanguage(m_pNewGroup, "windowTitle", [] { return tr("New group"); });
        m_pNewGroup->SetToolTip(tr("Enter a name"));
        m_pNewGroup->SetParentGroupID(RootGroup);
        m_pNewGroup->SetIsCloseAfterSave(false); // a name that is there already is typed again
        connect(
            m_pNewGroup, QOverload<qint64, const QString&>::of(&UICommonMdl::WmAddGroup::SignalNewName), this,
            [this](qint64, const QString& name) {
                if (AddGroup(name))
                    m_pNewGroup->CanCloseDialog();
            });
        connect(
            m_pNewGroup, &UICommonMdl::WmAddGroup::SignalSaveAndNew, this,
            [this](qint64, const QString& name) {
                if (AddGroup(name))
                    m_pNewGroup->EmptyEditLine();
            });
    }
    m_pNewGroup->open();
}

bool DevicePage::AddGroup(const QString& name)
{
    if (m_pGroups->findText(name, Qt::MatchFixedString) >= 0) {
        auto* edit = m_pNewGroup->findChild<QLineEdit*>();
        CTipLabel::Instance()->ShowTip(tr("There is such a group already"), edit, TipSide(*edit));
        return false;
    }
    m_pGroups->addItem(name);
    m_pGroups->setCurrentIndex(m_pGroups->count() - 1);
    Q_EMIT SignalReport(tr("Group %1 added").arg(name));
    return true;
}

// not translated: what an operator would have typed
void DevicePage::FillIn()
{
    Clear();
    m_pName->setText(tr("North gate"));
    m_pAddress->settext(QStringLiteral("192.168.20.64"));
    m_pSerial->setText(QStringLiteral("NG-0421-77"));
    m_pUser->setText(QStringLiteral("operator"));
    m_pPassword->setText(QStringLiteral("Wren-4127-oak"));
    m_pFolder->setText(QStringLiteral("/srv/recordings/north-gate"));
    const QDate start(2026, 3, 2);
    m_pPeriod->SetSelDate(start.startOfDay(), QDateTime(start.addDays(11), QTime(18, 30)));
}

QVector<Page::Picture> DevicePage::Pictures()
{
    return {
        {QString(), [this] { FillIn(); }},
        {QStringLiteral("error"),
         [this] {
             FillIn();
             // not translated: what an operator would have typed
             m_pPassword->setText(QStringLiteral("wren"));
             m_pAddress->settext(QStringLiteral("192.168."));
             Save();
         },
         [] { CTipLabel::Instance()->HideTip(); }},
        {QStringLiteral("calendar"),
         [this] {
             FillIn();
             m_pPeriod->click();
         },
         [this] { m_pCalendar->close(); }},
        {QStringLiteral("group"),
         [this] {
             FillIn();
             OpenNewGroup();
         },
         [this] { m_pNewGroup->OnClose(); }}};
}

} // namespace OperatorClient
