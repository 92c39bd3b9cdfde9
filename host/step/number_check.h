// Finds the numbers in a STEP file that the geometry kernel would never come to an end with.
#pragma once

#include <string>
#include <string_view>

namespace headless::step {

/// Takes a file's text piece by piece, in order. Numbers count as damaged from where their squares are infinite.
class NumberCheck {
 public:
  void take(std::string_view piece);

  /// The first damaged number and the entity that has it: "#12 (1.E999)"; empty when there is none.
  const std::string& firstDamage() const { return damage; }

 private:
  enum class Where { Data, Text, Comment };

  void takeData(char character, char last);
  void endWord();

  Where where = Where::Data;
  char previous = '\0';
  /// What stands between two marks of punctuation, as far as it can matter.
  std::string word;
  std::string reference;
  std::string entity;
  std::string damage;
};

}  // namespace headless::step
