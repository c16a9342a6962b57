#include <UI/CutPhoto/CutPhotoForm.h>

#include <Platform/BasicUIComponents/KvCustomDialog.h>
#include <Platform/BasicUIComponents/KvHorScrollBar.h>
#include <Platform/BasicUIComponents/KvPushButton.h>
#include <Platform/BasicUIComponents/KvVerScrollBar.h>
#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>
#include <UI/CutPhoto/CropFrame.h>

namespace UICommonMdl {

namespace {

constexpr int kHintLeastWidth = 500;
constexpr int kBottomRowFromBelow = 45;
constexpr int kSignLeft = 20;
constexpr int kHintLeft = 42;
constexpr int kSignSize = 18;
constexpr int kBottomItemHeight = 44;
constexpr int kGapBeforeButtons = 12;

static_assert(
    KvGUI::KvDialog::kTitleBarHeight + KvGUI::KvCustomDialog::kButtonBarHeight == kCutPhotoDialogExtraHeight,
    "a container of the dialog's width and three quarters of it, less the bars, needs no scroll bars");

QScrollArea* ScrollAreaAround(QWidget* container, QWidget* parent)
{
    auto* area = new QScrollArea(parent);
    area->setObjectName(QStringLiteral("scrollArea"));
    area->setHorizontalScrollBar(new KvGUI::KvHorScrollBar(area));
    area->setVerticalScrollBar(new KvGUI::KvVerScrollBar(area));
    area->setFrameShape(QFrame::NoFrame);
    area->setAlignment(Qt::AlignCenter);
    area->setLayoutDirection(Qt::LeftToRight); // the bar counts the photo's columns, from the left everywhere
    area->setWidget(container);
    return area;
}

QVBoxLayout* LayoutWithoutGaps(QWidget* widget)
{
    auto* layout = new QVBoxLayout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    return layout;
}

/// A label on the dialog's bottom row: a child of the dialog, because it is placed in its coordinates.
QLabel* BottomItem(QWidget* dialog, const char* name)
{
    auto* label = new QLabel(dialog);
    label->setObjectName(QLatin1String(name));
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    return label;
}

} // namespace

QSize CutPhotoDialogSize(const QSize& canvas)
{
    const int height = canvas.height() + kCutPhotoDialogExtraHeight;
    if (canvas.width() > height)
        return {canvas.width(), canvas.width() * 3 / 4};
    return {height * 4 / 3, height};
}

int FollowedScrollValue(int value, bool forward, int start, int length, int containerLength, int margin)
{
    if (!forward)
        return qMin(value, start);
    return qMax(value, start + length - containerLength + margin);
}

CutPhotoForm BuildCutPhotoForm(KvGUI::KvCustomDialog* dialog, QWidget* canvas)
{
    CutPhotoForm form;
    form.container = new QWidget;
    form.container->setObjectName(QStringLiteral("canvasContainer"));
    form.container->setContextMenuPolicy(Qt::NoContextMenu);
    canvas->setContextMenuPolicy(Qt::NoContextMenu);
    LayoutWithoutGaps(form.container)->addWidget(canvas);
    form.scrollArea = ScrollAreaAround(form.container, dialog->GetCentralWidget());
    LayoutWithoutGaps(dialog->GetCentralWidget())->addWidget(form.scrollArea);

    form.sign = BottomItem(dialog, "hintSign");
    form.sign->resize(kSignSize, kBottomItemHeight);
    form.hint = BottomItem(dialog, "hint");
    form.hint->setWordWrap(true);
    form.hint->setMinimumWidth(kHintLeastWidth);
    // The items stand at the left in every language, so the buttons keep to the right.
    dialog->GetButton(QDialogButtonBox::Ok)->parentWidget()->setLayoutDirection(Qt::LeftToRight);
    return form;
}

void SetCutPhotoResolution(KvGUI::KvCustomDialog* dialog, const CutPhotoForm& form, int width, int height)
{
    const QSize canvas(qBound(0, width, QWIDGETSIZE_MAX), qBound(0, height, QWIDGETSIZE_MAX));
    form.container->resize(canvas);
    const QSize size = CutPhotoDialogSize(canvas);
    dialog->resize(size);
    form.sign->move(kSignLeft, size.height() - kBottomRowFromBelow);
    form.hint->move(kHintLeft, size.height() - kBottomRowFromBelow);
    FitCutPhotoHint(dialog, form);
}

void FitCutPhotoHint(const KvGUI::KvCustomDialog* dialog, const CutPhotoForm& form)
{
    int buttons = kGapBeforeButtons;
    for (const int value : {QDialogButtonBox::Ok, QDialogButtonBox::Cancel}) {
        if (const KvGUI::KvPushButton* button = dialog->GetButton(value))
            buttons += button->sizeHint().width() + kGapBeforeButtons;
    }
    const int room = dialog->width() - buttons - kHintLeft;
    form.sign->setVisible(room >= kHintLeastWidth);
    form.hint->setVisible(room >= kHintLeastWidth);
    form.hint->resize(qMax(room, kHintLeastWidth), kBottomItemHeight);
}

void FollowCutRect(const CutPhotoForm& form, const QRect& rcCut, bool bAddX, bool bAddY)
{
    const QRect cut = CropFrame::Bounded(rcCut);
    QScrollBar* horizontal = form.scrollArea->horizontalScrollBar();
    QScrollBar* vertical = form.scrollArea->verticalScrollBar();
    // Each bar keeps free what it is thick itself, across: the height and the width stand as they are.
    horizontal->setValue(FollowedScrollValue(
        horizontal->value(), bAddX, cut.x(), cut.width(), form.container->width(), horizontal->height()));
    vertical->setValue(FollowedScrollValue(
        vertical->value(), bAddY, cut.y(), cut.height(), form.container->height(), vertical->width()));
}

} // namespace UICommonMdl
