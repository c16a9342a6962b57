#pragma once

#include <UIComponentsExport.h>

namespace LINKWEB {

/// What a hosted web page can call in the client. The hosted control knows the object by its address only,
/// so the order of the virtual functions is part of the interface.
class UICOMPONENTS_EXPORT ILinkWebAPI
{
public:
    ILinkWebAPI();
    virtual ~ILinkWebAPI();
    ILinkWebAPI(const ILinkWebAPI&) = delete;
    ILinkWebAPI& operator=(const ILinkWebAPI&) = delete;

    /// The page calls @p name with @p param. May be entered on any thread that the control uses.
    /// @param name zero-terminated UTF-8
    /// @param param zero-terminated, in the local 8-bit encoding
    /// @return 0
    virtual long CallBack(const char* name, const char* param) = 0;
};

} // namespace LINKWEB
