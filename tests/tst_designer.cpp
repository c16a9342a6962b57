// The Qt Designer plugin, as Designer and QUiLoader use it.

#include <support/CropCanvas.h>
#include <support/StrictMain.h>

#include <Platform/BasicUIComponents/KvSkin.h>
#include <QUiLoader>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

#include <QtTest>
#include <QtWidgets>
#include <memory>

namespace {

QString PluginPath() { return QStringLiteral(DESIGNER_PLUGINS); }

/// Null, with the loader's reason, when Designer could not load the plugin either.
QList<QDesignerCustomWidgetInterface*> ListedWidgets(QString& error)
{
    const QStringList files = QDir(PluginPath()).entryList({QStringLiteral("*.so")}, QDir::Files);
    for (const QString& file : files) {
        QPluginLoader loader(PluginPath() + QLatin1Char('/') + file);
        const auto* collection = qobject_cast<QDesignerCustomWidgetCollectionInterface*>(loader.instance());
        if (collection != nullptr)
            return collection->customWidgets();
        error += loader.errorString();
    }
    return {};
}

/// A loader that knows this plugin only: those installed beside Qt may start whole browsers.
std::unique_ptr<QWidget> Load(QIODevice& form, QString& error)
{
    const QStringList paths = QCoreApplication::libraryPaths();
    QCoreApplication::setLibraryPaths({});
    QUiLoader loader;
    QCoreApplication::setLibraryPaths(paths);
    loader.addPluginPath(PluginPath());
    std::unique_ptr<QWidget> widget(loader.load(&form));
    error = loader.errorString();
    return widget;
}

QString ReadText(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

class TestDesigner : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// A widget that cannot be made without more than a parent, or that is missing in the plugin.
    void aFormOfAllWidgetsLoads()
    {
        QString error;
        const auto listed = ListedWidgets(error);
        QVERIFY2(!listed.isEmpty(), qPrintable(error));
        QFile file(QStringLiteral(FORM));
        QVERIFY(file.open(QIODevice::ReadOnly));
        TestSupport::AnnounceCropCanvases();
        const auto form = Load(file, error);
        QVERIFY2(form, qPrintable(error));

        QStringList loaded;
        const auto children = form->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
        for (const QWidget* child : children)
            loaded.append(QString::fromLatin1(child->metaObject()->className()));
        QStringList wanted;
        for (const QDesignerCustomWidgetInterface* widget : listed)
            wanted.append(widget->name());
        loaded.sort();
        wanted.sort();
        QCOMPARE(loaded, wanted);
        QVERIFY(!form->grab().isNull()); // each paints without data
    }

    /// What the widget box drops on a form does not parse, has no size, or shows an empty icon.
    void eachWidgetCanBeDropped()
    {
        QString error;
        const auto listed = ListedWidgets(error);
        QVERIFY2(!listed.isEmpty(), qPrintable(error));
        TestSupport::AnnounceCropCanvases();
        for (const QDesignerCustomWidgetInterface* listedWidget : listed) {
            QBuffer form;
            form.setData(listedWidget->domXml().toUtf8());
            QVERIFY(form.open(QIODevice::ReadOnly));
            const auto widget = Load(form, error);
            QVERIFY2(widget, qPrintable(listedWidget->name() + error));
            QVERIFY2(!widget->size().isEmpty(), qPrintable(listedWidget->name()));
            // The widget box shows its own sign in place of an icon without sizes.
            QVERIFY2(!listedWidget->icon().availableSizes().isEmpty(), qPrintable(listedWidget->name()));
            QVERIFY2(
                QFile::exists(QStringLiteral(SOURCE_TREE "/") + listedWidget->includeFile()),
                qPrintable(listedWidget->includeFile()));
        }
    }

    /// A wall that cannot be seen on a form, signs of the dark skin on a light form, and a program whose skin
    /// or wall the plugin chooses.
    void formsShowWhatIsThere()
    {
        QString error;
        const auto listed = ListedWidgets(error);
        QVERIFY2(!listed.isEmpty(), qPrintable(error));
        QDesignerCustomWidgetInterface* entry = listed.first();
        QCOMPARE(entry->includeFile(), QStringLiteral("UI/TVWall/KvTVWallOperateWnd.h"));
        const std::unique_ptr<QWidget> inProgram(entry->createWidget(nullptr));
        QVERIFY(inProgram->findChildren<QWidget*>().isEmpty());
        QCOMPARE(KvGUI::GetSkinVersion(), QStringLiteral("Black"));

        QGuiApplication::setPalette(QPalette(Qt::white));
        entry->initialize(nullptr);
        const std::unique_ptr<QWidget> onForm(entry->createWidget(nullptr));
        QVERIFY(!onForm->findChildren<QWidget*>().isEmpty());
        QCOMPARE(KvGUI::GetSkinVersion(), QStringLiteral("White"));
    }

    /// A new widget of the library that nobody added to the plugin.
    void everyPublicWidgetIsListed()
    {
        // Windows of their own, and bubbles that their widgets make.
        const QStringList notInForms{
            QStringLiteral("CTipLabel"), QStringLiteral("CComTipWiget"),
            QStringLiteral("CComTipWigetWithZoom")};
        const QRegularExpression declaration(QStringLiteral(
            R"(class UICOMPONENTS_EXPORT (\w+)\s*:\s*public (?:\w+::)?+(?!QObject\b|QDialog\b|KvDialog\b|KvCustomDialog\b|QMenu\b)(?:Q|Kv|C)\w+)"));
        QString error;
        QStringList listed;
        const auto widgets = ListedWidgets(error);
        for (const QDesignerCustomWidgetInterface* widget : widgets)
            listed.append(widget->name().section(QStringLiteral("::"), -1));
        int found = 0;
        const QStringList headers = QStringLiteral(PUBLIC_HEADERS).split(QLatin1Char('|'));
        for (const QString& header : headers) {
            const auto match = declaration.match(ReadText(QStringLiteral(SOURCE_TREE "/") + header));
            if (!match.hasMatch() || notInForms.contains(match.captured(1)))
                continue;
            ++found;
            QVERIFY2(listed.contains(match.captured(1)), qPrintable(header));
        }
        QCOMPARE(found, listed.size());
    }
};

STRICT_TEST_MAIN(TestDesigner)
#include "tst_designer.moc"
