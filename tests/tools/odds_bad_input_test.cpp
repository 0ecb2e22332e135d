// talvero-odds refuses a bad hand or option with one line on standard error naming the fault,
// exit status 2 and nothing on standard output.
#include <gtest/gtest.h>

#include "tests/tools/odds_process.h"

namespace {

using oddstest::ExpectRefused;

TEST(OddsBadInput, FourCards) { ExpectRefused({"As", "Ks", "Qs", "Js"}, "4 cards given"); }

TEST(OddsBadInput, SixCards) { ExpectRefused({"As", "Ks", "Qs", "Js", "Ts", "9s"}, "6 cards given"); }

TEST(OddsBadInput, ACardTwice) { ExpectRefused({"As", "Ks", "Qs", "51", "Ts"}, "given twice"); }

TEST(OddsBadInput, AJokerTheDeckDoesNotHave) {
  ExpectRefused({"--jokers", "0", "JK", "Ks", "Qs", "Js", "Ts"}, "has no card 52");
  ExpectRefused({"--jokers", "1", "JK", "JK", "Qs", "Js", "Ts"}, "has no card 53");
  ExpectRefused({"--jokers", "1", "53", "Ks", "Qs", "Js", "Ts"}, "has no card 53");
}

TEST(OddsBadInput, MoreThanTwoJokers) { ExpectRefused({"JK", "JK", "JK", "Js", "Ts"}, "more than two jokers"); }

TEST(OddsBadInput, UnknownCardWord) {
  ExpectRefused({"As", "Ks", "Qx", "Js", "Ts"}, "'Qx' is not a card");
  ExpectRefused({"As", "Ks", "54", "Js", "Ts"}, "'54' is not a card");
}

TEST(OddsBadInput, JokersOutsideZeroToTwo) {
  ExpectRefused({"--jokers", "3", "As", "Ks", "Qs", "Js", "Ts"}, "--jokers must be 0, 1 or 2");
  ExpectRefused({"--jokers", "-1", "As", "Ks", "Qs", "Js", "Ts"}, "--jokers must be 0, 1 or 2");
  ExpectRefused({"--jokers"}, "--jokers needs a number");
}

TEST(OddsBadInput, UnknownOption) { ExpectRefused({"--fast", "As", "Ks", "Qs", "Js", "Ts"}, "unknown option"); }

TEST(OddsBadInput, ABadLineOfABatchStopsItBeforeAnyOutput) {
  ExpectRefused({"--batch"}, "line 2: 4 cards given", "As Ks Qs Js Ts\n2c 3c 4c 5c\n7h 8h 9h Th Jh\n");
  ExpectRefused({"--batch", "--jokers", "0"}, "line 1: the deck of 0 jokers has no card 52", "JK 2c 3c 4c 5c\n");
}

TEST(OddsBadInput, CardsWithReturnOrBatch) {
  ExpectRefused({"--return", "As"}, "--return takes no cards");
  ExpectRefused({"--batch", "As", "Ks", "Qs", "Js", "Ts"}, "--batch reads its hands on standard input");
}

}  // namespace
