// Small helpers shared by the tests of several folders: cards by short name, the language in
// force, a face-down card, a settings file, and the real talvero-drive run as a process.
#pragma once

#include <QProcessEnvironment>
#include <QStringList>
#include <string>

#include "tests/support/harness.h"

// "KS" = king of spades, "TD" = ten of diamonds, "X1" = code 52, "X2" = code 53.
int Code(const std::string& card);

// Whether the form speaks English (Langue 0 or 2).
bool English(const JeuPoker& f);

// Whether `card` shows the back of the cards.
bool FaceDown(const JeuPoker& f, const Control& card);

// Writes `byte` as the whole Ini.dat of the harness's program directory.
void WriteIni(Harness& h, char byte);

// The real talvero-drive, run with these commands on standard input.
struct ToolRun {
  QStringList lines;
  int exitCode = -1;
};
// `env`, when given, is the tool's whole environment.
ToolRun RunTool(const QStringList& commands, const QStringList& args = {},
                const QProcessEnvironment& env = QProcessEnvironment());
// The same for a run that must end normally: the lines it printed.
QStringList RunToolLines(const QStringList& commands);
