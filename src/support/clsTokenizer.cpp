#include "support/clsTokenizer.h"

#include "support/Text.h"

namespace orvane {
namespace {

bool Contains(const std::wstring& set, wchar_t character) {
  return set.find(character) != std::wstring::npos;
}

}  // namespace

bool clsTokenizer::GetNextToken(std::wstring& strToken, std::wstring& strSeparatorUsed,
                                bool& fQuoted) {
  m_token.clear();
  strSeparatorUsed.clear();
  fQuoted = false;
  m_state = State::Nothing;
  const bool found = m_position < m_text.size();
  for (bool more = true; more && m_position < m_text.size();) {
    const wchar_t character = m_text[m_position];
    switch (CharType(character)) {
      case CharClass::Quote:
        fQuoted = true;
        more = HandleQuote(character, strSeparatorUsed);
        break;
      case CharClass::Separator:
        more = HandleSeparator(character, strSeparatorUsed);
        break;
      case CharClass::WhiteSpace:
        more = HandleWhiteSpace(character);
        break;
      case CharClass::LineEnd:
        more = HandleEOF(strSeparatorUsed);
        break;
      case CharClass::Token:
        more = HandleToken(character);
    }
  }
  strToken = m_token;
  return found;
}

clsTokenizer::CharClass clsTokenizer::CharType(wchar_t character) const {
  if (Contains(m_quoteChars, character)) return CharClass::Quote;
  if (Contains(m_separatorChars, character)) return CharClass::Separator;
  if (Contains(m_whiteSpaceChars, character)) return CharClass::WhiteSpace;
  if (Contains(m_eolChars, character)) return CharClass::LineEnd;
  return CharClass::Token;
}

void clsTokenizer::AppendToken(wchar_t character) {
  if (m_state != State::Quoted && m_convertCase == CaseUpper) character = UpperCase(character);
  if (m_state != State::Quoted && m_convertCase == CaseLower) character = LowerCase(character);
  m_token += character;
}

bool clsTokenizer::HandleWhiteSpace(wchar_t character) {
  ++m_position;
  if (m_state == State::Token) m_state = State::Complete;
  if (m_state == State::Quoted) AppendToken(character);
  return true;
}

bool clsTokenizer::HandleToken(wchar_t character) {
  if (m_state == State::Complete) return false;
  if (m_state == State::Nothing) m_state = State::Token;
  AppendToken(character);
  ++m_position;
  return true;
}

bool clsTokenizer::HandleSeparator(wchar_t character, std::wstring& used) {
  ++m_position;
  if (m_state == State::Quoted) {
    AppendToken(character);
    return true;
  }
  used = character;
  return false;
}

bool clsTokenizer::HandleQuote(wchar_t character, std::wstring& used) {
  if (m_state == State::Token || m_state == State::Complete) {
    used = character;  // left where it is: it opens the next token
    return false;
  }
  ++m_position;
  if (m_state == State::Nothing) {
    m_state = State::Quoted;
    m_openQuote = character;
  } else if (character == m_openQuote) {
    m_state = State::Complete;
  } else {
    AppendToken(character);
  }
  return true;
}

bool clsTokenizer::HandleEOF(std::wstring& used) {
  for (; m_position < m_text.size() && Contains(m_eolChars, m_text[m_position]); ++m_position)
    used = m_text[m_position];
  m_state = State::Token;
  return false;
}

}  // namespace orvane
