#pragma once

#include <QProxyStyle>
#include <QString>

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

} // namespace UICommonMdl
