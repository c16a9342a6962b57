#pragma once

#include <gallery/Pictures/FrameSource.h>

#include <QImage>

namespace OperatorClient {

/// A picture file, read once. Pictures larger than any wall needs are scaled down while they are read.
class StillPicture : public FrameSource
{
public:
    explicit StillPicture(const QString& path);

    /// Of the files that can be read, for a file dialog: "*.bmp *.gif ...".
    static QString FilePatterns();

    QString Title() const override;
    qint64 FrameNumber(const QDateTime& now) const override;
    bool IsStill() const override { return true; }
    void Paint(QPainter& painter, const QRect& area, const QDateTime& now) override;

private:
    QString m_strPath;
    QString m_strError; ///< why there is no picture; empty when there is one
    QImage m_image;
};

} // namespace OperatorClient
