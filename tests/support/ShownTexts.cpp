#include "ShownTexts.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QFile>
#include <QGraphicsItem>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QHeaderView>
#include <QLabel>
#include <QLayout>
#include <QWidget>
#include <QXmlStreamReader>
#include <algorithm>

namespace {

const char* const TextProperties[] = {"text",        "toolTip",  "accessibleName",  "accessibleDescription",
                                      "windowTitle", "title",    "placeholderText", "suffix",
                                      "prefix",      "iconText", "specialValueText"};

/// The object's place below the root, counted among its like: others come and go, and are raised.
QString PathOf(const QObject* object, const QObject* root)
{
    QString path;
    for (; object != nullptr && object != root; object = object->parent()) {
        const QLatin1String name(object->metaObject()->className());
        int number = 0;
        const QObjectList siblings = object->parent() ? object->parent()->children() : QObjectList();
        for (const QObject* sibling : siblings) {
            if (sibling == object)
                break;
            number += name == QLatin1String(sibling->metaObject()->className()) ? 1 : 0;
        }
        path.prepend(QStringLiteral("/%1%2").arg(name).arg(number));
    }
    return path;
}

void AddScene(QMap<QString, QString>& texts, const QString& path, const QGraphicsView& view)
{
    int index = 0;
    const QList<QGraphicsItem*> items = view.scene()->items(Qt::AscendingOrder);
    for (const QGraphicsItem* item : items)
        texts.insert(QStringLiteral("%1/item%2").arg(path).arg(index++), item->toolTip());
}

void AddItems(QMap<QString, QString>& texts, const QString& path, const QAbstractItemModel& model)
{
    constexpr int Enough = 5;
    for (int column = 0; column < model.columnCount(); ++column) {
        const QVariant title = model.headerData(column, Qt::Horizontal);
        texts.insert(QStringLiteral("%1/head%2").arg(path).arg(column), title.toString());
        for (int row = 0; row < qMin(Enough, model.rowCount()); ++row) {
            const QModelIndex index = model.index(row, column);
            texts.insert(QStringLiteral("%1/%2,%3").arg(path).arg(row).arg(column), index.data().toString());
        }
    }
}

void AddObject(QMap<QString, QString>& texts, const QString& path, const QObject* object)
{
    for (const char* property : TextProperties) {
        const QString text = object->property(property).toString();
        if (!text.isEmpty())
            texts.insert(path + QLatin1Char('.') + QLatin1String(property), text);
    }
    if (const auto* view = qobject_cast<const QGraphicsView*>(object))
        AddScene(texts, path, *view);
    if (const auto* box = qobject_cast<const QComboBox*>(object))
        AddItems(texts, path, *box->model());
    else if (const auto* list = qobject_cast<const QAbstractItemView*>(object))
        if (list->model() != nullptr)
            AddItems(texts, path, *list->model());
}

bool HasLetters(const QString& text)
{
    return std::any_of(text.begin(), text.end(), [](QChar letter) { return letter.isLetter(); });
}

/// A label that wraps lines, elides or shows a picture has no width of its own, nor has what has a fixed one.
bool IsMeasured(const QWidget* widget)
{
    if (!widget->isVisible() || widget->width() == 0 || widget->minimumWidth() == widget->maximumWidth())
        return false;
    if (const auto* label = qobject_cast<const QLabel*>(widget))
        return !label->wordWrap() && HasLetters(label->text())
            && label->sizePolicy().horizontalPolicy() != QSizePolicy::Ignored;
    const auto* button = qobject_cast<const QAbstractButton*>(widget);
    return button != nullptr && HasLetters(button->text()) && button->icon().isNull();
}

} // namespace

QMap<QString, QString> ShownTexts(const QWidget& root)
{
    QMap<QString, QString> texts;
    AddObject(texts, QString(), &root);
    const QList<QObject*> objects = root.findChildren<QObject*>();
    for (const QObject* object : objects) {
        if (object->isWidgetType() || qobject_cast<const QAction*>(object))
            AddObject(texts, PathOf(object, &root), object);
    }
    return texts;
}

QStringList ChangedTexts(const QMap<QString, QString>& before, const QMap<QString, QString>& after)
{
    QStringList changed;
    for (auto text = before.begin(); text != before.end(); ++text) {
        if (after.value(text.key()) != *text)
            changed << QStringLiteral("%1: %2 -> %3").arg(text.key(), *text, after.value(text.key()));
    }
    return changed;
}

QSet<QString> SourceTexts(const QString& file)
{
    QSet<QString> texts;
    QFile device(file);
    if (!device.open(QIODevice::ReadOnly))
        return texts;
    QXmlStreamReader reader(&device);
    QString source;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && reader.name() == QLatin1String("source"))
            source = reader.readElementText();
        else if (
            reader.isStartElement() && reader.name() == QLatin1String("translation")
            && reader.readElementText(QXmlStreamReader::IncludeChildElements) != source)
            texts.insert(source);
    }
    return texts;
}

QStringList ClippedTexts(const QWidget& root)
{
    QStringList clipped;
    const QList<QWidget*> widgets = root.findChildren<QWidget*>();
    for (const QWidget* widget : widgets) {
        if (IsMeasured(widget) && widget->width() < widget->sizeHint().width())
            clipped << QStringLiteral("%1 \"%2\": %3 of %4 pixels")
                           .arg(PathOf(widget, &root), widget->property("text").toString())
                           .arg(widget->width())
                           .arg(widget->sizeHint().width());
    }
    return clipped;
}

bool HasChinese(const QString& text)
{
    return std::any_of(
        text.begin(), text.end(), [](QChar letter) { return letter.script() == QChar::Script_Han; });
}
