#include "host/ui/message_boxes.h"

#include <algorithm>
#include <utility>

namespace headless {

using adsk::core::DialogResults;

namespace {

std::vector<DialogResults> answersOf(adsk::core::MessageBoxButtonTypes buttons) {
  using namespace adsk::core;
  switch (buttons) {
    case OKButtonType:
      return {DialogOK};
    case OKCancelButtonType:
      return {DialogOK, DialogCancel};
    case RetryCancelButtonType:
      return {DialogYes, DialogCancel};
    case YesNoButtonType:
      return {DialogYes, DialogNo};
    case YesNoCancelButtonType:
      return {DialogYes, DialogNo, DialogCancel};
  }
  return {};
}

}  // namespace

DialogResults MessageBoxes::show(MessageBox box) {
  const std::vector<DialogResults> possible = answersOf(box.buttons);
  const auto answer = nextAnswer(box);
  if (answer && std::find(possible.begin(), possible.end(), *answer) != possible.end()) {
    box.answer = *answer;
  } else {
    ++unansweredCount;
  }
  shownBoxes.push_back(box);
  return box.answer;
}

std::optional<DialogResults> MessageBoxes::nextAnswer(const MessageBox& box) {
  // A notice needs no decision, so it does not use up an answer that is meant for a question.
  if (box.buttons == adsk::core::OKButtonType) {
    return adsk::core::DialogOK;
  }
  if (queue.empty()) {
    return standing || !person ? standing : person(box);
  }
  const DialogResults answer = queue.front();
  queue.pop_front();
  return answer;
}

}  // namespace headless
