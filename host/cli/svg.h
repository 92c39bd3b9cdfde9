// Drawings as SVG text: shapes, icons and lines of text, measured well enough to break and to cut them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "host/ui/markup.h"

namespace headless::cli {

/// A rectangle in pixels, from its upper left corner.
struct Box {
  double x = 0;
  double y = 0;
  double width = 0;
  double height = 0;

  double right() const { return x + width; }
  double bottom() const { return y + height; }
};

/// How a shape is painted; empty colours paint nothing.
struct Paint {
  std::string fill;
  std::string line;
  double lineWidth = 1;
};

enum class TextAnchor { Start, Middle, End };

/// How a line of text is set.
struct TextStyle {
  double size = 12;
  std::string colour = "#23282e";
  bool isBold = false;
  TextAnchor anchor = TextAnchor::Start;
};

/// The text with everything escaped that means something in XML; control characters, which XML cannot hold, are left
/// out.
std::string escapedXml(std::string_view text);

/// Pixels that a line of text takes, by the widths of an ordinary sans-serif font.
double textWidth(std::string_view text, double size, bool isBold = false);

/// The text, cut to that many pixels; the last character is "…" when something is missing.
std::string clippedToWidth(const std::string& text, double pixels, double size, bool isBold = false);

/// The pieces of a text in lines of at most that many pixels, broken at blanks where there are some, and at its own
/// line breaks. At least one line, which may be empty.
std::vector<std::vector<TextRun>> wrappedRuns(const std::vector<TextRun>& runs, double pixels, double size);

/// A drawing that grows. What is added later lies above.
class Svg {
 public:
  void rectangle(const Box& box, const Paint& paint, double cornerRadius = 0);
  void circle(double x, double y, double radius, const Paint& paint);
  /// A path in SVG's own words.
  void path(const std::string& data, const Paint& paint);
  /// A line of text on the base line `y`.
  void text(double x, double y, std::string_view text, const TextStyle& style = {});
  /// The same in several styles.
  void text(double x, double y, const std::vector<TextRun>& runs, const TextStyle& style = {});
  /// A picture by its address.
  void image(const Box& box, const std::string& address);
  /// Everything until the matching closeGroup() is one element with the name that a reader of the picture is told, and
  /// pale and marked as disabled when it cannot be used.
  void openGroup(std::string_view name, bool isDisabled = false);
  void closeGroup();

  /// The whole drawing as a file's content; `name` is its title.
  std::string document(double width, double height, std::string_view name) const;
  /// Puts another drawing on top.
  void add(const Svg& other) { elements += other.elements; }

 private:
  std::string elements;
};

}  // namespace headless::cli
