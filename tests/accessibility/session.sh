#!/usr/bin/env bash
# session.sh BUILD: installs the program, starts it beside the demonstration site on a display and a
# message bus of their own, and plays session.py on it. Skipped (77) where these cannot be had.
set -euo pipefail
here=$(realpath "$(dirname "$0")")
build=$(realpath "$1")

skip() {
  echo "skipped: $1"
  exit 77
}
for program in Xvfb dbus-run-session openbox; do
  command -v $program >/dev/null || skip "$program is missing"
done
[ -x /usr/libexec/at-spi-bus-launcher ] || skip "at-spi2-core is missing"
/usr/bin/python3 -c 'import pyatspi' 2>/dev/null || skip "python3-pyatspi is missing"

place=$build/tests/accessibility/session
rm -rf "$place"
mkdir -p "$place/home/Desktop" "$place/run" "$place/program/Resources"
chmod 700 "$place/run"
export HOME=$place/home XDG_RUNTIME_DIR=$place/run
unset XDG_DATA_HOME XDG_CONFIG_HOME XDG_CACHE_HOME WAYLAND_DISPLAY QT_QPA_PLATFORM
cp "$build/bin/benevix" "$build/bin/benevix-site" "$place/program"
cp -r "$build/bin/plugins" "$here/../../site" "$place/program"
cp "$here"/../../resources/*.{dat,res,html} "$place/program/Resources"
ln -s sharedb.dat "$place/program/Resources/shareddb.dat"

jobs_of_ours=()
end() { kill "${jobs_of_ours[@]}" 2>/dev/null || true; }
trap end EXIT

exec {display}<> <(:)
Xvfb -displayfd "$display" -screen 0 1280x1024x24 -nolisten tcp -noreset 2>/dev/null &
jobs_of_ours+=($!)
read -r -t 20 number <&"$display" || skip "no virtual display"
export DISPLAY=:$number
openbox --sm-disable 2>/dev/null &
jobs_of_ours+=($!)
dbus-run-session -- /usr/bin/python3 -B "$here/session.py" "$place/program"
