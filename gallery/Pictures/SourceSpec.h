#pragma once

#include <QString>

namespace OperatorClient {

/// What a window shows: one of the drawn cameras, a picture file or a video file. A plain value that fits
/// into one line of text.
struct SourceSpec
{
    enum class Kind
    {
        Camera,
        Photo,
        Video
    };

    static constexpr int MaxCamera = 999;

    Kind kind = Kind::Camera;
    int camera = 1; ///< 1 to MaxCamera, for cameras only
    QString path; ///< for files only

    static SourceSpec Camera(int number); ///< the number is brought into 1 ... MaxCamera
    static SourceSpec Photo(const QString& path);
    static SourceSpec Video(const QString& path);

    /// "camera:3", "photo:/a/b.jpg" or "video:/a/b.avi".
    QString ToText() const;
    /// The reverse; a text that says nothing sensible gives camera 1.
    static SourceSpec FromText(const QString& text);
};

bool operator==(const SourceSpec& one, const SourceSpec& other);
bool operator!=(const SourceSpec& one, const SourceSpec& other);

/// Tells by its content, and for videos by its name, what @p path holds. @return whether it is a picture or
/// a video; @p spec is left alone when it is not.
bool SourceOfFile(const QString& path, SourceSpec& spec);

} // namespace OperatorClient
