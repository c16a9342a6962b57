#include <gallery/Wall/WindowDetails.h>

#include <gallery/FollowLanguage.h>
#include <gallery/StartLabel.h>

#include <UI/Dialogs/KvVolumeButton.h>

#include <QFormLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace OperatorClient {

namespace {

QString Percent(double fraction) { return QStringLiteral("%1 %").arg(fraction * 100, 0, 'f', 1); }

QString Pair(double one, double other)
{
    return QStringLiteral("%1 \u00d7 %2").arg(Percent(one), Percent(other));
}

} // namespace

WindowDetails::WindowDetails(QWidget* parent)
    : QWidget(parent)
    , m_pHeading(new StartLabel(this))
    , m_pFacts(new QWidget(this))
{
    m_pHeading->setObjectName(QStringLiteral("detailsHeading"));
    m_pHeading->ShowAsHeading(StartLabel::PanelTitle);
    m_pHeading->setWordWrap(true);
    m_pHeading->setTextFormat(Qt::PlainText);
    auto* form = new QFormLayout(m_pFacts);
    form->setContentsMargins(0, 0, 0, 0);
    form->setVerticalSpacing(8);
    form->setHorizontalSpacing(16);
    // Numbers stand beside their names, also where the layout is mirrored.
    form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    m_pScreen = AddRow([] { return tr("Screen"); });
    m_pWindow = AddRow([] { return tr("Window"); });
    m_pPlace = AddRow([] { return tr("Place"); });
    m_pSize = AddRow([] { return tr("Size"); });
    m_pOrder = AddRow([] { return tr("Order"); });
    AddSoundRow();
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(10, 12, 10, 12);
    all->setSpacing(12);
    all->addWidget(m_pHeading);
    all->addWidget(m_pFacts);
    all->addStretch(1);
}

QLabel* WindowDetails::AddRow(QString (*name)())
{
    auto* label = FollowLanguage(new QLabel(m_pFacts), "text", name);
    label->setObjectName(QStringLiteral("hint"));
    auto* value = new QLabel(m_pFacts);
    value->setTextInteractionFlags(Qt::TextSelectableByMouse);
    FollowLanguage(value, "accessibleName", name);
    static_cast<QFormLayout*>(m_pFacts->layout())->addRow(label, value);
    return value;
}

void WindowDetails::AddSoundRow()
{
    m_pVolume = new UICommonMdl::KvVolumeButton(m_pFacts);
    FollowLanguage(m_pVolume, "toolTip", [] { return tr("Sound of this window"); });
    auto* label = FollowLanguage(new QLabel(m_pFacts), "text", [] { return tr("Sound"); });
    label->setObjectName(QStringLiteral("hint"));
    label->setMinimumHeight(m_pVolume->sizeHint().height());
    static_cast<QFormLayout*>(m_pFacts->layout())->addRow(label, m_pVolume);
    connect(m_pVolume, &UICommonMdl::KvVolumeButton::SignalSoundOpened, this, &WindowDetails::SignalSound);
    connect(
        m_pVolume, &UICommonMdl::KvVolumeButton::SignalVolumeValueChanged, this,
        &WindowDetails::SignalVolume);
}

void WindowDetails::Show(const WindowFacts& facts)
{
    m_pHeading->setText(facts.source);
    m_pScreen->setText(QString::number(facts.screen + 1));
    m_pWindow->setText(QString::number(facts.window + 1));
    m_pPlace->setText(Pair(facts.rect.dLeft, facts.rect.dTop));
    m_pSize->setText(Pair(facts.rect.dRight - facts.rect.dLeft, facts.rect.dBottom - facts.rect.dTop));
    m_pOrder->setText(QString::number(facts.zValue));
    const QSignalBlocker blocker(this); // the volume reports what it is set to
    m_pVolume->SetVolumeState(facts.audible);
    m_pVolume->SetVolumeValue(facts.volume);
    m_pFacts->show();
}

void WindowDetails::ShowCount(int windows)
{
    m_pHeading->setText(tr("%n window(s) selected", nullptr, windows));
    m_pFacts->hide();
}

} // namespace OperatorClient
