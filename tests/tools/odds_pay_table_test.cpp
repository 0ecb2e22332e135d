// The odds tool pays by the form's own classic pay table, for every deck.
#include <gtest/gtest.h>

#include "odds/engine.h"
#include "tests/support/harness.h"

TEST(OddsPayTable, EqualsTheFormsTableForEveryDeck) {
  Harness h;
  JeuPoker& f = *h.form;
  for (int jokers = 0; jokers <= 2; ++jokers) {
    f.NbJokers = static_cast<Byte>(jokers);
    f.RemplitTableGains();
    const odds::PayTable pay = odds::PayTableClassic(jokers);
    for (int c = 0; c <= 9; ++c) EXPECT_EQ(pay[c], f.TableGains(c)) << jokers << " jokers, class " << c;
    EXPECT_EQ(pay[10], 0);
  }
}
