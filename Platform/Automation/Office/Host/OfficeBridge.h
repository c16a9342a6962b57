#pragma once

#include <Platform/Automation/Office/Host/OfficeProcess.h>

#include <com/sun/star/frame/XDesktop2.hpp>

namespace Office {

/// The bridge to the office of @p process, which it starts: the office's desktop, through which documents
/// are made and opened. Null when the office does not start.
com::sun::star::uno::Reference<com::sun::star::frame::XDesktop2>
ConnectOffice(OfficeProcess& process, const QString& programFolder);

} // namespace Office
