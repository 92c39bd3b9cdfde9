// Message boxes: what they said and how they are answered by whoever drives the host.
#pragma once

#include <Core/CoreAll.h>

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace headless {

/// A message box as it was shown, and the answer it got.
struct MessageBox {
  std::string text;
  std::string title;
  adsk::core::MessageBoxButtonTypes buttons = adsk::core::OKButtonType;
  adsk::core::MessageBoxIconTypes icon = adsk::core::NoIconIconType;
  adsk::core::DialogResults answer = adsk::core::DialogError;
};

/// Answers boxes with OK only by OK, others from a queue, then by a standing answer, then by whoever can be asked.
class MessageBoxes {
 public:
  /// Answers the next box that has no answer yet.
  void answerNext(adsk::core::DialogResults answer) { queue.push_back(answer); }
  /// Answers all boxes that the queue does not answer.
  void answerAlways(adsk::core::DialogResults answer) { standing = answer; }
  /// Somebody to ask when no answer was prepared; may be empty. DialogError for no answer.
  void askBy(std::function<adsk::core::DialogResults(const MessageBox&)> somebody) { person = std::move(somebody); }

  /// Shows the box and gives its answer; DialogError when nobody is there to answer or the box has no such button.
  adsk::core::DialogResults show(MessageBox box);

  const std::vector<MessageBox>& shown() const { return shownBoxes; }
  /// Boxes that got no valid answer.
  std::size_t unanswered() const { return unansweredCount; }

 private:
  std::optional<adsk::core::DialogResults> nextAnswer(const MessageBox& box);

  std::deque<adsk::core::DialogResults> queue;
  std::optional<adsk::core::DialogResults> standing;
  std::function<adsk::core::DialogResults(const MessageBox&)> person;
  std::vector<MessageBox> shownBoxes;
  std::size_t unansweredCount = 0;
};

}  // namespace headless
