#pragma once

#include <QStringList>

class QUrl;

namespace WebEngine {

/// What the application allows pages beyond showing themselves and calling back. All of it is refused until
/// the application sets its dynamic property "linkWebAllowed", a list of the words in brackets:
/// @code
/// qApp->setProperty("linkWebAllowed", QStringList{"downloads", "scheme:rtsp-map"});
/// @endcode
struct Allowances
{
    bool fileAccess = false; ///< "file-access": scripts of local pages read other local files
    bool newWindows = false; ///< "new-windows": pages open windows, which cannot call back
    bool downloads = false; ///< "downloads": files are saved to the user's download folder
    QStringList schemes; ///< "scheme:<name>": of addresses that pages may go to, beside the usual ones

    static Allowances FromWords(const QStringList& words); ///< unknown words are passed over
    static Allowances OfApplication();

    /// Whether a page may go to @p url: http, https, file, data, qrc, the empty page, and the schemes above.
    bool MayGoTo(const QUrl& url) const;
};

} // namespace WebEngine
