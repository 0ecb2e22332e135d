// The display mode at start: a screen of 768 lines or more is left alone; a smaller one is
// changed to 1024 x 768 only with the player's consent, asked by a window of its own before the
// main form shows, and the mode found at start is set again at the end.
#include "tests/services/services_helpers.h"
#include "tests/support/harness.h"

namespace {

// A form on a scripted screen of `width` x `height`, started with `commands` run at the first
// yields of the question (as a player answers it).
void StartOn(Harness& h, int width, int height) {
  h.platform.display = {width, height, 24, 75};
  h.platform.modes = {{width, height, 24, 75}, {1024, 768, 24, 75}, {1280, 1024, 24, 75}};
}

TEST(DisplayQuestion, AScreenOf768LinesOrMoreIsLeftAlone) {
  for (const auto& [w, h0] : std::vector<std::pair<int, int>>{{1280, 1024}, {1024, 768}, {800, 768}, {640, 900}}) {
    SCOPED_TRACE(std::to_string(w) + "x" + std::to_string(h0));
    Harness h(false);
    StartOn(h, w, h0);
    h.form->Form_Load();
    EXPECT_FALSE(h.form->AfficheForm->Visible());
    EXPECT_TRUE(h.form->isVisible());
    EXPECT_TRUE(h.platform.displayChanges.empty());
    EXPECT_EQ(h.form->LargeurÉcran, w);
    EXPECT_EQ(h.form->HauteurÉcran, h0);
    h.Drive({"click Fin"});
    // The end sets the mode in force again, with the four values found at start.
    ASSERT_EQ(h.platform.displayChanges.size(), 1u);
    EXPECT_EQ(h.platform.displayChanges[0].width, w);
    EXPECT_EQ(h.platform.displayChanges[0].height, h0);
    EXPECT_EQ(h.platform.displayChanges[0].bitsPerPixel, 24);
    EXPECT_EQ(h.platform.displayChanges[0].frequency, 75);
  }
}

TEST(DisplayQuestion, ConsentChangesTo1024x768AndTheEndGivesTheModeBack) {
  Harness h(false);
  StartOn(h, 800, 600);
  JeuPoker& f = *h.form;
  bool asked = false;
  h.platform.AtYield(3, [&] {
    asked = f.AfficheForm->Visible() && !f.isVisible();
    EXPECT_EQ(f.AfficheLabel(0).Caption(), QString::fromUtf8("La résolution doit être changée en 1024 X 768"));
    EXPECT_EQ(f.AfficheLabel(1).Caption(), QString::fromUtf8("Elle sera restituée en sortant du programme"));
    EXPECT_EQ(f.OkOuiCmd->Caption(), QString::fromUtf8("Je suis d'accord"));
    EXPECT_EQ(f.OkNonCmd->Caption(), QString::fromUtf8("Je ne suis pas d'accord"));
    EXPECT_TRUE(h.Drive1("get AfficheLogoWeb.Address").endsWith("/logoalb200.htm"));
    EXPECT_TRUE(h.Drive({"click OkOuiCmd"}).isEmpty());
  });
  f.Form_Load();
  EXPECT_TRUE(asked);
  EXPECT_FALSE(f.AfficheForm->Visible());
  EXPECT_TRUE(f.isVisible());
  ASSERT_EQ(h.platform.displayChanges.size(), 1u);
  EXPECT_EQ(h.platform.displayChanges[0].width, 1024);
  EXPECT_EQ(h.platform.displayChanges[0].height, 768);
  EXPECT_EQ(h.platform.displayChanges[0].bitsPerPixel, 24);
  EXPECT_EQ(h.platform.displayChanges[0].frequency, 75);
  EXPECT_EQ(h.platform.display.width, 1024);
  h.Drive({"close"});
  ASSERT_EQ(h.platform.displayChanges.size(), 2u);
  EXPECT_EQ(h.platform.display.width, 800);
  EXPECT_EQ(h.platform.display.height, 600);
}

TEST(DisplayQuestion, RefusalEndsTheProgramBeforeTheMainFormShowsWithNothingChanged) {
  Harness h(false);
  StartOn(h, 800, 600);
  h.platform.AtYield(2, [&] { h.Drive({"click OkNonCmd"}); });
  h.form->Form_Load();
  EXPECT_TRUE(h.ended);
  EXPECT_FALSE(h.form->isVisible());
  EXPECT_TRUE(h.platform.displayChanges.empty());
  EXPECT_TRUE(h.platform.mciCommands.empty());
}

TEST(DisplayQuestion, TheToolAnswersTheQuestionInsideItsYieldsAndReportsTheMode) {
  const services::ToolResult yes = services::RunDrive(
      {"display", "get AfficheForm.Visible", "get JeuPoker.Visible", "click OkOuiCmd", "display", "click Fin"},
      {"--screen", "800x600"});
  EXPECT_EQ(yes.exitCode, 0);
  EXPECT_EQ(yes.lines, (QStringList{"display=800x600", "AfficheForm.Visible=-1", "JeuPoker.Visible=0",
                                    "display=1024x768", "display=800x600", "ended"}));
  const services::ToolResult no = services::RunDrive({"click OkNonCmd", "display"}, {"--screen", "800x600"});
  EXPECT_EQ(no.lines, (QStringList{"display=800x600", "ended"}));
  const services::ToolResult big = services::RunDrive({"display", "click Fin"}, {"--screen", "1280x1024"});
  EXPECT_EQ(big.lines, (QStringList{"display=1280x1024", "display=1280x1024", "ended"}));
  // Without --screen the scripted display is 1024 x 768 and the end prints no mode.
  const services::ToolResult plain = services::RunDrive({"display", "click Fin"});
  EXPECT_EQ(plain.lines, (QStringList{"display=1024x768", "ended"}));
  const services::ToolResult bad = services::RunDrive({}, {"--screen", "large"});
  EXPECT_EQ(bad.exitCode, 2);
}

}  // namespace
