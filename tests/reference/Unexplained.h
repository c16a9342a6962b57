#pragma once

#include <QObject>

// What the check of the reference pages has to find: this header is read by it, and compiled nowhere.

/// A class whose own words are there, and most of the others missing.
class Unexplained : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int property READ Read)

public:
    /// Two values.
    enum Value
    {
        WithWords, ///< has them
        WithoutWords
    };

    Unexplained();

    int Function() const;

    /// @param strength is not the parameter's name
    void Parameter(int level);

    /// See Missing::Link().
    /// @see Missing::Page
    void Reference();

    using Type = int;

signals:
    void Signal();

protected:
    void mousePressEvent(QMouseEvent* event) override;
};

class WordlessClass
{ };

namespace Free {
/// With words.
void Explained();
void Wordless();
} // namespace Free
