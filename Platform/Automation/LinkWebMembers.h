#pragma once

#include <QLatin1String>

namespace LINKWEB {

/// What a hosted control that shows web pages is asked for, by HostedControl::setControl() and
/// HostedControl::dynamicCall(). The spellings are those of the controls.

/// The kind of control.
constexpr QLatin1String ControlClassId("LinkWeb.PageControl");

/// Takes the address of an ILinkWebAPI as an unsigned 64-bit number; 0 takes it away.
constexpr QLatin1String AddListenerMember("AddLinster(ULONGLONG)");

/// Loads a page: its address, 0, and two empty texts.
constexpr QLatin1String LoadMember("init(string,long,string,string)");

/// Runs a script in the page.
constexpr QLatin1String RunScriptMember("CallJavaScritp(string)");

} // namespace LINKWEB
