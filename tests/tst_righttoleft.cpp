// What turns round where a language is written from right to left, and what may not.

#include "support/StrictMain.h"

#include <Platform/BasicUIComponents/KvCalendarEx.h>
#include <Platform/BasicUIComponents/KvDialog.h>
#include <UI/FormInputs/CPasswordStrength.h>
#include <UI/FormInputs/CRequiredEdit.h>
#include <UI/FormInputs/KvLineEditEx.h>
#include <UI/FormInputs/KvLineEditWithDirButton.h>
#include <UI/FormInputs/QIpAddrEdit.h>
#include <UI/FormInputs/QIpPartLineEdit.h>
#include <UI/TVWall/KvTVWallOperateWnd.h>

#include <QtTest>
#include <QtWidgets>
#include <functional>
#include <memory>
#include <utility>

using namespace UICommonMdl;

namespace {

const QSize FieldSize(220, 30);

using Make = std::function<QWidget*(QWidget* parent)>;

template <class Widget>
QWidget* New(QWidget* parent)
{
    return new Widget(parent);
}

QWidget* NewRequiredAddress(QWidget* parent)
{
    auto* edit = new QIpAddrEdit(parent);
    edit->setRequired(true);
    return edit;
}

/// The part of a field that stands at one end of its text.
QWidget* EndPart(const QWidget& field)
{
    if (auto* button = field.findChild<QToolButton*>())
        return button;
    const auto labels = field.findChildren<QLabel*>();
    for (QLabel* label : labels) {
        if (label->text() == QLatin1String("*"))
            return label;
    }
    return nullptr;
}

/// The first and the last column in which something is drawn.
std::pair<int, int> Ink(QWidget& label)
{
    const QImage image = label.grab().toImage();
    std::pair<int, int> ink(image.width(), -1);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != image.pixel(0, 0))
                ink = {qMin(ink.first, x), qMax(ink.second, x)};
        }
    }
    return ink;
}

/// Mirrors the whole program as long as it lives, as a start with -reverse does.
struct MirroredProgram
{
    MirroredProgram() { QGuiApplication::setLayoutDirection(Qt::RightToLeft); }
    ~MirroredProgram() { QGuiApplication::setLayoutDirection(Qt::LeftToRight); }
};

} // namespace

Q_DECLARE_METATYPE(Make)

class TestRightToLeft : public QObject
{
    Q_OBJECT

private slots:
    void partsChangeTheirSide_data()
    {
        QTest::addColumn<Make>("make");
        QTest::newRow("mark of a required edit") << Make(&New<CRequiredEdit>);
        QTest::newRow("marker of a line edit") << Make(&New<KvLineEditEx>);
        QTest::newRow("button of a path edit") << Make(&New<KvLineEditWithDirButton>);
        QTest::newRow("mark of an address") << Make(&NewRequiredAddress);
    }

    /// A mark or button that lies on the text because only the text has changed its side: in a field made so,
    /// and in one whose window is turned round later.
    void partsChangeTheirSide()
    {
        QFETCH(Make, make);
        QWidget host;
        QWidget* turned = make(&host);
        turned->resize(FieldSize);
        host.show();
        const QRect part = EndPart(*turned)->geometry();
        QVERIFY(part.width() < FieldSize.height()); // so that it ends where the text begins
        host.setLayoutDirection(Qt::RightToLeft);
        turned->resize(FieldSize + QSize(1, 0));
        turned->resize(FieldSize);
        QWidget* made = make(&host);
        made->resize(FieldSize);
        made->show();
        const QRect mirrored = QStyle::visualRect(Qt::RightToLeft, QRect(QPoint(), FieldSize), part);
        for (const QWidget* field : {turned, made}) {
            QCOMPARE(EndPart(*field)->geometry(), mirrored);
            if (const auto* edit = qobject_cast<const QLineEdit*>(field)) {
                const bool right = mirrored.center().x() > FieldSize.width() / 2;
                const QMargins margins = edit->textMargins();
                QVERIFY(right ? margins.right() > margins.left() : margins.left() > margins.right());
            }
        }
    }

    /// An address that reads 4.3.2.1.
    void addressRunsFromLeftToRight()
    {
        QWidget host;
        host.setLayoutDirection(Qt::RightToLeft);
        auto* edit = static_cast<QIpAddrEdit*>(NewRequiredAddress(&host));
        edit->resize(FieldSize);
        host.show();
        edit->settext(QStringLiteral("10.20.30.40"));
        const auto octets = edit->findChildren<QIpPartLineEdit*>();
        for (int i = 0; i + 1 < octets.size(); ++i)
            QVERIFY(octets.at(i)->geometry().right() < octets.at(i + 1)->geometry().left());
        QCOMPARE(octets.first()->text(), QStringLiteral("10"));
        QVERIFY(octets.last()->geometry().right() < EndPart(*edit)->geometry().left());
    }

    void monitorsKeepTheirPlaces_data()
    {
        QTest::addColumn<int>("family");
        QTest::newRow("normal") << 0;
        QTest::newRow("display") << 1;
    }

    /// A wall on the desk that is the mirror of the one in the room, or has mirrored windows, or titles that
    /// begin with their ellipsis.
    void monitorsKeepTheirPlaces()
    {
        QFETCH(int, family);
        QWidget host;
        KvTVWallOperateWnd wall(&host);
        wall.SetShowMode(family);
        wall.resize(640, 480);
        wall.SetTVWallGridCount(1, 2);
        wall.SetWindowTitleShow(true);
        const QString title = QStringLiteral("Loading ramp behind the northern warehouse");
        for (const double left : {0.0, 0.5}) {
            const int screen = wall.AddScreen({left, 0, left + 0.5, 1, false}, QIcon(), title, QVariant());
            wall.OpenWindow(screen, {0, 0.1, 0.75, 0.5, true}, QVariant());
            wall.OpenWindow(screen, {0.25, 0.25, 1, 1, true}, QVariant());
            wall.SetWindowContentText(screen, 0, title);
        }
        host.show();
        const QImage shown = wall.grab().toImage();
        QVERIFY(shown != shown.mirrored(true, false));
        const MirroredProgram mirrored;
        host.setLayoutDirection(Qt::RightToLeft);
        wall.resize(641, 480);
        wall.resize(640, 480);
        QApplication::processEvents();
        QCOMPARE(wall.grab().toImage(), shown);
    }

    void latinTextStandsAtTheRight_data()
    {
        QTest::addColumn<Make>("make");
        QTest::addColumn<QString>("name");
        QTest::newRow("title of a dialog") << Make(&New<KvGUI::KvDialog>) << QStringLiteral("kvDialogTitle");
        QTest::newRow("days of a calendar")
            << Make(&New<KvGUI::KvCalendarEx>) << QStringLiteral("kvCalendarHint");
    }

    /// A text in Latin letters that stays at the end of its line when the layout is turned round.
    void latinTextStandsAtTheRight()
    {
        QFETCH(Make, make);
        QFETCH(QString, name);
        const std::unique_ptr<QWidget> widget(make(nullptr));
        widget->setWindowTitle(QStringLiteral("Dates"));
        widget->show();
        auto* label = widget->findChild<QLabel*>(name);
        const int margin = Ink(*label).first;
        QVERIFY(margin < 10);
        widget->setLayoutDirection(Qt::RightToLeft);
        QApplication::processEvents();
        const auto ink = Ink(*label);
        QVERIFY(label->width() - ink.second < 10);
        QVERIFY(ink.first > 20);
    }

    /// A meter that grows away from where the reader begins.
    void strengthGrowsFromTheRight()
    {
        CPasswordStrength meter;
        meter.SetStrength(1);
        meter.resize(meter.sizeHint() + QSize(20, 0));
        const QImage grown = meter.grab().toImage();
        meter.setLayoutDirection(Qt::RightToLeft);
        QCOMPARE(meter.grab().toImage(), grown.mirrored(true, false));
        QVERIFY(grown != grown.mirrored(true, false));
    }

    /// "Previous month" at the right edge with an arrow to the left.
    void calendarArrowsPointOutwards()
    {
        KvGUI::KvCalendarEx calendar;
        calendar.ensurePolished();
        const auto icon = [&](const char* name) {
            auto* button = calendar.findChild<QToolButton*>(QLatin1String(name));
            button->ensurePolished();
            return button->icon().pixmap(20, 20).toImage();
        };
        const QImage left = icon("kvCalendarPreviousMonth");
        const QImage right = icon("kvCalendarNextMonth");
        QVERIFY(!left.isNull() && left != right);
        calendar.setLayoutDirection(Qt::RightToLeft);
        QCOMPARE(icon("kvCalendarPreviousMonth"), right);
        QCOMPARE(icon("kvCalendarNextMonth"), left);
        calendar.setLayoutDirection(Qt::LeftToRight);
        QCOMPARE(icon("kvCalendarPreviousMonth"), left);
    }
};

STRICT_TEST_MAIN(TestRightToLeft)
#include "tst_righttoleft.moc"
