#include <gtest/gtest.h>

#include <cstring>

#include "host/Com.h"
#include "host/Definition.h"
#include "host/Scene.h"
#include "menudata/clsOrvaneData.h"

namespace orvane::host {
namespace {

constexpr char Untouched = 'x';

// What GetCommandString leaves in a buffer of 80 bytes, of which it is told that it may use some.
std::string Answer(IContextMenu3* handler, UINT_PTR offset, UINT what, UINT size) {
  std::string bytes(80, Untouched);
  EXPECT_EQ(handler->GetCommandString(offset, what, nullptr, bytes.data(), size), S_OK);
  return bytes;
}

std::string Filled(std::string text) {
  text.resize(80, Untouched);
  return text;
}

std::string Wide(const std::wstring& text) {
  const auto* bytes = reinterpret_cast<const char*>(text.c_str());
  return std::string(bytes, (text.size() + 1) * sizeof(wchar_t));
}

TEST(CommandString, StaysWithinTheBufferForEveryRequest) {
  const Apartment apartment;
  Scene scene;
  scene.PlainText();
  scene.Set(L"ShellConfigFile", scene.Path(L"Menu.cfg"));
  WriteDefinition(scene.Path(L"Menu.cfg"), {{0, clsOrvaneData::TypeRoot, 0, {L"Orvane"}},
                                            {1, clsOrvaneData::TypeFile, 0, {L"C:\\a.txt", L"A"}}});
  RightClick click(scene.Folder(), nullptr);
  ASSERT_GT(click.Query(100), 0);
  IContextMenu3* handler = click.handler.Get();
  const std::string help = "Orvane File - C:\\a.txt";
  const std::wstring wideHelp(help.begin(), help.end());

  EXPECT_EQ(Answer(handler, 0, GCS_VERBA, 80), Filled("Item0" + std::string(1, 0)));
  EXPECT_EQ(Answer(handler, 0, GCS_HELPTEXTA, 80), Filled(help + std::string(1, 0)));
  EXPECT_EQ(Answer(handler, 0, GCS_HELPTEXTW, 40), Filled(Wide(wideHelp)));
  for (const UINT size : {1u, 2u, 7u}) {
    EXPECT_EQ(Answer(handler, 0, GCS_VERBA, size),
              Filled(std::string("Item0").substr(0, size - 1) + std::string(1, 0)));
    EXPECT_EQ(Answer(handler, 0, GCS_HELPTEXTA, size),
              Filled(help.substr(0, size - 1) + std::string(1, 0)));
    EXPECT_EQ(Answer(handler, 0, GCS_HELPTEXTW, size), Filled(Wide(wideHelp.substr(0, size - 1))));
    EXPECT_EQ(Answer(handler, 0, GCS_VERBW, size), Filled(std::string(1, 0)));
    EXPECT_EQ(Answer(handler, 0, GCS_VALIDATEA, size), Filled(std::string(1, 0)));
  }
  for (const UINT what : {GCS_VERBA, GCS_HELPTEXTA, GCS_VALIDATEA, GCS_VERBW, GCS_HELPTEXTW}) {
    EXPECT_EQ(Answer(handler, 0, what, 0), Filled("")) << what;
    EXPECT_EQ(Answer(handler, 30000, what, 80), Filled("")) << "no such entry";
    EXPECT_EQ(handler->GetCommandString(0, what, nullptr, nullptr, 80), S_OK);
  }
}

}  // namespace
}  // namespace orvane::host
