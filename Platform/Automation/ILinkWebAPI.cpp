#include <Platform/Automation/ILinkWebAPI.h>

namespace LINKWEB {

ILinkWebAPI::ILinkWebAPI() = default;
ILinkWebAPI::~ILinkWebAPI() = default;

} // namespace LINKWEB
