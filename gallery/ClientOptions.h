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
    QString layoutFile; ///< empty: the user's own
    QString skin; ///< empty: the one of the layout
    QString language; ///< one of Language::Names(); empty: the desktop's
};

/// Reads the command line; --help and --version end the program.
/// @return false when it makes no sense; @p error says why
bool ParseOptions(const QStringList& arguments, ClientOptions& options, QString& error);

/// The file in which the user's wall is kept when none is named.
QString UsersLayoutFile();

/// The folder in which the user's person record is kept.
QString UsersRecordFolder();

} // namespace OperatorClient
