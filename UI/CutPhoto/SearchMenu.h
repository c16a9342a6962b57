#pragma once

#include <QProxyStyle>
#include <QString>
#include <QWidget>

namespace UICommonMdl {

/// Style sheet of the search menu in the product @p application: how the chosen item looks. Empty for a
/// product that is not known.
QString SearchMenuStyle(const QString& application);

/// The application's style with menu icons of 20 x 20 pixels, which the search menu's pictures are drawn for.
class SearchMenuIcons : public QProxyStyle
{
    Q_OBJECT

public:
    explicit SearchMenuIcons(QObject* parent);

    int pixelMetric(PixelMetric metric, const QStyleOption* option = nullptr, const QWidget* widget = nullptr)
        const override;
};

/// Tells whether Escape closed a menu. The release of the key then comes to the widget behind it, which must
/// not take it for an Escape of its own.
class EscapeWatch : public QObject
{
    Q_OBJECT

public:
    explicit EscapeWatch(QWidget& menu);

    bool WasPressed() const { return m_bPressed; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool m_bPressed = false;
};

} // namespace UICommonMdl
