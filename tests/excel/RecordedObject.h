#pragma once

#include <Platform/Automation/AutomationObject.h>

#include <QHash>
#include <QSet>
#include <QStringList>

/// What a recorded spreadsheet application was asked, and how it shall answer.
struct Recording
{
    QStringList calls; ///< one line a call, such as "book.Close (Boolean)(false)" or "font.Bold=true"
    /// Sub-objects that do not exist, by member; also "Excel.Application", and "Excel.Application again" for
    /// the one after the probe. With arguments, as in "WorkSheets(int)(1)", only those.
    QSet<QString> absent;
    QSet<QString> null; ///< the same of those that are bound to nothing
    QHash<QString, QVariant> answers; ///< of calls and of properties that are read, by member
    QVariantList blocks; ///< what SetValue got
    int living = 0; ///< recorded objects that have not been deleted
    int most = 0; ///< of them at one time
};

/// A spreadsheet application that does nothing but write down what is asked of it.
class RecordedObject : public Automation::AutomationObject
{
public:
    RecordedObject(QString name, bool null, Recording& recording);
    ~RecordedObject() override;

    bool isNull() const override { return m_null; }
    QVariant dynamicCall(const QString& member, const QVariantList& arguments) override;
    std::unique_ptr<AutomationObject>
    querySubObject(const QString& member, const QVariantList& arguments) override;
    QVariant property(const QString& name) const override;
    bool setProperty(const QString& name, const QVariant& value) override;

    /// Makes the application objects of @p recording from now on; the factory goes with Forget().
    static void Provide(Recording& recording);
    static void Forget();

private:
    void Note(const QString& call) const;

    const QString m_name;
    const bool m_null;
    Recording& m_recording;
};
