#include <gallery/Pairing/PairingToken.h>

#include <QRandomGenerator>

namespace OperatorClient {

QString MakePairingToken(QRandomGenerator& random)
{
    const QString letters = QStringLiteral("abcdefghjkmnpqrstuvwxyz23456789");
    QString token = QStringLiteral("pair-");
    for (int i = 0; i < 9; ++i)
        token.append(letters.at(random.bounded(letters.size())));
    return token;
}

} // namespace OperatorClient
