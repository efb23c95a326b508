#include "menudata/clsOptions.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "menudata/World.h"

namespace orvane {
namespace {

using test::World;
using Options = clsOptions;

const std::wstring Key = L"Software\\Tarnwick\\Orvane\\";
constexpr Hive User = Hive::CurrentUser;

/// A registry value, the setting that it is, and what is stored in it here: never the default.
struct Row {
  const wchar_t* name;
  std::variant<bool Options::*, std::int32_t Options::*, std::wstring Options::*> setting;
  std::variant<std::uint32_t, const wchar_t*> stored;
};

constexpr Row Rows[] = {
    {L"ShellEnable", &Options::m_bShellEnable, 0u},
    {L"ShellShowInIE", &Options::m_bShellShowInIE, 5u},
    {L"ShellShowIcons", &Options::m_lShellShowIcons, 2u},
    {L"ShellUseOwnFolderBitmap", &Options::m_bShellUseOwnFolderBitmap, 1u},
    {L"ShellShowHistoryMRU", &Options::m_lShellShowHistoryMRU, 2u},
    {L"ShelllMaxHistoryMRU", &Options::m_lShellMaxHistoryMRU, 9u},
    {L"ShellShowQuickAccessMRU", &Options::m_lShellShowQuickAccessMRU, 0u},
    {L"ShellShowFlags", &Options::m_lShellShowFlags, 0xFFFFFFFFu},
    {L"ShellConfigFile", &Options::m_szShellConfigFile, L"C:\\My menu.cfg"},
    {L"ShellCustomActionsFile", &Options::m_szShellCustomActionsFile, L" C:\\a.ini"},
    {L"ShellMaxMenuText", &Options::m_lShellMaxMenuText, 10u},
    {L"ShellIgnoreBoundsCheck", &Options::m_bShellIgnoreBoundsCheck, 1u},
    {L"ShellOwnerDraw", &Options::m_bShellOwnerDraw, 0u},
    {L"DebugFlags", &Options::m_lDebugFlags, 2u},
    {L"DebugEnable", &Options::m_bDebugEnable, 1u},
    {L"DebugOutput", &Options::m_szDebugOutput, L"C:\\d.txt"},
    {L"DebugShowWindowsMenuInfo", &Options::m_bDebugShowWindowsMenuInfo, 1u},
    {L"DebugEnableInMenu", &Options::m_bDebugEnableInMenu, 1u},
    {L"TimingEnable", &Options::m_bTimingEnable, 1u},
    {L"TimingOutput", &Options::m_szTimingOutput, L"C:\\t.txt"},
    {L"GeneralShowBackground", &Options::m_bGeneralShowBackground, 0u},
    {L"GeneralAllowMultipleInstances", &Options::m_bGeneralAllowMultipleInstances, 1u},
    {L"GeneralSaveWindowPos", &Options::m_bGeneralSaveWindowPos, 0u},
};

void Store(World& world) {
  for (const Row& row : Rows) {
    if (const auto* number = std::get_if<std::uint32_t>(&row.stored))
      world.desktop.registry.SetNumber(User, Key, row.name, *number);
    else
      world.desktop.registry.SetText(User, Key, row.name, std::get<const wchar_t*>(row.stored));
  }
}

/// Whether the setting is what is stored.
bool Taken(const Options& options, const Row& row) {
  if (const auto* text = std::get_if<std::wstring Options::*>(&row.setting))
    return options.**text == std::get<const wchar_t*>(row.stored);
  const auto number = std::get<std::uint32_t>(row.stored);
  if (const auto* flag = std::get_if<bool Options::*>(&row.setting))
    return options.**flag == (number != 0);
  return options.*std::get<std::int32_t Options::*>(row.setting) ==
         static_cast<std::int32_t>(number);
}

TEST(clsOptions, LoadsEveryValueAndSavesIt) {
  World world;
  Store(world);
  world.desktop.registry.SetText(User, Key, L"ShellConfigFile", L"  C:\\My menu.cfg ");
  world.desktop.registry.SetNumber(User, Key, L"ShelllMaxQuickAccessMRU", 10);
  world.options.Reg_Load(world.Services(), Key);
  for (const Row& row : Rows) EXPECT_TRUE(Taken(world.options, row)) << row.name;
  EXPECT_EQ(world.options.m_lShellMaxQuickAccessMRU, 1);

  const std::wstring other = L"Software\\Other\\";
  EXPECT_EQ(world.options.Reg_Save(world.Services(), other, false), other);
  EXPECT_EQ(world.desktop.registry.FindNumber(User, other, L"ShelllMaxQuickAccessMRU"), 1u);
  EXPECT_FALSE(world.desktop.registry.Find(User, other, L"DebugFlags"));
  world.desktop.registry.SetNumber(User, other, L"DebugFlags", 2);
  Options again;
  again.Reg_Load(world.Services(), other);
  for (const Row& row : Rows) EXPECT_TRUE(Taken(again, row)) << row.name;
}

TEST(clsOptions, AValueOfTheWrongTypeCostsNoOtherValue) {
  const RegistryValue wrong[] = {{7, {}},
                                 {RegistryValue::Binary, std::vector<std::byte>(5)},
                                 {RegistryValue::Number, std::vector<std::byte>(3)},
                                 {RegistryValue::Text, std::vector<std::byte>(3)}};
  for (const Row& spoilt : Rows) {
    for (const RegistryValue& value : wrong) {
      World world;
      Store(world);
      world.desktop.registry.Set(User, Key, spoilt.name, value);
      world.options.Reg_Load(world.Services(), Key);
      for (const Row& row : Rows)
        EXPECT_EQ(Taken(world.options, row), &row != &spoilt) << spoilt.name << ' ' << row.name;
    }
  }
}

TEST(clsOptions, WhatIsNotStoredGetsItsDefault) {
  World world;
  world.options.m_lShellShowFlags = 1;
  world.options.m_lOptions = 6;
  world.options.Reg_Load(world.Services(), Key);
  EXPECT_EQ(world.options.m_lShellShowFlags, 254);
  EXPECT_EQ(world.options.m_lDebugFlags, 66);
  EXPECT_EQ(world.options.m_lOptions, 6) << "no setting";
  EXPECT_EQ(world.options.m_szShellCustomActionsFile,
            world.desktop.system.programFolder + L"\\CustomActions.ini");
  EXPECT_TRUE(world.desktop.effects.All().empty());
}

TEST(clsOptions, LogsStartAnewAndSayWhatTheyRunWith) {
  World world;
  Store(world);
  for (const wchar_t* file : {L"C:\\d.txt", L"C:\\t.txt"})
    world.desktop.files.AddFile(file, "an old log");
  world.options.Reg_Load(world.Services(), Key);
  const std::string log = world.desktop.files.Content(L"C:\\d.txt").value_or("");
  EXPECT_EQ(log.find("an old log"), std::string::npos);
  for (const char* line :
       {"Orvane - Orvane Shell Extension - Copyright (c) Tarnwick\r\n",
        "ComputerName: WORKSHOP\r\n", "UserName: Robin\r\n", "CompanyName: Workshop Ltd\r\n",
        "IsNT: -1\r\n", "IsWindows: 0\r\n", "OsInfo: 10.0 (Build 19045)\r\n",
        ">  ProcessSettings\r\n", "   m_bShellShowInIE: True\r\n", "   m_lShellShowIcons: 2\r\n",
        "   m_szTimingOutput: C:\\t.txt\r\n"})
    EXPECT_NE(log.find(line), std::string::npos) << line << log;
  EXPECT_EQ(world.desktop.files.Content(L"C:\\t.txt"),
            "    Timing session started 01/01/2024 09:05:07\r\n");
  ASSERT_FALSE(world.desktop.effects.All().empty());
  EXPECT_EQ(world.desktop.effects.All().front().call, "MessageBox");

  world.options.m_bDebugEnable = false;
  EXPECT_EQ(world.options.Reg_Save(world.Services(), L"", true), Key) << "where it was loaded from";
  EXPECT_FALSE(world.debug.IsInitialised());
}

}  // namespace
}  // namespace orvane
