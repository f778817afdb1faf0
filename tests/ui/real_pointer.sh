#!/usr/bin/env bash
# Plays with real pointer events on an X server of its own: PROGRAM starts with a table that SIM has
# set, three clicks go to the Pass Line and one to the roll button, and the game that PROGRAM leaves
# behind has to show them.
set -eu
program=$1
sim=$2

home=$(mktemp -d)
server=""
window_program=""
finish() {
  [ -z "$window_program" ] || kill "$window_program" 2>/dev/null || true
  [ -z "$server" ] || kill "$server" 2>/dev/null || true
  rm -rf "$home"
}
trap finish EXIT

# What the program draws, it draws below this environment's own folders only.
export HOME=$home XDG_RUNTIME_DIR=$home TESSAREL_HOME=$home TESSAREL_REDUCED_MOTION=1
unset WAYLAND_DISPLAY QT_QPA_PLATFORM
(cd "$home" && "$sim" run --player Ann@4=1000 --set Notices=0 --set HandleWinningBets@4=2 \
  --set HandleLosingBets@4=2 --rolls 0 --save default.tsg) >/dev/null

mkfifo "$home/display"
Xvfb -displayfd 3 -screen 0 1600x1000x24 -nolisten tcp 3>"$home/display" 2>/dev/null &
server=$!
read -r number <"$home/display"
export DISPLAY=:$number

"$program" 2>/dev/null &
window_program=$!
window=$(timeout 20 xdotool search --sync --onlyvisible --name '^Tessarel' | head -n 1)
eval "$(xdotool getwindowgeometry --shell "$window")"

# Points of the window as shares of its width and height. The server keeps what comes faster than the
# program takes it, in its order.
click() {
  xdotool mousemove --window "$window" $((WIDTH * $1 / 1000)) $((HEIGHT * $2 / 1000)) click 1
}
click 245 700
click 245 700
click 245 700
click 230 955
# No window manager gives the window the focus.
xdotool windowfocus --sync "$window"
xdotool key ctrl+q
if ! timeout 30 tail --pid="$window_program" -s 0.1 -f /dev/null; then
  echo "The program did not leave." >&2
  exit 1
fi
window_program=""

(cd "$home" && "$sim" run default.tsg --rolls 0 --json -) >"$home/table.json" 2>/dev/null
# Fifteen dollars were bet: they stand, or were won or lost by the first roll and stand again.
if ! grep -q '"rolls":1,' "$home/table.json" || ! grep -q '"MoneyOnTable":15' "$home/table.json"; then
  cat "$home/table.json" >&2
  exit 1
fi
