#!/usr/bin/env bash
# package.sh BUILD: makes the Debian package of a build, installs it into a clean root of the same
# release and starts the program there as an ordinary user. BUILD keeps the root for the next run,
# until the package's dependencies change.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
build=$1
folder=$build/tests/package
root=$folder/root
log=$folder/log
tools=(xvfb xdotool)
export LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive
unset TMPDIR

skip() {
  echo "skipped: $*"
  exit 77
}
fail() {
  cat "$log"
  echo "failed: $*"
  exit 1
}
# In namespaces of its own, so that no mount or process outlives the command.
in_root() {
  unshare --mount --pid --fork --kill-child --mount-proc="$root/proc" chroot "$root" "$@" \
    >"$log" 2>&1 </dev/null
}
as_donor() {
  unshare --net --mount --pid --fork --kill-child --mount-proc="$root/proc" chroot "$root" \
    runuser -u donor -- env -i PATH=/usr/bin HOME=/home/donor LANG=C.UTF-8 DISPLAY=:1 \
    QTWEBENGINE_DISABLE_SANDBOX=1 timeout 120 "$@" >"$log" 2>&1 </dev/null
}
install_package() {
  in_root apt-get install -y --no-install-recommends "$@" /benevix.deb "${tools[@]}"
}

# Creates the root and downloads all packages to be installed. The file `dependencies` records them.
make_root() {
  rm -rf "$root" "$folder/dependencies"
  debootstrap --variant=minbase "$VERSION_CODENAME" "$root" >"$log" 2>&1 ||
    skip "no clean root: $(tail -n 1 "$log")"
  chmod 1777 "$root/dev/shm"
  in_root apt-get update -o APT::Update::Error-Mode=any ||
    skip "no list of packages: $(tail -n 1 "$log")"
  cp "$deb" "$root/benevix.deb"
  install_package --simulate || fail "the package's dependencies cannot be met"
  install_package --download-only || skip "packages cannot be fetched: $(tail -n 1 "$log")"
  echo "$dependencies" >"$folder/dependencies"
}

[ "$(id -u)" = 0 ] || skip "a clean root needs root rights"
# shellcheck source=/dev/null
. /etc/os-release
[ "${ID:-}" = debian ] || skip "this is not a Debian system"
for tool in debootstrap dpkg-shlibdeps file unshare; do
  command -v "$tool" >/dev/null || skip "$tool is not installed"
done

unshare --mount true 2>/dev/null || skip "mount namespaces cannot be created here"

mkdir -p "$folder"
cpack -G DEB --config "$build/CPackConfig.cmake" -B "$folder/made" >"$log" 2>&1 ||
  fail "the package cannot be made"
# shellcheck disable=SC2012  # the names are ours
deb=$(ls -t "$folder"/made/*.deb | head -n 1)
version=$(dpkg-deb -f "$deb" Version)
[ "$(dpkg-parsechangelog -l "$here/../../packaging/changelog" -S Version)" = "$version" ] ||
  fail "the changelog does not begin with version $version"
grep -q "<release version=\"$version\"" "$here"/../../packaging/*.metainfo.xml ||
  fail "the AppStream data do not know version $version"
if command -v lintian >/dev/null; then
  # The help is what the program shows; the word stands in a message whose text is fixed.
  expected=package-contains-documentation-outside-usr-share-doc,spelling-error-in-binary
  lintian --allow-root --display-info --suppress-tags "$expected" "$deb" >"$log" 2>&1 || true
  [ ! -s "$log" ] || fail "lintian has findings"
fi

dependencies="$VERSION_CODENAME: $(dpkg-deb -f "$deb" Depends), ${tools[*]}"
[ "$(cat "$folder/dependencies" 2>/dev/null)" = "$dependencies" ] || make_root

in_root dpkg --purge benevix || true
in_root userdel --remove donor || true
rm -rf "$root"/tmp/.X*
mkdir -m 1777 "$root/tmp/.X11-unix"
cp "$deb" "$root/benevix.deb"
cp "$here/session.sh" "$root/session.sh"
install_package || fail "the package cannot be installed"
in_root useradd --create-home donor || fail "the user cannot be created"
as_donor sh /session.sh || fail "the session ended with $?"

# The user's folder has been filled, and nothing written into the package's.
user=$root/home/donor/.local/share/benevix/Resources
for file in help.html qhelp.html sharedb.dat wlist.res; do
  [ "$(readlink "$user/$file")" = "/usr/share/benevix/Resources/$file" ] ||
    fail "$file is missing in the user's folder"
done
in_root dpkg --verify benevix || fail "files of the package have changed"
[ ! -s "$log" ] || fail "files of the package have changed"
[ -x "$root/home/donor/Desktop/benevix.desktop" ] || fail "the desktop shortcut is missing"
echo "$(basename "$deb") installed and started"
