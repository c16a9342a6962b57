#include "CropState.h"

#include "CropPainting.h"

#include <Platform/BasicUIComponents/KvMessageNotify.h>

#include <QCoreApplication>
#include <QWidget>

namespace UICommonMdl {

namespace {

/// What the operator is told; empty where nothing is said.
QString Message(CropPicture::Verdict verdict, const QSize& maximum)
{
    if (verdict == CropPicture::Verdict::NoArea)
        return QCoreApplication::translate("UICommonMdl::CropState", "Please select a valid area to cut.");
    if (verdict == CropPicture::Verdict::TooManyPixels)
        return QCoreApplication::translate(
                   "UICommonMdl::CropState", "Picture size exceeds the upper limit of %1 * %2.")
            .arg(maximum.width(), 0, 10, QLatin1Char(' '))
            .arg(maximum.height(), 0, 10, QLatin1Char(' '));
    return QString();
}

} // namespace

QImage CropState::ReadSource(const QString& path)
{
    cutInfo.Clear();
    return CropPicture::ReadPicture(path);
}

void CropState::ShowSource(const QImage& image, const QWidget& canvas)
{
    cutInfo.image = image;
    cutInfo.bHasImage = true;
    cutInfo.strFilePath.clear();
    display = CropPainting::Stretched(image, canvas.size(), canvas.devicePixelRatioF());
    displaySize = display.isNull() ? QSize(0, 0) : canvas.size();
    CalculationPhotoRect(canvas.size());
}

void CropState::CalculationPhotoRect(const QSize& widget)
{
    if (!displaySize.isEmpty())
        photo = CropPicture::PhotoRect(widget, displaySize);
}

bool CropState::Covers(const QWidget& canvas) const
{
    return !display.isNull() && !display.hasAlphaChannel() && photo.contains(canvas.rect());
}

bool CropState::IsCutPhotoVaildWithNotify(QWidget* canvas)
{
    const CropPicture::CheckedCut cut = CropPicture::CheckCut(cutInfo, crop, photo, displaySize, limits);
    compressRatio = cut.compressRatio.value_or(compressRatio);
    if (cut.verdict == CropPicture::Verdict::Valid) {
        cutInfo.image = cut.image;
        return true;
    }
    KvGUI::KvMessageNotify::Instance()->AddTextNotification(
        Message(cut.verdict, limits.maximum.expandedTo(QSize(0, 0))), canvas);
    return false;
}

} // namespace UICommonMdl
