#include <gallery/SideBar.h>

#include <Platform/BasicUIComponents/KvMenu.h>
#include <Platform/BasicUIComponents/KvSkin.h>
#include <Platform/BasicUIComponents/KvSkinNotifier.h>
#include <gallery/Language.h>
#include <gallery/SkinIcon.h>

#include <QAction>
#include <QActionGroup>
#include <QEvent>
#include <QKeySequence>
#include <QListWidget>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

namespace OperatorClient {

namespace {

constexpr int SmallestWidth = 160; // pixels
constexpr int FootMargin = 8; // pixels
constexpr int PagesWithShortcut = 9;
constexpr QSize IconSize(20, 20);
constexpr QSize FootIconSize(28, 20); // with room at both sides of the drawing, as the list leaves it
constexpr int NameRole = Qt::UserRole;

bool IsDark() { return KvGUI::GetSkinVersion() == QLatin1String("Black"); }

/// Of the skin that the switch leads to.
QString SkinSwitchIcon() { return IsDark() ? QStringLiteral("SkinLight") : QStringLiteral("SkinDark"); }

QIcon Icon(const QString& name) { return SkinIcon(QStringLiteral("Pages"), name); }

} // namespace

SideBar::SideBar(QWidget* parent)
    : QWidget(parent)
    , m_pList(new QListWidget(this))
    , m_pFoot(new QVBoxLayout)
    , m_pSkin(new QAction(this))
    , m_pLanguage(new QAction(this))
{
    setObjectName(QStringLiteral("sideBar"));
    setAttribute(Qt::WA_StyledBackground);
    m_pList->setObjectName(QStringLiteral("pageList"));
    m_pList->setIconSize(IconSize);
    m_pList->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(1, 0, 1, FootMargin); // beside the list is the bar's line
    all->setSpacing(2);
    all->addWidget(m_pList, 1);
    m_pFoot->setContentsMargins(FootMargin, 0, FootMargin, 0);
    m_pFoot->setSpacing(2);
    all->addLayout(m_pFoot);

    m_pSkin->setShortcut(QKeySequence(Qt::CTRL + Qt::Key_K));
    m_pSkin->setShortcutContext(Qt::ApplicationShortcut);
    addAction(m_pSkin);
    ShowTexts();
    AddFootButton(m_pSkin, SkinSwitchIcon());
    AddLanguages();
    m_pList->installEventFilter(this);
    connect(m_pSkin, &QAction::triggered, this, &SideBar::ChangeSkin);
    connect(m_pList, &QListWidget::currentRowChanged, this, &SideBar::SignalPageChosen);
    connect(KvGUI::KvSkinNotifier::Instance(), &KvGUI::KvSkinNotifier::SignalSkinChanged, this, [this] {
        ShowTexts();
        LoadIcons();
    });
}

QToolButton* SideBar::AddFootButton(QAction* action, const QString& icon)
{
    action->setData(icon);
    action->setIcon(Icon(icon));
    m_footActions.append(action);
    auto* button = new QToolButton(this);
    button->setIconSize(FootIconSize);
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    button->setFocusPolicy(Qt::StrongFocus); // tool buttons leave the Tab key out
    button->setDefaultAction(action);
    m_pFoot->addWidget(button);
    FitWidth();
    return button;
}

void SideBar::AddLanguages()
{
    auto* menu = new KvGUI::KvMenu(this);
    auto* group = new QActionGroup(menu);
    const QStringList names = Language::Names();
    for (const QString& name : names) {
        QAction* action = menu->addAction(
            Language::OwnName(name), this, [this, name] { Q_EMIT SignalLanguageWanted(name); });
        action->setData(name);
        action->setCheckable(true);
        group->addAction(action);
    }
    m_pLanguage->setMenu(menu);
    AddFootButton(m_pLanguage, QStringLiteral("Language"))->setPopupMode(QToolButton::InstantPopup);
}

void SideBar::ShowLanguage(const QString& name)
{
    const QList<QAction*> actions = m_pLanguage->menu()->actions();
    for (QAction* action : actions)
        action->setChecked(action->data().toString() == name);
    m_pLanguage->setText(Language::OwnName(name));
    FitWidth();
}

QKeySequence SideBar::Shortcut(int index)
{
    return index < PagesWithShortcut ? QKeySequence(int(Qt::ALT) + int(Qt::Key_1) + index) : QKeySequence();
}

void SideBar::AddPage(const QString& name, const QString& title)
{
    auto* item = new QListWidgetItem(m_pList);
    item->setData(NameRole, name);
    item->setIcon(Icon(name));
    SetTitle(m_pList->count() - 1, title);
}

void SideBar::SetTitle(int index, const QString& title)
{
    QListWidgetItem* item = m_pList->item(index);
    if (item == nullptr)
        return;
    item->setText(title);
    const QString shortcut = Shortcut(index).toString(QKeySequence::NativeText);
    item->setToolTip(shortcut.isEmpty() ? title : QStringLiteral("%1 (%2)").arg(title, shortcut));
    FitWidth();
}

int SideBar::CurrentPage() const { return m_pList->currentRow(); }

void SideBar::SetCurrentPage(int index) { m_pList->setCurrentRow(index); }

void SideBar::FocusPages() { m_pList->setFocus(Qt::ShortcutFocusReason); }

void SideBar::ChangeSkin()
{
    KvGUI::SetSkinVersion(IsDark() ? QStringLiteral("White") : QStringLiteral("Black"));
}

void SideBar::ShowTexts()
{
    m_pList->setAccessibleName(tr("Pages"));
    m_pLanguage->setToolTip(tr("Language"));
    m_pSkin->setText(IsDark() ? tr("Light skin") : tr("Dark skin"));
    m_pSkin->setToolTip(tr("Change between the dark and the light skin (%1)")
                            .arg(m_pSkin->shortcut().toString(QKeySequence::NativeText)));
    FitWidth();
}

void SideBar::LoadIcons()
{
    for (int row = 0; row < m_pList->count(); ++row)
        m_pList->item(row)->setIcon(Icon(m_pList->item(row)->data(NameRole).toString()));
    m_pSkin->setData(SkinSwitchIcon());
    for (QAction* action : qAsConst(m_footActions))
        action->setIcon(Icon(action->data().toString()));
    FitWidth();
}

/// As wide as the longest text, which is another one in each language and font. Before it is shown, its font
/// is not the one of the window's sheet.
void SideBar::FitWidth()
{
    if (!m_pList->isVisible())
        return;
    const int frame = m_pList->width() - m_pList->viewport()->width() + 2; // and the bar's lines
    setFixedWidth(
        std::max({SmallestWidth, m_pList->sizeHintForColumn(0) + frame, m_pFoot->minimumSize().width()}));
}

void SideBar::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        ShowTexts();
}

bool SideBar::eventFilter(QObject* watched, QEvent* event)
{
    const QEvent::Type type = event->type();
    if (type == QEvent::Show || type == QEvent::StyleChange || type == QEvent::FontChange)
        FitWidth();
    return QWidget::eventFilter(watched, event);
}

} // namespace OperatorClient
