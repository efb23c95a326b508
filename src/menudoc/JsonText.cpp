#include "menudoc/JsonText.h"

#include <utility>

namespace orvane {
namespace {

using Json = nlohmann::json;

/// Builds the value of a text. The library's own builder does not see keys that stand twice, and
/// its hook for that takes quadratic time in a long list.
class Builder : public nlohmann::json_sax<Json> {
 public:
  explicit Builder(JsonText& result) : m_result(result) {}

  bool null() override { return Put({}); }
  bool boolean(bool value) override { return Put(value); }
  bool number_integer(number_integer_t value) override { return Put(value); }
  bool number_unsigned(number_unsigned_t value) override { return Put(value); }
  bool number_float(number_float_t value, const string_t&) override { return Put(value); }
  bool string(string_t& value) override { return Put(std::move(value)); }
  bool binary(binary_t&) override { return false; }  // JSON as text has none
  bool start_object(std::size_t) override { return Open(Json::object()); }
  bool start_array(std::size_t) override { return Open(Json::array()); }
  bool end_object() override { return Close(); }
  bool end_array() override { return Close(); }

  bool key(string_t& name) override {
    Level& object = m_open.back();
    const auto [member, isNew] = object.value->get_ref<Json::object_t&>().emplace(name, nullptr);
    object.key = std::move(name);
    object.member = isNew ? &member->second : &m_unseen;
    if (!isNew) m_result.twice.push_back(Place());
    return true;
  }

  bool parse_error(std::size_t, const std::string&, const Json::exception& error) override {
    // "[json.exception.parse_error.101] parse error at line 3, column 5: ...; last read: '...'".
    // What was read last may be of any length and no UTF-8.
    const std::string message = error.what();
    const std::size_t start = message.find("] ") + 2;
    m_result.error = message.substr(start, message.find("; last read: ") - start);
    return false;
  }

 private:
  struct Level {
    Json* value;
    std::string key = {};
    Json* member = nullptr;  // the value of the key
  };
  // Room for a menu of the greatest depth: an object and a list for each popup.
  static constexpr std::size_t MaxLevels = 2500;

  Json* Put(Json value) {
    Json* place = &m_result.value;
    if (!m_open.empty()) {
      const Level& level = m_open.back();
      place = level.value->is_array() ? &level.value->emplace_back() : level.member;
    }
    *place = std::move(value);
    return place;
  }

  bool Open(Json value) {
    if (m_open.size() == MaxLevels) {
      m_result.error = "lists and objects are nested deeper than " + std::to_string(MaxLevels);
      return false;
    }
    m_open.push_back({Put(std::move(value))});
    return true;
  }

  bool Close() {
    m_open.pop_back();
    return true;
  }

  std::string Place() const {
    std::string place;
    for (const Level& level : m_open) {
      place = level.value->is_array() ? ElementPlace(place, level.value->size() - 1)
                                      : MemberPlace(place, level.key);
    }
    return place;
  }

  JsonText& m_result;
  std::vector<Level> m_open;
  Json m_unseen;  // takes the value of a key that stands there twice
};

}  // namespace

JsonText ReadJson(std::string_view text) {
  JsonText result;
  Builder builder(result);
  Json::sax_parse(text, &builder, Json::input_format_t::json, true, true);
  return result;
}

std::string MemberPlace(const std::string& place, std::string_view key) {
  std::string member = place + "/";
  for (const char character : key) {
    if (character == '~')
      member += "~0";
    else if (character == '/')
      member += "~1";
    else
      member += character;
  }
  return member;
}

std::string ElementPlace(const std::string& place, std::size_t index) {
  return place + "/" + std::to_string(index);
}

}  // namespace orvane
