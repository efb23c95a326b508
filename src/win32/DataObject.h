#pragma once

#include <windows.h>

#include <objidl.h>

#include "platform/DataObject.h"
#include "win32/ComPointer.h"

namespace orvane::win32 {

/// The shell's data object; keeps a reference to it.
class DataObject : public orvane::DataObject {
 public:
  explicit DataObject(IDataObject* object) : m_object(object) {}

  std::int32_t Files(FileNames& names) override;

 private:
  ComPointer<IDataObject> m_object;
};

}  // namespace orvane::win32
