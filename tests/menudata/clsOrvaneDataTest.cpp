#include "menudata/clsOrvaneData.h"

#include <gtest/gtest.h>

#include "support/Error.h"

namespace orvane {
namespace {

using Data = clsOrvaneData;

struct Views {
  std::int32_t type;
  FieldText Data::*caption;
  FieldText Data::*location;
};

TEST(clsOrvaneData, CaptionAndLocationAreViewsOnTheFieldsOfTheType) {
  const Views cases[] = {
      {Data::TypeRoot, &Data::m_szRoot_Caption, nullptr},
      {Data::TypeFolder, &Data::m_szFolder_Caption, &Data::m_szFolder_Location},
      {Data::TypePopupMenu, &Data::m_szPopupMenu_caption, nullptr},
      {Data::TypeSeparator, nullptr, nullptr},
      {4, nullptr, nullptr},
      {Data::TypeFile, &Data::m_szFile_Caption, &Data::m_szFile_Location},
      {Data::TypeCustomAction, &Data::m_szAction_Caption, nullptr},
      {Data::TypeSelectionTask, &Data::m_szSelection_Caption, &Data::m_szSelection_WorkingDir},
      {Data::TypeDynamicFolder, &Data::m_szDFolder_Caption, &Data::m_szDFolder_Location},
      {Data::TypeCopyToX, &Data::m_szCopyToX_Caption, &Data::m_szCopyToX_Location},
      {Data::TypeDesigner, nullptr, nullptr},
  };
  for (const Views& row : cases) {
    Data item;
    item.m_lType = row.type;
    item.Caption(L"caption");
    item.Location(L"location");
    EXPECT_EQ(item.Caption(), row.caption ? L"caption" : L"") << row.type;
    EXPECT_EQ(item.Location(), row.location ? L"location" : L"") << row.type;
    if (row.caption) {
      EXPECT_EQ(item.*row.caption, L"caption") << row.type;
    }
    if (row.location) {
      EXPECT_EQ(item.*row.location, L"location") << row.type;
    }
  }
}

TEST(clsOrvaneData, OptionTests) {
  Data item;
  item.m_lOptions = 9;
  EXPECT_TRUE(item.OptionsIsLeaf());
  EXPECT_FALSE(item.OptionsIsCSIDL());
  EXPECT_TRUE(item.OptionsIsBrowseAndOpen());
  item.m_lSelection_Options = 255;
  EXPECT_EQ(item.SelectionOptions_IsShortNames(), 128);
  EXPECT_EQ(item.SelectionOptions_IsRecurse(), 8);
  item.m_lCopyToX_Options = 2;
  EXPECT_EQ(item.CopyToXOptions_IsMove(), 0);
}

TEST(clsOrvaneData, SpecialFolderNumberIsTheLocationAsText) {
  const struct {
    const wchar_t* location;
    std::int32_t csidl;
    std::int32_t error;
  } cases[] = {{L"", 0, 0},          {L"   ", 0, 0}, {L"36", 36, 0},       {L" 5 ", 5, 0},
               {L"C:\\Work", 0, 13}, {L"-1", -1, 0}, {L"3000000000", 0, 6}};
  for (const auto& row : cases) {
    Data item;
    item.m_szFolder_Location = row.location;
    try {
      EXPECT_EQ(item.FolderCSIDL(), row.csidl) << row.location;
      EXPECT_EQ(row.error, 0) << row.location;
    } catch (const Error& error) {
      EXPECT_EQ(error.Number(), row.error) << row.location;
    }
  }
  Data item;
  item.FolderCSIDL(36);
  EXPECT_EQ(item.m_szFolder_Location, L"36");
}

TEST(FieldText, BehavesAsATextOfAnyContent) {
  const std::wstring zeros(L"a\0b", 3);
  FieldText text(zeros);
  EXPECT_EQ(text.size(), 3u);
  EXPECT_EQ(std::wstring(text), zeros);
  const FieldText copy = text;
  text = text;
  EXPECT_EQ(text, copy);
  text = L"";
  EXPECT_TRUE(text.empty());
  EXPECT_EQ(text, std::wstring());
  EXPECT_EQ(copy, zeros);
  EXPECT_LT(FieldText(L"a"), FieldText(L"b"));
  EXPECT_EQ(L"<" + FieldText(L"x") + L">", L"<x>");
  const std::wstring& reference = copy;
  EXPECT_EQ(reference, zeros);
}

}  // namespace
}  // namespace orvane
