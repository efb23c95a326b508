#include "menudata/clsOptions.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "menudata/World.h"

namespace orvane {
namespace {

using test::World;

const std::wstring Key = L"Software\\Tarnwick\\Orvane\\";
constexpr Hive User = Hive::CurrentUser;

void ExpectDefaults(const clsOptions& options, const std::wstring& folder) {
  EXPECT_TRUE(options.m_bGeneralShowBackground);
  EXPECT_FALSE(options.m_bGeneralAllowMultipleInstances);
  EXPECT_TRUE(options.m_bGeneralSaveWindowPos);
  EXPECT_TRUE(options.m_bShellEnable);
  EXPECT_FALSE(options.m_bShellShowInIE);
  EXPECT_EQ(options.m_szShellConfigFile, folder + L"\\Default.cfg");
  EXPECT_EQ(options.m_lShellShowIcons, 3);
  EXPECT_FALSE(options.m_bShellUseOwnFolderBitmap);
  EXPECT_EQ(options.m_lShellShowHistoryMRU, 1);
  EXPECT_EQ(options.m_lShellMaxHistoryMRU, 5);
  EXPECT_EQ(options.m_lShellShowQuickAccessMRU, 1);
  EXPECT_EQ(options.m_lShellMaxQuickAccessMRU, 1);
  EXPECT_EQ(options.m_lShellShowFlags, 254);
  EXPECT_EQ(options.m_szShellCustomActionsFile, folder + L"\\CustomActions.ini");
  EXPECT_EQ(options.m_lShellMaxMenuText, 64);
  EXPECT_FALSE(options.m_bShellIgnoreBoundsCheck);
  EXPECT_TRUE(options.m_bShellOwnerDraw);
  EXPECT_FALSE(options.m_bDebugEnable);
  EXPECT_EQ(options.m_szDebugOutput, folder + L"\\Debug.dbg");
  EXPECT_FALSE(options.m_bDebugShowWindowsMenuInfo);
  EXPECT_FALSE(options.m_bDebugEnableInMenu);
  EXPECT_FALSE(options.m_bTimingEnable);
  EXPECT_EQ(options.m_szTimingOutput, folder + L"\\Timing.dbg");
}

TEST(clsOptions, AnEmptyRegistryGivesTheDefaults) {
  World world;
  world.options.m_lShellShowFlags = 1;
  world.options.m_bShellEnable = false;
  world.options.Reg_Load(world.Services(), Key);
  ExpectDefaults(world.options, world.desktop.system.programFolder);
  EXPECT_EQ(world.options.m_lDebugFlags, 66);
  EXPECT_EQ(world.options.m_szPath, Key);
  EXPECT_TRUE(world.desktop.effects.All().empty());
}

TEST(clsOptions, ResetLeavesFourFieldsAlone) {
  World world;
  clsOptions& options = world.options;
  options.m_szPath = L"x";
  options.m_bShellShowOpen = 4;
  options.m_lDebugFlags = 5;
  options.m_lOptions = 6;
  options.m_lShellMaxHistoryMRU = 7;
  options.Reset(world.desktop.system);
  EXPECT_EQ(options.m_szPath, L"x");
  EXPECT_EQ(options.m_bShellShowOpen, 4);
  EXPECT_EQ(options.m_lDebugFlags, 5);
  EXPECT_EQ(options.m_lOptions, 6);
  ExpectDefaults(options, world.desktop.system.programFolder);
}

/// Every registry value that is read, what is stored in it here, and whether the field took it.
struct Row {
  const wchar_t* name;
  std::variant<const wchar_t*, std::uint32_t> stored;
  std::function<bool(const clsOptions&)> taken;
};

const std::vector<Row>& Rows() {
  using O = clsOptions;
  static const std::vector<Row> rows = {
      {L"ShellEnable", 0u, [](const O& o) { return !o.m_bShellEnable; }},
      {L"ShellShowInIE", 5u, [](const O& o) { return o.m_bShellShowInIE; }},
      {L"ShellShowIcons", 2u, [](const O& o) { return o.m_lShellShowIcons == 2; }},
      {L"ShellUseOwnFolderBitmap", 1u, [](const O& o) { return o.m_bShellUseOwnFolderBitmap; }},
      {L"ShellShowHistoryMRU", 2u, [](const O& o) { return o.m_lShellShowHistoryMRU == 2; }},
      {L"ShelllMaxHistoryMRU", 9u, [](const O& o) { return o.m_lShellMaxHistoryMRU == 9; }},
      {L"ShellShowQuickAccessMRU", 0u,
       [](const O& o) { return o.m_lShellShowQuickAccessMRU == 0; }},
      {L"ShellShowFlags", 0xFFFFFFFFu, [](const O& o) { return o.m_lShellShowFlags == -1; }},
      {L"ShellConfigFile", L"  C:\\My menu.cfg ",
       [](const O& o) { return o.m_szShellConfigFile == L"C:\\My menu.cfg"; }},
      {L"ShellCustomActionsFile", L" C:\\a.ini",
       [](const O& o) { return o.m_szShellCustomActionsFile == L" C:\\a.ini"; }},
      {L"ShellMaxMenuText", 10u, [](const O& o) { return o.m_lShellMaxMenuText == 10; }},
      {L"ShellIgnoreBoundsCheck", 1u, [](const O& o) { return o.m_bShellIgnoreBoundsCheck; }},
      {L"ShellOwnerDraw", 0u, [](const O& o) { return !o.m_bShellOwnerDraw; }},
      {L"DebugFlags", 2u, [](const O& o) { return o.m_lDebugFlags == 2; }},
      {L"DebugEnable", 1u, [](const O& o) { return o.m_bDebugEnable; }},
      {L"DebugOutput", L"C:\\d.txt", [](const O& o) { return o.m_szDebugOutput == L"C:\\d.txt"; }},
      {L"DebugShowWindowsMenuInfo", 1u, [](const O& o) { return o.m_bDebugShowWindowsMenuInfo; }},
      {L"DebugEnableInMenu", 1u, [](const O& o) { return o.m_bDebugEnableInMenu; }},
      {L"TimingEnable", 1u, [](const O& o) { return o.m_bTimingEnable; }},
      {L"TimingOutput", L"C:\\t.txt",
       [](const O& o) { return o.m_szTimingOutput == L"C:\\t.txt"; }},
      {L"GeneralShowBackground", 0u, [](const O& o) { return !o.m_bGeneralShowBackground; }},
      {L"GeneralAllowMultipleInstances", 1u,
       [](const O& o) { return o.m_bGeneralAllowMultipleInstances; }},
      {L"GeneralSaveWindowPos", 0u, [](const O& o) { return !o.m_bGeneralSaveWindowPos; }},
  };
  return rows;
}

void Store(memory::Registry& registry, const Row& row) {
  if (const auto* number = std::get_if<std::uint32_t>(&row.stored))
    registry.SetNumber(User, Key, row.name, *number);
  else
    registry.SetText(User, Key, row.name, std::get<const wchar_t*>(row.stored));
}

TEST(clsOptions, LoadsEveryValueAndSavesIt) {
  World world;
  for (const Row& row : Rows()) Store(world.desktop.registry, row);
  world.desktop.registry.SetNumber(User, Key, L"ShelllMaxQuickAccessMRU", 10);
  world.options.Reg_Load(world.Services(), Key);
  for (const Row& row : Rows()) EXPECT_TRUE(row.taken(world.options)) << row.name;
  EXPECT_EQ(world.options.m_lShellMaxQuickAccessMRU, 1);

  const std::wstring other = L"Software\\Other\\";
  EXPECT_EQ(world.options.Reg_Save(world.Services(), other, false), other);
  EXPECT_EQ(world.desktop.registry.FindNumber(User, other, L"ShelllMaxQuickAccessMRU"), 1u);
  EXPECT_FALSE(world.desktop.registry.Find(User, other, L"DebugFlags"));
  clsOptions again;
  world.desktop.registry.SetNumber(User, other, L"DebugFlags", 2);
  again.Reg_Load(world.Services(), other);
  for (const Row& row : Rows()) {
    if (std::wstring(row.name) != L"ShellCustomActionsFile") {
      EXPECT_TRUE(row.taken(again)) << row.name;
    }
  }
}

TEST(clsOptions, ValuesOfTheWrongTypeLeaveTheDefaults) {
  const RegistryValue wrong[] = {{2, {}},
                                 {RegistryValue::Binary, std::vector<std::byte>(4)},
                                 {RegistryValue::Number, std::vector<std::byte>(3)},
                                 {RegistryValue::Text, std::vector<std::byte>(3)},
                                 {RegistryValue::Text, std::vector<std::byte>(4, std::byte{65})}};
  for (const RegistryValue& value : wrong) {
    World world;
    for (const Row& row : Rows()) world.desktop.registry.Set(User, Key, row.name, value);
    world.options.Reg_Load(world.Services(), Key);
    ExpectDefaults(world.options, world.desktop.system.programFolder);
    EXPECT_EQ(world.options.m_lDebugFlags, 66);
  }
}

TEST(clsOptions, AFailureAtAnyReadLeavesThatDefault) {
  for (std::size_t call = 1; call <= Rows().size() + 1; ++call) {
    World world;
    for (const Row& row : Rows()) {
      if (std::wstring(row.name) != L"DebugEnable" && std::wstring(row.name) != L"TimingEnable")
        Store(world.desktop.registry, row);
    }
    world.desktop.faults.FailCall(call);
    world.options.Reg_Load(world.Services(), Key);
    std::size_t taken = 0;
    for (const Row& row : Rows()) taken += row.taken(world.options);
    const bool failedToOpen = call == 1;
    EXPECT_GE(taken, failedToOpen ? 0 : Rows().size() - 3) << call;
  }
}

std::vector<std::wstring> WrittenValues(const memory::Effects& effects) {
  std::vector<std::wstring> names;
  for (const auto& effect : effects.All()) {
    if (effect.call != "RegSet") continue;
    for (const auto& [field, value] : effect.fields) {
      if (field == "name") names.push_back(std::get<std::wstring>(value));
    }
  }
  return names;
}

TEST(clsOptions, SavesTheDebugSettingsAlone) {
  World world;
  world.options.m_szPath = Key;
  EXPECT_EQ(world.options.Reg_Save(world.Services(), L"", true), Key);
  EXPECT_EQ(WrittenValues(world.desktop.effects),
            (std::vector<std::wstring>{L"DebugEnable", L"DebugOutput", L"DebugShowWindowsMenuInfo",
                                       L"DebugEnableInMenu"}));
}

TEST(clsOptions, SavesTheDebugSettingsFirst) {
  World world;
  world.options.Reg_Save(world.Services(), Key, false);
  const auto names = WrittenValues(world.desktop.effects);
  ASSERT_EQ(names.size(), 23u);
  EXPECT_EQ(names[0], L"DebugEnable");
  EXPECT_EQ(names[4], L"ShellEnable");
  EXPECT_EQ(names[11], L"ShelllMaxQuickAccessMRU");
  EXPECT_EQ(names[22], L"GeneralSaveWindowPos");
}

TEST(clsOptions, DebuggingWarnsAndLogsTheMachineAndTheSettings) {
  World world;
  world.desktop.files.AddFile(L"C:\\d.txt", "an old log");
  world.desktop.registry.SetNumber(User, Key, L"DebugEnable", 1);
  world.desktop.registry.SetNumber(User, Key, L"DebugFlags", clsTrace::FlagAutoCommit);
  world.desktop.registry.SetText(User, Key, L"DebugOutput", L"C:\\d.txt");
  world.options.Reg_Load(world.Services(), Key);

  const std::string log = world.desktop.files.Content(L"C:\\d.txt").value_or("");
  EXPECT_EQ(log.find("an old log"), std::string::npos);
  std::size_t place = 0;
  for (const char* line :
       {"Orvane - Orvane Shell Extension - Copyright (c) Tarnwick\r\n",
        "ComputerName: WORKSHOP\r\n", "UserName: Robin\r\n", "CompanyName: Workshop Ltd\r\n",
        "IsNT: -1\r\n", "IsWindows: 0\r\n", "OsInfo: 10.0 (Build 19045)\r\n",
        ">  ProcessSettings\r\n", "   m_bGeneralShowBackground: True\r\n",
        "   m_bShellEnable: True\r\n", "Default.cfg\r\n", "   m_lShellShowIcons: 3\r\n",
        "   m_szDebugOutput: C:\\d.txt\r\n", "Timing.dbg\r\n", "<    (Exit)\r\n"}) {
    const std::size_t found = log.find(line, place);
    ASSERT_NE(found, std::string::npos) << line << "\nnot behind\n" << log.substr(0, place);
    place = found;
  }
  ASSERT_FALSE(world.desktop.effects.All().empty());
  const auto& box = world.desktop.effects.All().front();
  EXPECT_EQ(box.call, "MessageBox");
  EXPECT_EQ(std::get<std::wstring>(box.fields[0].second), L"Orvane - Orvane Shell Extension");

  world.options.m_bDebugEnable = false;
  world.options.Reg_Save(world.Services(), Key, true);
  EXPECT_FALSE(world.debug.IsInitialised());
}

TEST(clsOptions, TimingStartsANewFile) {
  World world;
  world.desktop.files.AddFile(L"C:\\t.txt", "an old log");
  world.desktop.registry.SetNumber(User, Key, L"TimingEnable", 1);
  world.desktop.registry.SetText(User, Key, L"TimingOutput", L"C:\\t.txt");
  world.options.Reg_Load(world.Services(), Key);
  EXPECT_EQ(world.desktop.files.Content(L"C:\\t.txt"),
            "    Timing session started 01/01/2024 09:05:07\r\n");
}

}  // namespace
}  // namespace orvane
