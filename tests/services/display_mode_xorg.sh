#!/usr/bin/env bash
# The display mode on a real X server: Xorg with the dummy video driver starts at 800x600 with
# three modes; the real game asks its question, the player agrees, the screen is 1024x768 while
# the game runs, and 800x600 again after its end.
# Usage: display_mode_xorg.sh PROGRAM_DIR
set -euo pipefail
program_dir=$1
command -v Xorg >/dev/null && [ -e /usr/lib/xorg/modules/drivers/dummy_drv.so ] || { echo "no Xorg with the dummy driver"; exit 77; }
command -v xdotool >/dev/null && command -v xrandr >/dev/null || { echo "no xdotool or xrandr"; exit 77; }

work=$(mktemp -d)
display=""
for n in $(seq 70 90); do [ -e /tmp/.X11-unix/X$n ] || [ -e /tmp/.X$n-lock ] || { display=:$n; break; }; done
[ -n "$display" ] || { echo "no free display"; exit 1; }
cat > "$work/dummy.conf" <<'CONF'
Section "Device"
  Identifier "dummy"
  Driver "dummy"
  VideoRam 64000
EndSection
Section "Monitor"
  Identifier "monitor"
  HorizSync 5.0-200.0
  VertRefresh 5.0-200.0
  Modeline "800x600" 40.00 800 840 968 1056 600 601 605 628 +hsync +vsync
  Modeline "1024x768" 65.00 1024 1048 1184 1344 768 771 777 806 -hsync -vsync
  Modeline "1280x1024" 108.00 1280 1328 1440 1688 1024 1025 1028 1066 +hsync +vsync
EndSection
Section "Screen"
  Identifier "screen"
  Device "dummy"
  Monitor "monitor"
  DefaultDepth 24
  SubSection "Display"
    Depth 24
    Modes "800x600" "1024x768" "1280x1024"
    Virtual 1280 1024
  EndSubSection
EndSection
CONF
Xorg "$display" -config "$work/dummy.conf" -configdir "$work/none" -noreset -nolisten tcp \
  -logfile "$work/Xorg.log" >"$work/xorg.out" 2>&1 &
xorg=$!
game=""
trap 'kill $game 2>/dev/null || true; kill $xorg 2>/dev/null || true; wait $xorg 2>/dev/null || true; rm -rf "$work"' EXIT
export DISPLAY=$display
for _ in $(seq 100); do xrandr >/dev/null 2>&1 && break; sleep 0.1; done
mode() { xrandr | sed -n 's/.*current \([0-9]*\) x \([0-9]*\),.*/\1x\2/p'; }

before=$(mode)
[ "$before" = 800x600 ] || { echo "FAIL: the server started at $before"; exit 1; }

# The game plays from a copy of its directory (it writes Ini.dat there).
cp -r "$program_dir"/. "$work/game"
# No session bus: otherwise Qt's accessibility bridge has libdbus fork a child to start one, and
# a child forked from a program under the sanitizers can hang.
DBUS_SESSION_BUS_ADDRESS=unix:path=/nonexistent/talvero-no-session-bus \
  TALVERO_NO_AUDIO=1 QT_QPA_PLATFORM=xcb "$work/game/talvero" >"$work/game.out" 2>&1 &
game=$!

# The question comes alone, before the main form.
question=""
for _ in $(seq 100); do
  question=$(xdotool search --onlyvisible --pid $game 2>/dev/null | head -1 || true)
  [ -n "$question" ] && break
  sleep 0.1
done
[ -n "$question" ] || { echo "FAIL: no question"; exit 1; }
[ "$(mode)" = 800x600 ] || { echo "FAIL: the mode changed before the answer"; exit 1; }
# "Je suis d'accord": at (280, 196) in the question's window.
xdotool mousemove --window "$question" 280 196 click 1
for _ in $(seq 100); do [ "$(mode)" = 1024x768 ] && break; sleep 0.1; done
during=$(mode)
[ "$during" = 1024x768 ] || { echo "FAIL: during the game the mode is $during"; exit 1; }

# The leave button of the top bar, at (746, 21) in the main form.
main=""
for _ in $(seq 100); do
  main=$(xdotool search --onlyvisible --pid $game 2>/dev/null | grep -v "^$question$" | head -1 || true)
  [ -n "$main" ] && break
  sleep 0.1
done
[ -n "$main" ] || { echo "FAIL: no main form"; exit 1; }
sleep 0.5
xdotool mousemove --window "$main" 746 21 click 1
for _ in $(seq 100); do kill -0 $game 2>/dev/null || break; sleep 0.1; done
if kill -0 $game 2>/dev/null; then echo "FAIL: the game did not end"; exit 1; fi
after=$(mode)
[ "$after" = 800x600 ] || { echo "FAIL: after the game the mode is $after"; exit 1; }
echo "display mode: before $before, during $during, after $after"
