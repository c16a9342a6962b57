// The password edit and its strength meter.

#include "support/Columns.h"
#include "support/StrictMain.h"

#include <Platform/BasicUIComponents/KvSkin.h>
#include <UI/FormInputs/CPasswordEdit.h>
#include <UI/FormInputs/CPasswordStrength.h>

#include <QtTest>
#include <QtWidgets>
#include <memory>

using namespace UICommonMdl;

Q_DECLARE_METATYPE(Qt::KeyboardModifiers)

namespace {

const QString Copied = QStringLiteral("hunter2");

QImage Image(const CPasswordStrength& meter)
{
    QImage image(meter.size(), QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    const_cast<CPasswordStrength&>(meter).render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    return image;
}

QVector<int> PaintedRows(const QImage& image)
{
    QVector<int> rows;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y).alpha() > 0) {
                rows.append(y);
                break;
            }
        }
    }
    return rows;
}

QMenu* OpenMenu(QWidget& edit)
{
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(4, 4), edit.mapToGlobal(QPoint(4, 4)));
    QApplication::sendEvent(&edit, &event);
    return qobject_cast<QMenu*>(QApplication::activePopupWidget());
}

} // namespace

class TestPassword : public QObject
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        KvGUI::SetSkinVersion(QStringLiteral("Black"));
        QGuiApplication::clipboard()->clear();
    }

    void PastingByKeys_data()
    {
        TestSupport::Columns<int, Qt::KeyboardModifiers, bool>("key", "modifiers", "pastes");
        const auto control = Qt::KeyboardModifiers(Qt::ControlModifier);
        QTest::newRow("Ctrl+V") << int(Qt::Key_V) << control << false;
        QTest::newRow("Shift+Insert")
            << int(Qt::Key_Insert) << Qt::KeyboardModifiers(Qt::ShiftModifier) << true;
        QTest::newRow("V") << int(Qt::Key_V) << Qt::KeyboardModifiers() << false;
    }

    /// Catches a shortcut that gets through, and one that is swallowed too.
    void PastingByKeys()
    {
        QFETCH(int, key);
        QFETCH(Qt::KeyboardModifiers, modifiers);
        QFETCH(bool, pastes);
        CPasswordEdit edit;
        edit.show();
        QGuiApplication::clipboard()->setText(Copied);
        QTest::keyClick(&edit, static_cast<Qt::Key>(key), modifiers);
        QCOMPARE(edit.text() == Copied, pastes);
        QCOMPARE(QGuiApplication::clipboard()->text(), Copied);
    }

    /// Catches a password pasted by the menu, a menu that lost its other entries, and one that takes from the
    /// user what the clipboard holds: more than the text, which could be given back.
    void MenuOffersNoPaste()
    {
        CPasswordEdit edit;
        edit.setText(QStringLiteral("abc"));
        edit.show();
        QVERIFY(QTest::qWaitForWindowExposed(&edit));
        auto* content = new QMimeData;
        content->setText(Copied);
        content->setImageData(QImage(3, 2, QImage::Format_RGB32));
        QGuiApplication::clipboard()->setMimeData(content);
        QPointer<QMenu> menu(OpenMenu(edit));
        QVERIFY(menu);
        QTest::keyClick(menu, Qt::Key_P);
        QCOMPARE(edit.text(), QStringLiteral("abc"));
        const QList<QAction*> actions = menu->actions();
        QVERIFY(std::any_of(actions.begin(), actions.end(), [](const QAction* action) {
            return action->isEnabled() && action->text().startsWith(QLineEdit::tr("Select All"));
        }));
        menu->close();
        QTRY_VERIFY(!menu);
        QCOMPARE(QGuiApplication::clipboard()->text(), Copied);
        QCOMPARE(QGuiApplication::clipboard()->image().size(), QSize(3, 2));
    }

    /// Catches a resource tree without the place at which the edit looks for its sheet, in either skin.
    void SheetLiesAtTheNestedPath()
    {
        const QString place = QStringLiteral(":/Corvale/:/%1/:/Corvale/UICommonModule/%1/UICommonModule/"
                                             "PasswordEdit/CPasswordEdit.qss");
        CPasswordEdit edit;
        QString before;
        for (const QString& skin : {QStringLiteral("Black"), QStringLiteral("White")}) {
            KvGUI::SetSkinVersion(skin);
            QFile file(place.arg(skin));
            QVERIFY(file.open(QIODevice::ReadOnly));
            QCOMPARE(edit.styleSheet(), QString::fromLatin1(file.readAll()));
            QVERIFY(edit.styleSheet() != before);
            before = edit.styleSheet();
        }
        KvGUI::SetSkinVersion(QStringLiteral("None"));
        QCOMPARE(edit.styleSheet(), before);
    }

    void MeterShowsItsLevel_data()
    {
        TestSupport::Columns<int, int>("level", "like");
        QTest::newRow("nothing") << 0 << 0;
        QTest::newRow("negative") << -1 << 0;
        QTest::newRow("beyond") << 7 << 3;
        QTest::newRow("largest") << std::numeric_limits<int>::max() << 3;
    }

    /// Catches a level outside of the pictures that draws the wrong one or is clamped when it is stored.
    void MeterShowsItsLevel()
    {
        QFETCH(int, level);
        QFETCH(int, like);
        CPasswordStrength meter;
        meter.resize(200, 20);
        meter.SetStrength(like);
        const QImage expected = Image(meter);
        QCOMPARE(PaintedRows(expected).isEmpty(), like == 0);
        meter.SetStrength(level);
        QCOMPARE(Image(meter), expected);
        QCOMPARE(meter.GetStrength(), level);
    }

    /// Catches a picture used for two levels, and a meter on the screen that stands still.
    void LevelsDiffer()
    {
        CPasswordStrength meter;
        meter.resize(200, 20);
        meter.show();
        QVERIFY(QTest::qWaitForWindowExposed(&meter));
        QVector<QImage> seen;
        for (int level = 0; level <= 3; ++level) {
            meter.SetStrength(level);
            QCoreApplication::processEvents();
            const QImage image = meter.screen()->grabWindow(meter.winId()).toImage();
            QVERIFY(!image.isNull());
            QVERIFY(!seen.contains(image));
            seen.append(image);
        }
    }

    /// Catches pictures that lie at the top, or beyond a low meter.
    void MeterIsCentred()
    {
        CPasswordStrength meter;
        const int pictureHeight = meter.sizeHint().height();
        QVERIFY(pictureHeight > 0);
        meter.SetStrength(1);
        meter.resize(200, pictureHeight + 10);
        const QVector<int> rows = PaintedRows(Image(meter));
        QCOMPARE(rows.first(), 5);
        QCOMPARE(rows.size(), pictureHeight);
    }

    /// Catches pictures of the skin before.
    void MeterFollowsTheSkin()
    {
        CPasswordStrength meter;
        meter.resize(200, 20);
        meter.SetStrength(3);
        const QImage dark = Image(meter);
        KvGUI::SetSkinVersion(QStringLiteral("White"));
        QVERIFY(Image(meter) != dark);
        KvGUI::SetSkinVersion(QStringLiteral("None")); // has no pictures
        QVERIFY(PaintedRows(Image(meter)).isEmpty());
    }
};

STRICT_X_TEST_MAIN(TestPassword)
#include "tst_password.moc"
