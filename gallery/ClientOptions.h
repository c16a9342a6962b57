#pragma once

#include <gallery/Pictures/SourceSpec.h>

#include <QString>
#include <QStringList>
#include <QVector>

namespace OperatorClient {

/// What the command line asks for.
struct ClientOptions
{
    QVector<SourceSpec> files; ///< videos, then photos, for the first windows
    QString photo; ///< the first photo, to be cropped; empty: a drawn one
    QString screenshotFolder; ///< empty: run as usual
    QString layoutFile; ///< the settings of the wall and the window; empty: the user's own
    QString skin; ///< one of SkinNames(); empty: the remembered one
    QString page; ///< one of PageNames(); empty: the remembered one, for screenshots: all
    QString language; ///< one of Language::Names(); empty: the remembered one, or the desktop's
};

/// Reads the command line; --help and --version end the program.
/// @return false when it makes no sense; @p error says why
bool ParseOptions(const QStringList& arguments, ClientOptions& options, QString& error);

/// The skins there are; the first one is used when none is chosen.
QStringList SkinNames();

/// The file in which the user's wall and window are kept when none is named.
QString UsersSettingsFile();

/// The folder in which the user's person record is kept.
QString UsersRecordFolder();

} // namespace OperatorClient
