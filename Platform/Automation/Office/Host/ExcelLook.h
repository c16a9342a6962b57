#pragma once

#include <Platform/Automation/Office/Host/ExcelWorkbook.h>

#include <com/sun/star/beans/XPropertySet.hpp>

/// The look of a range of cells.
namespace Office {

using PropertySet = com::sun::star::uno::Reference<com::sun::star::beans::XPropertySet>;

void SetProperty(const PropertySet& properties, const char* name, const com::sun::star::uno::Any& value);

/// @param constant as the spreadsheet application counts alignments; Refused when it is unknown
void SetHorizontalAlignment(const PropertySet& properties, int constant);
void SetVerticalAlignment(const PropertySet& properties, int constant);

/// A part of a range's look, as an object of its own.
class ExcelLook : public ExcelObject
{
public:
    ExcelLook(std::shared_ptr<ExcelWorkbook> workbook, const PropertySet& properties);

    bool IsGone() const override { return m_pWorkbook->IsGone(); }

protected:
    const PropertySet& Properties() const { return m_properties; }

private:
    const std::shared_ptr<ExcelWorkbook> m_pWorkbook;
    const PropertySet m_properties;
};

class ExcelInterior : public ExcelLook
{
public:
    using ExcelLook::ExcelLook;
    void Write(const QString& name, const QVariant& value) override;
};

class ExcelBorders : public ExcelLook
{
public:
    using ExcelLook::ExcelLook;
    void Write(const QString& name, const QVariant& value) override;
};

class ExcelFont : public ExcelLook
{
public:
    using ExcelLook::ExcelLook;
    void Write(const QString& name, const QVariant& value) override;

private:
    void WriteForAllScripts(const char* name, const com::sun::star::uno::Any& value);
};

} // namespace Office
