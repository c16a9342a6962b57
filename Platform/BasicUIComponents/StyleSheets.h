#pragma once

#include <QString>

/// The style sheet @p fileName of @p folder, read as UTF-8; empty when there is none.
///
/// Each sheet is read once until the skin changes: widgets are made by the hundred and share a few sheets.
/// A missing one is looked for at each call.
QString StyleSheetText(const QString& fileName, const QString& folder);
