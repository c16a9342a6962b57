#pragma once

#include <gallery/StartLabel.h>

namespace OperatorClient {

/// One line of plain text that loses its middle where it does not fit, so that the start of a name and what
/// stands behind it can be read. The whole text belongs into the tool tip.
class ElidedLabel : public StartLabel
{
    Q_OBJECT

public:
    using StartLabel::StartLabel;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace OperatorClient
