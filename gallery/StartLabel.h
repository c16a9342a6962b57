#pragma once

#include <QLabel>

namespace OperatorClient {

/// A label whose text stands where lines of the layout start: at the right in a mirrored one, also when the
/// text itself runs from left to right, as the name of a camera may. A QLabel goes by its text alone.
class StartLabel : public QLabel
{
    Q_OBJECT

public:
    explicit StartLabel(QWidget* parent = nullptr);

    /// Shows the text as a heading, in bold letters.
    /// @param times how often as large as the letters of the desktop
    void ShowAsHeading(double times);

    static constexpr double PageTitle = 1.6;
    static constexpr double PanelTitle = 1.25;

protected:
    void changeEvent(QEvent* event) override;

private:
    void Align();
};

} // namespace OperatorClient
