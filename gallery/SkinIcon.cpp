#include <gallery/SkinIcon.h>

#include <Common/CommonFun.h>

#include <QFile>
#include <QIconEngine>
#include <QPainter>

namespace OperatorClient {

namespace {

constexpr qreal DisabledOpacity = 0.35;

/// Paints an icon in its own colours in every mode, only fainter when disabled. Qt would mix the disabled
/// icon from the desktop's palette: on a light desktop, the icons of a dark skin would stay as they are.
class SkinIconEngine final : public QIconEngine
{
public:
    explicit SkinIconEngine(const QIcon& icon)
        : m_icon(icon)
    { }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        const qreal opacity = painter->opacity();
        if (mode == QIcon::Disabled)
            painter->setOpacity(opacity * DisabledOpacity);
        m_icon.paint(painter, rect);
        painter->setOpacity(opacity);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, pixmap.rect(), mode, state);
        return pixmap;
    }

    QIconEngine* clone() const override { return new SkinIconEngine(m_icon); }

private:
    QIcon m_icon;
};

} // namespace

QIcon SkinIcon(const QString& folder, const QString& name)
{
    const QString path = UICommonMdl::CommonFun::GetSkinPath(
        QStringLiteral("OperatorClient"), QStringLiteral("%1/%2.svg").arg(folder, name));
    return QFile::exists(path) ? QIcon(new SkinIconEngine(QIcon(path))) : QIcon();
}

} // namespace OperatorClient
