#pragma once

#include <QString>
#include <rtl/ustring.hxx>

namespace Office {

inline rtl::OUString ToUno(const QString& text)
{
    return rtl::OUString(reinterpret_cast<const sal_Unicode*>(text.utf16()), text.size());
}

inline QString FromUno(const rtl::OUString& text)
{
    return QString(reinterpret_cast<const QChar*>(text.getStr()), text.getLength());
}

} // namespace Office
