#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "designer/Edit.h"

namespace orvane::designer {

/// What was done to a menu, step by step, without limit: undo, redo, and whether the menu is the
/// one that was saved.
class History {
 public:
  /// Edits that are done or undone together.
  struct Step {
    std::wstring name;  // as the Edit menu calls it: "Rename"
    std::vector<Edit> edits;
  };

  void Listen(EditListener* listener) { m_listener = listener; }

  /// Hands `work` the routine that does one edit; what it does is one step. When it throws, its
  /// edits are taken back.
  using Work = std::function<void(const std::function<void(Edit)>& perform)>;
  void Do(const std::wstring& name, const Work& work);
  /// Changes the record. Changes of one item and one name that follow each other are one step until
  /// Pause, a save or another step comes between: the letters of a word are undone together.
  void Type(const std::wstring& name, MenuItem& item, clsOrvaneData data);
  void Pause() { m_typing = false; }

  /// Both do nothing when there is nothing; the answer is the step's item to be shown, or null.
  MenuItem* Undo();
  MenuItem* Redo();
  const Step* NextUndo() const { return m_done.empty() ? nullptr : &m_done.back(); }
  const Step* NextRedo() const { return m_undone.empty() ? nullptr : &m_undone.back(); }

  bool IsSaved() const { return m_saved == m_done.size(); }
  void Saved();
  void Clear();  // forgets everything, its listener included

 private:
  static constexpr std::size_t Nowhere = static_cast<std::size_t>(-1);

  void Add(Step inverse);
  Step Reverse(Step step);
  bool ContinuesTyping(const std::wstring& name, const MenuItem& item) const;

  EditListener* m_listener = nullptr;
  std::vector<Step> m_done;    // what takes each step back, in the order in which they were done
  std::vector<Step> m_undone;  // what does them again
  std::size_t m_saved = 0;     // steps done when the menu was saved
  bool m_typing = false;
};

}  // namespace orvane::designer
