// Holding and rejecting by click and by the numeric keypad, the selection option buttons,
// and the focus kept on Tirage.
#include <gtest/gtest.h>

#include <functional>

#include "tests/classic/holds_helpers.h"

using holds::FirstDrawing;
using holds::HeldWords;

namespace {

// What one blink of the alert line sleeps in all.
constexpr long long kBlinkMs = 7 * (40 + 150);

// The state between the drawings, with the manual option: all five rejected.
void BetweenDrawings(Harness& h, const std::string& hand = "2C 5D 9H JS 7C") {
  holds::ManualSelection(*h.form);
  FirstDrawing(*h.form, hand);
}

TEST(HoldsClick, ClickFlipsRejectToHoldAndBack) {
  Harness h;
  BetweenDrawings(h);
  JeuPoker& f = *h.form;
  EXPECT_EQ(h.Drive({"click Deal(2)"}), QStringList{});
  EXPECT_EQ(f.Jouez(2).Caption(), "HOLD");
  EXPECT_EQ(f.Jouez(2).BackColor(), 0xC0C000);
  EXPECT_EQ(HeldWords(f), "00100");
  h.Drive({"click Deal(2)"});
  EXPECT_EQ(f.Jouez(2).Caption(), "REJECT");
  EXPECT_EQ(f.Jouez(2).BackColor(), 0x607000);
  EXPECT_EQ(HeldWords(f), "00000");
}

TEST(HoldsClick, FlippingTwiceReturnsToTheFirstWordAndColour) {
  Harness h;
  FirstDrawing(*h.form, "KC 3H 7S 9C KH");  // automatic: kings held
  JeuPoker& f = *h.form;
  for (int i = 0; i < 5; ++i) {
    const QString word = f.Jouez(i).Caption();
    const Long colour = f.Jouez(i).BackColor();
    h.Drive({QStringLiteral("click Deal(%1)").arg(i)});
    EXPECT_NE(f.Jouez(i).Caption(), word);
    h.Drive({QStringLiteral("click Deal(%1)").arg(i)});
    EXPECT_EQ(f.Jouez(i).Caption(), word);
    EXPECT_EQ(f.Jouez(i).BackColor(), colour);
  }
}

TEST(HoldsClick, CaptionThatIsNeitherWordCountsAsNotHeld) {
  Harness h;
  JeuPoker& f = *h.form;
  BetweenDrawings(h);
  f.Jouez(0).SetCaption("JOUEZ");
  h.Drive({"click Deal(0)"});
  EXPECT_EQ(f.Jouez(0).Caption(), "HOLD");
  EXPECT_EQ(f.Jouez(0).BackColor(), 0xC0C000);
  // A word of the other language is not the hold word either.
  f.Jouez(1).SetCaption("GARDER");
  h.Drive({"click Deal(1)"});
  EXPECT_EQ(f.Jouez(1).Caption(), "HOLD");
}

TEST(HoldsClick, FrenchWordsFlip) {
  Harness h;
  JeuPoker& f = *h.form;
  f.Langue = 3;
  BetweenDrawings(h);
  EXPECT_EQ(f.Jouez(3).Caption(), "JETER");
  h.Drive({"click Deal(3)"});
  EXPECT_EQ(f.Jouez(3).Caption(), "GARDER");
  h.Drive({"click Deal(3)"});
  EXPECT_EQ(f.Jouez(3).Caption(), "JETER");
}

TEST(HoldsClick, ClickBeforeAnyDealIsRefused) {
  Harness h;
  JeuPoker& f = *h.form;
  ASSERT_EQ(f.NbTirées, 0);
  h.Drive({"click Deal(1)"});
  EXPECT_EQ(h.platform.sleptMs, kBlinkMs);
  EXPECT_EQ(f.Jouez(1).Caption(), "JOUEZ");
  EXPECT_EQ(f.Jouez(1).BackColor(), 0x808000);
}

TEST(HoldsClick, ClickDuringADrawingIsRefused) {
  for (Byte stage : {Byte{1}, Byte{4}, Byte{6}, Byte{9}}) {
    Harness h;
    BetweenDrawings(h);
    h.form->NbTirées = stage;
    h.Drive({"click Deal(0)"});
    EXPECT_EQ(HeldWords(*h.form), "00000") << int(stage);
    EXPECT_EQ(h.platform.sleptMs, kBlinkMs);
  }
}

TEST(HoldsClick, ClickAtTheEndOfAWinningRoundIsRefused) {
  Harness h;
  BetweenDrawings(h, "KC 3H 7S 9C KH");
  JeuPoker& f = *h.form;
  f.NbTirées = 10;
  f.GainMain = 1;
  f.Doubler->SetVisible(true);
  const QString before = f.Jouez(4).Caption();
  h.Drive({"click Deal(4)"});
  EXPECT_EQ(h.platform.sleptMs, kBlinkMs);
  EXPECT_EQ(f.Jouez(4).Caption(), before);
  EXPECT_FALSE(f.DoubleEnCours);
  EXPECT_EQ(f.CarteChoisie, 0);
}

TEST(HoldsClick, ClickIsIgnoredWhileAutomaticModeRuns) {
  Harness h;
  BetweenDrawings(h);
  h.form->AutoPlay->SetBevelWidth(0);
  h.Drive({"click Deal(2)"});
  EXPECT_EQ(HeldWords(*h.form), "00000");
  EXPECT_EQ(h.platform.sleptMs, 0);
}

TEST(HoldsClick, ClickGivesTheFocusToTirage) {
  Harness h;
  BetweenDrawings(h);
  h.form->SSLangue(0).SetFocus();
  h.Drive({"click Deal(2)"});
  EXPECT_EQ(h.Drive1("get Tirage.Focus"), "Tirage.Focus=-1");
}

struct KeyCase {
  int key;
  int position;
};
const KeyCase kKeys[] = {{97, 0}, {98, 1}, {99, 2}, {100, 3}, {101, 4}};

TEST(HoldsKeypad, KeypadOneToFiveFlipPositionsZeroToFour) {
  for (const auto& k : kKeys) {
    SCOPED_TRACE(k.key);
    Harness h;
    BetweenDrawings(h);
    JeuPoker& f = *h.form;
    EXPECT_EQ(h.Drive({QStringLiteral("key %1").arg(k.key)}), QStringList{});
    EXPECT_EQ(f.CarteClavier, k.position);
    std::string expected = "00000";
    expected[static_cast<size_t>(k.position)] = '1';
    EXPECT_EQ(HeldWords(f), expected);
    EXPECT_EQ(f.Jouez(k.position).BackColor(), 0xC0C000);
    h.Drive({QStringLiteral("key %1").arg(k.key)});
    EXPECT_EQ(HeldWords(f), "00000");
    EXPECT_EQ(f.Jouez(k.position).BackColor(), 0x607000);
  }
}

TEST(HoldsKeypad, KeypadFlipsWhileAutomaticModeRuns) {
  Harness h;
  BetweenDrawings(h);
  h.form->AutoPlay->SetBevelWidth(0);
  h.Drive({"key 99"});
  EXPECT_EQ(HeldWords(*h.form), "00100");
}

TEST(HoldsKeypad, KeypadIsSilentlyIgnoredOutsideTheStageBetweenDrawings) {
  for (Byte stage : {Byte{0}, Byte{3}, Byte{10}}) {
    Harness h;
    BetweenDrawings(h);
    JeuPoker& f = *h.form;
    f.NbTirées = stage;
    const long long slept = h.platform.sleptMs;
    h.Drive({"key 98"});
    EXPECT_EQ(HeldWords(f), "00000");
    EXPECT_EQ(f.CarteClavier, 1);          // the position is still taken from the key
    EXPECT_EQ(h.platform.sleptMs, slept);  // no blink
  }
}

TEST(HoldsKeypad, OtherKeysDoNothing) {
  Harness h;
  BetweenDrawings(h);
  JeuPoker& f = *h.form;
  f.CarteClavier = 2;
  for (int key : {49, 50, 51, 96, 102, 65, 13}) h.Drive({QStringLiteral("key %1").arg(key)});
  EXPECT_EQ(HeldWords(f), "00000");
  EXPECT_EQ(f.CarteClavier, 2);
}

TEST(HoldsKeypad, NothingHappensWhileTheRulesPageIsShown) {
  Harness h;
  BetweenDrawings(h);
  JeuPoker& f = *h.form;
  f.SSAides->SetVisible(true);
  f.Jouer->SetFocus();
  f.Form_KeyDown(99, 0);
  EXPECT_EQ(HeldWords(f), "00000");
  EXPECT_EQ(f.CarteClavier, 0);
  EXPECT_NE(f.focusWidget(), f.Tirage);
}

TEST(HoldsKeypad, KeyGivesTheFocusToTirage) {
  Harness h;
  BetweenDrawings(h);
  JeuPoker& f = *h.form;
  f.SSLangue(1).SetFocus();
  f.Form_KeyDown(100, 0);
  EXPECT_EQ(f.focusWidget(), f.Tirage);
  EXPECT_EQ(HeldWords(f), "00010");
}

TEST(HoldsForm, ClickOnTheFormGivesTheFocusToTirage) {
  Harness h;
  JeuPoker& f = *h.form;
  f.SSLangue(1).SetFocus();
  f.Form_Click();
  EXPECT_EQ(f.focusWidget(), f.Tirage);
  f.SSAides->SetVisible(true);
  f.SSLangue(1).SetFocus();
  f.Form_Click();
  EXPECT_NE(f.focusWidget(), f.Tirage);
}

// ---- The selection option ----------------------------------------------------------------

void ExpectSelected(JeuPoker& f, Control* chosen, Control* other, Control* lamp, Control* otherLamp) {
  EXPECT_EQ(chosen->BevelWidth(), 0);
  EXPECT_EQ(chosen->MousePointer(), 12);
  EXPECT_EQ(other->BevelWidth(), 3);
  EXPECT_EQ(other->MousePointer(), 10);
  EXPECT_TRUE(lamp->Visible());
  EXPECT_FALSE(otherLamp->Visible());
  for (int i = 0; i < 5; ++i) EXPECT_EQ(f.ImageConseils(i).GetPicture(), chosen->GetPicture());
}

TEST(HoldsOption, ManualAndAutomaticButtonsMirrorEachOther) {
  Harness h;
  JeuPoker& f = *h.form;
  // Give the buttons pictures of their own so that the advice images can be told apart.
  f.ParesseNon->SetPicture(f.Cartes(0).GetPicture());
  f.ParesseOui->SetPicture(f.Cartes(1).GetPicture());
  ASSERT_EQ(f.ParesseOui->BevelWidth(), 0);
  h.Drive({"click ParesseNon"});
  ExpectSelected(f, f.ParesseNon, f.ParesseOui, f.PParesseNon, f.PParesseOui);
  EXPECT_EQ(h.Drive1("get Tirage.Focus"), "Tirage.Focus=-1");
  h.Drive({"click ParesseOui"});
  ExpectSelected(f, f.ParesseOui, f.ParesseNon, f.PParesseOui, f.PParesseNon);
}

TEST(HoldsOption, ManualOptionThenADrawingKeepsNothing) {
  Harness h;
  h.Drive({"click ParesseNon"});
  FirstDrawing(*h.form, "AC AD AH KS KC");
  EXPECT_EQ(HeldWords(*h.form), "00000");
}

// Each of these refuses the change, leaving the automatic option in force.
struct Refusal {
  const char* what;
  std::function<void(JeuPoker&)> setUp;
  bool blinks;
};

TEST(HoldsOption, RefusedDuringARoundOrADoubleUpOrWithoutCredit) {
  const Refusal refusals[] = {
      {"between the drawings", [](JeuPoker& f) { f.NbTirées = 5; }, true},
      {"between the grid drawings", [](JeuPoker& f) { f.NbTirées = 25; }, true},
      {"double-up awaiting a choice", [](JeuPoker& f) { f.DoubleEnCours = true; }, true},
      {"double-up offered", [](JeuPoker& f) { f.Doubler->SetVisible(true); }, true},
      {"grid double-up offered", [](JeuPoker& f) { f.Doubler5->SetVisible(true); }, true},
      {"no credit", [](JeuPoker& f) { f.Capital = 0; }, true},
      {"automatic mode runs", [](JeuPoker& f) { f.AutoPlay->SetBevelWidth(0); }, false},
      {"JEU 2 in force", [](JeuPoker& f) { f.Jeu3D->SetBevelWidth(1); }, false},
  };
  for (const auto& r : refusals) {
    SCOPED_TRACE(r.what);
    Harness h;
    JeuPoker& f = *h.form;
    r.setUp(f);
    f.ParesseNon_Click();
    EXPECT_EQ(h.platform.sleptMs, r.blinks ? kBlinkMs : 0);
    EXPECT_EQ(f.ParesseOui->BevelWidth(), 0);
    EXPECT_EQ(f.ParesseNon->BevelWidth(), 3);
    EXPECT_TRUE(f.PParesseOui->Visible());
    EXPECT_FALSE(f.PParesseNon->Visible());
  }
}

TEST(HoldsOption, ClickOnTheSelectedButtonChangesNothing) {
  Harness h;
  JeuPoker& f = *h.form;
  f.ParesseOui->SetMousePointer(5);
  f.ParesseOui_Click();
  EXPECT_EQ(h.platform.sleptMs, 0);
  EXPECT_EQ(f.ParesseOui->BevelWidth(), 0);
  EXPECT_EQ(f.ParesseOui->MousePointer(), 5);
  EXPECT_EQ(f.ParesseNon->BevelWidth(), 3);
}

TEST(HoldsOption, AllowedAtTheEndOfALosingRound) {
  Harness h;
  JeuPoker& f = *h.form;
  f.NbTirées = 10;
  f.ParesseNon_Click();
  EXPECT_EQ(f.ParesseNon->BevelWidth(), 0);
}

}  // namespace
