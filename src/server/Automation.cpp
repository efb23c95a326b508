#include "server/Automation.h"

#include <oleauto.h>

#include "server/Module.h"

namespace orvane::server {

ITypeInfo* TypeInfo::Get(HRESULT& result) {
  result = S_OK;
  if (m_info) return m_info;
  ITypeLib* library = nullptr;
  result = LoadTypeLibEx(Module::Path().c_str(), REGKIND_NONE, &library);
  if (FAILED(result)) return nullptr;
  result = library->GetTypeInfoOfGuid(m_iid, &m_info);
  library->Release();
  return m_info;
}

}  // namespace orvane::server
