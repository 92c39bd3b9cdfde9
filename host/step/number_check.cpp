#include "host/step/number_check.h"

#include <cmath>
#include <cstdlib>
#include <utility>

namespace headless::step {

namespace {

constexpr double limit = 1e150;
constexpr std::size_t mostDigits = 150;

}  // namespace

void NumberCheck::take(std::string_view piece) {
  for (const char character : piece) {
    const char last = std::exchange(previous, character);
    switch (where) {
      case Where::Data:
        takeData(character, last);
        break;
      case Where::Text:
        where = character == '\'' ? Where::Data : Where::Text;
        break;
      case Where::Comment:
        where = last == '*' && character == '/' ? Where::Data : Where::Comment;
        break;
    }
  }
}

void NumberCheck::takeData(char character, char last) {
  switch (character) {
    case ' ':
    case '\t':
    case '\r':
    case '\n':
    case '(':
    case ')':
    case ',':
    case ';':
      endWord();
      break;
    case '=':
      endWord();
      entity = reference;
      break;
    case '\'':
      where = Where::Text;
      break;
    case '*':
      if (last == '/') {
        where = Where::Comment;
        previous = '\0';  // in "/*/" the comment goes on
        word.clear();
      }
      break;
    default:
      word += character;
  }
}

void NumberCheck::endWord() {
  if (word.empty()) {
    return;
  }
  if (word.front() == '#') {
    reference = word;
  } else if (word.front() < 'A' && (word.find('E') != std::string::npos || word.size() > mostDigits)) {
    const double number = std::strtod(word.c_str(), nullptr);
    if (damage.empty() && !(std::abs(number) < limit)) {
      damage = entity + " (" + word + ")";
    }
  }
  word.clear();
}

}  // namespace headless::step
