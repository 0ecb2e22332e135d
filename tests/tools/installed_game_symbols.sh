#!/usr/bin/env bash
# The game `cmake --install` puts under a prefix (not stripped) holds no test double: no
# ScriptedPlatform and no Driver symbol, while talvero-drive has both, so the check can fail.
# Usage: installed_game_symbols.sh BUILD_DIR TALVERO_DRIVE
set -euo pipefail
build=$1
drive=$2

command -v nm >/dev/null || { echo "no nm"; exit 77; }
fail() { echo "FAIL: $*"; exit 1; }

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

cmake --install "$build" --prefix "$work/prefix" >"$work/install.log" || { cat "$work/install.log"; fail "cmake --install"; }
game="$work/prefix/games/talvero"
[ -x "$game" ] || fail "no $game"

# Symbols of the scripted platform and of talvero-drive's command interpreter.
doubles='ScriptedPlatform|SeededPlatform|(^|[^[:alnum:]_])Driver::'
nm -C "$game" >"$work/game.txt" || fail "nm cannot read $game"
[ -s "$work/game.txt" ] || fail "the installed game has no symbols to check"
if grep -E "$doubles" "$work/game.txt"; then fail "the installed game holds a test double"; fi
nm -C "$drive" >"$work/drive.txt" || fail "nm cannot read $drive"
grep -q 'ScriptedPlatform' "$work/drive.txt" || fail "talvero-drive has no ScriptedPlatform symbol"
grep -Eq '(^|[^[:alnum:]_])Driver::' "$work/drive.txt" || fail "talvero-drive has no Driver symbol"
echo "the installed game holds no test double"
