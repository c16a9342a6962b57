#include <gallery/Photo/RecordPage.h>

#include <Platform/BasicUIComponents/KvCustomDialog.h>
#include <Platform/BasicUIComponents/KvLineEdit.h>
#include <Platform/BasicUIComponents/KvMenu.h>
#include <Platform/BasicUIComponents/KvMessageNotify.h>
#include <Platform/BasicUIComponents/KvPushButton.h>
#include <UI/FormInputs/CRequiredEdit.h>
#include <UI/FormInputs/KvImpPushButton.h>
#include <UI/PersonImage/WmPersonImage.h>
#include <gallery/FollowLanguage.h>
#include <gallery/Photo/Visitors.h>
#include <gallery/Pictures/PictureFit.h>
#include <gallery/StartLabel.h>

#include <QBuffer>
#include <QFileInfo>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPainter>
#include <QPointer>
#include <QVBoxLayout>

namespace OperatorClient {

namespace {

const QSize PanelSize(240, 320);
constexpr int FormWidth = 420;
constexpr int SnapQuality = 90;
constexpr int AvatarCaption = 1;
constexpr int FaceCaption = 2;
const CutLimits RecordLimits{100 * 1024, 480, 640, true};

struct Card
{
    const char* name;
    const char* number;
    const char* department;
};

const Card Cards[] = {
    {QT_TRANSLATE_NOOP("OperatorClient::RecordPage", "Ada Vermeer"), "4021 7730",
     QT_TRANSLATE_NOOP("OperatorClient::RecordPage", "Visitor of the archive")},
    {QT_TRANSLATE_NOOP("OperatorClient::RecordPage", "Milan Okafor"), "4021 7731",
     QT_TRANSLATE_NOOP("OperatorClient::RecordPage", "Maintenance")},
    {QT_TRANSLATE_NOOP("OperatorClient::RecordPage", "Greta Lindqvist"), "4021 7732",
     QT_TRANSLATE_NOOP("OperatorClient::RecordPage", "Accounting")},
    {QT_TRANSLATE_NOOP("OperatorClient::RecordPage", "Samuel Adeyemi"), "4021 7733",
     QT_TRANSLATE_NOOP("OperatorClient::RecordPage", "Logistics")},
};

QByteArray JpegOf(const QImage& image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPG", SnapQuality);
    return bytes;
}

/// The picture cut to the shape of @p size, at the density of the display.
QPixmap Filling(const QImage& image, const QSize& size, double pixelRatio)
{
    QPixmap pixmap(size * pixelRatio);
    pixmap.setDevicePixelRatio(pixelRatio);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(FillOver(image.size(), QRect(QPoint(), size)), image);
    return pixmap;
}

void Tell(const QString& text, QWidget* parent)
{
    KvGUI::KvMessageNotify::Instance()->AddTextNotification(text, parent);
}

} // namespace

RecordPage::RecordPage(const QString& folder, QWidget* parent)
    : Page(parent)
    , m_file(folder)
{
    auto* title = FollowLanguage(new StartLabel(this), "text", &RecordPage::Title);
    title->ShowAsHeading(StartLabel::PageTitle);
    auto* hint = FollowLanguage(new StartLabel(this), "text", [] {
        return tr("Point at the picture for its buttons, or use the menu below it. "
                  "Pictures are cropped and kept below 100 kB.");
    });
    hint->setObjectName(QStringLiteral("hint"));
    hint->setWordWrap(true);
    auto* columns = new QHBoxLayout;
    columns->setSpacing(24);
    columns->addWidget(BuildPhoto(), 0, Qt::AlignTop);
    columns->addWidget(BuildForm(), 0, Qt::AlignTop);
    columns->addStretch(1);
    auto* page = new QVBoxLayout(this);
    page->setContentsMargins(24, 20, 24, 20);
    page->setSpacing(2);
    page->addWidget(title);
    page->addWidget(hint);
    page->addSpacing(16);
    page->addLayout(columns);
    page->addStretch(1);
    ConnectPanel();
    ResetRecord();
}

QString RecordPage::Title() { return tr("Person record"); }

QWidget* RecordPage::BuildPhoto()
{
    auto* side = new QWidget(this);
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(8);
    m_pPanel = new UICommonMdl::WmPersonImage(side);
    m_pPanel->setFixedSize(PanelSize);
    m_pPanel->setAlignment(Qt::AlignCenter);
    m_pMenu = new KvGUI::KvMenu(side);
    AddPictureAction([] { return tr("&Upload a photo\u2026"); }, &RecordPage::UploadPicture);
    AddPictureAction([] { return tr("&Crop the camera's picture\u2026"); }, &RecordPage::CapturePicture);
    AddPictureAction([] { return tr("&Take a picture of the visitor"); }, &RecordPage::SnapVisitor);
    AddPictureAction([] { return tr("&Read an ID card"); }, &RecordPage::ReadCard);
    m_pMenu->addSeparator();
    AddPictureAction([] { return tr("&Delete the picture\u2026"); }, &RecordPage::DeletePicture);
    m_pDelete = m_pMenu->actions().constLast();
    m_pTurn = m_pMenu->addAction(QString(), this, &RecordPage::TurnPage);
    m_pMenuButton = FollowLanguage(new KvGUI::KvPushButton(side), "text", [] { return tr("&Picture"); });
    m_pMenuButton->setMenu(m_pMenu);
    column->addWidget(m_pPanel);
    column->addWidget(m_pMenuButton);
    return side;
}

void RecordPage::AddPictureAction(QString (*text)(), void (RecordPage::*act)())
{
    FollowLanguage(m_pMenu->addAction(QString(), this, act), "text", text);
}

void RecordPage::OnLanguageChanged() { ShowTexts(); }

void RecordPage::ConnectPanel()
{
    using Panel = UICommonMdl::WmPersonImage;
    connect(m_pPanel, &Panel::SignalClickUploadPicBtn, this, &RecordPage::UploadPicture);
    connect(m_pPanel, &Panel::SignalCameraBtnClick, this, &RecordPage::CapturePicture);
    connect(m_pPanel, &Panel::SignalVistorSnapBtnClick, this, &RecordPage::SnapVisitor);
    connect(m_pPanel, &Panel::SignalIDCardBtnClick, this, &RecordPage::ReadCard);
    connect(m_pPanel, &Panel::SignalDeleteBtnClick, this, &RecordPage::DeletePicture);
    connect(m_pPanel, &Panel::SignalTurnPageBtnClick, this, &RecordPage::TurnPage);
}

QWidget* RecordPage::BuildForm()
{
    auto* group = FollowLanguage(new QGroupBox(this), "title", [] { return tr("Person"); });
    group->setFixedWidth(FormWidth);
    m_pName = new UICommonMdl::CRequiredEdit(group);
    m_pCard = new KvGUI::KvLineEdit(group);
    m_pDepartment = new KvGUI::KvLineEdit(group);
    auto* form = new QFormLayout;
    form->setVerticalSpacing(10);
    AddRowWithText(
        form, [] { return tr("&Name"); }, m_pName);
    AddRowWithText(
        form, [] { return tr("&ID card"); }, m_pCard);
    AddRowWithText(
        form, [] { return tr("Depart&ment"); }, m_pDepartment);
    auto* reset = FollowLanguage(new KvGUI::KvPushButton(group), "text", [] { return tr("R&eset"); });
    auto* save = FollowLanguage(
        new UICommonMdl::KvImpPushButton(group), "text", [] { return tr("&Save the record"); });
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(8);
    buttons->addStretch(1);
    buttons->addWidget(reset);
    buttons->addWidget(save);
    auto* column = new QVBoxLayout(group);
    column->setSpacing(16);
    column->addLayout(form);
    column->addLayout(buttons);
    connect(save, &QPushButton::clicked, this, &RecordPage::SaveRecord);
    for (QLineEdit* edit : std::initializer_list<QLineEdit*>{m_pName, m_pCard, m_pDepartment})
        connect(edit, &QLineEdit::returnPressed, this, &RecordPage::SaveRecord);
    connect(reset, &QPushButton::clicked, this, &RecordPage::ResetRecord);
    return group;
}

void RecordPage::UploadPicture()
{
    const QString path = PhotoCrop::AskForFile(this);
    const QImage image = path.isEmpty() ? QImage() : PhotoCrop::Read(path, this);
    if (image.isNull())
        return;
    const QPointer<RecordPage> guard(this);
    const auto cut = PhotoCrop::WithZoom(
        {QFileInfo(path).fileName(), path, image}, RecordLimits, [] { return tr("Person's picture"); }, this);
    if (guard && cut)
        SetPicture(cut->jpeg);
}

void RecordPage::CapturePicture()
{
    const QPointer<RecordPage> guard(this);
    const auto cut = PhotoCrop::Plain(
        {tr("Entrance camera"), QString(), EntrancePhoto()}, RecordLimits,
        [] { return tr("Entrance camera"); }, this);
    if (guard && cut)
        SetPicture(cut->jpeg);
}

void RecordPage::SnapVisitor() { SetPicture(JpegOf(Portrait(++m_iVisitor))); }

void RecordPage::ReadCard()
{
    ++m_iVisitor;
    const Card& card = Cards[(m_iVisitor - 1) % VisitorCount()];
    m_pName->setText(tr(card.name));
    m_pCard->setText(QLatin1String(card.number));
    m_pDepartment->setText(tr(card.department));
    SetPicture(JpegOf(Portrait(m_iVisitor)));
    Tell(tr("The card was read."), this);
}

void RecordPage::DeletePicture()
{
    const QPointer<KvGUI::KvCustomDialog> dialog(new KvGUI::KvCustomDialog(this));
    FollowLanguage(dialog.data(), "windowTitle", [] { return tr("Delete the picture"); });
    FollowLanguage(dialog->GetButton(QDialogButtonBox::Ok), "text", [] { return tr("&Delete"); });
    auto* layout = new QVBoxLayout(dialog->GetCentralWidget());
    layout->setContentsMargins(20, 20, 20, 20);
    layout->addWidget(FollowLanguage(new StartLabel(dialog->GetCentralWidget()), "text", [] {
        return tr("Delete this picture from the record?");
    }));
    connect(dialog, &KvGUI::KvCustomDialog::SignalOkButtonClicked, dialog, &QDialog::accept);
    connect(dialog, &KvGUI::KvCustomDialog::SignalCancelButtonClicked, dialog, &QDialog::reject);
    dialog->resize(360, 1);
    const bool confirmed = dialog->exec() == QDialog::Accepted;
    if (dialog.isNull())
        return;
    delete dialog;
    if (confirmed)
        SetPicture(QByteArray());
}

void RecordPage::TurnPage()
{
    m_iPage = m_iPage == PersonRecord::Avatar ? PersonRecord::Face : PersonRecord::Avatar;
    ShowPicture();
    m_pPanel->RefreshUIButton();
    m_pPanel->SetPhotoBtnVisible(m_pPanel->underMouse());
}

void RecordPage::SaveRecord()
{
    m_record.name = m_pName->text().trimmed();
    m_record.card = m_pCard->text().trimmed();
    m_record.department = m_pDepartment->text().trimmed();
    if (m_record.name.isEmpty()) {
        Tell(tr("A record needs a name."), this);
        m_pName->setFocus();
        return;
    }
    Tell(m_file.Write(m_record) ? tr("The record was saved.") : tr("The record cannot be written."), this);
}

void RecordPage::ResetRecord()
{
    m_iPage = PersonRecord::Avatar;
    m_pPanel->ResetUI();
    Show(m_file.Read());
}

void RecordPage::Show(const PersonRecord& record)
{
    m_record = record;
    m_pName->setText(record.name);
    m_pCard->setText(record.card);
    m_pDepartment->setText(record.department);
    ShowPicture();
}

QByteArray& RecordPage::PresentPicture() { return m_record.pictures.at(std::size_t(m_iPage)); }

void RecordPage::SetPicture(const QByteArray& jpeg)
{
    PresentPicture() = jpeg;
    ShowPicture();
}

void RecordPage::ShowPicture()
{
    const QImage image = QImage::fromData(PresentPicture());
    const bool avatar = m_iPage == PersonRecord::Avatar;
    m_pPanel->clear();
    if (!image.isNull())
        m_pPanel->setPixmap(Filling(image, PanelSize - QSize(2, 2), devicePixelRatioF()));
    m_pDelete->setEnabled(!image.isNull());
    m_pPanel->SetShowDeleteButton(!image.isNull());
    m_pPanel->SetShowAvatarOrFaceLabel(true, avatar ? AvatarCaption : FaceCaption);
    m_pPanel->SetPhotoBtnVisible(m_pPanel->underMouse());
    ShowTexts();
}

void RecordPage::ShowTexts()
{
    const bool avatar = m_iPage == PersonRecord::Avatar;
    const bool none = PresentPicture().isEmpty();
    const QString page = avatar ? tr("Avatar") : tr("Face");
    m_pPanel->setAccessibleName(none ? tr("%1, no picture").arg(page) : page);
    if (none)
        m_pPanel->setText(tr("No picture"));
    m_pTurn->setText(avatar ? tr("&Next picture") : tr("&Previous picture"));
}

QVector<Page::Picture> RecordPage::Pictures()
{
    const auto pin = [this](bool on) { m_pPanel->SetPhotoBtnAlwaysShow(on); };
    return {
        {QString(), [this] { ShowVisitor(1); }},
        {QStringLiteral("buttons"),
         [=] {
             ShowVisitor(1);
             pin(true);
         },
         [=] { pin(false); }},
        {QStringLiteral("empty"), [this] { ResetRecord(); }},
        {QStringLiteral("menu"),
         [this] {
             ShowVisitor(2);
             const int x = isRightToLeft() ? m_pMenuButton->width() - m_pMenu->sizeHint().width() : 0;
             m_pMenu->popup(m_pMenuButton->mapToGlobal(QPoint(x, m_pMenuButton->height())));
             m_pMenu->setActiveAction(m_pMenu->actions().constFirst());
         },
         [this] { m_pMenu->close(); }},
        {QStringLiteral("delete"),
         [this] {
             ShowVisitor(1);
             DeletePicture();
         },
         [this] { CloseDialog(); }}};
}

void RecordPage::ShowVisitor(int number)
{
    m_iVisitor = number - 1;
    m_iPage = PersonRecord::Avatar;
    m_pPanel->ResetUI();
    ReadCard();
    KvGUI::KvMessageNotify::Instance()->CloseAll();
}

void RecordPage::CloseDialog()
{
    if (auto* dialog = findChild<QDialog*>())
        dialog->reject();
}

} // namespace OperatorClient
