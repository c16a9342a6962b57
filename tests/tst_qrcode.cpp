// QR codes, read by a real reader, and the dialog that shows them.

#include "support/Columns.h"
#include "support/Deletion.h"
#include "support/QrReader.h"
#include "support/StrictMain.h"

#include <Platform/BasicUIComponents/KvSkin.h>
#include <UI/Dialogs/CDisplayQRcodeDlg.h>
#include <UI/Dialogs/QRCodePicture.h>

#include <QtTest>
#include <QtWidgets>

using TestSupport::ReadQrCode;
using UICommonMdl::CDisplayQRcodeDlg;
using namespace UICommonMdl;

namespace {

/// Bytes that versions 2 to 40 hold at level H in byte mode.
constexpr int Capacities[]
    = {14,  24,  34,  44,  58,  64,  84,  98,  119, 137, 155, 177, 194, 220, 250,  280,  310,  338,  382, 403,
       439, 461, 511, 535, 593, 625, 658, 698, 742, 790, 842, 898, 958, 983, 1051, 1093, 1139, 1219, 1273};
constexpr int FirstVersion = 2;

/// Up to here the reader can tell the modules apart in 200 pixels, always; of the larger ones in some.
constexpr int LastReadableVersion = 19;

/// Small letters, which only the byte mode holds.
QString Letters(int count)
{
    QString text;
    for (int i = 0; i < count; ++i)
        text.append(QLatin1Char(char('a' + i * 7 % 26)));
    return text;
}

/// On white with a margin, which a reader needs.
QImage OnPaper(const QImage& code)
{
    const int margin = 40;
    QImage paper(code.size() + QSize(2 * margin, 2 * margin), QImage::Format_RGB32);
    paper.fill(Qt::white);
    QPainter(&paper).drawImage(margin, margin, code);
    return paper;
}

QImage Enlarged(const QImage& modules) { return modules.scaled(modules.size() * 4); }

/// Coordinates of the modules whose picture, 200 pixels wide, the middle of pixel @p i falls into: one, or
/// two when it comes very near to a border between them.
QVector<int> ModulesUnder(int i, int side)
{
    const double place = (i + 0.5) * side / 200;
    const int module = int(place);
    return place - module < 0.04 && module > 0 ? QVector<int>{module - 1, module} : QVector<int>{module};
}

/// The colours that pixel (@p x, @p y) of the picture may have.
QVector<QRgb> ModulesAt(const QImage& modules, int x, int y)
{
    QVector<QRgb> colours;
    for (const int row : ModulesUnder(y, modules.width())) {
        for (const int column : ModulesUnder(x, modules.width()))
            colours.append(modules.pixel(column, row));
    }
    return colours;
}

/// The headless platform cannot tell a window manager the smallest size.
void Show(QWidget& dialog)
{
    QTest::ignoreMessage(QtWarningMsg, "This plugin does not support propagateSizeHints()");
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
}

/// A dialog with what a test looks at inside.
struct Fixture
{
    QLabel* Label() const { return dialog->findChild<QLabel*>(QStringLiteral("m_labQRcode")); }
    QTimer* Timer() const { return dialog->findChild<QTimer*>(); }
    QImage Picture() const
    {
        const QPixmap* pixmap = Label()->pixmap();
        return pixmap ? pixmap->toImage() : QImage();
    }

    QPointer<CDisplayQRcodeDlg> dialog = new CDisplayQRcodeDlg;
    ~Fixture() { delete dialog; }
};

const QString Token = QStringLiteral("token-7f3a91c2");
const QString OtherToken = QStringLiteral("token-00b1d8e5");
const QString Device = QStringLiteral("device");

} // namespace

class tst_QrCode : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void versions_data()
    {
        TestSupport::Columns<int, int>("version", "capacity");
        int version = FirstVersion;
        for (const int capacity : Capacities) {
            QTest::addRow("version %d", version) << version << capacity;
            ++version;
        }
    }

    /// Catches a wrong bit of the modules, another level or mode, and a picture whose
    /// pixels are not those of their modules.
    void versions()
    {
        QFETCH(int, version);
        QFETCH(int, capacity);
        const QString text = Letters(capacity);
        const QImage modules = QRCodePicture::Modules(text);
        const int side = 17 + 4 * version;
        QCOMPARE(modules.size(), QSize(side, side));
        QCOMPARE(ReadQrCode(OnPaper(Enlarged(modules))), text.toUtf8());
        const QImage next = QRCodePicture::Modules(Letters(capacity + 1));
        QCOMPARE(next.width(), version == 40 ? 0 : side + 4);

        const QImage picture = QRCodePicture::Scaled(text);
        QCOMPARE(picture.size(), QSize(200, 200));
        for (int y = 0; y < 200; ++y) {
            for (int x = 0; x < 200; ++x)
                QVERIFY(ModulesAt(modules, x, y).contains(picture.pixel(x, y)));
        }
        if (version <= LastReadableVersion)
            QCOMPARE(ReadQrCode(OnPaper(picture)), text.toUtf8());
    }

    void texts_data()
    {
        TestSupport::Columns<QString, int, QByteArray>("text", "side", "read");
        const auto row = [](const char* name, const QString& text, int side) {
            QTest::newRow(name) << text << side << text.toUtf8();
        };
        row("one byte", QStringLiteral("a"), 25);
        row("capitals stay capitals", QStringLiteral("Ab:aB"), 25);
        row("two bytes a character", QString(7, QChar(0x00E9)), 25);
        row("one byte too many", QString(7, QChar(0x00E9)) + QLatin1Char('a'), 29);
        row("three bytes a character", QStringLiteral("\u914D\u5BF9\u624B\u673A"), 25);
        row("four bytes a character", QStringLiteral("\U0001F4F7\U0001F512"), 25);
        // Digits take less room than their bytes.
        row("3000 digits", QString(3000, QLatin1Char('4')), 177);
        QTest::newRow("null character ends the text")
            << QStringLiteral("ab\0cd").left(5) << 25 << QByteArray("ab");
        QTest::newRow("half a surrogate pair") << QString(QChar(0xD83D)) << 25 << QByteArray("?");
        QTest::newRow("empty") << QString() << 0 << QByteArray();
        QTest::newRow("only a null character") << QString(QChar(0)) << 0 << QByteArray();
    }

    /// Catches another encoding than UTF-8, lengths counted in characters, and a crash where there is no
    /// code.
    void texts()
    {
        QFETCH(QString, text);
        QFETCH(int, side);
        const QImage modules = QRCodePicture::Modules(text);
        QCOMPARE(modules.width(), side);
        QCOMPARE(QRCodePicture::Scaled(text).isNull(), side == 0);
        if (side > 0)
            QTEST(ReadQrCode(OnPaper(Enlarged(modules))), "read");
    }

    /// Catches rows taken for columns: readers read mirrored codes too, not all of them.
    void formatIsNotMirrored()
    {
        const QImage modules = QRCodePicture::Modules(Letters(14));
        // The format's 15 bits around the upper left finder, from the left to the top; row and column 6 are
        // left out. Mirrored they would come in the reverse order.
        int format = 0;
        const auto add = [&](int x, int y) { format = format << 1 | modules.pixelIndex(x, y); };
        for (const int x : {0, 1, 2, 3, 4, 5, 7, 8})
            add(x, 8);
        for (const int y : {7, 5, 4, 3, 2, 1, 0})
            add(8, y);
        format ^= 0x5412; // the mask of every format
        QCOMPARE(format >> 13, 2); // level H
        int rest = format;
        for (int bit = 14; bit >= 10; --bit) {
            if (rest >> bit & 1)
                rest ^= 0x537 << (bit - 10); // the generator of its check bits
        }
        QCOMPARE(rest, 0);
    }

    /// Catches a picture of another text, one that is scaled again, and a dialog without the light margin
    /// that readers need, above all in the dark skin, also when a client's own sheet colours its dialogs.
    void codeIsReadFromTheDialog()
    {
        QWidget window;
        window.setStyleSheet(QStringLiteral("QDialog, QWidget { background-color: #17181b; }"));
        CDisplayQRcodeDlg dialog(&window);
        Show(dialog);
        const auto* label = dialog.findChild<QLabel*>(QStringLiteral("m_labQRcode"));
        const int margin = 4 * 8; // four modules on each side
        for (const char* skin : {"White", "Black"}) {
            KvGUI::SetSkinVersion(QString::fromLatin1(skin));
            const QString token = qstrcmp(skin, "White") == 0 ? Token : OtherToken;
            dialog.SetQRCodeValue(token, Device);
            QCoreApplication::processEvents();
            const QPoint corner = label->mapTo(&dialog, {0, 0});
            const QImage picture = dialog.grab().toImage();
            QCOMPARE(ReadQrCode(picture), token.toUtf8());
            QCOMPARE(label->pixmap(Qt::ReturnByValue).size(), QSize(200, 200));
            for (const QPoint& at :
                 {QPoint(-margin, 100), QPoint(199 + margin, 100), QPoint(100, 199 + margin),
                  QPoint(100, -margin)})
                QCOMPARE(picture.pixelColor(corner + at), QColor(Qt::white));
        }
    }

    /// Catches a code that disappears when there is no new one, a renewal for ever after the client has
    /// stopped, and one that ends where it could mend a failed encoding.
    void keepsTheCode()
    {
        const Fixture f;
        f.dialog->SetQRCodeValue(Token, Device);
        const QImage picture = f.Picture();
        f.dialog->SetQRCodeValue(Letters(1274), Device);
        QCOMPARE(f.Picture(), picture);
        QVERIFY(f.Timer()->isActive());
        f.dialog->SetQRCodeValue(QString(), Device);
        QCOMPARE(f.Picture(), picture);
        QVERIFY(!f.Timer()->isActive());
        f.dialog->SetQRCodeValue(Letters(1273), Device);
        QVERIFY(f.Picture() != picture);
    }

    /// Catches a request that comes once only, with an init value of before, or not by the slot's name.
    void asksForRenewalAgainAndAgain()
    {
        const Fixture f;
        QSignalSpy asked(f.dialog, &CDisplayQRcodeDlg::SignalRefreshTimeout);
        for (const int bad : {0, -1})
            f.dialog->SetRefreshInterval(bad);
        QCOMPARE(f.dialog->RefreshInterval(), 120000);
        f.dialog->SetRefreshInterval(5);
        f.dialog->SetQRCodeValue(Token, QStringLiteral("before"));
        f.dialog->SetQRCodeValue(Token, Device);
        QTRY_VERIFY(asked.count() >= 3);
        for (const QVariantList& arguments : asked)
            QCOMPARE(arguments, QVariantList{Device});
        f.dialog->SetQRCodeValue(QString(), OtherToken); // no more
        asked.clear();
        QVERIFY(QMetaObject::invokeMethod(f.dialog, "OnRefreshTimeout"));
        QCOMPARE(asked, (QList<QVariantList>{{OtherToken}}));
    }

    /// Catches a renewal that comes too early for the new code.
    void newValueBeginsThePeriodAnew()
    {
        const Fixture f;
        f.dialog->SetQRCodeValue(Token, Device);
        QTRY_VERIFY(f.Timer()->remainingTime() <= 119950);
        f.dialog->SetQRCodeValue(OtherToken, Device);
        QVERIFY(f.Timer()->remainingTime() > 119950);
    }

    /// Catches a dialog that goes on after its client deleted it.
    void slotMayDeleteTheDialog()
    {
        const Fixture f;
        TestSupport::SpoilFreedMemory();
        TestSupport::DeleteAt(f.dialog.data(), &CDisplayQRcodeDlg::SignalRefreshTimeout);
        f.dialog->SetRefreshInterval(5);
        f.dialog->SetQRCodeValue(Token, Device);
        QTRY_VERIFY(f.dialog.isNull());
    }
};

STRICT_TEST_MAIN(tst_QrCode)
#include "tst_qrcode.moc"
