#!/usr/bin/env bash
# The Debian package a player installs: its name, what lintian, desktop-file-validate and
# appstreamcli say of it, its contents and dependencies; unpacked anywhere (dpkg -x), the game
# starts under Xvfb from usr/games with a fresh home, makes ~/.local/share/talvero with Ini.dat
# there (or under XDG_DATA_HOME), says in one line when it cannot, finds its network library and
# its coach's window (Qt Charts) in the unpacked tree, and changes nothing there. Then
# `cmake --install` under a prefix of our own (and with DESTDIR) writes a desktop entry that
# starts the game installed there, and that game starts and finds its network library.
# Usage: debian_package.sh BUILD_DIR VERSION
set -euo pipefail
build=$1
version=$2

for tool in dpkg-deb lintian desktop-file-validate appstreamcli Xvfb; do
  command -v $tool >/dev/null || { echo "no $tool"; exit 77; }
done

fail() { echo "FAIL: $*"; exit 1; }
deb="$build/talvero_${version}_$(dpkg --print-architecture).deb"
[ -f "$deb" ] || fail "$deb is missing (cmake --build build --target package makes it)"

work=$(mktemp -d)
xvfb=""
game=""
cleanup() {
  [ -n "$game" ] && kill "$game" 2>/dev/null || true
  [ -n "$xvfb" ] && { kill "$xvfb" 2>/dev/null || true; wait "$xvfb" 2>/dev/null || true; }
  chmod -R u+w "$work" 2>/dev/null || true
  rm -rf "$work"
}
trap cleanup EXIT

echo "== $deb, $(stat -c %s "$deb") bytes"
[ "$(dpkg-deb -f "$deb" Package)" = talvero ] || fail "the package is not named talvero"
[ "$(dpkg-deb -f "$deb" Version)" = "$version" ] || fail "the version is not $version"
[ "$(dpkg-deb -f "$deb" Section)" = games ] || fail "the section is not games"
depends=$(dpkg-deb -f "$deb" Depends)
echo "Depends: $depends"
for p in libqt6core6 libqt6gui6 libqt6widgets6 libqt6svg6 libqt6network6 libqt6charts6 qt6-qpa-plugins libfluidsynth3 \
  timgm6mb-soundfont kdegames-card-data-kf5 fonts-liberation2; do
  grep -Eq "(^|, )$p( |,|$)" <<<"$depends" || fail "Depends lacks $p"
done

echo "== lintian"
lintian --tag-display-limit 0 "$deb" >"$work/lintian.txt" 2>&1 || true
cat "$work/lintian.txt"
if grep -q '^[EW]:' "$work/lintian.txt"; then fail "lintian reports errors or warnings"; fi

root="$work/root"
dpkg-deb -x "$deb" "$root"
(cd "$root" && find . -type f -o -type l | sort) >"$work/files.txt"
for f in usr/games/talvero usr/games/talvero-odds usr/share/games/talvero/pub0.htm \
  usr/share/games/talvero/pub1.htm usr/share/games/talvero/logoalb200.htm \
  usr/share/icons/hicolor/scalable/apps/talvero.svg usr/share/icons/hicolor/48x48/apps/talvero.png \
  usr/share/icons/hicolor/256x256/apps/talvero.png usr/share/man/man6/talvero.6.gz \
  usr/share/man/man6/talvero-odds.6.gz usr/share/doc/talvero/copyright usr/share/doc/talvero/changelog.gz \
  usr/lib/games/talvero/libtalvero-network.so usr/lib/games/talvero/libtalvero-coach.so; do
  grep -qx "./$f" "$work/files.txt" || fail "the package lacks /$f"
done
[ "$(ls "$root"/usr/share/games/talvero/*.mid | wc -l)" -ge 3 ] || fail "fewer than three pieces"
if grep -q 'Ini.dat' "$work/files.txt"; then fail "the package holds an Ini.dat"; fi
file "$root/usr/games/talvero" | grep -q 'stripped' && ! file "$root/usr/games/talvero" | grep -q 'not stripped' ||
  fail "usr/games/talvero is not stripped"

echo "== desktop entry and AppStream metadata"
desktop=$(ls "$root"/usr/share/applications/*.desktop)
desktop-file-validate "$desktop" || fail "desktop-file-validate refuses $desktop"
grep -qx 'Exec=/usr/games/talvero' "$desktop" || fail "$desktop does not start /usr/games/talvero"
icon=$(sed -n 's/^Icon=//p' "$desktop")
[ -f "$root/usr/share/icons/hicolor/scalable/apps/$icon.svg" ] || fail "no icon $icon"
metainfo=$(ls "$root"/usr/share/metainfo/*.metainfo.xml)
appstreamcli validate --no-net "$metainfo" || fail "appstreamcli refuses $metainfo"
grep -q "<launchable type=\"desktop-id\">$(basename "$desktop")</launchable>" "$metainfo" ||
  fail "the metadata does not name the desktop entry"

echo "== the unpacked game under Xvfb"
Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>"$work/display" 2>"$work/xvfb.log" &
xvfb=$!
for _ in $(seq 100); do [ -s "$work/display" ] && break; sleep 0.1; done
[ -s "$work/display" ] || fail "Xvfb did not start"
export DISPLAY=:$(head -1 "$work/display")

snapshot() { (cd "$root" && find . -printf '%p %y %m %s\n' | sort && find . -type f -exec sha256sum {} + | sort); }
snapshot >"$work/before.txt"

# Starts the game at $1 with HOME $2 (and the rest of the environment given), from a directory
# of its own, until its first painted frame; leaves its output in $work/out and $work/err.
run() {
  local exe=$1 home=$2
  shift 2
  mkdir -p "$work/cwd"
  # No session bus: otherwise Qt's accessibility bridge has libdbus fork a child to start one.
  (cd "$work/cwd" && env -u XDG_DATA_HOME HOME="$home" TALVERO_NO_AUDIO=1 TALVERO_FIRST_FRAME_REPORT=1 \
    DBUS_SESSION_BUS_ADDRESS=unix:path=/nonexistent/talvero-no-session-bus QT_QPA_PLATFORM=xcb "$@" timeout 60 "$exe" ${game_args:-} >"$work/out" 2>"$work/err") &
  game=$!
  local status=0
  wait "$game" || status=$?
  game=""
  return $status
}

start=$(date +%s%N)
status=0
run "$root/usr/games/talvero" "$work/home" || status=$?
[ $status -eq 0 ] || { cat "$work/err"; fail "the game ended with status $status"; }
echo "first start: $(cat "$work/out") ($((($(date +%s%N) - start) / 1000000)) ms)"
grep -q '^first-frame-ns=' "$work/out" || fail "no frame was painted"
[ -d "$work/home/.local/share/talvero" ] || fail "~/.local/share/talvero was not made"
[ -f "$work/home/.local/share/talvero/Ini.dat" ] || fail "no Ini.dat in ~/.local/share/talvero"
[ ! -s "$work/home/.local/share/talvero/Ini.dat" ] || fail "Ini.dat is not empty on a first start"
[ ! -e "$work/cwd/Ini.dat" ] || fail "an Ini.dat was written in the start directory"

# A language kept by an earlier run stays as it was.
printf '\002' >"$work/home/.local/share/talvero/Ini.dat"
run "$root/usr/games/talvero" "$work/home" || fail "the second start ended with status $?"
[ "$(od -An -tx1 "$work/home/.local/share/talvero/Ini.dat" | tr -d ' ')" = 02 ] || fail "Ini.dat changed"

run "$root/usr/games/talvero" "$work/home2" XDG_DATA_HOME="$work/xdg" || fail "the XDG start ended with $?"
[ -f "$work/xdg/talvero/Ini.dat" ] || fail "XDG_DATA_HOME was not honoured"
[ ! -e "$work/home2/.local" ] || fail "with XDG_DATA_HOME the home's .local was used"

# A home where nothing can be made: one line on standard error, and the game goes on.
: >"$work/filehome"
run "$root/usr/games/talvero" "$work/filehome" || fail "with no place for Ini.dat the game ended with $?"
grep -q '^first-frame-ns=' "$work/out" || fail "with no place for Ini.dat no frame was painted"
grep -q "^talvero: cannot create $work/filehome/.local/share/talvero" "$work/err" ||
  { cat "$work/err"; fail "no message about the player's directory"; }

# A publisher's server that refuses: the game loads its network library from the unpacked tree
# for the pages, and shows its frame.
run "$root/usr/games/talvero" "$work/home4" TALVERO_PUBLISHER=http://127.0.0.1:9 ||
  fail "with a publisher's server the game ended with $?"
grep -q '^first-frame-ns=' "$work/out" || fail "with a publisher's server no frame was painted"
if grep -q 'network library' "$work/err"; then cat "$work/err"; fail "the network library was not loaded"; fi

# The coach opened at start: its window's library and Qt Charts load from the unpacked tree.
game_args=--coach run "$root/usr/games/talvero" "$work/home5" || fail "with the coach the game ended with $?"
grep -q '^first-frame-ns=' "$work/out" || fail "with the coach no frame was painted"
if grep -q "coach's library" "$work/err"; then cat "$work/err"; fail "the coach's library was not loaded"; fi

snapshot >"$work/after.txt"
diff "$work/before.txt" "$work/after.txt" || fail "the unpacked tree changed"

echo "== cmake --install under a prefix of our own"
prefix="$work/prefix with space"
cmake --install "$build" --prefix "$prefix" >"$work/install.log" || { cat "$work/install.log"; fail "cmake --install"; }
entry=$(ls "$prefix"/share/applications/*.desktop)
grep -qx "Exec=$prefix/games/talvero" "$entry" || { cat "$entry"; fail "Exec does not name $prefix/games/talvero"; }
run "$prefix/games/talvero" "$work/home3" TALVERO_PUBLISHER=http://127.0.0.1:9 ||
  fail "the game installed by cmake ended with status $?"
if grep -q 'network library' "$work/err"; then cat "$work/err"; fail "the installed network library was not loaded"; fi
[ -f "$work/home3/.local/share/talvero/Ini.dat" ] || fail "the game installed by cmake kept no Ini.dat at home"
[ ! -e "$prefix/games/Ini.dat" ] && [ ! -e "$prefix/share/games/talvero/Ini.dat" ] || fail "Ini.dat under the prefix"

staged=/opt/talvero-staged-$$
DESTDIR="$work/stage" cmake --install "$build" --prefix $staged >"$work/install.log" ||
  { cat "$work/install.log"; fail "cmake --install with DESTDIR"; }
grep -qx "Exec=$staged/games/talvero" "$work/stage$staged"/share/applications/*.desktop ||
  fail "with DESTDIR, Exec does not name $staged/games/talvero"
[ ! -e $staged ] || fail "DESTDIR was not honoured"
echo "package checked"
