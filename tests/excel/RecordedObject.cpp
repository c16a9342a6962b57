#include "RecordedObject.h"

#include <Platform/Automation/AutomationRegistry.h>

#include <QColor>

namespace {

const QString Application = QStringLiteral("Excel.Application");

/// Blocks are too long for a line.
QString Text(const QVariant& value)
{
    if (value.type() == QVariant::List)
        return QStringLiteral("block");
    if (value.type() == QVariant::Color)
        return value.value<QColor>().name();
    return value.toString();
}

QString Texts(const QVariantList& values)
{
    QStringList texts;
    for (const QVariant& value : values)
        texts << Text(value);
    return QLatin1Char('(') + texts.join(QLatin1String(", ")) + QLatin1Char(')');
}

/// The short name of the object that @p member gives.
QString NameOf(const QString& member)
{
    static const QHash<QString, QString> names{
        {QStringLiteral("WorkBooks"), QStringLiteral("books")},
        {QStringLiteral("ActiveWorkBook"), QStringLiteral("book")},
        {QStringLiteral("Open(const QString &)"), QStringLiteral("book")},
        {QStringLiteral("Sheets"), QStringLiteral("sheets")},
        {QStringLiteral("WorkSheets(int)"), QStringLiteral("sheet")},
        {QStringLiteral("UsedRange"), QStringLiteral("used")},
        {QStringLiteral("Range(const QString&)"), QStringLiteral("range")},
        {QStringLiteral("Interior"), QStringLiteral("interior")},
        {QStringLiteral("Borders"), QStringLiteral("borders")},
        {QStringLiteral("Font"), QStringLiteral("font")},
    };
    return names.value(member, member);
}

} // namespace

RecordedObject::RecordedObject(QString name, bool null, Recording& recording)
    : m_name(std::move(name))
    , m_null(null)
    , m_recording(recording)
{
    m_recording.most = qMax(m_recording.most, ++m_recording.living);
}

RecordedObject::~RecordedObject() { --m_recording.living; }

void RecordedObject::Note(const QString& call) const
{
    m_recording.calls << m_name + QLatin1Char('.') + call;
}

QVariant RecordedObject::dynamicCall(const QString& member, const QVariantList& arguments)
{
    Note(member + Texts(arguments));
    if (member.startsWith(QLatin1String("SetValue")))
        m_recording.blocks << arguments;
    return m_recording.answers.value(member);
}

std::unique_ptr<Automation::AutomationObject>
RecordedObject::querySubObject(const QString& member, const QVariantList& arguments)
{
    Note(member + (arguments.isEmpty() ? QString() : Texts(arguments)));
    if (m_recording.absent.contains(member) || m_recording.absent.contains(member + Texts(arguments)))
        return nullptr;
    return std::make_unique<RecordedObject>(NameOf(member), m_recording.null.contains(member), m_recording);
}

QVariant RecordedObject::property(const QString& name) const
{
    Note(name);
    return m_recording.answers.value(name);
}

bool RecordedObject::setProperty(const QString& name, const QVariant& value)
{
    Note(name + QLatin1Char('=') + Text(value));
    return true;
}

void RecordedObject::Provide(Recording& recording)
{
    Automation::AutomationRegistry::SetObjectFactory(
        Application, [&recording]() -> std::unique_ptr<AutomationObject> {
            const bool probed = recording.calls.contains(QStringLiteral("app.Quit(void)()"));
            const QString step = probed ? Application + QStringLiteral(" again") : Application;
            if (recording.absent.contains(step))
                return nullptr;
            return std::make_unique<RecordedObject>(
                QStringLiteral("app"), recording.null.contains(step), recording);
        });
}

void RecordedObject::Forget() { Automation::AutomationRegistry::SetObjectFactory(Application, {}); }
