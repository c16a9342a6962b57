#include <UI/CutPhoto/TipBubble.h>

#include <QHBoxLayout>
#include <QLabel>

namespace UICommonMdl {

namespace {

constexpr int kHeight = 32;
constexpr int kLeft = 14;
constexpr int kSign = 18;
constexpr int kGap = 10;
constexpr int kRight = 20;
constexpr int kBesideTheText = kLeft + kSign + kGap + kRight;
static_assert(kBesideTheText == 62, "the width of a bubble is the text's and 62 pixels");

} // namespace

QLabel* BuildTipBubble(QWidget* bubble)
{
    bubble->setAttribute(Qt::WA_StyledBackground);
    // A drag may begin below the bubble.
    bubble->setAttribute(Qt::WA_TransparentForMouseEvents);
    auto* sign = new QLabel(bubble);
    sign->setObjectName(QStringLiteral("tipSign"));
    sign->setFixedSize(kSign, kSign);
    auto* text = new QLabel(bubble);
    text->setObjectName(QStringLiteral("tipText"));
    text->setTextFormat(Qt::PlainText);
    text->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto* layout = new QHBoxLayout(bubble);
    layout->setContentsMargins(kLeft, 0, kRight, 0);
    layout->setSpacing(kGap);
    layout->addWidget(sign);
    layout->addWidget(text, 1);
    bubble->resize(bubble->width(), kHeight);
    return text;
}

void SetTipBubbleText(QWidget* bubble, QLabel* label, const QString& text)
{
    label->setText(text);
    label->ensurePolished(); // the font may come from the sheet
    bubble->resize(label->fontMetrics().horizontalAdvance(text) + kBesideTheText, bubble->height());
}

} // namespace UICommonMdl
