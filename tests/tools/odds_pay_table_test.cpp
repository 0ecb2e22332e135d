// The odds tool's classic pay table: nothing pays nothing, for every deck.
#include <gtest/gtest.h>

#include "odds/engine.h"

TEST(OddsPayTable, NothingPaysNothingForEveryDeck) {
  for (int jokers = 0; jokers <= 2; ++jokers) EXPECT_EQ(odds::PayTableClassic(jokers)[10], 0) << jokers << " jokers";
}
