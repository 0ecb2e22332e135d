// The form's side of the coach: what it reads of the table, the three moments it is told of,
// F2, and the loading of its window's library.
#include <cstdio>

#include "interface/JeuPoker.h"
#include "services/program_dir.h"

CoachWindow* MakeCoachWindow(const coach::Record* record) {
  static const CoachWindowEntry entry = []() -> CoachWindowEntry {
    QString problem;
    if (auto e = reinterpret_cast<CoachWindowEntry>(ResolveOwnLibrary(kCoachLibrary, kCoachEntry, problem))) return e;
    std::fprintf(stderr, "talvero: the coach's library %s cannot be loaded (%s): the coach has no window\n",
                 kCoachLibrary, qPrintable(problem));
    return nullptr;
  }();
  return entry ? entry(record) : nullptr;
}

coach::Table JeuPoker::TableCoach() const {
  coach::Table t;
  const bool classique = SSAireJeu->Visible();
  t.between = classique && NbTirées == 5 && !DoubleEnCours;
  t.roundOver = classique && NbTirées == 10;
  const QString jetée = MotCarteJetée();
  for (int i = 0; i <= 4; ++i) {
    t.hand[static_cast<std::size_t>(i)] = CartesTirage(i);
    // A card is replaced when it shows the back or carries the reject word.
    const bool remplacée = Deal(i).GetPicture() == Cartes(54).GetPicture() || Jouez(i).Caption() == jetée;
    if (!remplacée) t.held |= 1u << i;
  }
  const bool grille = SSAireJeu5->Visible();
  t.gridBetween = grille && NbTirées == 25 && !DoubleEnCours;
  t.gridRoundOver = grille && NbTirées == 50;
  if (grille)
    for (int p = 0; p <= 24; ++p) {
      t.grid[static_cast<std::size_t>(p)] = CartesTirage(p);
      if (FaceCachée(p)) t.down |= 1u << p;
    }
  // A table that nested drawings left with a card twice is not judged.
  t.between = t.between && coach::Judgeable(t.hand.data(), 5, NbJokers);
  t.gridBetween = t.gridBetween && coach::Judgeable(t.grid.data(), 25, NbJokers);
  t.level = Niveau;
  t.winWaits = (classique && Doubler->Visible() && GainMain > 0) || (grille && Doubler5->Visible() && GainTirage > 0);
  t.duel = DoubleEnCours && (classique || grille);
  t.houseRank = DoubleCarte1;
  t.jokers = NbJokers;
  t.mise = Mise;
  t.stake = static_cast<long long>(Niveau) * Mise;
  t.credit = Capital;
  t.automatic = AutoEnCours();
  t.english = Langue == 0 || Langue == 2;
  return t;
}

void JeuPoker::AvertitCoach(MomentCoach moment) {
  if (!coach_) return;
  const coach::Table t = TableCoach();
  switch (moment) {
    case MomentCoach::Suivi: coach_->Follow(t); break;
    case MomentCoach::Décision:
      if (t.between || t.gridBetween) coach_->Decide(t);
      break;
    case MomentCoach::FinTirage: coach_->DrawingOver(t); break;
  }
  if (coachWindow_) coachWindow_->Refresh();
}

void JeuPoker::OuvreCoach(bool montrer) {
  if (!coach_) {
    coach_ = std::make_unique<coach::Coach>();
    coach::Prepare(NbJokers);
    coach_->Follow(TableCoach());
  }
  if (montrer && !coachWindow_) {
    coachWindow_.reset(MakeCoachWindow(&coach_->record()));
    ScaleCoachWindow();
    if (coachWindow_) coachWindow_->PlaceBeside(frameGeometry());
  }
  if (coachWindow_) coachWindow_->SetShown(montrer);
}

void JeuPoker::ScaleCoachWindow() {
  if (coachWindow_) coachWindow_->SetScale(scale_);
}

void JeuPoker::BasculeCoach() { OuvreCoach(!CoachVisible()); }

QWidget* JeuPoker::FenêtreCoach() const { return coachWindow_ ? coachWindow_->Widget() : nullptr; }

bool JeuPoker::CoachVisible() const { return coachWindow_ && coachWindow_->Shown(); }

QString JeuPoker::LigneCoach() const { return coach::HoldLine(TableCoach()); }

QString JeuPoker::LigneSessionCoach() const { return coach::SessionLine(coach_ ? &coach_->record() : nullptr); }

QString JeuPoker::LigneSessionCoach2() const { return coach::GridSessionLine(coach_ ? &coach_->record() : nullptr); }
