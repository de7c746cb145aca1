# What a user sees of the installed program, on a display of its own. Waits without end for what does
# not appear, so it takes a time limit; the last line told is the last thing seen.
set -eu

# The window of exactly this title that is to be seen.
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
# Without -noreset it begins anew, deaf meanwhile, when its first client has asked and left.
Xvfb "$DISPLAY" -screen 0 1280x1024x24 -nolisten tcp -noreset &
await xdotool getdisplaygeometry
benevix &

splash=$(await window Benevix)
echo "the splash is shown"
# Its door stands somewhere at the left of its foot.
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
