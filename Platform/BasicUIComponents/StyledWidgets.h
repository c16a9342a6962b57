#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QVector>
#include <QWidget>

/// Where a widget's style sheet comes from, apart from the skin in use.
struct StyleSheetSource
{
    QString subDir;
    QString fileName; ///< never empty
    QString module; ///< empty for this library's own module

    bool operator==(const StyleSheetSource& other) const
    {
        return subDir == other.subDir && fileName == other.fileName && module == other.module;
    }
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

    /// Notes the sheet that @p widget has while it is given no other, by Apply() or by hand.
    ///
    /// For base classes: the sheet is set when the widget is polished, just before it is shown. A subclass
    /// that styles itself in its constructor so costs one sheet and not two.
    void ApplyBase(QWidget* widget, const StyleSheetSource& source);

    /// The widget no longer follows the skin.
    void Forget(QWidget* widget);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Styling
    {
        QPointer<QWidget> widget;
        /// What it was given, each once, in the order of the calls. Of those that a skin has, the last
        /// counts: a subclass's own sheet before its base class's.
        QVector<StyleSheetSource> sources;
        QVector<StyleSheetSource> base; ///< one or none
        QString baseText; ///< the text of `base` that was set last
    };

    StyledWidgets();
    Styling& StylingOf(QWidget* widget);
    void RestyleAll();
    void Restyle(QWidget* widget);

    QHash<QObject*, Styling> m_stylings;
};
