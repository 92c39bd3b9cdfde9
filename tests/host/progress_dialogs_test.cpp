#include "host/ui/progress_dialogs.h"

#include "tests/host/host_fixture.h"

namespace tests {
namespace {

using namespace adsk::core;

class ProgressDialogOfAClient : public HostTest {
 protected:
  Ptr<ProgressDialog> shown(bool withCancel = true) const {
    const auto dialog = ui()->createProgressDialog();
    dialog->isCancelButtonShown(withCancel);
    EXPECT_TRUE(dialog->show("Title", "%v of %m (%p)", 0, 40));
    return dialog;
  }
};

TEST_F(ProgressDialogOfAClient, IsNotThereBeforeItIsShown) {
  const auto dialog = ui()->createProgressDialog();
  EXPECT_FALSE(dialog->isShowing() || dialog->wasCancelled() || dialog->isCancelButtonShown() ||
               dialog->isBackgroundTranslucent() || dialog->hide());
  EXPECT_EQ(dialog->cancelButtonText(), "Cancel");
  EXPECT_FALSE(session().isProgressShown());
  EXPECT_EQ(refusalOf([this] { session().progress(); }), "no progress dialog is shown");
  EXPECT_EQ(refusalOf([this] { session().cancelProgress(); }), "no progress dialog is shown");
}

TEST_F(ProgressDialogOfAClient, ShowsItsNumbersInTheMessage) {
  const auto dialog = shown();
  EXPECT_TRUE(dialog->progressValue(10));
  EXPECT_EQ(session().progress().title, "Title");
  EXPECT_EQ(session().progress().message, "10 of 40 (25)");
  EXPECT_EQ(dialog->message(), "%v of %m (%p)");
  EXPECT_TRUE(dialog->message("%v%v") && dialog->title("Other"));
  EXPECT_EQ(session().progress().title + session().progress().message, "Other1010");
  EXPECT_TRUE(dialog->reset());
  EXPECT_EQ(session().progress().value, 0);
}

TEST_F(ProgressDialogOfAClient, KeepsItsValueInItsRange) {
  const auto dialog = shown();
  EXPECT_FALSE(dialog->progressValue(41) || dialog->progressValue(-1));
  EXPECT_TRUE(dialog->progressValue(40));
  EXPECT_TRUE(dialog->minimumValue(5) && dialog->maximumValue(50) && dialog->progressValue(50));
  EXPECT_EQ(dialog->minimumValue() + dialog->maximumValue() + dialog->progressValue(), 105);
  EXPECT_FALSE(dialog->show("", "", 3, 3) || dialog->show("", "", 4, 3));
}

TEST_F(ProgressDialogOfAClient, IsCancelledByAPersonOnly) {
  const auto dialog = shown();
  EXPECT_TRUE(dialog->cancelButtonText("Enough"));
  EXPECT_EQ(session().progress().cancelText, "Enough");
  EXPECT_FALSE(dialog->wasCancelled());
  session().cancelProgress();
  EXPECT_TRUE(dialog->wasCancelled());
  EXPECT_TRUE(dialog->isShowing()) << "nothing stops by itself";
  EXPECT_TRUE(dialog->hide());
  EXPECT_TRUE(dialog->wasCancelled()) << "of the latest showing";
  EXPECT_TRUE(dialog->show("Title", "", 0, 1));
  EXPECT_FALSE(dialog->wasCancelled());
}

TEST_F(ProgressDialogOfAClient, HasTheCancelButtonThatItWasShownWith) {
  const auto dialog = shown(false);
  dialog->isCancelButtonShown(true);
  EXPECT_FALSE(session().progress().hasCancelButton);
  EXPECT_EQ(refusalOf([this] { session().cancelProgress(); }), "the progress dialog has no Cancel button");
  dialog->show("Title", "", 0, 1);
  EXPECT_TRUE(session().progress().hasCancelButton);
}

TEST_F(ProgressDialogOfAClient, IsTheNewestOfSeveral) {
  const auto first = shown();
  const auto second = ui()->createProgressDialog();
  second->show("Second", "", 0, 1);
  EXPECT_EQ(session().progress().title, "Second");
  second->hide();
  EXPECT_EQ(session().progress().title, "Title");
}

TEST_F(ProgressDialogOfAClient, EndsWithTheHost) {
  const auto dialog = shown();
  end();
  EXPECT_FALSE(dialog->isValid() || dialog->isShowing());
}

class EventsOfTheHost : public HostTest {};

TEST_F(EventsOfTheHost, LetThePersonAct) {
  int times = 0;
  adsk::doEvents();
  session().whileBusy([&] { ++times; });
  adsk::doEvents();
  adsk::doEvents();
  EXPECT_EQ(times, 2);
  session().whileBusy(nullptr);
  adsk::doEvents();
  EXPECT_EQ(times, 2);
  EXPECT_EQ(host().gate().countsByName().at("adsk.doEvents"), 4U);
}

TEST_F(EventsOfTheHost, DoNotGiveThePersonsMistakesToTheModule) {
  session().whileBusy([this] { session().cancelProgress(); });
  adsk::doEvents();
  EXPECT_EQ(takeErrors(), Log({"doEvents: no progress dialog is shown"}));
}

TEST_F(EventsOfTheHost, AreNoneWithoutAHost) {
  end();
  adsk::doEvents();
}

}  // namespace
}  // namespace tests
