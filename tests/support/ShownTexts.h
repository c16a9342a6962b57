#pragma once

#include <QMap>
#include <QSet>
#include <QString>

class QWidget;

/// Every text that is shown or read aloud in a widget and below it: the texts of widgets, actions, items of
/// lists and tables' headers, and of the items of graphics scenes, by a name of its place.
QMap<QString, QString> ShownTexts(const QWidget& root);

/// What of @p before is another text, or nowhere, in @p after.
QStringList ChangedTexts(const QMap<QString, QString>& before, const QMap<QString, QString>& after);

/// The texts of a file of translations that its language writes in another way than the sources do.
QSet<QString> SourceTexts(const QString& file);

/// The places of buttons and labels whose text has less room than it needs; empty when all is well.
QStringList ClippedTexts(const QWidget& root);

/// Whether a text has a Chinese letter.
bool HasChinese(const QString& text);
