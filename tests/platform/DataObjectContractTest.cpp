#include "memory/DataObject.h"

#include "platform/AnyDesktop.h"
#ifdef _WIN32
#include <shlobj.h>

#include "win32/DataObject.h"
#endif

namespace orvane {
namespace {

class DataObjectContract : public AnyDisk {
 protected:
  std::unique_ptr<DataObject> ObjectOf(const std::wstring& path) {
#ifdef _WIN32
    if (IsReal()) return TheShellsObjectOf(path);
#endif
    return std::unique_ptr<DataObject>(new memory::DataObject{path});
  }

#ifdef _WIN32
 private:
  static std::unique_ptr<DataObject> TheShellsObjectOf(const std::wstring& path) {
    win32::ComPointer<IShellItem> item;
    SHCreateItemFromParsingName(path.c_str(), nullptr, IID_IShellItem,
                                reinterpret_cast<void**>(item.Out()));
    win32::ComPointer<IDataObject> object;
    if (item) {
      item->BindToHandler(nullptr, BHID_DataObject, IID_IDataObject,
                          reinterpret_cast<void**>(object.Out()));
    }
    return std::make_unique<win32::DataObject>(object.operator->());
  }
#endif
};

INSTANTIATE_TEST_SUITE_P(, DataObjectContract, EveryDesktop(), NameOfDesktop);

TEST_P(DataObjectContract, NamesItsFilesAsOftenAsAsked) {
  const std::wstring name = L"R&D \u00e4\u05d0.txt";
  Put(name);
  const auto object = ObjectOf(At(name));
  FileNames names;
  names.Add(L"before");
  for (int i = 0; i < 2; ++i) {
    ASSERT_EQ(object->Files(names), 0);
    EXPECT_EQ(names.Count(), 1u);
    auto rest = names.All();
    EXPECT_EQ(FileNames::Take(rest), At(name));
  }
}

}  // namespace
}  // namespace orvane
