// The probability panel of the classic game: the tables of held, rejected and remaining
// cards, the nine counting routines in their fixed order, the exclusions between classes,
// and the captions of the panel.
#include <cmath>

#include "core/colours.h"
#include "interface/JeuPoker.h"
#include "interface/bind.h"

namespace {
// Sorts clés(0..n-1) in ascending order by exchanges of neighbours, so equal values keep their
// order; `suite`, when given, has its entries exchanged along with the keys.
void TriÀBulles(vb::Array<Byte, 0, 4>& clés, int n, vb::Array<Byte, 0, 4>* suite = nullptr) {
  bool échange = true;
  while (échange) {
    échange = false;
    for (int i = 0; i + 1 < n; ++i) {
      if (clés(i + 1) < clés(i)) {
        std::swap(clés(i), clés(i + 1));
        if (suite) std::swap((*suite)(i), (*suite)(i + 1));
        échange = true;
      }
    }
  }
}
}  // namespace

void JeuPoker::Probabilités() {
  if (NbTirées == 10) {
    EffaceProbabilités();
    return;
  }
  CompteProbabilités();
  AfficheProbabilités();
}

void JeuPoker::CompteProbabilités() {
  // The hold word by language; any other caption counts as rejected.
  const QString garder = MotCarteGardée();

  NbGardées = 0;
  NbRejetées = 0;
  NbMêmeCouleur = 0;
  NbJokersGardés = 0;
  JokersRestants = NbJokers;
  Réalisations.Fill(0);
  ComplémentFait = false;
  for (int r = 0; r <= 12; ++r) {
    RestantsValeur(r) = vb::CByte(NbJokers + 4);
    for (int s = 0; s <= 3; ++s) {
      RestantsGrille(r, s) = vb::CInt(NbJokers + 1);
      RestantsCouleurValeur(r, s) = 1;
    }
    GardéesValeur(r) = 0;
    RejetéesValeur(r) = 0;
  }

  for (int i = 0; i <= 4; ++i) {
    const Byte c = CartesTirage(i);
    if (c > 51) {
      for (int r = 0; r <= 12; ++r) {
        RestantsValeur(r) = vb::CByte(RestantsValeur(r) - 1);
        for (int s = 0; s <= 3; ++s) RestantsGrille(r, s) = vb::CInt(RestantsGrille(r, s) - 1);
      }
      JokersRestants = vb::CByte(JokersRestants - 1);
    }
    if (ValeursMain(i) < 52) RestantsValeur(ValeursMain(i)) = vb::CByte(RestantsValeur(ValeursMain(i)) - 1);
    if (c <= 51) RestantsGrille(c % 13, c / 13) = vb::CInt(RestantsGrille(c % 13, c / 13) - 1);
    if (Jouez(i).Caption() != garder) {
      if (c <= 51) RestantsCouleurValeur(c % 13, c / 13) = 0;
      NbRejetées = vb::CByte(NbRejetées + 1);
      RejetéesCodes(NbRejetées - 1) = c;
      // A rejected joker lands under rank 0 or 1 (its code modulo 13).
      RejetéesValeur(c % 13) = vb::CByte(RejetéesValeur(c % 13) + 1);
    } else {
      if (c <= 51) RestantsCouleurValeur(c % 13, c / 13) = 2;
      if (c > 51) NbJokersGardés = vb::CByte(NbJokersGardés + 1);
      if (c <= 51) GardéesValeur(c % 13) = vb::CByte(GardéesValeur(c % 13) + 1);
      NbGardées = vb::CByte(NbGardées + 1);
      Gardées(NbGardées - 1) = c;
      CouleursGardées(NbGardées - 1) = vb::CByte(c / 13);
    }
  }
  for (int r = 0; r <= 12; ++r) RestantsParValeur(r) = vb::CInt(RestantsValeur(r) - JokersRestants);

  // The number of possible draws: the product in a 32-bit integer, the division in double.
  const long long t = TailleJeu;
  switch (NbGardées) {
    case 5: TotalTirages = 1; break;
    case 4: TotalTirages = vb::CLng(t - 5); break;
    case 3: TotalTirages = vb::CLng(std::llround(vb::CLng((t - 6) * (t - 5)) / 2.0)); break;
    case 2: TotalTirages = vb::CLng(std::llround(vb::CLng((t - 6) * (t - 5) * (t - 7)) / 6.0)); break;
    case 1: TotalTirages = vb::CLng(std::llround(vb::CLng((t - 6) * (t - 5) * (t - 7) * (t - 8)) / 24.0)); break;
    default:
      TotalTirages = vb::CLng(std::llround(vb::CLng((t - 6) * (t - 5) * (t - 7) * (t - 8) * (t - 9)) / 120.0));
      break;
  }

  // Ranks in place of natural codes, sorted; jokers keep their codes and so stand last.
  for (int i = 0; i < NbRejetées; ++i)
    if (RejetéesCodes(i) < 52) RejetéesCodes(i) = RejetéesCodes(i) % 13;
  if (NbRejetées >= 2) TriÀBulles(RejetéesCodes, NbRejetées);
  if (NbGardées >= 1 && NbGardées <= 4) {
    for (int i = 0; i < NbGardées; ++i)
      if (Gardées(i) < 52) Gardées(i) = Gardées(i) % 13;
    TriÀBulles(Gardées, NbGardées, &CouleursGardées);
  }

  ProbCouleur();
  ProbQuinte();
  ProbQF();
  ProbPoker();
  ProbCarré();
  ProbFull();
  ProbBrelan();
  ProbPaires2();
  ProbRoiOuAs();

  auto somme = [this](int de, int à) {
    long long s = 0;
    for (int i = de; i <= à; ++i) s += Réalisations(i);
    return s;
  };

  // Straight flushes are counted among the straights and the flushes: take them out.
  if (NbGardées < 5) {
    Réalisations(3) = vb::CLng(static_cast<long long>(Réalisations(3)) - Réalisations(7) - Réalisations(8));
    Réalisations(4) = vb::CLng(static_cast<long long>(Réalisations(4)) - Réalisations(7) - Réalisations(8));
  }

  // Classes that the held cards already guarantee: what the better classes leave.
  if (NbGardées == 3 || NbGardées == 4) {
    for (int r = 0; r <= 12; ++r) {
      if (GardéesValeur(r) + NbJokersGardés == 3) {
        Réalisations(2) = vb::CLng(TotalTirages - somme(3, 9));
        ComplémentFait = true;
        break;
      }
    }
  }
  if (NbJokersGardés == 2 && NbGardées == 2) Réalisations(2) = vb::CLng(TotalTirages - somme(3, 9));
  if (NbGardées >= 2 && NbGardées <= 4 && NbJokersGardés < 2 &&
      (GardéesValeur(12) + NbJokersGardés == 2 || GardéesValeur(11) + NbJokersGardés == 2)) {
    Réalisations(0) = vb::CLng(TotalTirages - somme(1, 9));
    ComplémentFait = true;
  }
  if (!(NbJokersGardés == 2 || ComplémentFait)) Réalisations(10) = vb::CLng(TotalTirages - somme(0, 9));

  // Better than the hand on the table.
  if (RangMain == 10)
    Réalisations(11) = vb::CLng(somme(0, 9));
  else if (RangMain <= 8)
    Réalisations(11) = vb::CLng(somme(RangMain + 1, 9));
}

void JeuPoker::AfficheProbabilités() {
  UnSur->SetCaption(QStringLiteral("?/") + QString::number(TotalTirages));
  for (int i = 0; i <= 11; ++i) {
    if (i == 9 && NbJokers == 0) continue;
    const Long n = Réalisations(i);
    Pourcentages(i).SetBackColor(n < 1 ? couleur::kNoir : couleur::kSarcelle);
    Fractions(i).SetBackColor(n < 1 ? couleur::kNoir : couleur::kSarcelle);

    // The percentage is cut, never rounded, after six decimals.
    const double p = std::floor(100000000.0 * n / static_cast<double>(TotalTirages)) / 1000000.0;
    // Its text in plain decimals (never in exponent form), trailing zeros dropped.
    QString t = QString::number(p, 'f', 6);
    while (t.contains('.') && (t.endsWith('0') || t.endsWith('.'))) t.chop(1);

    // The split goes by character position.
    QString w, d;
    if (p > 0 && p < 10) {
      w = t.left(1);
      d = QStringLiteral(".") + t.mid(2);
    } else if (p >= 10 && p < 100) {
      w = t.left(2);
      d = QStringLiteral(".") + t.mid(3);
    }
    if (p == 0 || p == 100) {
      PourcDéc(i).SetCaption(t);
      Pourcentages(i).SetCaption(QString());
    } else {
      PourcDéc(i).SetCaption(w);
      if (d.size() >= 1 && d.size() <= 6) d += QString(7 - d.size(), QChar('0'));
      Pourcentages(i).SetCaption(d);
    }
    Fractions(i).SetCaption(QString::number(n));
  }
}

void JeuPoker::EffaceProbabilités() {
  UnSur->SetCaption(QString());
  for (int i = 0; i <= 11; ++i) {
    if (i == 9 && NbJokers == 0) continue;
    PourcDéc(i).SetCaption(QString());
    Pourcentages(i).SetCaption(QString());
    Fractions(i).SetCaption(QString());
    Pourcentages(i).SetBackColor(couleur::kNoir);
    Fractions(i).SetBackColor(couleur::kNoir);
  }
}

template <class T, int R0, int R1, int C0, int C1>
void JeuPoker::BindTableau(const QString& name, Tableau2<T, R0, R1, C0, C1>& table) {
  // Reached by one index, the first index running fastest: (r, c) is r + rows x c.
  constexpr int rows = R1 - R0 + 1;
  Variable v;
  v.low = 0;
  v.high = rows * (C1 - C0 + 1) - 1;
  v.get = [&table](int i) { return varfmt::Format(table(R0 + i % rows, C0 + i / rows)); };
  v.set = [&table](int i, const QString& text) { return varfmt::Parse(text, table(R0 + i % rows, C0 + i / rows)); };
  variables_[name] = std::move(v);
}

void JeuPoker::RegisterProbabilityVariables() {
  Bind("NbGardées", NbGardées);
  Bind("NbRejetées", NbRejetées);
  Bind("NbJokersGardés", NbJokersGardés);
  Bind("JokersRestants", JokersRestants);
  Bind("NbMêmeCouleur", NbMêmeCouleur);
  Bind("Gardées", Gardées);
  Bind("CouleursGardées", CouleursGardées);
  Bind("RejetéesCodes", RejetéesCodes);
  Bind("GardéesValeur", GardéesValeur);
  Bind("RejetéesValeur", RejetéesValeur);
  Bind("RestantsValeur", RestantsValeur);
  Bind("RestantsParValeur", RestantsParValeur);
  BindTableau("RestantsGrille", RestantsGrille);
  BindTableau("RestantsCouleurValeur", RestantsCouleurValeur);
  Bind("Réalisations", Réalisations);
  Bind("TotalTirages", TotalTirages);
  Bind("CouleurPossible", CouleurPossible);
  Bind("QuintePossible", QuintePossible);
  Bind("TotalRoiOuAs", TotalRoiOuAs);
  BindTableau("RestantsQF", RestantsQF);
  Bind("NbQF", NbQF);
  Bind("NbQFR", NbQFR);
  BindTableau("MainsPossibles", MainsPossibles);
  BindTableau("TexteMainsPossibles", TexteMainsPossibles);
  BindTableau("TextePourcentages", TextePourcentages);
  Bind("Fréquences", Fréquences);
}
