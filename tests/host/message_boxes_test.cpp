#include "host/ui/message_boxes.h"

#include "tests/host/host_fixture.h"
#include "tests/support/tables.h"

namespace tests {
namespace {

using namespace adsk::core;
using headless::MessageBox;
using headless::MessageBoxes;

struct ButtonsCase {
  std::string name;
  MessageBoxButtonTypes buttons;
  std::vector<DialogResults> possible;
};

class MessageBoxButtons : public testing::Test, public WithRow<ButtonsCase> {};

TABLE(OfEveryKind, MessageBoxButtons, byName,
      {{"Ok", OKButtonType, {DialogOK}},
       {"OkCancel", OKCancelButtonType, {DialogOK, DialogCancel}},
       {"RetryCancel", RetryCancelButtonType, {DialogCancel, DialogYes}},
       {"YesNo", YesNoButtonType, {DialogYes, DialogNo}},
       {"YesNoCancel", YesNoCancelButtonType, {DialogCancel, DialogYes, DialogNo}}});

TABLE_TEST(MessageBoxButtons, DecideWhichAnswersThereAre) {
  std::vector<DialogResults> got;
  for (const DialogResults answer : {DialogOK, DialogCancel, DialogYes, DialogNo}) {
    MessageBoxes boxes;
    boxes.answerAlways(answer);
    if (boxes.show({"", "", row().buttons}) == answer) {
      got.push_back(answer);
    }
  }
  EXPECT_EQ(got, row().possible);
}

const MessageBox question{"Sure?", "Title", YesNoButtonType, QuestionIconType};

TEST(MessageBoxAnswers, ComeFromTheQueueFirst) {
  MessageBoxes boxes;
  boxes.answerAlways(DialogNo);
  boxes.answerNext(DialogYes);
  EXPECT_EQ(boxes.show(question), DialogYes);
  EXPECT_EQ(boxes.show(question), DialogNo);
  EXPECT_EQ(boxes.unanswered(), 0U);
}

TEST(MessageBoxAnswers, AreAskedForWhenNoneWasPrepared) {
  MessageBoxes boxes;
  boxes.askBy([](const MessageBox& asked) { return asked.text == "Sure?" ? DialogYes : DialogNo; });
  EXPECT_EQ(boxes.show(question), DialogYes);
  boxes.answerNext(DialogNo);
  EXPECT_EQ(boxes.show(question), DialogNo);
}

TEST(MessageBoxAnswers, AreAnErrorWhenNobodyGivesOne) {
  MessageBoxes boxes;
  EXPECT_EQ(boxes.show(question), DialogError);
  EXPECT_EQ(boxes.unanswered(), 1U);
}

TEST(MessageBoxAnswers, AreAnErrorWhenTheBoxHasNoSuchButton) {
  MessageBoxes boxes;
  boxes.answerNext(DialogCancel);
  EXPECT_EQ(boxes.show(question), DialogError);
  EXPECT_EQ(boxes.unanswered(), 1U);
}

TEST(MessageBoxAnswers, AreNotUsedUpByNotices) {
  MessageBoxes boxes;
  boxes.answerNext(DialogYes);
  EXPECT_EQ(boxes.show({"Done.", ""}), DialogOK);
  EXPECT_EQ(boxes.show(question), DialogYes);
}

using MessageBoxOfTheHost = HostTest;

TEST_F(MessageBoxOfTheHost, IsKeptAsItWasShown) {
  session().answerNext(DialogNo);
  EXPECT_EQ(ui()->messageBox("Sure?", "Title", YesNoButtonType, QuestionIconType), DialogNo);
  ASSERT_EQ(session().messageBoxes().size(), 1U);
  const MessageBox& shown = session().messageBoxes().front();
  EXPECT_EQ(shown.text + shown.title, "Sure?Title");
  EXPECT_EQ(shown.buttons, YesNoButtonType);
  EXPECT_EQ(shown.icon, QuestionIconType);
  EXPECT_EQ(shown.answer, DialogNo);
}

TEST_F(MessageBoxOfTheHost, IsAPlainNoticeByDefault) {
  EXPECT_EQ(ui()->messageBox("Done."), DialogOK);
  const MessageBox& shown = session().messageBoxes().front();
  EXPECT_EQ(shown.title, "");
  EXPECT_EQ(shown.buttons, OKButtonType);
  EXPECT_EQ(shown.icon, NoIconIconType);
}

TEST_F(MessageBoxOfTheHost, IsAnErrorWhenTheCallFails) {
  host().gate().setFault({1, headless::FaultAnswer::Nothing, "UserInterface.messageBox"});
  EXPECT_EQ(ui()->messageBox("Done."), DialogError);
  EXPECT_TRUE(session().messageBoxes().empty());
}

}  // namespace
}  // namespace tests
