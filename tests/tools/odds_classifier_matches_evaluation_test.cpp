// The odds core's fast classification (one ClasseMain per pattern of ranks, jokers and suit)
// gives every hand of every deck the class ClasseMain gives it.
#include <gtest/gtest.h>

#include "tests/tools/odds_support.h"

TEST(OddsClassifierMatchesEvaluation, EveryHandOfTheDeckOfFiftyFourCards) {
  // The hands of the smaller decks are the first ones of this deck in colex order.
  const std::vector<Byte>& plain = oddstest::PlainClasses();
  const std::vector<Byte> fast = odds::GameHandClasses(54);
  ASSERT_EQ(fast.size(), plain.size());
  std::size_t differences = 0;
  for (std::size_t i = 0; i < plain.size(); ++i) differences += fast[i] != plain[i];
  EXPECT_EQ(differences, 0u);
}

TEST(OddsClassifierMatchesEvaluation, HandsInAnyOrder) {
  const odds::GameClassifier& g = odds::GameClassifier::Get();
  std::mt19937 rng(7);
  for (int i = 0; i < 20000; ++i) {
    const odds::Hand h = oddstest::RandomDeal(rng, 2);
    ASSERT_EQ(g.Classify(h), ClasseMain(h));
  }
}

TEST(OddsClassifierMatchesEvaluation, ClassCountsOfTheDecks) {
  // Every class of the whole deck adds up to the number of hands.
  for (int jokers = 0; jokers <= 2; ++jokers) {
    const std::vector<Byte> fast = odds::GameHandClasses(52 + jokers);
    EXPECT_EQ(fast.size(), odds::Binomial(52 + jokers, 5));
    std::size_t five = 0;
    for (Byte c : fast) five += c == 9;
    if (jokers == 0) {
      EXPECT_EQ(five, 0u);  // five of a kind needs a joker
    } else {
      EXPECT_GT(five, 0u);
    }
  }
}
