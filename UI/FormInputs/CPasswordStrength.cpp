#include <UI/FormInputs/CPasswordStrength.h>

#include <Common/QCommon.h>
#include <Common/SkinPicture.h>
#include <Platform/BasicUIComponents/KvSkinNotifier.h>
#include <Platform/BasicUIComponents/KvTranslatedText.h>
#include <QGuiApplication>
#include <QPainter>
#include <QStyle>

namespace UICommonMdl {

CPasswordStrength::CPasswordStrength(QWidget* parent)
    : QFrame(parent)
{
    LoadPictures();
    new KvGUI::KvTranslatedText(this, "accessibleName", [] { return tr("Password strength"); });
    connect(
        KvGUI::KvSkinNotifier::Instance(), &KvGUI::KvSkinNotifier::SignalSkinChanged, this,
        &CPasswordStrength::LoadPictures);
}

void CPasswordStrength::LoadPictures()
{
    const QString folder = XCM::GetSkinPath(QStringLiteral("UICommonModule/PasswordStrength"), QString());
    const auto picture = [&](const char* name) {
        return SkinPicture(folder + QLatin1String(name), qApp->devicePixelRatio());
    };
    m_background = picture("keystrength-bg");
    m_level1 = picture("keystrength-1");
    m_level2 = picture("keystrength-2");
    m_level3 = picture("keystrength-3");
    updateGeometry();
    update();
}

void CPasswordStrength::SetStrength(int level)
{
    m_iStrength = level;
    style()->polish(this);
    update(); // polishing repaints only where a sheet makes a difference between the levels
}

int CPasswordStrength::GetStrength() const { return m_iStrength; }

QSize CPasswordStrength::sizeHint() const { return LogicalSize(m_background); }

const QPixmap& CPasswordStrength::LevelPicture() const
{
    if (m_iStrength >= 3)
        return m_level3;
    return m_iStrength == 2 ? m_level2 : m_level1;
}

void CPasswordStrength::paintEvent(QPaintEvent*)
{
    if (m_iStrength <= 0)
        return;
    QPainter painter(this);
    if (isRightToLeft()) { // grows from the right
        painter.translate(width(), 0);
        painter.scale(-1, 1);
    }
    painter.drawPixmap(0, (height() - LogicalSize(m_background).height()) / 2, m_background);
    // All levels stand where the first one does.
    painter.drawPixmap(0, (height() - LogicalSize(m_level1).height()) / 2, LevelPicture());
}

} // namespace UICommonMdl
