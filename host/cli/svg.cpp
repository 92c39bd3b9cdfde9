#include "host/cli/svg.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <utility>

#include "host/cli/text_layout.h"

namespace headless::cli {

namespace {

constexpr const char* fontFamily = "'Open Sans', 'Segoe UI', 'Noto Sans', sans-serif";
constexpr double superscriptSize = 0.7;
constexpr double superscriptRise = 0.35;

// Thousandths of the font's size, of the characters from the blank on; others are as wide as a digit.
constexpr unsigned char firstMeasured = ' ';
constexpr std::array<int, 95> widths = {260, 267, 401, 646, 572, 823, 730, 221, 296, 296, 552, 572, 245, 322, 266, 367,
                                        572, 572, 572, 572, 572, 572, 572, 572, 572, 572, 266, 266, 572, 572, 572, 429,
                                        899, 633, 648, 631, 729, 556, 516, 728, 738, 279, 267, 614, 519, 903, 754, 779,
                                        602, 779, 618, 549, 553, 728, 595, 926, 577, 560, 571, 329, 367, 329, 542, 448,
                                        577, 556, 613, 476, 613, 561, 339, 548, 614, 253, 253, 525, 253, 930, 614, 604,
                                        613, 613, 408, 477, 353, 614, 501, 778, 524, 504, 468, 379, 551, 379, 572};
constexpr int otherWidth = 572;
constexpr double boldWidth = 1.07;

std::string number(double value) {
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "%.6g", value);
  return text.data();
}

std::string attribute(const char* name, std::string_view value) {
  return " " + std::string(name) + "=\"" + escapedXml(value) + "\"";
}

std::string attribute(const char* name, double value) {
  return attribute(name, number(value));
}

std::string attributes(const Paint& paint) {
  std::string text = attribute("fill", paint.fill.empty() ? "none" : paint.fill);
  if (!paint.line.empty()) {
    text += attribute("stroke", paint.line) + attribute("stroke-width", paint.lineWidth);
  }
  return text;
}

std::string attributes(const TextStyle& style) {
  std::string text = attribute("font-size", style.size) + attribute("fill", style.colour);
  if (style.isBold) {
    text += attribute("font-weight", "bold");
  }
  if (style.anchor != TextAnchor::Start) {
    text += attribute("text-anchor", style.anchor == TextAnchor::Middle ? "middle" : "end");
  }
  return text;
}

double drawnWidthOf(const TextRun& run, double size) {
  return textWidth(run.text, run.isSuperscript ? size * superscriptSize : size, run.isBold);
}

/// Splits pieces so that each has at most one blank or line break, at its end: the places where lines may be broken.
std::vector<TextRun> breakablePieces(const std::vector<TextRun>& runs) {
  std::vector<TextRun> pieces;
  for (const TextRun& run : runs) {
    for (std::size_t start = 0; start < run.text.size();) {
      const std::size_t end = std::min(run.text.find_first_of(" \n", start), run.text.size() - 1) + 1;
      pieces.push_back({run.text.substr(start, end - start), run.isBold, run.isSuperscript});
      start = end;
    }
  }
  return pieces;
}

bool endsLine(const TextRun& piece) {
  return piece.text.back() == '\n';
}

bool endsWord(const TextRun& piece) {
  return piece.text.back() == ' ' || endsLine(piece);
}

/// Fills lines word by word; a word may consist of pieces in several styles.
class LineFiller {
 public:
  LineFiller(double linePixels, double textSize) : pixels(linePixels), size(textSize) {}

  void add(TextRun piece) {
    const bool isWordComplete = endsWord(piece);
    const bool isLineComplete = endsLine(piece);
    if (isLineComplete) {
      piece.text.pop_back();
    }
    wordWidth += drawnWidthOf(piece, size);
    word.push_back(std::move(piece));
    if (isWordComplete) {
      finishWord();
    }
    if (isLineComplete) {
      startLine();
    }
  }

  std::vector<std::vector<TextRun>> lines() {
    finishWord();
    return filled;
  }

 private:
  void finishWord() {
    if (lineWidth > 0 && lineWidth + wordWidth > pixels) {
      startLine();
    }
    for (TextRun& piece : word) {
      append(std::move(piece));
    }
    lineWidth += wordWidth;
    word.clear();
    wordWidth = 0;
  }

  void append(TextRun piece) {
    std::vector<TextRun>& line = filled.back();
    if (!line.empty() && line.back().isBold == piece.isBold && line.back().isSuperscript == piece.isSuperscript) {
      line.back().text += piece.text;
    } else if (!piece.text.empty()) {
      line.push_back(std::move(piece));
    }
  }

  void startLine() {
    filled.emplace_back();
    lineWidth = 0;
  }

  double pixels;
  double size;
  std::vector<std::vector<TextRun>> filled{1};
  double lineWidth = 0;
  std::vector<TextRun> word;
  double wordWidth = 0;
};

}  // namespace

std::string escapedXml(std::string_view text) {
  std::string escaped;
  for (const char character : text) {
    switch (character) {
      case '&':
        escaped += "&amp;";
        break;
      case '<':
        escaped += "&lt;";
        break;
      case '>':
        escaped += "&gt;";
        break;
      case '"':
        escaped += "&quot;";
        break;
      default:
        if (static_cast<unsigned char>(character) >= ' ' || character == '\n' || character == '\t') {
          escaped += character;
        }
    }
  }
  return escaped;
}

double textWidth(std::string_view text, double size, bool isBold) {
  int thousandths = 0;
  for (const char character : text) {
    const auto byte = static_cast<unsigned char>(character);
    if ((byte & 0xC0U) == 0x80U) {
      continue;
    }
    const std::size_t index = byte - std::size_t{firstMeasured};
    thousandths += byte >= firstMeasured && index < widths.size() ? widths[index] : otherWidth;
  }
  return thousandths / 1000.0 * size * (isBold ? boldWidth : 1.0);
}

std::string clippedToWidth(const std::string& text, double pixels, double size, bool isBold) {
  std::string shown = text;
  for (std::size_t columns = widthOf(text); columns > 0 && textWidth(shown, size, isBold) > pixels; --columns) {
    shown = clipped(text, columns - 1);
  }
  return shown;
}

std::vector<std::vector<TextRun>> wrappedRuns(const std::vector<TextRun>& runs, double pixels, double size) {
  LineFiller filler(pixels, size);
  for (TextRun& piece : breakablePieces(runs)) {
    filler.add(std::move(piece));
  }
  return filler.lines();
}

void Svg::rectangle(const Box& box, const Paint& paint, double cornerRadius) {
  elements += "<rect" + attribute("x", box.x) + attribute("y", box.y) + attribute("width", box.width) +
              attribute("height", box.height);
  if (cornerRadius > 0) {
    elements += attribute("rx", cornerRadius);
  }
  elements += attributes(paint) + "/>\n";
}

void Svg::circle(double x, double y, double radius, const Paint& paint) {
  elements += "<circle" + attribute("cx", x) + attribute("cy", y) + attribute("r", radius) + attributes(paint) + "/>\n";
}

void Svg::path(const std::string& data, const Paint& paint) {
  elements += "<path" + attribute("d", data) + attributes(paint) + "/>\n";
}

void Svg::text(double x, double y, std::string_view text, const TextStyle& style) {
  elements +=
      "<text" + attribute("x", x) + attribute("y", y) + attributes(style) + ">" + escapedXml(text) + "</text>\n";
}

void Svg::text(double x, double y, const std::vector<TextRun>& runs, const TextStyle& style) {
  elements += "<text" + attribute("x", x) + attribute("y", y) + attributes(style) + ">";
  double rise = 0;
  for (const TextRun& run : runs) {
    const double wanted = run.isSuperscript ? style.size * superscriptRise : 0;
    elements += "<tspan";
    if (wanted != rise) {
      elements += attribute("dy", rise - wanted);
      rise = wanted;
    }
    if (run.isBold) {
      elements += attribute("font-weight", "bold");
    }
    if (run.isSuperscript) {
      elements += attribute("font-size", style.size * superscriptSize);
    }
    elements += ">" + escapedXml(run.text) + "</tspan>";
  }
  elements += "</text>\n";
}

void Svg::image(const Box& box, const std::string& address) {
  elements += "<image" + attribute("x", box.x) + attribute("y", box.y) + attribute("width", box.width) +
              attribute("height", box.height) + attribute("href", address) + "/>\n";
}

void Svg::openGroup(std::string_view name, bool isDisabled) {
  elements += isDisabled ? "<g opacity=\"0.45\" aria-disabled=\"true\">" : "<g>";
  elements += "<title>" + escapedXml(name) + "</title>\n";
}

void Svg::closeGroup() {
  elements += "</g>\n";
}

std::string Svg::document(double width, double height, std::string_view name) const {
  return "<svg xmlns=\"http://www.w3.org/2000/svg\"" + attribute("width", width) + attribute("height", height) +
         attribute("viewBox", "0 0 " + number(width) + " " + number(height)) + attribute("font-family", fontFamily) +
         " xml:space=\"preserve\">\n<title>" + escapedXml(name) + "</title>\n" + elements + "</svg>\n";
}

}  // namespace headless::cli
