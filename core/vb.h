// Value types of the game and their run-time checks.
//
// Byte, Integer and Long are 8-bit unsigned, 16-bit and 32-bit signed. Where a value can
// leave its range, or an index its bounds, the program ends with a numbered run-time error
// (6 overflow, 9 subscript out of range, 13 type mismatch, 75 path/file access error).
#pragma once

#include <array>
#include <cstdint>
#include <functional>

using Byte = std::uint8_t;
using Integer = std::int16_t;
using Long = std::int32_t;

namespace vb {

enum ErrorNumber : int {
  Overflow = 6,
  SubscriptOutOfRange = 9,
  TypeMismatch = 13,
  PathFileAccess = 75,
};

// Raised instead of ending the program while an error trap is active (start-up only).
struct TrappedError {
  int number;
};

// Ends the program with run-time error `number`, or throws TrappedError inside an ErrorTrap.
[[noreturn]] void RuntimeError(int number);

// What happens when the program ends on a run-time error; the default prints
// "TALVERO: run-time error N" on standard error and exits with status 3.
void SetRuntimeErrorHandler(std::function<void(int)> handler);

// While one of these lives, run-time errors are thrown as TrappedError so that a
// caller can skip the failing statement.
class ErrorTrap {
 public:
  ErrorTrap();
  ~ErrorTrap();
  ErrorTrap(const ErrorTrap&) = delete;
  ErrorTrap& operator=(const ErrorTrap&) = delete;
  static bool Active();
};

// Runs one statement; a run-time error in it is skipped.
template <class F>
void SkipOnError(F&& statement) {
  ErrorTrap trap;
  try {
    statement();
  } catch (const TrappedError&) {
  }
}

inline Byte CByte(long long v) {
  if (v < 0 || v > 255) RuntimeError(Overflow);
  return static_cast<Byte>(v);
}
inline Integer CInt(long long v) {
  if (v < INT16_MIN || v > INT16_MAX) RuntimeError(Overflow);
  return static_cast<Integer>(v);
}
inline Long CLng(long long v) {
  if (v < INT32_MIN || v > INT32_MAX) RuntimeError(Overflow);
  return static_cast<Long>(v);
}

// A fixed array with VB bounds Lo..Hi, indexed with (i); out of bounds is error 9.
template <class T, int Lo, int Hi>
class Array {
 public:
  static constexpr int Low = Lo;
  static constexpr int High = Hi;
  T& operator()(long long i) {
    if (i < Lo || i > Hi) RuntimeError(SubscriptOutOfRange);
    return items_[static_cast<std::size_t>(i - Lo)];
  }
  const T& operator()(long long i) const {
    if (i < Lo || i > Hi) RuntimeError(SubscriptOutOfRange);
    return items_[static_cast<std::size_t>(i - Lo)];
  }
  void Fill(const T& v) { items_.fill(v); }

 private:
  std::array<T, Hi - Lo + 1> items_{};
};

}  // namespace vb
