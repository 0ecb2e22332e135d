// The main form: every control, all game state and every routine of the game.
//
// Routines are member functions with no arguments that talk through the form's variables
// and its controls, as an event-driven form does. This header is the map of the program: the
// members are grouped by subsystem, and each group names the files that hold its bodies.
//
//   core/         game state, pay tables, new game and deal set-up, Résultat; the hand
//                 evaluation on plain values (core/evaluation.*) that the odds tool shares
//   classic/      JEU 1: the draw cycle, holds, automatic selection, double-up, automatic play
//   grid/         JEU 2: the grid's drawing, lines and settlement, level, advice, double-up
//   probability/  the panel's counts (one file per group of hand classes) and statistics
//   interface/    this form, its controls and pictures, digit displays, alerts, language
//                 tables, hints, game switch and options
//   coach/        the coach beside the table: judges every hold of JEU 1 (link.cpp reads the form)
//   services/     start-up and the settings file, music, display mode, web panels, and the
//                 platform seam (services/platform.h) every call leaving the program goes through
//
// Where to start: Form_Load (services/startup.cpp) builds the table; a click on PLAY runs
// Jouer_Click, then Tirage1 (classic/round.cpp) in JEU 1 or Tirage5 (grid/tirage5.cpp) in
// JEU 2; Résultat (core/resultat.cpp) classifies a hand and Probabilités
// (probability/driver.cpp) fills the odds panel.
//
// Names that are easy to confuse (the game's own names, kept as they are):
// - Credit row: ImageCrédit its background, CréditImage its title "CREDIT", CapImage(0..7)
//   the digits of Capital (the credit itself; no label holds it).
// - Win row: ImageGains its background, GainsImage its title (0 shown, 1 "GAINS", 2 "WIN"),
//   GainImage(0..7) the digits, Gains the hidden label whose text the digits show; Gains5 the
//   grid's line prices (12 the total); GainMain a hand's multiplier, GainTirage the drawing's win.
// - Bet row: ImageMises its background, MisesImage its title (0 shown, 1 "MISE", 2 "BET"),
//   MiseImage(0..2) the digits, Mises the hidden label with the stake (Niveau x Mise); Mise is
//   the bet of one hand or line.
// - Level row: ImageUnàDouze its background, UnàDouze its title picture, UnàDouzeImage(0..1)
//   the digits, UnADouze (no accent) the hidden label holding Niveau's text; UnADouzeTémoin
//   (0..11) the grid's line number tags and UnADouzeLine(0..11) its drawn lines.
// - Jouer the PLAY panel, JouerImage its face (0 shown, 1..2 at rest and 3..4 pressed, French
//   then English); Jouez(0..4) the hold panels under JEU 1's cards (JOUEZ, GARDER, JETER);
//   Jouez5 the grid's PLAY caption; Tirage the small button behind Jouer that holds the
//   keyboard focus; Tirage1 and Tirage5 the drawings; CartesTirage the cards dealt.
// - Cartes(0..54) and Cartes2(0..53) the stores of large and small faces; Deal(0..4) JEU 1's
//   card buttons, Deal2(0..24) the grid's; CartesMains(0..4) the example hand over the hints.
// - Doubler and Doubler5 the double-up panels of JEU 1 and JEU 2, Double1X5 and Double5X5 their
//   DOUBLE buttons, Quitte1X5 and Quitte5X5 their QUIT buttons.
// - Maintitre(0..11) the pay table's titles, MainLabel(0..9) its amounts, MainsPayantes its
//   head; Mains5(0..12) the grid's line names, MainsLignes their classes; MainsPossibles the
//   odds at rest; NomsMains the hand names.
// - PourcDéc the whole part of a percentage, Pourcentages its decimals, Fractions the count,
//   UnSur and PourCentLabel the heads of those columns; Réalisations the counts themselves.
// - Fréquence(0..9) the tally's labels, Fréquences its counts, FréquenceTitre its head;
//   FréquenceÉcran the display's refresh rate.
// - Messages the hint table, SSMessages the hint panel, SSAlertes the alert line; Aides the
//   rules page's labels on SSAides.
// - SSLangue, SSVitesse, ParesseOui/Non the buttons of the top bar; PSSlangue, PSSVitesse,
//   PParesseOui/Non their lamps.
// - NbJokers the jokers in the game, TailleJeu the deck's size, NbJokersGardés the jokers held,
//   JokersRestants those left in the deck.
// - TotalRoiOuAs: the running total of several counting routines, not only the kings or aces.
//
// Langue, the language in force: 0 or 2 English, anything else French. Ini.dat stores 2 for
// English and 3 for French. 0 is also the value at a first start (no byte stored): the texts
// then read English while the screen, built in French, stays French. 0 and 1 are set for a
// moment by a click on a flag (0 the English one, 1 the French one) while ModifieLangue turns
// the screen, then stored as 2 or 3. The JOUER face alone asks for 2 exactly. LangueVar is the
// offset of the hint table's half in use: 0 French, 100 English.
#pragma once

#include <QHash>
#include <QImage>
#include <QString>
#include <QStringList>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <future>
#include <memory>
#include <vector>

#include "coach/coach.h"
#include "coach/window.h"
#include "core/vb.h"
#include "interface/card_faces.h"
#include "interface/controls.h"
#include "services/display_mode.h"

class JeuPoker : public QWidget {
 public:
  // `programDir` is the program's own directory (Ini.dat); `dataDir` holds the pieces and
  // the pages, and is the program directory unless given (see services/program_dir.h).
  // `scale` is the table's scale on screen, from 1 to 4; 0 fits the screen
  // (interface/table_scale.h).
  explicit JeuPoker(const QString& programDir, const QString& dataDir = QString(), double scale = 0);
  ~JeuPoker() override;

  const QString& ProgramDir() const { return programDir_; }
  const QString& DataDir() const { return dataDir_; }

  // ==== Interface: the table's scale (interface/table_scale.cpp) =============================
  // The table keeps its 1024 x 768 logical pixels; the window shows it at TableScale(),
  // centred at TableGeometry() (window pixels), on black. F11 switches to full screen and back.
  double TableScale() const { return scale_; }
  // Every control of the table (not those of the display question, a window of its own).
  std::vector<Control*> TableControls() const;
  QRect TableGeometry() const;
  // Scale times the screen's device pixel ratio: the pictures' pixels per logical pixel.
  qreal PictureRatio() const;
  // Waits until every picture shown is drawn for the scale in force (talvero-drive, tests).
  void WaitForPictures();

  // ==== Interface: the controls =============================================================
  // Built in their places by interface/inventory.cpp, their pictures drawn by
  // interface/pictures.cpp, their events wired by interface/JeuPoker.cpp.

  // Frames, the off-screen stores, the web panels and the timers.
  Control* Jeu = nullptr;
  Control* SSCartes = nullptr;
  Control* SSCartes2 = nullptr;
  Control* SSAides = nullptr;
  Control* Pub0Pic = nullptr;
  Control* Pub1Pic = nullptr;
  Control* Pub0Web = nullptr;
  Control* Pub1Web = nullptr;
  TimerControl* TitreTimer = nullptr;
  TimerControl* AutoPlayTimer = nullptr;
  TimerControl* NonConnectéTimer = nullptr;
  TimerControl* MusicTimer = nullptr;

  // Top bar: title, deck choice (52, 53, 54), menu buttons and their lamps.
  Control* JeuTitre = nullptr;
  ControlArray<Control> TitreImage;  // 0 on JeuTitre, 1..2 stored
  Control* SSNJokerSélection = nullptr;
  ControlArray<Control> NJokerSélection;
  Control* SSMenu = nullptr;
  ControlArray<Control> SSMusic;  // 0 on SSMenu, 1..2 stored
  Control* SSRègles = nullptr;
  ControlArray<Control> SSLangue;
  Control* ParesseNon = nullptr;
  Control* ParesseOui = nullptr;
  ControlArray<Control> SSVitesse;
  Control* AutoPlay = nullptr;
  Control* AutoPlayStop = nullptr;
  Control* Fin = nullptr;
  Control* SSRecommence = nullptr;
  ControlArray<Control> PSSlangue;
  Control* PParesseNon = nullptr;
  Control* PParesseOui = nullptr;
  ControlArray<Control> PSSVitesse;

  // Pay table, probability panel and statistics column.
  Control* SSGains = nullptr;
  ControlArray<Control> Maintitre;
  ControlArray<Control> MainLabel;
  ControlArray<Control> Pourcentages;
  ControlArray<Control> PourcDéc;
  ControlArray<Control> Fractions;
  ControlArray<Control> Fréquence;
  Control* MainsPayantes = nullptr;
  Control* Rapport = nullptr;
  Control* PourCentLabel = nullptr;
  Control* UnSur = nullptr;
  Control* FréquenceTitre = nullptr;

  // Credit, win, bet and level rows (their names are told apart at the top of this file).
  Control* SSMises = nullptr;
  Control* ImageCrédit = nullptr;
  Control* ImageGains = nullptr;
  Control* ImageMises = nullptr;
  Control* ImageUnàDouze = nullptr;
  Control* CréditImage = nullptr;
  ControlArray<Control> GainsImage;  // 0 on SSMises, 1..2 stored
  ControlArray<Control> MisesImage;  // 0 on SSMises, 1..2 stored
  Control* UnàDouze = nullptr;
  ControlArray<Control> CapImage;
  ControlArray<Control> GainImage;
  ControlArray<Control> MiseImage;
  ControlArray<Control> UnàDouzeImage;
  Control* Gains = nullptr;
  Control* Mises = nullptr;
  Control* UnADouze = nullptr;
  Control* Moins = nullptr;
  Control* Plus = nullptr;
  Control* Moins5 = nullptr;
  Control* Plus5 = nullptr;

  // PLAY, and the focus holder behind it.
  Control* SSTirage = nullptr;
  Control* Jouer = nullptr;
  ControlArray<Control> JouerImage;  // 0 on Jouer, 1..4 stored
  Control* Tirage = nullptr;

  // Choice of game.
  Control* SSMenuJeux = nullptr;
  Control* SSJeuSimple = nullptr;
  Control* SSJeu3D = nullptr;
  Control* JeuSimple = nullptr;
  Control* Jeu3D = nullptr;
  Control* JeuSimpleLabel = nullptr;
  Control* Jeu3DLabel = nullptr;

  // Hint panel and its example hand.
  Control* SSMessages = nullptr;
  ControlArray<Control> CartesMains;

  // JEU 1's play area: cards, hold panels, selection pictures, double-up panel.
  Control* SSAireJeu = nullptr;
  ControlArray<Control> Deal;
  ControlArray<Control> Jouez;
  ControlArray<Control> ImageConseils;
  Control* Doubler = nullptr;
  Control* Quitte1X5 = nullptr;
  Control* Double1X5 = nullptr;

  // JEU 2's grid: cards, HELP and CANCEL, double-up panel, line names, prices, tags and lines.
  Control* SSAireJeu5 = nullptr;
  ControlArray<Control> Deal2;
  Control* Jouez5 = nullptr;
  Control* SSConseils5 = nullptr;
  Control* Conseils5 = nullptr;
  Control* AnnuleConseils5 = nullptr;
  Control* Image6 = nullptr;
  Control* Doubler5 = nullptr;
  Control* Quitte5X5 = nullptr;
  Control* Double5X5 = nullptr;
  ControlArray<Control> Mains5;
  ControlArray<Control> Gains5;
  ControlArray<Control> UnADouzeTémoin;
  ControlArray<Control> UnADouzeLine;

  // The alert line.
  Control* SSAlertes = nullptr;

  // The no-connection notice.
  Control* NonConnectéPic = nullptr;
  Control* LogoFondPic = nullptr;
  Control* LogoWeb = nullptr;
  Control* NonConnectéCmd = nullptr;
  Control* NonConnectéLbl = nullptr;

  // The rules page.
  Control* AidesOk = nullptr;
  ControlArray<Control> Aides;

  // Picture stores (off screen).
  ControlArray<Control> Cartes;          // 0..54, 88x133 px; 54 is the back
  ControlArray<Control> Cartes2;         // 0..53, 65x87 px
  ControlArray<Control> ChiffresModèle;  // 0..29, 16x22 px: red, blue, grey
  Control* FileMid = nullptr;
  QStringList FileMidItems;  // the *.mid pieces of the program's folder

  // Control look-up by name (interface/inventory.cpp), for talvero-drive and tests.
  // Looks a control up by name and index (-1 for a single control); nullptr when absent.
  Control* FindControl(const QString& name, int index) const;
  TimerControl* FindTimer(const QString& name) const;
  // Every control name with its index range (low, high; -1, -1 for a single control).
  struct NameEntry {
    QString name;
    int low;
    int high;
  };
  std::vector<NameEntry> ControlNames() const;

  // ==== Core: game state ====================================================================
  // core/state.cpp: Initialise, InitPremierTirage, the pay table; core/resultat.cpp: Résultat,
  // over the evaluation on plain values in core/evaluation.*.
  vb::Array<Byte, 0, 50> CartesTirage;
  vb::Array<Integer, 0, 50> CartesSorties;
  Byte NbTirées = 0;
  Byte CarteClavier = 0;
  vb::Array<Byte, 0, 4> MainTriée;
  vb::Array<Byte, 0, 4> ValeursMain;
  vb::Array<Byte, 0, 4> BlocsCouleur;
  vb::Array<Byte, 0, 4> PositionsMain;
  vb::Array<bool, 0, 4> CartesGardées;
  Byte RangMain = 0;
  Long GainMain = 0;
  Byte NbRois = 0;
  Byte NbAs = 0;
  Byte NbPaires = 0;
  Integer Mise = 1;
  Long Capital = 200;
  vb::Array<Long, 0, 9> TableGains;
  bool AffichageImmédiat = true;
  Integer IndiceDouble = 0;
  Byte Niveau = 1;
  Long GainTirage = 0;
  Byte DoubleCarte1 = 0;
  Byte DoubleCarte2 = 0;
  Byte DoubleCarte3 = 0;
  vb::Array<QString, 0, 51> NomsValeurs;
  Byte CarteChoisie = 0;
  bool DoubleEnCours = false;
  vb::Array<bool, 0, 24> LignesJouées;
  vb::Array<Byte, 0, 4> IndexLigne;
  Byte NbJokers = 2;
  Long TailleJeu = 54;
  Byte Langue = 0;  // 0 or 2 English, anything else French (see the top of this file)
  vb::Array<QString, 0, 201> Messages;

  // Core routines.
  void Initialise();
  void InitPremierTirage();
  void Résultat();
  // Fills TableGains for NbJokers (the classic pay table).
  void RemplitTableGains();
  // Puts the highlighted row of the pay table back to white on black.
  void EffaceLigneGagnante();
  // Niveau x Mise taken from Capital, and the credit shown.
  void PrélèveMise();
  // Draws a code of the deck, with the clock read anew before each try, until one is not
  // among CartesSorties(1..sorties). `avantEssai`, when given, runs before each try and ends
  // the search by returning false; the result is then -1.
  int TireCarteNonSortie(int sorties, const std::function<bool()>& avantEssai = {});

  // ==== Classic game: JEU 1 ==================================================================
  // classic/round.cpp: the draw cycle (Jouer_*, Tirage_*, Tirage1, InitTirage);
  // classic/holds.cpp: Deal_Click, the keys and the hold words; classic/selection.cpp: the
  // automatic selection (GardeCartes, MarqueCarte, Paresse*), over the rules on plain values
  // in classic/selection_rules.*; classic/double.cpp: the double-up; classic/automatic.cpp:
  // automatic play, in both games.
  void Jouer_Click();
  void Jouer_MouseDown(int button, int shift, int x, int y);
  void Jouer_MouseUp(int button, int shift, int x, int y);
  void Tirage_KeyDown(int keyCode, int shift);
  void Tirage_KeyUp(int keyCode, int shift);
  // Clicks on the hold panels, the drawing area and the double-up panel only give the
  // focus back to Tirage, so that Space keeps playing.
  void Jouez_Click(int index);
  void SSTirage_Click();
  void Doubler_Click();
  void Tirage1();
  void InitTirage();
  void Deal_Click(int index);
  void Form_KeyDown(int keyCode, int shift);
  void Form_Click();
  void GardeCartes();
  void ParesseOui_Click();
  void ParesseNon_Click();
  void Double1X5_Click();
  void Quitte1X5_Click();
  void ChoixCarteQouD();

  // The draw cycle (classic/round.cpp):
  void RemetMiseÀUn();
  // Shrinks (grow false) or grows a card button in 30 steps of 0.94, yielding at each.
  void AnimeCarte(Control& carte, bool grow);

  // Holds (classic/holds.cpp) and the automatic selection (classic/selection.cpp):
  // Hold and reject words of the language in force.
  QString MotCarteGardée() const;
  QString MotCarteJetée() const;
  // Turns Jouez(index) from held to rejected or back; any other caption counts as rejected.
  void InverseJouez(int index);
  // Marks position PositionsMain(i) to be kept.
  void MarqueCarte(int i);

  // Automatic play, in both games (classic/automatic.cpp):
  void AutoPlay_Click();
  void AutoPlayStop_Click();
  void AutoPlayTimer_Timer();
  bool AutoEnCours() const;
  // The pointers of the table's buttons and cards while the mode runs, or at rest.
  void PointeursAuto(bool enMarche);

  // ==== Grid: JEU 2 ==========================================================================
  // grid/tirage5.cpp: Tirage5, the deal and the settlement of the lines; grid/level.cpp: the
  // level (Plus5, Moins5) and the lines in play; grid/advice.cpp: HELP and CANCEL;
  // grid/double5.cpp: the double-up.
  vb::Array<Byte, 0, 11> MainsLignes;  // RangMain of each line at the last settlement
  void Tirage5();
  void InitPremierTirage5();
  void Affichecarte5();
  void Deal2_Click(int index);
  void Plus5_Click();
  void Moins5_Click();
  void Plus5_MouseMove(int button, int shift, int x, int y);
  void Moins5_MouseMove(int button, int shift, int x, int y);
  void Double5X5_Click();
  void Quitte5X5_Click();
  void ChoixCarteQouD5();
  void Conseils5_Click();
  void AnnuleConseils5_Click();

  // Lines, cards and settlement (grid/tirage5.cpp), level and lines in play (grid/level.cpp):
  // Grid position of place j (0..4) of line 1..12, in the order the line reads them.
  static Byte PositionLigne(int ligne, int j);
  // Position p shows the card back.
  bool FaceCachée(int p) const;
  // Shrinks or grows Deal2(p); grown back, it is set to its exact size at rest.
  void AnimeCarte2(int p, bool grow);
  // Shows a picture on Deal2(p), with the card animation when dealing is slow.
  void MontreCarte2(int p, Picture image);
  // The settlement of a drawing (every line in play priced) and its conclusion.
  void RègleLignes();
  void ConclutTirage5();
  // Line index i (0..11) in play or out: labels, drawn line and the tag's colour.
  void MetLigneEnJeu(int i, bool enJeu);
  // After a change of Niveau: the level and stake captions and digits.
  void NiveauChangé();
  // Bet and level back to 1 with their digits; the lines beyond the first go out of play.
  void RemetNiveauÀUn();

  // ==== Probability: the odds panel ==========================================================
  // probability/driver.cpp: Probabilités, the tables of held and remaining cards and the
  // panel's labels; one file per group of counts (named below); probability/statistics.cpp:
  // the panel at rest and the tally of hands.
  void Probabilités();
  void AfficheFréquence();

  // A two-index table with bounds (R0..R1, C0..C1); the first index runs fastest.
  template <class T, int R0, int R1, int C0, int C1>
  class Tableau2 {
   public:
    static constexpr int Rows = R1 - R0 + 1;
    static constexpr int Cols = C1 - C0 + 1;
    T& operator()(long long r, long long c) { return items_[Offset(r, c)]; }
    const T& operator()(long long r, long long c) const { return items_[Offset(r, c)]; }
    void Fill(const T& v) { items_.fill(v); }

   private:
    static std::size_t Offset(long long r, long long c) {
      if (r < R0 || r > R1 || c < C0 || c > C1) vb::RuntimeError(vb::SubscriptOutOfRange);
      return static_cast<std::size_t>((r - R0) + Rows * (c - C0));
    }
    std::array<T, static_cast<std::size_t>(Rows* Cols)> items_{};
  };

  // Tables of held, rejected and remaining cards, rebuilt by every call of the driver.
  Byte NbGardées = 0;
  Byte NbRejetées = 0;
  Byte NbJokersGardés = 0;
  Byte JokersRestants = 0;
  Byte NbMêmeCouleur = 0;
  vb::Array<Byte, 0, 4> Gardées;
  vb::Array<Byte, 0, 4> CouleursGardées;
  vb::Array<Byte, 0, 4> RejetéesCodes;
  vb::Array<Byte, 0, 12> GardéesValeur;
  vb::Array<Byte, 0, 12> RejetéesValeur;
  vb::Array<Byte, 0, 12> RestantsValeur;
  vb::Array<Integer, 0, 12> RestantsParValeur;
  Tableau2<Integer, 0, 12, 0, 3> RestantsGrille;      // (rank, suit)
  Tableau2<Byte, 0, 12, 0, 3> RestantsCouleurValeur;  // (rank, suit): 1 deck, 2 held, 0 rejected
  vb::Array<Long, 0, 11> Réalisations;
  Long TotalTirages = 0;
  bool ComplémentFait = false;  // a lower class was computed as a complement
  bool CouleurPossible = false;
  bool QuintePossible = false;
  // The running total of several counting routines, not only of the kings or aces.
  double TotalRoiOuAs = 0;
  Tableau2<Integer, 0, 18, 0, 3> RestantsQF;  // (face position, suit)
  Integer NbQF = 0;
  Integer NbQFR = 0;

  // The probability driver in two halves: the counting alone, then the panel's labels.
  void CompteProbabilités();
  void AfficheProbabilités();
  void EffaceProbabilités();
  // Counting routines, called by the driver in this order.
  void ProbCouleur();       // flushes.cpp: flushes
  void ProbQuinte();        // straights.cpp: straights
  void ProbQF();            // straightflushes.cpp: straight and royal flushes
  void QF0à2();             // straightflushes.cpp
  void QF3à4();             // straightflushes.cpp
  void ProbPoker();         // flushes.cpp: five of a kind
  void ProbCarré();         // fours_fulls.cpp: four of a kind
  void ProbFull();          // fours_fulls.cpp: full house
  void ProbBrelan();        // threes_twopairs.cpp: three of a kind
  void ProbPaires2();       // threes_twopairs.cpp: two pairs
  void ProbRoiOuAs();       // kings_aces.cpp: a pair of kings or aces
  void PairesQuintes0à2();  // kings_aces.cpp
  void PairesQuintes3à4();  // kings_aces.cpp

  // Statistics panel: the odds at rest (index 0..11, jokers 0..2) and the tally of hands.
  Tableau2<Byte, 0, 11, 0, 2> MainsPossibles;
  Tableau2<QString, 0, 11, 0, 2> TexteMainsPossibles;
  Tableau2<QString, 0, 11, 0, 2> TextePourcentages;
  vb::Array<Long, 0, 9> Fréquences;
  // Fills the three tables at rest and shows them for NbJokers in rows 0..11 (start-up).
  void RemplitStatistiques();
  // Puts the panel at rest for NbJokers: head of the count column and rows 0..11 (row 9
  // left alone without jokers), percentage and count columns back to their teal.
  void AfficheStatistiquesRepos();
  template <class T, int R0, int R1, int C0, int C1>
  void BindTableau(const QString& name, Tableau2<T, R0, R1, C0, C1>& table);

  // ==== Interface: displays, alerts, language, options, hints ===============================
  // interface/digits.cpp: the digit displays, the bet buttons and the pointers;
  // interface/alerts.cpp: the alert line; interface/language.cpp: the language tables and
  // the switch; interface/options.cpp: the game switch and the top bar's options;
  // interface/hints.cpp: the hints and the example hands.

  // Digit displays, bet buttons and pointers (interface/digits.cpp):
  void AfficheCapital();
  void AfficheGain();
  void AfficheGain5();
  void AfficheMise();
  void AfficheUnàDouze();
  void Plus_Click();
  void Moins_Click();
  void Plus_MouseMove(int button, int shift, int x, int y);
  void Moins_MouseMove(int button, int shift, int x, int y);
  void Pointeur10();
  void Pointeur12();
  // Alerts (interface/alerts.cpp):
  void ClignoteAlertes();
  // The alert lines that several routines show, in the language in force.
  enum class Alerte {
    SecondTirage,
    Encaisser,        // a win waits: collect, risk or play
    EncaisserMiseUn,  // the same, warning that the bet will fall back to 1
    NouveauTirage,
    MiseRamenée,
    CréditÉpuisé,
    CréditÉpuiséGrille,
    ChoixCarte,  // the double-up asks for a masked card
    PerduMiseRamenée,
    PerduCréditÉpuisé,
  };
  QString TexteAlerte(Alerte a) const;
  // The end of a double-up duel: won (comparaison > 0), equal (0) or lost (< 0), with the
  // names of the player's card and the house's.
  QString TexteDuel(int comparaison, const QString& joueur, const QString& maison) const;
  // Digit displays and bets again (interface/digits.cpp):
  // The refusals shared by the bet buttons and their pointers: a double-up, the time between
  // two drawings, a pending win, no credit.
  bool MiseRefusée() const;
  // After a change of Mise: the bet caption, its digits and the pay table's amounts.
  void MiseChangée();
  // The pointer of a bet button: while bets are open and the button's step raises the stake
  // (`hausse`) to `enJeu`, an arrow turns to no entry when the credit does not cover it, and
  // back when it does; otherwise the pointer is left as it is.
  void PointeurMise(Control& bouton, bool hausse, long long enJeu);

  // Game switch and options of the frame (interface/options.cpp):
  void Jeu3D_Click();
  void JeuSimple_Click();
  void NJokerSélection_Click(int index);
  void SSRecommence_Click();
  void SSVitesse_Click(int index);
  void SSRègles_Click();
  void AidesOk_Click();
  void TitreTimer_Timer();
  // The refusals of the game and deck switches; a refusal blinks the alert line.
  bool ChangementRefusé();
  // Jouez(0..4) back to their "play" caption and colour.
  void JouezÀJouer();
  // The odds panel at rest, with a highlighted pay-table row put back.
  void StatistiquesAuRepos();
  // Frames, labels and the statistics panel for the game in force.
  void PlaceJeux(bool grille);
  // Language tables and the switch (interface/language.cpp):
  void ModifieLangue();
  vb::Array<QString, 0, 10> NomsMains;
  vb::Array<QString, 0, 3> NomsCouleurs;
  Integer LangueVar = 0;  // offset of the hint table: 0 French, 100 English
  Byte TexteAide = 0;     // the hint key now selected
  Byte MainExemple = 50;  // row of the example hand shown; 50 none
  void RemplitNomsMains();
  // Fills the hint table, both languages at once.
  void RemplitMessages();
  // Puts the alert line into the other language when it is one of the known texts.
  void TraduitAlerte(bool versAnglais);
  // Fills NomsValeurs with the card names of the language in force.
  void RemplitNomsValeurs();
  // The rules page in French or English.
  void ConstruitAides(bool anglais);

  // Hints and example hands (interface/hints.cpp):
  void AfficheMessage();
  void SSLangue_MouseMove(int index);
  void Deal2_MouseMove(int index);
  void Deal_MouseMove(int index);
  void Jouez_MouseMove(int index);
  void SSAireJeu_MouseMove();
  void SSAireJeu5_MouseMove();
  void ImageConseils_MouseMove();
  void Mises_MouseMove();
  void UnADouzeTémoin_MouseMove(int index);
  void Maintitre_MouseMove(int index);
  void Maintitre_MouseDown(int index);
  void MainLabel_MouseMove(int index);
  void AutoPlay_MouseMove();
  void AutoPlayStop_MouseMove();
  // Selects hint key `clé` into Messages(0) (key 50 in automatic mode when `cléAuto`, and the
  // text emptied in automatic mode when `videEnAuto`) and shows it.
  void Aide(int clé);
  void MontreAide(int clé, bool videEnAuto, bool cléAuto);
  void MontreTexte(const QString& texte);
  // The example hand over the hint line goes away.
  void CacheExemple();
  // A line's name or price (its number, then its caption), and the total.
  void Ligne_MouseMove(int clé, int index, const Control& étiquette);
  void ChoixJeu_MouseMove(int clé, const Control& bouton);
  void Paresse_MouseMove(int clé);
  void Statistiques_MouseMove(int clé);
  void WireHints();

  // ==== Services ============================================================================
  // services/startup.cpp: Form_Load, the language flags and the settings file, the end;
  // services/soundtrack.cpp: the music routines, over the player in services/music.*;
  // services/display.cpp: the display mode and its question (over services/xrandr.*);
  // services/web.cpp: the web panels and the no-connection notice. Every call that leaves
  // the program goes through the platform seam, Sys() (services/platform.h).
  void Form_Load();
  void Form_QueryUnload();
  void Fin_Click();
  void SSLangue_Click(int index);

  // What ends the program (Fin_Click); the game quits the application, the driver reports.
  std::function<void()> EndProgram;

  // Music: the pieces of the program directory, one after another at random.
  QString MorceauCourant;
  QString TempoMorceau;
  QString LongueurMorceau;
  void JoueMusic();
  void MusicTimer_Timer();
  void SSMusic_Click();

  // Display mode: checked at start, changed to 1024 x 768 with the player's consent when the
  // screen has fewer lines, and given back at the end.
  Control* AfficheForm = nullptr;  // its own window
  Control* AfficheLogoWeb = nullptr;
  ControlArray<Control> AfficheLabel;
  Control* OkOuiCmd = nullptr;
  Control* OkNonCmd = nullptr;
  Integer LargeurÉcran = 0;
  Integer HauteurÉcran = 0;
  Integer CouleursÉcran = 0;
  Integer FréquenceÉcran = 0;
  DisplayMode ModeÉcran;  // the record the platform is given
  void VérifieRésolution();
  void RestaureRésolution();
  void ChangeAffichage(Integer& largeur, Integer& hauteur, Integer& couleurs, Integer& fréquence);
  void NoteChangement(Integer largeur, Integer hauteur, Integer couleurs, Integer fréquence, const QString& nom);
  void OkOuiCmd_Click();
  void OkNonCmd_Click();
  // Set by the refusal: Form_Load goes no further (where ending the program returns, as in
  // tests).
  bool FinDemandée = false;

  // Web panels and the no-connection notice.
  bool NetworkStatus();
  void NonConnectéTimer_Timer();
  void NonConnectéCmd_Click();
  // Where the panels' pages come from: the publisher's server when TALVERO_PUBLISHER names
  // one, the pages shipped in the program directory otherwise.
  QString AdresseWeb(const QString& page) const;

  // ==== The coach: coach/link.cpp, over coach/coach.* and the window's library ==============
  // A window beside the table that judges the holds of JEU 1 and keeps the session's record. It
  // reads the table at these moments and never writes it; until it first opens it does nothing.
  enum class MomentCoach {
    Suivi,      // a hold, a card turned, the deal or the language changed
    Décision,   // a second drawing starts: the hold or the cards turned down, as they stand, are played
    FinTirage,  // a drawing of either game is over
  };
  void AvertitCoach(MomentCoach moment);
  // F2: opens the coach, or closes its window (the record goes on).
  void BasculeCoach();
  void OuvreCoach(bool montrer);
  bool CoachVisible() const;
  // The coach's window once made (its library loaded), else null.
  QWidget* FenêtreCoach() const;
  // talvero-drive's `coach` and `coach session` lines.
  QString LigneCoach() const;
  QString LigneSessionCoach() const;
  QString LigneSessionCoach2() const;  // JEU 2's tallies

  // ==== Form-level variables by name, for talvero-drive and tests ==========================
  // interface/JeuPoker.cpp, each subsystem registering its own (Register*Variables).
  struct Variable {
    int low = -1, high = -1;  // -1, -1 for a scalar
    std::function<QString(int)> get;
    std::function<bool(int, const QString&)> set;
  };
  const Variable* FindVariable(const QString& name) const;

 protected:
  void resizeEvent(QResizeEvent* e) override;
  bool event(QEvent* e) override;
  void closeEvent(QCloseEvent* e) override;
  void mouseReleaseEvent(QMouseEvent* e) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // Builds every control in its place (the inventory, interface/inventory.cpp; the display
  // question, services/display.cpp) and wires the events (interface/JeuPoker.cpp).
  void BuildControls();
  void BuildAfficheForm();
  void WireEvents();
  // Renders the stored pictures (card faces, digits, titles) into the picture stores
  // (interface/pictures.cpp).
  void BuildPictures();
  // The table's scale: the controls, the web panels and the coach follow it, and the pictures
  // are drawn again in the background (interface/table_scale.cpp).
  void ApplyTableScale(double s);
  void ScaleTableContents();
  // The coach's window, set to the table's scale when it opens and as the scale changes
  // (coach/link.cpp).
  void ScaleCoachWindow();
  std::shared_ptr<pics::CardFaces> FacesFor(qreal ratio);
  void ShowCardPointer(qreal ratio);
  void RenderPictures();
  void AdoptPictures();
  void ToggleFullScreen();
  // A painted picture, drawn by `render` at a ratio on any thread; a card face from the worker.
  Picture StorePicture(const QString& name, std::function<QImage(qreal)> render);
  Picture StoreCardPicture(const QString& name, int code, bool small);

  Control* Make(ControlKind kind, const QString& name, Control* parent, int left, int top, int width, int height,
                int index = -1);
  void Register(Control* c);
  TimerControl* MakeTimer(const QString& name, int interval, bool enabled);

  // Variable registration, one function per subsystem: core in interface/JeuPoker.cpp,
  // classic in classic/round.cpp, probability in probability/driver.cpp, interface in
  // interface/digits.cpp; the templates in interface/bind.h.
  void RegisterVariables();
  void RegisterCoreVariables();
  void RegisterClassicVariables();
  void RegisterProbabilityVariables();
  void RegisterInterfaceVariables();
  template <class T>
  void Bind(const QString& name, T& scalar);
  template <class T, int Lo, int Hi>
  void Bind(const QString& name, vb::Array<T, Lo, Hi>& array);

  QString programDir_;
  QString dataDir_;
  QHash<QString, std::vector<Control*>> controlsByName_;  // index order; singles at [0]
  QHash<QString, int> arrayLow_;
  QHash<QString, TimerControl*> timers_;
  std::vector<std::unique_ptr<StoredPicture>> pictures_;
  std::shared_ptr<pics::CardFaces> cardFaces_;  // drawn on a worker, the faces after the first frame
  pics::CardFaces::Sizes faceSizes_;            // their sizes, at the ratio of the start
  // The table on screen (interface/table_scale.cpp): the surface the controls stand on, its
  // scale, and the pictures drawn again in the background after the scale changes.
  QWidget* table_ = nullptr;
  double scale_ = 1;
  QTimer* renderDelay_ = nullptr;  // a resize settles before the pictures are drawn again
  QTimer* renderPoll_ = nullptr;   // looks for the pictures drawn in the background
  std::future<std::vector<QImage>> rendering_;
  std::vector<const StoredPicture*> renderingPictures_;
  qreal renderingRatio_ = 0;
  bool firstFrameSeen_ = false;  // the first frame has been seen
  QHash<QString, Variable> variables_;
  coach::Table TableCoach() const;
  std::unique_ptr<coach::Coach> coach_;
  std::unique_ptr<CoachWindow> coachWindow_;
};
