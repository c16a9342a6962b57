#include <gallery/Photo/PhotoPage.h>

#include <Platform/BasicUIComponents/KvCheckBox.h>
#include <Platform/BasicUIComponents/KvPushButton.h>
#include <gallery/ElidedLabel.h>
#include <gallery/FollowLanguage.h>
#include <gallery/LastFolders.h>
#include <gallery/OperatorHand.h>
#include <gallery/Photo/PhotoView.h>
#include <gallery/Photo/Visitors.h>
#include <gallery/StartLabel.h>
#include <gallery/StoredText.h>

#include <QApplication>
#include <QDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLocale>
#include <QPointer>
#include <QRegularExpression>
#include <QSpinBox>
#include <QTimer>
#include <QVBoxLayout>

namespace OperatorClient {

namespace {

constexpr int SideWidth = 320;
constexpr int BytesOfKilobyte = 1024;
constexpr int LookInterval = 20; // milliseconds

QString SearchText(Search search)
{
    switch (search) {
    case Search::Vehicle:
        return PhotoPage::tr("vehicle images");
    case Search::Face:
        return PhotoPage::tr("face images");
    case Search::HumanBody:
        return PhotoPage::tr("human body images");
    case Search::None:
        break;
    }
    return PhotoPage::tr("none");
}

QString SizeText(const QSize& size)
{
    return PhotoPage::tr("%1 \u00d7 %2 pixels").arg(size.width()).arg(size.height());
}

/// "bytes width height halve" in numbers.
QString LimitsText(const CutLimits& limits)
{
    return QStringLiteral("%1 %2 %3 %4")
        .arg(limits.bytes)
        .arg(limits.width)
        .arg(limits.height)
        .arg(limits.halve ? 1 : 0);
}

/// Nothing for any other text. Numbers that are too large are the inputs' to bound.
std::optional<CutLimits> LimitsFromText(const QString& text)
{
    static const QRegularExpression form(QStringLiteral("^(\\d{1,9}) (\\d{1,9}) (\\d{1,9}) ([01])$"));
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    const auto number = [&](int part) { return match.captured(part).toInt(); };
    return CutLimits{number(1), number(2), number(3), number(4) == 1};
}

QWidget* FirstCanvas(QDialog* dialog)
{
    return dialog->findChild<QWidget*>(QStringLiteral("canvasContainer"));
}

} // namespace

PhotoPage::PhotoPage(const QString& file, QWidget* parent)
    : Page(parent)
{
    auto* page = new QHBoxLayout(this);
    page->setContentsMargins(24, 20, 24, 20);
    page->setSpacing(24);
    page->addWidget(BuildPhotoSide(), 1);
    auto* side = new QVBoxLayout;
    side->setSpacing(12);
    side->addStrut(SideWidth); // the least; large letters take more
    side->addWidget(BuildLimits());
    side->addWidget(BuildCommands());
    side->addWidget(BuildCut(), 1);
    page->addLayout(side);
    ShowDrawn();
    if (!file.isEmpty())
        OpenFile(file);
}

QString PhotoPage::Title() { return tr("Photo cropping"); }

QWidget* PhotoPage::BuildPhotoSide()
{
    auto* side = new QWidget(this);
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(12);
    auto* title = FollowLanguage(new StartLabel(side), "text", &PhotoPage::Title);
    title->ShowAsHeading(StartLabel::PageTitle);
    m_pPhotoText = new ElidedLabel(side);
    m_pPhotoText->setObjectName(QStringLiteral("hint"));
    m_pPhotoText->setTextFormat(Qt::PlainText); // a file may have any name, of any length
    m_pPhotoText->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto* texts = new QVBoxLayout;
    texts->setSpacing(2);
    texts->addWidget(title);
    texts->addWidget(m_pPhotoText);
    auto* open
        = FollowLanguage(new KvGUI::KvPushButton(side), "text", [] { return tr("&Open a photo\u2026"); });
    auto* drawn = FollowLanguage(new KvGUI::KvPushButton(side), "text", [] { return tr("&Drawn photo"); });
    auto* head = new QHBoxLayout;
    head->setSpacing(8);
    head->addWidget(drawn);
    head->addWidget(open);
    head->addStretch(1);
    m_pView = new PhotoView(side);
    m_pView->setAcceptDrops(true);
    FollowLanguage(m_pView, "toolTip", [] { return tr("Drop a photo here"); });
    column->addLayout(texts);
    column->addLayout(head);
    column->addWidget(m_pView, 1);
    connect(open, &QPushButton::clicked, this, &PhotoPage::AskForFile);
    connect(drawn, &QPushButton::clicked, this, &PhotoPage::ShowDrawn);
    connect(m_pView, &PhotoView::SignalFileDropped, this, [this](const QString& path) {
        LastFolders::Note(FileUse::Photo, path);
        OpenFile(path);
    });
    connect(m_pView, &PhotoView::SignalPictureDropped, this, [this](const QImage& picture) {
        if (!picture.isNull())
            ShowPhoto({tr("Dropped picture"), QString(), picture});
    });
    return side;
}

QSpinBox* PhotoPage::AddLimit(QFormLayout* form, QString (*label)(), int most, int value, QString (*unit)())
{
    auto* box = FollowLanguage(new QSpinBox(this), "suffix", unit);
    box->setRange(0, most);
    FollowLanguage(box, "specialValueText", [] { return tr("no limit"); });
    box->setValue(value);
    AddRowWithText(form, label, box); // the label's text is the box's accessible name, too
    return box;
}

QWidget* PhotoPage::BuildLimits()
{
    auto* group = FollowLanguage(new QGroupBox(this), "title", [] { return tr("Limits of the cut"); });
    auto* column = new QVBoxLayout(group);
    column->setSpacing(8);
    auto* form = new QFormLayout;
    form->setVerticalSpacing(8);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    const auto pixels = [] { return tr(" pixels"); };
    m_pKilobytes = AddLimit(
        form, [] { return tr("&JPEG size"); }, 100000, 60, [] { return tr(" kB"); });
    m_pWidth = AddLimit(
        form, [] { return tr("&Width"); }, 20000, 640, pixels);
    m_pHeight = AddLimit(
        form, [] { return tr("&Height"); }, 20000, 640, pixels);
    m_pHalve = FollowLanguage(
        new KvGUI::KvCheckBox(group), "text", [] { return tr("Hal&ve a cut with more pixels"); });
    m_pHalve->setChecked(true);
    FollowLanguage(m_pHalve, "toolTip", [] { return tr("Otherwise a cut with more pixels is refused"); });
    column->addLayout(form);
    column->addWidget(m_pHalve);
    return group;
}

QWidget* PhotoPage::BuildCommands()
{
    auto* group = FollowLanguage(new QGroupBox(this), "title", [] { return tr("Crop"); });
    auto* column = new QVBoxLayout(group);
    column->setSpacing(8);
    auto* zoom = FollowLanguage(
        new KvGUI::KvPushButton(group), "text", [] { return tr("With handles and &search\u2026"); });
    auto* plain = FollowLanguage(
        new KvGUI::KvPushButton(group), "text", [] { return tr("By a &plain frame\u2026"); });
    FollowLanguage(zoom, "toolTip", [] {
        return tr("Frame a part, move and resize the frame, or search for what is in it");
    });
    FollowLanguage(plain, "toolTip", [] { return tr("Drag a frame over the photo"); });
    column->addWidget(zoom);
    column->addWidget(plain);
    connect(zoom, &QPushButton::clicked, this, &PhotoPage::CropWithZoom);
    connect(plain, &QPushButton::clicked, this, &PhotoPage::CropPlain);
    return group;
}

QWidget* PhotoPage::BuildCut()
{
    auto* group = FollowLanguage(new QGroupBox(this), "title", [] { return tr("Cut"); });
    auto* column = new QVBoxLayout(group);
    column->setSpacing(8);
    m_pCutView = new PhotoView(group);
    m_pCutView->setMinimumHeight(140);
    m_pCutText = new StartLabel(group);
    m_pCutText->setTextFormat(Qt::PlainText);
    m_pCutText->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    FollowLanguage(m_pCutText, "accessibleName", [] { return tr("Facts of the cut"); });
    m_pSave
        = FollowLanguage(new KvGUI::KvPushButton(group), "text", [] { return tr("Save &as JPEG\u2026"); });
    column->addWidget(m_pCutView, 1);
    column->addWidget(m_pCutText);
    column->addWidget(m_pSave);
    connect(m_pSave, &QPushButton::clicked, this, &PhotoPage::SaveCut);
    return group;
}

void PhotoPage::AskForFile()
{
    const QString path = PhotoCrop::AskForFile(this);
    if (!path.isEmpty())
        OpenFile(path);
}

void PhotoPage::OpenFile(const QString& path)
{
    const QImage image = PhotoCrop::Read(path, this);
    if (!image.isNull())
        ShowPhoto({QFileInfo(path).fileName(), path, image});
}

void PhotoPage::ShowDrawn()
{
    ShowPhoto({QString(), QString(), EntrancePhoto()});
    m_bDrawn = true;
    ShowTexts();
}

void PhotoPage::OnLanguageChanged() { ShowTexts(); }

void PhotoPage::ShowPhoto(const Photo& photo)
{
    m_photo = photo;
    m_bDrawn = false;
    m_pView->SetPicture(photo.image);
    ShowCut(std::nullopt);
}

/// The texts that say what is shown, in the present language.
void PhotoPage::ShowTexts()
{
    if (m_bDrawn)
        m_photo.title = tr("Drawn photo of the entrance");
    const QString text = QStringLiteral("%1, %2").arg(m_photo.title, SizeText(m_photo.image.size()));
    m_pPhotoText->setText(text);
    m_pPhotoText->setToolTip(text.toHtmlEscaped());
    m_pView->setAccessibleName(text);
    m_pCutView->SetHint(tr("Crop the photo to see the cut here."));
    m_pCutView->setAccessibleName(m_cut ? tr("The cut") : tr("No cut yet"));
    if (!m_cut)
        return;
    m_pCutText->setText(
        tr("%1\nJPEG of %2 at quality %3\nSearch: %4")
            .arg(
                SizeText(m_cut->image.size()),
                QLocale().formattedDataSize(m_cut->jpeg.size(), 1, QLocale::DataSizeTraditionalFormat),
                QString::number(m_cut->quality), SearchText(m_cut->search)));
}

CutLimits PhotoPage::Limits() const
{
    return {
        m_pKilobytes->value() * BytesOfKilobyte, m_pWidth->value(), m_pHeight->value(),
        m_pHalve->isChecked()};
}

void PhotoPage::ShowLimits(const CutLimits& limits)
{
    m_pKilobytes->setValue(limits.bytes / BytesOfKilobyte);
    m_pWidth->setValue(limits.width);
    m_pHeight->setValue(limits.height);
    m_pHalve->setChecked(limits.halve);
}

void PhotoPage::Remember(const QString& settingsFile)
{
    const StoredText stored(settingsFile, QStringLiteral("Photo"), QStringLiteral("Limits"));
    const QStringList texts = stored.Read();
    for (const QString& text : texts) {
        if (const auto limits = LimitsFromText(text)) {
            ShowLimits(*limits);
            break;
        }
    }
    const auto store = [this, stored] { stored.Write(LimitsText(Limits())); };
    for (QSpinBox* box : {m_pKilobytes, m_pWidth, m_pHeight})
        connect(box, QOverload<int>::of(&QSpinBox::valueChanged), this, store);
    connect(m_pHalve, &QCheckBox::toggled, this, store);
}

void PhotoPage::CropWithZoom()
{
    const QPointer<PhotoPage> guard(this);
    const auto cut = PhotoCrop::WithZoom(
        m_photo, Limits(), [this] { return tr("Crop: %1").arg(m_photo.title); }, this);
    if (guard && cut)
        ShowCut(cut);
}

void PhotoPage::CropPlain()
{
    const QPointer<PhotoPage> guard(this);
    const auto cut = PhotoCrop::Plain(
        m_photo, Limits(), [this] { return tr("Crop: %1").arg(m_photo.title); }, this);
    if (guard && cut)
        ShowCut(cut);
}

void PhotoPage::ShowCut(const std::optional<PhotoCut>& cut)
{
    m_cut = cut;
    m_pSave->setEnabled(cut.has_value());
    m_pCutView->SetPicture(cut ? cut->image : QImage());
    m_pCutText->setVisible(cut.has_value());
    ShowTexts();
    if (cut)
        Q_EMIT SignalReport(tr("The photo was cropped"));
}

void PhotoPage::SaveCut()
{
    if (m_cut)
        PhotoCrop::AskAndSave(PhotoCut(*m_cut), this);
}

QVector<Page::Picture> PhotoPage::Pictures()
{
    const auto drag = [](QDialog* dialog) {
        QWidget* canvas = FirstCanvas(dialog);
        DragOver(
            *canvas, QPoint(canvas->width() * 24 / 100, canvas->height() * 22 / 100),
            QPoint(canvas->width() * 46 / 100, canvas->height() * 74 / 100));
    };
    const auto accept = [drag](QDialog* dialog) {
        drag(dialog);
        QMetaObject::invokeMethod(dialog, "OnBtnOkClicked");
    };
    const auto openMenu = [drag](QDialog* dialog) {
        drag(dialog);
        QWidget* canvas = FirstCanvas(dialog);
        const QPoint corner(canvas->width() * 46 / 100, canvas->height() * 74 / 100);
        QCursor::setPos(canvas->mapToGlobal(corner));
        ClickAt(*canvas, corner);
    };
    const auto refuse = [](QDialog* dialog) { QMetaObject::invokeMethod(dialog, "OnBtnOkClicked"); };
    const auto with = [this](void (PhotoPage::*crop)(), const std::function<void(QDialog*)>& act) {
        return [=] { ShowWithDialog(crop, act); };
    };
    const auto close = [this] { CloseDialogs(); };
    const auto acted = [this] { return m_bActed; };
    return {
        {QString(), [this] { ShowDrawn(); }},
        {QStringLiteral("cut"), with(&PhotoPage::CropWithZoom, accept), [] {}, acted},
        {QStringLiteral("zoom"), with(&PhotoPage::CropWithZoom, drag), close, acted},
        {QStringLiteral("menu"), with(&PhotoPage::CropWithZoom, openMenu), close, acted},
        {QStringLiteral("message"), with(&PhotoPage::CropWithZoom, refuse), close, acted},
        {QStringLiteral("plain"), with(&PhotoPage::CropPlain, drag), close, acted}};
}

void PhotoPage::ShowWithDialog(void (PhotoPage::*crop)(), const std::function<void(QDialog*)>& act)
{
    ShowDrawn();
    m_bActed = false;
    QTimer look;
    connect(&look, &QTimer::timeout, this, [&] {
        auto* dialog = findChild<QDialog*>();
        if (dialog == nullptr || !PhotoCrop::ShowsPicture(*dialog))
            return;
        look.stop();
        m_bActed = true; // a menu holds the next line up as long as it is open
        act(dialog);
    });
    look.start(LookInterval);
    (this->*crop)();
}

void PhotoPage::CloseDialogs()
{
    if (QWidget* menu = QApplication::activePopupWidget())
        menu->close();
    if (auto* dialog = findChild<QDialog*>())
        dialog->reject();
}

} // namespace OperatorClient
