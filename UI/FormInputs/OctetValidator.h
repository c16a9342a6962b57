#pragma once

#include <QIntValidator>

namespace UICommonMdl {

/// Takes the digits of a number from 0 to 255, at most three of them. Unlike its base class it takes neither
/// a sign nor separators. 256 to 999 are intermediate, so that they can be typed and become 255.
class OctetValidator : public QIntValidator
{
    Q_OBJECT

public:
    explicit OctetValidator(QObject* parent);

    State validate(QString& input, int& position) const override;
};

} // namespace UICommonMdl
