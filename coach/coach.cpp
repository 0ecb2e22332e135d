#include "coach/coach.h"

#include <future>
#include <memory>
#include <mutex>

#include "odds/engine.h"

namespace coach {

namespace {

// The tables of the three decks, each built once on a worker.
class Analyst {
 public:
  static Analyst& Get() {
    static Analyst analyst;
    return analyst;
  }

  void Prepare(int jokers) {
    const std::lock_guard lock(mutex_);
    auto& f = tables_[static_cast<std::size_t>(jokers)];
    if (!f.valid())
      f = std::async(std::launch::async, [jokers] {
            return std::make_shared<const odds::Tables>(odds::Tables::ForGame(jokers));
          }).share();
  }

  void Wait(int jokers) {
    Prepare(jokers);
    std::shared_future<std::shared_ptr<const odds::Tables>> f;
    {
      const std::lock_guard lock(mutex_);
      f = tables_[static_cast<std::size_t>(jokers)];
    }
    f.wait();
  }

  std::vector<odds::Hold> Analyse(const odds::Hand& hand, int jokers) {
    Prepare(jokers);
    std::shared_future<std::shared_ptr<const odds::Tables>> f;
    {
      const std::lock_guard lock(mutex_);
      f = tables_[static_cast<std::size_t>(jokers)];
    }
    const odds::PayTable pay = odds::PayTableClassic(jokers);
    if (f.wait_for(std::chrono::seconds(0)) == std::future_status::ready) return odds::AnalyseHand(*f.get(), pay, hand);
    return odds::AnalyseHandDirect(jokers, pay, hand, 1);
  }

 private:
  // The classifier the workers use is made first, so that it outlives this.
  Analyst() { odds::GameClassifier::Get(); }
  ~Analyst() {
    for (auto& f : tables_)
      if (f.valid()) f.wait();
  }
  std::mutex mutex_;
  std::array<std::shared_future<std::shared_ptr<const odds::Tables>>, 3> tables_;
};

bool SameGrid(const GridJudgement& g, const Table& t) {
  return g.valid && g.grid == t.grid && g.jokers == t.jokers && g.level == t.level && g.mise == t.mise;
}

odds::GridOdds GridOddsOf(const Table& t) {
  odds::Grid grid;
  for (std::size_t p = 0; p < grid.size(); ++p) grid[p] = t.grid[p];
  return odds::AnalyseGrid(grid, t.jokers, t.level);
}

// The advice and the best choice of a deal, and the choice `down` as it stands.
GridJudgement JudgeGridWith(const odds::GridOdds& o, const Table& t) {
  GridJudgement g;
  g.valid = true;
  g.grid = t.grid;
  g.jokers = t.jokers;
  g.level = t.level;
  g.mise = t.mise;
  for (int p = 0; p < odds::kGridPositions; ++p)
    for (int line = 1; line <= t.level; ++line)
      if (odds::LinePattern(line, 1u << p)) g.inPlay |= 1u << p;
  g.down = t.down & g.inPlay;
  g.ev = odds::EvaluateChoice(o, g.down).ev * t.mise;
  const odds::GridChoice advice = odds::AdviceChoice(o);
  g.adviceDown = advice.down;
  g.adviceEv = advice.ev * t.mise;
  const odds::GridChoice best = odds::BestChoice(o);
  g.bestDown = best.down;
  g.bestEv = best.ev * t.mise;
  return g;
}

bool SameDeal(const Judgement& j, const Table& t) {
  return j.valid && j.hand == t.hand && j.jokers == t.jokers && j.mise == t.mise && j.stake == t.stake;
}

}  // namespace

bool Judgeable(const std::uint8_t* codes, int n, int jokers) {
  if (jokers < 0 || jokers > 2) return false;
  std::uint64_t seen = 0;
  for (int i = 0; i < n; ++i) {
    if (codes[i] >= 52 + jokers || (seen >> codes[i] & 1u)) return false;
    seen |= std::uint64_t{1} << codes[i];
  }
  return true;
}

Judgement Judge(const std::array<std::uint8_t, 5>& hand, int jokers, int mise, long long stake) {
  odds::Hand h;
  for (int i = 0; i < 5; ++i) h[static_cast<std::size_t>(i)] = hand[static_cast<std::size_t>(i)];
  const odds::PayTable pay = odds::PayTableClassic(jokers);
  const std::vector<odds::Hold> holds = Analyst::Get().Analyse(h, jokers);
  Judgement j;
  j.valid = true;
  j.hand = hand;
  j.jokers = jokers;
  j.mise = mise;
  j.stake = stake;
  for (std::size_t k = 0; k < holds.size() && k < j.holds.size(); ++k) {
    const odds::Hold& o = holds[k];
    std::uint64_t paying = 0;
    for (int c = 0; c < odds::kClasses; ++c)
      if (pay[static_cast<std::size_t>(c)] > 0) paying += o.counts[static_cast<std::size_t>(c)];
    j.holds[k].held = o.held;
    j.holds[k].ev = o.ev * mise;
    j.holds[k].pays = o.total ? static_cast<double>(paying) / o.total : 0;
  }
  return j;
}

DuelFigures Duel(bool houseKnown, int houseRank) {
  DuelFigures d;
  d.shown = true;
  d.houseKnown = houseKnown;
  d.houseRank = houseRank;
  long long win = 0, tie = 0, lose = 0, all = 0;
  for (int house = 0; house < 12; ++house) {
    if (houseKnown && house != houseRank) continue;
    for (int houseSuit = 0; houseSuit < 4; ++houseSuit)
      for (int card = 0; card < 52; ++card) {
        if (card == 13 * houseSuit + house) continue;
        const int rank = card % 13;
        ++all;
        if (rank > house)
          ++win;
        else if (rank == house)
          ++tie;
        else
          ++lose;
      }
  }
  d.win = static_cast<double>(win) / static_cast<double>(all);
  d.tie = static_cast<double>(tie) / static_cast<double>(all);
  d.lose = static_cast<double>(lose) / static_cast<double>(all);
  d.ev = 2 * d.win + d.tie;
  return d;
}

GridJudgement JudgeGrid(const Table& t) { return JudgeGridWith(GridOddsOf(t), t); }

void Prepare(int jokers) { Analyst::Get().Prepare(jokers); }

void WaitUntilPrepared(int jokers) { Analyst::Get().Wait(jokers); }

void Coach::Follow(const Table& t) {
  r_.english = t.english;
  r_.duel = t.winWaits || t.duel ? Duel(t.duel, t.houseRank) : DuelFigures{};
  if (t.gridBetween) {
    if (!SameGrid(r_.grid, t)) {
      gridOdds_ = GridOddsOf(t);
      r_.grid = JudgeGridWith(gridOdds_, t);
    } else {
      r_.grid.down = t.down & r_.grid.inPlay;
      r_.grid.ev = odds::EvaluateChoice(gridOdds_, r_.grid.down).ev * t.mise;
    }
    r_.phase = Phase::GridBetween;
  } else if (r_.phase == Phase::GridBetween) {
    r_.phase = Phase::Idle;
  } else if (t.between) {
    if (!SameDeal(r_.current, t)) r_.current = Judge(t.hand, t.jokers, t.mise, t.stake);
    r_.held = t.held;
    r_.phase = Phase::Between;
  } else if (r_.phase == Phase::Between) {
    r_.phase = Phase::Idle;
  }
  Changed();
}

void Coach::Decide(const Table& t) {
  if (t.gridBetween) {
    Follow(t);
    const GridJudgement& g = r_.grid;
    Tally& tally = t.automatic ? r_.gridAutomatic : r_.gridPlayer;
    ++tally.decisions;
    tally.played += g.ev;
    tally.best += g.bestEv;
    tally.stakes += static_cast<double>(t.stake);
    if (g.Cost() > 0) {
      ++tally.mistakes;
      tally.lost += g.Cost();
    }
    gridDecided_ = true;
    Changed();
    return;
  }
  if (!SameDeal(r_.current, t)) r_.current = Judge(t.hand, t.jokers, t.mise, t.stake);
  const Judgement& j = r_.current;
  Decision d{j, t.held, j.Cost(t.held), t.automatic};
  Tally& tally = t.automatic ? r_.automatic : r_.player;
  ++tally.decisions;
  tally.played += j.Of(t.held).ev;
  tally.best += j.Best().ev;
  tally.stakes += static_cast<double>(j.stake);
  if (d.cost > 0) {
    ++tally.mistakes;
    tally.lost += d.cost;
    r_.mistakes.push_front(d);
    if (r_.mistakes.size() > kMistakesKept) r_.mistakes.pop_back();
  }
  r_.last = d;
  decided_ = true;
  Changed();
}

void Coach::DrawingOver(const Table& t) {
  r_.english = t.english;
  r_.duel = t.winWaits || t.duel ? Duel(t.duel, t.houseRank) : DuelFigures{};
  r_.chart.push_back(
      {static_cast<double>(t.credit), r_.player.lost + r_.automatic.lost + r_.gridPlayer.lost + r_.gridAutomatic.lost});
  if (t.gridRoundOver && gridDecided_) {
    r_.phase = Phase::GridVerdict;
    gridDecided_ = false;
  } else if (t.roundOver && decided_) {
    r_.phase = Phase::Verdict;
    decided_ = false;
  } else {
    Follow(t);
    return;
  }
  Changed();
}

QString HoldText(unsigned held) {
  QString s;
  for (int i = 0; i < 5; ++i) s += (held & (1u << i)) ? QLatin1Char('1') : QLatin1Char('0');
  return s;
}

QString HoldLine(const Table& t) {
  if (t.gridBetween) {
    const GridJudgement g = JudgeGrid(t);
    QString down;
    for (int p = 0; p < odds::kGridPositions; ++p)
      down += (g.bestDown & (1u << p)) ? QLatin1Char('1') : QLatin1Char('0');
    return QStringLiteral("coach=grid ev %1 advice %2 best %3 down %4")
        .arg(QString::number(g.ev, 'f', 6), QString::number(g.adviceEv, 'f', 6), QString::number(g.bestEv, 'f', 6),
             down);
  }
  if (!t.between) return QStringLiteral("coach=idle");
  const Judgement j = Judge(t.hand, t.jokers, t.mise, t.stake);
  return QStringLiteral("coach=held %1 ev %2 best %3 bestev %4")
      .arg(HoldText(t.held), QString::number(j.Of(t.held).ev, 'f', 6), HoldText(j.Best().held),
           QString::number(j.Best().ev, 'f', 6));
}

namespace {
QString Tallies(const char* head, const Tally& p, const Tally& a) {
  return QLatin1String(head) + QStringLiteral("=decisions %1 mistakes %2 lost %3 auto %4 automistakes %5 autolost %6")
                                   .arg(p.decisions)
                                   .arg(p.mistakes)
                                   .arg(QString::number(p.lost, 'f', 6))
                                   .arg(a.decisions)
                                   .arg(a.mistakes)
                                   .arg(QString::number(a.lost, 'f', 6));
}
}  // namespace

QString SessionLine(const Record* r) {
  const Tally none;
  return Tallies("coach-session", r ? r->player : none, r ? r->automatic : none);
}

QString GridSessionLine(const Record* r) {
  const Tally none;
  return Tallies("coach-session2", r ? r->gridPlayer : none, r ? r->gridAutomatic : none);
}

}  // namespace coach
