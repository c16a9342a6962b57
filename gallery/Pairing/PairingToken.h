#pragma once

#include <QString>

class QRandomGenerator;

namespace OperatorClient {

/// A token that a phone scans: 14 characters, of which the last nine are drawn by chance from letters and
/// digits that cannot be mistaken for one another. It fits the smallest code that the QR dialog shows.
QString MakePairingToken(QRandomGenerator& random);

} // namespace OperatorClient
