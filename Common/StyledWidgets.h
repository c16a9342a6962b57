#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QWidget>

/// Where a widget's style sheet comes from, apart from the skin in use.
struct StyleSheetSource
{
    QString subDir;
    QString fileName; ///< never empty
    QString module; ///< empty for this library's own module
};

/// The text of the sheet in the skin in use; empty when that skin has none.
QString StyleSheetText(const StyleSheetSource& source);

/// The living widgets that were styled from the skin, with what they were styled from, so that they
/// follow a change of skin at run time.
class StyledWidgets : public QObject
{
    Q_OBJECT

public:
    static StyledWidgets& Instance();

    /// Gives @p widget the sheet of @p source when there is one, and notes the source in any case.
    void Apply(QWidget* widget, const StyleSheetSource& source);

    /// The widget no longer follows the skin.
    void Forget(QWidget* widget);

private:
    /// A widget may be given a second sheet that this skin lacks (a subclass without a sheet of its
    /// own): the one that it wears is kept in mind for the next skin.
    struct Styling
    {
        QPointer<QWidget> widget;
        StyleSheetSource wanted;
        StyleSheetSource worn; ///< no file name before the first sheet is found
    };

    StyledWidgets();
    void RestyleAll();
    void Restyle(QWidget* widget);

    QHash<QObject*, Styling> m_stylings;
};
