#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "customactions/ActionScript.h"
#include "customactions/CustomAction.h"
#include "platform/Handles.h"
#include "platform/Patience.h"

namespace orvane {

class ActionsFile;
class Clock;
class clsProcess;
class CodePage;
class FileReader;
class Keyboard;
class Locale;
class MessageBoxes;
class ProfileFiles;
class Windows;
struct KeyText;
struct LocalTime;
struct MatchTarget;

/// What custom actions need of the world.
struct ActionServices {
  FileReader& files;
  ProfileFiles& profiles;
  Windows& windows;
  clsProcess& process;
  Keyboard& keyboard;
  Clock& clock;
  Locale& locale;
  MessageBoxes& boxes;
  const CodePage& codePage;
};

/// One custom action (the record), and the operations on the file of actions: an INI file with a
/// section for each action. Nothing of the file is kept between calls; an empty szPath means
/// `Path`. A number in the file that is none, or out of range, is an Error 13 or 6 to the caller.
class clsCustomActions : public CustomAction {
 public:
  explicit clsCustomActions(const ActionServices& services) : m_services(services) {}

  std::wstring Path;

  /// IDs of the actions of a type (TypeAny: all), ascending by Order, those of one Order as they
  /// stand in the file. The result is their number.
  std::int32_t LoadEx(std::vector<std::wstring>& szSectionsArray, std::int32_t lType,
                      const std::wstring& szPath, bool bIgnoreDisabled);

  /// Number of actions of a type (TypeAny: all), enabled or not.
  std::int32_t Count(std::int32_t lType, const std::wstring& szPath,
                     const Patience& patience = Patience::Chosen);

  /// Reads one action; false when it has no description.
  bool Load(const std::wstring& szId, const std::wstring& szPath);

  /// Replaces the whole section m_szId.
  void Save(const std::wstring& szPath);
  void Delete(const std::wstring& szId, const std::wstring& szPath);

  /// Gives the actions in slots 1, 2, ... those numbers as their Order; slot 0 is not used.
  void Resequence(const std::vector<std::wstring>& szIds, const std::wstring& szPath);

  /// `hWnd` when an enabled window action matches it, which this object then holds; else None.
  WindowHandle MatchWindow(WindowHandle hWnd, const std::wstring& szPath);

  // The tokens of a script: the bare names (Ex), and in their brackets.
  static std::wstring TokenItem();
  static std::wstring TokenItemEx();
  static std::wstring TokenDate();
  static std::wstring TokenDateEx();
  static std::wstring TokenPause();
  static std::wstring TokenPauseEx();
  static std::wstring TokenSelection();
  static std::wstring TokenSelectionEx();

  /// Breaks m_szActions into steps (see ParseActionScript). A pause that is no number is shown to
  /// the user. `bSuccess`: the whole script was understood.
  void BreakdownActions(ActionSteps& steps, bool& bSuccess);

  /// Plays the script into the window that has the keyboard, the item token as `szItem`. What is
  /// behind a pause may be typed after this call and this object are gone: see Keyboard::Pause.
  void SendActions(const std::wstring& szItem);

  /// The script as one text, its tokens replaced; unchanged when it is not understood.
  std::wstring BuildActionString(const std::wstring& szItem, const std::wstring& szSelection);

 private:
  const std::wstring& PathOr(const std::wstring& szPath) const;
  std::int32_t LoadEx(std::vector<std::wstring>& szSectionsArray, std::int32_t lType,
                      const ActionsFile& file, bool bIgnoreDisabled);
  bool Load(const std::wstring& szId, const ActionsFile& file);
  void Write(const std::wstring& szId, const wchar_t* key, const std::wstring& value,
             const std::wstring& szPath);

  bool MatchWindow_(const std::wstring& szId, const ActionsFile& file, const MatchTarget& target);

  std::wstring StepText(const ActionStep& step, const std::wstring& szItem,
                        const std::wstring& szSelection, const LocalTime& now);
  void AddKeys(std::vector<KeyText>& run, const ActionStep& step, const std::wstring& szItem,
               const LocalTime& now);

  ActionServices m_services;
};

}  // namespace orvane
