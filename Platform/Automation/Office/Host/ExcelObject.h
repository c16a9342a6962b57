#pragma once

#include <QVariant>
#include <memory>
#include <stdexcept>

namespace Office {

/// What the office refuses: an unknown member, a wrong address, a bad name.
class Refused : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// An object as the client sees it. Members come without signature and in lower case (MemberName()).
/// Every operation throws Refused, or what the office's bridge throws.
class ExcelObject
{
public:
    ExcelObject();
    virtual ~ExcelObject();
    ExcelObject(const ExcelObject&) = delete;
    ExcelObject& operator=(const ExcelObject&) = delete;

    virtual bool IsGone() const = 0; ///< its application has quit, or its workbook is closed
    virtual QVariant Call(const QString& member, const QVariantList& arguments);
    virtual std::shared_ptr<ExcelObject> SubObject(const QString& member, const QVariantList& arguments);
    virtual QVariant Read(const QString& name);
    virtual void Write(const QString& name, const QVariant& value);
};

} // namespace Office
