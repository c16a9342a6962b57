#include <Platform/Automation/Office/Host/ExcelObject.h>

namespace Office {

ExcelObject::ExcelObject() = default;
ExcelObject::~ExcelObject() = default;

QVariant ExcelObject::Call(const QString&, const QVariantList&) { throw Refused("no such function"); }

std::shared_ptr<ExcelObject> ExcelObject::SubObject(const QString&, const QVariantList&)
{
    throw Refused("no such object");
}

QVariant ExcelObject::Read(const QString&) { throw Refused("no such property"); }

void ExcelObject::Write(const QString&, const QVariant&) { throw Refused("no such property"); }

} // namespace Office
