#include "odds/cards.h"

#include <algorithm>
#include <cctype>
#include <cstring>

namespace odds {

namespace {

constexpr const char* kRanks = "23456789TJQKA";
constexpr const char* kSuits = "cdhs";

// The code of a word, 52 standing for any joker; -1 when it is no card.
int ParseWord(const std::string& w) {
  if (w.empty()) return -1;
  if (std::all_of(w.begin(), w.end(), [](unsigned char c) { return std::isdigit(c); })) {
    if (w.size() > 2) return -1;
    const int code = std::stoi(w);
    return code <= 53 ? code : -1;
  }
  std::string u;
  for (char c : w) u += static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  if (u == "JK") return 52;
  std::string rank = u.substr(0, u.size() - 1);
  if (rank == "10") rank = "T";
  if (rank.size() != 1) return -1;
  const char* r = std::strchr(kRanks, rank[0]);
  const char* s = std::strchr(kSuits, std::tolower(static_cast<unsigned char>(u.back())));
  if (r == nullptr || s == nullptr || *r == '\0' || *s == '\0') return -1;
  return static_cast<int>(13 * (s - kSuits) + (r - kRanks));
}

// Distinct cards of the deck, as many as `what` has ("a hand has five").
template <std::size_t N>
bool ParseCards(const std::vector<std::string>& words, int jokers, const char* what, std::array<Byte, N>& out,
                std::string& error) {
  if (words.size() != N) {
    error = std::to_string(words.size()) + (words.size() == 1 ? " card" : " cards") + " given, " + what;
    return false;
  }
  std::vector<int> codes;
  for (const std::string& w : words) {
    int code = ParseWord(w);
    if (code < 0) {
      error = "'" + w + "' is not a card (a code 0..53, a rank 2-9 T J Q K A and a suit c d h s, or JK)";
      return false;
    }
    std::string u;
    for (char c : w) u += static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    if (u == "JK") {
      // The first joker of the hand is 52 and the second 53.
      code = std::find(codes.begin(), codes.end(), 52) == codes.end() ? 52 : 53;
      if (code == 53 && std::find(codes.begin(), codes.end(), 53) != codes.end()) {
        error = "more than two jokers: a deck has two at most";
        return false;
      }
    }
    if (std::find(codes.begin(), codes.end(), code) != codes.end()) {
      error = "card " + CardName(static_cast<Byte>(code)) + " (" + std::to_string(code) + ") is given twice";
      return false;
    }
    if (code >= 52 + jokers) {
      error = "the deck of " + std::to_string(jokers) + (jokers == 1 ? " joker" : " jokers") + " has no card " +
              std::to_string(code) + (jokers == 0 ? " (no joker)" : " (one joker only, code 52)");
      return false;
    }
    codes.push_back(code);
  }
  for (std::size_t i = 0; i < N; ++i) out[i] = static_cast<Byte>(codes[i]);
  return true;
}

}  // namespace

bool ParseHand(const std::vector<std::string>& words, int jokers, Hand& hand, std::string& error) {
  return ParseCards(words, jokers, "a hand has five", hand, error);
}

bool ParseGrid(const std::vector<std::string>& words, int jokers, std::array<Byte, 25>& grid, std::string& error) {
  return ParseCards(words, jokers, "a grid has 25", grid, error);
}

std::string CardName(Byte code) {
  if (code >= 52) return "JK";
  static const char* kSymbols[4] = {"\u2663", "\u2666", "\u2665", "\u2660"};
  return std::string(1, kRanks[code % 13]) + kSymbols[code / 13];
}

}  // namespace odds
