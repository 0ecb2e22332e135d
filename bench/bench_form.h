// The one form of the benchmarks, on the scripted platform and the QApplication of
// bench/main.cpp.
#pragma once

#include "interface/JeuPoker.h"
#include "tools/scripted_platform.h"

JeuPoker& BenchForm();
ScriptedPlatform& BenchPlatform();
// Destroys the form while the application still stands.
void ReleaseBenchForm();
