// The coach's window: the 32 holds of the hand between the drawings, the verdict on the hold
// played, the session's record with its last mistakes, and a chart of the session.
#include <QApplication>
#include <QChart>
#include <QChartView>
#include <QFont>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineSeries>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QTableWidget>
#include <QVBoxLayout>
#include <QValueAxis>
#include <QWidget>

#include "coach/record.h"
#include "coach/window.h"

namespace {

using coach::Decision;
using coach::Judgement;
using coach::Phase;
using coach::Record;

QString Card(std::uint8_t code) {
  if (code >= 52) return QStringLiteral("JK");
  static const char* const suits[4] = {"\u2663", "\u2666", "\u2665", "\u2660"};
  return QString(QLatin1Char("23456789TJQKA"[code % 13])) + QString::fromUtf8(suits[code / 13]);
}

// The cards of a deal, those not held shown as a dot.
QString Held(const Judgement& j, unsigned held) {
  QStringList cards;
  for (int i = 0; i < 5; ++i)
    cards << ((held & (1u << i)) ? Card(j.hand[static_cast<std::size_t>(i)]) : QStringLiteral("\u00b7"));
  return cards.join(QLatin1Char(' '));
}

QString Hand(const Judgement& j) { return Held(j, 31); }

QString Credits(double v) { return QString::number(v, 'f', 2); }

class Window : public QWidget, public CoachWindow {
 public:
  explicit Window(const Record* record) : record_(record) {
    setWindowTitle(QStringLiteral("Coach"));
    setObjectName(QStringLiteral("Coach"));
    // Shown, it leaves the keyboard to the table, where Space plays.
    setAttribute(Qt::WA_ShowWithoutActivating);
    auto* layout = new QVBoxLayout(this);

    heading_ = new QLabel(this);
    QFont big = heading_->font();
    big.setBold(true);
    big.setPointSizeF(big.pointSizeF() * 1.15);
    heading_->setFont(big);
    heading_->setWordWrap(true);
    layout->addWidget(heading_);
    detail_ = new QLabel(this);
    detail_->setWordWrap(true);
    layout->addWidget(detail_);
    duel_ = new QLabel(this);
    duel_->setStyleSheet(QStringLiteral("color: #803000"));
    layout->addWidget(duel_);

    holds_ = new QTableWidget(coach::kHolds, 3, this);
    holds_->verticalHeader()->setVisible(false);
    holds_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    holds_->setSelectionMode(QAbstractItemView::NoSelection);
    holds_->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    holds_->verticalHeader()->setDefaultSectionSize(holds_->fontMetrics().height() + 4);
    holds_->setMinimumHeight(120);
    for (int r = 0; r < coach::kHolds; ++r)
      for (int c = 0; c < 3; ++c) {
        auto* item = new QTableWidgetItem;
        item->setTextAlignment(c == 0 ? Qt::AlignLeft | Qt::AlignVCenter : Qt::AlignRight | Qt::AlignVCenter);
        holds_->setItem(r, c, item);
      }
    layout->addWidget(holds_, 3);
    // JEU 2: the grid, the cards the best choice turns down in red, those on no line in play grey.
    gridPicture_ = new QLabel(this);
    gridPicture_->setTextFormat(Qt::RichText);
    gridPicture_->setAlignment(Qt::AlignCenter);
    gridPicture_->setVisible(false);
    layout->addWidget(gridPicture_, 3);
    back_ = new QPushButton(this);
    back_->setVisible(false);
    connect(back_, &QPushButton::clicked, this, [this] {
      shownMistake_ = -1;
      Update();
    });
    layout->addWidget(back_);

    session_ = new QGroupBox(this);
    auto* sessionLayout = new QVBoxLayout(session_);
    tallies_ = new QLabel(session_);
    tallies_->setTextFormat(Qt::RichText);
    sessionLayout->addWidget(tallies_);
    auto* mistakesColumn = new QVBoxLayout;
    mistakesTitle_ = new QLabel(session_);
    mistakesTitle_->setWordWrap(true);
    mistakesColumn->addWidget(mistakesTitle_);
    mistakes_ = new QListWidget(session_);
    mistakes_->setMaximumHeight(4 * mistakes_->fontMetrics().height() + 8);
    connect(mistakes_, &QListWidget::itemActivated, this, [this](QListWidgetItem* item) {
      shownMistake_ = mistakes_->row(item);
      Update();
    });
    mistakesColumn->addWidget(mistakes_, 1);
    sessionLayout->addLayout(mistakesColumn, 1);
    layout->addWidget(session_, 1);

    credit_ = new QLineSeries;
    lost_ = new QLineSeries;
    auto* chart = new QChart;
    chart->addSeries(credit_);
    chart->addSeries(lost_);
    axisX_ = new QValueAxis;
    axisY_ = new QValueAxis;
    axisX_->setLabelFormat(QStringLiteral("%d"));
    axisX_->setTickCount(6);
    axisY_->setLabelFormat(QStringLiteral("%.0f"));
    chart->addAxis(axisX_, Qt::AlignBottom);
    chart->addAxis(axisY_, Qt::AlignLeft);
    for (QLineSeries* s : {credit_, lost_}) {
      s->attachAxis(axisX_);
      s->attachAxis(axisY_);
    }
    axisX_->setRange(0, 10);
    axisY_->setRange(0, top_ * 1.05);
    chart->legend()->setAlignment(Qt::AlignBottom);
    for (QValueAxis* a : {axisX_, axisY_}) a->setTruncateLabels(false);
    chart_ = chart;
    view_ = new QChartView(chart, this);
    view_->setRenderHint(QPainter::Antialiasing);
    view_->setMinimumHeight(200);
    layout->addWidget(view_, 2);

    resize(480, 768);
    english_ = !record_->english;
    Update();
  }

  void Refresh() override {
    if (pending_) return;
    pending_ = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
          pending_ = false;
          if (isVisible()) Update();
        },
        Qt::QueuedConnection);
  }

  void SetShown(bool shown) override {
    if (shown) Update();
    setVisible(shown);
  }
  bool Shown() const override { return isVisible(); }
  QWidget* Widget() override { return this; }

  // Everything in the window is sized from its font: the font follows the table's scale, and
  // the few sizes given in pixels are scaled with it.
  void SetScale(double s) override {
    if (s == scale_) return;
    // The window keeps the size the player gave it, in the table's units.
    const double change = s / scale_;
    scale_ = s;
    QFont f = QApplication::font();
    f.setPointSizeF(f.pointSizeF() * s);
    setFont(f);
    QFont big = f;
    big.setBold(true);
    big.setPointSizeF(f.pointSizeF() * 1.15);
    heading_->setFont(big);
    for (int r = 0; r < holds_->rowCount(); ++r)
      for (int c = 0; c < holds_->columnCount(); ++c) {
        QFont itemFont = f;
        itemFont.setBold(holds_->item(r, c)->font().bold());
        holds_->item(r, c)->setFont(itemFont);
      }
    holds_->verticalHeader()->setDefaultSectionSize(holds_->fontMetrics().height() + qRound(4 * s));
    holds_->setMinimumHeight(qRound(120 * s));
    mistakes_->setMaximumHeight(4 * mistakes_->fontMetrics().height() + qRound(8 * s));
    view_->setMinimumHeight(qRound(200 * s));
    chart_->legend()->setFont(f);
    holds_->horizontalHeader()->setFont(f);
    for (QValueAxis* a : {axisX_, axisY_}) {
      a->setLabelsFont(f);
      a->setTitleFont(f);
    }
    if (!isMaximized() && !isFullScreen()) resize(qRound(width() * change), qRound(height() * change));
  }

 protected:
  // F2 closes the window from the window too.
  void keyPressEvent(QKeyEvent* e) override {
    if (e->key() == Qt::Key_F2)
      hide();
    else
      QWidget::keyPressEvent(e);
  }

 public:
  void PlaceBeside(const QRect& table) override {
    QRect area = QRect(QPoint(0, 0), size());
    if (QScreen* s = QApplication::screenAt(table.center())) area = s->availableGeometry();
    int x = table.right() + 8;
    if (x + width() > area.right()) x = std::max(area.left(), area.right() - width());
    move(x, std::max(area.top(), table.top()));
  }

 private:
  QString T(const char* fr, const char* en) const { return QString::fromUtf8(record_->english ? en : fr); }

  // Sets a label's text only when it changes, so that nothing else is laid out or painted.
  static void Set(QLabel* l, const QString& text) {
    if (l->text() != text) l->setText(text);
  }

  // Brings the window up to the record, touching only what changed since the last time: a hold
  // click repaints two rows of the table and one label.
  void Update() {
    const Record& r = *record_;
    if (english_ != r.english) {
      english_ = r.english;
      back_->setText(T("Revenir à la main en cours", "Back to the hand in play"));
      session_->setTitle(T("Session", "Session"));
      mistakesTitle_->setText(T("Dernières erreurs (double-clic : revoir)", "Last mistakes (double-click: review)"));
      holds_->setHorizontalHeaderLabels(
          {T("Cartes gardées", "Cards held"), T("Espérance", "Expected"), T("Paie", "Pays")});
      credit_->setName(T("Crédit", "Credit"));
      lost_->setName(T("Perte espérée des erreurs", "Expected loss to mistakes"));
      axisX_->setTitleText(T("Tirages", "Drawings"));
      shownJudgement_ = nullptr;
      shownTallies_.clear();
      shownMistakes_ = -1;
    }

    const bool review = shownMistake_ >= 0 && shownMistake_ < static_cast<int>(r.mistakes.size());
    back_->setVisible(review);
    if (review) {
      const Decision& d = r.mistakes[static_cast<std::size_t>(shownMistake_)];
      Set(heading_, T("Erreur : ", "Mistake: ") + Hand(d.judgement));
      Set(detail_, Verdict(d));
      ShowHolds(&d.judgement, d.played);
    } else if (r.phase == Phase::Between) {
      const Judgement& j = r.current;
      Set(heading_, T("Entre les tirages : ", "Between the drawings: ") + Hand(j) + T(", mise ", ", bet ") +
                        QString::number(j.mise));
      const double diff = j.Cost(r.held);
      Set(detail_, T("Votre choix ", "Your hold ") + Held(j, r.held) + " : " + Credits(j.Of(r.held).ev) + "\n" +
                       T("Le meilleur ", "The best ") + Held(j, j.Best().held) + " : " + Credits(j.Best().ev) + "\n" +
                       (diff > 0 ? T("Écart : ", "Difference: ") + Credits(diff) + T(" crédits", " credits")
                                 : T("Votre choix est le meilleur.", "Your hold is the best.")));
      ShowHolds(&j, r.held);
    } else if (r.phase == Phase::GridBetween || r.phase == Phase::GridVerdict) {
      const coach::GridJudgement& g = r.grid;
      const bool verdict = r.phase == Phase::GridVerdict;
      Set(heading_, (verdict ? T("JEU 2, verdict", "JEU 2, verdict")
                             : T("JEU 2 entre les tirages", "JEU 2 between the drawings")) +
                        T(" : niveau ", ": level ") + QString::number(g.level) + T(", mise ", ", bet ") +
                        QString::number(g.mise));
      const double diff = g.Cost();
      Set(detail_, T("Votre choix : ", "Your choice: ") + Credits(g.ev) + "\n" + T("Les conseils : ", "The advice: ") +
                       Credits(g.adviceEv) + "\n" + T("Le meilleur : ", "The best: ") + Credits(g.bestEv) + "\n" +
                       (diff > 0 ? (verdict ? T("Erreur : ", "Mistake: ") : T("Écart : ", "Difference: ")) +
                                       Credits(diff) + T(" crédits en espérance", " credits in expectation")
                                 : T("Votre choix est le meilleur.", "Your choice is the best.")));
      ShowGrid(g);
    } else if (r.phase == Phase::Verdict) {
      Set(heading_, T("Verdict : ", "Verdict: ") + Hand(r.last.judgement));
      Set(detail_, Verdict(r.last));
      ShowHolds(&r.last.judgement, r.last.played);
    } else {
      Set(heading_, T("Rien à juger pour l'instant", "Nothing to judge now"));
      Set(detail_, T("Le coach juge chaque choix entre les deux tirages du JEU 1.",
                     "The coach judges every hold between the two drawings of JEU 1."));
      ShowHolds(nullptr, 0);
    }
    ShowDuel(r.duel);
    ShowSession(r);
    ShowChart(r);
    // A label that shows or grows takes its room now, not at the next turn of the event loop.
    layout()->activate();
  }

  void ShowDuel(const coach::DuelFigures& d) {
    duel_->setVisible(d.shown);
    if (!d.shown) return;
    const auto pc = [](double p) { return QString::number(100 * p, 'f', 1) + " %"; };
    Set(duel_, (d.houseKnown ? T("Le duel contre cette carte : ", "The duel against this card: ")
                             : T("Si vous doublez : ", "If you double: ")) +
                   T("gagné ", "win ") + pc(d.win) + T(", égal ", ", tie ") + pc(d.tie) + T(", perdu ", ", lose ") +
                   pc(d.lose) + ".\n" + T("Doubler vaut ", "Doubling is worth ") + QString::number(d.ev, 'f', 3) +
                   T(" fois le gain.", " times the win."));
  }

  QString Verdict(const Decision& d) const {
    const QString who = d.automatic ? T(" (mode automatique)", " (automatic mode)") : QString();
    if (d.cost <= 0) return T("Bon choix", "Right") + who + " : " + Held(d.judgement, d.played);
    return T("Erreur", "Mistake") + who + " : " + Held(d.judgement, d.played) + T(" a coûté ", " cost ") +
           Credits(d.cost) + T(" crédits en espérance. Le meilleur : ", " credits in expectation. The best: ") +
           Held(d.judgement, d.judgement.Best().held);
  }

  // The 32 holds of `j` (none when null), the row of `marked` pointed at, the best in green.
  void ShowHolds(const Judgement* j, unsigned marked) {
    gridPicture_->setVisible(false);
    holds_->setVisible(true);
    const bool same = j == shownJudgement_ && (!j || (j->hand == shownHand_ && j->mise == shownMise_));
    for (int r = 0; r < coach::kHolds; ++r) {
      const coach::HoldValue* h = j && j->valid ? &j->holds[static_cast<std::size_t>(r)] : nullptr;
      const bool wasMine = same && h && h->held == shownMarked_;
      const bool mine = h && h->held == marked;
      if (same && wasMine == mine) continue;
      const bool best = h && coach::EquallyRight(h->ev, j->Best().ev);
      const QString texts[3] = {
          h ? (mine ? QStringLiteral("\u25b6 ") : QStringLiteral("   ")) + Held(*j, h->held) : QString(),
          h ? Credits(h->ev) : QString(), h ? QString::number(100 * h->pays, 'f', 1) + " %" : QString()};
      for (int c = 0; c < 3; ++c) {
        QTableWidgetItem* item = holds_->item(r, c);
        item->setText(texts[c]);
        QFont f = holds_->font();
        f.setBold(mine);
        item->setFont(f);
        item->setBackground(best ? QColor(0xd8, 0xf0, 0xd0) : mine ? QColor(0xf8, 0xe0, 0xc0) : QColor(Qt::white));
      }
    }
    shownJudgement_ = j;
    if (j) {
      shownHand_ = j->hand;
      shownMise_ = j->mise;
    }
    shownMarked_ = marked;
  }

  // One row of the session's table: a way of playing and its tallies.
  QString TallyRow(const QString& who, const coach::Tally& t) const {
    return "<tr><td>" + who + "</td><td align=right>" + QString::number(t.decisions) + "</td><td align=right>" +
           QString::number(t.mistakes) + "</td><td align=right>" + QString::number(t.Accuracy(), 'f', 1) +
           " %</td><td align=right>" + Credits(t.lost) + "</td><td align=right>" +
           QString::number(t.PlayedReturn(), 'f', 2) + " %</td><td align=right>" +
           QString::number(t.BestReturn(), 'f', 2) + " %</td></tr>";
  }

  void ShowGrid(const coach::GridJudgement& g) {
    holds_->setVisible(false);
    gridPicture_->setVisible(true);
    QString html = QStringLiteral("<table cellspacing=2 cellpadding=4>");
    for (int row = 0; row < 5; ++row) {
      html += QStringLiteral("<tr>");
      for (int col = 0; col < 5; ++col) {
        const int p = 5 * row + col;
        const bool inPlay = g.inPlay & (1u << p);
        const bool best = g.bestDown & (1u << p);
        const bool mine = g.down & (1u << p);
        const QString colour = best     ? QStringLiteral("#f0a0a0")
                               : inPlay ? QStringLiteral("#ffffff")
                                        : QStringLiteral("#d0d0d0");
        html += QStringLiteral("<td align=center bgcolor=%1>%2%3%4</td>")
                    .arg(colour, mine ? QStringLiteral("<u>") : QString(), Card(g.grid[static_cast<std::size_t>(p)]),
                         mine ? QStringLiteral("</u>") : QString());
      }
      html += QStringLiteral("</tr>");
    }
    html += QStringLiteral("</table><br>") + T("En rouge : ce que le meilleur choix retourne ; souligné : votre choix.",
                                               "In red: what the best choice turns down; underlined: your choice.");
    Set(gridPicture_, html);
  }

  void ShowSession(const Record& r) {
    const QString tallies =
        "<table cellspacing=0 cellpadding=2><tr><th></th><th>" + T("Décisions", "Decisions") + "</th><th>" +
        T("Erreurs", "Mistakes") + "</th><th>" + T("Justesse", "Accuracy") + "</th><th>" + T("Perdu", "Lost") +
        "</th><th>" + T("Retour", "Return") + "</th><th>" + T("Parfait", "Perfect") + "</th></tr>" +
        TallyRow(T("JEU 1, vous", "JEU 1, you"), r.player) + TallyRow(T("JEU 1, auto", "JEU 1, auto"), r.automatic) +
        TallyRow(T("JEU 2, vous", "JEU 2, you"), r.gridPlayer) +
        TallyRow(T("JEU 2, auto", "JEU 2, auto"), r.gridAutomatic) + "</table>";
    if (tallies != shownTallies_) {
      tallies_->setText(tallies);
      shownTallies_ = tallies;
    }
    const long long mistakes = r.player.mistakes + r.automatic.mistakes;
    if (shownMistakes_ != mistakes) {
      mistakes_->clear();
      for (const Decision& d : r.mistakes)
        mistakes_->addItem(Hand(d.judgement) + "  \u2212" + Credits(d.cost) + "\n" + Held(d.judgement, d.played) +
                           " \u2192 " + Held(d.judgement, d.judgement.Best().held));
      shownMistakes_ = mistakes;
    }
  }

  void ShowChart(const Record& r) {
    if (static_cast<std::size_t>(credit_->count()) == r.chart.size()) return;
    for (std::size_t i = static_cast<std::size_t>(credit_->count()); i < r.chart.size(); ++i) {
      credit_->append(static_cast<double>(i + 1), r.chart[i].credit);
      lost_->append(static_cast<double>(i + 1), r.chart[i].lost);
      top_ = std::max({top_, r.chart[i].credit, r.chart[i].lost});
    }
    axisX_->setRange(0, std::max<double>(10, static_cast<double>(r.chart.size())));
    axisY_->setRange(0, top_ * 1.05);
  }

  const Record* record_;
  bool pending_ = false;
  int shownMistake_ = -1;  // the mistake under review, -1 none
  bool english_ = false;
  const Judgement* shownJudgement_ = nullptr;  // what the table of holds shows
  std::array<std::uint8_t, 5> shownHand_{};
  int shownMise_ = 0;
  unsigned shownMarked_ = 0;
  QString shownTallies_;
  long long shownMistakes_ = -1;
  double top_ = 10;
  QLabel* heading_;
  QLabel* detail_;
  QTableWidget* holds_;
  QPushButton* back_;
  QGroupBox* session_;
  QLabel* tallies_;
  QLabel* duel_;
  QLabel* gridPicture_;
  QListWidget* mistakes_;
  QLabel* mistakesTitle_;
  QLineSeries* credit_;
  QLineSeries* lost_;
  QValueAxis* axisX_;
  QValueAxis* axisY_;
  QChart* chart_;
  QChartView* view_;
  double scale_ = 1;
};

}  // namespace

extern "C" Q_DECL_EXPORT CoachWindow* TalveroCoachWindow(const coach::Record* record) { return new Window(record); }
