#include "interface/JeuPoker.h"

#include <QApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QTimer>

#include "interface/bind.h"
#include "interface/table_scale.h"
#include "services/first_frame.h"
#include "services/startup_stages.h"

int VbKeyCode(const QKeyEvent* e);

JeuPoker::JeuPoker(const QString& programDir, const QString& dataDir, double scale)
    : programDir_(programDir), dataDir_(dataDir.isEmpty() ? programDir : dataDir) {
  setObjectName("JeuPoker");
  setWindowTitle("MONTALBERGUES");
  // The table never shows smaller than its logical size; larger, it is centred on black.
  setMinimumSize(table::kLogicalSize);
  setAutoFillBackground(true);
  QPalette pal = palette();
  pal.setColor(QPalette::Window, Qt::black);
  setPalette(pal);
  // At start the table fits the screen's free area, unless a scale was asked for.
  const QScreen* screen = QGuiApplication::primaryScreen();
  scale_ = scale > 0 ? scale : screen ? table::FitScale(screen->availableGeometry().size()) : 1.0;
  table_ = new QWidget(this);
  table_->setObjectName(QStringLiteral("Table"));
  resize(table::TableSize(scale_));
  table_->setGeometry(table::TableRect(size(), scale_));
  // The card faces take longest: they render on a worker while the controls are built.
  faceSizes_ = {QSize(88, 133), 55, QSize(65, 87), 54, PictureRatio()};
  cardFaces_ = pics::CardFaces::For(faceSizes_);
  renderDelay_ = new QTimer(this);
  renderDelay_->setSingleShot(true);
  renderDelay_->setInterval(table::kRenderDelayMs);
  connect(renderDelay_, &QTimer::timeout, this, [this] { RenderPictures(); });
  renderPoll_ = new QTimer(this);
  renderPoll_->setInterval(table::kRenderPollMs);
  connect(renderPoll_, &QTimer::timeout, this, [this] { AdoptPictures(); });
  BuildControls();
  StartupStage("controls");
  BuildPictures();
  StartupStage("pictures");
  if (scale_ != 1) ScaleTableContents();
  WireEvents();
  RegisterVariables();
  // Keys reach the form first, then the control with the focus.
  qApp->installEventFilter(this);
}

JeuPoker::~JeuPoker() {
  qApp->removeEventFilter(this);
  // The pictures drawn in the background belong to this form.
  if (rendering_.valid()) rendering_.wait();
}

bool JeuPoker::eventFilter(QObject* watched, QEvent* event) {
  // Once the form's first frame has been painted and flushed, the card worker goes on to the
  // faces and the sound device is opened.
  if (event->type() == QEvent::Paint && watched == this && !firstFrameSeen_) {
    firstFrameSeen_ = true;
    QTimer::singleShot(0, this, [this] {
      if (cardFaces_) cardFaces_->Continue();
      FirstFrameShown();
    });
  }
  // F11 switches the table to full screen and back; the game never sees it.
  if ((event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease) &&
      static_cast<QKeyEvent*>(event)->key() == Qt::Key_F11) {
    auto* w = qobject_cast<QWidget*>(watched);
    if (w && (w == this || isAncestorOf(w))) {
      if (event->type() == QEvent::KeyPress && !static_cast<QKeyEvent*>(event)->isAutoRepeat()) ToggleFullScreen();
      return true;
    }
  }
  if (event->type() == QEvent::KeyPress) {
    auto* w = qobject_cast<QWidget*>(watched);
    if (w && w != this && isAncestorOf(w)) {
      auto* k = static_cast<QKeyEvent*>(event);
      int shift = 0;
      if (k->modifiers() & Qt::ShiftModifier) shift |= 1;
      if (k->modifiers() & Qt::ControlModifier) shift |= 2;
      if (k->modifiers() & Qt::AltModifier) shift |= 4;
      Form_KeyDown(VbKeyCode(k), shift);
    }
  }
  return QWidget::eventFilter(watched, event);
}

void JeuPoker::WireEvents() {
  Jouer->Click = [this] { Jouer_Click(); };
  Jouer->MouseDown = [this](int b, int s, int x, int y) { Jouer_MouseDown(b, s, x, y); };
  Jouer->MouseUp = [this](int b, int s, int x, int y) { Jouer_MouseUp(b, s, x, y); };
  Tirage->KeyDown = [this](int k, int s) { Tirage_KeyDown(k, s); };
  Tirage->KeyUp = [this](int k, int s) { Tirage_KeyUp(k, s); };
  for (int i = 0; i <= 4; ++i) Deal(i).Click = [this, i] { Deal_Click(i); };
  for (int i = 0; i <= 4; ++i) Jouez(i).Click = [this, i] { Jouez_Click(i); };
  SSTirage->Click = [this] { SSTirage_Click(); };
  Doubler->Click = [this] { Doubler_Click(); };
  Plus->Click = [this] { Plus_Click(); };
  Moins->Click = [this] { Moins_Click(); };
  Plus->MouseMove = [this](int b, int s, int x, int y) { Plus_MouseMove(b, s, x, y); };
  Moins->MouseMove = [this](int b, int s, int x, int y) { Moins_MouseMove(b, s, x, y); };
  ParesseOui->Click = [this] { ParesseOui_Click(); };
  ParesseNon->Click = [this] { ParesseNon_Click(); };
  Double1X5->Click = [this] { Double1X5_Click(); };
  Quitte1X5->Click = [this] { Quitte1X5_Click(); };
  Fin->Click = [this] { Fin_Click(); };
  for (int p = 0; p <= 24; ++p) Deal2(p).Click = [this, p] { Deal2_Click(p); };
  Plus5->Click = [this] { Plus5_Click(); };
  Moins5->Click = [this] { Moins5_Click(); };
  Plus5->MouseMove = [this](int b, int s, int x, int y) { Plus5_MouseMove(b, s, x, y); };
  Moins5->MouseMove = [this](int b, int s, int x, int y) { Moins5_MouseMove(b, s, x, y); };
  Double5X5->Click = [this] { Double5X5_Click(); };
  Quitte5X5->Click = [this] { Quitte5X5_Click(); };
  Conseils5->Click = [this] { Conseils5_Click(); };
  AnnuleConseils5->Click = [this] { AnnuleConseils5_Click(); };
  Jeu3D->Click = [this] { Jeu3D_Click(); };
  JeuSimple->Click = [this] { JeuSimple_Click(); };
  for (int i = 0; i <= 2; ++i) NJokerSélection(i).Click = [this, i] { NJokerSélection_Click(i); };
  SSRecommence->Click = [this] { SSRecommence_Click(); };
  for (int i = 0; i <= 1; ++i) SSVitesse(i).Click = [this, i] { SSVitesse_Click(i); };
  SSRègles->Click = [this] { SSRègles_Click(); };
  AidesOk->Click = [this] { AidesOk_Click(); };
  TitreTimer->Tick = [this] { TitreTimer_Timer(); };
  AutoPlay->Click = [this] { AutoPlay_Click(); };
  AutoPlayStop->Click = [this] { AutoPlayStop_Click(); };
  AutoPlayTimer->Tick = [this] { AutoPlayTimer_Timer(); };
  SSMusic(0).Click = [this] { SSMusic_Click(); };
  MusicTimer->Tick = [this] { MusicTimer_Timer(); };
  NonConnectéTimer->Tick = [this] { NonConnectéTimer_Timer(); };
  NonConnectéCmd->Click = [this] { NonConnectéCmd_Click(); };
  WireHints();
  for (int i = 0; i <= 1; ++i) SSLangue(i).Click = [this, i] { SSLangue_Click(i); };
}

const JeuPoker::Variable* JeuPoker::FindVariable(const QString& name) const {
  auto it = variables_.find(name);
  return it == variables_.end() ? nullptr : &it.value();
}

void JeuPoker::RegisterVariables() {
  RegisterCoreVariables();
  RegisterClassicVariables();
  RegisterProbabilityVariables();
  RegisterInterfaceVariables();
}

void JeuPoker::RegisterCoreVariables() {
  Bind("CartesTirage", CartesTirage);
  Bind("CartesSorties", CartesSorties);
  Bind("NbTirées", NbTirées);
  Bind("CarteClavier", CarteClavier);
  Bind("MainTriée", MainTriée);
  Bind("ValeursMain", ValeursMain);
  Bind("BlocsCouleur", BlocsCouleur);
  Bind("PositionsMain", PositionsMain);
  Bind("CartesGardées", CartesGardées);
  Bind("RangMain", RangMain);
  Bind("GainMain", GainMain);
  Bind("NbRois", NbRois);
  Bind("NbAs", NbAs);
  Bind("NbPaires", NbPaires);
  Bind("Mise", Mise);
  Bind("Capital", Capital);
  Bind("TableGains", TableGains);
  Bind("AffichageImmédiat", AffichageImmédiat);
  Bind("IndiceDouble", IndiceDouble);
  Bind("Niveau", Niveau);
  Bind("GainTirage", GainTirage);
  Bind("DoubleCarte1", DoubleCarte1);
  Bind("DoubleCarte2", DoubleCarte2);
  Bind("DoubleCarte3", DoubleCarte3);
  Bind("NomsValeurs", NomsValeurs);
  Bind("CarteChoisie", CarteChoisie);
  Bind("DoubleEnCours", DoubleEnCours);
  Bind("LignesJouées", LignesJouées);
  Bind("IndexLigne", IndexLigne);
  Bind("NbJokers", NbJokers);
  Bind("TailleJeu", TailleJeu);
  Bind("Langue", Langue);
  Bind("MorceauCourant", MorceauCourant);
  Bind("TempoMorceau", TempoMorceau);
  Bind("LongueurMorceau", LongueurMorceau);
  Bind("LargeurÉcran", LargeurÉcran);
  Bind("HauteurÉcran", HauteurÉcran);
  Bind("CouleursÉcran", CouleursÉcran);
  Bind("FréquenceÉcran", FréquenceÉcran);
  Bind("Messages", Messages);
  Bind("MainsLignes", MainsLignes);
  Bind("NomsMains", NomsMains);
  Bind("NomsCouleurs", NomsCouleurs);
  Bind("LangueVar", LangueVar);
  Bind("TexteAide", TexteAide);
  Bind("MainExemple", MainExemple);
}
