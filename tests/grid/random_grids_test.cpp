// Random grids at level 12 with each deck (no joker, one, two), played through the form: each
// line's name and price and the totals are checked against the evaluator of these tests after
// both drawings, the advice against the keeping rule, the second drawing against the cards
// turned down, the tally of hands and the credit along the deals.
#include <gtest/gtest.h>

#include "tests/grid/grid_helpers.h"

using namespace grid;

namespace {

constexpr int kDeals = 400;
constexpr Long kStartCredit = 5000000;

// 25 distinct codes of a deck of `size` cards. Kind 0 draws from the whole deck, kind 1 from
// two suits (and the jokers), which makes flushes and straight flushes common, kind 2 from
// seven ranks (and the jokers), which makes pairs, fulls, fours and fives common.
Grid RandomGrid(std::mt19937& rng, int size, int kind) {
  std::vector<int> pool;
  if (kind == 0) {
    for (int c = 0; c < size; ++c) pool.push_back(c);
  } else if (kind == 1) {
    std::array<int, 4> suits{0, 1, 2, 3};
    std::shuffle(suits.begin(), suits.end(), rng);
    for (int s : {suits[0], suits[1]})
      for (int r = 0; r < 13; ++r) pool.push_back(Card(r, s));
  } else {
    std::array<int, 13> ranks{};
    for (int r = 0; r < 13; ++r) ranks[r] = r;
    std::shuffle(ranks.begin(), ranks.end(), rng);
    for (int i = 0; i < 7; ++i)
      for (int s = 0; s < 4; ++s) pool.push_back(Card(ranks[i], s));
  }
  if (kind != 0)
    for (int c = 52; c < size; ++c) pool.push_back(c);
  std::shuffle(pool.begin(), pool.end(), rng);
  return Grid(pool.begin(), pool.begin() + 25);
}

// A random grid with one line, chosen at random, holding a rare hand: a royal flush, a
// straight flush (the ace-low one among them) or five of the same rank, some of its cards
// given as jokers when the deck has them.
Grid GridWithARareLine(std::mt19937& rng, int size) {
  const int jokers = size - 52;
  const int suit = static_cast<int>(rng() % 4);
  std::vector<int> hand;
  const int which = static_cast<int>(rng() % (jokers > 0 ? 3 : 2));
  if (which == 0) {
    for (int r = Ten; r <= Ace; ++r) hand.push_back(Card(r, suit));
  } else if (which == 1) {
    const int low = static_cast<int>(rng() % 9) - 1;  // -1: the ace plays low
    for (int r = low; r < low + 5; ++r) hand.push_back(Card(r < 0 ? Ace : r, suit));
  } else {
    const int rank = static_cast<int>(rng() % 13);
    for (int s = 0; s < 5 - jokers; ++s) hand.push_back(Card(rank, s));
    for (int j = 0; j < jokers; ++j) hand.push_back(52 + j);
  }
  // Jokers standing for some cards of the straights.
  if (which != 2)
    for (int j = 0; j < jokers; ++j)
      if (rng() % 2) hand[rng() % 5] = 52 + j;
  std::sort(hand.begin(), hand.end());
  hand.erase(std::unique(hand.begin(), hand.end()), hand.end());
  while (hand.size() < 5) {
    const int c = static_cast<int>(rng() % 52);
    if (std::find(hand.begin(), hand.end(), c) == hand.end()) hand.push_back(c);
  }
  std::shuffle(hand.begin(), hand.end(), rng);
  std::vector<int> rest = Unused(hand, size);
  std::shuffle(rest.begin(), rest.end(), rng);
  const auto& line = kLines[rng() % 12];
  Grid g(25, -1);
  for (int j = 0; j < 5; ++j) g[line[j]] = hand[j];
  size_t k = 0;
  for (int p = 0; p < 25; ++p)
    if (g[p] < 0) g[p] = rest[k++];
  return g;
}

class GridRandomDeck : public ::testing::TestWithParam<int> {};

TEST_P(GridRandomDeck, EveryLineOfEveryDrawingMatchesAnIndependentEvaluation) {
  const int jokers = GetParam();
  const int size = 52 + jokers;
  const int mise = 1 + 3 * jokers;
  Harness h;
  JeuPoker& f = *h.form;
  ChooseJokers(h, jokers);
  options::ToGrid(h);
  h.Drive({"set Capital " + QString::number(kStartCredit)});
  ChooseMise(h, mise);
  Click(h, "Moins5");
  ASSERT_EQ(f.Niveau, 12);
  ExpectLinesInPlay(f, 12);

  std::mt19937 rng(7919u * static_cast<unsigned>(jokers + 1));
  std::array<int, 11> seen{};
  std::array<int, 10> tally{};
  long long capital = kStartCredit;
  long long pending = 0;
  for (int deal = 0; deal < kDeals; ++deal) {
    SCOPED_TRACE("deal " + std::to_string(deal));
    const Grid g = deal % 4 == 3 ? GridWithARareLine(rng, size) : RandomGrid(rng, size, deal % 4);

    // First drawing: every line priced, the total shown, nothing credited.
    options::FirstDrawing2(h, g);
    if (HasFatalFailure()) return;
    capital += pending - 12 * mise;
    pending = 0;
    EXPECT_EQ(f.Capital, capital);
    EXPECT_EQ(Table(f), g);
    const long long preview = ExpectSettlement(f, g, 12, mise);
    if (preview > 0) {
      EXPECT_EQ(f.Gains->Caption(), QString::number(preview));
    }
    EXPECT_EQ(f.SSAlertes->Caption(), Say(f, kSecondDrawing));
    ExpectTally(f, tally);

    // The advice turns down exactly what no line keeps.
    Click(h, "Conseils5");
    EXPECT_EQ(FaceDownPositions(f), AllBut(AdviceKept(g, 12))) << Show(g);

    // The player changes a few cards of the proposal.
    const int flips = static_cast<int>(rng() % 4);
    for (int k = 0; k < flips; ++k) ClickCard(h, static_cast<int>(rng() % 25));
    const std::set<int> down = FaceDownPositions(f);

    // Second drawing: a fresh card for each position down, in position order; before every
    // third one the queue offers a card already out, which the drawing must pass over.
    std::vector<int> fresh = Unused(g, size);
    std::shuffle(fresh.begin(), fresh.end(), rng);
    std::vector<int> queue;
    std::vector<int> out = g;
    Grid g2 = g;
    size_t k = 0;
    for (int p : down) {
      if (k % 3 == 2) queue.push_back(out[rng() % out.size()]);
      queue.push_back(fresh[k]);
      out.push_back(fresh[k]);
      g2[p] = fresh[k++];
    }
    SecondDrawing(h, queue);
    if (HasFatalFailure()) return;
    EXPECT_TRUE(h.platform.queuedDraws.empty());
    EXPECT_EQ(Table(f), g2);
    for (int p = 0; p < 25; ++p) EXPECT_TRUE(Shows(f, p, g2[p])) << p;
    std::set<int> dealt;
    for (int s = 1; s <= 50; ++s)
      if (f.CartesSorties(s) >= 0) dealt.insert(f.CartesSorties(s));
    EXPECT_EQ(dealt.size(), 25 + down.size());

    const long long total = ExpectSettlement(f, g2, 12, mise);
    for (int line = 0; line < 12; ++line) {
      const int cls = ClassifyLine(g2, line);
      ++seen[cls];
      if (cls != Nothing) ++tally[cls];
    }
    ExpectTally(f, tally);
    EXPECT_EQ(f.Doubler5->Visible(), total > 0);
    EXPECT_EQ(f.SSAlertes->Caption(), Say(f, total > 0 ? kMessageA : kMessageC));
    EXPECT_EQ(f.Gains->Caption(), total > 0 ? QString::number(total) : QString());
    EXPECT_EQ(f.Capital, capital);
    pending = total;
  }

  // The grids reached every class the deck can make.
  for (int cls = 0; cls <= 10; ++cls) {
    if (cls == FiveKind && jokers == 0) {
      EXPECT_EQ(seen[cls], 0);
      continue;
    }
    EXPECT_GT(seen[cls], 0) << "class " << cls;
  }
}

INSTANTIATE_TEST_SUITE_P(GridRandom, GridRandomDeck, ::testing::Values(0, 1, 2),
                         [](const ::testing::TestParamInfo<int>& info) {
                           return "Jokers" + std::to_string(info.param);
                         });

}  // namespace
