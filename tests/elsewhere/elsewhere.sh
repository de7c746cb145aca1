#!/usr/bin/env bash
# elsewhere.sh FOLDER [CODENAME]: builds and tests the sources in a clean root of another Debian
# release, by the commands of the README. FOLDER keeps the root and its build for the next run.
# Gives 77 where the root cannot be made.
set -euo pipefail
sources=$(cd "$(dirname "$0")/../.." && pwd)
folder=$1
codename=${2:-trixie}
root=$folder/$codename
log=$folder/log
unset TMPDIR

skip() {
  echo "skipped: $*"
  exit 77
}
# In namespaces of its own, so that no mount or process outlives the command.
in_root() {
  unshare --mount --pid --fork --kill-child --mount-proc="$root/proc" chroot "$root" \
    env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LANG=C.UTF-8 \
    DEBIAN_FRONTEND=noninteractive "$@" </dev/null
}

[ "$(id -u)" = 0 ] || skip "a clean root needs root rights"
for tool in debootstrap unshare; do
  command -v "$tool" >/dev/null || skip "$tool is not installed"
done
unshare --mount true 2>/dev/null || skip "mount namespaces cannot be created here"

mkdir -p "$folder"
if [ ! -e "$root/complete" ]; then
  # From where this system has its own packages.
  # shellcheck disable=SC2016 # apt's own words
  mirror=$(apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' 'Label: Debian' |
    head -n 1)
  rm -rf "$root"
  echo "making a root of Debian $codename"
  debootstrap --variant=minbase "$codename" "$root" ${mirror:+"$mirror"} >"$log" 2>&1 ||
    skip "no root of $codename: $(tail -n 1 "$log")"
  chmod 1777 "$root/dev/shm"
  in_root apt-get update -q -o APT::Update::Error-Mode=any >"$log" 2>&1 ||
    skip "no list of packages: $(tail -n 1 "$log")"
  touch "$root/complete"
fi

# What is the same as in the last run keeps its time, so that only what has changed is built again.
mkdir -p "$root/benevix"
rm -rf "$root/new"
mkdir "$root/new"
tar -C "$sources" -c --exclude=./build --exclude=./.git . |
  tar -C "$root/new" -x --touch --no-same-owner
(cd "$root/new" && find . -type f) | while read -r file; do
  if cmp -s "$root/new/$file" "$root/benevix/$file"; then
    touch -r "$root/benevix/$file" "$root/new/$file"
  fi
done
find "$root/benevix" -mindepth 1 -maxdepth 1 ! -name build -exec rm -r {} +
cp -a "$root/new/." "$root/benevix"

# shellcheck disable=SC2016 # of the root
in_root sh -c '. /etc/os-release; echo "building on $PRETTY_NAME"; cd /benevix && ./dev build'
in_root sh -c 'cd /benevix && ctest --preset dev -LE "package" --no-tests=error'
