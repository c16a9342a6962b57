#pragma once

#include <QLatin1String>
#include <cstddef>

namespace LINKWEB {

/// What a hosted control that shows web pages is asked for, by HostedControl::setControl() and
/// HostedControl::dynamicCall(). The spellings are those of the controls.

/// The literal with its length, which not every compiler can count in a constant expression.
template <std::size_t Size>
constexpr QLatin1String Member(const char (&text)[Size])
{
    return QLatin1String(text, static_cast<int>(Size) - 1);
}

/// The kind of control.
constexpr QLatin1String ControlClassId = Member("LinkWeb.PageControl");

/// Takes the address of an ILinkWebAPI as an unsigned 64-bit number; 0 takes it away.
constexpr QLatin1String AddListenerMember = Member("AddLinster(ULONGLONG)");

/// Loads a page: its address, 0, and two empty texts.
constexpr QLatin1String LoadMember = Member("init(string,long,string,string)");

/// Runs a script in the page.
constexpr QLatin1String RunScriptMember = Member("CallJavaScritp(string)");

} // namespace LINKWEB
