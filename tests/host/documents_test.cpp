#include "host/runtime/documents.h"

#include "tests/host/host_fixture.h"

namespace tests {
namespace {

using namespace adsk::core;
using adsk::fusion::Design;

class OpenDocuments : public HostTest {
 protected:
  static Ptr<Documents> documents() { return Application::get()->documents(); }
  static Ptr<Document> add() { return documents()->add(FusionDesignDocumentType); }
  static Ptr<Design> designOf(const Ptr<Document>& document) {
    return document->products()->itemByProductType("DesignProductType");
  }
};

TEST_F(OpenDocuments, GetANewOneThatIsWorkedOn) {
  const auto document = add();
  ASSERT_TRUE(document);
  EXPECT_TRUE(document->isActive() && document->isVisible());
  EXPECT_FALSE(document->isSaved() || document->isModified());
  EXPECT_EQ(Ptr<Base>(Application::get()->activeProduct()), Ptr<Base>(designOf(document)));
  EXPECT_FALSE(document->products()->itemByProductType("CAMProductType"));
  EXPECT_EQ(designOf(document)->rootComponent()->bRepBodies()->count(), 0U);
}

TEST_F(OpenDocuments, KeepTheOthersBehindTheNewOne) {
  session().openDesign(machine());
  const Ptr<Design> before = Application::get()->activeProduct();
  const auto document = add();
  EXPECT_TRUE(before->isValid());
  EXPECT_EQ(before->rootComponent()->name(), "Machine");
  EXPECT_TRUE(document->close(false));
  EXPECT_FALSE(document->isValid());
  EXPECT_EQ(Ptr<Base>(Application::get()->activeProduct()), Ptr<Base>(before));
  session().pick("Base");
}

TEST_F(OpenDocuments, MayBeClosedInTheBackground) {
  const auto first = add();
  const auto kept = designOf(first);
  const auto second = add();
  EXPECT_FALSE(first->isActive());
  EXPECT_TRUE(first->close(true)) << "nothing was changed, so that nobody is asked";
  EXPECT_FALSE(kept->isValid());
  EXPECT_TRUE(second->isActive());
  EXPECT_EQ(takeErrors(), Log());
}

TEST_F(OpenDocuments, AreNotMadeInvisible) {
  EXPECT_FALSE(documents()->add(FusionDesignDocumentType, false));
  EXPECT_FALSE(Application::get()->activeProduct());
}

TEST_F(OpenDocuments, AreNamedBeforeTheyAreSaved) {
  const auto document = add();
  EXPECT_EQ(document->name(), "Untitled");
  EXPECT_TRUE(document->name("Colours"));
  EXPECT_EQ(document->name(), "Colours");
  EXPECT_FALSE(document->name(""));
  host().document()->isSaved = true;
  EXPECT_FALSE(document->name("Other"));
  EXPECT_EQ(document->name(), "Colours");
}

TEST_F(OpenDocuments, AskBeforeChangesAreLost) {
  const auto document = add();
  const auto library = Application::get()->materialLibraries()->item(0);
  ASSERT_TRUE(designOf(document)->appearances()->addByCopy(library->appearances()->item(0), "Copy"));
  EXPECT_TRUE(document->isModified());
  session().answerNext(DialogCancel);
  EXPECT_FALSE(document->close(true));
  EXPECT_TRUE(document->isValid());
  session().answerNext(DialogNo);
  EXPECT_TRUE(document->close(true));
  EXPECT_FALSE(document->isValid());
  EXPECT_EQ(session().messageBoxes().size(), 2U);
}

TEST_F(OpenDocuments, AreLeftWithoutAQuestionWhenNobodyWantsThemSaved) {
  const auto document = add();
  designOf(document)->appearances()->addByCopy(Application::get()->materialLibraries()->item(0)->appearances()->item(0),
                                               "Copy");
  EXPECT_TRUE(document->close(false));
  EXPECT_TRUE(session().messageBoxes().empty());
}

TEST_F(OpenDocuments, EndWithTheHost) {
  const auto list = documents();
  const auto document = add();
  end();
  EXPECT_FALSE(list->isValid() || document->isValid() || document->products());
  EXPECT_FALSE(list->add(FusionDesignDocumentType));
}

class DocumentsFromACommand : public HostDialogTest {};

TEST_F(DocumentsFromACommand, AreNeitherMadeNorClosedInItsEvents) {
  open([](const Inputs& inputs) { inputs->addStringValueInput("line", ""); });
  const Ptr<Design> design = Application::get()->activeProduct();
  bool isMade = true;
  dialog->inputChanged.then = [&](const auto& /*arguments*/) {
    isMade = Application::get()->documents()->add(FusionDesignDocumentType);
  };
  session().type("line", "x");
  EXPECT_FALSE(isMade);
  EXPECT_TRUE(session().isDialogOpen());
  EXPECT_TRUE(design->isValid());
}

TEST_F(DocumentsFromACommand, EndTheDialogWhenTheyAreMadeBesideIt) {
  open([](const Inputs& inputs) { inputs->addStringValueInput("line", ""); });
  EXPECT_TRUE(Application::get()->documents()->add(FusionDesignDocumentType));
  EXPECT_FALSE(session().isDialogOpen());
}

}  // namespace
}  // namespace tests
