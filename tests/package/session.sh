#!/bin/sh
# Starts the installed program on its own X display and opens the help. Waits endlessly for each
# window, so the caller sets a time limit; the last line of the output is the last step that worked.
set -eu

# The id of the visible window with exactly this title.
window() {
  for id in $(xdotool search --onlyvisible --name "^$1\$"); do
    if [ "$(xdotool getwindowname "$id")" = "$1" ]; then
      echo "$id"
      return 0
    fi
  done
  return 1
}
await() {
  until "$@"; do sleep 0.2; done
}
page_engine_runs() {
  grep -q QtWebEngine /proc/[0-9]*/comm
}

mkdir "$HOME/Desktop"
# -noreset: otherwise it resets, refusing connections, when its first client disconnects.
Xvfb "$DISPLAY" -screen 0 1280x1024x24 -nolisten tcp -noreset &
await xdotool getdisplaygeometry
benevix &

splash=$(await window Benevix)
echo "the splash is shown"
# Try points upwards from the lower left of the splash until one opens the main window.
eval "$(xdotool getwindowgeometry --shell "$splash")"
x=$((X + WIDTH * 35 / 100))
y=$((Y + HEIGHT))
until main=$(window BENEVIX); do
  y=$((y - 16))
  xdotool mousemove "$x" "$y" click 1
  sleep 0.5
done
echo "the main window is shown"
xdotool windowfocus "$main"
xdotool key alt+h h
await window "Benevix Help"
await page_engine_runs
echo "the help is shown"
