#pragma once

#include <QEvent>
#include <QString>
#include <QVector>
#include <QWidget>
#include <functional>

namespace OperatorClient {

/// A page of the main window.
class Page : public QWidget
{
    Q_OBJECT

public:
    /// A state of the page that is worth a screenshot.
    struct Picture
    {
        QString suffix; ///< of the file name; empty for the page as it opens
        std::function<void()> enter; ///< brings the page into the state, whatever the one before
        /// Ends the state. For states with a dialog or a menu: `enter` may return only after this.
        std::function<void()> leave = [] {};
        /// Whether the state is there, where it takes a while.
        std::function<bool()> isThere = [] { return true; };
    };

    using QWidget::QWidget;

    /// At least one; without suffix the page as it opens.
    virtual QVector<Picture> Pictures()
    {
        return {{QString(), [] {}}};
    }

Q_SIGNALS:
    void SignalReport(const QString& text); ///< one line for the status bar

protected:
    /// The language is another one now. For texts that do not follow it by themselves.
    virtual void OnLanguageChanged() { }

    void changeEvent(QEvent* event) override
    {
        QWidget::changeEvent(event);
        if (event->type() == QEvent::LanguageChange)
            OnLanguageChanged();
    }
};

} // namespace OperatorClient
