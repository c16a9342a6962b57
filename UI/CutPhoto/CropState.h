#pragma once

#include "CropPicture.h"

#include <QPixmap>
#include <QRect>
#include <QString>

class QWidget;

namespace UICommonMdl {

/// What both crop canvases keep: the picture, how and where it is shown, the frame and the limits of the cut.
struct CropState
{
    CutImageInfo cutInfo;
    QPixmap display; ///< the picture stretched over the widget, as it is painted
    QSize displaySize = QSize(0, 0); ///< of the stretched picture in the widget; 0 x 0 when there is none
    QRect photo = QRect(0, 0, 0, 0); ///< its place in the widget
    QRect crop = QRect(0, 0, 0, 0); ///< the frame, in the widget
    CropPicture::Limits limits;
    int compressRatio = 100;

    /// The picture in the file @p path, for ShowSource(); null when it cannot be read. Clears cutInfo.
    QImage ReadSource(const QString& path);

    /// Makes @p image the picture of cutInfo, which has no path then, and stretches it over @p canvas.
    void ShowSource(const QImage& image, const QWidget& canvas);

    /// Puts the photo into the middle of a widget of @p widget pixels; nothing without a picture.
    void CalculationPhotoRect(const QSize& widget);

    /// Whether @p canvas is covered by opaque pixels of the photo.
    bool Covers(const QWidget& canvas) const;

    /// Checks the frame against the limits. A valid cut becomes the picture of cutInfo; what is wrong is
    /// told to the operator by a notification in the window of @p canvas.
    bool IsCutPhotoVaildWithNotify(QWidget* canvas);
};

} // namespace UICommonMdl
