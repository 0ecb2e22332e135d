#include "core/vb.h"

#include <cstdio>
#include <cstdlib>

namespace vb {
namespace {
int trapDepth = 0;
std::function<void(int)>& Handler() {
  static std::function<void(int)> handler;
  return handler;
}
}  // namespace

void SetRuntimeErrorHandler(std::function<void(int)> handler) { Handler() = std::move(handler); }

void RuntimeError(int number) {
  if (trapDepth > 0) throw TrappedError{number};
  if (Handler()) Handler()(number);
  std::fprintf(stderr, "TALVERO: run-time error %d\n", number);
  std::fflush(stdout);
  std::fflush(stderr);
  std::_Exit(3);
}

ErrorTrap::ErrorTrap() { ++trapDepth; }
ErrorTrap::~ErrorTrap() { --trapDepth; }
bool ErrorTrap::Active() { return trapDepth > 0; }

}  // namespace vb
