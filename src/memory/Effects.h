#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace orvane::memory {

/// Something that left the component: a message box, a started program, a file or value written.
struct Effect {
  using Value = std::variant<std::wstring, std::int64_t, bool, std::vector<std::wstring>>;

  explicit Effect(std::string name) : call(std::move(name)) {}

  /// One field at a time, moved into its place: g++ 12 destroys variants that it did not build when
  /// memory runs out in the middle of making one, which a test lets happen.
  template <class Content>
  Effect&& With(const char* name, Content content) && {
    fields.emplace_back().first = name;
    fields.back().second = std::move(content);
    return std::move(*this);
  }

  std::string call;  // the platform operation's name, such as "MessageBox"
  std::vector<std::pair<std::string, Value>> fields;
};

/// The effects of a session on the memory desktop, in order. Every noun that changes the world
/// outside the component adds to it.
class Effects {
 public:
  void Add(Effect effect) { m_effects.push_back(std::move(effect)); }
  const std::vector<Effect>& All() const { return m_effects; }

  /// The last effect of the call whose first field is `text`; null without one.
  Effect* FindLast(std::string_view call, const std::wstring& text) {
    for (auto effect = m_effects.rbegin(); effect != m_effects.rend(); ++effect) {
      if (effect->call == call && effect->fields.front().second == Effect::Value(text)) {
        return &*effect;
      }
    }
    return nullptr;
  }

  void Clear() { m_effects.clear(); }

 private:
  std::vector<Effect> m_effects;
};

}  // namespace orvane::memory
