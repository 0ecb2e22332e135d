// Where the game finds its data and keeps Ini.dat.
//
// The rule: when `<executable's directory>/../share/games/talvero` exists, the game is
// installed (a Debian package under /usr, `cmake --install` under any prefix, or a package
// unpacked anywhere). Its data (the pieces and the pages) is read there and never written, and
// the program directory, where Ini.dat lives and the game works, is the player's own:
// `$XDG_DATA_HOME/talvero`, or `~/.local/share/talvero` when XDG_DATA_HOME is unset or not an
// absolute path, made on first start. Otherwise, as in the build tree, the executable's own
// directory is both the program directory and the data directory.
#pragma once

#include <QString>
#include <QtGlobal>

struct ProgramDirectories {
  QString program;  // Ini.dat; the current directory once the game has started
  QString data;     // *.mid, logoalb200.htm, pub0.htm, pub1.htm
  bool installed = false;
  // Empty, or one line saying that the player's directory could not be made: the game goes on
  // (without a place to keep its language).
  QString problem;
};

// The installed data directory for an executable in `executableDir`.
QString InstalledDataDirectory(const QString& executableDir);

// The player's own program directory: $XDG_DATA_HOME/talvero or $HOME/.local/share/talvero.
QString PlayerProgramDirectory();

// Applies the rule above for an executable in `executableDir`, making the player's directory
// when the game is installed.
ProgramDirectories LocateProgramDirectories(const QString& executableDir);

// A library of the game's own (the network's, the coach's window), looked for in
// ../lib/games/talvero from the executable (installed), then beside it and in its parent (the
// build tree), and never unloaded: what it makes may live as long as the process. Returns the
// address of its function `entry`, or null with the reason in `problem`.
QFunctionPointer ResolveOwnLibrary(const char* file, const char* entry, QString& problem);
