#!/usr/bin/env bash
# take.sh PLAYER: plays session.play on the real windows, in both schemes, and puts its pictures into
# docs/pictures and those of the light scheme into the help pages.
set -euo pipefail
player=$(realpath "$1")
cd "$(dirname "$0")/../.."

script=build/shots/session.play
mkdir -p build/shots
perl docs/shots/fill.pl docs/shots/session.play >$script
# A usual screen, on which every window is as large as it is drawn.
screen=$PWD/build/shots/screen.json
echo '{"screens": [{"name": "screen", "x": 0, "y": 0, "width": 1440, "height": 960,
  "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]}' >"$screen"
for scheme in light dark; do
  pictures=docs/pictures/$scheme
  rm -rf $pictures
  # Only pages of the session are shown, so the engine may do without its sandbox. What the toolkit
  # finds to say about the missing screen is of no interest.
  env BENEVIX_SCHEME=$scheme QT_QPA_PLATFORM=offscreen:configfile="$screen" QT_SCALE_FACTOR=1 \
    QTWEBENGINE_DISABLE_SANDBOX=1 QT_LOGGING_RULES='*.debug=false;*.info=false;*.warning=false' \
    "$player" --windows --shots $pictures $script
  pngquant --force --ext .png --strip $pictures/*.png
done
perl docs/shots/embed.pl docs/pictures/light resources/help.html resources/qhelp.html
du -sh docs/pictures
