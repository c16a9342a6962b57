#pragma once

#include <UIComponentsExport.h>

namespace XCM {

/// A class without state of its own, which client applications derive from or hold; assigning one to
/// another changes nothing.
class UICOMPONENTS_EXPORT CRecordColorManager
{
public:
    CRecordColorManager() = default;
    ~CRecordColorManager() = default;
    CRecordColorManager(const CRecordColorManager&) = default;
    CRecordColorManager(CRecordColorManager&&) = default;
    CRecordColorManager& operator=(const CRecordColorManager& other);
    CRecordColorManager& operator=(CRecordColorManager&& other) noexcept;
};

} // namespace XCM
