#include <gallery/Alarms/AlarmRecord.h>

#include <gallery/Language.h>

#include <QCoreApplication>
#include <QHash>
#include <QRegularExpression>
#include <algorithm>
#include <random>

namespace OperatorClient {

namespace {

const QString TimeFormat = QStringLiteral("yyyy-MM-dd hh:mm:ss");

// clang-format off
const char* const ColumnTitles[] = {
    QT_TRANSLATE_NOOP("OperatorClient::AlarmRecord", "No."), QT_TRANSLATE_NOOP("OperatorClient::AlarmRecord", "Time"),
    QT_TRANSLATE_NOOP("OperatorClient::AlarmRecord", "Camera"), QT_TRANSLATE_NOOP("OperatorClient::AlarmRecord", "Alarm"),
    QT_TRANSLATE_NOOP("OperatorClient::AlarmRecord", "Level"), QT_TRANSLATE_NOOP("OperatorClient::AlarmRecord", "State"),
    QT_TRANSLATE_NOOP("OperatorClient::AlarmRecord", "Note"),
};
const char* const Places[] = {
    QT_TRANSLATE_NOOP("OperatorClient::AlarmRecord", "Car park"), QT_TRANSLATE_NOOP("OperatorClient::AlarmRecord", "Corridor"),
    QT_TRANSLATE_NOOP("OperatorClient::AlarmRecord", "Entrance"), QT_TRANSLATE_NOOP("OperatorClient::AlarmRecord", "Junction"),
    QT_TRANSLATE_NOOP("OperatorClient::AlarmRecord", "Perimeter"), QT_TRANSLATE_NOOP("OperatorClient::AlarmRecord", "Warehouse"),
};
const char* const Kinds[] = {
    QT_TRANSLATE_NOOP("OperatorClient::AlarmRecord", "Motion"), QT_TRANSLATE_NOOP("OperatorClient::AlarmRecord", "Line crossed"),
    QT_TRANSLATE_NOOP("OperatorClient::AlarmRecord", "Object left behind"), QT_TRANSLATE_NOOP("OperatorClient::AlarmRecord", "Picture lost"),
    QT_TRANSLATE_NOOP("OperatorClient::AlarmRecord", "Lens covered"),
};
const char* const Levels[] = {
    QT_TRANSLATE_NOOP("OperatorClient::AlarmRecord", "Low"), QT_TRANSLATE_NOOP("OperatorClient::AlarmRecord", "Medium"),
    QT_TRANSLATE_NOOP("OperatorClient::AlarmRecord", "High"),
};
const char* const States[] = {
    QT_TRANSLATE_NOOP("OperatorClient::AlarmRecord", "Confirmed"), QT_TRANSLATE_NOOP("OperatorClient::AlarmRecord", "False alarm"),
    QT_TRANSLATE_NOOP("OperatorClient::AlarmRecord", "Open"),
};
const char* const Notes[] = {
    "", "", "", QT_TRANSLATE_NOOP("OperatorClient::AlarmRecord", "Guard sent"),
    QT_TRANSLATE_NOOP("OperatorClient::AlarmRecord", "Headlights, not a person"), QT_TRANSLATE_NOOP("OperatorClient::AlarmRecord", "See the record of the day before"),
};
// clang-format on

constexpr const char* Context = "OperatorClient::AlarmRecord";

QString Translated(const char* text) { return QCoreApplication::translate(Context, text); }

template <std::size_t Size>
QString OneOf(const char* const (&texts)[Size], std::minstd_rand& random)
{
    return QString::fromUtf8(texts[random() % Size]);
}

/// The text with its words replaced by what @p replacement makes of them; a number behind them stays.
template <typename Replacement>
QString ReplaceWords(const QString& text, const Replacement& replacement)
{
    static const QRegularExpression number(QStringLiteral(" \\d+$"));
    const QString behind = number.match(text).captured();
    const QString words = text.left(text.size() - behind.size());
    return words.isEmpty() ? text : replacement(words) + behind;
}

/// The text in the operator's language where the program knows it.
QString InLanguage(const QString& text)
{
    return ReplaceWords(text, [](const QString& words) { return Translated(words.toUtf8().constData()); });
}

/// The program's words, by what they are in each language of the client.
QHash<QString, QString> WordsByTranslation()
{
    QHash<QString, QString> words;
    const auto add = [&](const auto& texts) {
        for (const char* text : texts) {
            const QStringList translations = Language::InEach(Context, text);
            for (const QString& translation : translations)
                words.insert(translation, QString::fromUtf8(text));
        }
    };
    add(Places);
    add(Kinds);
    add(Levels);
    add(States);
    add(Notes);
    return words;
}

/// The text of a cell, in the program's own words where it has them in any language.
QString OfAnyLanguage(const QVariant& cell)
{
    static const QHash<QString, QString> known = WordsByTranslation(); // which reads files
    return ReplaceWords(cell.toString(), [](const QString& words) { return known.value(words, words); });
}

QDateTime TimeOf(const QVariant& cell)
{
    return cell.type() == QVariant::DateTime ? cell.toDateTime()
                                             : QDateTime::fromString(cell.toString().trimmed(), TimeFormat);
}

/// The columns' titles, a list for each language of the client.
QVector<QStringList> TitlesInEachLanguage()
{
    QVector<QStringList> titles(Language::Names().size());
    for (const char* title : ColumnTitles) {
        const QStringList translations = Language::InEach(Context, title);
        for (int language = 0; language < titles.size(); ++language)
            titles[language] << translations.at(language);
    }
    return titles;
}

} // namespace

QStringList AlarmRecord::Columns()
{
    QStringList columns;
    for (const char* title : ColumnTitles)
        columns << Translated(title);
    return columns;
}

bool AlarmRecord::AreColumns(const QStringList& texts)
{
    static const QVector<QStringList> titles = TitlesInEachLanguage(); // which reads files
    return std::any_of(titles.begin(), titles.end(), [&](const QStringList& columns) {
        return texts.mid(0, columns.size()) == columns;
    });
}

QStringList AlarmRecord::Texts() const
{
    return {QString::number(number), time.toString(TimeFormat), InLanguage(camera), InLanguage(kind),
            InLanguage(level),       InLanguage(state),         InLanguage(note)};
}

std::optional<AlarmRecord> AlarmRecord::FromRow(const QVariantList& row)
{
    AlarmRecord record;
    bool numbered = false;
    record.number = row.value(0).toInt(&numbered);
    record.time = TimeOf(row.value(1));
    if (!numbered || !record.time.isValid())
        return std::nullopt;
    record.camera = OfAnyLanguage(row.value(2));
    record.kind = OfAnyLanguage(row.value(3));
    record.level = OfAnyLanguage(row.value(4));
    record.state = OfAnyLanguage(row.value(5));
    record.note = OfAnyLanguage(row.value(6));
    return record;
}

QVector<AlarmRecord> SampleAlarms(int count, const QDateTime& now)
{
    constexpr int LongestPause = 180; // seconds
    constexpr int CamerasOfPlace = 12;
    std::minstd_rand random(1);
    QVector<AlarmRecord> alarms;
    alarms.reserve(count);
    // Local time would look into the zone's rules for each of them.
    QDateTime time = now.toOffsetFromUtc(now.offsetFromUtc());
    for (int i = 0; i < count; ++i) {
        time = time.addSecs(-1 - static_cast<int>(random() % LongestPause));
        const QString place = OneOf(Places, random);
        AlarmRecord alarm;
        alarm.number = 100000 + count - i;
        alarm.time = time;
        alarm.camera = QStringLiteral("%1 %2").arg(place).arg(1 + random() % CamerasOfPlace);
        alarm.kind = OneOf(Kinds, random);
        alarm.level = OneOf(Levels, random);
        alarm.state = OneOf(States, random);
        alarm.note = OneOf(Notes, random);
        alarms << alarm;
    }
    return alarms;
}

} // namespace OperatorClient
