// Several changes that one call of the API makes.
#pragma once

#include "host/model/history.h"

namespace headless {

/// Makes the changes of one call one step when no command's transaction is open.
class OneStep {
 public:
  explicit OneStep(model::History& changed) : history(changed), isOwn(!changed.isOpen()) {
    if (isOwn) {
      history.begin();
    }
  }
  ~OneStep() {
    if (isOwn) {
      history.commit("Edit");
    }
  }
  OneStep(const OneStep&) = delete;
  OneStep& operator=(const OneStep&) = delete;

 private:
  model::History& history;
  bool isOwn;
};

}  // namespace headless
