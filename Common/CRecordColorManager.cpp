#include <Common/CRecordColorManager.h>

namespace XCM {

// Here and not in the header: client applications link to these two.
CRecordColorManager& CRecordColorManager::operator=(const CRecordColorManager&) = default;
CRecordColorManager& CRecordColorManager::operator=(CRecordColorManager&&) noexcept = default;

} // namespace XCM
